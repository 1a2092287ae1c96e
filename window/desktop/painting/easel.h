// What a board is drawn with, and how.
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
