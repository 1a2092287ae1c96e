// Whatever is done in Spirehold, the table stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/random_player.h"
#include "tests/spirehold_table.h"

namespace {

class SpireholdPlayer : public RandomPlayer {
 public:
  explicit SpireholdPlayer(const std::filesystem::path& folder) : RandomPlayer(folder, "cmdSpirehold", 11) {}

  int runs = 0;

 private:
  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmSpirehold&>(window);
    if (game.StackIndex > 52 && Chance(20)) return "click frmSpirehold.cmdTakeScore";
    if (!Chance(15))
      for (int card = 0; card < modSpirehold::kCards; ++card) {
        const Image& image = game.UpCardImage(card);
        if (image.Visible && image.Enabled &&
            modSpirehold::IsNeighbour(CardValue(game.DeckCards[card]), game.UpCardValue)) {
          ++runs;
          return ClickOn(card);
        }
      }
    if (Chance(2)) return "click frmSpirehold.UpCardPicture";
    return Chance(40) ? "click frmSpirehold.CardStackPicture" : ClickOn(Draw(modSpirehold::kCards));
  }

  void Check(GameWindow& window) override {
    auto& game = static_cast<frmSpirehold&>(window);
    const modCommon& common = suite_.common;
    if (!common.GameInProgress) {
      ASSERT_TRUE(game.cmdExit.Enabled);
      ASSERT_FALSE(game.lblMessage.Visible);
      return;
    }
    ASSERT_FALSE(common.TakingScore);
    ASSERT_EQ(game.lblCurrentScore.Caption, FormatNumber(common.CurrentScore));
    ASSERT_EQ(game.CardsRemaining, std::max(0ll, 52 - game.StackIndex));
    const bool paused = game.IsPaused();
    int towers = 0;
    for (int card = 0; card < modSpirehold::kCards; ++card) {
      const Image& image = game.UpCardImage(card);
      ASSERT_EQ(image.Visible, !paused && image.Picture != 0);
      towers += card < modSpirehold::kTowers && image.Picture == 0;
      if (card >= modSpirehold::kCovered) continue;
      const modSpirehold::Pair pair = modSpirehold::kCoveredBy[card];
      const bool covered =
          game.UpCardImage(pair.left).Picture != 0 || game.UpCardImage(pair.right).Picture != 0;
      ASSERT_EQ(image.Enabled, !covered) << card;
      const bool showsBack = image.Picture == common.ImageList2("BACK");
      ASSERT_TRUE(paused || covered == showsBack) << card;
    }
    ASSERT_EQ(game.TowersCompleted, towers);
  }

  static std::string ClickOn(int card) {
    return "click frmSpirehold.UpCardImage(" + std::to_string(card) + ")";
  }
};

}  // namespace

TEST(SpireholdRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  SpireholdPlayer player(folder.Path());
  player.Play(200000);
  EXPECT_GT(player.runs, 10000);
  EXPECT_GT(player.overflows, 0);
}
