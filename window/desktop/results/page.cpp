#include "window/desktop/results/page.h"

#include "window/text.h"

namespace results {

namespace {

QString Number(long long value) { return QString::fromStdString(FormatNumber(value)); }

QDate ToDate(std::chrono::sys_days day) {
  const std::chrono::year_month_day date(day);
  return {int(date.year()), int(unsigned(date.month())), int(unsigned(date.day()))};
}

QString FiguresOf(const HistoryRow& row) {
  const Statistics& of = row.figures;
  QStringList parts{QString("%1 %2, %3 played out")
                        .arg(Number(of.games), of.games == 1 ? "game" : "games", Number(of.playedOut))};
  if (of.best)
    parts << "best " + Number(*of.best) << "average " + Number(*of.average) << "median " + Number(*of.median);
  parts << QString("%1 bonus %2").arg(of.bonus).arg(of.bonus == 1 ? "round" : "rounds")
        << QString::fromStdString(DurationText(of.seconds));
  return parts.join("  \u00b7  ");
}

QString LatestOf(const HistoryRow& row) {
  QStringList scores;
  for (const int score : row.lastTen) scores << Number(score);
  const QString what = scores.size() == 1 ? "The last: " : QString("The last %1: ").arg(scores.size());
  return scores.empty() ? "" : what + scores.join("   ");
}

}  // namespace

Page PageOf(const HistoryRow& row, const std::vector<PlayedGame>& history, QDate today) {
  Page page;
  page.title = QString::fromStdString(row.figures.game + ", " + SettingsOf(row));
  page.figures = FiguresOf(row);
  page.latest = LatestOf(row);
  page.today = today;
  for (const size_t index : row.games) {
    const PlayedGame& game = history[index];
    const QDate day = ToDate(DayOf(game));
    page.days.push_back(day);
    if (game.PlayedOut()) page.scores.push_back({game.score, day});
  }
  for (const auto day : row.dailies) page.dailies.push_back(ToDate(day));
  return page;
}

QString InWords(const Page& page) {
  if (page.days.empty())
    return "Nothing has been played yet. Play a game to its end, and its score stands here.";
  return page.title + ". " + page.figures + ". " + page.latest;
}

}  // namespace results
