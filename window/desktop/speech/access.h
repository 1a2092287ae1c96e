// What a screen reader is told of the windows: a tree that can be spoken, and what is said aloud when it
// happens. Nothing is made while nobody listens.
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "window/form.h"

class DesktopFrontEnd;
class FormWindow;

class Access : private QAccessible::ActivationObserver {
 public:
  explicit Access(DesktopFrontEnd& front);
  ~Access() override;
  Access(const Access&) = delete;

  // What the model has done; told to listeners as soon as the handler waits or has ended.
  void Changed(const Control& control);
  void Reordered(const Form& form) { Mark(form); }
  // A window stands there, or is gone.
  void Shown(FormWindow& window);
  void Gone(const Form& form);
  // A click on that control isn't done.
  void Refused(const Control& clicked);
  // The card that keys mean may be another one.
  void CursorMoved(FormWindow& window);
  // How the game stands, for ears and eyes.
  void TellState(FormWindow& window);

 private:
  void accessibilityActiveChanged(bool active) override;
  // Says a sentence.
  void Announce(FormWindow& window, const QString& text);
  void Mark(const Form& form);
  void Flush();
  void TellMessages(FormWindow& window);

  DesktopFrontEnd& front_;
  QTimer flush_;
  std::unordered_set<const Form*> dirty_;
  // Labels that show a message, and what was last said of each, without its figures.
  std::unordered_map<const Control*, QString> said_;
  QAccessible::Id focus_ = 0;  // the item that was told to have it last
};
