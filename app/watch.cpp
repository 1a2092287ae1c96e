#include "app/watch.h"

#include <cstdlib>
#include <iostream>

#include "games/games.h"
#include "record/replay.h"
#include "suite/catalogue.h"
#include "window/desktop/watching.h"
#include "window/text.h"

namespace {

using record::Moment;
using record::Verdict;

class Screening : public record::Viewer {
 public:
  explicit Screening(WatchingDesktop& desktop) : desktop_(desktop) {}
  void Passes(const Moment& moment) override {
    desktop_.Pass(moment.passes, moment.at, moment.step, moment.isDeed);
  }
  void Says(const std::string& comment) override { desktop_.Say(comment); }
  void Comes(const Event& event) override { desktop_.Comes(event); }
  void Ended() override { desktop_.AtEnd(); }

 private:
  WatchingDesktop& desktop_;
};

Recording Describe(const record::Contents& contents, const GameResult& result) {
  Recording recording;
  recording.length = contents.length;
  recording.hasComments = contents.comments > 0;
  recording.title = result.game + ", " + FormatNumber(result.score) + " points";
  const bool hasMany = !contents.rounds.empty() && contents.rounds.back().game > 1;
  for (const record::Round& round : contents.rounds)
    recording.rounds.push_back({(hasMany ? "Game " + std::to_string(round.game) + ", round " : "Round ") +
                                    std::to_string(round.number),
                                round.step, round.at});
  return recording;
}

}  // namespace

void TakeRecord(Options& options) {
  std::string text;
  if (options.console || options.savedGame.empty()) return;
  if (Disk().Read(options.savedGame, text) == ReadOutcome::Read && record::BeginsAsRecord(text))
    options.watched = options.savedGame;
}

int Watch(char** argv, const Options& options, const DesktopOptions& desktop) {
  std::string text;
  record::Contents contents;
  Verdict verdict = record::ReadRecord(options.watched, text);
  if (verdict.why.empty()) verdict = LookThrough(text, CARDHAVEN_VERSION, AllGames(), contents);
  if (verdict.kind != Verdict::Kind::Holds) {
    std::cerr << "cardhaven: " << options.watched << ": " << verdict.Text() << std::endl;
    TellOfRecord(argv, verdict.Text());
    return static_cast<int>(verdict.kind);
  }
  return RunWatching(argv, desktop, Catalogue(), Describe(contents, verdict.result),
                     [&](WatchingDesktop& windows) {
                       Screening screening(windows);
                       ReplayBefore(screening, text, CARDHAVEN_VERSION, AllGames(), &windows.platform);
                     });
}
