// What a player does with deals and results: the entries in the menu of a game.
#pragma once

#include <QObject>
#include <vector>

#include "history/statistics.h"
#include "window/guide.h"

class Deeds;
class Menus;
class QAction;
class QWidget;

class DealEntries : public QObject {
 public:
  // Stand in the guide's menu for playing; where it has none there are none.
  DealEntries(Form& form, Guide& guide, Deeds& deeds, const Menus& menus, const std::vector<KnownGame>& games,
              QWidget& window);

 private:
  void Apply();
  void AskForNumber();
  // Begins a game with that deal. One that is in progress is asked about, and given up, first.
  void Play(int number);
  void PlayAgain();
  void Copy();

  Form& form_;
  Guide& guide_;
  Deeds& deeds_;
  QWidget& window_;
  const std::vector<KnownGame>& games_;
  QAction *number_ = nullptr, *again_ = nullptr, *copy_ = nullptr;
};
