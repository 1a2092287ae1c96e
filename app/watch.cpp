#include "app/watch.h"

#include <cstdlib>
#include <iostream>

#include "app/showing.h"
#include "games/games.h"
#include "record/replay.h"
#include "suite/catalogue.h"
#include "window/desktop/watching.h"

using record::Verdict;

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
                     [&](WatchingDesktop& windows) { Show(windows.watching, text, windows.platform); });
}
