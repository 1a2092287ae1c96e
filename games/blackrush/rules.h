// modBlackrush: the rules of Blackrush as plain data and functions.
//
// One deck is played through onto four columns. A column that reaches 21 is taken away and counts as a "21";
// one of five cards below 21 is a Five Card Gimme, pays at once and is taken away as well; a card that would
// make more than 21 isn't laid, and costs points. Each 21 raises the bonus by which the 21s of the round are
// multiplied at its end; a counter takes it back unless the next 21 comes in time.
#pragma once

#include <string_view>

#include "suite/column21.h"

namespace modBlackrush {

inline constexpr int kColumns = 4;
inline constexpr int kLastCard = 52;  // its index in the deck; behind it the deck is complete
inline constexpr int kBustCost = 100;

// What a game pays, and asks for, when nobody has changed it.
inline constexpr int kTwentyOneBonusValue = 1000, kCardsUsedBonusValue = 100, kFiveCardGimmeBonus = 750,
                     kDeckCompletionBonus = 100000, kBonusScore = 250000, kCardsToPass = 3,
                     kWaitPeriod = 2000;

// The 21 Counter: milliseconds a step, and its steps.
inline constexpr int kNormalSpeed = 90, kSlowSpeed = 180, kSlowestSpeed = 360;
inline constexpr int kCounterEnd = 100, kCounterFlashes = 50;
constexpr bool IsCounterSpeed(int interval) {
  return interval == kNormalSpeed || interval == kSlowSpeed || interval == kSlowestSpeed;
}

// What the column would total with this card. An ace that counts 11 is soft from now on.
int GetHitTotal(Column21& column, std::string_view card);

// What becomes of a column of that total and so many cards.
enum class Laid { Stays, TwentyOne, FiveCardGimme };
Laid Judge(int total, long long cards);

// The picture's key for the pile when the card on show has that index in the deck.
const char* PileStage(long long deckPosition);

// What the 21s of a round pay.
Long TwentyOnesPay(long long twentyOnes, long long bonus);

}  // namespace modBlackrush
