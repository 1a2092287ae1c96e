// The menu of a window from which games are opened: what it has no buttons for.
#pragma once

#include <QObject>
#include <filesystem>
#include <functional>

#include "window/guide.h"

class Deeds;
class QMenu;
class QWidget;

class ChoiceMenu : public QObject {
 public:
  // `history` is the file of the games played so far.
  ChoiceMenu(Form& form, Guide& guide, Deeds& deeds, const std::filesystem::path& history, QWidget& window);

  QMenu& Shown() { return menu_; }
  void SetFont(const QFont& font);
  // What is behind "Statistics...".
  std::function<void()> statistics;

 private:
  void FillDays();

  Guide& guide_;
  Deeds& deeds_;
  const std::filesystem::path history_;
  QMenu &menu_, &days_;
};
