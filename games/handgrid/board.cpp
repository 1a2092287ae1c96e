#include "games/handgrid/board.h"

#include <algorithm>

namespace modHandgrid {

namespace {

constexpr int kRanks = 13;

using Ranks = std::array<int, kSide>;  // 0 for an empty cell

// An ace is low in the first straight and high in the last one; none goes round the corner. A royal flush is
// a straight flush with the ace high.
constexpr Ranks kAceHigh = {1, 10, 11, 12, 13};

bool IsStraight(const Ranks& sorted) {
  if (sorted == kAceHigh) return true;
  for (int i = 1; i < kSide; ++i)
    if (sorted[i] != sorted[0] + i) return false;
  return sorted[0] > 0;
}

// What of a card counts: its rank and suit; both 0 for an empty cell.
struct Card {
  int rank = 0;
  char suit = 0;
};

Card ReadCard(std::string_view code) {
  Card card;
  for (char letter : code) {
    if (letter >= '0' && letter <= '9')
      card.rank = std::min(10 * card.rank + letter - '0', kRanks + 1);
    else if (letter != ' ')
      card.suit = letter;
  }
  return card;
}

}  // namespace

long long HandScores::Of(Hand hand) const {
  static constexpr Long HandScores::*kScores[] = {
      &HandScores::PairScore,     &HandScores::TwoPairScore,       &HandScores::TripsScore,
      &HandScores::StraightScore, &HandScores::FlushScore,         &HandScores::FullHouseScore,
      &HandScores::FourScore,     &HandScores::StraightFlushScore, &HandScores::RoyalFlushScore};
  if (hand == Hand::Nothing) return 0;
  return this->*kScores[static_cast<int>(hand) - 1];
}

// Later tests overrule earlier ones.
Hand EvaluateHand(const Line& line) {
  Ranks sorted;
  std::array<int, kRanks + 2> tally{};  // how many cards there are of each rank
  bool isOneSuit = true;
  char suit = 0;
  for (int i = 0; i < kSide; ++i) {
    const Card card = ReadCard(line[i]);
    sorted[i] = card.rank;
    ++tally[card.rank];
    if (i == 0) suit = card.suit;
    isOneSuit = isOneSuit && card.suit != 0 && card.suit == suit;
  }
  int pairs = 0, trips = 0, fours = 0;
  for (int rank = 1; rank <= kRanks; ++rank) {
    pairs += tally[rank] == 2;
    trips += tally[rank] == 3;
    fours += tally[rank] == 4;
  }
  Hand hand = Hand::Nothing;
  if (pairs == 1) hand = Hand::OnePair;
  if (pairs == 2) hand = Hand::TwoPair;
  if (trips == 1) hand = Hand::Trips;
  if (isOneSuit) hand = Hand::Flush;

  std::ranges::sort(sorted);
  if (IsStraight(sorted)) {
    const Hand inOneSuit = sorted == kAceHigh ? Hand::RoyalFlush : Hand::StraightFlush;
    hand = hand == Hand::Flush ? inOneSuit : Hand::Straight;
  }
  if (trips == 1 && pairs == 1) hand = Hand::FullHouse;
  if (fours == 1) hand = Hand::Four;
  return hand;
}

void Board::Deal(const CardCodes& deck, long long overWrites) {
  Clear();
  overWritesAllowed = overWrites;
  stack.assign(deck.rbegin(), deck.rend() - 1);
  hole.clear();
  holeCount = 0;
}

bool Board::Draw() {
  if (stack.empty()) return false;
  holeCount += 1;
  hole = std::move(stack.back());
  stack.pop_back();
  return true;
}

void Board::Clear() {
  cells.fill("");
  covered.clear();
  overWritesUsed = 0;
  hands.fill(Hand::Nothing);
}

bool Board::IsFull() const { return std::ranges::none_of(cells, &std::string::empty); }

bool Board::Takes(int cell) const {
  return cells[cell].empty() ? holeCount > 0 : overWritesUsed < overWritesAllowed;
}

void Board::Overwrite(int cell) {
  if (!cells[cell].empty()) overWritesUsed += 1;
}

void Board::Lay(int cell) {
  if (holeCount < 0) RaiseSubscript();
  if (!cells[cell].empty()) covered.push_back(std::move(cells[cell]));
  cells[cell] = std::move(hole);
  hole.clear();
  holeCount -= 1;
  EvaluateLine(cell / kSide);
  EvaluateLine(kSide + cell % kSide);
}

void Board::EvaluateLine(int line) {
  const int first = line < kSide ? line * kSide : line - kSide, step = line < kSide ? 1 : kSide;
  Line codes;
  for (int i = 0; i < kSide; ++i) codes[i] = cells[first + i * step];
  hands[line] = EvaluateHand(codes);
}

void Board::EvaluateLines() {
  for (int line = 0; line < kLines; ++line) EvaluateLine(line);
}

}  // namespace modHandgrid
