// A suite with one game open, for measuring. Its folder can't be written, so that the tables are kept in
// memory.
#pragma once

#include "bench/null_front_end.h"
#include "games/games.h"
#include "suite/suite.h"

// `Window` is the game's window, `button` what opens it in the selector.
template <class Window>
struct OpenTable {
  explicit OpenTable(const char* button) {
    platform.random.Seed(1);
    suite.Start();
    player::Click(*platform.FindForm("frmSelect")->find(button));
    game = static_cast<Window*>(suite.common.window);
  }

  NullFrontEnd front;
  Platform platform{front};
  Suite suite{platform, {"/nowhere/to/be/found"}, AllGames()};
  Window* game;
};
