// The tables of high scores: ten places a table, a text file each.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "window/number.h"

class GameWindow;

struct HighScore {
  std::string name;  // with "*" at its end if scoring was customised
  Long score;
  bool operator==(const HighScore&) const = default;
};
using HighScores = std::vector<HighScore>;

inline constexpr size_t kTablePlaces = 10;

// Reads a table's text up to the first line that is no entry. `damaged` tells whether there was such a line.
HighScores ParseHighScores(std::string_view text, bool& damaged);
// The text of a table: "name, score" a line, and an empty line at the end.
std::string FormatHighScores(const HighScores& scores);
// Ten times the same entry, with which a table begins.
HighScores FreshHighScores(const std::string& defaultScore);

// The place, from 0, that a score takes among the first ten; nothing if it is below them. A tie goes below.
std::optional<size_t> PlaceOf(const HighScores& scores, long long score);
// The table with the entry put in at its place, if it has one. An entry at the tenth place keeps the old
// tenth behind it.
HighScores WithEntry(const HighScores& scores, const HighScore& entry);

// The table that belongs to the window's present settings. A table that is missing, or that nobody can make
// sense of, is made anew with the default score.
HighScores ReadHighScores(GameWindow& window, const std::string& tableName, const std::string& defaultScore);

// Shows the best score of the table in the window's `lblHighScore`.
void ShowHighScore(const std::string& tableName, GameWindow& window, const std::string& defaultScore);
// Writes a fresh table, whatever was there.
void CreateHighScoreFile(const std::string& tableName, GameWindow& window, const std::string& defaultScore);
// Enters `CurrentScore` if it has a place, asking for the name, and shows the table then.
void UpdateHighScoreTable(const std::string& tableName, GameWindow& window, const std::string& defaultScore);
