// Lays known cards for Spirehold.
#pragma once

#include "games/spirehold/spirehold.h"
#include "tests/game_test.h"
#include "tests/sumfall_cards.h"

inline frmSpirehold& SpireholdOf(Driver& driver) {
  return static_cast<frmSpirehold&>(*driver.common().window);
}

// A table that goes in one run, from the last card to the first: ace, two, ... king, ace, ... The up card is
// a king.
inline std::map<int, std::string> Staircase() {
  std::map<int, std::string> cards{{51, "13D"}};
  for (int n = 0; n < 28; ++n) cards[27 - n] = std::to_string(n % 13 + 1) + "SHC"[n / 13];
  return cards;
}

inline std::string ClickCard(int index) {
  return "click frmSpirehold.UpCardImage(" + std::to_string(index) + ")\n";
}
inline std::string ClickCards(int from, int downTo) {
  std::string clicks;
  for (int i = from; i >= downTo; --i) clicks += ClickCard(i);
  return clicks;
}

inline const std::string kOpenSpirehold = "click frmSelect.cmdSpirehold\n";
inline const std::string kPlaySpirehold = "click frmSpirehold.cmdPlay\n";
inline const std::string kTurn = "click frmSpirehold.CardStackPicture\n";
inline const std::string kTake = "click frmSpirehold.cmdTakeScore\n";

// Opens Spirehold and starts a game with these cards.
inline void StartSpirehold(Driver& driver, const std::map<int, std::string>& cards) {
  driver.Do(kOpenSpirehold + LayCards(cards) + kPlaySpirehold);
}
