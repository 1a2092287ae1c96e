#include "window/desktop/painting/notes.h"

#include "window/desktop/painting/scene.h"
#include "window/desktop/painting/style.h"

namespace {

constexpr int kSmall = 8, kReading = 9;  // points

void PaintSheet(QPainter& painter, const QRectF& rect, bool strong) {
  painter.setPen(strong ? QPen(Qt::white, 1.5) : QPen(style::kGold, 1));
  painter.setBrush(strong ? style::kStrongGround : style::kIvory);
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

void PaintMark(QPainter& painter, const QRectF& rect, bool strong) {
  QColor band = style::kGold;
  band.setAlpha(110);
  painter.setPen(strong ? QPen(style::kStrongMark, 2) : QPen(Qt::NoPen));
  painter.setBrush(strong ? style::kStrongGround : band);
  painter.drawRoundedRect(rect, 4, 4);
}

QFont FontOf(const Note& note) {
  return style::Letters(note.look == Note::Look::Sheet ? kReading : kSmall, note.look == Note::Look::Mark);
}

}  // namespace

// A sheet is as large as its text needs.
QRect NoteRect(const Note& note) {
  const QRect rect = QRect(Pixels(note.left), Pixels(note.top), Pixels(note.width), Pixels(note.height))
                         .translated(Origin(*note.within));
  if (note.look != Note::Look::Sheet) return rect;
  QRect sheet = QFontMetrics(FontOf(note))
                    .boundingRect(QRect(0, 0, 10'000, 10'000), 0, QString::fromStdString(note.text))
                    .adjusted(-16, -9, 16, 9);
  sheet.moveTop(rect.top());
  sheet.moveLeft(rect.center().x() - sheet.width() / 2);
  return sheet;
}

void PaintNote(QPainter& painter, const Note& note, NoteLayer layer, bool strong) {
  const bool beneath = note.look == Note::Look::Mark;
  if (beneath != (layer == NoteLayer::Beneath)) return;
  const QRectF rect(NoteRect(note));
  painter.save();
  if (note.look == Note::Look::Sheet) PaintSheet(painter, rect, strong);
  if (beneath) PaintMark(painter, rect, strong);
  const Qt::Alignment sides[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  const QFont font = FontOf(note);
  painter.setFont(font);
  painter.setPen(strong ? QColor(Qt::white) : style::kInk);
  const QFontMetrics metrics(font);
  QStringList lines;
  for (const QString& line : QString::fromStdString(note.text).split('\n'))
    lines << metrics.elidedText(line, Qt::ElideMiddle, static_cast<int>(rect.width()));
  painter.drawText(rect, sides[note.alignment] | Qt::AlignVCenter, lines.join('\n'));
  painter.restore();
}
