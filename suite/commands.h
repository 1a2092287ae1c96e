// The four commands of a game, Play, Take Score, Pause and Exit, as buttons and as entries of its menu.
#pragma once

#include <vector>

#include "suite/game_controls.h"

class Commands {
  GameControls& controls_;
  const GamePlan& plan_;

 public:
  Commands(GameControls& controls, const GamePlan& plan) : controls_(controls), plan_(plan) {}

  // The buttons; the entries; the entries for what can't be changed during a game.
  void EnableButtons(bool enable);
  void EnableEntries(bool enable);
  void EnableOptions(bool enable);
  // Buttons and entries of what a paused game doesn't take.
  void EnableAllButPause(bool enable);
  // As they are while no game is played.
  void Rest();

  void SetPlayCaption(const char* caption);
  void SetPauseCaptions(bool paused);
  // The tool tip of Play while a game can be started.
  void TellStart() { controls_.cmdPlay.ToolTipText = "Starts a new game"; }

  // A game adds its own.
  std::vector<Menu*> gameOptions{&controls_.mnuCustom, &controls_.mnuTime};
};
