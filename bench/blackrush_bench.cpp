// How fast Blackrush is without a screen: what a bot that plays it waits for.
#include <benchmark/benchmark.h>

#include "bench/board_moves.h"
#include "bench/open_table.h"
#include "games/blackrush/blackrush.h"
#include "tests/blackrush_board_player.h"

namespace {

struct Table : OpenTable<frmBlackrush> {
  Table() : OpenTable("cmdBlackrush") {}
};

// The column on which the next card makes most, or -1 if it goes over 21 everywhere.
int BestColumn(const frmBlackrush& game) {
  int best = -1;
  long long most = 0;
  for (int i = 0; i < modBlackrush::kColumns; ++i) {
    const Column21& column = game.board.columns[i];
    const int total = column.TotalWith(game.board.Next());
    if (total > kTwentyOne && column.softAces == 0) continue;
    if (total > most) best = i, most = total;
  }
  return best;
}

// Cards that make a 21 out of three, and a Five Card Gimme, in turn.
void BM_Hit(benchmark::State& state) {
  constexpr const char* kCards[] = {"7S", "7H", "7C", "2S", "2H", "2C", "2D", "3D"};
  Table table;
  frmBlackrush& game = *table.game;
  player::Click(game.cmdPlay);
  int card = 0;
  long long hits = 0;
  for (auto _ : state) {
    game.board.position = 20;
    game.common.CurrentScore = 0;
    game.board.ForgetTwentyOnes();
    game.board.gone.clear();
    game.board.deck[20] = kCards[card];
    card = (card + 1) % 8;
    player::Click(game.cmdHit(1));
    ++hits;
  }
  if (game.board.columns[1].cards.size() > 4 || hits == 0) state.SkipWithError("cards weren't laid");
}
BENCHMARK(BM_Hit);

void BM_WholeGame(benchmark::State& state) {
  PlayWholeGames<Table>(state, [](frmBlackrush& game) {
    const int column = BestColumn(game);
    if (column >= 0)
      player::Click(game.cmdHit(column));
    else if (game.cmdPass.Enabled)
      player::Click(game.cmdPass);
    else
      player::Click(game.cmdTakeScore);
    return 1;
  });
}
BENCHMARK(BM_WholeGame)->Unit(benchmark::kMicrosecond);

BENCHMARK(BM_BoardMoves<BlackrushBoardPlayer>);

}  // namespace

BENCHMARK_MAIN();
