// Whatever is done in Blackrush, the board stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/blackrush_board_player.h"
#include "tests/blackrush_table.h"
#include "tests/random_player.h"

namespace {

using namespace modBlackrush;

class AtBlackrush : public PlayerAt<frmBlackrush, BlackrushBoardPlayer> {
 public:
  using PlayerAt::PlayerAt;

  int twentyOnes = 0, decks = 0;

 private:
  const Control& ControlFor(frmBlackrush& game, const BlackrushBoardPlayer::Move& move) override {
    if (move.column < 0) return game.cmdPass;
    twentyOnes += game.board.columns[move.column].TotalWith(game.board.Next()) == kTwentyOne;
    return game.cmdHit(move.column);
  }
  // Where no column takes the card, the score is soon taken.
  std::string Instead(frmBlackrush& game) override {
    decks += game.board.position == kLastCard;
    const bool stuck = BlackrushBoardPlayer::IsOver(game.board);
    return chance.Percent(stuck ? 30 : 1) ? "click frmBlackrush.cmdTakeScore" : "";
  }

  void CheckNoGame(frmBlackrush& game) override {
    ASSERT_TRUE(game.cmdExit.Enabled);
    ASSERT_FALSE(game.Timer3.Enabled || game.cmdPause.Enabled || game.cmdHit(0).Visible);
  }
  void CheckBoard(frmBlackrush& game, bool paused) override {
    const Board& board = game.board;
    ASSERT_FALSE(game.standing.InputIsDead());
    ASSERT_FALSE(game.lblBust.Visible || game.lblFiveCards.Visible || game.lblRoundScore.Visible);
    ASSERT_EQ(game.ScoringLabelInfo.Visible, paused);
    ASSERT_EQ(game.frameScoreInfo.Visible, !paused);
    ASSERT_EQ(game.lblCardsUsedCount.Caption, std::to_string(board.CardsUsed()));
    ASSERT_EQ(game.lblBonus.Caption, std::to_string(board.bonus));
    ASSERT_TRUE(board.position >= 1 && board.position <= kLastCard);
    ASSERT_EQ(game.NextCardPicture.Picture, FaceOf(board.Next()));
    ASSERT_EQ(game.cmdPass.Enabled, !paused && board.mayPass);
    ASSERT_FALSE(game.Timer3.Enabled && paused);
    for (int i = 0; i < kColumns; ++i) {
      const Column21& column = board.columns[i];
      const int cards = static_cast<int>(column.cards.size());
      ASSERT_EQ(game.ColumnTotal(i).Caption, std::to_string(column.total));
      ASSERT_TRUE(cards < kCardsOfColumn && column.total < kTwentyOne);
      ASSERT_EQ(cards == 0, column.total == 0);
      ASSERT_EQ(game.ColumnSoft(i).Caption.get().empty(), board.words[i] == Word::None);
      ASSERT_EQ(game.cmdHit(i).Visible, !paused);
      for (int slot = 0; slot < kCardsOfColumn; ++slot) {
        const Image& image = game.ColumnImages(i)(slot);
        const bool card = slot < cards, place = slot == 0 && !card;
        ASSERT_EQ(image.Picture >= kFirstFace, card);
        ASSERT_EQ(image.BorderStyle == 1, card);
        ASSERT_EQ(image.Visible, !paused && (card || place));
      }
    }
  }
};

}  // namespace

TEST(BlackrushRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  AtBlackrush player(folder.Path(), "cmdBlackrush", 21);
  player.Play(100000);
  std::cout << player.twentyOnes << " columns of 21, " << player.decks << " moments with the last card\n";
  EXPECT_GT(player.twentyOnes, 1000);
  EXPECT_GT(player.decks, 20);
}
