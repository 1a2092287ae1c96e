// What a script does to real windows: mouse and key events, sent to the widgets that a player would use.
#pragma once

#include "window/script/script.h"

class DesktopFrontEnd;
class QPoint;
class QWidget;

class DesktopHands : public Hands {
 public:
  explicit DesktopHands(DesktopFrontEnd& front) : front_(front) {}

  void Click(Control& control) override;
  void DblClick(Control& control) override;
  void MouseMove(Control& control) override;
  void Type(TextBox& box, const std::string& text) override;
  void Select(Control& list, int entry) override;
  void Press(Form& form, Key key) override;
  void Close(Form& form) override;
  void Resize(Form& form, int width, int height) override;
  void SetState(Form& form, int state) override;
  std::string Screenshot(Form& form, const std::string& file) override;

 protected:
  // A press and a release of the left button.
  static void ClickOn(QWidget& widget, QPoint point);

 private:
  // For what no mouse can reach: a control that is wholly covered, or that takes no mouse.
  void Tell(Control& control, void (*deed)(Control&));

  DesktopFrontEnd& front_;
};
