// Whatever is done in Handgrid, the grid stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include <set>

#include "tests/handgrid_table.h"
#include "tests/random_player.h"
#include "window/text.h"

using namespace modHandgrid;

namespace {

class HandgridPlayer : public RandomPlayer {
 public:
  explicit HandgridPlayer(const std::filesystem::path& folder) : RandomPlayer(folder, "cmdHandgrid", 13) {}

  int placed = 0, filled = 0, bonusRounds = 0;

 private:
  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmHandgrid&>(window);
    if (game.standing.InputIsDead() && Chance(50)) return "advance 0";
    if (Chance(2)) return "click frmHandgrid.CardStackPicture";
    if (Chance(80))
      for (int cell = 0; cell < kCells; ++cell)
        if (game.board.cells[cell].empty()) {
          ++placed;
          filled += cell == kCells - 1;
          return ClickOn(cell);
        }
    return ClickOn(Draw(kCells));
  }

  void Check(GameWindow& window) override {
    auto& game = static_cast<frmHandgrid&>(window);
    const modCommon& common = suite_.common;
    ASSERT_TRUE(game.Timer2.Enabled);
    ASSERT_FALSE(game.ScoringLabel.Visible || game.ScoringLabelOutline.Visible);
    if (!game.standing.InGame()) {
      ASSERT_FALSE(game.PlayCards(0).Visible || game.HoleCard.Visible || game.Surface.Visible);
      return;
    }
    bonusRounds += game.CurrentRound == 4;
    ASSERT_EQ(game.lblCurrentScore.Caption, FormatNumber(common.CurrentScore));
    const Board& board = game.board;
    if (board.stack.size() == 51 && common.ElapsedSeconds == 0) CheckDeck(board);
    const bool looks = !game.standing.IsPaused() && Chance(10);  // looking at each card takes time
    int empty = 0;
    for (const std::string& code : board.cells) empty += code.empty();
    for (int cell = 0; looks && cell < kCells; ++cell) {
      const std::string& code = board.cells[cell];
      const Image& image = game.PlayCards(cell);
      ASSERT_TRUE(image.Visible);
      ASSERT_EQ(image.Picture, common.ImageList2(code.empty() ? "EMPTY" : CardKey(code))) << cell;
      ASSERT_EQ(image.BorderStyle, code.empty() ? 0 : 1) << cell;
    }
    ASSERT_GT(empty, 0);
    ASSERT_EQ(board.holeCount, 1);
    ASSERT_FALSE(board.hole.empty());
    ASSERT_EQ(51 - std::ssize(board.stack), 25 - empty + board.overWritesUsed);
    ASSERT_EQ(std::ssize(board.covered), board.overWritesUsed);
    ASSERT_LE(board.overWritesUsed, board.overWritesAllowed);
    ASSERT_EQ(board.overWritesAllowed, game.OverWritesAllowed);
    ASSERT_EQ(game.lblTimeBonus.Caption, std::to_string(common.TimeLimit - common.ElapsedSeconds));
    if (looks) CheckHands(game);
  }

  // Each card is there once.
  static void CheckDeck(const Board& board) {
    std::set<std::string> cards(board.stack.begin(), board.stack.end());
    cards.insert(board.hole);
    ASSERT_EQ(cards.size(), 52u);
  }

  // What the labels say is what lies there, and adds up.
  static void CheckHands(frmHandgrid& game) {
    Board judged = game.board;
    judged.EvaluateLines();
    ASSERT_EQ(judged, game.board);
    long long points = 0;
    for (int line = 0; line < kLines; ++line) {
      const Label& label = line < kSide ? game.lblRow(line + 1) : game.lblCol(line - kSide + 1);
      ASSERT_EQ(label.Caption, HandName(judged.hands[line]));
      points += game.Scores.Of(judged.hands[line]);
    }
    ASSERT_EQ(game.lblPointsEarned.Caption, "Points Earned: " + std::to_string(points));
  }

  static std::string ClickOn(int cell) { return "click frmHandgrid.PlayCards(" + std::to_string(cell) + ")"; }
};

}  // namespace

TEST(HandgridRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  folder.Write("Handgrid.Ini", "[Time Bonus]\r\n100000\r\n\r\n");  // until the dialog puts it right
  HandgridPlayer player(folder.Path());
  player.Play(100000);
  EXPECT_GT(player.placed, 10000);
  EXPECT_GT(player.filled, 500);
  EXPECT_GT(player.bonusRounds, 0);
  EXPECT_GT(player.overflows, 0);
}
