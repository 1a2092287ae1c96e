// How one game compares with those before it.
#pragma once

#include <string>

#include "history/history.h"

// Whether both were played by the same settings.
bool SameSettings(const PlayedGame& a, const PlayedGame& b);
// "at 90 seconds, goal 11, own scoring"; "" for a game without any of that.
std::string SettingsText(const PlayedGame& game);
// What all lines of games with these settings hold.
std::string SettingsField(const PlayedGame& game);
// "Your third best of 41 at 90 seconds" of a game that was played out; else "". `history` may hold the game
// itself, and games by other settings.
std::string HowItCompares(const PlayedGame& game, const std::vector<PlayedGame>& history);
