// A player who clicks anywhere, and what must be true between two clicks.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/random_player.h"
#include "tests/treyshift_table.h"

namespace {

using namespace modTreyshift;

class TreyshiftPlayer : public RandomPlayer {
 public:
  explicit TreyshiftPlayer(const std::filesystem::path& folder) : RandomPlayer(folder, "cmdTreyshift", 23) {}

  int trips = 0, runs = 0, decks = 0, beyond = 0, stuck = 0;

 protected:
  static std::string Click(const Control& control) { return "click " + control.FullName(); }

  std::string AtTheTable(GameWindow& window) override {
    auto& game = static_cast<frmTreyshift&>(window);
    trips = std::max(trips, static_cast<int>(game.TripCount));
    runs = std::max(runs, static_cast<int>(game.RunCount));
    if (game.DeckPosition == kUsedUp) ++decks;
    if (game.DeckPosition == kBeyondDeck) ++beyond;
    // Now and then a deck that goes well: without one nobody gets to its end.
    CardCodes& deck = suite_.common.Deck;
    if (game.DeckPosition == kDealt && Chance(10))
      std::sort(deck.begin() + kDealt + 1, deck.end(),
                [](const std::string& a, const std::string& b) { return CardValue(a) < CardValue(b); });
    if (Chance(5)) return Click(Draw(2) ? game.CardStackPicture : game.UpCard(Draw(2)));
    if (game.DeckPosition >= kUsedUp && Chance(20)) return Click(game.cmdTakeScore);
    if (!game.Selected) {
      if (Chance(80)) return Click(game.UpCard(kInPlay));
      return Chance(50) ? Click(game.TempCard(Draw(kTempSlots))) : Click(game.PlayCard(Draw(kFieldSlots)));
    }
    // Mostly what makes a column worth something, else what fits.
    const std::string code = game.SourceZone == frmTreyshift::ZoneDeck   ? game.UpCards[kInPlay]
                             : game.SourceZone == frmTreyshift::ZoneTemp ? game.TempCards[game.SourceIndex]
                                                                         : game.FieldCards[game.SourceIndex];
    const int rank = CardValue(code);
    for (int column = 0; column < kColumns && !Chance(10); ++column) {
      const int top = CardValue(game.FieldCards[column]),
                middle = CardValue(game.FieldCards[column + kSecondRow]);
      const bool isFull = !game.FieldCards[column + kThirdRow].empty();
      if (isFull || top == 0) continue;
      const bool fits = middle == 0 ? std::abs(rank - top) < 2 : Judge(top, middle, rank) != Worth::Nothing;
      if (fits) return Click(game.PlayCard(column));
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

    // No card is there twice, and none is lost but those that were paid.
    seen_.fill(0);
    for (const std::string& code : game.FieldCards) ++seen_.at(FaceOf(code));
    for (const std::string& code : game.TempCards) ++seen_.at(FaceOf(code));
    for (const std::string& code : game.UpCards) ++seen_.at(FaceOf(code));
    for (long long i = game.DeckPosition + 1; i <= 52; ++i) ++seen_.at(FaceOf(suite_.common.Deck[i]));
    long long cards = 3 * (game.TripCount + game.RunCount);
    for (int face = kFirstFace; face <= kLastFace; ++face) {
      ASSERT_LE(seen_[face], 1) << face;
      cards += seen_[face];
    }
    // A run may have ended in the card that isn't one.
    ASSERT_TRUE(cards == 52 || (cards == 53 && game.DeckPosition == kBeyondDeck)) << cards;

    for (int i = 0; i < kFieldSlots; ++i)
      CheckSlot(game, game.PlayCard(i), game.FieldCards[i], i >= kSecondRow);
    for (int i = 0; i < kTempSlots; ++i) CheckSlot(game, game.TempCard(i), game.TempCards[i], false);
    for (int i = 0; i < kUpSlots; ++i) CheckSlot(game, game.UpCard(i), game.UpCards[i], false);
    if (game.DeckPosition >= kBeyondDeck) return;
    // A column has no gap, and at most one card is marked.
    for (int i = kSecondRow; i < kFieldSlots; ++i)
      ASSERT_TRUE(game.FieldCards[i].empty() || !game.FieldCards[i - kColumns].empty()) << i;
    int outlines = game.UpCardSelection.Visible;
    for (int i = 0; i < kTempSlots; ++i) outlines += game.TempCardSelection(i).Visible;
    for (int i = 0; i < kFieldSlots; ++i) outlines += game.PlayCardSelection(i).Visible;
    ASSERT_EQ(outlines, game.Selected && !paused ? 1 : 0);
  }

  // The picture of a card by its place in the catalogue; 0 for no card.
  static int FaceOf(const std::string& code) {
    if (code.empty()) return 0;
    const char suit = code.back();
    return kFirstFace - 1 + CardValue(code) + 13 * (suit == 'S' ? 0 : suit == 'H' ? 1 : suit == 'C' ? 2 : 3);
  }

  // A slot shows what lies there.
  void CheckSlot(const frmTreyshift& game, const Image& slot, const std::string& code, bool mayShowNothing) {
    constexpr int kEmpty = 13;
    if (code.empty()) {
      ASSERT_TRUE(slot.Picture == kEmpty || (mayShowNothing && slot.Picture == 0)) << slot.FullName();
      ASSERT_TRUE(slot.BorderStyle == 0 || game.DeckPosition >= kBeyondDeck) << slot.FullName();
      return;
    }
    ASSERT_EQ(slot.Picture, FaceOf(code)) << slot.FullName();
    ASSERT_EQ(slot.BorderStyle, 1) << slot.FullName();
    ASSERT_NE(slot.Visible, game.standing.IsPaused()) << slot.FullName();
  }

  std::array<int, kLastFace + 1> seen_{};
};

}  // namespace

TEST(TreyshiftRandomPlayer, DoesNoHarm) {
  TestFolder folder;
  TreyshiftPlayer player(folder.Path());
  player.Play(100000);
  std::cout << "at most " << player.trips << " trips and " << player.runs << " runs in a round, "
            << player.decks << " moments with a deck used up, " << player.beyond << " beyond\n";
  EXPECT_GT(player.trips, 3);
  EXPECT_GT(player.runs, 3);
  EXPECT_GT(player.decks, 0);
  EXPECT_GT(player.beyond, 0);
}
