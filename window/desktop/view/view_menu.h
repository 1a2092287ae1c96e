// The View menu of a window, and its keys: how large and in which colours things are drawn, how loud they
// are.
#pragma once

#include <QObject>
#include <functional>
#include <vector>

#include "window/desktop/view/view.h"

class Looks;
class QAction;
class QMenu;
class QMenuBar;
class QWidget;

class ViewMenu : public QObject {
 public:
  // How large a window is drawn, and, where its board can be fitted to the frame, which switch fits it just
  // now and how large the board that it follows is.
  struct Size {
    double zoom = 1, leadersZoom = 1;
    bool View::*fit = nullptr;
    bool filled = false;  // the frame can't grow
  };
  // Stands before the last menu of the bar; without a bar there are its keys alone.
  ViewMenu(QWidget& window, Looks& looks, std::function<Size()> size, QMenuBar* bar);

  // Ticks what is in force.
  void Apply();

 private:
  struct Entry {
    QAction* action;
    std::function<bool(const View&)> isTicked;
  };

  QAction* Add(QMenu* menu, const char* name, const QString& text, std::function<void(View&)> choose,
               std::function<bool(const View&)> isTicked = {});
  void AddZooms(QMenu* menu);
  QAction* AddSwitch(QMenu* menu, const char* name, const QString& text, bool View::*flag);
  void AddVolume(QMenu& menu, const char* name, const QString& text, int View::*volume);
  void ChooseZoom(View& view, int percent) const;
  int NextZoom(bool larger) const;

  QWidget& window_;
  Looks& looks_;
  const std::function<Size()> size_;
  std::vector<Entry> entries_;
  QAction* lessMotion_ = nullptr;
};
