// Room on a board for what is added to it.
#pragma once

#include <QRect>
#include <vector>

class Canvas;

// Where something lies on the board itself; pixels at 100 %.
enum class Over { Nothing, Backs, Cards };  // what may be covered: cards that lie face down, or any
std::vector<QRect> Taken(const Canvas& board, Over over);
// The free place of that size that is nearest to a point; null if there is none.
QRect FindRoom(const Canvas& board, QSize size, QPoint near, const std::vector<QRect>& taken);
// The same low in the middle, over nothing, or else over cards.
QRect RoomForHint(const Canvas& board, QSize size);
