#include "record/recorder.h"

#include <utility>

#include "record/events.h"
#include "suite/game_window.h"
#include "window/moments.h"

namespace fs = std::filesystem;
using namespace record;

namespace {

constexpr long long kSlow = 50;  // milliseconds that a question may take, and the clock stands still

std::string List(const std::vector<std::string>& texts) {
  std::string list;
  for (const std::string& text : texts) list += " " + Quoted(text);
  return list;
}

}  // namespace

Recorder::Recorder(Platform& platform, std::string program)
    : platform_(platform), inner_(*platform.border), program_(std::move(program)) {
  platform.border = this;
}

Recorder::~Recorder() { platform_.border = &inner_; }

void Recorder::Attach(modCommon& common, const SuiteOptions& options) {
  common_ = &common;
  seedsAfresh_ = !platform_.random.Seeded();
  if (options.game.empty()) return;
  // Nothing else happens before that window opens.
  Begin();
  head_.opens = options.game;
  head_.today = options.today;
  head_.given = !seedsAfresh_;
}

// --- What happens --------------------------------------------------------------------------------

Event Recorder::Next(const Wait& wait) {
  Look();
  LookForEntry();
  given_.reset();
  Event event;
  {
    struct Within {
      std::vector<Serving>& servings;
      Within(std::vector<Serving>& servings, Serving serving) : servings(servings) {
        servings.push_back(serving);
      }
      ~Within() { servings.pop_back(); }
    } within{servings_, {wait.serving, platform_.HandlersUnderWay()}};
    event = inner_.Next(wait);
  }
  if (event.kind != Event::Kind::None && event.kind != Event::Kind::Over) {
    given_ = wait.serving;
  } else if (under_ && wait.serving != Wait::Serving::All) {
    known_->Passed(wait);
    const long long late = inner_.Milliseconds() - known_->clock;
    if (late != 0) {
      known_->clock += late;
      Put("waited" + Numbers({known_->waits, late}));
    }
  }
  return event;
}

// How many handlers were under way when the innermost wait began. A front end may serve what comes while none
// is without being asked for it.
int Recorder::HandlersServed() const { return servings_.empty() ? 0 : servings_.back().handlers; }

// What a handler makes tick itself by letting events through follows from what came in.
void Recorder::Entered(const Event& event) {
  const bool isRing = event.kind == Event::Kind::Tick && common_ && &event.control->form == common_->selector;
  if (isRing) ring_ = (ring_ + 1) % kRing;
  const bool handedOn = platform_.HandlersUnderWay() == HandlersServed();
  if (common_ && !inner_.MustLeave() && (given_ || handedOn)) {
    const Wait::Serving serving = given_              ? *given_
                                  : servings_.empty() ? Wait::Serving::All
                                                      : servings_.back().what;
    Look();
    if (platform_.HandlersUnderWay() == 0 && !common_->window) {
      if (seedsAfresh_) platform_.random.Seed(FreshSeed());
      Begin();
    }
    if (under_) {
      if (!platform_.random.Seeded()) platform_.random.Seed(head_.chance);
      if (const auto& deal = common_->nextDeal; deal && serving == Wait::Serving::All)
        Put("nextdeal" + Numbers({deal->number, deal->repeated}));
      if (common_->nextIsToday) Put("nextistoday");
      const long long now = inner_.Milliseconds();
      long long& clock = known_->clock;
      std::string line(NameOf(event.kind));
      if (serving != Wait::Serving::All) line += " @" + std::to_string(known_->waits);
      if (event.kind == Event::Kind::Tick) {
        clock = std::max(clock, *platform_.timers.NextDue());
        if (now != clock) line += Numbers({now - clock});
      } else {
        line += Numbers({now - clock}) + Told(event);
      }
      clock = now;
      Put(line);
      if (const DateTime moment = inner_.Now(); moment != known_->Now()) {
        known_->SetMoment(moment);
        Put("now " + IsoText(moment));
      }
    }
  }
  given_.reset();
  inner_.Entered(event);
}

uint64_t Recorder::FreshSeed() {
  RandomSource fresh;
  fresh.Stir(platform_.random.State() + inner_.Chance());
  return fresh.State();
}

void Recorder::Begin() {
  const long long clock = inner_.Milliseconds();
  under_ = true;
  opened_ = trouble_ = false;
  body_.clear();
  head_ = {};
  head_.program = program_;
  head_.opened = inner_.Now();
  head_.ring = ring_;
  if (const Timer* next = platform_.timers.Next(); next && &next->form == common_->selector)
    head_.ringDue = *platform_.timers.NextDue() - clock;
  head_.Take(*common_);
  if (!platform_.random.Seeded()) head_.chance = FreshSeed();
  known_ = std::make_unique<Known>(common_->files.Folder());
  known_->clock = clock;
  known_->SetMoment(head_.opened);
  head_.screen = known_->screen = inner_.ScreenExtent();
  touched_.clear();
  watch_ = {};
}

