#include "games/duopick/board.h"

#include <algorithm>
#include <utility>

namespace modDuopick {

Match MatchOf(int first, int second) {
  constexpr int kAce = 1, kKing = 13;
  if (first == second) return Match::Pair;
  if (first == kAce) return second == 2 || second == kKing ? Match::Run : Match::None;
  if (first == kKing) return second == kAce || second == 12 ? Match::Run : Match::None;
  return second == first + 1 || second == first - 1 ? Match::Run : Match::None;
}

void Board::Deal(const CardCodes& deck) {
  *this = {};
  std::copy_n(deck.begin() + 1, kField, field.begin());
  waste = {deck.at(kCards)};
  stack.assign(deck.rbegin(), deck.rend() - 1 - kCards);
}

const std::string& Board::Code(int card) const {
  static const std::string none;
  if (card != kUpCard) return field.at(card);
  return waste.empty() ? none : waste.back();
}

// A card is covered by its two neighbours in the next row. At either end of the two rows of five that others
// cover there is one neighbour only, and the card straight below, two rows down, counts as well.
bool Board::CheckForLegalMove(int card) const {
  constexpr int kLowestRow = 18;
  if (card == kUpCard) return !waste.empty();
  if (field.at(card).empty()) return false;
  if (card >= kLowestRow) return true;
  const bool leftEnd = card == 0 || card == 9, rightEnd = card == 4 || card == 13;
  const int left = leftEnd ? card + 9 : card + 4, right = rightEnd ? card + 9 : card + 5;
  return field[left].empty() && field[right].empty();
}

bool Board::Takes(int card) const {
  return selected == kNone ? CheckForLegalMove(card) : Goes(selected, card);
}

bool Board::Goes(int first, int second) const {
  return first != second && CheckForLegalMove(second) &&
         MatchOf(CardValue(Code(first)), CardValue(Code(second))) != Match::None;
}

Outcome Board::Take(int card) {
  if (!CheckForLegalMove(card)) return Outcome::Refused;
  const int first = std::exchange(selected, kNone);
  if (first == card) return Outcome::LetGo;
  if (first == kNone) {
    selected = card;
    return Outcome::Selected;
  }
  const Match match = MatchOf(CardValue(Code(first)), CardValue(Code(card)));
  if (match == Match::None) return Outcome::Mismatch;
  (match == Match::Pair ? PairsCount : RunsCount) += 1;
  TakeAway(first);
  TakeAway(card);
  return Outcome::Match;
}

void Board::TakeAway(int card) {
  taken.push_back(std::exchange(card == kUpCard ? waste.back() : field[card], {}));
  if (card == kUpCard) waste.pop_back();
}

int Board::TurnCard() {
  selected = kNone;
  int filled = kNone;
  const auto gap = std::ranges::find(field, "");
  if (gap != field.end() && !waste.empty()) {
    if (!waste.back().empty()) filled = static_cast<int>(gap - field.begin());
    *gap = std::move(waste.back());
    waste.pop_back();
  }
  if (waste.size() < kPile) waste.emplace_back();
  if (!stack.empty()) {
    waste.back() = std::move(stack.back());
    stack.pop_back();
  }
  return filled;
}

bool Board::RoundCompleted() const {
  return std::all_of(field.begin(), field.begin() + kTopRow, [](const auto& code) { return code.empty(); });
}

// The order matters with a card of no rank.
bool Board::HasMatch() const {
  for (int first = 0; first < kCards; ++first)
    for (int second = 0; CheckForLegalMove(first) && second < kCards; ++second)
      if (Goes(first, second)) return true;
  return false;
}

// Behind the end of the stack the first turn may change something yet.
bool Board::IsStuck() const {
  Board later = *this;
  for (size_t turns = stack.size() + 1; !later.HasMatch(); --turns) {
    if (turns == 0) return true;
    later.TurnCard();
  }
  return false;
}

}  // namespace modDuopick
