// modTreyshift: the rules of Treyshift as plain data and functions.
//
// Four columns take up to three cards each, three more cards may wait in the storage. The deck is turned up
// in a fan of three, of which the last one is in play. A third card makes its column whole: three of a rank
// are a trip, three in sequence a run, and such a column pays and empties itself; any other stays and blocks.
#pragma once

#include <string_view>

#include "window/number.h"

namespace modTreyshift {

inline constexpr int kColumns = 4, kRows = 3;
inline constexpr int kFieldSlots = kColumns * kRows;  // column c is the slots c, c + 4, c + 8 from the top
inline constexpr int kTempSlots = 3, kUpSlots = 3;
inline constexpr int kInPlay = 2;  // the card of the fan that may be moved
inline constexpr int kSecondRow = kColumns, kThirdRow = 2 * kColumns;  // their first slots
inline constexpr int kDealt = 3;        // the deck's slot turned up last, after the deal
inline constexpr int kUsedUp = 55;      // the same when no card is left in the fan
inline constexpr int kBeyondDeck = 56;  // from here on no card moves

// What a game pays when nobody has changed it.
inline constexpr int kTripValue = 6000, kRunValue = 300, kFlushValue = 5000, kDeckValue = 15000,
                     kPenaltyValue = 250, kTimeBonus = 200, kBonusScore = 100000;

enum class Worth { Nothing, Trip, Run };
// What the ranks of a full column make, from the top to the bottom.
Worth Judge(int top, int middle, int bottom);

// Whether three codes end in the same suit.
bool OfOneSuit(std::string_view top, std::string_view middle, std::string_view bottom);

// The picture's key for the stack when that slot of the deck was turned up last.
const char* StackStage(long long deckPosition);

// How many cards the player is told of: those of the stack and of the fan.
long long CardsRemaining(long long deckPosition);

}  // namespace modTreyshift
