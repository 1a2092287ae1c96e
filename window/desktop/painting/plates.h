// What stands on a board and carries letters: boxes, plates, panels, parts with a line around them. They are
// one family: what is let into the board has small corners, what lies on it or divides it has large ones.
#pragma once

#include <QPainter>

#include "window/desktop/painting/style.h"

namespace plates {

inline constexpr double kSmallCorner = 3, kLargeCorner = 8;

// Let into the window: dark along the top and left, lit along the bottom and right.
void Box(QPainter& painter, const QRectF& rect, bool strong, const QColor& fill = style::kBox);
// Just behind letters; with an edge where it lies on a picture.
void Tag(QPainter& painter, const QRectF& rect, bool edged, bool strong);
// Laid over the board, with its shadow.
void Plate(QPainter& painter, const QRectF& rect, bool strong);
// The same for a game's name, with a second line.
void Panel(QPainter& painter, const QRectF& rect, bool strong);
// A part of a board or dialog that belongs together. Its line leaves out the gap, where a caption stands.
void Inlay(QPainter& painter, const QRectF& rect, const QRectF& gap, bool board, bool strong);

// What a plate's shadow covers beside it.
inline constexpr QMargins kShadow(4, 2, 4, 8);

}  // namespace plates
