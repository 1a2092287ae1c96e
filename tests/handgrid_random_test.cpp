// Whatever is done in Handgrid, the grid stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/handgrid_board_player.h"
#include "tests/handgrid_table.h"
#include "tests/random_player.h"

namespace {

using namespace modHandgrid;

class AtHandgrid : public PlayerAt<frmHandgrid, HandgridPlayer> {
 public:
  using PlayerAt::PlayerAt;

  int filled = 0, bonusRounds = 0;

 private:
  const Control& ControlFor(frmHandgrid& game, const HandgridPlayer::Move& move) override {
    filled += std::ranges::count(game.board.cells, "") == 1;
    return game.PlayCards(move.cell);
  }
  std::string Instead(frmHandgrid& game) override {
    if (game.standing.InputIsDead() && chance.Percent(50)) return "advance 0";
    return chance.Percent(2) ? "click frmHandgrid.CardStackPicture" : "";
  }

  void CheckNoGame(frmHandgrid& game) override {
    ASSERT_TRUE(game.Timer2.Enabled);
    ASSERT_FALSE(game.PlayCards(0).Visible || game.HoleCard.Visible || game.Surface.Visible);
  }
  void CheckBoard(frmHandgrid& game, bool paused) override {
    const modCommon& common = suite_.common;
    ASSERT_TRUE(game.Timer2.Enabled);
    ASSERT_FALSE(game.ScoringLabel.Visible || game.ScoringLabelOutline.Visible);
    bonusRounds += game.CurrentRound == 4;
    const Board& board = game.board;
    const auto empty = std::ranges::count(board.cells, "");
    ASSERT_GT(empty, 0);
    ASSERT_TRUE(board.holeCount == 1 && !board.hole.empty());
    ASSERT_EQ(51 - std::ssize(board.stack), 25 - empty + board.overWritesUsed);
    ASSERT_LE(board.overWritesUsed, board.overWritesAllowed);
    ASSERT_EQ(board.overWritesAllowed, game.OverWritesAllowed);
    ASSERT_EQ(game.lblTimeBonus.Caption, std::to_string(game.clock.TimeLimit - game.clock.ElapsedSeconds));
    if (paused || chance.Percent(90)) return;  // looking at each card takes time
    for (int cell = 0; cell < kCells; ++cell) {
      const std::string& code = board.cells[cell];
      const Image& image = game.PlayCards(cell);
      ASSERT_TRUE(image.Visible);
      ASSERT_EQ(image.Picture, common.ImageList2(code.empty() ? "EMPTY" : CardKey(code))) << cell;
      ASSERT_EQ(image.BorderStyle, code.empty() ? 0 : 1) << cell;
    }
    long long points = 0;
    for (int line = 0; line < kLines; ++line) {
      const Label& label = line < kSide ? game.lblRow(line + 1) : game.lblCol(line - kSide + 1);
      ASSERT_EQ(label.Caption, HandName(board.hands[line]));
      points += game.Scores.Of(board.hands[line]);
    }
    ASSERT_EQ(game.lblPointsEarned.Caption, "Points Earned: " + std::to_string(points));
  }
};

}  // namespace

TEST(HandgridRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  folder.Write("Handgrid.Ini", "[Time Bonus]\r\n100000\r\n\r\n");  // until the dialog puts it right
  AtHandgrid player(folder.Path(), "cmdHandgrid", 13);
  player.Play(100000);
  EXPECT_GT(player.filled, 500);
  EXPECT_GT(player.bonusRounds, 0);
  EXPECT_GT(player.overflows, 0);
}
