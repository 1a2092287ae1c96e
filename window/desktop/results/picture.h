// A page painted: scores one after the other, how often each came, and the days.
#pragma once

#include <QPainter>

#include "window/desktop/results/page.h"

namespace results {

// Draws the page over that area; pixels at 100 %. The ground is there already. Without a game there is
// nothing but a friendly word.
void Paint(QPainter& painter, const Page& page, const QRectF& area, bool strong);

// The least area that holds everything.
inline constexpr QSize kLeast(480, 300);

}  // namespace results
