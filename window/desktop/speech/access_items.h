// What lies on a canvas, as a screen reader meets it. Each item belongs to the canvas' own interface, and
// dies with it; it reads the model when it is asked.
#pragma once

#include <QAccessible>

#include "window/controls.h"

class BoardFace;

// A card or another place to click on.
QAccessibleInterface* MakeCardItem(BoardFace& board, Visual& control);
// A label, a frame's caption.
QAccessibleInterface* MakeTextItem(BoardFace& board, Visual& control);
QAccessibleInterface* MakeBarItem(BoardFace& board, ProgressBar& bar);
// The note of that number that the window's guide adds.
QAccessibleInterface* MakeNoteItem(BoardFace& board, int number);
// A sentence that is being said.
QAccessibleInterface* MakeSaying(BoardFace& board, const QString& text);
// Labels of an array that stand in rows and columns; null if these don't.
bool IsTable(const Label& label);
QAccessibleInterface* MakeTableItem(BoardFace& board, Label& first);
