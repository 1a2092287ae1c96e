// What all boards are painted with.
#pragma once

#include "window/control.h"
#include "window/desktop/painting/pictures.h"

// How this player wants boards to look.
struct Manner {
  bool strong = false;  // in high contrast
  bool calm = false;    // ornaments and colours keep still
  bool glides = true;   // cards are seen to move
};

// What the handler under way, or the last one, is about.
struct Occasion {
  long long number = 0;              // of handlers so far
  const Control* clicked = nullptr;  // whose click it answers; null if it answers none
};

struct Paintbox {
  Pictures pictures;
  Manner manner = {};
  Occasion occasion = {};
};
