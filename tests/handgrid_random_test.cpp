// Whatever is done in Handgrid, the grid stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include <set>

#include "tests/handgrid_table.h"
#include "tests/random_player.h"
#include "window/text.h"

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
      for (int cell = 0; cell < modHandgrid::kCells; ++cell)
        if (game.PlayedCards[cell].empty()) {
          ++placed;
          filled += cell == modHandgrid::kCells - 1;
          return ClickOn(cell);
        }
    return ClickOn(Draw(modHandgrid::kCells));
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
    if (game.DeckPosition == 2 && common.ElapsedSeconds == 0) CheckDeck(game);
    const bool looks = !game.standing.IsPaused() && Chance(10);  // looking at each card takes time
    int empty = 0;
    for (const std::string& code : game.PlayedCards) empty += code.empty();
    for (int cell = 0; looks && cell < modHandgrid::kCells; ++cell) {
      const std::string& code = game.PlayedCards[cell];
      const Image& image = game.PlayCards(cell);
      ASSERT_TRUE(image.Visible);
      ASSERT_EQ(image.Picture, common.ImageList2(code.empty() ? "EMPTY" : CardKey(code))) << cell;
      ASSERT_EQ(image.BorderStyle, code.empty() ? 0 : 1) << cell;
    }
    ASSERT_GT(empty, 0);
    ASSERT_EQ(game.HoleCount, 1);
    ASSERT_EQ(game.HoleCards(1), game.RoundDeck(game.DeckPosition - 1));
    ASSERT_EQ(game.CardsRemaining, 52 - (game.DeckPosition - 1));
    ASSERT_EQ(game.DeckPosition - 2, 25 - empty + game.OverWritesUsed);
    ASSERT_LE(game.OverWritesUsed, game.OverWritesAllowed);
    ASSERT_EQ(game.lblTimeBonus.Caption, std::to_string(common.TimeLimit - common.ElapsedSeconds));
    if (looks) CheckHands(game);
  }

  // Each card is there once.
  void CheckDeck(frmHandgrid& game) {
    std::set<std::string> cards;
    for (int slot = 1; slot <= modHandgrid::kDeckCards; ++slot) cards.insert(game.RoundDeck(slot));
    ASSERT_EQ(cards.size(), 52u);
  }

  // What the labels say is what lies there, and adds up.
  void CheckHands(frmHandgrid& game) {
    modHandgrid::Grid grid = game.PlayedCards;
    long long points = 0;
    for (auto* labels : {&game.lblRow, &game.lblCol}) {
      const modHandgrid::LineHands hands = modHandgrid::EvaluateLines(grid);
      for (int line = 1; line <= modHandgrid::kSide; ++line) {
        ASSERT_EQ((*labels)(line).Caption, modHandgrid::HandName(hands[line - 1]));
        points += game.Scores.Of(hands[line - 1]);
      }
      modHandgrid::TransposeCards(grid);
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
  player.Play(200000);
  EXPECT_GT(player.placed, 10000);
  EXPECT_GT(player.filled, 500);
  EXPECT_GT(player.bonusRounds, 0);
  EXPECT_GT(player.overflows, 0);
}
