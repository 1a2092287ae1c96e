#include "window/desktop/painting/plates.h"

#include <algorithm>

namespace plates {

namespace {

void Strong(QPainter& painter, const QRectF& rect, double corner) {
  painter.setPen(QPen(Qt::white, 1.5));
  painter.setBrush(style::kStrongGround);
  painter.drawRoundedRect(rect, corner, corner);
}

// Of what lies on the board, with its shadow and its edge.
void Raised(QPainter& painter, const QRectF& rect, const QBrush& paper) {
  painter.setPen(Qt::NoPen);
  for (int step = 4; step > 0; --step) {
    painter.setBrush(QColor(0, 0, 0, 18));
    painter.drawRoundedRect(rect.adjusted(-step / 2.0, 0, step / 2.0, step * 1.4), kLargeCorner + 1,
                            kLargeCorner + 1);
  }
  painter.setBrush(paper);
  painter.setPen(QPen(style::kGold.darker(125), 1));
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), kLargeCorner, kLargeCorner);
}

}  // namespace

void Box(QPainter& painter, const QRectF& rect, bool strong, const QColor& fill) {
  if (strong) return Strong(painter, rect, kSmallCorner);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 90));
  painter.drawRoundedRect(rect.adjusted(0, 0, 1, 1), kSmallCorner, kSmallCorner);
  painter.setBrush(QColor(0, 0, 0, 130));
  painter.drawRoundedRect(rect.adjusted(-1, -1, 0, 0), kSmallCorner, kSmallCorner);
  painter.setBrush(fill);
  painter.drawRoundedRect(rect, kSmallCorner, kSmallCorner);
  QLinearGradient shade(rect.topLeft(), QPointF(rect.left(), rect.top() + std::min(7.0, rect.height() / 2)));
  shade.setColorAt(0, QColor(0, 0, 0, 60));
  shade.setColorAt(1, QColor(0, 0, 0, 0));
  painter.setBrush(shade);
  painter.drawRoundedRect(rect, kSmallCorner, kSmallCorner);
}

void Tag(QPainter& painter, const QRectF& rect, bool edged, bool strong) {
  const QPen edge = strong ? QPen(Qt::white, 1.5) : QPen(style::kGold.darker(125), 1);
  painter.setPen(edged ? edge : QPen(Qt::NoPen));
  painter.setBrush(strong ? style::kStrongGround : style::kBox);
  painter.drawRoundedRect(rect, kSmallCorner, kSmallCorner);
}

void Plate(QPainter& painter, const QRectF& rect, bool strong) {
  strong ? Strong(painter, rect, kLargeCorner) : Raised(painter, rect, style::kBox);
}

void Panel(QPainter& painter, const QRectF& rect, bool strong) {
  if (strong) return Strong(painter, rect.adjusted(1, 1, -1, -1), kLargeCorner);
  QLinearGradient paper(rect.topLeft(), rect.bottomLeft());
  paper.setColorAt(0, QColor(0xff, 0xfc, 0xf1));
  paper.setColorAt(1, style::kPanel);
  Raised(painter, rect, paper);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(style::kGold, 1));
  painter.drawRoundedRect(rect.adjusted(4.5, 4.5, -4.5, -4.5), kLargeCorner - 3, kLargeCorner - 3);
}

void Inlay(QPainter& painter, const QRectF& rect, const QRectF& gap, bool board, bool strong) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(strong  ? QColor(Qt::transparent)
                   : board ? QColor(0, 0, 0, 56)
                           : QColor(255, 255, 255, 70));
  painter.drawRoundedRect(rect, kLargeCorner, kLargeCorner);
  painter.save();
  if (!gap.isEmpty()) {
    const QRect all = rect.toAlignedRect().adjusted(-2, -2, 2, 2);
    painter.setClipRegion(QRegion(all) - gap.toAlignedRect(), Qt::IntersectClip);
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(strong ? QPen(Qt::white, 1.5) : QPen(board ? style::kGold : QColor(0xb5, 0xa8, 0x8a), 1));
  painter.drawRoundedRect(rect, kLargeCorner, kLargeCorner);
  painter.restore();
}

}  // namespace plates
