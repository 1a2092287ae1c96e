// Room on a board for what is added to it.
#pragma once

#include <QRect>
#include <vector>

class Canvas;

// Where something lies on the board itself; pixels at 100 %.
std::vector<QRect> Taken(const Canvas& board, bool byCards);
// The free place of that size that is nearest to a point; null if there is none.
QRect FindRoom(const Canvas& board, QSize size, QPoint near, const std::vector<QRect>& taken);
// The same low in the middle, over nothing, or else over cards.
QRect RoomForHint(const Canvas& board, QSize size);
