// Drawing the controls of a board.
#pragma once

#include "window/desktop/painting/easel.h"

// Draws the control at this place of the scene.
void PaintControl(const Easel& easel, size_t place);

// Draws a picture of the catalogue there, as an image with or without a frame shows it.
void PaintPicture(const Easel& easel, int picture, bool framed, const QRectF& rect);

// All that drawing the control may touch, shadows and plates included.
QRect Reach(const Visual& control, const Pictures& pictures);
