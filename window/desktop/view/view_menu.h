// The View menu of a window, and its keys: how large and in which colours things are drawn, how loud they
// are.
#pragma once

#include <QObject>
#include <functional>
#include <vector>

#include "window/desktop/view/view.h"

class DesktopFrontEnd;
class FormWindow;
class QAction;
class QMenu;
class QMenuBar;

class ViewMenu : public QObject {
 public:
  // Stands before the last menu of the bar; without a bar there are its keys alone.
  ViewMenu(FormWindow& window, DesktopFrontEnd& front, QMenuBar* bar);

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
  // Which of the two a change of "Fit to the Window" means just now; null where nothing is to be fitted.
  bool View::*Fit() const;

  FormWindow& window_;
  DesktopFrontEnd& front_;
  std::vector<Entry> entries_;
  QAction* lessMotion_ = nullptr;
};
