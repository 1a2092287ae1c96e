// The history: a line of text for each game that was begun.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum class GameEnd { Played, Time, GivenUp, Closed };

struct PlayedGame {
  std::string ended = {};  // "2026-11-21T12:00:00+01:00", local time
  std::string game = {};   // as on its button, without a sign
  int limit = 0;           // seconds a round
  std::optional<int> goal = {};
  bool custom = false;
  int rounds = 0;  // dealt, the bonus round among them
  int score = 0;
  int place = 0;          // 1 to 10 in the table, 0 for none
  long long seconds = 0;  // played, without pauses and counts
  int deal = 0;
  GameEnd end = GameEnd::Played;
  std::string record = {};  // the name of its record's file, or ""
  bool operator==(const PlayedGame&) const = default;

  // It came to its own end.
  bool PlayedOut() const { return end == GameEnd::Played || end == GameEnd::Time; }
};

inline constexpr char kHistoryHeader[] =
    "ended,game,limit,goal,custom,rounds,score,place,seconds,deal,end,record";
inline constexpr char kHistoryFile[] = "History.csv";
inline constexpr size_t kLargestHistory = 64 << 20;  // bytes

// The line of a game, without its end.
std::string FormatGame(const PlayedGame& game);
// Nothing if the line is damaged, or the header.
std::optional<PlayedGame> ParseGame(std::string_view line);
// Calls with each sound line of a file's text, and what it says.
void EachGame(std::string_view text, const std::function<void(std::string_view, const PlayedGame&)>& take);
std::vector<PlayedGame> ParseHistory(std::string_view text);
