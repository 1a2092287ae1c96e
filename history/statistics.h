// What a history amounts to, per game and the settings it was played with.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "history/history.h"

struct Statistics {
  std::string game;
  int limit = 0;  // seconds a round
  std::optional<int> goal;
  bool custom = false;
  int games = 0, playedOut = 0;
  // Of the games that were played out, rounded half to even; nothing if there was none.
  std::optional<long long> best, average, median;
  int bonus = 0;          // games that came to their bonus round
  long long seconds = 0;  // played
};

// A game as it is known here: its name, and the rounds before the bonus round.
struct KnownGame {
  std::string name;
  int rounds = 2;
};

// One for each game and settings that were played: games in the order of `known`, then by limit, goal, and
// custom scoring.
std::vector<Statistics> Summarise(const std::vector<PlayedGame>& history,
                                  const std::vector<KnownGame>& known);
// A table for a terminal, with a line of titles; "-" for what there is none of.
std::string FormatStatistics(const std::vector<Statistics>& statistics);
