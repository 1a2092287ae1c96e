// Lays known cards for Duopick.
#pragma once

#include "games/duopick/duopick.h"
#include "tests/game_test.h"
#include "tests/sumfall_cards.h"

inline frmDuopick& DuopickOf(Driver& driver) { return static_cast<frmDuopick&>(*driver.common().window); }

// An order in which the whole field can be taken two by two, the up card among the first.
inline constexpr int kTwoByTwo[] = {18, 19, 20, 21, 22, 23, 14, 15, 16, 17, 9, 10,
                                    11, 12, 13, 5,  6,  7,  8,  0,  1,  2,  3, 4};

// The command that makes the next deal lay those cards in that order, and any others on the stack.
inline std::string LayTwoByTwo(const std::vector<std::string>& inOrder) {
  std::vector<std::string> cards(modDuopick::kCards);
  for (int i = 0; i < modDuopick::kCards; ++i) cards[kTwoByTwo[i]] = inOrder[i];
  return DrawsFor(StandardDeck(), cards);
}
// Eight pairs, and four runs among the last.
inline std::string LayEightPairs() {
  return LayTwoByTwo({"1S", "1H", "2S", "2H", "3S", "3H",  "4S",  "4H",  "5S",  "5H", "6S",  "6H",
                      "7S", "7H", "8S", "8H", "9S", "10H", "10S", "11H", "13S", "1C", "13H", "12S"});
}
// Twelve pairs.
inline std::string LayTwelvePairs() {
  std::vector<std::string> cards;
  for (int rank = 1; rank <= 12; ++rank)
    for (const char* suit : {"S", "H"}) cards.push_back(std::to_string(rank) + suit);
  return LayTwoByTwo(cards);
}

inline std::string Click(const std::vector<int>& cards) {
  std::string clicks;
  for (int card : cards) clicks += "click frmDuopick.PlayCard(" + std::to_string(card) + ")\n";
  return clicks;
}
// The first cards in the order above.
inline std::string ClickTwoByTwo(int first, int behindLast) {
  return Click({kTwoByTwo + first, kTwoByTwo + behindLast});
}

inline const std::string kOpenDuopick = "click frmSelect.cmdDuopick\n";
inline const std::string kPlayDuopick = "click frmDuopick.cmdPlay\n";
inline const std::string kTurnCard = "click frmDuopick.CardStackPicture\n";
inline const std::string kTakeScoreDuopick = "click frmDuopick.cmdTakeScore\n";
