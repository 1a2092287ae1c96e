#include "suite/column21.h"

#include <algorithm>

#include "suite/cards.h"

int FaceWorth(std::string_view code) { return std::min(CardValue(code), 10); }

int TakeAce(Column21& column) {
  if (column.total + 11 > kTwentyOne) return 1;
  column.softAces += 1;
  return 11;
}

bool BringAceDown(Column21& column) {
  if (column.softAces == 0) return false;
  column.softAces -= 1;
  if (column.softAces == 0) column.total -= 10;
  return true;
}
