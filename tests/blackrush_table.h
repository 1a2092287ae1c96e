// Lays known cards for Blackrush.
#pragma once

#include "games/blackrush/blackrush.h"
#include "tests/game_test.h"
#include "tests/sumfall_cards.h"

inline frmBlackrush& BlackrushOf(Driver& driver) {
  return static_cast<frmBlackrush&>(*driver.common().window);
}

inline const std::string kOpenBlackrush = "click frmSelect.cmdBlackrush\n";
inline const std::string kPlayBlackrush = "click frmBlackrush.cmdPlay\n";
inline const std::string kPass = "click frmBlackrush.cmdPass\n";
inline const std::string kTake = "click frmBlackrush.cmdTakeScore\n";
inline const std::string kPause = "click frmBlackrush.cmdPause\n";

inline std::string Hit(int column) { return "click frmBlackrush.cmdHit(" + std::to_string(column) + ")\n"; }
// A click on Hit for each column named, "0012".
inline std::string Hits(const std::string& names) {
  std::string clicks;
  for (const char column : names) clicks += Hit(column - '0');
  return clicks;
}

// Opens Blackrush and starts a game that deals these cards first.
inline void StartBlackrush(Driver& driver, const std::vector<std::string>& cards) {
  if (!driver.common().window) driver.Do(kOpenBlackrush);
  driver.Do(DrawsFor(StandardDeck(), cards) + kPlayBlackrush);
}

// What the player hears, reads and waits for; a step of a count is "Count".
inline std::string Story(const std::string& trace) {
  std::string story = StoryOf(trace, "frmBlackrush.ScoringLabelInfo") + ", ";
  const std::string step = "75, CountScore, ";
  for (size_t at; (at = story.find(step)) != std::string::npos;) {
    size_t end = at;
    int steps = 0;
    for (; story.compare(end, step.size(), step) == 0; end += step.size()) ++steps;
    story.replace(at, end - at, "Count x" + std::to_string(steps) + ", ");
  }
  story.resize(story.size() - 2);
  return story;
}
