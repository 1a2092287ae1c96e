// Whatever is done in Duopick, the table stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/duopick_board_player.h"
#include "tests/duopick_table.h"
#include "tests/random_player.h"

namespace {

using namespace modDuopick;

class AtDuopick : public PlayerAt<frmDuopick, DuopickPlayer> {
 public:
  using PlayerAt::PlayerAt;

  int beyond = 0;  // moments behind the end of the stack

 private:
  const Control& ControlFor(frmDuopick& game, const DuopickPlayer::Move& move) override {
    beyond += !game.board.waste.empty() && game.board.waste.back().empty();
    return move.card == kNone ? static_cast<const Control&>(game.CardStackPicture) : game.PlayCard(move.card);
  }
  std::string Instead(frmDuopick& game) override {
    if (meddles && chance.Draw(1500) == 0) {  // a score that the next bonus may carry too far
      suite_.common.CurrentScore = 2147483000;
      game.ShowScore();
    }
    return game.board.stack.empty() && chance.Percent(1) ? "click frmDuopick.cmdTakeScore" : "";
  }

  void CheckNoGame(frmDuopick& game) override {
    ASSERT_TRUE(game.cmdExit.Enabled && !game.lblMessage.Visible);
    for (int i = 0; i < kCards; ++i)
      ASSERT_FALSE(game.PlayCard(i).Visible || game.FieldSelectionRectangle(i).Visible) << i;
  }
  // Each card shows what lies there.
  void CheckBoard(frmDuopick& game, bool paused) override {
    const Board& board = game.board;
    ASSERT_TRUE(game.Timer4.Enabled && !game.standing.InputIsDead());
    ASSERT_EQ(game.lblScorePairs.Caption, std::to_string(board.PairsCount));
    ASSERT_EQ(game.lblScoreRuns.Caption, std::to_string(board.RunsCount));
    ASSERT_FALSE(board.RoundCompleted());
    ASSERT_EQ(game.lblCards.Caption, std::to_string(board.stack.size()));
    for (int i = 0; i < kCards; ++i) {
      const Image& image = game.PlayCard(i);
      ASSERT_EQ(image.Visible, image.Picture != 0 && !paused) << i;
      ASSERT_TRUE(i >= kField || image.Picture == FaceOf(board.Code(i))) << i;
      const bool selected = board.selected == i;
      ASSERT_EQ(game.FieldSelectionRectangle(i).Visible, selected) << i;
      ASSERT_FALSE(image.Enabled && selected) << i;
    }
  }
};

}  // namespace

TEST(DuopickRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  AtDuopick player(folder.Path(), "cmdDuopick", 13);
  player.Play(100000);
  EXPECT_GT(player.beyond, 500);
  EXPECT_TRUE(player.overflows > 0 || player.writesDown);
}
