#include "window/desktop/painting/notes.h"

#include "window/desktop/painting/plates.h"
#include "window/desktop/painting/scene.h"
#include "window/desktop/painting/style.h"

namespace {

constexpr int kSmall = 8, kReading = 9, kCalling = 11;  // points

void PaintMark(QPainter& painter, const QRectF& rect, bool strong) {
  QColor band = style::kGold;
  band.setAlpha(110);
  painter.setPen(strong ? QPen(style::kStrongMark, 2) : QPen(Qt::NoPen));
  painter.setBrush(strong ? style::kStrongGround : band);
  painter.drawRoundedRect(rect, 4, 4);
}

void PaintCall(QPainter& painter, const QRectF& rect, bool strong, bool isFrame) {
  const QColor edge = strong ? style::kStrongMark : style::kGold;
  QColor plate = style::kDeepInk;
  plate.setAlpha(strong ? 255 : 225);
  painter.setPen(QPen(edge, 1.5));
  painter.setBrush(isFrame ? edge : plate);
  painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), 9, 9);
}

bool FitsItsText(const Note& note) {
  return note.look == Note::Look::Sheet || (note.look == Note::Look::Call && !note.text.empty());
}

QFont FontOf(const Note& note) {
  const bool calls = note.look == Note::Look::Call;
  return style::Letters(calls                            ? kCalling
                        : note.look == Note::Look::Sheet ? kReading
                                                         : kSmall,
                        calls || note.look == Note::Look::Mark);
}

}  // namespace

// Sheets and calls are as large as their text needs.
QRect NoteRect(const Note& note) {
  const QRect rect = QRect(Pixels(note.left), Pixels(note.top), Pixels(note.width), Pixels(note.height))
                         .translated(Origin(*note.within));
  if (!FitsItsText(note)) return rect;
  QRect sheet = QFontMetrics(FontOf(note))
                    .boundingRect(QRect(0, 0, 10'000, 10'000), 0, QString::fromStdString(note.text))
                    .adjusted(-14, -5, 14, 5);
  sheet.moveTop(rect.top());
  sheet.moveLeft(rect.center().x() - sheet.width() / 2);
  return sheet;
}

void PaintNote(QPainter& painter, const Note& note, NoteLayer layer, bool strong) {
  const bool beneath = note.look == Note::Look::Mark;
  if (beneath != (layer == NoteLayer::Beneath)) return;
  const QRectF rect(NoteRect(note));
  painter.save();
  if (note.look == Note::Look::Sheet) plates::Plate(painter, rect, strong);
  if (note.look == Note::Look::Call) PaintCall(painter, rect, strong, note.text.empty());
  if (beneath) PaintMark(painter, rect, strong);
  const Qt::Alignment sides[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  const QFont font = FontOf(note);
  painter.setFont(font);
  painter.setPen(strong ? QColor(Qt::white) : note.look == Note::Look::Call ? style::kIvory : style::kInk);
  const QFontMetrics metrics(font);
  QStringList lines;
  for (const QString& line : QString::fromStdString(note.text).split('\n'))
    lines << metrics.elidedText(line, Qt::ElideMiddle, static_cast<int>(rect.width()));
  painter.drawText(rect, sides[note.alignment] | Qt::AlignVCenter, lines.join('\n'));
  painter.restore();
}
