// The history as a player looks at it: by games and the settings they were played with, and the deals of the
// day beside them.
#pragma once

#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "history/statistics.h"

struct HistoryRow {
  Statistics figures = {};
  std::vector<int> lastTen = {};  // scores of the games that were played out last, the newest behind
  std::optional<long long> lastTenAverage = {};
  std::vector<size_t> games = {};  // in the history
  // Days on which the deal of a day was played.
  std::set<std::chrono::sys_days> dailies = {};
  bool daily = false;           // of the deals of the day the first game of each
  int streak = 0, longest = 0;  // days of those in a row, up to now and ever
};

// The local day on which a game ended.
std::chrono::sys_days DayOf(const PlayedGame& game);

// One for each game and settings that were played, as `Summarise` orders them; behind those of a game its
// deals of the day. A streak lasts as long as its next day isn't over on `today`, of UTC.
std::vector<HistoryRow> OverviewOf(const std::vector<PlayedGame>& history,
                                   const std::vector<KnownGame>& known, std::chrono::sys_days today);

// "90 seconds, goal 11, own scoring", or "deal of the day, run 3, longest 9", in days.
std::string SettingsOf(const HistoryRow& row);
// "3 h 12 min", "45 min", "30 s"
std::string DurationText(long long seconds);
// The rows as a table of values with commas between them, a line of titles first.
std::string TableOf(const std::vector<HistoryRow>& rows);
