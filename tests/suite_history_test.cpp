// The history and what it amounts to; and what ends of games write there.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <numeric>
#include <random>
#include <set>

#include "history/comparison.h"
#include "history/deal_number.h"
#include "history/overview.h"
#include "tests/driver.h"

namespace {

constexpr char kLine[] =
    "2026-11-21T12:00:00+01:00,Sumfall,90,11,1,3,-4200,10,250,999999999,given-up,a-1.rec";

std::string Changed(const std::string& from, const std::string& to) {
  std::string line = kLine;
  return line.replace(line.find(from), from.size(), to);
}

std::vector<PlayedGame> HistoryOf(const TestFolder& folder) {
  return ParseHistory(folder.Read("History.csv"));
}

}  // namespace

TEST(History, DamagedLinesArePassedOver) {
  const auto game = ParseGame(kLine);
  ASSERT_TRUE(game);
  EXPECT_EQ(FormatGame(*game), kLine);
  EXPECT_EQ(*ParseGame(std::string(kLine) + "\r"), *game);
  for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{{"2026-", "2026/"},
                                                                                 {"T12", " 12"},
                                                                                 {"Sumfall", ""},
                                                                                 {"Sumfall", "../x"},
                                                                                 {",90,", ",90 ,"},
                                                                                 {",90,", ",,"},
                                                                                 {",11,", ",x,"},
                                                                                 {",1,3", ",2,3"},
                                                                                 {"-4200", "-4200.5"},
                                                                                 {"-4200", "99999999999"},
                                                                                 {",10,", ",11,"},
                                                                                 {"999999999", "1000000000"},
                                                                                 {"given-up", "given up"},
                                                                                 {"a-1.rec", "a/1.rec"},
                                                                                 {",a-1.rec", ""},
                                                                                 {"a-1.rec", "a,b"}})
    EXPECT_FALSE(ParseGame(Changed(from, to))) << from << " to " << to;
  const std::string file = std::string(kHistoryHeader) + "\r\n\r\nrubbish\r\n" + kLine + "\r\n2026-11-2";
  EXPECT_EQ(ParseHistory(file), std::vector<PlayedGame>{*game});
}

// Against a second reckoning that sorts and counts, on histories as chance has them.
TEST(Statistics, AgreeWithASecondReckoning) {
  std::mt19937 chance(11);
  const auto upTo = [&](int most) { return static_cast<int>(chance() % (most + 1)); };
  const std::vector<KnownGame> known = {{"Sumfall", 2}, {"Fivestack", 3}};
  for (int run = 0; run < 5000; ++run) {
    std::vector<PlayedGame> history(upTo(12));
    for (PlayedGame& game : history)
      game = {.game = known[upTo(1)].name,
              .limit = 30 * (1 + upTo(1)),
              .custom = upTo(1) == 1,
              .rounds = 1 + upTo(3),
              .score = upTo(9) - 4,
              .seconds = upTo(100),
              .end = static_cast<GameEnd>(upTo(3))};
    int games = 0;
    for (const Statistics& one : Summarise(history, known)) {
      std::vector<int> scores;
      int bonus = 0, begun = 0;
      long long seconds = 0;
      double sum = 0;
      for (const PlayedGame& game : history) {
        if (game.game != one.game || game.limit != one.limit || game.custom != one.custom) continue;
        ++begun;
        seconds += game.seconds;
        bonus += game.rounds >= (game.game == "Sumfall" ? 3 : 4);
        if (game.end != GameEnd::Played && game.end != GameEnd::Time) continue;
        scores.push_back(game.score);
        sum += game.score;
      }
      std::ranges::sort(scores);
      games += begun;
      EXPECT_EQ(one.games, begun);
      EXPECT_EQ(one.playedOut, static_cast<int>(scores.size()));
      EXPECT_EQ(one.bonus, bonus);
      EXPECT_EQ(one.seconds, seconds);
      ASSERT_EQ(one.best.has_value(), !scores.empty());
      if (scores.empty()) continue;
      const size_t count = scores.size();
      EXPECT_EQ(*one.best, scores.back());
      EXPECT_EQ(*one.average, std::lrint(sum / static_cast<double>(count)));
      EXPECT_EQ(*one.median, std::lrint((scores[(count - 1) / 2] + scores[count / 2]) / 2.0));
    }
    EXPECT_EQ(games, static_cast<int>(history.size()));
  }
}

