#include "games/spirehold/board.h"

#include <algorithm>
#include <utility>

namespace modSpirehold {

bool IsNeighbour(int rank, int upRank) {
  constexpr int kAce = 1, kKing = 13;
  if (rank == kAce) return upRank == kKing || upRank == 2;
  if (rank == kKing) return upRank == 12 || upRank == kAce;
  return rank > kAce && rank < kKing && (rank == upRank + 1 || rank == upRank - 1);
}

void Board::Deal(const CardCodes& deck) {
  std::copy_n(deck.begin() + 1, kCards, table.begin());
  stack.assign(deck.rbegin(), deck.rend() - 1 - kCards);
  pile = {deck.back()};
  CurrentRun = 0;
  NewHighRun = false;
  NoteRun();
}

bool Board::IsCovered(int card) const {
  if (card >= kCovered || table.at(card).empty()) return false;
  const int left = kLeftCover[card];
  return !(table[left].empty() && table[left + 1].empty());
}

bool Board::CheckForLegalMove(int card) const {
  return !table.at(card).empty() && !IsCovered(card) && IsNeighbour(CardValue(table[card]), UpCardValue());
}

bool Board::Take(int card) {
  if (!CheckForLegalMove(card)) return false;
  pile.push_back(std::exchange(table[card], {}));
  return true;
}

void Board::LengthenRun() {
  CurrentRun += 1;
  NoteRun();
}

void Board::NoteRun() {
  if (CurrentRun <= HighestRun) return;
  HighestRun = CurrentRun;
  NewHighRun = true;
}

void Board::TurnCard() {
  RunValue = 0;
  CurrentRun = 0;
  if (UpCardValue() != 0) pile.emplace_back();
  if (stack.empty()) return;
  pile.back() = std::move(stack.back());
  stack.pop_back();
}

int Board::TowersCompleted() const {
  return static_cast<int>(std::count(table.begin(), table.begin() + kTowers, ""));
}

bool Board::IsStuck() const {
  for (int card = 0; card < kCards; ++card) {
    const auto goesWith = [rank = CardValue(table[card])](const auto& up) {
      return IsNeighbour(rank, CardValue(up));
    };
    if (CheckForLegalMove(card) || (!IsCovered(card) && std::ranges::any_of(stack, goesWith))) return false;
  }
  return true;
}

}  // namespace modSpirehold
