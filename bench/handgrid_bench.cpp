// How fast Handgrid is without a screen: what a bot that plays it waits for.
#include <benchmark/benchmark.h>

#include "bench/board_moves.h"
#include "bench/open_table.h"
#include "games/handgrid/handgrid.h"
#include "tests/handgrid_board_player.h"

namespace {

struct Table : OpenTable<frmHandgrid> {
  Table() : OpenTable("cmdHandgrid") {}
};

// Laying a card, with the judgement of all ten hands. The last cell stays empty, so that the round goes on.
void BM_CardClick(benchmark::State& state) {
  Table table;
  frmHandgrid& game = *table.game;
  player::Click(game.cmdPlay);
  int cell = 0;
  for (auto _ : state) {
    if (cell == modHandgrid::kCells - 1) {
      state.PauseTiming();
      if (std::ssize(game.board.stack) != 51 - cell) state.SkipWithError("a card wasn't laid");
      game.Reset(false);
      game.Deal();
      cell = 0;
      state.ResumeTiming();
    }
    player::Click(game.PlayCards(cell++));
  }
}
BENCHMARK(BM_CardClick);

// The same on a full board: each card goes over another one.
void BM_Overwrite(benchmark::State& state) {
  Table table;
  frmHandgrid& game = *table.game;
  player::Click(game.cmdPlay);
  for (int cell = 0; cell < modHandgrid::kCells - 1; ++cell) player::Click(game.PlayCards(cell));
  int cell = 0;
  for (auto _ : state) {
    modHandgrid::Board& board = game.board;
    board.overWritesUsed = 0;
    if (board.stack.size() == 1) {
      board.stack.insert(board.stack.end(), board.covered.begin(), board.covered.end());
      board.covered.clear();
    }
    player::Click(game.PlayCards(cell));
    cell = (cell + 1) % (modHandgrid::kCells - 1);
  }
}
BENCHMARK(BM_Overwrite);

// From Play to "Game Over": each grid is filled, paid by the second and announced.
void BM_WholeGame(benchmark::State& state) {
  Table table;
  frmHandgrid& game = *table.game;
  long long clicks = 0;
  for (auto _ : state) {
    game.standing.InputLives();  // the selector's timer doesn't tick here
    player::Click(game.cmdPlay);
    while (game.standing.InGame()) {
      game.standing.InputLives();
      for (int cell = 0; cell < modHandgrid::kCells; ++cell, ++clicks) player::Click(game.PlayCards(cell));
    }
  }
  state.counters["clicks"] =
      benchmark::Counter(static_cast<double>(clicks), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_WholeGame)->Unit(benchmark::kMicrosecond);

BENCHMARK(BM_BoardMoves<HandgridPlayer>);

}  // namespace

BENCHMARK_MAIN();
