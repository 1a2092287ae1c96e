// Whatever is done in Duopick, the table stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/duopick_table.h"
#include "tests/random_player.h"

namespace {

class DuopickAtRandom : public RandomPlayer {
 public:
  explicit DuopickAtRandom(const std::filesystem::path& folder) : RandomPlayer(folder, "cmdDuopick", 13) {}

  int matches = 0, refilled = 0, beyond = 0;

 private:
  // Mostly a card that fits the selected one, or the first of two that fit each other.
  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmDuopick&>(window);
    const modDuopick::Board& board = game.board;
    if (board.stack.empty() && Chance(1)) return "click frmDuopick.cmdTakeScore";
    if (Chance(3)) return "click frmDuopick.CardStackPicture";
    if (Draw(3000) == 0) {  // a score that the next bonus may carry too far
      suite_.common.CurrentScore = 2147483000;
      game.ShowScore();
    }
    const bool selected = board.selected != modDuopick::kNone;
    std::vector<int> exposed;
    for (int card = modDuopick::kCards - 1; card >= 0 && !Chance(2); --card)
      if (game.PlayCard(card).Visible && board.Takes(card)) {
        if (selected) return Match(card);
        exposed.push_back(card);
      }
    for (size_t i = 0; i < exposed.size(); ++i)
      for (size_t j = i + 1; j < exposed.size(); ++j)
        if (modDuopick::MatchOf(CardValue(board.Code(exposed[i])), CardValue(board.Code(exposed[j]))) !=
            modDuopick::Match::None)
          return ClickOn(exposed[i]);
    return Chance(70) ? "click frmDuopick.CardStackPicture" : ClickOn(Draw(modDuopick::kCards));
  }

  void Check(GameWindow& window) override {
    auto& game = static_cast<frmDuopick&>(window);
    const modCommon& common = suite_.common;
    const modDuopick::Board& board = game.board;
    if (!game.standing.InGame()) {
      ASSERT_TRUE(game.cmdExit.Enabled);
      ASSERT_FALSE(game.lblMessage.Visible);
      for (int i = 0; i < modDuopick::kCards; ++i) {
        ASSERT_FALSE(game.PlayCard(i).Visible || game.FieldSelectionRectangle(i).Visible) << i;
      }
      return;
    }
    ASSERT_FALSE(game.standing.InputIsDead());
    ASSERT_TRUE(game.Timer4.Enabled);
    ASSERT_EQ(game.lblCurrentScore.Caption, FormatNumber(common.CurrentScore));
    ASSERT_EQ(game.lblScorePairs.Caption, std::to_string(board.PairsCount));
    ASSERT_EQ(game.lblScoreRuns.Caption, std::to_string(board.RunsCount));
    const bool paused = game.standing.IsPaused();
    ASSERT_FALSE(board.RoundCompleted());
    ASSERT_EQ(game.lblCards.Caption, std::to_string(board.stack.size()));
    // Each card shows what lies there.
    int gaps = 0;
    for (int i = 0; i < modDuopick::kCards; ++i) {
      const Image& image = game.PlayCard(i);
      ASSERT_EQ(image.Visible, image.Picture != 0 && !paused) << i;
      gaps += image.Picture == 0;
      if (i < modDuopick::kField) {
        ASSERT_EQ(image.Picture, FaceOf(board.Code(i))) << i;
      }
      const bool selected = board.selected == i;
      ASSERT_EQ(game.FieldSelectionRectangle(i).Visible, selected) << i;
      ASSERT_FALSE(image.Enabled && selected) << i;
    }
    refilled += gaps < gaps_;
    gaps_ = gaps;
    beyond += !board.waste.empty() && board.waste.back().empty();
  }

  std::string Match(int card) {
    ++matches;
    return ClickOn(card);
  }
  static int FaceOf(const std::string& code) {
    if (code.empty()) return 0;
    return kFirstFace + 13 * static_cast<int>(std::string_view("SHCD").find(code.back())) + CardValue(code) -
           1;
  }
  static std::string ClickOn(int card) { return Click({card}); }

  int gaps_ = 0;
};

}  // namespace

TEST(DuopickRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  DuopickAtRandom player(folder.Path());
  player.Play(100000);
  std::cout << player.matches << " matches, " << player.refilled << " gaps refilled, " << player.beyond
            << " moments behind the end of the stack\n";
  EXPECT_GT(player.matches, 10000);
  EXPECT_GT(player.refilled, 1000);
  EXPECT_GT(player.beyond, 1000);
  EXPECT_GT(player.overflows, 0);
}
