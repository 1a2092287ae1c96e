#include "games/sumfall/board.h"

#include <algorithm>
#include <bitset>

namespace modSumfall {
namespace {

const std::string kNoCard;

}  // namespace

CardCodes DeckForGoal(int cardGoal) {
  constexpr char kSuits[] = {'S', 'H', 'C', 'D'};
  CardCodes deck(1);
  for (char suit : kSuits) deck.insert(deck.end(), 4, std::string("1") + suit);
  for (char suit : kSuits)
    for (int rank = 2; rank <= 10; ++rank) deck.push_back(NumberedCode(rank, suit));
  const int faces = (DeckSize(cardGoal) - 52) / 4;
  for (int rank = 11; rank < 11 + faces; ++rank)
    for (char suit : kSuits) deck.push_back(std::to_string(rank) + suit);
  return deck;
}

int DeckSize(int cardGoal) {
  return 52 + 4 * (cardGoal > kHighestGoal ? 0 : std::clamp(cardGoal - 11, 0, 3));
}

void Board::Deal(const CardCodes& deck, long long cardGoal) {
  goal = cardGoal;
  combinations = 0;
  DropSelection();
  for (int place = 0; place < kPlaces; ++place) field[place] = deck.at(place + 1);
  upCards = {deck.at(kPlaces + 1)};
  // The stock begins with the card that was just turned up: it comes back at the very end.
  stock.assign(deck.begin() + kPlaces + 1, deck.end());
  taken.clear();
}

const std::string& Board::CardAt(int place) const {
  if (place != kUpCard) return field[place];
  return upCards.empty() ? kNoCard : upCards.back();
}

bool Board::CheckLegalFieldCardMove(int place) const {
  return place == kUpCard || std::ranges::all_of(kCovers[place], [this, place](int cover) {
           return cover == place || field[cover].empty();
         });
}

bool Board::CheckForCompletion() const { return std::ranges::all_of(field, &std::string::empty); }

bool Board::Takes(int place) const {
  const std::string& card = CardAt(place);
  return !card.empty() && CheckLegalFieldCardMove(place) &&
         (selected[place] || CardValue(card) + total <= goal);
}

bool Board::Toggle(int place) {
  const int value = CardValue(CardAt(place));
  selected[place] = !selected[place];
  total += selected[place] ? value : -value;
  if (selected[place]) upCardUsed = false;
  return selected[place];
}

void Board::Remove(int place) {
  selected[place] = false;
  taken.push_back(CardAt(place));
  if (place < kPlaces)
    field[place].clear();
  else if (!upCards.empty())
    upCards.pop_back();
}

int Board::FreePlace() const {
  const auto gap = std::ranges::find_if(field, &std::string::empty);
  return gap == field.end() ? -1 : static_cast<int>(gap - field.begin());
}

// A pile that is full to the brim takes no further card, unless the field takes the one on top.
bool Board::CanTurn() const { return !stock.empty() && (upCards.size() < kUpCards || FreePlace() >= 0); }

int Board::MoveUpCardToFieldArea() {
  const int place = upCards.empty() ? -1 : FreePlace();
  if (place < 0) return -1;
  field[place] = std::move(upCards.back());
  upCards.pop_back();
  return place;
}

void Board::TurnStock() {
  upCards.push_back(std::move(stock.back()));
  stock.pop_back();
  selected.fill(false);
  total = 0;
}

void Board::DropSelection() {
  std::fill(selected.begin() + 1, selected.end(), false);
  total = 0;
}

void Board::ClearField() {
  field.fill("");
  DropSelection();
}

// A card that is selected and can't be given back counts as it does in the total: not at all, if it was
// forgotten there.
bool Board::CanCombine() const {
  std::bitset<512> sums(1);
  long long wanted = goal - total;
  for (int place = 0; place <= kUpCard; ++place) {
    if (CardAt(place).empty() || !CheckLegalFieldCardMove(place)) continue;
    const int value = CardValue(CardAt(place));
    if (selected[place]) wanted += value;
    sums |= sums << value;
  }
  return wanted > 0 && wanted < static_cast<long long>(sums.size()) && sums[wanted];
}

// As long as nothing is combined each turn can only be followed by the next one.
bool Board::IsStuck() const {
  if (CanCombine()) return false;
  Board ahead = *this;
  while (ahead.CanTurn()) {
    ahead.MoveUpCardToFieldArea();
    ahead.TurnStock();
    if (ahead.CanCombine()) return false;
  }
  return true;
}

}  // namespace modSumfall
