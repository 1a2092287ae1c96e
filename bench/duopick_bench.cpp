// How fast Duopick is without a screen: what a bot that plays it waits for.
#include <benchmark/benchmark.h>

#include "bench/board_moves.h"
#include "bench/open_table.h"
#include "games/duopick/duopick.h"
#include "tests/duopick_board_player.h"

namespace {

using namespace modDuopick;

struct Table : OpenTable<frmDuopick> {
  Table() : OpenTable("cmdDuopick") {}
};

// Two cards that may be taken, those that make a pair before those that make a run.
std::pair<int, int> LegalCards(const Board& board) {
  std::pair<int, int> run{-1, -1};
  std::array<int, kCards> exposed;
  int count = 0;
  for (int card = 0; card < kCards; ++card)
    if (board.CheckForLegalMove(card)) exposed[count++] = card;
  for (int a = 0; a < count; ++a)
    for (int b = a + 1; b < count; ++b) {
      const Match match = MatchOf(CardValue(board.Code(exposed[a])), CardValue(board.Code(exposed[b])));
      if (match == Match::Pair) return {exposed[a], exposed[b]};
      if (match == Match::Run) run = {exposed[a], exposed[b]};
    }
  return run;
}

// A selection and the match that follows, by turns.
void BM_CardClick(benchmark::State& state) {
  Table table;
  frmDuopick& game = *table.game;
  player::Click(game.cmdPlay);
  constexpr int kLowest = 18;
  int card = 0;
  for (auto _ : state) {
    if (card < kLowest + 1) {
      state.PauseTiming();
      if (game.board.selected != kNone) state.SkipWithError("two cards weren't taken");
      game.Deal();
      for (int each = kLowest; each < kField; ++each) game.board.field[each] = "7H";
      card = kField - 1;
      state.ResumeTiming();
    }
    player::Click(game.PlayCard(card--));
  }
}
BENCHMARK(BM_CardClick);

void BM_StackClick(benchmark::State& state) {
  Table table;
  frmDuopick& game = *table.game;
  player::Click(game.cmdPlay);
  for (auto _ : state) {
    if (game.board.stack.empty()) {
      std::swap(game.board.stack, game.board.waste);
      std::swap(game.board.stack.back(), game.board.waste.emplace_back());
      game.board.stack.pop_back();
    }
    player::Click(game.CardStackPicture);
  }
}
BENCHMARK(BM_StackClick);

void BM_WholeGame(benchmark::State& state) {
  PlayWholeGames<Table>(state, [](frmDuopick& game) {
    const auto [first, second] = LegalCards(game.board);
    if (first >= 0) {
      player::Click(game.PlayCard(first));
      player::Click(game.PlayCard(second));
      return 2;
    }
    if (!game.board.stack.empty())
      player::Click(game.CardStackPicture);
    else
      player::Click(game.cmdTakeScore);
    return 1;
  });
}
BENCHMARK(BM_WholeGame)->Unit(benchmark::kMicrosecond);

BENCHMARK(BM_BoardMoves<DuopickPlayer>);

}  // namespace

BENCHMARK_MAIN();
