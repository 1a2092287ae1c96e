// Whatever is done in Fivestack, the board stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/fivestack_board_player.h"
#include "tests/fivestack_table.h"
#include "tests/random_player.h"

namespace {

using namespace modFivestack;

class AtFivestack : public PlayerAt<frmFivestack, FivestackBoardPlayer> {
 public:
  using PlayerAt::PlayerAt;

  int taken = 0, softened = 0;

 private:
  const Control& ControlFor(frmFivestack& game, const FivestackBoardPlayer::Move& move) override {
    if (move.column < 0) return game.cmdPass;
    softened += game.board.columns[move.column].TotalWith(game.board.Next()) > kTwentyOne;
    return game.cmdHit(move.column);
  }
  std::string Instead(frmFivestack& game) override {
    const bool pays = game.board.Worth() > 0, takes = chance.Percent(pays ? 30 : 1);
    taken += pays && takes;
    return takes ? "click frmFivestack.cmdGiveUp" : "";
  }

  void CheckNoGame(frmFivestack& game) override {
    ASSERT_FALSE(game.frmScore.Visible || game.cmdHit(0).Visible || game.PlayCardPicture.Visible);
    ASSERT_EQ(game.CurrentRound, 0);
  }
  void CheckBoard(frmFivestack& game, bool paused) override {
    ASSERT_FALSE(game.standing.InputIsDead() || game.ScoringLabelRoundTotal.Visible);
    ASSERT_TRUE(game.CurrentRound >= 1 && game.CurrentRound <= kBonusRound);
    const Board& board = game.board;
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
    ASSERT_EQ(game.NextCardPicture.Picture, FaceOf(board.Next()));
  }
};

}  // namespace

TEST(FivestackRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  AtFivestack player(folder.Path(), "cmdFivestack", 5);
  player.Play(100000);
  std::cout << player.taken << " scores taken, " << player.softened << " aces brought down\n";
  EXPECT_GT(player.taken, 100);
  EXPECT_GT(player.softened, 100);
}
