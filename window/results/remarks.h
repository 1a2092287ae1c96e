// What is said by the splash panel of the game that has ended, and of the cards.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "history/statistics.h"
#include "window/guide.h"

// How the last game compares with those in that history, and which deal it was; "" if there is nothing to
// say.
std::string RemarkOn(const GameFacts& facts, const std::filesystem::path& history);
// The result of the last game to show to others: game, day or deal, score, and a sign for each round, before
// which a star tells of a bonus round; "" if it wasn't played out. A round's bar is as high as its share of
// the best one.
std::string ResultToCopy(const GameFacts& facts, const std::vector<KnownGame>& known);
// The score of the first game with the deal of that day of UTC, written YYYY-MM-DD; nothing if there was
// none.
std::optional<int> ResultOfDay(const std::string& day, const std::string& game,
                               const std::filesystem::path& history);
