// How fast Spirehold is without a screen: what a bot that plays it waits for.
#include <benchmark/benchmark.h>

#include "bench/open_table.h"
#include "games/spirehold/spirehold.h"

namespace {

struct Table : OpenTable<frmSpirehold> {
  Table() : OpenTable("cmdSpirehold") {}
};

// The first card that may be taken, or -1.
int LegalCard(const frmSpirehold& game) {
  for (int card = 0; card < modSpirehold::kCards; ++card) {
    const Image& image = game.UpCardImage(card);
    if (image.Visible && image.Enabled &&
        modSpirehold::IsNeighbour(CardValue(game.DeckCards[card]), game.UpCardValue))
      return card;
  }
  return -1;
}

void BM_CardClick(benchmark::State& state) {
  Table table;
  frmSpirehold& game = *table.game;
  player::Click(game.cmdPlay);
  int card = 0;
  for (auto _ : state) {
    if (card < modSpirehold::kTowers) {  // the topmost cards stay, so that the round goes on
      state.PauseTiming();
      if (game.CurrentRun != 0 && game.CurrentRun != 25) state.SkipWithError("a card wasn't taken");
      game.Deal();
      game.TowersCompleted = 0;
      game.CurrentRun = 0;
      game.RunValue = 0;
      game.common.CurrentScore = 0;
      card = modSpirehold::kCards - 1;
      state.ResumeTiming();
    }
    game.UpCardValue = CardValue(game.DeckCards[card]) % 13 + 1;
    player::Click(game.UpCardImage(card--));
  }
}
BENCHMARK(BM_CardClick);

void BM_StackClick(benchmark::State& state) {
  Table table;
  frmSpirehold& game = *table.game;
  player::Click(game.cmdPlay);
  for (auto _ : state) {
    if (game.StackIndex == 52) game.StackIndex = modSpirehold::kFirstOfStack;
    player::Click(game.CardStackPicture);
  }
}
BENCHMARK(BM_StackClick);

void BM_WholeGame(benchmark::State& state) {
  PlayWholeGames<Table>(state, [](frmSpirehold& game) {
    const int card = LegalCard(game);
    if (card >= 0)
      player::Click(game.UpCardImage(card));
    else if (game.StackIndex < 52)
      player::Click(game.CardStackPicture);
    else
      player::Click(game.cmdTakeScore);
    return 1;
  });
}
BENCHMARK(BM_WholeGame)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
