// The suite in a page, which starts it by these calls.
#include <memory>

#include "games/games.h"
#include "suite/catalogue.h"
#include "suite/suite.h"
#include "window/system/web/host.h"
#include "window/web/web.h"

#define PAGE_CALL(name) extern "C" __attribute__((export_name(name)))

namespace {

std::unique_ptr<WebFrontEnd> front;

}  // namespace

// Runs until the player has closed the selector. `length` is that of the game's name which is to be opened at
// once, 0 for none.
PAGE_CALL("play") void Play(int length) {
  SuiteOptions options{"/card-haven"};
  options.game = host::Taken(length);
  front = std::make_unique<WebFrontEnd>(Catalogue(), MakeGuide);
  {
    Suite suite(front->platform, options, AllGames());
    suite.Start();
    front->platform.Run();
  }
  front.reset();
}

// The page is hidden, or goes for good. Both may come while the program waits.
PAGE_CALL("hidden") void Hidden() {
  if (front) front->Hidden();
}
PAGE_CALL("leaving") void Leaving() {
  if (front) front->Leaving();
}
