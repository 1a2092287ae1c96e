// Whatever is done in Sumfall, all that lies there is shown, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include <map>

#include "tests/random_player.h"
#include "tests/sumfall_board_player.h"
#include "tests/sumfall_cards.h"

namespace {

using namespace modSumfall;

class AtSumfall : public PlayerAt<frmSumfall, SumfallPlayer> {
 public:
  using PlayerAt::PlayerAt;

  std::map<long long, long long> combinations;  // at most in a round, by card goal

 private:
  const Control& ControlFor(frmSumfall& game, const SumfallPlayer::Move& move) override {
    if (move.kind == SumfallPlayer::Move::Pause) return game.cmdPause;
    if (move.kind == SumfallPlayer::Move::Turn) return game.PlayCardPicture;
    return move.place == kUpCard ? game.UpCardPicture : game.FieldCardPicture(move.place);
  }
  std::string Instead(frmSumfall&) override {
    return chance.Percent(1) ? "click frmSumfall.cmdTakeScore" : "";
  }

  void CheckBoard(frmSumfall& game, bool paused) override {
    const Board& board = game.board;
    long long& most = combinations[game.CardGoal];
    most = std::max<long long>(most, board.combinations);
    ASSERT_LE(board.total, game.CardGoal);
    ASSERT_FALSE(board.CheckForCompletion());
    ASSERT_EQ(game.lblCurrentTotal.Caption, std::to_string(board.total));
    ASSERT_EQ(game.lblCurrentElevens.Caption, std::to_string(board.combinations));
    ASSERT_EQ(game.lblCardCount.Caption, "Cards: " + std::to_string(board.stock.size()));
    ASSERT_EQ(game.UpCardSelectionRectangle.Visible, board.selected[kUpCard]);
    if (chance.Percent(90)) return;  // looking at each card takes time
    for (int i = 0; i < kPlaces; ++i) {
      const Image& image = game.FieldCardPicture(i);
      const std::string& card = board.field[i];
      ASSERT_EQ(image.Visible, !card.empty()) << i;
      ASSERT_EQ(game.FieldSelectionRectangle(i).Visible, board.selected[i]) << i;
      ASSERT_TRUE(card.empty() || image.Picture == (paused ? suite_.common.ImageList2("BACK") : FaceOf(card)))
          << "place " << i;
    }
  }
};

}  // namespace

TEST(SumfallRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  AtSumfall player(folder.Path(), "cmdSumfall", 10);
  player.Play(100000);
  for (int goal = kLowestGoal; goal <= kHighestGoal; ++goal) EXPECT_GT(player.combinations[goal], 3) << goal;
}
