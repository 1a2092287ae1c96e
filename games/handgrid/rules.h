// modHandgrid: the rules of Handgrid as plain data and functions.
//
// Cards are laid on a grid of five by five, one at a time and for good; each row and each column is a poker
// hand. A hand is named as soon as it is one, whatever its empty cells still may bring, and all ten are
// judged anew after each card. A few cards may be laid over others. The grid pays when it is full: the points
// of its hands times the seconds that are left.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "window/number.h"

namespace modHandgrid {

inline constexpr int kSide = 5, kCells = kSide * kSide;
inline constexpr int kDeckCards = 52;

// What a game pays, asks and allows when nobody has changed it.
inline constexpr int kTimeBonus = 1, kBonusScore = 100000, kOverWrites = 3;

enum class Hand {
  Nothing,
  OnePair,
  TwoPair,
  Trips,
  Straight,
  Flush,
  FullHouse,
  Four,
  StraightFlush,
  RoyalFlush
};
inline constexpr int kHands = 10;

// What the labels call it.
const char* HandName(Hand hand);

// What each hand is worth; of nothing, nothing.
struct HandScores {
  Long PairScore = 50, TwoPairScore = 70, TripsScore = 80, StraightScore = 90, FlushScore = 100,
       FullHouseScore = 200, FourScore = 300, StraightFlushScore = 400, RoyalFlushScore = 500;

  long long Of(Hand hand) const;
};

// Card codes row by row; an empty cell holds the empty text.
using Grid = std::array<std::string, kCells>;
// What of a card counts: its rank and suit; both 0 for an empty cell.
struct Card {
  int rank = 0;
  char suit = 0;
};
Card ReadCard(std::string_view code);
using Line = std::array<Card, kSide>;
using LineHands = std::array<Hand, kSide>;

// Names one line, empty cells and all.
Hand EvaluateHand(const Line& line);
// Names the five rows.
LineHands EvaluateLines(const Grid& grid);
// Turns rows into columns.
void TransposeCards(Grid& grid);

// Slots 0 to 52 for card codes. Raises "Subscript out of range" beyond them.
class Slots {
 public:
  std::string& operator()(long long index);

 private:
  std::array<std::string, kDeckCards + 1> codes_;
};

// The picture's key for a stack on which so many cards are left.
const char* StackStage(long long cardsLeft);

}  // namespace modHandgrid
