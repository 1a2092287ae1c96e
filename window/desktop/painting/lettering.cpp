#include "window/desktop/painting/lettering.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

#include "window/desktop/painting/style.h"

namespace {

// Of a line, seen from its baseline: as much as letters need. Families differ in what they ask for beyond
// that.
struct Line {
  explicit Line(const QFont& font)
      : ascent(0.93 * font.pixelSize()), descent(0.24 * font.pixelSize()), height(ascent + descent) {}
  double ascent, descent, height;
};

QStringList LinesOf(const Label& label) {
  QString text = QString::fromStdString(label.Caption);
  text.replace("\r\n", "\n");
  text.replace('\r', '\n');
  return text.split('\n');
}

// Breaks one line at its blanks so that each part fits, as far as single words do.
QStringList Wrap(const QString& line, double width, const QFontMetricsF& metrics) {
  if (metrics.horizontalAdvance(line) <= width) return {line};
  QStringList parts;
  QString part;
  for (const QString& word : line.split(' ')) {
    const QString longer = part.isEmpty() ? word : part + ' ' + word;
    if (!part.isEmpty() && metrics.horizontalAdvance(longer) > width) {
      parts.push_back(part);
      part = word;
    } else {
      part = longer;
    }
  }
  parts.push_back(part);
  return parts;
}

// Only as many parts of a line as the label has room for, the first of them at `y`; but always one. What a
// player has entered may be longer than any label: its end shows all the same.
void Shorten(QStringList& parts, const QString& line, double y, const QRectF& rect, const Line& high,
             const QFontMetricsF& metrics) {
  const double room = rect.bottom() + 1 - high.descent - y;
  const qsizetype most = std::max<qsizetype>(1, static_cast<qsizetype>(room / high.height) + 1);
  if (parts.size() > most) {
    qsizetype shown = 0;
    for (qsizetype i = 0; i + 1 < most; ++i) shown += parts[i].size() + 1;
    parts.resize(most);
    parts.back() = line.mid(shown);
  }
  for (QString& part : parts)
    if (metrics.horizontalAdvance(part) > rect.width() + 0.5)
      part = metrics.elidedText(part, Qt::ElideMiddle, rect.width());
}

}  // namespace

QFont FontOf(const Label& label) { return style::Letters(label.FontSize, label.FontBold || label.Remark); }

TextBlock LayOut(const Label& label, const QRectF& rect) {
  TextBlock block{FontOf(label), {}, {}};
  const QFontMetricsF metrics(block.font);
  const Line high(block.font);
  double y = rect.top() + high.ascent;
  for (const QString& line : LinesOf(label)) {
    QStringList parts = label.AutoSize ? QStringList{line} : Wrap(line, rect.width() + 0.5, metrics);
    if (!label.AutoSize) Shorten(parts, line, y, rect, high, metrics);
    for (const QString& part : parts) {
      const double width = metrics.horizontalAdvance(part);
      double x = rect.left();
      if (label.Alignment == 1) x = rect.right() - width;
      if (label.Alignment == 2) x = rect.center().x() - width / 2;
      if (!part.trimmed().isEmpty()) {
        block.lines.push_back({part, QPointF(x, y), width});
        block.bounds |= QRectF(x, y - high.ascent, width, high.height);
      }
      y += high.height;
    }
  }
  if (label.BackStyle == 1 && !label.AutoSize) {  // in the middle of its box
    const double down = (rect.height() - block.bounds.height()) / 2;
    for (TextLine& line : block.lines) line.baseline.ry() += down;
    block.bounds.translate(0, down);
  }
  return block;
}

QSizeF Needs(const Label& label) {
  const QFont font = FontOf(label);
  const QFontMetricsF metrics(font);
  const QStringList lines = LinesOf(label);
  double width = 0;
  for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
  return {width, Line(font).height * static_cast<double>(lines.size())};
}
