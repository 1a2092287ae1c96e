// What a screen reader's tree has to know of a window beside its board.
#pragma once

class Deeds;
class Keyboard;
class QWidget;

class SpokenWindow {
 public:
  // Null where no guide tells which keys there are.
  virtual Keyboard* Keys() const = 0;
  virtual const QWidget* StatusLine() const = 0;
  virtual Deeds& GetDeeds() const = 0;

 protected:
  ~SpokenWindow() = default;
};
