#include "games/fivestack/board.h"

namespace modFivestack {

int RowOf(long long total) {
  if (total > kPerfect) return -1;
  return static_cast<int>(total < kLowestPaid ? kValues.size() - 1 : kPerfect - total);
}

int ValueOf(long long total) {
  const int row = RowOf(total);
  return row < 0 ? 0 : kValues[row];
}

float BonusDecay(long long max, long long min, long long timeLimit) {
  if (timeLimit == 0) RaiseDivisionByZero();
  return static_cast<float>(max - min) / static_cast<float>(timeLimit);
}

long long BonusAfter(long long seconds, long long max, long long min, float decay) {
  const float lost = static_cast<float>(seconds) * decay;
  return RoundHalfEven(static_cast<float>(max + min) - (lost + static_cast<float>(min)));
}

void Board::Deal(const CardCodes& shuffled) {
  deck = shuffled;
  position = 2;
}

void Board::Clear(long long passes) {
  for (Column21& column : columns) {
    column.Clear();
    column.softAces = 0;
  }
  passed.clear();
  skipped.clear();
  passesLeft = passes;
  cardTotal = 0;
}

const std::string& Board::TakeNext() {
  const std::string& card = Next();
  position += 1;
  return card;
}

bool Board::Takes(int column) const {
  return columns.at(column).cards.size() < kCardsOfColumn && cardTotal != kBustTotal;
}

Laid Board::Lay(int column) {
  if (!Takes(column)) return Laid::Refused;
  Column21& laidOn = columns[column];
  laidOn.total = laidOn.GetHitTotal(laidOn.cards.emplace_back(TakeNext()));
  if (laidOn.total > kTwentyOne) return Laid::Over;
  SumUp();
  return Laid::Stays;
}

bool Board::CheckForBust(int column) {
  if (columns.at(column).softAces == 0) {
    cardTotal = kBustTotal;
    return true;
  }
  skipped.push_back(TakeNext());
  Next();
  columns[column].BringAceDown();
  SumUp();
  return false;
}

bool Board::Pass() {
  if (passesLeft <= 0) return false;
  passesLeft -= 1;
  passed.push_back(TakeNext());
  return true;
}

void Board::SumUp() {
  cardTotal = 0;
  for (const Column21& column : columns) cardTotal += column.total;
}

}  // namespace modFivestack
