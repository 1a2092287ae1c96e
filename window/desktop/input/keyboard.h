// The keys of a window that has a guide: a cursor that walks its board, and keys that stand for clicks. What
// they do is what the mouse would do.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QRect>
#include <functional>

#include "window/board_keys.h"

class Canvas;
class Deeds;
class QKeyEvent;
class QPainter;
class QWidget;

class Keyboard : public QObject {
 public:
  // Of the window that holds this board.
  Keyboard(Canvas& canvas, Deeds& deeds, Guide& guide);

  // The cursor has gone to another place, or the keyboard to another control.
  std::function<void()> moved;

  // The buttons that digits stand for.
  std::vector<Visual*> Choices() const { return keys_.Choices(); }
  // A handler has ended: the cursor stays with the places that there are, and the board takes the keyboard
  // when a game begins.
  void Settle();
  // Whether the keyboard belongs to the board, whatever control has the focus by the model.
  bool HoldsFocus() const;
  // The form and its guide are gone.
  void Leave();

  // Where the next click by a key would go; null if the keyboard belongs to another control.
  const Visual* Stands() const { return HoldsFocus() ? keys_.Cursor() : nullptr; }
  // The cursor goes to this place, and the keyboard to the board.
  void GoTo(const Visual& control);
  // Where the cursor stands; null if it doesn't show.
  const Visual* Cursor() const;
  // What the ring goes around, in pixels at 100 %: the cursor's place, or a widget on the board that has the
  // keyboard. Null while the mouse is used.
  QRect Ring() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Take(const QKeyEvent& key, const QWidget* focus);
  bool TakeArrow(const QKeyEvent& key);
  std::string WordFor(const QKeyEvent& key) const;
  bool TakeWord(const std::string& word, bool again);
  bool TakeShared(QObject* watched, QEvent* event);
  // Clicks on what that comes to once the board is as its turn finds it.
  void Click(std::function<Control*()> meant);
  void FocusBoard();
  void ShowRing();
  void Paint(QPainter& painter);
  void OrderTabs();

  Canvas& canvas_;
  QWidget& window_;
  Deeds& deeds_;
  Guide* guide_;
  BoardKeys keys_;
  QRect ring_;                  // as it was painted last
  bool open_ = false;           // a game goes on
  bool boardHasFocus_ = false;  // or had it when a menu was opened
  bool keysUsed_ = false;       // last, and not the mouse
  QElapsedTimer clock_;
};
