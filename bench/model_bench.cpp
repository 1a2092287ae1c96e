// What the model alone costs: no window, no console, no waiting.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <optional>

#include "bench/board_moves.h"
#include "bench/null_front_end.h"
#include "games/games.h"
#include "games/sumfall/sumfall.h"
#include "suite/suite.h"
#include "tests/sumfall_board_player.h"

namespace {

// A suite in a folder of its own, in memory where there is such a place.
class Bench {
 public:
  Bench() {
    const std::filesystem::path memory = "/dev/shm";
    std::error_code error;
    folder_ =
        (std::filesystem::is_directory(memory, error) ? memory : std::filesystem::temp_directory_path()) /
        ("cardhaven-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
    platform.random.Seed(1);
    suite.emplace(platform, SuiteOptions{folder_}, AllGames());
    suite->Start();
  }
  ~Bench() {
    suite.reset();
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
  }

  void Open() { player::Click(*platform.FindForm("frmSelect")->find("cmdSumfall")); }
  frmSumfall& Game() { return static_cast<frmSumfall&>(*suite->common.window); }

  NullFrontEnd front;
  Platform platform{front};
  std::optional<Suite> suite;

 private:
  std::filesystem::path folder_;
};

// Selecting a card and deselecting it: two clicks.
void CardClick(benchmark::State& state) {
  Bench bench;
  bench.Open();
  player::Click(bench.Game().cmdPlay);
  Image& card = bench.Game().FieldCardPicture(21);
  if (CardValue(bench.Game().board.field[21]) >= bench.Game().CardGoal)
    state.SkipWithError("the card goes at once");
  for (auto _ : state) {
    player::Click(card);
    player::Click(card);
  }
  state.SetItemsProcessed(2 * state.iterations());
  state.counters["per click"] = benchmark::Counter(2.0 * static_cast<double>(state.iterations()),
                                                   benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(CardClick);

// A click as a player can make it; 0 if something stands in the way.
int Click(Control& control) {
  if (!player::WhyNot(control).empty()) return 0;
  player::Click(control);
  return 1;
}

// A player who takes what fits and turns cards until the pile is empty, for two rounds, counting down.
void WholeGame(benchmark::State& state) {
  Bench bench;
  bench.Open();
  frmSumfall& game = bench.Game();
  long clicks = 0;
  for (auto _ : state) {
    player::Click(game.cmdPlay);
    while (game.standing.InGame()) {
      for (int i = 0; i < modSumfall::kPlaces; ++i) clicks += Click(game.FieldCardPicture(i));
      clicks += Click(game.UpCardPicture);
      if (!game.standing.InGame()) break;  // the button would play the game again
      clicks += Click(game.board.stock.size() > 15 ? static_cast<Control&>(game.PlayCardPicture)
                                                   : game.cmdTakeScore);
    }
  }
  state.counters["clicks per game"] = static_cast<double>(clicks) / static_cast<double>(state.iterations());
}
BENCHMARK(WholeGame)->Unit(benchmark::kMicrosecond);

// The settings and the table are read, the settings written and synced to the disk.
void OpenAndClose(benchmark::State& state) {
  Bench bench;
  for (auto _ : state) {
    bench.Open();
    player::Close(bench.Game());
  }
}
BENCHMARK(OpenAndClose)->Unit(benchmark::kMicrosecond);

// One second of the round clock, with its dial.
void ClockTick(benchmark::State& state) {
  Bench bench;
  bench.Open();
  player::Click(bench.Game().cmdPlay);
  for (auto _ : state) {
    bench.Game().clock.ElapsedSeconds = 40;
    bench.Game().Timer1.OnTimer();
  }
}
BENCHMARK(ClockTick);

BENCHMARK(BM_BoardMoves<SumfallPlayer>);

}  // namespace

BENCHMARK_MAIN();
