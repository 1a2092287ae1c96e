// How fast Spirehold is without a screen: what a bot that plays it waits for.
#include <benchmark/benchmark.h>

#include "bench/board_moves.h"
#include "bench/open_table.h"
#include "games/spirehold/spirehold.h"
#include "tests/spirehold_board_player.h"

namespace {

struct Table : OpenTable<frmSpirehold> {
  Table() : OpenTable("cmdSpirehold") {}
};

// The first card that may be taken, or -1.
int LegalCard(const modSpirehold::Board& board) {
  for (int card = 0; card < modSpirehold::kCards; ++card)
    if (board.CheckForLegalMove(card)) return card;
  return -1;
}

void BM_CardClick(benchmark::State& state) {
  Table table;
  frmSpirehold& game = *table.game;
  player::Click(game.cmdPlay);
  const CardCodes spades = StandardDeck();
  int card = 0;
  for (auto _ : state) {
    if (card < modSpirehold::kTowers) {  // the topmost cards stay, so that the round goes on
      state.PauseTiming();
      if (game.board.CurrentRun != 0 && game.board.CurrentRun != 25)
        state.SkipWithError("a card wasn't taken");
      game.Deal();
      game.board.RunValue = 0;
      game.common.CurrentScore = 0;
      card = modSpirehold::kCards - 1;
      state.ResumeTiming();
    }
    game.board.pile.back() = spades[CardValue(game.board.table[card]) % 13 + 1];
    player::Click(game.UpCardImage(card--));
  }
}
BENCHMARK(BM_CardClick);

void BM_StackClick(benchmark::State& state) {
  Table table;
  frmSpirehold& game = *table.game;
  player::Click(game.cmdPlay);
  for (auto _ : state) {
    if (game.board.stack.empty()) game.board.stack.swap(game.board.pile);
    if (game.board.pile.empty()) game.board.pile.push_back(game.board.stack.back());
    player::Click(game.CardStackPicture);
  }
}
BENCHMARK(BM_StackClick);

void BM_WholeGame(benchmark::State& state) {
  PlayWholeGames<Table>(state, [](frmSpirehold& game) {
    const int card = LegalCard(game.board);
    if (card >= 0)
      player::Click(game.UpCardImage(card));
    else if (!game.board.stack.empty())
      player::Click(game.CardStackPicture);
    else
      player::Click(game.cmdTakeScore);
    return 1;
  });
}
BENCHMARK(BM_WholeGame)->Unit(benchmark::kMicrosecond);

BENCHMARK(BM_BoardMoves<SpireholdPlayer>);

}  // namespace

BENCHMARK_MAIN();
