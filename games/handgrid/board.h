// modHandgrid: the cards of a round of Handgrid, and what can be done with them.
//
// Cards are laid on a grid of five by five, one at a time and for good; each row and each column is a poker
// hand. A hand is named as soon as it is one, whatever its empty cells still may bring. A few cards may be
// laid over others. The grid pays when it is full: the points of its hands times the seconds that are left.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "suite/cards.h"
#include "window/number.h"

namespace modHandgrid {

inline constexpr int kSide = 5, kCells = kSide * kSide;
inline constexpr int kLines = 2 * kSide;  // the rows, then the columns

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

// What each hand is worth; of nothing, nothing.
struct HandScores {
  Long PairScore = 50, TwoPairScore = 70, TripsScore = 80, StraightScore = 90, FlushScore = 100,
       FullHouseScore = 200, FourScore = 300, StraightFlushScore = 400, RoyalFlushScore = 500;

  long long Of(Hand hand) const;
};

// Card codes; an empty one for an empty cell.
using Line = std::array<std::string_view, kSide>;
// Names one line, empty cells and all.
Hand EvaluateHand(const Line& line);

struct Board {
  std::array<std::string, kCells> cells;  // row by row; empty texts where no card lies
  std::vector<std::string> stack;         // the last one is drawn next
  std::string hole;                       // the card to be laid
  std::vector<std::string> covered;       // the cards that others were laid over
  Integer holeCount;  // 1, or 0 when the stack has run out; -1 once a card was laid that wasn't there
  Integer overWritesAllowed, overWritesUsed;
  std::array<Hand, kLines> hands{};  // of all lines, as the cells are

  // An empty grid, and all cards in the stack.
  void Deal(const CardCodes& deck, long long overWrites);
  // Draws the next card into the hole; false if there is none.
  bool Draw();
  // No card lies in the grid, and none was laid over another.
  void Clear();

  bool IsFull() const;
  // Whether the hole's card can be laid there.
  bool Takes(int cell) const;
  // Counts what lies there already as laid over.
  void Overwrite(int cell);
  // Lays the hole's card; an empty hole takes the card in the cell away, and a second time raises "Subscript
  // out of range".
  void Lay(int cell);
  long long OverWritesLeft() const { return overWritesAllowed - overWritesUsed; }

  // Names the hands of all lines.
  void EvaluateLines();

  bool operator==(const Board&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    visit("cells", board.cells);
    visit("stack", board.stack);
    visit("hole", board.hole);
    visit("covered", board.covered);
    visit("count", board.holeCount);
    visit("allowed", board.overWritesAllowed);
    visit("used", board.overWritesUsed);
    if constexpr (!std::is_const_v<Self>) board.EvaluateLines();  // a hand is what its cards make it
  }

 private:
  void EvaluateLine(int line);
};

}  // namespace modHandgrid
