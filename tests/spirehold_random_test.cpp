// Whatever is done in Spirehold, the table stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/random_player.h"
#include "tests/spirehold_board_player.h"
#include "tests/spirehold_table.h"

namespace {

using namespace modSpirehold;

class AtSpirehold : public PlayerAt<frmSpirehold, SpireholdPlayer> {
 public:
  using PlayerAt::PlayerAt;

 private:
  const Control& ControlFor(frmSpirehold& game, const SpireholdPlayer::Move& move) override {
    if (move.card != SpireholdPlayer::kTurn) return game.UpCardImage(move.card);
    return chance.Percent(5) ? game.UpCardPicture : game.CardStackPicture;
  }
  std::string Instead(frmSpirehold& game) override {
    const bool end = game.board.UpCardValue() == 0;
    return end && chance.Percent(20) ? "click frmSpirehold.cmdTakeScore" : "";
  }

  void CheckNoGame(frmSpirehold& game) override {
    ASSERT_TRUE(game.cmdExit.Enabled && !game.lblMessage.Visible);
  }
  void CheckBoard(frmSpirehold& game, bool paused) override {
    ASSERT_FALSE(game.standing.InputIsDead());
    const Board& board = game.board;
    ASSERT_EQ(game.lblCards.Caption, std::to_string(board.stack.size()));
    ASSERT_EQ(game.lblCurrentRun.Caption, "Current Run: " + std::to_string(board.CurrentRun));
    ASSERT_EQ(game.lblHighRun.Caption, "Highest Run: " + std::to_string(board.HighestRun));
    for (int card = 0; card < kCards; ++card) {
      const Image& image = game.UpCardImage(card);
      const bool lies = !board.table[card].empty(), covered = board.IsCovered(card);
      ASSERT_EQ(image.Picture != 0, lies) << card;
      ASSERT_EQ(image.Visible, lies && !paused) << card;
      ASSERT_EQ(image.Enabled, !covered) << card;
      ASSERT_TRUE(paused || covered == (image.Picture == suite_.common.ImageList2("BACK"))) << card;
    }
    ASSERT_LT(board.TowersCompleted(), kTowers);
  }
};

}  // namespace

TEST(SpireholdRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  AtSpirehold player(folder.Path(), "cmdSpirehold", 11);
  player.Play(100000);
  EXPECT_GT(player.overflows, 0);
}
