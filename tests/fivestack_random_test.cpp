// Whatever is done in Fivestack, the board stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/fivestack_table.h"
#include "tests/random_player.h"

namespace {

using namespace modFivestack;

class FivestackPlayer : public RandomPlayer {
 public:
  explicit FivestackPlayer(const std::filesystem::path& folder) : RandomPlayer(folder, "cmdFivestack", 5) {}

  int taken = 0, softened = 0, highest = 0;

 private:
  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmFivestack&>(window);
    if (game.board.Worth() > 0 && Chance(30)) {
      ++taken;
      return "click frmFivestack.cmdGiveUp";
    }
    if (Chance(1)) return "click frmFivestack.cmdGiveUp";
    if (Chance(5)) return "click frmFivestack.cmdPass";
    // The fullest column that the card doesn't ruin; else one with an ace that can come down.
    const std::string& card = game.board.Next();
    int best = -1, total = -1;
    for (int i = 0; i < kColumns && !Chance(10); ++i) {
      const Column21& column = game.board.columns[i];
      if (!game.board.Takes(i) || column.total <= total) continue;
      if (column.TotalWith(card) <= kTwentyOne || (column.softAces > 0 && column.total < 20)) {
        best = i;
        total = static_cast<int>(column.total);
      }
    }
    if (best >= 0 && game.board.columns[best].TotalWith(card) > kTwentyOne) ++softened;
    return "click frmFivestack.cmdHit(" + std::to_string(best >= 0 ? best : Draw(kColumns)) + ")";
  }

  void Check(GameWindow& window) override {
    auto& game = static_cast<frmFivestack&>(window);
    const modCommon& common = suite_.common;
    ASSERT_FALSE(game.ScoringLabelRoundTotal.Visible || game.ScoringLabelInfo.Visible ||
                 game.ScoringLabelOutline.Visible);
    if (!game.standing.InGame()) {
      ASSERT_FALSE(game.frmScore.Visible || game.cmdHit(0).Visible || game.PlayCardPicture.Visible);
      ASSERT_EQ(game.CurrentRound, 0);
      return;
    }
    ASSERT_FALSE(game.standing.InputIsDead());
    ASSERT_TRUE(game.CurrentRound >= 1 && game.CurrentRound <= kBonusRound);
    ASSERT_EQ(game.lblTotalScore.Caption, FormatNumber(common.CurrentScore));
    const Board& board = game.board;
    const bool paused = game.standing.IsPaused();
    ASSERT_EQ(game.ScoringLabel.Visible, paused);
    long long sum = 0;
    for (int i = 0; i < kColumns; ++i) {  // one look a column: it is looked at two hundred thousand times
      const Column21& column = board.columns[i];
      const bool counts = column.total <= kTwentyOne, soft = column.softAces == 1 && column.total >= 11,
                 shown = game.ColumnTotal(i).Caption == std::to_string(column.total) &&
                         game.ColumnSoft(i).Visible == (soft && !paused) && game.cmdHit(i).Visible == !paused,
                 open = game.cmdHit(i).Enabled == board.Takes(i);
      ASSERT_TRUE(counts && (soft || column.softAces == 0) && shown && open) << "column " << i;
      sum += column.total;
    }
    ASSERT_EQ(game.lblCurrentTotal.Caption, std::to_string(sum));
    ASSERT_EQ(board.cardTotal, sum);
    ASSERT_EQ(game.cmdGiveUp.Caption == "&Take score", board.Worth() > 0);
    ASSERT_EQ(game.lblCurrentTotal.ForeColor == kRed, sum < kLowestPaid);
    ASSERT_EQ(game.cmdPass.Enabled, board.passesLeft > 0);
    ASSERT_EQ(game.NextCardPicture.Picture, common.ImageList2(CardKey(board.Next())));
    highest = std::max(highest, static_cast<int>(sum));
  }
};

}  // namespace

TEST(FivestackRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  FivestackPlayer player(folder.Path());
  player.Play(100000);
  std::cout << player.taken << " scores taken, " << player.softened << " aces brought down, highest total "
            << player.highest << "\n";
  EXPECT_GT(player.taken, 100);
  EXPECT_GT(player.softened, 100);
}
