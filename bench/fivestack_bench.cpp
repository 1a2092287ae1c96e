// How fast Fivestack is without a screen: what a bot that plays it waits for.
#include <benchmark/benchmark.h>

#include "bench/open_table.h"
#include "games/fivestack/fivestack.h"

namespace {

using namespace modFivestack;

struct Table : OpenTable<frmFivestack> {
  Table() : OpenTable("cmdFivestack") {}
};

// The fullest column that the next card doesn't ruin, or -1.
int BestColumn(const frmFivestack& game) {
  const int worth = GetCardValue(game.common.Deck, game.DeckPosition);
  int best = -1;
  for (int i = 0; i < kColumns; ++i) {
    const Column21& column = game.columns[i];
    const bool fits = column.cards < kCardsOfColumn && column.total + worth <= kTwentyOne;
    if (fits && (best < 0 || column.total > game.columns[best].total)) best = i;
  }
  return best;
}

// Small cards all over the board: the dearest click, since all five partial sums are shown.
void BM_HitClick(benchmark::State& state) {
  Table table;
  frmFivestack& game = *table.game;
  player::Click(game.cmdPlay);
  game.common.Deck = StandardDeck();
  int column = 0, cards = 0;
  for (auto _ : state) {
    if (cards == 20) {  // the next ones would close columns
      state.PauseTiming();
      if (game.CurrentRound != 1 || game.columns[4].cards != 4) state.SkipWithError("a card wasn't laid");
      game.Reset();
      cards = 0;
      state.ResumeTiming();
    }
    game.DeckPosition = 14 + 13 * (cards % 3) + 1 + cards % 4;  // twos to fives
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
    game.PassesLeft = 10;
    if (game.DeckPosition == 52) game.DeckPosition = 2;
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

}  // namespace

BENCHMARK_MAIN();
