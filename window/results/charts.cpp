#include "window/results/charts.h"

#include <cmath>
#include <map>
#include <set>

#include "window/results/days.h"
#include "window/text.h"

using std::chrono::days;
using std::chrono::sys_days;

namespace results {

namespace {

using Across = Shape::Across;
using Down = Shape::Down;

constexpr double kMargin = 10, kTitle = 22, kCell = 10, kPitch = 12;

// 1, 2 or 5 with zeros behind it, and no smaller than that.
long long RoundStep(double least) {
  for (long long power = 1;; power *= 10)
    for (const int figure : {1, 2, 5})
      if (static_cast<double>(figure * power) >= least) return figure * power;
}

// Scores that are all alike still stand on a scale that says something.
double LeastStep(int score) { return std::max(1.0, std::abs(1.0 * score) / 20); }

long long FloorTo(long long value, long long step) {
  return (value - ((value % step) + step) % step) / step * step;
}

void Title(Drawing& drawing, const Area& plate, const std::string& text) {
  drawing.Write({plate.left + kMargin, plate.top + 4, plate.width - 2 * kMargin, kTitle - 4}, text,
                Across::Left, Down::Middle, Colour::Ink, Font::Strong);
}

// The middle of the title's line, and where letters lie on it.
double MiddleOfTitle(const Area& plate) { return plate.top + 4 + (kTitle - 4) / 2; }
double LineOfTitle(const Drawing& drawing, const Area& plate) {
  return MiddleOfTitle(plate) + drawing.letters.Ascent(Font::Small) / 2 - 1.5;
}

void Nothing(Drawing& drawing, const Area& plate) {
  drawing.Write(plate, "No game was played out yet", Across::Middle, Down::Middle);
}

void Diamond(Drawing& drawing, Point at, double reach) {
  drawing.shapes.push_back(
      {.kind = Shape::Kind::Polygon,
       .points = {{at.x, at.y - reach}, {at.x + reach, at.y}, {at.x, at.y + reach}, {at.x - reach, at.y}},
       .fill = {Colour::Mark},
       .pen = {Colour::Edge}});
}

// What the signs of the plot mean, from the right.
void Legend(Drawing& drawing, const Area& plate, size_t averaged) {
  const double y = MiddleOfTitle(plate);
  double right = plate.Right() - kMargin;
  const auto write = [&](const std::string& words) {
    right -= drawing.letters.Breadth(Font::Small, words);
    drawing.Write(Point{right, LineOfTitle(drawing, plate)}, words);
    right -= 10;
  };
  write("record");
  Diamond(drawing, {right + 2, y}, 4);
  right -= 14;
  write("mean of " + std::to_string(averaged));
  drawing.Line({right - 8, y}, {right + 5, y}, {Colour::Line}, 2);
}

// From a score to the height at which it stands, and from its place to where that is.
struct Field {
  Area area;
  double bottom, top;  // scores
  size_t count;

