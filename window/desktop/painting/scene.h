// What lies where on a window's board: the controls that the canvas draws, in the order in which it draws
// them.
#pragma once

#include <QPoint>
#include <QRect>
#include <vector>

#include "window/desktop/painting/calm.h"
#include "window/form.h"

class Pictures;

// One control on the board. Pixels, from the canvas' top left.
struct Placed {
  Visual* control;
  QRect rect;
  QRect clip;           // of the frames that hold it
  int picture = 0;      // of an image
  bool framed = false;  // that picture
};
using Scene = std::vector<Placed>;

// Twips to pixels at 100 %, rounded.
int Pixels(int twips);
// Where the coordinates of what a frame or form holds begin.
QPoint Origin(const Control& container);
// The control's rectangle as the model tells it.
QRect ModelRect(const Visual& control);
// The control's rectangle as it is drawn: a picture has its own size.
QRect DrawnRect(const Visual& control, const Pictures& pictures);
// Whether the control and everything that holds it is visible, the form aside.
bool IsShown(const Visual& control);
// Whether the canvas draws controls of this kind; all others are widgets of their own.
bool IsDrawn(Control::Kind kind);

// All visible controls that the canvas draws, bottom first; those that are kept still as they were.
Scene Arrange(const Form& form, const Pictures& pictures, const Stills& stills = {});
// The control that the mouse means at this point; null if it means none.
Visual* HitTest(const Scene& scene, QPoint point);
// Whether the control stands on the baize of a board, not on paper.
bool IsOnBaize(const Visual& control);
// Whether the window is a board with cards on it; else it is a dialog.
bool IsBoard(const Form& form);
