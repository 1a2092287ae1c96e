// modSpirehold: the board of Spirehold, its cards and what can be done with them.
//
// Twenty-eight cards lie in four rows that make three towers; a card is covered while one of the two cards
// below it lies. The player takes exposed cards that are one rank above or below the up card, ace and king
// being neighbours; each further card of an unbroken run is worth more. Turning a card of the stack breaks
// the run. A tower falls with its topmost card.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "suite/cards.h"
#include "window/number.h"

namespace modSpirehold {

inline constexpr int kCards = 28;    // on the table
inline constexpr int kCovered = 18;  // of these lie face down when dealt
inline constexpr int kTowers = 3;    // the cards 0 to 2 top them

// The left one of the two cards that cover a card; the right one is the next. Above the third row towers have
// no card in common.
inline constexpr int kLeftCover[kCovered] = {3,  5,  7,  9,  10, 12, 13, 15, 16,
                                             18, 19, 20, 21, 22, 23, 24, 25, 26};

// Whether a card of that rank may be laid on the up card. Suits play no part; 0 is no rank.
bool IsNeighbour(int rank, int upRank);

struct Board {
  std::array<std::string, kCards> table;  // empty where a card is gone
  std::vector<std::string> stack;         // its last is turned next
  std::vector<std::string> pile;          // what was taken and turned; its last is the up card
  Integer CurrentRun, HighestRun;
  Integer RunValue;         // what the run's last card has scored; lives on until a card is turned
  bool NewHighRun = false;  // in this round

  // Lays out a deck. The first up card is the stack's last as well.
  void Deal(const CardCodes& deck);
  bool IsDealt() const { return !pile.empty(); }
  // The up card's rank; 0 behind the end of the stack.
  int UpCardValue() const { return pile.empty() ? 0 : CardValue(pile.back()); }
  bool IsCovered(int card) const;
  bool CheckForLegalMove(int card) const;
  // Makes the card the up card; false if it may not be taken. Its worth and the run's length follow, one step
  // after the other, since the worth or the score may grow too large.
  bool Take(int card);
  void RaiseRunValue(long long cardValue) { RunValue += cardValue; }
  void LengthenRun();
  // Makes the next card of the stack the up card; a used up stack gives one that nothing goes with.
  void TurnCard();
  // What the player is told that the next card is worth.
  long long NextCardWorth(long long cardValue) const { return (CurrentRun + 1) * cardValue; }
  int TowersCompleted() const;
  // No card on the table goes with the up card or with one that can be turned.
  bool IsStuck() const;

  bool operator==(const Board&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    visit("table", board.table, "stack", board.stack, "pile", board.pile, "run", board.CurrentRun, "highest",
          board.HighestRun, "value", board.RunValue, "new", board.NewHighRun);
  }

 private:
  void NoteRun();
};

}  // namespace modSpirehold
