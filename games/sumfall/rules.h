// modSumfall: the rules of Sumfall as plain data and functions.
//
// Twenty-two cards lie in six tiers like roof tiles. The player selects exposed cards until their values add
// up to the card goal, and those cards go. Higher tiers pay more. Below the field lie a pile of stock cards
// and an up card, which may be selected too; turning the next one costs points.
#pragma once

#include <array>
#include <span>
#include <string>

#include "suite/cards.h"

namespace modSumfall {

inline constexpr int kPlaces = 22;
inline constexpr int kUpCards = 32;  // indices 1 to 31 hold cards
inline constexpr int kBonusRound = 3;
// What a game pays when nobody has changed it.
inline constexpr int kBonusRoundScore = 80000, kCompletionBonus = 10000, kCombinationBonus = 1500,
                     kTimeBonus = 100;
inline constexpr int kLowestGoal = 10, kHighestGoal = 15, kDefaultGoal = 11;

// One place of the field, relative to place 0, in twips.
struct Place {
  int points;
  int left, top;
};
extern const std::array<Place, kPlaces> kField;

// The places that cover a place; the list is empty for those that are exposed from the start.
std::span<const int> CoveredBy(int place);

// The deck of a card goal before it is shuffled: 52 cards, and the face cards that the goal brings along.
CardCodes DeckForGoal(int cardGoal);
// The number of cards of that deck.
int DeckSize(int cardGoal);

// "Tens:", "Elevens:" ... of a goal from 10 to 15.
const char* GoalWord(int cardGoal);
// "ten", "eleven" ... of a goal from 10 to 15.
const char* GoalNumberWord(int cardGoal);

// Which picture shows a stock whose top card has that index: "EMPTY", "BACK", "HALF" or "FULL".
const char* StockPicture(int stockIndex);

struct SelectionColour {
  const char* menu;
  const char* caption;
  int colour;
};
extern const std::array<SelectionColour, 6> kSelectionColours;
inline constexpr int kDefaultColour = 1;

}  // namespace modSumfall
