#include "window/desktop/painting/lettering.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

#include "window/desktop/painting/style.h"

namespace {

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
void Shorten(QStringList& parts, const QString& line, double y, const QRectF& rect,
             const QFontMetricsF& metrics) {
  const double room = rect.bottom() + 1 - metrics.descent() - y;
  const qsizetype most = std::max<qsizetype>(1, static_cast<qsizetype>(room / metrics.lineSpacing()) + 1);
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

QFont FontOf(const Label& label) {
  return style::Letters(label.FontSize, label.FontBold, QString::fromStdString(label.FontName));
}

TextBlock LayOut(const Label& label, const QRectF& rect) {
  TextBlock block{FontOf(label), {}, {}};
  const QFontMetricsF metrics(block.font);
  double y = rect.top() + metrics.ascent();
  for (const QString& line : LinesOf(label)) {
    QStringList parts = label.AutoSize ? QStringList{line} : Wrap(line, rect.width() + 0.5, metrics);
    if (!label.AutoSize) Shorten(parts, line, y, rect, metrics);
    for (const QString& part : parts) {
      const double width = metrics.horizontalAdvance(part);
      double x = rect.left();
      if (label.Alignment == 1) x = rect.right() - width;
      if (label.Alignment == 2) x = rect.center().x() - width / 2;
      if (!part.trimmed().isEmpty()) {
        block.lines.push_back({part, QPointF(x, y), width});
        block.bounds |= QRectF(x, y - metrics.ascent(), width, metrics.height());
      }
      y += metrics.lineSpacing();
    }
  }
  return block;
}

QSizeF Needs(const Label& label) {
  const QFontMetricsF metrics(FontOf(label));
  const QStringList lines = LinesOf(label);
  double width = 0;
  for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
  return {width, metrics.height() + metrics.lineSpacing() * (lines.size() - 1)};
}
