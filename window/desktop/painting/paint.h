// Drawing the controls of a board.
#pragma once

#include <QPainter>

#include "window/desktop/painting/pictures.h"
#include "window/desktop/painting/scene.h"

struct Easel {
  QPainter& painter;
  Pictures& pictures;
  const Scene& scene;
  bool board;            // on baize; else on the paper of a dialog
  double scale;          // device pixels to a pixel
  bool strong = false;   // high contrast
  Calm* calm = nullptr;  // where less is to blink
};

// Draws the control at this place of the scene.
void PaintControl(const Easel& easel, size_t place);

// Draws a picture of the catalogue there, as an image with or without a frame shows it.
void PaintPicture(const Easel& easel, int picture, bool framed, const QRectF& rect);

// All that drawing the control may touch, shadows and plates included.
QRect Reach(const Visual& control, const Pictures& pictures);
