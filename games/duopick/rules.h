// modDuopick: the rules of Duopick as plain data and functions.
//
// Twenty-three cards lie face up in five rows, each row partly on the one above it, and a twenty-fourth, the
// up card, beside the stack. The player takes exposed cards two by two: a pair if their ranks are alike, a
// run if they are neighbours, king and ace among them. Turning a card of the stack makes it the up card; the
// old one goes back into the first gap of the field, or under it into the waste pile if there is no gap. The
// top row taken away ends the round.
#pragma once

#include <array>
#include <bitset>
#include <string>

#include "suite/cards.h"
#include "window/number.h"

namespace modDuopick {

inline constexpr int kField = 23;   // cards in the five rows
inline constexpr int kTopRow = 5;   // of these lie in the uppermost
inline constexpr int kUpCard = 23;  // the up card's index
inline constexpr int kCards = 24;   // with the up card
inline constexpr int kDealt = 52;   // with the stack; the place behind it stays empty
inline constexpr int kPile = 30;    // the last place of the waste pile

// What a game pays when nobody has changed it.
inline constexpr int kPairsBonus = 3000, kRunsBonus = 500, kTimeBonus = 100, kBonusScore = 80000,
                     kCompletionBonus = 10000;

// Where the cards lie in a window of the smallest size, twips.
struct Place {
  int left, top;
};
extern const std::array<Place, kCards> kTable;
inline constexpr int kCardWidth = 1035, kCardHeight = 1455;

// Whether nothing covers a card; `lying` tells which cards of the field are there.
bool IsExposed(int card, const std::bitset<kField>& lying);

enum class Match { None, Pair, Run };
// What two cards make, by the ranks of the first and the second. An up card that isn't there has rank 0, and
// makes a run with an ace if it comes first.
Match MatchOf(long long first, long long second);

// The cards of a round.
struct Cards {
  std::array<std::string, kDealt + 1> DeckCards;  // field, up card, stack, nothing
  std::array<std::string, kPile + 1> UpCards;     // the waste pile, from 1; the up card is its last
  Integer WastePos, StackIndex;                   // the pile's last; the next of the stack
};

// Lays out a deck.
void Deal(Cards& cards, const CardCodes& deck);
// Puts the up card into that gap of the field.
void PutUpCardBack(Cards& cards, int gap);
// Makes the next card of the stack the up card. A used up stack gives an empty code, a full pile takes
// nothing more.
void TurnCard(Cards& cards);
// Takes the up card away: the one beneath it follows.
void TakeUpCard(Cards& cards);

// The picture's key for a stack whose next card has that index; null beyond the empty stack.
const char* StackStage(long long stackIndex);

}  // namespace modDuopick
