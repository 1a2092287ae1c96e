// The selector: the window that the suite begins with, a button a game.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "suite/common.h"
#include "suite/game_window.h"

// A game of the suite.
struct GameEntry {
  const char* button;   // "cmdSumfall"
  const char* caption;  // "&Sumfall!"
  const char* title;    // `AppTitle`
  const char* what;     // what it is about, in a sentence
  // "Sumfall"
  std::string_view Name() const { return button + 3; }
  std::function<std::unique_ptr<GameWindow>(modCommon&)> create;
  int rounds = 2;  // before the bonus round
  // The guide to the game's window or to a dialog of its own; null for any other.
  std::unique_ptr<Guide> (*guide)(Form&) = nullptr;
};

class frmSelect : public Form {
 public:
  frmSelect(modCommon& common, const std::vector<GameEntry>& games);
  void Form_Load() override;
  void Form_Terminate() override;
  const std::vector<GameEntry>& Games() const { return games_; }
  // Opens a game's window; one for the deal of the day, if that is asked for.
  void Open(const GameEntry& game, bool today = false);

  modCommon& common;

  Frame frmGameChoice{*this, "frmGameChoice"};
  ControlArray<Image, 8> imgSplashImage{frmGameChoice, "imgSplashImage"};
  std::vector<std::unique_ptr<CommandButton>> gameButtons;
  CommandButton cmdLaunchBrowser{*this, "cmdLaunchBrowser"}, cmdClose{*this, "cmdClose"};
  Label lblCopyRight{*this, "lblCopyRight"};
  Timer Timer1{*this, "Timer1"};

 private:
  void Timer1_Timer();

  const std::vector<GameEntry>& games_;
  std::unique_ptr<GameWindow> window_;  // the game window opened last
  std::vector<std::unique_ptr<GameWindow>>
      gone_;  // those before it, while a handler of theirs may be under way
  int SplashPosition_ = 0, SplashBackIndex_ = 0;
  bool SplashForward_ = false, SplashShowBack_ = false;
};
