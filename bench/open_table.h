// A suite with one game open, for measuring. Its folder can't be written, so that the tables are kept in
// memory.
#pragma once

#include <benchmark/benchmark.h>

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

// Whole games, from Play to "Game Over", with all that is counted and announced on the way. `turn(game)`
// makes the next move and returns its clicks.
template <class Table, class Turn>
void PlayWholeGames(benchmark::State& state, const Turn& turn) {
  Table table;
  auto& game = *table.game;
  long long clicks = 0;
  for (auto _ : state) {
    player::Click(game.cmdPlay);
    while (game.standing.InGame()) clicks += turn(game);
  }
  state.counters["clicks"] =
      benchmark::Counter(static_cast<double>(clicks), benchmark::Counter::kAvgIterations);
}
