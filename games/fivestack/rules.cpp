#include "games/fivestack/rules.h"

namespace modFivestack {

const std::array<TotalRow, kRows> kTotals = {{
    {105, "lbl105", "lblScore105", "105", 1000},
    {104, "lbl104", "lblScore104", "104", 500},
    {103, "lbl103", "lblscore103", "103", 400},
    {102, "lbl102", "lblscore102", "102", 300},
    {101, "lbl101", "lblscore101", "101", 250},
    {100, "lbl100", "lblscore100", "100", 200},
    {99, "lbl99", "lblscore99", "99", 150},
    {98, "lbl98", "lblscore98", "98", 100},
    {97, "lbl97", "lblscore97", "97", 50},
    {0, "lblNothing", "lblScore0", "< 97", 0},
}};

int RowOf(long long total) {
  if (total > kPerfect) return -1;
  return total < kLowestPaid ? kRows - 1 : static_cast<int>(kPerfect - total);
}

int ValueOf(long long total) {
  const int row = RowOf(total);
  return row < 0 ? 0 : kTotals[row].value;
}

bool IsPaid(long long total) { return total >= kLowestPaid && total <= kPerfect; }

const std::string& CardAt(const CardCodes& deck, long long position) {
  if (position < 0 || position > UpperBound(deck)) RaiseSubscript();
  return deck[position];
}

int GetCardValue(const CardCodes& deck, long long position) { return FaceWorth(CardAt(deck, position)); }

float BonusDecay(long long max, long long min, long long timeLimit) {
  if (timeLimit == 0) RaiseDivisionByZero();
  return static_cast<float>(max - min) / static_cast<float>(timeLimit);
}

long long BonusAfter(long long seconds, long long max, long long min, float decay) {
  const float lost = static_cast<float>(seconds) * decay;
  return RoundHalfEven(static_cast<float>(max + min) - (lost + static_cast<float>(min)));
}

}  // namespace modFivestack