TEST(Statistics, AreATableForATerminal) {
  const std::string line = kLine;
  std::vector<PlayedGame> games(2, *ParseGame(kLine));
  games[1].end = GameEnd::Time;
  games[1].custom = false;
  games[1].goal.reset();
  EXPECT_EQ(FormatStatistics(Summarise(games, {{"Sumfall", 2}})),
            "game     limit  goal  custom  games  played-out   best  average  median  bonus  seconds\n"
            "Sumfall     90     -       0      1           1  -4200    -4200   -4200      1      250\n"
            "Sumfall     90    11       1      1           0      -        -       -      1      250\n");
}

TEST(History, AGameIsComparedWithThoseBeforeIt) {
  PlayedGame game{.game = "Spirehold", .limit = 45, .score = 500};
  const auto told = [&](std::vector<int> scores) {
    std::vector<PlayedGame> history(scores.size(), game);
    for (size_t i = 0; i < scores.size(); ++i) history[i].score = scores[i];
    history.push_back(game);
    for (PlayedGame other : {game, game, game}) {  // what isn't compared with it
      history.push_back(other);
      PlayedGame& last = history.back();
      if (history.size() % 3 == 0) last.limit = 60;
      if (history.size() % 3 == 1) last.custom = true;
      if (history.size() % 3 == 2) last.end = GameEnd::GivenUp;
    }
    return HowItCompares(game, history);
  };
  EXPECT_EQ(told({}), "Your first game at 45 seconds");
  EXPECT_EQ(told({499}), "Your best of 2 at 45 seconds");
  EXPECT_EQ(told({500, 1}), "Your second best of 3 at 45 seconds");
  const auto place = [&](int better) {
    const std::string text = told(std::vector<int>(better, 501));
    return text.substr(5, text.find(" best") - 5);
  };
  EXPECT_EQ(place(11) + place(12) + place(20) + place(21) + place(110), "twelfth13th21st22nd111th");
  game.goal = 11;
  game.custom = true;
  EXPECT_EQ(HowItCompares(game, {}), "Your first game at 45 seconds, goal 11, own scoring");
  EXPECT_NE(FormatGame(game).find(SettingsField(game)), std::string::npos);
  game.end = GameEnd::GivenUp;
  EXPECT_EQ(HowItCompares(game, {}), "");
}

namespace {

using std::chrono::days;
using std::chrono::sys_days;

std::string Written(sys_days day) {
  const std::chrono::year_month_day date(day);
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u", int(date.year()), unsigned(date.month()),
                unsigned(date.day()));
  return text;
}

}  // namespace

// The rows that a player sees against a second reckoning, day by day and game by game.
TEST(Overview, AgreesWithASecondReckoning) {
  std::mt19937 chance(23);
  const auto upTo = [&](int most) { return static_cast<int>(chance() % (most + 1)); };
  const std::vector<KnownGame> known = {{"Sumfall", 2}, {"Duopick", 2}};
  const sys_days first = std::chrono::year(2026) / 2 / 20;
  for (int run = 0; run < 5000; ++run) {
    std::vector<PlayedGame> history(upTo(25));
    int minutes = 0;
    for (PlayedGame& game : history) {
      minutes += upTo(1500);
      const sys_days day = first + days(minutes / 1440);
      const int minute = minutes % 1440, offset = upTo(2) * 60 - 60;
      // Local time; its day may be another one than that of UTC.
      const auto local = std::chrono::sys_seconds(day) + std::chrono::minutes(minute + offset);
      const sys_days there = std::chrono::floor<days>(local);
      const int at = (minute + offset + 1440) % 1440;
      char time[48];
      std::snprintf(time, sizeof time, "T%02d:%02d:00%c%02d:00", at / 60, at % 60, offset < 0 ? '-' : '+',
                    std::abs(offset) / 60);
      game = {.ended = Written(there) + time,
              .game = known[upTo(1)].name,
              .limit = 45 + 15 * upTo(1),
              .score = upTo(999),
              .deal = upTo(99),
              .end = static_cast<GameEnd>(upTo(3))};
      if (upTo(2) == 0) game.deal = DealOfTheDay(Written(day - days(upTo(1))), game.game);
    }
    const sys_days today = first + days(minutes / 1440 + upTo(2));
    size_t games = 0;
    std::set<std::string> seen;
    for (const HistoryRow& row : OverviewOf(history, known, today)) {
      EXPECT_EQ(row.games.size(), static_cast<size_t>(row.figures.games));
      std::vector<int> played;
      for (const size_t game : row.games)
        if (history[game].PlayedOut()) played.push_back(history[game].score);
      if (played.size() > 10) played.erase(played.begin(), played.end() - 10);
      EXPECT_EQ(row.lastTen, played);
      if (!played.empty()) {
        EXPECT_EQ(*row.lastTenAverage, std::lrint(std::accumulate(played.begin(), played.end(), 0.0) /
                                                  static_cast<double>(played.size())));
      }
      if (!row.daily) {
        games += row.games.size();
        EXPECT_FALSE(seen.contains(row.figures.game)) << "the deals of the day stand behind all others";
        continue;
      }
      seen.insert(row.figures.game);
      // Each day's first game, looked for day by day.
      std::vector<size_t> firsts;
      int run_ = 0, longest = 0, streak = 0;
      for (sys_days day = first - days(2); day <= today + days(1); day += days(1)) {
        const auto found = std::ranges::find_if(history, [&](const PlayedGame& game) {
          return game.game == row.figures.game && game.deal == DealOfTheDay(Written(day), game.game);
        });
        run_ = found == history.end() ? 0 : run_ + 1;
        longest = std::max(longest, run_);
        if (run_ > 0) firsts.push_back(static_cast<size_t>(found - history.begin()));
        if (day == today - days(1) || (day == today && run_ > 0)) streak = run_;
      }
      EXPECT_EQ(row.games, firsts);
      EXPECT_EQ(row.longest, longest);
      EXPECT_EQ(row.streak, streak);
    }
    EXPECT_EQ(games, history.size());
  }
}

