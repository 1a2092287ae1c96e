// The splash panel: what the game is, beside four cards that turn while no game is played.
#pragma once

#include "suite/common.h"
#include "suite/game_controls.h"

class Splash {
 public:
  Splash(GameControls& controls, modCommon& common, const GamePlan& plan);

  // Its words, once the window knows its game.
  void Load();
  void Show(bool visible);

 private:
  void Timer4_Timer();

  GameControls& controls_;
  modCommon& common_;
  const GamePlan& plan_;
  int position_ = 0;  // of the card whose turn it is
  bool forward_ = false, showBack_ = false;
};
