// What a screen reader is told of the windows: a tree that can be spoken, and what is said aloud when it
// happens. Nothing is made while nobody listens.
#pragma once

#include <QAccessible>
#include <QString>
#include <QTimer>
#include <unordered_map>
#include <unordered_set>

#include "window/form.h"

class Canvas;

class Access : private QAccessible::ActivationObserver {
 public:
  Access();
  ~Access() override;
  Access(const Access&) = delete;

  // A window has been made.
  void Opened(Canvas& board);
  // What the model has done; told to listeners as soon as the handler waits or has ended.
  void Changed(const Control& control);
  void Reordered(const Form& form) { Mark(form); }
  // A window stands there, or is gone.
  void Shown(const Form& form) { Mark(form); }
  void Gone(const Form& form);
  // A click on that control isn't done.
  void Refused(const Control& clicked);
  // The card that keys mean may be another one.
  void CursorMoved(Canvas& board);
  // Says a sentence that stands elsewhere for eyes.
  void Say(Canvas& board, const QString& text) {
    if (QAccessible::isActive()) Announce(board, text);
  }
  // How the game stands, for ears and eyes.
  void TellState(Canvas& board);

 private:
  void accessibilityActiveChanged(bool active) override;
  // Says a sentence.
  void Announce(Canvas& board, const QString& text);
  void Mark(const Form& form);
  void Flush();
  void TellMessages(Canvas& board);

  QTimer flush_;
  std::unordered_map<const Form*, Canvas*> boards_;
  std::unordered_set<const Form*> dirty_;
  // Labels that show a message, and what was last said of each, without its figures.
  std::unordered_map<const Control*, QString> said_;
  QAccessible::Id focus_ = 0;  // the item that was told to have it last
};
