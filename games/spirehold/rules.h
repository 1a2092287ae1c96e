// modSpirehold: the rules of Spirehold as plain data and functions.
//
// Twenty-eight cards lie in four rows that make three towers; a card is covered while one of the two cards
// below it lies. The player takes exposed cards that are one rank above or below the up card, ace and king
// being neighbours; each further card of an unbroken run is worth more. Turning a card of the stack breaks
// the run. A tower falls with its topmost card.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "window/number.h"

namespace modSpirehold {

inline constexpr int kCards = 28;         // on the table
inline constexpr int kCovered = 18;       // of these lie face down when dealt
inline constexpr int kTowers = 3;         // the cards 0 to 2 top them
inline constexpr int kFirstOfStack = 28;  // its index in the deal
inline constexpr int kFirstUpCard = 51;   // the up card's; it is the last of the stack as well
inline constexpr int kNoRank = 99;        // of an up card that isn't there: nothing fits

// What a game pays when nobody has changed it.
inline constexpr int kCardValue = 100, kBonusScore = 40000, kHighRunBonus = 1000, kTowerBonus = 5000,
                     kTimeBonus = 100;

// A deal by index; the entry behind the last card stays empty.
using Cards = std::array<std::string, 53>;

// Where a card lies: how far from the middle of the window its middle is, in halves of a card, and the top of
// its row in twips.
struct Place {
  int halves;
  int top;
};
extern const std::array<Place, kCards> kTable;
inline constexpr int kCardWidth = 1065, kCardHeight = 1455;

// The two cards that cover a card, for the first eighteen cards.
struct Pair {
  int left, right;
  bool Has(int card) const { return card == left || card == right; }
  int OtherThan(int card) const { return card == left ? right : left; }
};
extern const std::array<Pair, kCovered> kCoveredBy;

// Whether a card of that rank may be laid on the up card. Suits play no part.
bool IsNeighbour(int rank, long long upRank);

// The points of the next card of a run, when the last one scored `runValue`.
Integer NextRunValue(long long runValue, long long cardValue);
// What the player is told that the next card is worth after a run of that many cards.
long long NextCardWorth(long long run, long long cardValue);

// The picture's key for a stack whose next card has that index; null beyond the empty stack.
const char* StackStage(long long stackIndex);

}  // namespace modSpirehold