// Notices the ends of games and of the window.
void Recorder::Look() {
  if (!under_ || inner_.MustLeave()) return;
  if (common_->window) opened_ = true;
  const bool wasUnder = watch_.GameIsUnder();
  auto result = watch_.Look(*common_);
  if (!wasUnder && watch_.GameIsUnder() && onGameBegin) onGameBegin(watch_.Game(), known_->Now());
  if (result) {
    result->ended = known_->Now();
    Put("end " + result->game + " " + result->limit +
        Numbers({result->score, result->rounds, result->place, result->custom, result->deal}) + " " +
        IsoText(result->ended));
    if (onGameEnd) {
      const bool isWhole = body_.size() <= kLargest;
      std::string text =
          isWhole ? head_.Text(known_->shelf, trouble_ || head_.memory.HoldsTrouble()) + body_ : "";
      if (text.size() > kLargest) text.clear();
      onGameEnd(text, *result);
    }
  }
  if (opened_ && !common_->window) under_ = false;
}

// The name comes behind the place, when the player has written it.
void Recorder::LookForEntry() {
  if (!common_ || !onEntered) return;
  const TableEntry& entry = common_->lastEntry;
  if (entry.name.empty() || std::exchange(entered_, entry.number) == entry.number) return;
  onEntered(entry);
}

void Recorder::Put(const std::string& line) {
  if (body_.size() <= kLargest)
    body_.append(static_cast<size_t>(platform_.HandlersUnderWay()), ' ').append(line) += '\n';
  known_->LineDone();
}

void Recorder::Say(const std::string& comment) {
  if (under_ && body_.size() <= kLargest) body_ += "say " + Quoted(comment) + "\n";
}

// --- What is asked -------------------------------------------------------------------------------

// Whether a window asks, and not the front end for itself or the program that must go.
bool Recorder::Asks() {
  if (!under_ || inner_.MustLeave()) return false;
  if (platform_.HandlersUnderWay() <= HandlersServed()) return false;
  Look();
  if (!under_) return false;
  ++known_->asked;
  return true;
}

// The answer isn't what was to be expected.
void Recorder::Answered(const std::string& what) { Put("told" + Numbers({known_->asked}) + " " + what); }

// A disk that is slow takes time, and what waits until a moment must know it.
void Recorder::TakeTime() {
  const long long late = inner_.Milliseconds() - known_->clock;
  if (late < kSlow) return;
  known_->clock += late;
  Put("late" + Numbers({known_->asked, late}));
}

long long Recorder::Milliseconds() { return under_ ? known_->clock : inner_.Milliseconds(); }

// A window that opened before anything happened has its seed as soon as it asks for chance.
uint64_t Recorder::Chance() {
  if (under_ && !platform_.random.Seeded()) {
    platform_.random.Seed(head_.chance);
    return 0;
  }
  const uint64_t number = inner_.Chance() >> 1;
  if (Asks()) Answered("chance " + std::to_string(number));
  return number;
}

// While a handler runs the calendar stands still as the clock does, whoever looks at it.
DateTime Recorder::Now() {
  const bool inHandler = under_ && platform_.HandlersUnderWay() > HandlersServed();
  return inHandler ? known_->Now() : inner_.Now();
}

Extent Recorder::ScreenExtent() {
  const Extent screen = inner_.ScreenExtent();
  if (Asks() && screen != known_->screen) {
    known_->screen = screen;
    Answered("screen" + Numbers({screen.width, screen.height}));
  }
  return screen;
}

// Each text's extent is found in the head, unless it changes.
Extent Recorder::TextExtent(const Label& label) {
  const Extent extent = inner_.TextExtent(label);
  if (!Asks() || extent == known_->TextExtent(label)) return extent;
  const std::string key = KeyOf(label);
  if (known_->texts.insert_or_assign(key, extent).second)
    head_.texts[key] = extent;
  else
    Answered("text" + Numbers({extent.width, extent.height}));
  return extent;
}

std::string Recorder::FindBrowser() {
  const std::string browser = inner_.FindBrowser();
  if (Asks() && browser.empty()) Answered("nobrowser");
  return browser;
}

bool Recorder::OpenPage(const std::string& browser, const std::string& url) {
  const bool opened = inner_.OpenPage(browser, url);
  if (Asks() && !opened) Answered("nopage");
  return opened;
}

