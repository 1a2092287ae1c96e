#include "window/desktop/results/picture.h"

#include "window/desktop/painting/plates.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/results/charts.h"

namespace results {

namespace {

constexpr double kGap = 10;

}  // namespace

void Paint(QPainter& painter, const Page& page, const QRectF& area, bool strong) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (page.days.empty()) {
    const QRectF plate(area.center() - QPointF(170, 34), QSizeF(340, 68));
    plates::Plate(painter, plate, strong);
    painter.setPen(strong ? QColor(Qt::white) : style::kInk);
    painter.setFont(style::Letters(11, true));
    painter.drawText(plate.adjusted(0, 10, 0, -34), Qt::AlignCenter, "Nothing has been played yet");
    painter.setFont(style::Letters(8));
    painter.drawText(plate.adjusted(0, 36, 0, -8), Qt::AlignCenter,
                     "Play a game to its end, and its score stands here.");
    return painter.restore();
  }
  const QFont large = style::Letters(11, true), small = style::Letters(8);
  painter.setPen(strong ? QColor(Qt::white) : style::kIvory);
  QRectF rest = area.adjusted(kGap, 4, -kGap, -kGap);
  const auto line = [&](const QString& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.drawText(QRectF(rest.topLeft(), QSizeF(rest.width(), metrics.height())), Qt::AlignVCenter,
                     metrics.elidedText(text, Qt::ElideRight, rest.width()));
    rest.setTop(rest.top() + metrics.height());
  };
  line(page.title, large);
  line(page.figures, small);
  line(page.latest, small);
  rest.setTop(rest.top() + 4);
  const double low = std::min(CalendarHeight(), rest.height());
  const QRectF calendar(rest.left(), rest.bottom() - low, rest.width(), low);
  const QRectF charts(rest.topLeft(), QPointF(rest.right(), calendar.top() - kGap));
  const double breadth = (charts.width() - kGap) * 0.6;
  for (const QRectF& plate :
       {QRectF(charts.topLeft(), QSizeF(breadth, charts.height())),
        QRectF(QPointF(charts.left() + breadth + kGap, charts.top()), charts.bottomRight()), calendar})
    plates::Plate(painter, plate, strong);
  PaintScores(painter, page, QRectF(charts.topLeft(), QSizeF(breadth, charts.height())), strong);
  PaintHistogram(painter, page,
                 QRectF(QPointF(charts.left() + breadth + kGap, charts.top()), charts.bottomRight()), strong);
  PaintCalendar(painter, page, calendar, strong);
  painter.restore();
}

}  // namespace results
