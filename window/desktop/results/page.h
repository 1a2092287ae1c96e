// What there is to show of one row of the statistics.
#pragma once

#include <QDate>
#include <QString>
#include <vector>

#include "history/overview.h"

namespace results {

struct Page {
  QString title, figures, latest;  // the lines above
  struct Score {
    int score;
    QDate day;
  };
  std::vector<Score> scores;   // of games that were played out, in their order
  std::vector<QDate> days;     // a day for each game, in their order
  std::vector<QDate> dailies;  // days with a game by the deal of a day
  QDate today;
};

Page PageOf(const HistoryRow& row, const std::vector<PlayedGame>& history, QDate today);

// The page in words.
QString InWords(const Page& page);

}  // namespace results
