// What a window does for its player by itself, as its guide tells: notes on the board, first steps, a name
// that is offered again, the place where it stood, tool tips, the clock.
#pragma once

#include <QRect>
#include <filesystem>

#include "window/guide.h"

class Canvas;
class ChoiceMenu;
class Deeds;
class Keyboard;
class Looks;
class QPushButton;
class QWidget;

class Comfort {
 public:
  // `history` is the file of the games played so far.
  Comfort(Canvas& canvas, Deeds& deeds, Looks& looks, Guide& guide, std::filesystem::path history);

  // The menu of what the window has no buttons for; null if it has them all.
  ChoiceMenu* GetMenu() const { return menu_; }

  // The window is about to be shown, has been shown, or is no longer seen.
  void BeforeShow();
  void Shown(const Keyboard& keyboard) const;
  void Hidden(const Keyboard& keyboard);
  // A handler has ended.
  void Settle();
  // The window has another zoom.
  void Zoom();
  // The window is hidden for good.
  void Leave();
  std::string PanelText(const Panel& panel) const;

 private:
  // The tool tip of a widget that has none of its own.
  void ApplyToolTip(QWidget& widget, const Visual& control) const;
  void ApplyPicture(QWidget& widget, const Visual& control) const;
  void OfferHelp();
  void OfferMenu();
  void ShowNotes();
  static std::string InTwoLines(std::string text);
  void PlaceSheet(Note& sheet, const std::vector<Note>& others) const;
  bool AddSheet(const std::string& text, std::vector<Note>& notes) const;
  // What is to be said of the last game, while there is nothing else to see.
  std::string Remark();
  // The player is told that nothing is left but this button.
  void CallFor(const CommandButton& button, std::vector<Note>& notes) const;
  void OfferAgain();
  void KeepPlace();

  Canvas& canvas_;
  QWidget& window_;
  Form& form_;
  Deeds& deeds_;
  Looks& looks_;
  Guide& guide_;
  QPushButton *help_ = nullptr, *menuButton_ = nullptr;
  ChoiceMenu* menu_ = nullptr;
  std::string written_;  // in the box that is offered again
  const std::filesystem::path history_;
  GameFacts facts_;  // when the remark was made
  std::string remark_;
  bool shown_ = false, showsSteps_ = false;
};
