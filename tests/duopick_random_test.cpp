// Whatever is done in Duopick, the table stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/duopick_table.h"
#include "tests/random_player.h"

namespace {

class DuopickPlayer : public RandomPlayer {
 public:
  explicit DuopickPlayer(const std::filesystem::path& folder) : RandomPlayer(folder, "cmdDuopick", 13) {}

  int matches = 0, refilled = 0, beyond = 0;

 private:
  // Mostly a card that fits the selected one, or the first of two that fit each other.
  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmDuopick&>(window);
    if (game.cards.StackIndex > 56 && Chance(5)) return "click frmDuopick.cmdTakeScore";
    if (Chance(3)) return "click frmDuopick.CardStackPicture";
    if (Draw(3000) == 0) {  // a score that the next bonus may carry too far
      suite_.common.CurrentScore = 2147483000;
      game.ShowScore();
    }
    const bool selected = game.CardsSelected != 0;
    std::vector<int> exposed;
    for (int card = modDuopick::kCards - 1; card >= 0 && !Chance(2); --card)
      if (game.PlayCard(card).Visible && game.PlayCard(card).Enabled && game.CheckForLegalMove(card)) {
        if (selected && Fits(game.FirstCardValue, game, card)) return Match(card);
        exposed.push_back(card);
      }
    for (size_t i = 0; i < exposed.size() && !selected; ++i)
      for (size_t j = i + 1; j < exposed.size(); ++j)
        if (Fits(CardValue(game.cards.DeckCards[exposed[i]]), game, exposed[j])) return ClickOn(exposed[i]);
    return Chance(70) ? "click frmDuopick.CardStackPicture" : ClickOn(Draw(modDuopick::kCards));
  }

  void Check(GameWindow& window) override {
    auto& game = static_cast<frmDuopick&>(window);
    const modCommon& common = suite_.common;
    ASSERT_FALSE(game.common.GameInProgress && game.RoundCompleted);
    if (!common.GameInProgress) {
      ASSERT_TRUE(game.cmdExit.Enabled);
      ASSERT_FALSE(game.lblMessage.Visible);
      for (int i = 0; i < modDuopick::kCards; ++i) {
        ASSERT_FALSE(game.PlayCard(i).Visible || game.FieldSelectionRectangle(i).Visible) << i;
      }
      return;
    }
    ASSERT_FALSE(common.TakingScore);
    ASSERT_TRUE(game.Timer4.Enabled);
    ASSERT_EQ(game.lblCurrentScore.Caption, FormatNumber(common.CurrentScore));
    ASSERT_EQ(game.lblScorePairs.Caption, std::to_string(game.PairsCount));
    ASSERT_EQ(game.lblScoreRuns.Caption, std::to_string(game.RunsCount));
    const bool paused = game.IsPaused();
    const long long turned = game.cards.StackIndex - modDuopick::kCards;
    ASSERT_EQ(game.CardsRemaining, std::max(0ll, 28 - turned));
    ASSERT_GE(game.cards.WastePos, 0);
    ASSERT_LE(game.cards.WastePos, modDuopick::kPile);
    // Each card shows its face, no card is there twice, and none goes but by a match.
    std::bitset<kLastFace + 1> seen;
    int outlined = 0, gaps = 0;
    for (int i = 0; i < modDuopick::kCards; ++i) {
      const Image& image = game.PlayCard(i);
      ASSERT_EQ(image.Visible, image.Picture != 0 && !paused) << i;
      gaps += image.Picture == 0;
      if (i < modDuopick::kField && image.Picture != 0) {
        ASSERT_EQ(image.Picture, FaceOf(game.cards.DeckCards[i])) << i;
        ASSERT_FALSE(seen[image.Picture]) << i;
        seen[image.Picture] = true;
      }
      if (!game.FieldSelectionRectangle(i).Visible) continue;
      ++outlined;
      ASSERT_EQ(game.FirstCardIndex, i);
      ASSERT_FALSE(image.Enabled);
    }
    ASSERT_EQ(outlined, game.CardsSelected);
    for (int i = 1; i <= game.cards.WastePos; ++i) {
      const std::string& code = game.cards.UpCards[i];
      if (code.empty()) continue;
      ASSERT_FALSE(seen[FaceOf(code)]) << code;
      seen[FaceOf(code)] = true;
    }
    if (turned <= 28) {
      ASSERT_EQ(seen.count(), modDuopick::kCards + turned - 2 * (game.PairsCount + game.RunsCount));
    }
    refilled += gaps < gaps_;
    gaps_ = gaps;
    beyond += turned > 28;
  }

  static bool Fits(long long rank, const frmDuopick& game, int card) {
    return modDuopick::MatchOf(rank, CardValue(game.cards.DeckCards[card])) != modDuopick::Match::None;
  }
  std::string Match(int card) {
    ++matches;
    return ClickOn(card);
  }
  static int FaceOf(const std::string& code) {
    return kFirstFace + 13 * static_cast<int>(std::string_view("SHCD").find(code.back())) + CardValue(code) -
           1;
  }
  static std::string ClickOn(int card) { return Click({card}); }

  int gaps_ = 0;
};

}  // namespace

TEST(DuopickRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  DuopickPlayer player(folder.Path());
  player.Play(200000);
  std::cout << player.matches << " matches, " << player.refilled << " gaps refilled, " << player.beyond
            << " moments behind the end of the stack\n";
  EXPECT_GT(player.matches, 10000);
  EXPECT_GT(player.refilled, 1000);
  EXPECT_GT(player.beyond, 1000);
  EXPECT_GT(player.overflows, 0);
}
