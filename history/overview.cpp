#include "history/overview.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "history/comparison.h"
#include "history/deal_number.h"

using std::chrono::sys_days;

namespace {

constexpr size_t kLatest = 10;

int Digits(const std::string& text, size_t from, size_t count) {
  int number = 0;
  for (size_t i = from; i < from + count; ++i) number = 10 * number + text[i] - '0';
  return number;
}

// "2026-11-21T12:00:00+01:00"
sys_days UtcDayOf(const PlayedGame& game) {
  const std::string& text = game.ended;
  const int offset = Digits(text, 20, 2) * 60 + Digits(text, 23, 2);
  const int minutes = Digits(text, 11, 2) * 60 + Digits(text, 14, 2) - (text[19] == '-' ? -offset : offset);
  return std::chrono::floor<std::chrono::days>(DayOf(game) + std::chrono::minutes(minutes));
}

std::string DayText(sys_days day) {
  const std::chrono::year_month_day date(day);
  const auto padded = [](unsigned number) { return (number < 10 ? "-0" : "-") + std::to_string(number); };
  std::string year = std::to_string(int(date.year()));
  return std::string(4 - std::min<size_t>(4, year.size()), '0') + year + padded(unsigned(date.month())) +
         padded(unsigned(date.day()));
}

using Key = std::tuple<std::string_view, int, std::optional<int>, bool>;
Key KeyOf(const auto& one) { return {one.game, one.limit, one.goal, one.custom}; }

// What the figures leave out.
void AddLatest(HistoryRow& row, const std::vector<PlayedGame>& history) {
  for (auto game = row.games.rbegin(); game != row.games.rend() && row.lastTen.size() < kLatest; ++game)
    if (history[*game].PlayedOut()) row.lastTen.insert(row.lastTen.begin(), history[*game].score);
  std::vector<PlayedGame> latest;
  for (const int score : row.lastTen) latest.push_back({.game = "latest", .score = score});
  if (!latest.empty()) row.lastTenAverage = Summarise(latest, {}).front().average;
}

void CountStreaks(HistoryRow& row, const std::set<sys_days>& days, sys_days today) {
  int run = 0;
  sys_days before;
  for (const sys_days day : days) {
    run = run > 0 && day == before + std::chrono::days(1) ? run + 1 : 1;
    row.longest = std::max(row.longest, run);
    before = day;
  }
  if (!days.empty() && before + std::chrono::days(1) >= today) row.streak = run;
}

// The deals of the days that were asked for.
class DealsOfDays {
 public:
  // The day whose deal the game was played with; nothing for any other deal. One that goes past midnight
  // belongs to the day of its number.
  std::optional<sys_days> DayOf(const PlayedGame& game) {
    if (game.deal == 0) return std::nullopt;
    const sys_days ended = UtcDayOf(game);
    for (const sys_days day : {ended, ended - std::chrono::days(1)})
      if (NumberOf(day, game.game) == game.deal) return day;
    return std::nullopt;
  }

 private:
  int NumberOf(sys_days day, const std::string& game) {
    int& number = numbers_[{day, game}];
    if (number == 0) number = DealOfTheDay(DayText(day), game);
    return number;
  }

  std::map<std::pair<sys_days, std::string_view>, int> numbers_;
};

}  // namespace

sys_days DayOf(const PlayedGame& game) {
  using namespace std::chrono;
  return year_month_day{year(Digits(game.ended, 0, 4)), month(unsigned(Digits(game.ended, 5, 2))),
                        day(unsigned(Digits(game.ended, 8, 2)))};
}

std::vector<HistoryRow> OverviewOf(const std::vector<PlayedGame>& history,
                                   const std::vector<KnownGame>& known, sys_days today) {
  std::map<Key, HistoryRow> found;
  DealsOfDays deals;
  std::map<std::string_view, std::map<sys_days, size_t>> dailies;
  for (size_t i = 0; i < history.size(); ++i) {
    HistoryRow& row = found[KeyOf(history[i])];
    row.games.push_back(i);
    if (const auto day = deals.DayOf(history[i])) {
      row.dailies.insert(DayOf(history[i]));
      dailies[history[i].game].emplace(*day, i);
    }
  }
  std::vector<HistoryRow> rows;
  const std::vector<Statistics> all = Summarise(history, known);
  for (size_t i = 0; i < all.size(); ++i) {
    HistoryRow row = std::move(found[KeyOf(all[i])]);
    row.figures = all[i];
    AddLatest(row, history);
    rows.push_back(std::move(row));
    const auto firsts = dailies.find(all[i].game);
    if (firsts == dailies.end() || (i + 1 < all.size() && all[i + 1].game == all[i].game)) continue;
    HistoryRow daily{.daily = true};
    std::vector<PlayedGame> first;
    std::set<sys_days> days;
    for (const auto& [day, game] : firsts->second) {
      days.insert(day);
      daily.games.push_back(game);
      daily.dailies.insert(DayOf(history[game]));
      first.push_back(history[game]);
      // Standard settings may change from version to version; the days go on.
      first.back().limit = first.front().limit;
      first.back().goal = first.front().goal;
      first.back().custom = false;
    }
    daily.figures = Summarise(first, known).front();
    AddLatest(daily, history);
    CountStreaks(daily, days, today);
    rows.push_back(std::move(daily));
  }
  return rows;
}

std::string SettingsOf(const HistoryRow& row) {
  const Statistics& figures = row.figures;
  if (row.daily)
    return "deal of the day, run " + std::to_string(row.streak) + ", longest " + std::to_string(row.longest);
  const std::string text = SettingsText(
      {.game = figures.game, .limit = figures.limit, .goal = figures.goal, .custom = figures.custom});
  return text.starts_with("at ") ? text.substr(3) : text;
}

std::string DurationText(long long seconds) {
  const long long minutes = seconds / 60;
  if (minutes == 0) return std::to_string(seconds) + " s";
  if (minutes < 60) return std::to_string(minutes) + " min";
  return std::to_string(minutes / 60) + " h " + std::to_string(minutes % 60) + " min";
}

std::string TableOf(const std::vector<HistoryRow>& rows) {
  std::string text =
      "game,limit,goal,custom,daily,games,played-out,best,average,median,last-ten,bonus,seconds,streak,longest\r\n";
  const auto orNone = [](const auto& number) { return number ? std::to_string(*number) : std::string(); };
  for (const HistoryRow& row : rows) {
    const Statistics& of = row.figures;
    text += of.game;
    for (const std::string& field :
         {std::to_string(of.limit), orNone(of.goal), std::to_string(of.custom), std::to_string(row.daily),
          std::to_string(of.games), std::to_string(of.playedOut), orNone(of.best), orNone(of.average),
          orNone(of.median), orNone(row.lastTenAverage), std::to_string(of.bonus), std::to_string(of.seconds),
          row.daily ? std::to_string(row.streak) : "", row.daily ? std::to_string(row.longest) : ""})
      text += "," + field;
    text += "\r\n";
  }
  return text;
}
