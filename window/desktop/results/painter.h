// Paints the pictures of games that have ended.
#pragma once

#include <QPainter>

#include "window/results/picture.h"

namespace results {

void Paint(QPainter& painter, const Page& page, const QRectF& area, bool strong);

}  // namespace results
