// The suite in a page, which starts it by these calls.
#include <memory>

#include "app/records.h"
#include "games/games.h"
#include "history/history.h"
#include "suite/catalogue.h"
#include "suite/suite.h"
#include "window/system/web/host.h"
#include "window/web/page.h"
#include "window/web/web.h"

#define PAGE_CALL(name) extern "C" __attribute__((export_name(name)))

namespace {

// The browser has some 5 MB for everything.
constexpr record::Room kRoom{20, 1'500'000};

std::unique_ptr<WebFrontEnd> front;

}  // namespace

// Runs until the player has closed the selector. `length` is that of the game's name which is to be opened at
// once, behind "today " with the deal of the day; 0 for none.
PAGE_CALL("play") void Play(int length) {
  constexpr std::string_view kToday = "today ";
  SuiteOptions options{"/card-haven"};
  options.game = host::Taken(length);
  options.today = options.game.starts_with(kToday);
  if (options.today) options.game.erase(0, kToday.size());
  front = std::make_unique<WebFrontEnd>(Catalogue(), MakeGuide,
                                        Played{options.AppPath / kHistoryFile, KnownGames()});
  {
    RecordKeeper keeper(
        front->platform, {}, [] { return page::KeepsRecords() != 0; }, kRoom);
    Suite suite(front->platform, options, AllGames());
    keeper.Attach(suite.common, options);
    suite.Start();
    front->platform.Run();
  }
  front.reset();
}

// The page is hidden, or goes for good. Both may come while the program waits.
PAGE_CALL("hidden") void Hidden() {
  if (front) front->Hidden();
}
// Answers by `page::Answer` what the page asks for, also while the program waits.
PAGE_CALL("ask") void Ask(int length) {
  const std::string question = host::Taken(length), answer = front ? front->Ask(question) : "";
  page::Answer(answer.data(), answer.size());
}
PAGE_CALL("leaving") void Leaving() {
  if (front) front->Leaving();
}
