// A column of cards that is to reach 21: aces count 11 while they can, and come down to 1 when they must.
#pragma once

#include <string_view>

#include "window/number.h"

struct Column21 {
  Integer total;
  Integer softAces;  // of these in the total at 11
  Integer cards;
};

inline constexpr int kTwentyOne = 21;
inline constexpr int kCardsOfColumn = 5;

// What a card is worth by its face: pictures 10, an ace 1.
int FaceWorth(std::string_view code);

// What an ace drawn for the column is worth, 1 or 11; at 11 the column has one soft ace more.
int TakeAce(Column21& column);

// A column that would go over 21 counts a soft ace as 1: false if it has none. The total falls by 10 once no
// soft ace is left.
bool BringAceDown(Column21& column);
