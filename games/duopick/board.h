// modDuopick: the board of Duopick, its cards and what can be done with them.
//
// Twenty-three cards lie face up in five rows, each row partly on the one above it, and a twenty-fourth, the
// up card, beside the stack. The player takes exposed cards two by two: a pair if their ranks are alike, a
// run if they are neighbours, king and ace among them. Turning a card of the stack makes it the up card; the
// old one goes back into the first gap of the field, or under it into the waste pile if there is no gap. The
// top row taken away ends the round.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "suite/cards.h"
#include "window/number.h"

namespace modDuopick {

inline constexpr int kField = 23;   // cards in the five rows
inline constexpr int kTopRow = 5;   // of these lie in the uppermost
inline constexpr int kUpCard = 23;  // the up card's index
inline constexpr int kCards = 24;   // with the up card
inline constexpr int kPile = 30;    // so many cards has the waste pile room for
inline constexpr int kNone = -1;    // no card, no gap

enum class Match { None, Pair, Run };
// What two cards make, by the ranks of the first and the second. An up card of no rank has rank 0, and makes
// a run with an ace if it comes first.
Match MatchOf(int first, int second);

// What came of a click on a card.
enum class Outcome { Refused, Selected, LetGo, Mismatch, Match };

struct Board {
  std::array<std::string, kField> field;  // empty for a gap
  std::vector<std::string> waste;  // the up card is its last; behind the end of the stack it has no code
  std::vector<std::string> stack;  // its last is turned next
  std::vector<std::string> taken;  // in the order in which they were
  int selected = kNone;
  Long PairsCount, RunsCount;  // of this round, paid at its end

  // Lays out a deck.
  void Deal(const CardCodes& deck);
  bool IsDealt() const { return !(stack.empty() && waste.empty() && taken.empty()); }
  // The up card's code or one of the field, empty for none.
  const std::string& Code(int card) const;
  // Whether the card lies there and nothing covers it; its rank isn't looked at.
  bool CheckForLegalMove(int card) const;
  // Whether the card may be selected, or taken with the one that is.
  bool Takes(int card) const;
  // A click on a card: the first is selected, the second is taken with it or makes the player let go of both.
  Outcome Take(int card);
  // Makes the next card of the stack the up card, and lets go of what is selected. Gives the gap that the old
  // up card fills. A used up stack gives a card of no rank, a full pile takes nothing more.
  int TurnCard();
  bool RoundCompleted() const;  // the top row is cleared
  // No two cards can be taken any more, however often a card is turned.
  bool IsStuck() const;

  bool operator==(const Board&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    visit("field", board.field, "waste", board.waste, "stack", board.stack, "taken", board.taken, "selected",
          board.selected, "pairs", board.PairsCount, "runs", board.RunsCount);
  }

 private:
  bool Goes(int first, int second) const;
  void TakeAway(int card);
  bool HasMatch() const;
};

}  // namespace modDuopick
