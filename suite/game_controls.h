// The controls that every game window has. They are made in this order, in which they are drawn, tick and
// stand in menus; a game's own come behind them. A control that a game doesn't have has no name, and isn't
// seen.
#pragma once

#include <memory>
#include <vector>

#include "suite/game_plan.h"
#include "window/controls.h"
#include "window/form.h"

// A box let into the board, with the lines that light its edges.
struct ScoreBox {
  Shape& box;
  Shape& side;
  Shape& bottom;
};

class GameControls {
  Form& form_;
  const GamePlan& plan_;
  const GameNames& names_ = plan_.names;
  const char* OfClock(const char* name) const { return plan_.HasClock() ? name : ""; }

 public:
  GameControls(Form& form, const GamePlan& plan);

  PictureBox Surface{form_, OfClock("Surface")};
  Shape TimerRectangle{form_, OfClock("TimerRectangle")}, TimerBevelSide{form_, OfClock("TimerBevelSide")},
      TimerBevelBottom{form_, OfClock("TimerBevelBottom")};
  Shape ScoreRectangle{form_, "ScoreRectangle"}, ScoreBevelSide{form_, "ScoreBevelSide"},
      ScoreBevelBottom{form_, "ScoreBevelBottom"};
  Shape RoundRectangle{form_, names_.roundBox.box}, RoundBevelSide{form_, names_.roundBox.side},
      RoundBevelBottom{form_, names_.roundBox.bottom};
  Label lblTime{form_, OfClock("lblTime")}, lblScore{form_, "lblScore"}, lblCurrentScore{form_, names_.score},
      lblRound{form_, "lblRound"}, lblCurrentRound{form_, names_.roundNumber},
      lblHighScore{form_, "lblHighScore"}, lblMessage{form_, names_.message},
      lblScoring{form_, names_.scoring};
  Frame frmSplash{form_, "frmSplash"};
  ControlArray<Image, 4> imgSplashImage{frmSplash, "imgSplashImage"};
  Label lblCompanyProduct{frmSplash, "lblCompanyProduct"}, lblProductName{frmSplash, "lblProductName"},
      lblPlatform{frmSplash, "lblPlatform"}, lblVersion{frmSplash, "lblVersion"};
  CommandButton cmdPlay{form_, "cmdPlay"}, cmdTakeScore{form_, names_.takeScoreButton},
      cmdPause{form_, "cmdPause"}, cmdExit{form_, names_.exitButton};
  StatusBar StatusBar1{form_, "StatusBar1"};
  Timer Timer1{form_, OfClock("Timer1")}, Timer2{form_, OfClock("Timer2")},
      ClockTimer{form_, names_.clockTimer}, Timer4{form_, "Timer4"};

  Menu mnuFile{form_, names_.fileMenu}, mnuPlay{mnuFile, "mnuPlay"},
      mnuTakeScore{mnuFile, names_.takeScoreEntry}, mnuPause{mnuFile, "mnuPause"},
      mnuFileLine{mnuFile, "mnuFileLine"}, mnuExit{mnuFile, "mnuExit"};
  Menu mnuOptions{form_, "mnuOptions"}, mnuView{mnuOptions, names_.viewEntry},
      mnuClear{mnuOptions, "mnuClear"}, mnuOptionsLine{mnuOptions, "mnuOptionsLine"},
      mnuMusic{mnuOptions, "mnuMusic"}, mnuSounds{mnuOptions, "mnuSounds"},
      mnuCustom{mnuOptions, names_.customEntry}, mnuTime{mnuOptions, OfClock(names_.timeMenu)};
  std::vector<std::unique_ptr<Menu>> timeLimitEntries;
  Menu mnuDeck{mnuOptions, "mnuDeck"}, mnuPalm{mnuDeck, kPalmTree.menu}, mnuMagic{mnuDeck, kMagicHands.menu},
      mnuNight{mnuDeck, kNightCastle.menu}, mnuHot{mnuDeck, kHotCards.menu};
  Menu mnuHelp{form_, "mnuHelp"}, mnuRules{mnuHelp, "mnuRules"}, mnuAbout{mnuHelp, "mnuAbout"};

  // The boxes of the board; a game adds its own. Their edges follow them.
  void AddScoreBox(Shape& box, Shape& side, Shape& bottom);
  void PlaceEdges();
  // The entry of a back design, by its number in the settings file.
  Menu& DeckEntry(int number) { return static_cast<Menu&>(*form_.find(plan_.designs[number - 1].menu)); }

 private:
  void SetUpControls();
  void SetUpMenus();

  std::vector<ScoreBox> scoreBoxes_;
};
