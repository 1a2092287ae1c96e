// Whatever is done in Blackrush, the board stays sound, and nothing hangs or crashes.
#include <gtest/gtest.h>

#include "tests/blackrush_table.h"
#include "tests/random_player.h"

namespace {

class BlackrushPlayer : public RandomPlayer {
 public:
  explicit BlackrushPlayer(const std::filesystem::path& folder) : RandomPlayer(folder, "cmdBlackrush", 21) {}

  int twentyOnes = 0, decks = 0;

 private:
  // Mostly plays well: where the card makes most without going over.
  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmBlackrush&>(window);
    const modBlackrush::Board& board = game.board;
    twentyOnes += board.twentyOnes > twentyOnesBefore_;
    twentyOnesBefore_ = static_cast<int>(board.twentyOnes);
    decks += board.position == modBlackrush::kLastCard;
    if (Chance(1)) return "click frmBlackrush.cmdPass";
    if (Chance(1)) return "click frmBlackrush.cmdTakeScore";
    int best = Draw(modBlackrush::kColumns);
    long long most = -1;
    for (int i = 0; i < modBlackrush::kColumns && !Chance(3); ++i) {
      const Column21& column = board.columns[i];
      const int total = column.TotalWith(board.Next());
      const bool fits = total <= kTwentyOne || column.softAces > 0;
      if (fits && total > most) best = i, most = total;
    }
    // Where no column takes the card, the score is soon taken.
    if (most < 0 && Chance(30))
      return "click frmBlackrush." + Pick<std::string>({"cmdPass", "cmdPass", "cmdTakeScore"});
    return "click frmBlackrush.cmdHit(" + std::to_string(best) + ")";
  }

  void Check(GameWindow& window) override {
    auto& game = static_cast<frmBlackrush&>(window);
    const modCommon& common = suite_.common;
    const modBlackrush::Board& board = game.board;
    ASSERT_FALSE(game.standing.InputIsDead());
    ASSERT_FALSE(game.lblBust.Visible || game.lblFiveCards.Visible || game.lblRoundScore.Visible);
    ASSERT_EQ(game.ScoringLabelInfo.Visible, game.standing.IsPaused());
    ASSERT_EQ(game.ScoringLabelOutline.Visible, game.standing.IsPaused());
    ASSERT_EQ(game.frameScoreInfo.Visible, game.standing.InGame() && !game.standing.IsPaused());
    if (!game.standing.InGame()) {
      ASSERT_TRUE(game.cmdExit.Enabled);
      ASSERT_FALSE(game.Timer3.Enabled || game.cmdPause.Enabled || game.cmdHit(0).Visible);
      return;
    }
    const bool open = !game.standing.IsPaused();
    ASSERT_EQ(game.lblTotalScore.Caption, FormatNumber(common.CurrentScore));
    ASSERT_EQ(game.lblCardsUsedCount.Caption, std::to_string(board.CardsUsed()));
    ASSERT_EQ(game.lblBonus.Caption, std::to_string(board.bonus));
    ASSERT_GE(board.position, 1);
    ASSERT_LE(board.position, modBlackrush::kLastCard);
    ASSERT_EQ(game.NextCardPicture.Picture, common.ImageList2(CardKey(board.Next())));
    ASSERT_EQ(game.cmdPass.Enabled, open && board.mayPass);
    ASSERT_FALSE(game.Timer3.Enabled && game.standing.IsPaused());
    for (int i = 0; i < modBlackrush::kColumns; ++i) {
      const Column21& column = board.columns[i];
      const int cards = static_cast<int>(column.cards.size());
      ASSERT_EQ(game.ColumnTotal(i).Caption, std::to_string(column.total));
      ASSERT_TRUE(cards < kCardsOfColumn && column.total < kTwentyOne);
      ASSERT_EQ(cards == 0, column.total == 0);
      ASSERT_EQ(game.ColumnSoft(i).Caption.get().empty(), board.words[i] == modBlackrush::Word::None);
      ASSERT_EQ(game.cmdHit(i).Visible, open);
      for (int slot = 0; slot < kCardsOfColumn; ++slot) {
        const Image& image = game.ColumnImages(i)(slot);
        const bool card = slot < cards, place = slot == 0 && !card;
        ASSERT_EQ(image.Picture >= kFirstFace, card);
        ASSERT_EQ(image.BorderStyle == 1, card);
        ASSERT_EQ(image.Visible, open && (card || place));
      }
    }
  }

  int twentyOnesBefore_ = 0;
};

}  // namespace

TEST(BlackrushRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  BlackrushPlayer player(folder.Path());
  player.Play(100000);
  std::cout << player.twentyOnes << " columns of 21, " << player.decks << " moments with the last card\n";
  EXPECT_GT(player.twentyOnes, 1000);
  EXPECT_GT(player.decks, 20);
}
