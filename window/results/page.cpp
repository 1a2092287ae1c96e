#include "window/results/page.h"

#include "window/text.h"

using std::chrono::sys_days;

namespace results {

namespace {

std::string Counted(long long count, const char* what) {
  return FormatNumber(count) + " " + what + (count == 1 ? "" : "s");
}

std::string FiguresOf(const HistoryRow& row) {
  constexpr char kBetween[] = "  \u00b7  ";
  const Statistics& of = row.figures;
  std::string text = Counted(of.games, "game") + ", " + FormatNumber(of.playedOut) + " played out";
  if (of.best)
    text += kBetween + ("best " + FormatNumber(*of.best)) + kBetween + "average " +
            FormatNumber(*of.average) + kBetween + "median " + FormatNumber(*of.median);
  return text + kBetween + Counted(of.bonus, "bonus round") + kBetween + DurationText(of.seconds);
}

std::string LatestOf(const HistoryRow& row) {
  if (row.lastTen.empty()) return "";
  std::string text =
      row.lastTen.size() == 1 ? "The last:" : "The last " + std::to_string(row.lastTen.size()) + ":";
  for (const int score : row.lastTen) text += (text.ends_with(':') ? " " : "   ") + FormatNumber(score);
  return text;
}

}  // namespace

Page PageOf(const HistoryRow& row, const std::vector<PlayedGame>& history, sys_days today) {
  Page page{.title = row.figures.game + ", " + SettingsOf(row),
            .figures = FiguresOf(row),
            .latest = LatestOf(row),
            .dailies = {row.dailies.begin(), row.dailies.end()},
            .today = today};
  for (const size_t index : row.games) {
    const PlayedGame& game = history[index];
    const sys_days day = DayOf(game);
    page.days.push_back(day);
    if (game.PlayedOut()) page.scores.push_back({game.score, day});
  }
  return page;
}

std::string InWords(const Page& page) {
  if (page.days.empty()) return std::string(kNothingYet) + ". " + kWhatToDo;
  return page.title + ". " + page.figures + ". " + page.latest;
}

std::vector<std::string> CellsOf(const HistoryRow& row) {
  const Statistics& of = row.figures;
  const auto shown = [](const std::optional<long long>& number) {
    return number ? FormatNumber(*number) : "\u2013";
  };
  return {of.game,
          SettingsOf(row),
          FormatNumber(of.games),
          FormatNumber(of.playedOut),
          shown(of.best),
          shown(of.average),
          shown(of.median),
          shown(row.lastTenAverage),
          FormatNumber(of.bonus),
          DurationText(of.seconds)};
}

size_t NewestRow(const std::vector<HistoryRow>& rows, const std::string& game) {
  size_t chosen = 0, newest = 0;
  for (size_t i = 0; i < rows.size(); ++i) {
    const HistoryRow& row = rows[i];
    const bool asked = game.empty() || row.figures.game == game;
    if (!asked || row.daily || row.games.back() < newest) continue;
    newest = row.games.back();
    chosen = i;
  }
  return chosen;
}

}  // namespace results
