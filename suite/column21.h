// A column of cards that is to reach 21: aces count 11 while they can, and come down to 1 when they must.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "suite/cards.h"
#include "window/number.h"

inline constexpr int kTwentyOne = 21;
inline constexpr int kCardsOfColumn = 5;

// What a card is worth by its face: pictures 10, an ace 1.
inline int FaceWorth(std::string_view card) { return std::min(CardValue(card), 10); }

struct Column21 {
  Integer total;
  Integer softAces;  // of these in the total at 11
  std::vector<std::string> cards;

  // What the column would total with that card.
  int TotalWith(std::string_view card) const {
    const int worth = FaceWorth(card);
    return static_cast<int>(total) + (worth == 1 && total + 11 <= kTwentyOne ? 11 : worth);
  }
  // The same for a card that comes: an ace, and nothing else, counts 11, and is soft from now on.
  int GetHitTotal(std::string_view card) {
    const int with = TotalWith(card);
    if (with == total + 11) softAces += 1;
    return with;
  }
  // A column that would go over 21 counts a soft ace as 1: false if it has none. The total falls by 10 once
  // no soft ace is left.
  bool BringAceDown() {
    if (softAces == 0) return false;
    softAces -= 1;
    if (softAces == 0) total -= 10;
    return true;
  }
  // The cards go. Whether its aces are forgotten is for the game to say.
  void Clear() {
    total = 0;
    cards.clear();
  }

  bool operator==(const Column21&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& column, Visit&& visit) {
    visit("total", column.total, "softAces", column.softAces, "cards", column.cards);
  }
};

// One deck, the columns that it is dealt onto, and what was passed on the way.
template <int Columns>
struct ColumnBoard {
  CardCodes deck;
  Integer position;  // in the deck, of the card on show
  std::array<Column21, Columns> columns;
  std::vector<std::string> passed;
  Integer passesLeft;

  bool HasNext() const { return position <= UpperBound(deck); }
  // The card on show. Raises "Subscript out of range" behind the deck's last one.
  const std::string& Next() const {
    if (!HasNext()) RaiseSubscript();
    return deck[position];
  }

  bool operator==(const ColumnBoard&) const = default;
  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    visit("deck", board.deck, "position", board.position, "passed", board.passed, "left", board.passesLeft);
    for (auto& column : board.columns) Column21::VisitFields(column, visit);
  }
};
