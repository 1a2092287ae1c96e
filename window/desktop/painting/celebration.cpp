#include "window/desktop/painting/celebration.h"

#include <QRandomGenerator>
#include <cmath>
#include <numbers>

#include "window/desktop/painting/style.h"

namespace {

constexpr int kFrame = 17;     // milliseconds
constexpr double kLength = 1;  // seconds
constexpr double kFall = 520;  // pixels a second, each second
constexpr int kPieces = 90;
constexpr QColor kColours[] = {
    style::kGold, style::kIvory, {0xc8, 0x10, 0x2e}, {0x2f, 0x6f, 0xc4}, style::kGold};
constexpr QColor kStrongColours[] = {style::kStrongMark, {0xff, 0xff, 0xff}};

}  // namespace

Celebration::Celebration(std::function<void(const QRect&)> repaint) : repaint_(std::move(repaint)) {
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.setInterval(kFrame);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Step(); });
}

void Celebration::Begin(const QRectF& area, bool strong) {
  Drop();
  QRandomGenerator chance(static_cast<quint32>(area.width()));  // none of the games' own
  const auto between = [&](double least, double most) {
    return least + chance.generateDouble() * (most - least);
  };
  for (int i = 0; i < kPieces; ++i) {
    const double angle = between(-0.85, -0.15) * std::numbers::pi, speed = between(110, 400);
    pieces_.push_back(
        {{between(area.left(), area.right()), area.center().y()},
         {std::cos(angle) * speed, std::sin(angle) * speed},
         between(7, 13),
         between(-2, 2),
         strong ? kStrongColours[i % std::size(kStrongColours)] : kColours[i % std::size(kColours)]});
  }
  begun_ = false;
  for (const Piece& piece : pieces_) repaint_(QRectF(piece.from, QSizeF(1, 1)).toAlignedRect());
}

void Celebration::Drop() {
  for (const Piece& piece : pieces_) repaint_(piece.painted);
  pieces_.clear();
  timer_.stop();
}

void Celebration::Step() {
  if (Seconds() >= kLength) return Drop();
  for (Piece& piece : pieces_) {
    repaint_(piece.painted);
    const double seconds = Seconds(), reach = piece.size;
    const QPointF at = piece.from + piece.speed * seconds + QPointF(0, kFall * seconds * seconds / 2);
    piece.painted = QRectF(at - QPointF(reach, reach), QSizeF(reach, reach) * 2).toAlignedRect();
    repaint_(piece.painted);
  }
}

// Small sheets of paper that turn as they fall, and pale towards the end.
void Celebration::Paint(QPainter& painter) {
  if (pieces_.empty()) return;
  if (!begun_) {
    begun_ = true;
    clock_.start();
    timer_.start();
    return;
  }
  const double seconds = Seconds();
  painter.save();
  painter.setOpacity(std::clamp(3 * (kLength - seconds) / kLength, 0.0, 1.0));
  for (const Piece& piece : pieces_) {
    painter.save();
    painter.translate(QRectF(piece.painted).center());
    painter.rotate(piece.spin * seconds * 360);
    painter.scale(1, std::abs(std::cos(piece.spin * seconds * 9)) * 0.8 + 0.2);
    painter.setPen(QPen(style::kDeepInk, 0.6));
    painter.setBrush(piece.colour);
    const double half = piece.size / 2;
    painter.drawRect(QRectF(-half, -half * 0.6, piece.size, piece.size * 0.6));
    painter.restore();
  }
  painter.restore();
}
