// How fast Treyshift is without a screen: what a bot that plays it waits for.
#include <benchmark/benchmark.h>

#include "bench/board_moves.h"
#include "bench/open_table.h"
#include "games/treyshift/treyshift.h"
#include "tests/treyshift_board_player.h"

namespace {

using namespace modTreyshift;

struct Table : OpenTable<frmTreyshift> {
  Table() : OpenTable("cmdTreyshift") {}
};

// A deck of thirteen trips and four flushes, each of three cards in a row.
void DealInTrips(frmTreyshift& game) {
  CardCodes& deck = game.common.Deck;
  deck.resize(1);
  for (int rank = 1; rank <= 13; ++rank)
    for (char suit : {'S', 'H', 'C'}) deck.push_back(NumberedCode(rank, suit));
  for (int rank = 1; rank <= 13; ++rank) deck.push_back(NumberedCode(rank, 'D'));
  game.Deal();
  game.common.CurrentScore = 0;
}

// Every click counts: on the fan, then on a column, which is paid with each third card.
void BM_CardClick(benchmark::State& state) {
  Table table;
  frmTreyshift& game = *table.game;
  player::Click(game.cmdPlay);
  DealInTrips(game);
  for (auto _ : state) {
    if (game.board.DeckPosition == kUsedUp - 1) {
      state.PauseTiming();
      if (game.board.TripCount != 13 || game.board.RunCount != 4) state.SkipWithError("a column wasn't paid");
      DealInTrips(game);
      state.ResumeTiming();
    }
    player::Click(game.board.Selected() ? game.PlayCard(2) : game.UpCard(kInPlay));
  }
}
BENCHMARK(BM_CardClick);

// From storage slot to storage slot and back.
void BM_StorageClick(benchmark::State& state) {
  Table table;
  frmTreyshift& game = *table.game;
  player::Click(game.cmdPlay);
  player::Click(game.UpCard(kInPlay));
  player::Click(game.TempCard(0));
  int lies = 0;
  for (auto _ : state) {
    player::Click(game.TempCard(game.board.Selected() ? 1 - lies : lies));
    if (!game.board.Selected()) lies = 1 - lies;
  }
  if (game.board.TempCards[lies].empty()) state.SkipWithError("the card is lost");
}
BENCHMARK(BM_StorageClick);

bool Completes(int top, int middle, int rank) {
  return middle - top == rank - middle && middle - top >= -1 && middle - top <= 1;
}

// Where the card in play does most: a column that it completes or extends, an empty one, any with room.
Image* BestPlace(frmTreyshift& game) {
  const int rank = CardValue(game.board.UpCards[kInPlay]);
  Image* best = nullptr;
  int most = 0;
  const auto consider = [&](Image& place, int worth) {
    if (worth <= most) return;
    most = worth;
    best = &place;
  };
  for (int column = 0; column < kColumns; ++column) {
    const int top = CardValue(game.board.FieldCards[column]),
              middle = CardValue(game.board.FieldCards[column + kSecondRow]);
    if (!game.board.FieldCards[column + kThirdRow].empty()) continue;
    const int apart = rank > top ? rank - top : top - rank;
    if (top == 0)
      consider(game.PlayCard(column), 2);
    else if (middle == 0)
      consider(game.PlayCard(column), apart == 1 ? 3 : 1);
    else
      consider(game.PlayCard(column), Completes(top, middle, rank) ? 4 : 1);
  }
  for (int slot = 0; slot < kTempSlots; ++slot)
    if (game.board.TempCards[slot].empty()) consider(game.TempCard(slot), 1);
  return best;
}

// From Play to "Game Over", with all that is counted and announced on the way.
void BM_WholeGame(benchmark::State& state) {
  Table table;
  frmTreyshift& game = *table.game;
  long long clicks = 0;
  for (auto _ : state) {
    player::Click(game.mnuPlay);
    while (game.standing.InGame()) {
      Image* place = game.board.DeckPosition < kUsedUp ? BestPlace(game) : nullptr;
      clicks += 1 + (place != nullptr);
      if (place) {
        player::Click(game.UpCard(kInPlay));
        player::Click(*place);
      } else {
        player::Click(game.cmdTakeScore);
      }
    }
  }
  state.counters["clicks"] =
      benchmark::Counter(static_cast<double>(clicks), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_WholeGame)->Unit(benchmark::kMicrosecond);

BENCHMARK(BM_BoardMoves<TreyshiftPlayer>);

}  // namespace

BENCHMARK_MAIN();
