// Drawing the labels of a window, and what they stand on.
#pragma once

#include "window/desktop/painting/easel.h"

// Whether the label tells in large type what has just happened.
bool Announces(const Label& label);
// Whether it is one that does so just now.
bool IsAnnounced(const Control& control);
// The plate of an announcement, around all that is announced beside it; pixels at 100 %.
QRectF PlateOf(const Label& label);

// Draws the label at this place of the scene: its letters in the colour of what they mean, on a ground on
// which they read well.
void PaintLabel(const Easel& easel, size_t place);
// All that drawing the label there may touch.
QRect LabelReach(const Label& label, const QRect& rect);
