// How fast Fivestack is without a screen: what a bot that plays it waits for.
#include <benchmark/benchmark.h>

#include "bench/board_moves.h"
#include "bench/open_table.h"
#include "games/fivestack/fivestack.h"
#include "tests/fivestack_board_player.h"

namespace {

using namespace modFivestack;

struct Table : OpenTable<frmFivestack> {
  Table() : OpenTable("cmdFivestack") {}
};

// The fullest column that the next card doesn't ruin, or -1.
int BestColumn(const frmFivestack& game) {
  const Board& board = game.board;
  const int worth = FaceWorth(board.Next());
  int best = -1;
  for (int i = 0; i < kColumns; ++i) {
    const bool fits = board.Takes(i) && board.columns[i].total + worth <= kTwentyOne;
    if (fits && (best < 0 || board.columns[i].total > board.columns[best].total)) best = i;
  }
  return best;
}

// Small cards all over the board: the dearest click, since all five partial sums are shown.
void BM_HitClick(benchmark::State& state) {
  Table table;
  frmFivestack& game = *table.game;
  player::Click(game.cmdPlay);
  game.board.Deal(StandardDeck());
  int column = 0, cards = 0;
  for (auto _ : state) {
    if (cards == 20) {  // the next ones would close columns
      state.PauseTiming();
      if (game.CurrentRound != 1 || game.board.columns[4].cards.size() != 4)
        state.SkipWithError("a card wasn't laid");
      game.Reset();
      cards = 0;
      state.ResumeTiming();
    }
    game.board.position = 14 + 13 * (cards % 3) + 1 + cards % 4;  // twos to fives
    player::Click(game.cmdHit(column));
    column = (column + 1) % kColumns;
    ++cards;
  }
}
BENCHMARK(BM_HitClick);

void BM_PassClick(benchmark::State& state) {
  Table table;
  frmFivestack& game = *table.game;
  player::Click(game.cmdPlay);
  for (auto _ : state) {
    game.board.passesLeft = 10;
    if (game.board.position == 52) {
      game.board.position = 2;
      game.board.passed.clear();
    }
    player::Click(game.cmdPass);
  }
}
BENCHMARK(BM_PassClick);

void BM_WholeGame(benchmark::State& state) {
  PlayWholeGames<Table>(state, [](frmFivestack& game) {
    const int column = BestColumn(game);
    if (column >= 0)
      player::Click(game.cmdHit(column));
    else
      player::Click(game.cmdGiveUp);
    return 1;
  });
}
BENCHMARK(BM_WholeGame)->Unit(benchmark::kMicrosecond);

BENCHMARK(BM_BoardMoves<FivestackBoardPlayer>);

}  // namespace

BENCHMARK_MAIN();
