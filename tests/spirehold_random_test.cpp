// Whatever is done in Spirehold, the table stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/random_player.h"
#include "tests/spirehold_table.h"

namespace {

class SpireholdAtRandom : public RandomPlayer {
 public:
  explicit SpireholdAtRandom(const std::filesystem::path& folder)
      : RandomPlayer(folder, "cmdSpirehold", 11) {}

  int runs = 0;

 private:
  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmSpirehold&>(window);
    const modSpirehold::Board& board = game.board;
    if (board.UpCardValue() == 0 && Chance(20)) return "click frmSpirehold.cmdTakeScore";
    if (!Chance(15))
      for (int card = 0; card < modSpirehold::kCards; ++card)
        if (game.UpCardImage(card).Visible && board.CheckForLegalMove(card)) {
          ++runs;
          return ClickOn(card);
        }
    if (Chance(2)) return "click frmSpirehold.UpCardPicture";
    return Chance(40) ? "click frmSpirehold.CardStackPicture" : ClickOn(Draw(modSpirehold::kCards));
  }

  void Check(GameWindow& window) override {
    auto& game = static_cast<frmSpirehold&>(window);
    const modCommon& common = suite_.common;
    if (!game.standing.InGame()) {
      ASSERT_TRUE(game.cmdExit.Enabled);
      ASSERT_FALSE(game.lblMessage.Visible);
      return;
    }
    ASSERT_FALSE(game.standing.InputIsDead());
    ASSERT_EQ(game.lblCurrentScore.Caption, FormatNumber(common.CurrentScore));
    const modSpirehold::Board& board = game.board;
    ASSERT_EQ(game.lblCards.Caption, std::to_string(board.stack.size()));
    ASSERT_EQ(game.lblCurrentRun.Caption, "Current Run: " + std::to_string(board.CurrentRun));
    ASSERT_EQ(game.lblHighRun.Caption, "Highest Run: " + std::to_string(board.HighestRun));
    const bool paused = game.standing.IsPaused();
    for (int card = 0; card < modSpirehold::kCards; ++card) {
      const Image& image = game.UpCardImage(card);
      const bool lies = !board.table[card].empty();
      ASSERT_EQ(image.Picture != 0, lies) << card;
      ASSERT_EQ(image.Visible, lies && !paused) << card;
      ASSERT_EQ(image.Enabled, !board.IsCovered(card)) << card;
      const bool showsBack = image.Picture == common.ImageList2("BACK");
      ASSERT_TRUE(paused || board.IsCovered(card) == showsBack) << card;
    }
    ASSERT_LT(board.TowersCompleted(), modSpirehold::kTowers);
  }

  static std::string ClickOn(int card) {
    return "click frmSpirehold.UpCardImage(" + std::to_string(card) + ")";
  }
};

}  // namespace

TEST(SpireholdRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  SpireholdAtRandom player(folder.Path());
  player.Play(100000);
  EXPECT_GT(player.runs, 10000);
  EXPECT_GT(player.overflows, 0);
}
