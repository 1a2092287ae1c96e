// The menu bar of a window.
#pragma once

#include <unordered_map>

#include "window/guide.h"

class Deeds;
class QAction;
class QMenuBar;
class QWidget;

class Menus {
 public:
  // Builds the bar from the form's menu entries; a form without any gets none. `guide` may be null.
  Menus(Form& form, const Guide* guide, Deeds& deeds, QWidget& window);

  // The height that the bar takes from its window, in pixels.
  int Height() const;
  void Place(int width);
  void SetZoom(double zoom);
  void Apply(const Menu& menu);
  QMenuBar* Bar() const { return bar_; }
  QAction* ActionOf(const Menu& menu) const;

 private:
  void Build(const Control& parent, QWidget& holder);
  void AddKeys(const Guide& guide, QWidget& window);

  Form& form_;
  Deeds& deeds_;
  QMenuBar* bar_ = nullptr;
  double zoom_ = 1;
  std::unordered_map<const Menu*, QAction*> actions_;
};
