#include "games/treyshift/board.h"

#include <algorithm>
#include <utility>

namespace modTreyshift {

void Board::Clear() {
  const Integer position = DeckPosition;
  *this = {};
  DeckPosition = position;
}

void Board::Deal(const CardCodes& cards) {
  Clear();
  deck = cards;
  paid.reserve(deck.size());
  std::copy_n(deck.begin() + 1, kUpSlots, UpCards.begin());
  std::fill_n(open.begin(), kColumns, true);
  DeckPosition = kDealt;
}

// --- Slots ---------------------------------------------------------------------------------------

std::string& Board::CodeAt(Zone zone, int slot) {
  if (zone == Zone::Deck) return UpCards[slot];
  return zone == Zone::Temp ? TempCards[slot] : FieldCards[slot];
}

int Board::Lowest(int slot) const {
  slot %= kColumns;
  while (slot < kThirdRow && open[slot + kColumns]) slot += kColumns;
  return slot;
}

// Below the last card of a column nothing is to be seen, not even the place of a card.
bool Board::IsBare(int slot) const { return slot >= kSecondRow && slot != blank && FieldCards[slot].empty(); }

// Whether there is room for the selected card, or, if none is, a card to be selected; in the column of a bare
// slot that is the one above. Nobody looks whether the fan holds one: behind its last card lies one more.
bool Board::Fits(Zone zone, int slot) const {
  if (zone == Zone::Deck) return slot == kInPlay && !Selected();
  if (zone == Zone::Temp) return TempCards[slot].empty() == Selected();
  return IsBare(slot) || (Selected() ? slot < kThirdRow : !FieldCards[slot].empty());
}

bool Board::Takes(Zone zone, int slot) const {
  if (zone == Zone::Field) slot = Lowest(slot);
  return IsSelected(zone, slot) || (Fits(zone, slot) && (CanMove() || !Selected()));
}

// No card can be laid on the one that is selected: the bare slots below it close.
Outcome Board::Take(Zone zone, int& slot) {
  if (zone == Zone::Field) slot = Lowest(slot);
  if (IsSelected(zone, slot)) {
    SourceZone = Zone::None;
    return Outcome::LetGo;
  }
  if (!Fits(zone, slot)) return Outcome::Refused;
  if (Selected()) {
    MoveCard(zone, slot);
    return Outcome::Laid;
  }
  for (; zone == Zone::Field && IsBare(slot); slot -= kColumns) open[slot] = false;
  SourceZone = zone;
  SourceIndex = slot;
  return Outcome::Selected;
}

// --- Moves ---------------------------------------------------------------------------------------

void Board::MoveCard(Zone zone, int& slot) {
  const int clicked = slot;
  if (CanMove()) {
    if (zone == Zone::Field && !FieldCards[slot].empty()) slot += kColumns;
    CodeAt(zone, slot).swap(CodeAt(SourceZone, SourceIndex));
    if (SourceZone == Zone::Field)
      open[SourceIndex < kSecondRow ? SourceIndex + kColumns : SourceIndex] = false;
    if (zone == Zone::Field && FieldCards[slot].empty()) blank = slot;
    if (SourceZone == Zone::Deck) {
      if (zone == Zone::Field && slot < kThirdRow) open[slot + kColumns] = true;
      UpDateDeck();
    }
  }
  if (zone == Zone::Field) open[clicked < kSecondRow ? slot : clicked % kColumns + kThirdRow] = true;
  SourceZone = Zone::None;
}

void Board::UpDateDeck() {
  DeckPosition += 1;
  for (int i = kInPlay; i > 0; --i) UpCards[i].swap(UpCards[i - 1]);
  if (DeckPosition <= UpperBound(deck)) UpCards[0] = deck[DeckPosition];
}

// --- Columns -------------------------------------------------------------------------------------

// The ace is low, but for the two runs that end in it or begin with it as the highest card.
Worth Board::Judge(int column) const {
  constexpr int kAce = 1, kQueen = 12, kKing = 13;
  if (IsBare(column + kThirdRow)) return Worth::Nothing;
  const auto rank = [&](int row) { return CardValue(FieldCards[column + row * kColumns]); };
  const int top = rank(0), middle = rank(1), bottom = rank(2);
  if (middle == top && bottom == top) return Worth::Trip;
  const bool rises = middle == top + 1 && bottom == top + 2, falls = middle == top - 1 && bottom == top - 2;
  const bool fromAce = top == kAce && middle == kKing && bottom == kQueen,
             toAce = top == kQueen && middle == kKing && bottom == kAce;
  return rises || falls || fromAce || toAce ? Worth::Run : Worth::Nothing;
}

bool Board::CheckFlush(int column) const {
  const auto suit = [&](int slot) { return FieldCards[slot].empty() ? 0 : FieldCards[slot].back(); };
  return suit(column) == suit(column + kSecondRow) && suit(column) == suit(column + kThirdRow);
}

void Board::ClearColumn(int column) {
  for (int slot = column; slot < kFieldSlots; slot += kColumns) {
    paid.push_back(std::exchange(FieldCards[slot], {}));
    open[slot] = slot < kSecondRow;
    if (slot == blank) blank = -1;
  }
}

bool Board::IsStuck() const {
  return std::ranges::count(TempCards, "") == 0 &&
         std::count(FieldCards.begin() + kThirdRow, FieldCards.end(), "") == 0;
}

}  // namespace modTreyshift
