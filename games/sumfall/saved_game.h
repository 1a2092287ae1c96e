// The text of a saved game: the decks of the last game, so that the very same cards can be played again.
#pragma once

#include <string>
#include <string_view>

#include "suite/cards.h"

namespace modSumfall {

struct SavedGame {
  int cardGoal = 11;
  int timeLimit = 90;  // seconds
  int score = 0;
  bool custom = false;
  std::string userName;
  CardCodes decks[3];  // of the three rounds; only the first always holds cards
};

std::string FormatSavedGame(const SavedGame& game);

// Reads a saved game. Raises a RuntimeError if the text is none.
SavedGame ParseSavedGame(std::string_view text);

// "amassed a pitiful" to "earned an unbelievable".
const char* Verdict(int score);

}  // namespace modSumfall
