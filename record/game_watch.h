// Sees games begin and end, from outside: a game knows nothing of it.
#pragma once

#include <optional>
#include <string>

#include "suite/common.h"

// What a game came to.
struct GameResult {
  std::string game;   // "Sumfall"
  std::string limit;  // seconds; in Sumfall with the goal behind it: "90_11"
  long long score = 0;
  int rounds = 0;  // that were dealt, the bonus round included
  int place = 0;   // in its table, from 1; 0 for none
  bool custom = false;
  int deal = 0;       // 0 for none
  std::string table;  // the table's file
  DateTime ended = {};
  bool operator==(const GameResult&) const = default;
};

class GameWatch {
 public:
  // To be called wherever something goes over the border, in the same places when a game is played again.
  // Tells of a game that has ended since, but not when: it has as soon as its place is known, or it is over
  // without one.
  std::optional<GameResult> Look(const modCommon& common);

  // Whether there was one under way when it was looked last, and which.
  bool GameIsUnder() const { return under_; }
  const std::string& Game() const { return result_.game; }

 private:
  bool under_ = false;     // a game is
  bool told_ = false;      // its end was told, before its window knows of it
  int entriesBefore_ = 0;  // into tables
  GameResult result_;
};
