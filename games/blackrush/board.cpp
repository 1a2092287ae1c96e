#include "games/blackrush/board.h"

namespace modBlackrush {

void Board::Deal(const CardCodes& shuffled) {
  deck = shuffled;
  position = 1;
  passed.clear();
  gone.clear();
}

void Board::Clear() {
  for (int i = 0; i < kColumns; ++i) TakeColumnAway(i);
  words = {};
  bonus = 0;
  position = 0;
}

void Board::GrantPasses(long long passes) {
  passesLeft = passes;
  mayPass = passes != 0;
}

int Board::GetHitTotal(int column) {
  Column21& hit = columns[column];
  const long long softBefore = hit.softAces;
  const int total = hit.GetHitTotal(Next());
  if (hit.softAces > softBefore) words[column] = Word::Shown;
  return total;
}

bool Board::CheckForBust(int column, int& total) {
  if (total <= kTwentyOne) return false;
  if (!columns[column].BringAceDown()) return true;
  if (columns[column].softAces == 0) words[column] = Word::None;
  total -= 10;
  return false;
}

// A fifth card that makes 21 is a 21 like any other.
Laid Board::LayCard(int column, int total) {
  Column21& hit = columns[column];
  hit.cards.push_back(Next());
  if (total == kTwentyOne) {
    twentyOnes += 1;
    return Laid::TwentyOne;
  }
  hit.total = total;
  if (hit.cards.size() < kCardsOfColumn) return Laid::Stays;
  TakeColumnAway(column);
  words[column] = Word::None;
  return Laid::FiveCardGimme;
}

void Board::ClearTwentyOne(int column, long long step) {
  bonus += step;
  TakeColumnAway(column);
  columns[column].softAces = 0;
  if (words[column] != Word::None) words[column] = Word::Hidden;
}

void Board::TakeColumnAway(int column) {
  Column21& taken = columns[column];
  gone.insert(gone.end(), taken.cards.begin(), taken.cards.end());
  taken.Clear();
}

bool Board::StepCounter(long long bonusLeft) {
  if (counter < kCounterEnd) {
    counter += 1;
    return true;
  }
  counter = 0;
  bonus = bonusLeft;
  return false;
}

void Board::TurnNextCard() {
  position += 1;
  if (position >= kLastCard) mayPass = false;
}

bool Board::Pass() {
  if (!mayPass) return false;
  passesLeft -= 1;
  passed.push_back(Next());
  TurnNextCard();
  if (passesLeft == 0) mayPass = false;
  return true;
}

}  // namespace modBlackrush
