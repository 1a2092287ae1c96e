#include "history/statistics.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

namespace {

// `sum / count`, rounded half to even; `count` is above 0.
long long Rounded(long long sum, long long count) {
  long long whole = sum / count, rest = sum % count;
  if (rest < 0) {
    rest += count;
    --whole;
  }
  if (2 * rest > count || (2 * rest == count && whole % 2 != 0)) ++whole;
  return whole;
}

long long MedianOf(std::vector<int>& scores) {
  const auto middle = scores.begin() + static_cast<long>(scores.size() / 2);
  std::ranges::nth_element(scores, middle);
  if (scores.size() % 2 != 0) return *middle;
  return Rounded(0ll + *std::max_element(scores.begin(), middle) + *middle, 2);
}

}  // namespace

std::vector<Statistics> Summarise(const std::vector<PlayedGame>& history,
                                  const std::vector<KnownGame>& known) {
  struct Group {
    Statistics statistics;
    std::vector<int> scores;
  };
  using Key = std::tuple<size_t, std::string, int, std::optional<int>, bool>;
  std::map<Key, Group> groups;
  for (const PlayedGame& game : history) {
    const auto found = std::ranges::find(known, game.game, &KnownGame::name);
    const auto order = static_cast<size_t>(found - known.begin());
    auto& [statistics, scores] = groups[{order, game.game, game.limit, game.goal, game.custom}];
    statistics.game = game.game;
    statistics.limit = game.limit;
    statistics.goal = game.goal;
    statistics.custom = game.custom;
    ++statistics.games;
    statistics.seconds += game.seconds;
    if (game.rounds > (found == known.end() ? KnownGame{}.rounds : found->rounds)) ++statistics.bonus;
    if (game.PlayedOut()) scores.push_back(game.score);
  }
  std::vector<Statistics> all;
  for (auto& [key, group] : groups) {
    auto& [statistics, scores] = group;
    statistics.playedOut = static_cast<int>(scores.size());
    if (!scores.empty()) {
      long long sum = 0;
      for (const int score : scores) sum += score;
      statistics.best = std::ranges::max(scores);
      statistics.average = Rounded(sum, statistics.playedOut);
      statistics.median = MedianOf(scores);
    }
    all.push_back(std::move(statistics));
  }
  return all;
}

std::string FormatStatistics(const std::vector<Statistics>& statistics) {
  using Row = std::array<std::string, 11>;
  std::vector<Row> rows{{"game", "limit", "goal", "custom", "games", "played-out", "best", "average",
                         "median", "bonus", "seconds"}};
  const auto orNone = [](const auto& number) { return number ? std::to_string(*number) : std::string("-"); };
  for (const Statistics& one : statistics)
    rows.push_back({one.game, std::to_string(one.limit), orNone(one.goal), one.custom ? "1" : "0",
                    std::to_string(one.games), std::to_string(one.playedOut), orNone(one.best),
                    orNone(one.average), orNone(one.median), std::to_string(one.bonus),
                    std::to_string(one.seconds)});
  std::array<size_t, std::tuple_size_v<Row>> widths{};
  for (const Row& row : rows)
    for (size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  std::string text;
  for (const Row& row : rows) {
    for (size_t i = 0; i < row.size(); ++i) {
      const std::string padding(widths[i] - row[i].size(), ' ');
      text += i == 0 ? row[i] + padding : "  " + padding + row[i];
    }
    text += "\n";
  }
  return text;
}
