// The board of a window: one widget that draws everything that isn't a widget of its own, and takes the mouse
// for it.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <optional>
#include <unordered_map>

#include "window/desktop/scene.h"

class DesktopFrontEnd;
class Pictures;
class QHelpEvent;

class Canvas : public QWidget {
 public:
  Canvas(Form& form, DesktopFrontEnd& front, QWidget* parent);

  // The control looks different from now on, or lies elsewhere.
  void Refresh(const Visual& control);
  // Shows the pointer that the control under the mouse asks for.
  void UpdatePointer();

  // The control that a click at this point means.
  Visual* At(QPoint point) const;
  // A spot that means this control: its middle if that shows. Nothing if the control is wholly covered.
  std::optional<QPoint> SpotOf(const Visual& control) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Press(QPoint point);
  void ShowToolTip(QHelpEvent& event);

  Form& form_;
  DesktopFrontEnd& front_;
  const bool board_;
  int pointer_ = 0;  // the one that shows; above 99 that picture
  QPixmap baize_;
  std::unordered_map<const Visual*, QRect> reach_;  // where each control was drawn last
};
