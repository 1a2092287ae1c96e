// The three pictures of a page, each on its plate.
#pragma once

#include "window/results/drawing.h"
#include "window/results/page.h"

namespace results {

void DrawScores(Drawing& drawing, const Page& page, const Area& plate);
void DrawHistogram(Drawing& drawing, const Page& page, const Area& plate);
void DrawCalendar(Drawing& drawing, const Page& page, const Area& plate);
// What the calendar's plate needs.
double CalendarHeight(const Letters& letters);

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