// A file is as it was found until somebody else changes it.
ReadOutcome Recorder::Read(const fs::path& path, std::string& text) {
  const ReadOutcome outcome = inner_.Read(path, text);
  if (!Asks()) return outcome;
  Shelf& shelf = known_->shelf;
  const std::string key = shelf.KeyOf(path);
  if (shelf.IsOutside(path)) head_.folder = common_->files.Folder().string();
  if (outcome == ReadOutcome::Refused) trouble_ = true;
  const bool isFirst = touched_.insert(key).second;
  std::string expected;
  const ReadOutcome foreseen = shelf.Read(path, expected);
  if (outcome == ReadOutcome::Read && isFirst && foreseen == ReadOutcome::Missing) {
    shelf.files[key] = head_.files[key] = text;
  } else if (outcome != foreseen || text != expected) {
    if (outcome == ReadOutcome::Read)
      shelf.files[key] = text;
    else if (outcome != ReadOutcome::Refused)
      shelf.files.erase(key);
    Answered("read" + Numbers({static_cast<long long>(outcome)}) + " " + Quoted(text));
  }
  TakeTime();
  return outcome;
}

std::vector<std::string> Recorder::Names(const fs::path& folder, Entries which) {
  std::vector<std::string> names = inner_.Names(folder, which);
  if (!Asks()) return names;
  if (known_->shelf.IsOutside(folder)) head_.folder = common_->files.Folder().string();
  std::vector<std::string> told = names;
  if (which == Entries::All)
    std::erase_if(told, [](const std::string& name) { return name.find(".late-") == std::string::npos; });
  if (which == Entries::Folders) std::erase_if(told, [](const std::string& name) { return name[0] == '.'; });
  std::ranges::sort(told);
  if (told != known_->shelf.Names(folder, which)) Answered("names" + List(told));
  TakeTime();
  return names;
}

std::vector<std::string> Recorder::Places() {
  std::vector<std::string> places = inner_.Places();
  if (!Asks()) return places;
  head_.folder = common_->files.Folder().string();
  if (places != known_->shelf.Places()) Answered("places" + List(places));
  return places;
}

fs::path Recorder::TargetOf(fs::path path) {
  fs::path target = inner_.TargetOf(path);
  if (Asks() && target != path) {
    if (known_->shelf.IsOutside(target)) head_.folder = common_->files.Folder().string();
    Answered("target " + Quoted(known_->shelf.KeyOf(target)));
  }
  return target;
}

WriteOutcome Recorder::Replace(const fs::path& path, const std::string& text, bool hurries) {
  const WriteOutcome outcome = inner_.Replace(path, text, hurries);
  if (!Asks()) return outcome;
  if (known_->shelf.IsOutside(path)) head_.folder = common_->files.Folder().string();
  touched_.insert(known_->shelf.KeyOf(path));
  if (outcome == WriteOutcome::Written)
    known_->shelf.Replace(path, text, hurries);
  else
    Answered("written" + Numbers({static_cast<long long>(outcome)}));
  TakeTime();
  return outcome;
}

bool Recorder::Append(const fs::path& path, const std::string& line, const Ledger& ledger, bool hurries) {
  const bool done = inner_.Append(path, line, ledger, hurries);
  if (!Asks()) return done;
  if (!done) Answered("failed");
  TakeTime();
  return done;
}

std::vector<std::string> Recorder::LinesWith(const fs::path& path, std::string_view text) {
  std::vector<std::string> lines = inner_.LinesWith(path, text);
  if (!Asks()) return lines;
  if (!lines.empty()) Answered("lines" + List(lines));
  TakeTime();
  return lines;
}

bool Recorder::PutAside(const fs::path& path) {
  const bool done = inner_.PutAside(path);
  if (!Asks()) return done;
  if (!done)
    Answered("failed");
  else
    known_->shelf.PutAside(path);
  TakeTime();
  return done;
}

bool Recorder::Rename(const fs::path& from, const fs::path& to) {
  const bool done = inner_.Rename(from, to);
  if (Asks() && known_->shelf.Rename(from, to) != done) Answered(done ? "done" : "failed");
  return done;
}

void Recorder::Remove(const fs::path& path) {
  inner_.Remove(path);
  if (Asks()) known_->shelf.Remove(path);
}

FolderLock Recorder::Lock(const fs::path& folder, int patience, const std::function<bool()>& mustHurry) {
  FolderLock lock = inner_.Lock(folder, patience, mustHurry);
  if (!Asks()) return lock;
  if (!lock.Held() || !lock.FolderIsThere()) Answered("lock" + Numbers({lock.Held(), lock.FolderIsThere()}));
  TakeTime();
  return lock;
}
