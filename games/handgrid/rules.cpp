#include "games/handgrid/rules.h"

#include <algorithm>
#include <utility>

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

// How many cards there are of each rank.
std::array<int, kRanks + 1> Tally(const Line& line) {
  std::array<int, kRanks + 1> tally{};
  for (const Card& card : line)
    if (card.rank >= 1 && card.rank <= kRanks) ++tally[card.rank];
  return tally;
}

bool IsOneSuit(const Line& line) {
  return std::ranges::all_of(line,
                             [&](const Card& card) { return card.suit != 0 && card.suit == line[0].suit; });
}

}  // namespace

const char* HandName(Hand hand) {
  static constexpr const char* kNames[kHands] = {"Nothing",   "1 Pair",     "2 Pair",     "3 of a kind",
                                                 "Straight",  "Flush",      "Full House", "4 of a kind",
                                                 "St. Flush", "Royal Flush"};
  return kNames[static_cast<int>(hand)];
}

long long HandScores::Of(Hand hand) const {
  switch (hand) {
    case Hand::OnePair:
      return PairScore;
    case Hand::TwoPair:
      return TwoPairScore;
    case Hand::Trips:
      return TripsScore;
    case Hand::Straight:
      return StraightScore;
    case Hand::Flush:
      return FlushScore;
    case Hand::FullHouse:
      return FullHouseScore;
    case Hand::Four:
      return FourScore;
    case Hand::StraightFlush:
      return StraightFlushScore;
    case Hand::RoyalFlush:
      return RoyalFlushScore;
    case Hand::Nothing:
      break;
  }
  return 0;
}

// A click reads the grid twice: no detour by trimmed texts.
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

// Later tests overrule earlier ones.
Hand EvaluateHand(const Line& line) {
  const auto tally = Tally(line);
  const auto pairs = std::ranges::count(tally, 2), trips = std::ranges::count(tally, 3),
             fours = std::ranges::count(tally, 4);
  Hand hand = Hand::Nothing;
  if (pairs == 1) hand = Hand::OnePair;
  if (pairs == 2) hand = Hand::TwoPair;
  if (trips == 1) hand = Hand::Trips;
  if (IsOneSuit(line)) hand = Hand::Flush;

  Ranks sorted;
  std::ranges::transform(line, sorted.begin(), &Card::rank);
  std::ranges::sort(sorted);
  if (IsStraight(sorted)) {
    const Hand inOneSuit = sorted == kAceHigh ? Hand::RoyalFlush : Hand::StraightFlush;
    hand = hand == Hand::Flush ? inOneSuit : Hand::Straight;
  }
  if (trips == 1 && pairs == 1) hand = Hand::FullHouse;
  if (fours == 1) hand = Hand::Four;
  return hand;
}

LineHands EvaluateLines(const Grid& grid) {
  LineHands hands;
  for (int row = 0; row < kSide; ++row) {
    Line line;
    for (int column = 0; column < kSide; ++column) line[column] = ReadCard(grid[row * kSide + column]);
    hands[row] = EvaluateHand(line);
  }
  return hands;
}

void TransposeCards(Grid& grid) {
  for (int row = 0; row < kSide; ++row)
    for (int column = row + 1; column < kSide; ++column)
      std::swap(grid[row * kSide + column], grid[column * kSide + row]);
}

std::string& Slots::operator()(long long index) {
  if (index < 0 || index > kDeckCards) RaiseSubscript();
  return codes_[index];
}

const char* StackStage(long long cardsLeft) {
  if (cardsLeft > 25) return "FULL";
  if (cardsLeft > 12) return "HALF";
  return cardsLeft < 1 ? "EMPTY" : "BACK";
}

}  // namespace modHandgrid
