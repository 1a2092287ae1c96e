// A board as its items see it: what lies on it is theirs to tell, where it lies and what it means they ask
// here.
#pragma once

#include <QAccessibleWidget>
#include <vector>

#include "window/guide.h"

class Canvas;
class SpokenWindow;

class BoardFace : public QAccessibleWidget {
 public:
  explicit BoardFace(Canvas& canvas);

  // False once the form is gone: nothing of it may be touched any more.
  bool Lives() const;
  SpokenWindow& Window() const;
  Canvas& Board() const;
  // What the guide tells of this place; its control is null if nothing lies there any more.
  Spot SpotOf(const Control& control) const;
  std::vector<Spot> Spots() const;
  std::vector<Note> Notes() const;
  // The screen's area of an area of the board.
  QRect OnScreen(const QRect& area) const;
  // The card that a key would click; null while the keyboard is elsewhere.
  virtual QAccessibleInterface* CursorItem() const = 0;
};
