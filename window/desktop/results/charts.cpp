#include "window/desktop/results/charts.h"

#include <QLocale>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "window/desktop/painting/style.h"
#include "window/text.h"

namespace results {

namespace {

constexpr double kMargin = 10, kTitle = 22, kCell = 10, kPitch = 12;

struct Colours {
  explicit Colours(bool strong)
      : ink(strong ? QColor(Qt::white) : style::kInk),
        faint(strong ? QColor(0x80, 0x80, 0x80) : QColor(0, 0, 0, 38)),
        body(strong ? QColor(0xc8, 0xc8, 0xc8) : QColor(0x1f, 0x6c, 0x4a)),
        line(strong ? style::kStrongMark : QColor(0xb0, 0x3a, 0x2e)),
        mark(strong ? style::kStrongMark : QColor(0xe8, 0xb9, 0x3a)),
        edge(strong ? QColor(Qt::black) : QColor(0x5c, 0x43, 0x0c)) {}
  QColor ink, faint, body, line, mark, edge;
};

QString Number(long long value) { return QString::fromStdString(FormatNumber(value)); }

QString DayText(QDate day) {
  return QLocale(QLocale::English, QLocale::UnitedKingdom).toString(day, "d MMM yyyy");
}

// 1, 2 or 5 with zeros behind it, and no smaller than that.
long long RoundStep(double least) {
  for (long long power = 1;; power *= 10)
    for (const int figure : {1, 2, 5})
      if (static_cast<double>(figure * power) >= least) return figure * power;
}

// Scores that are all alike still stand on a scale that says something.
double LeastStep(int score) { return std::max(1.0, std::abs(score) / 20.0); }

long long FloorTo(long long value, long long step) {
  return (value - ((value % step) + step) % step) / step * step;
}

void Title(QPainter& painter, const QRectF& plate, const QString& text, const Colours& colours) {
  painter.setFont(style::Letters(8, true));
  painter.setPen(colours.ink);
  painter.drawText(QRectF(plate.left() + kMargin, plate.top() + 4, plate.width() - 2 * kMargin, kTitle - 4),
                   Qt::AlignVCenter, text);
  painter.setFont(style::Letters(8));
}

void Nothing(QPainter& painter, const QRectF& plate, const Colours& colours) {
  painter.setPen(colours.ink);
  painter.drawText(plate, Qt::AlignCenter, "No game was played out yet");
}

void Diamond(QPainter& painter, QPointF at, double reach, const Colours& colours) {
  painter.setPen(QPen(colours.edge, 1));
  painter.setBrush(colours.mark);
  painter.drawPolygon(QPolygonF{at - QPointF(0, reach), at + QPointF(reach, 0), at + QPointF(0, reach),
                                at - QPointF(reach, 0)});
}

// What the signs of the plot mean, from the right.
void Legend(QPainter& painter, const QRectF& plate, size_t averaged, const Colours& colours) {
  const QFontMetricsF metrics(painter.font());
  const double y = plate.top() + 4 + (kTitle - 4) / 2;
  double right = plate.right() - kMargin;
  const auto text = [&](const QString& words) {
    right -= metrics.horizontalAdvance(words);
    painter.setPen(colours.ink);
    painter.drawText(QPointF(right, y + metrics.ascent() / 2 - 1.5), words);
    right -= 10;
  };
  text("record");
  Diamond(painter, {right + 2, y}, 4, colours);
  right -= 14;
  text(QString("mean of %1").arg(averaged));
  painter.setPen(QPen(colours.line, 2));
  painter.drawLine(QPointF(right - 8, y), QPointF(right + 5, y));
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

void PaintScores(QPainter& painter, const Page& page, const QRectF& plate, bool strong) {
  const Colours colours(strong);
  Title(painter, plate, "Scores", colours);
  const auto& scores = page.scores;
  if (scores.empty()) return Nothing(painter, plate, colours);
  const size_t averaged = std::max<size_t>(10, scores.size() / 20);
  Legend(painter, plate, averaged, colours);
  const QFontMetricsF metrics(painter.font());
  const auto [least, best] = std::ranges::minmax_element(scores, {}, &Page::Score::score);
  const double high = plate.height() - kTitle - metrics.height() - 12;
  const long long step = RoundStep(
      std::max(LeastStep(best->score), (1.0 * best->score - least->score) / std::max(1.0, high / 32)));
  const long long bottom = FloorTo(least->score, step);
  const long long top = std::max(bottom + step, FloorTo(best->score + step - 1, step));
  const double scale =
      std::max(metrics.horizontalAdvance(Number(bottom)), metrics.horizontalAdvance(Number(top)));
  const QRectF field(plate.left() + kMargin + scale + 6, plate.top() + kTitle + 6,
                     plate.width() - 2 * kMargin - scale - 10, high);
  const auto yOf = [&](double score) {
    return field.bottom() -
           (score - static_cast<double>(bottom)) / static_cast<double>(top - bottom) * field.height();
  };
  const double count = static_cast<double>(scores.size());
  const auto xOf = [&](size_t i) {
    return scores.size() == 1 ? field.center().x()
                              : field.left() + static_cast<double>(i) / (count - 1) * field.width();
  };
  for (long long value = bottom; value <= top; value += step) {
    painter.setPen(QPen(colours.faint, 1));
    const double y = std::round(yOf(static_cast<double>(value))) + 0.5;
    painter.drawLine(QPointF(field.left(), y), QPointF(field.right(), y));
    painter.setPen(colours.ink);
    painter.drawText(QRectF(plate.left() + kMargin, y - 10, scale, 20), Qt::AlignRight | Qt::AlignVCenter,
                     Number(value));
  }
  const QRectF days(field.left(), field.bottom() + 4, field.width(), metrics.height());
  painter.drawText(days, Qt::AlignLeft, DayText(scores.front().day));
  if (scores.back().day != scores.front().day)
    painter.drawText(days, Qt::AlignRight, DayText(scores.back().day));
  // Too many for dots: for each pixel the span of its scores.
  if (count > field.width()) {
    QColor span = colours.body;
    span.setAlpha(strong ? 160 : 110);
    painter.setPen(QPen(span, 1.2));
    for (double x = 0; x < field.width(); ++x) {
      const auto at = [&](double pixel) {
        return scores.begin() + static_cast<long>(pixel / field.width() * count);
      };
      const auto [low, up] =
          std::minmax_element(at(x), std::max(at(x) + 1, at(std::min(x + 1, field.width()))),
                              [](const auto& a, const auto& b) { return a.score < b.score; });
      painter.drawLine(QPointF(field.left() + x, yOf(low->score) + 0.5),
                       QPointF(field.left() + x, yOf(up->score) - 0.5));
    }
  } else {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.body);
    const double radius = count > 150 ? 1.6 : 2.6;
    for (size_t i = 0; i < scores.size(); ++i)
      painter.drawEllipse(QPointF(xOf(i), yOf(scores[i].score)), radius, radius);
  }
  const std::vector<double> means = RunningMeans(scores, averaged);
  const size_t stride = std::max<size_t>(1, scores.size() / 500);
  QPolygonF line;
  for (size_t i = 0; i < means.size(); i += stride) line << QPointF(xOf(i), yOf(means[i]));
  painter.setBrush(Qt::NoBrush);
  if (strong) {
    painter.setPen(QPen(Qt::black, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
  }
  painter.setPen(QPen(colours.line, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(line);
  for (const size_t i : RecordsOf(scores)) Diamond(painter, {xOf(i), yOf(scores[i].score)}, 4.5, colours);
}

void PaintHistogram(QPainter& painter, const Page& page, const QRectF& plate, bool strong) {
  const Colours colours(strong);
  Title(painter, plate, "How often", colours);
  if (page.scores.empty()) return Nothing(painter, plate, colours);
  const QFontMetricsF metrics(painter.font());
  const Bins bins = BinsOf(page.scores, std::clamp(static_cast<int>(plate.width() / 18), 6, 20));
  const QRectF field(plate.left() + kMargin, plate.top() + kTitle + metrics.height(),
                     plate.width() - 2 * kMargin, plate.height() - kTitle - 2 * metrics.height() - 12);
  const double breadth = field.width() / std::max(6.0, static_cast<double>(bins.counts.size()));
  const double left = field.center().x() - breadth * static_cast<double>(bins.counts.size()) / 2;
  const int most = std::ranges::max(bins.counts);
  const int last = page.scores.back().score;
  painter.setPen(QPen(colours.ink, 1));
  painter.drawLine(QPointF(field.left(), field.bottom() + 0.5), QPointF(field.right(), field.bottom() + 0.5));
  for (size_t i = 0; i < bins.counts.size(); ++i) {
    const double high = field.height() * bins.counts[i] / most;
    const QRectF bar(left + breadth * static_cast<double>(i) + 1, field.bottom() - high, breadth - 2, high);
    const bool marked = i == bins.Of(last);
    painter.setPen(marked ? QPen(colours.edge, 1) : QPen(Qt::NoPen));
    painter.setBrush(marked ? colours.mark : colours.body);
    if (bins.counts[i] > 0) painter.drawRect(bar);
    painter.setPen(colours.ink);
    if (bins.counts[i] == most || marked) {
      const QString text = Number(bins.counts[i]);
      const double wide = std::max(breadth, metrics.horizontalAdvance(text) + 2);
      painter.drawText(
          QRectF(bar.center().x() - wide / 2, bar.top() - metrics.height(), wide, metrics.height()),
          Qt::AlignCenter, text);
    }
  }
  const QRectF below(field.left(), field.bottom() + 4, field.width(), metrics.height());
  const long long end = bins.from + bins.step * static_cast<long long>(bins.counts.size());
  painter.drawText(below, Qt::AlignLeft, Number(bins.from));
  painter.drawText(below, Qt::AlignRight, Number(end));
  const QString place = "last: " + Number(last);
  const double wide = metrics.horizontalAdvance(place);
  painter.drawText(QPointF(plate.right() - kMargin - wide,
                           plate.top() + 4 + (kTitle - 4) / 2 + metrics.ascent() / 2 - 1.5),
                   place);
  painter.setPen(QPen(colours.edge, 1));
  painter.setBrush(colours.mark);
  painter.drawRect(QRectF(plate.right() - kMargin - wide - 13, plate.top() + 9, 9, 9));
}

double CalendarHeight() { return kTitle + 7 * kPitch + QFontMetricsF(style::Letters(8)).height() + 8; }

// A column a week, the newest at the right; Monday on top.
void PaintCalendar(QPainter& painter, const Page& page, const QRectF& plate, bool strong) {
  const Colours colours(strong);
  painter.setFont(style::Letters(8));
  const QFontMetricsF metrics(painter.font());
  const double names = metrics.horizontalAdvance("Wed") + 8;
  const double top = plate.top() + kTitle + metrics.height();
  const QDate monday = page.today.addDays(1 - page.today.dayOfWeek());
  const int weeks = std::clamp(static_cast<int>((plate.width() - 2 * kMargin - names) / kPitch), 1, 53);
  const double left = plate.left() + kMargin + names;
  const QDate first = monday.addDays(-7 * (weeks - 1));
  std::map<QDate, int> played;
  for (const QDate day : page.days)
    if (day >= first) ++played[day];
  const std::set<QDate> dailies(page.dailies.begin(), page.dailies.end());
  int games = 0;
  for (const auto& [day, count] : played) games += count;
  const auto counted = [](qsizetype count, const char* what) {
    return QString("%1 %2%3").arg(Number(count), what, count == 1 ? "" : "s");
  };
  Title(painter, plate,
        counted(games, "game") + " on " + counted(static_cast<qsizetype>(played.size()), "day") + " since " +
            DayText(first),
        colours);
  if (!dailies.empty()) {
    const QString text = "deal of the day";
    const QPointF at(plate.right() - kMargin - metrics.horizontalAdvance(text),
                     plate.top() + 4 + (kTitle - 4) / 2);
    painter.setFont(style::Letters(8));
    painter.setPen(colours.ink);
    painter.drawText(at + QPointF(0, metrics.ascent() / 2 - 1.5), text);
    painter.setPen(QPen(colours.mark, 2));
    painter.setBrush(colours.body);
    painter.drawRoundedRect(QRectF(at - QPointF(15, 4.5), QSizeF(9, 9)), 2, 2);
  }
  painter.setPen(colours.ink);
  for (const int row : {0, 2, 4})
    painter.drawText(QRectF(plate.left() + kMargin, top + row * kPitch - 4, names, kCell + 8),
                     Qt::AlignVCenter, QLocale(QLocale::English).dayName(row + 1, QLocale::ShortFormat));
  double free = left;
  for (int week = 0; week < weeks; ++week) {
    const double x = left + week * kPitch;
    const QDate begins = first.addDays(7 * week);
    if ((begins.day() <= 7) && x >= free) {
      const QString month = QLocale(QLocale::English).monthName(begins.month(), QLocale::ShortFormat);
      painter.setPen(colours.ink);
      painter.drawText(QPointF(x, top - 4), month);
      free = x + metrics.horizontalAdvance(month) + 6;
    }
    for (int row = 0; row < 7; ++row) {
      const QDate day = begins.addDays(row);
      if (day > page.today) continue;
      const QRectF cell(x, top + row * kPitch, kCell, kCell);
      const auto found = played.find(day);
      const int count = found == played.end() ? 0 : found->second;
      const int level = count == 0 ? 0 : count == 1 ? 1 : count < 4 ? 2 : count < 8 ? 3 : 4;
      painter.setPen(strong ? QPen(colours.faint, 1) : QPen(Qt::NoPen));
      painter.setBrush(strong ? QColor(Qt::transparent) : QColor(0, 0, 0, 24));
      painter.drawRoundedRect(cell, 2, 2);
      if (level == 0) continue;
      QColor fill = colours.body;
      if (!strong) fill.setAlpha(60 + 195 * level / 4);
      const double inset = strong ? (4 - level) * 1.1 : 0;
      painter.setPen(dailies.contains(day) ? QPen(colours.mark, 2) : QPen(Qt::NoPen));
      painter.setBrush(fill);
      painter.drawRoundedRect(cell.adjusted(inset, inset, -inset, -inset), 2, 2);
    }
  }
}

}  // namespace results