TEST(Overview, TextsAndTable) {
  HistoryRow row;
  row.figures =
      Summarise(
          {{.game = "Sumfall", .limit = 90, .goal = 11, .custom = true, .rounds = 3, .end = GameEnd::Closed}},
          {{"Sumfall", 2}})
          .front();
  EXPECT_EQ(SettingsOf(row), "90 seconds, goal 11, own scoring");
  const std::string table = TableOf({row});
  EXPECT_NE(table.find("\r\nSumfall,90,11,1,0,1,0,,,,,1,0,,\r\n"), std::string::npos) << table;
  row.daily = true;
  row.longest = 9;
  EXPECT_EQ(SettingsOf(row), "deal of the day, run 0, longest 9");
  EXPECT_EQ(DurationText(59) + "|" + DurationText(3599) + "|" + DurationText(7260), "59 s|59 min|2 h 1 min");
}

// Each way in which a game ends, in every game.
TEST(History, EveryGameThatWasBegunHasItsLine) {
  for (const GameEntry& entry : AllGames()) {
    const std::string game(entry.Name()), window = "frm" + game, play = "click " + window + ".cmdPlay\n";
    SCOPED_TRACE(game);
    TestFolder folder;
    Driver driver(folder.Path(), {.seed = 5});
    driver.Do("click frmSelect.cmd" + game + "\n" + play + "advance 4000\nclick " + window +
              ".cmdPause\nadvance 60000\nclick " + window + ".cmdPause\nadvance 1000");
    const long long score = driver.common().CurrentScore;
    driver.Do(play + "answer \"Yes\"\nadvance 10000");
    driver.Do(play);
    for (int i = 0; i < 3000 && driver.InGame(); ++i) driver.Do("advance 1000");
    driver.Do("close frmHiScoreName\nclose frmHighScores\nadvance 9000\n" + play + "advance 1000\nclose " +
              window + "\nanswer \"Yes\"");
    const auto games = HistoryOf(folder);
    ASSERT_EQ(games.size(), 3u);
    EXPECT_EQ(games[0].end, GameEnd::GivenUp);
    EXPECT_EQ(games[0].seconds, 5);
    EXPECT_EQ(games[0].score, score);
    EXPECT_EQ(games[0].rounds, 1);
    EXPECT_EQ(games[1].end, GameEnd::Time);
    EXPECT_EQ(games[1].seconds, 1ll * games[1].rounds * games[1].limit);
    EXPECT_EQ(games[1].rounds, entry.rounds);
    EXPECT_EQ(games[2].end, GameEnd::Closed);
    EXPECT_EQ(games[2].seconds, 1);
    for (const PlayedGame& each : games) {
      EXPECT_EQ(each.game, game);
      EXPECT_EQ(each.goal.has_value(), game == "Sumfall");
      EXPECT_EQ(each.deal, 0);
    }
  }
}
