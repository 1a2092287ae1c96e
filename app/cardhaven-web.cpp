// The suite in a page, which starts it by these calls.
#include <memory>

#include "app/records.h"
#include "app/showing.h"
#include "games/games.h"
#include "history/history.h"
#include "suite/catalogue.h"
#include "suite/dialogs.h"
#include "suite/suite.h"
#include "window/system/web/host.h"
#include "window/web/page.h"
#include "window/web/watching.h"
#include "window/web/web.h"

#define PAGE_CALL(name) extern "C" __attribute__((export_name(name)))

namespace {

// The browser has some 5 MB for everything.
constexpr record::Room kRoom{20, 1'500'000};

constexpr char kAppPath[] = "/card-haven";

std::unique_ptr<WebFrontEnd> front;

// The records of a table's entries are played again one by one, and those that hold are marked.
WebFrontEnd::Chore ProveTable(Form& form) {
  auto* const fame = dynamic_cast<frmHighScores*>(&form);
  if (!fame) return nullptr;
  record::Keeper keeper(kAppPath);
  return [fame, keeper, entries = keeper.Entries(fame->Table()), next = size_t{0}]() mutable {
    if (next == entries.size()) return false;
    const record::KeptEntry& entry = entries[next++];
    const bool holds =
        entry.place < kTablePlaces &&
        keeper.Check(entry, CARDHAVEN_VERSION, AllGames()).kind == record::Verdict::Kind::Holds;
    if (holds)
      front->Mark(fame->ScoreList(2 * static_cast<int>(entry.place) + 1), entry.place + 1, entry.record);
    return next < entries.size();
  };
}

}  // namespace

// Runs until the player has closed the selector. `length` is that of the game's name which is to be opened at
// once, behind "today " with the deal of the day; 0 for none.
PAGE_CALL("play") void Play(int length) {
  constexpr std::string_view kToday = "today ";
  SuiteOptions options{kAppPath};
  options.game = host::Taken(length);
  options.today = options.game.starts_with(kToday);
  if (options.today) options.game.erase(0, kToday.size());
  front = std::make_unique<WebFrontEnd>(Catalogue(), MakeGuide,
                                        Played{options.AppPath / kHistoryFile, KnownGames()});
  front->choreFor = ProveTable;
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

// Shows a record of that length until the viewer leaves.
PAGE_CALL("watch") void Watch(int length) {
  const std::string text = host::Taken(length);
  record::Contents contents;
  const record::Verdict verdict = LookThrough(text, CARDHAVEN_VERSION, AllGames(), contents);
  WatchingPage page(Catalogue(), MakeGuide, Describe(contents, verdict.result));
  if (verdict.kind == record::Verdict::Kind::Holds)
    page.Play([&] { Show(page.watching, text, page.platform); });
  else
    page.Refuse(verdict.Text());
}
// Answers by `page::Answer` whether a record of that length holds, in a line.
PAGE_CALL("verdict") void Verdict(int length) {
  Json answer;
  answer.Write(record::Replay(host::Taken(length), CARDHAVEN_VERSION, AllGames()).Text());
  page::Answer(answer.Text().data(), answer.Text().size());
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
