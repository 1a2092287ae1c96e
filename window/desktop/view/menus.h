// The menu bar of a window.
#pragma once

#include <unordered_map>

#include "window/form.h"

class DesktopFrontEnd;
class QAction;
class QMenuBar;
class QWidget;
class FormWindow;

class Menus {
 public:
  // Builds the bar from the form's menu entries; a form without any gets none.
  Menus(Form& form, DesktopFrontEnd& front, FormWindow& window);

  // The height that the bar takes from its window, in pixels.
  int Height() const;
  void Place(int width);
  void SetZoom(double zoom);
  void Apply(const Menu& menu);
  QMenuBar* Bar() const { return bar_; }
  QAction* ActionOf(const Menu& menu) const;

 private:
  void Build(const Control& parent, QWidget& holder);
  void AddKeys(FormWindow& window);

  Form& form_;
  DesktopFrontEnd& front_;
  QMenuBar* bar_ = nullptr;
  double zoom_ = 1;
  std::unordered_map<const Menu*, QAction*> actions_;
};
