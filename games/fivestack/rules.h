// modFivestack: the rules of Fivestack as plain data and functions.
//
// Five columns take up to five cards each and may not go over 21, pictures counting 10 and aces 1 or 11. The
// sum of the five columns is the card total: from 97 on it has a value, a thousand for the perfect 105. A
// round pays that value times the time bonus, which falls from second to second.
#pragma once

#include <array>
#include <string>

#include "suite/cards.h"
#include "suite/column21.h"

namespace modFivestack {

inline constexpr int kColumns = 5;
inline constexpr int kLowestPaid = 97;   // the card total from which a round pays
inline constexpr int kPerfect = 105;     // all columns at 21
inline constexpr int kBustTotal = 9999;  // stands for the total of a round lost by a bust
inline constexpr int kBonusRound = 4;

// What a game pays and allows when nobody has changed it.
inline constexpr int kTimeBonusMax = 300, kTimeBonusMin = 100, kBonusScore = 200000, kWaitPeriod = 2000,
                     kCardsToPass = 1;

// A row of the table of card totals: its two labels, and what the right one says.
struct TotalRow {
  int total;
  const char* label;
  const char* valueLabel;
  const char* caption;  // of `label`
  int value;
};
inline constexpr int kRows = 10;
extern const std::array<TotalRow, kRows> kTotals;

// The row of a card total: the last one for all that don't pay, -1 above 105.
int RowOf(long long total);
// What a card total is worth; nothing if it has no row.
int ValueOf(long long total);
// Whether a round of that total is paid.
bool IsPaid(long long total);

// The code of the card at that place of the deck, from 1. Raises "Subscript out of range" beyond the last.
const std::string& CardAt(const CardCodes& deck, long long position);
// What it is worth by its face: pictures 10, an ace 1.
int GetCardValue(const CardCodes& deck, long long position);

// What the time bonus loses in a second of the round.
float BonusDecay(long long max, long long min, long long timeLimit);
// The time bonus after that many seconds: from the maximum down to the minimum.
long long BonusAfter(long long seconds, long long max, long long min, float decay);

}  // namespace modFivestack
