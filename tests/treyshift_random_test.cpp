// A player who clicks anywhere, and what must be true between two clicks.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/random_player.h"
#include "tests/treyshift_table.h"

namespace {

using namespace modTreyshift;

class TreyshiftAtRandom : public RandomPlayer {
 public:
  explicit TreyshiftAtRandom(const std::filesystem::path& folder)
      : RandomPlayer(folder, "cmdTreyshift", 23) {}

  int trips = 0, runs = 0, decks = 0, beyond = 0, stuck = 0;

 protected:
  static std::string Click(const Control& control) { return "click " + control.FullName(); }

  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmTreyshift&>(window);
    Board& board = game.board;
    trips = std::max(trips, static_cast<int>(board.TripCount));
    runs = std::max(runs, static_cast<int>(board.RunCount));
    if (board.DeckPosition == kUsedUp) ++decks;
    if (board.DeckPosition == kBeyondDeck) ++beyond;
    // Now and then a deck that goes well: without one nobody gets to its end.
    if (board.DeckPosition == kDealt && Chance(10))
      std::sort(board.deck.begin() + kDealt + 1, board.deck.end(),
                [](const std::string& a, const std::string& b) { return CardValue(a) < CardValue(b); });
    if (Chance(5)) return Click(Draw(2) ? game.CardStackPicture : game.UpCard(Draw(2)));
    if (board.DeckPosition >= kUsedUp && Chance(20)) return Click(game.cmdTakeScore);
    if (!board.Selected()) {
      if (Chance(80)) return Click(game.UpCard(kInPlay));
      return Chance(50) ? Click(game.TempCard(Draw(kTempSlots))) : Click(game.PlayCard(Draw(kFieldSlots)));
    }
    // Mostly what makes a column worth something, else what fits.
    const std::string code = board.CodeAt(board.SourceZone, board.SourceIndex);
    const int rank = CardValue(code);
    for (int column = 0; column < kColumns && !Chance(10); ++column) {
      const int top = CardValue(board.FieldCards[column]);
      const bool isFull = !board.FieldCards[column + kThirdRow].empty();
      if (isFull || top == 0) continue;
      Board laid = board;
      laid.FieldCards[column + kThirdRow] = code;
      const bool hasTwo = !board.FieldCards[column + kSecondRow].empty();
      if (hasTwo ? laid.Judge(column) != Worth::Nothing : std::abs(rank - top) < 2)
        return Click(game.PlayCard(column));
    }
    return Chance(30) ? Click(game.TempCard(Draw(kTempSlots))) : Click(game.PlayCard(Draw(kColumns)));
  }

  void Check(GameWindow& window) override {
    auto& game = static_cast<frmTreyshift&>(window);
    if (!game.standing.InGame()) return;
    const bool paused = game.standing.IsPaused();
    ASSERT_EQ(game.lblCurrentScore.Caption, FormatNumber(suite_.common.CurrentScore));
    ASSERT_EQ(game.lblRound.Caption, "Round: " + std::to_string(game.CurrentRound));
    ASSERT_GE(game.CurrentRound, 1);
    ASSERT_LE(game.CurrentRound, 3);
    ASSERT_FALSE(game.lblFlush.Visible || game.ScoringLabelOutline.Visible);
    ASSERT_EQ(game.lblMessage.Visible, paused);

    const Board& board = game.board;
    // A slot that is open takes clicks, also while the cards are gone.
    for (int i = kSecondRow; i < kFieldSlots; ++i) {
      const bool hidden = paused && !board.FieldCards[i].empty();
      ASSERT_EQ(game.PlayCard(i).Visible, board.open[i] && !hidden) << i;
    }
    for (int i = 0; i < kFieldSlots; ++i)
      CheckSlot(game, game.PlayCard(i), board.FieldCards[i], i >= kSecondRow);
    for (int i = 0; i < kTempSlots; ++i) CheckSlot(game, game.TempCard(i), board.TempCards[i], false);
    for (int i = 0; i < kUpSlots; ++i) CheckSlot(game, game.UpCard(i), board.UpCards[i], false);
    if (game.board.DeckPosition >= kBeyondDeck) return;
    // A column has no gap, and at most one card is marked.
    for (int i = kSecondRow; i < kFieldSlots; ++i)
      ASSERT_TRUE(board.FieldCards[i].empty() || !board.FieldCards[i - kColumns].empty()) << i;
    int outlines = game.UpCardSelection.Visible;
    for (int i = 0; i < kTempSlots; ++i) outlines += game.TempCardSelection(i).Visible;
    for (int i = 0; i < kFieldSlots; ++i) outlines += game.PlayCardSelection(i).Visible;
    ASSERT_EQ(outlines, board.Selected() && !paused ? 1 : 0);
  }

  // The picture of a card by its place in the catalogue; 0 for no card.
  static int FaceOf(const std::string& code) {
    if (code.empty()) return 0;
    const char suit = code.back();
    return kFirstFace - 1 + CardValue(code) + 13 * (suit == 'S' ? 0 : suit == 'H' ? 1 : suit == 'C' ? 2 : 3);
  }

  // A slot shows what lies there.
  static void CheckSlot(const frmTreyshift& game, const Image& slot, const std::string& code,
                        bool mayShowNothing) {
    constexpr int kEmpty = 13;
    if (code.empty()) {
      ASSERT_TRUE(slot.Picture == kEmpty || (mayShowNothing && slot.Picture == 0)) << slot.FullName();
      ASSERT_TRUE(slot.BorderStyle == 0 || game.board.DeckPosition >= kBeyondDeck) << slot.FullName();
      return;
    }
    ASSERT_EQ(slot.Picture, FaceOf(code)) << slot.FullName();
    ASSERT_EQ(slot.BorderStyle, 1) << slot.FullName();
    ASSERT_NE(slot.Visible, game.standing.IsPaused()) << slot.FullName();
  }
};

}  // namespace

TEST(TreyshiftRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  TreyshiftAtRandom player(folder.Path());
  player.Play(100000);
  std::cout << "at most " << player.trips << " trips and " << player.runs << " runs in a round, "
            << player.decks << " moments with a deck used up, " << player.beyond << " beyond\n";
  EXPECT_GT(player.trips, 3);
  EXPECT_GT(player.runs, 3);
  EXPECT_GT(player.decks, 0);
  EXPECT_GT(player.beyond, 0);
}
