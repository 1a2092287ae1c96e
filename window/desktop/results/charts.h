// The three pictures of a page, each on its plate.
#pragma once

#include <QPainter>

#include "window/desktop/results/page.h"

namespace results {

void PaintScores(QPainter& painter, const Page& page, const QRectF& plate, bool strong);
void PaintHistogram(QPainter& painter, const Page& page, const QRectF& plate, bool strong);
void PaintCalendar(QPainter& painter, const Page& page, const QRectF& plate, bool strong);
// What the calendar's plate needs.
double CalendarHeight();

// Bins of round numbers that hold all scores; the first begins at `from`.
struct Bins {
  long long from = 0, step = 1;
  std::vector<int> counts;
  size_t Of(long long score) const { return static_cast<size_t>((score - from) / step); }
};
Bins BinsOf(const std::vector<Page::Score>& scores, int most);
// Of each score the mean of so many up to it.
std::vector<double> RunningMeans(const std::vector<Page::Score>& scores, size_t count);
// Which scores were the highest so far; the first isn't one yet.
std::vector<size_t> RecordsOf(const std::vector<Page::Score>& scores);

}  // namespace results
