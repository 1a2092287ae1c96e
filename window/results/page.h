// What there is to show of one row of the statistics.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "history/overview.h"

namespace results {

struct Page {
  std::string title = {}, figures = {}, latest = {};  // the lines above
  struct Score {
    int score;
    std::chrono::sys_days day;
  };
  std::vector<Score> scores = {};                   // of games that were played out, in their order
  std::vector<std::chrono::sys_days> days = {};     // a day for each game, in their order
  std::vector<std::chrono::sys_days> dailies = {};  // days with a game by the deal of a day
  std::chrono::sys_days today = {};
};

Page PageOf(const HistoryRow& row, const std::vector<PlayedGame>& history, std::chrono::sys_days today);

// The page in words.
std::string InWords(const Page& page);

// What stands there as long as nothing was played.
inline constexpr char kNothingYet[] = "Nothing has been played yet";
inline constexpr char kWhatToDo[] = "Play a game to its end, and its score stands here.";

// The titles of the table's columns, and what stands below them for a row.
inline constexpr const char* kColumns[] = {"Game",    "Played with", "Games",    "Played out", "Best",
                                           "Average", "Median",      "Last ten", "Bonus",      "Time"};
inline constexpr size_t kFirstNumber = 2;  // columns of numbers begin there
std::vector<std::string> CellsOf(const HistoryRow& row);
// The row to begin with: of that game's, or of all if "" is given, that with the newest game. 0 if there is
// none.
size_t NewestRow(const std::vector<HistoryRow>& rows, const std::string& game);

}  // namespace results