  double Y(double score) const { return area.Bottom() - (score - bottom) / (top - bottom) * area.height; }
  double X(size_t i) const {
    return count == 1 ? area.Middle()
                      : area.left + static_cast<double>(i) / (static_cast<double>(count) - 1) * area.width;
  }
};

// A dot for each score; where there are too many, for each pixel the span of its scores.
void DrawDots(Drawing& drawing, const std::vector<Page::Score>& scores, const Field& field) {
  const double count = static_cast<double>(scores.size()), width = field.area.width;
  if (count <= width) {
    const double radius = count > 150 ? 1.6 : 2.6;
    for (size_t i = 0; i < scores.size(); ++i)
      drawing.shapes.push_back({.kind = Shape::Kind::Dot,
                                .points = {{field.X(i), field.Y(scores[i].score)}},
                                .fill = {Colour::Body},
                                .round = radius});
    return;
  }
  for (double x = 0; x < width; ++x) {
    const auto at = [&](double pixel) { return scores.begin() + static_cast<long>(pixel / width * count); };
    const auto [low, up] =
        std::minmax_element(at(x), std::max(at(x) + 1, at(std::min(x + 1, width))),
                            [](const auto& a, const auto& b) { return a.score < b.score; });
    drawing.Line({field.area.left + x, field.Y(low->score) + 0.5},
                 {field.area.left + x, field.Y(up->score) - 0.5}, {Colour::Body, drawing.strong ? 160 : 110},
                 1.2);
  }
}

void DrawMeans(Drawing& drawing, const std::vector<double>& means, const Field& field) {
  const size_t stride = std::max<size_t>(1, means.size() / 500);
  Shape curve{.kind = Shape::Kind::Curve};
  for (size_t i = 0; i < means.size(); i += stride) curve.points.push_back({field.X(i), field.Y(means[i])});
  if (drawing.strong) {
    curve.pen = {Colour::Edge};
    curve.breadth = 4;
    drawing.shapes.push_back(curve);
  }
  curve.pen = {Colour::Line};
  curve.breadth = 2;
  drawing.shapes.push_back(std::move(curve));
}

// A day of the calendar: the more games, the stronger.
void DrawDay(Drawing& drawing, const Area& cell, int games, bool daily) {
  const bool strong = drawing.strong;
  drawing.Box(cell, {Colour::Hollow}, strong ? Tint{Colour::Faint} : Tint{}, 1, 2);
  if (games == 0) return;
  const int level = games == 1 ? 1 : games < 4 ? 2 : games < 8 ? 3 : 4;
  const double inset = strong ? (4 - level) * 1.1 : 0;
  drawing.Box({cell.left + inset, cell.top + inset, cell.width - 2 * inset, cell.height - 2 * inset},
              {Colour::Body, strong ? 255 : 60 + 195 * level / 4}, daily ? Tint{Colour::Mark} : Tint{}, 2, 2);
}

}  // namespace

Bins BinsOf(const std::vector<Page::Score>& scores, int most) {
  const auto [least, best] = std::ranges::minmax_element(scores, {}, &Page::Score::score);
  Bins bins;
  bins.step = RoundStep(std::max(LeastStep(best->score), (1.0 * best->score - least->score + 1) / most));
  bins.from = FloorTo(least->score, bins.step);
  bins.counts.resize(bins.Of(best->score) + 1);
  for (const Page::Score& each : scores) ++bins.counts[bins.Of(each.score)];
  return bins;
}

std::vector<double> RunningMeans(const std::vector<Page::Score>& scores, size_t count) {
  std::vector<double> means;
  long long sum = 0;
  for (size_t i = 0; i < scores.size(); ++i) {
    sum += scores[i].score;
    if (i >= count) sum -= scores[i - count].score;
    means.push_back(static_cast<double>(sum) / static_cast<double>(std::min(i + 1, count)));
  }
  return means;
}

std::vector<size_t> RecordsOf(const std::vector<Page::Score>& scores) {
  std::vector<size_t> records;
  int best = scores.empty() ? 0 : scores.front().score;
  for (size_t i = 1; i < scores.size(); ++i)
    if (scores[i].score > best) {
      best = scores[i].score;
      records.push_back(i);
    }
  return records;
}

void DrawScores(Drawing& drawing, const Page& page, const Area& plate) {
  Title(drawing, plate, "Scores");
  const auto& scores = page.scores;
  if (scores.empty()) return Nothing(drawing, plate);
  const size_t averaged = std::max<size_t>(10, scores.size() / 20);
  Legend(drawing, plate, averaged);
  const Letters& letters = drawing.letters;
  const double line = letters.Height(Font::Small);
  const auto [least, best] = std::ranges::minmax_element(scores, {}, &Page::Score::score);
  const double high = plate.height - kTitle - line - 12;
  const long long step = RoundStep(
      std::max(LeastStep(best->score), (1.0 * best->score - least->score) / std::max(1.0, high / 32)));
  const long long bottom = FloorTo(least->score, step);
  const long long top = std::max(bottom + step, FloorTo(best->score + step - 1, step));
  const double scale = std::max(letters.Breadth(Font::Small, FormatNumber(bottom)),
                                letters.Breadth(Font::Small, FormatNumber(top)));
  const Area area{plate.left + kMargin + scale + 6, plate.top + kTitle + 6,
                  plate.width - 2 * kMargin - scale - 10, high};
  const Field field{area, static_cast<double>(bottom), static_cast<double>(top), scores.size()};
  for (long long value = bottom; value <= top; value += step) {
    const double y = std::round(field.Y(static_cast<double>(value))) + 0.5;
    drawing.Line({area.left, y}, {area.Right(), y}, {Colour::Faint}, 1);
    drawing.Write({plate.left + kMargin, y - 10, scale, 20}, FormatNumber(value), Across::Right,
                  Down::Middle);
  }
  const Area below{area.left, area.Bottom() + 4, area.width, line};
  drawing.Write(below, ShortDay(scores.front().day), Across::Left, Down::Top);
  if (scores.back().day != scores.front().day)
    drawing.Write(below, ShortDay(scores.back().day), Across::Right, Down::Top);
  DrawDots(drawing, scores, field);
  DrawMeans(drawing, RunningMeans(scores, averaged), field);
  for (const size_t i : RecordsOf(scores)) Diamond(drawing, {field.X(i), field.Y(scores[i].score)}, 4.5);
}

void DrawHistogram(Drawing& drawing, const Page& page, const Area& plate) {
  Title(drawing, plate, "How often");
  if (page.scores.empty()) return Nothing(drawing, plate);
  const Letters& letters = drawing.letters;
  const double line = letters.Height(Font::Small);
  const Bins bins = BinsOf(page.scores, std::clamp(static_cast<int>(plate.width / 18), 6, 20));
  const Area field{plate.left + kMargin, plate.top + kTitle + line, plate.width - 2 * kMargin,
                   plate.height - kTitle - 2 * line - 12};
  const double breadth = field.width / std::max(6.0, static_cast<double>(bins.counts.size()));
  const double left = field.Middle() - breadth * static_cast<double>(bins.counts.size()) / 2;
  const int most = std::ranges::max(bins.counts);
  const int last = page.scores.back().score;
  drawing.Line({field.left, field.Bottom() + 0.5}, {field.Right(), field.Bottom() + 0.5}, {Colour::Ink}, 1);
  for (size_t i = 0; i < bins.counts.size(); ++i) {
    const double high = field.height * bins.counts[i] / most;
    const Area bar{left + breadth * static_cast<double>(i) + 1, field.Bottom() - high, breadth - 2, high};
    const bool marked = i == bins.Of(last);
    if (bins.counts[i] > 0)
      drawing.Box(bar, {marked ? Colour::Mark : Colour::Body}, marked ? Tint{Colour::Edge} : Tint{}, 1, 0);
    if (bins.counts[i] != most && !marked) continue;
    const std::string text = FormatNumber(bins.counts[i]);
    const double wide = std::max(breadth, letters.Breadth(Font::Small, text) + 2);
    drawing.Write({bar.Middle() - wide / 2, bar.top - line, wide, line}, text, Across::Middle, Down::Middle);
  }
  const Area below{field.left, field.Bottom() + 4, field.width, line};
  const long long end = bins.from + bins.step * static_cast<long long>(bins.counts.size());
  drawing.Write(below, FormatNumber(bins.from), Across::Left, Down::Top);
  drawing.Write(below, FormatNumber(end), Across::Right, Down::Top);
  const std::string place = "last: " + FormatNumber(last);
  const double wide = letters.Breadth(Font::Small, place);
  drawing.Write(Point{plate.Right() - kMargin - wide, LineOfTitle(drawing, plate)}, place);
  drawing.Box({plate.Right() - kMargin - wide - 13, plate.top + 9, 9, 9}, {Colour::Mark}, {Colour::Edge}, 1,
              0);
}

double CalendarHeight(const Letters& letters) {
  return kTitle + 7 * kPitch + letters.Height(Font::Small) + 8;
}

// A column a week, the newest at the right; Monday on top.
void DrawCalendar(Drawing& drawing, const Page& page, const Area& plate) {
  const Letters& letters = drawing.letters;
  const double names = letters.Breadth(Font::Small, "Wed") + 8;
  const double top = plate.top + kTitle + letters.Height(Font::Small);
  const double left = plate.left + kMargin + names;
  const int weeks = std::clamp(static_cast<int>((plate.width - 2 * kMargin - names) / kPitch), 1, 53);
  const unsigned sinceMonday = std::chrono::weekday(page.today).iso_encoding() - 1;
  const sys_days first = page.today - days(sinceMonday) - days(7 * (weeks - 1));
  std::map<sys_days, int> played;
  int games = 0;
  for (const sys_days day : page.days)
    if (day >= first) ++played[day], ++games;
  const std::set<sys_days> dailies(page.dailies.begin(), page.dailies.end());
  const auto counted = [](size_t count, const char* what) {
    return FormatNumber(static_cast<long long>(count)) + " " + what + (count == 1 ? "" : "s");
  };
  const std::string text = "deal of the day", since = " since " + ShortDay(first);
  const double x =
      dailies.empty() ? plate.Right() : plate.Right() - kMargin - letters.Breadth(Font::Small, text);
  std::string title = counted(static_cast<size_t>(games), "game") + " on " + counted(played.size(), "day");
  const double room = x - 20 - plate.left - kMargin;
  if (letters.Breadth(Font::Strong, title + since) <= room) title += since;
  Title(drawing, plate, title);
  if (!dailies.empty()) {
    drawing.Write(Point{x, LineOfTitle(drawing, plate)}, text);
    drawing.Box({x - 15, MiddleOfTitle(plate) - 4.5, 9, 9}, {Colour::Body}, {Colour::Mark}, 2, 2);
  }
  constexpr const char* kNames[] = {"Mon", "", "Wed", "", "Fri"};
  for (const int row : {0, 2, 4})
    drawing.Write({plate.left + kMargin, top + row * kPitch - 4, names, kCell + 8}, kNames[row], Across::Left,
                  Down::Middle);
  double free = left;
  for (int week = 0; week < weeks; ++week) {
    const double x = left + week * kPitch;
    const sys_days begins = first + days(7 * week);
    if (unsigned(std::chrono::year_month_day(begins).day()) <= 7 && x >= free) {
      const std::string month(MonthName(begins), 3);
      drawing.Write(Point{x, top - 4}, month);
      free = x + letters.Breadth(Font::Small, month) + 6;
    }
    for (int row = 0; row < 7; ++row) {
      const sys_days day = begins + days(row);
      if (day > page.today) continue;
      const auto found = played.find(day);
      DrawDay(drawing, {x, top + row * kPitch, kCell, kCell}, found == played.end() ? 0 : found->second,
              dailies.contains(day));
    }
  }
}

}  // namespace results
