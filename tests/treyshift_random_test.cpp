// A player who clicks anywhere, and what must be true between two clicks.
#include <gtest/gtest.h>

#include "tests/random_player.h"
#include "tests/treyshift_board_player.h"
#include "tests/treyshift_table.h"

namespace {

using namespace modTreyshift;

class AtTreyshift : public PlayerAt<frmTreyshift, TreyshiftPlayer> {
 public:
  using PlayerAt::PlayerAt;

  int trips = 0, decks = 0, beyond = 0;

 private:
  const Control& ControlFor(frmTreyshift& game, const TreyshiftPlayer::Move& move) override {
    return move.zone == Zone::Deck   ? game.UpCard(move.slot)
           : move.zone == Zone::Temp ? game.TempCard(move.slot)
                                     : game.PlayCard(move.slot);
  }
  std::string Instead(frmTreyshift& game) override {
    Board& board = game.board;
    trips = std::max(trips, static_cast<int>(board.TripCount));
    decks += board.DeckPosition == kUsedUp;
    beyond += board.DeckPosition == kBeyondDeck;
    // A deck that goes well, and most of it passed over: else nobody gets to its end.
    if (meddles && board.DeckPosition == kDealt && chance.Percent(60)) {
      std::sort(board.deck.begin() + kDealt + 1, board.deck.end(),
                [](const std::string& a, const std::string& b) { return CardValue(a) < CardValue(b); });
      if (chance.Percent(30)) board.DeckPosition = kUsedUp - 6;
    }
    if (chance.Percent(2)) return "click frmTreyshift.CardStackPicture";
    return board.DeckPosition >= kUsedUp && chance.Percent(20) ? "click frmTreyshift.cmdTakeScore" : "";
  }

  void CheckBoard(frmTreyshift& game, bool paused) override {
    ASSERT_EQ(game.lblRound.Caption, "Round: " + std::to_string(game.CurrentRound));
    ASSERT_TRUE(game.CurrentRound >= 1 && game.CurrentRound <= 3);
    ASSERT_FALSE(game.lblFlush.Visible || game.ScoringLabelOutline.Visible);
    ASSERT_EQ(game.lblMessage.Visible, paused);
    const Board& board = game.board;
    int outlines = game.UpCardSelection.Visible;
    for (int i = 0; i < kFieldSlots; ++i) {
      const std::string& code = board.FieldCards[i];
      CheckSlot(game, game.PlayCard(i), code, i >= kSecondRow);
      outlines += game.PlayCardSelection(i).Visible;
      if (i < kSecondRow) continue;
      // A slot that is open takes clicks, also while the cards are gone. A column has no gap.
      ASSERT_EQ(game.PlayCard(i).Visible, board.open[i] && (code.empty() || !paused)) << i;
      ASSERT_TRUE(code.empty() || !board.FieldCards[i - kColumns].empty() ||
                  board.DeckPosition >= kBeyondDeck)
          << i;
    }
    for (int i = 0; i < kTempSlots; ++i) {
      CheckSlot(game, game.TempCard(i), board.TempCards[i], false);
      outlines += game.TempCardSelection(i).Visible;
    }
    for (int i = 0; i < kUpSlots; ++i) CheckSlot(game, game.UpCard(i), board.UpCards[i], false);
    ASSERT_TRUE(board.DeckPosition >= kBeyondDeck || outlines == (board.Selected() && !paused));
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
  AtTreyshift player(folder.Path(), "cmdTreyshift", 23);
  player.Play(100000);
  std::cout << "at most " << player.trips << " trips in a round, " << player.decks
            << " moments with a deck used up, " << player.beyond << " beyond\n";
  EXPECT_TRUE((player.trips > 3 && player.decks > 0 && player.beyond > 0) || player.writesDown);
}
