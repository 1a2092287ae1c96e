#include "record/replay.h"

#include <utility>

#include "record/events.h"
#include "suite/suite.h"
#include "window/moments.h"

namespace fs = std::filesystem;

namespace record {

namespace {

using Serving = Wait::Serving;

// More waits than any game has: a changed record must not count for ever.
constexpr int kMostWaits = 300'000;

// Ends the run, wherever it is. No exception of the usual kind, which handlers would deal with.
struct Stop {
  Verdict verdict;
};

class Player : public FrontEnd {
  std::unique_ptr<Platform> own_;

 public:
  Player(LineReader lines, const Head& head, Viewer* viewer, Platform* shown)
      : own_(shown ? nullptr : std::make_unique<Platform>(*this)),
        platform(shown ? *shown : *own_),
        lines_(lines),
        head_(head),
        viewer_(viewer),
        known_(head.folder.empty() ? kFolder : head.folder) {
    platform.border = this;
    platform.random = {};
    known_.shelf.files = {head.files.begin(), head.files.end()};
    known_.screen = head.screen;
    known_.texts = head.texts;
  }

  ~Player() override { platform.border = &platform.front; }

  Platform& platform;

  // Lets the window find what it found, and goes on until the last game has ended.
  void Run(std::vector<GameEntry> games) {
    SuiteOptions options;
    options.AppPath = head_.folder.empty() ? kFolder : head_.folder;
    options.game = head_.opens;
    options.today = head_.today;
    Suite suite(platform, options, std::move(games));
    const auto begin = [&] {
      known_.clock = platform.timers.NextDue().value_or(0) - head_.ringDue;
      known_.SetMoment(head_.opened);
      head_.Give(suite.common);
      common_ = &suite.common;
      Advance();
    };
    if (!head_.opens.empty()) begin();
    suite.Start();
    for (int i = 0; i < head_.ring; ++i) {
      known_.clock = platform.timers.NextDue().value_or(0);
      platform.Enter({Event::Kind::Tick});
    }
    if (head_.opens.empty()) begin();
    platform.Run();
    Fail("nothing more happens");
  }

  Event Next(const Wait& wait) override {
    if (!common_) return {Event::Kind::Over};
    Look();
    if (what_ == "nextistoday") {
      common_->nextIsToday = true;
      Advance();
    }
    if (what_ == "nextdeal") {
      const int number = static_cast<int>(line_.Number(0, kLastDeal));
      common_->nextDeal = DealName{number, line_.Flag()};
      Advance();
    }
    if (++waits_ > kMostWaits) Fail("it doesn't come to an end");
    if (wait.serving == Serving::All) return TakeEvent();
    while (kind_ != Event::Kind::None && at_ == known_.waits) platform.Enter(TakeEvent(known_.waits));
    const long long before = known_.clock;
    known_.Passed(wait);
    TakeTime("waited", known_.waits);
    Pass(known_.clock - before, false);
    return {};
  }
  void Entered(const Event&) override {
    Look();
    if (common_ && !platform.random.Seeded()) platform.random.Seed(head_.chance);
  }

  long long Milliseconds() override { return known_.clock; }
  uint64_t Chance() override {
    if (!platform.random.Seeded()) {
      platform.random.Seed(head_.chance);
      return 0;
    }
    if (!Asks("chance")) return 0;
    const auto number = static_cast<uint64_t>(line_.Number(0, INT64_MAX));
    Advance();
    return number;
  }
  DateTime Now() override { return known_.Now(); }
  Extent ScreenExtent() override {
    if (Asks("screen")) {
      known_.screen = ReadExtent(line_);
      Advance();
    }
    return known_.screen;
  }
  Extent TextExtent(const Label& label) override {
    if (Asks("text")) {
      known_.texts[KeyOf(label)] = ReadExtent(line_);
      Advance();
    }
    return known_.TextExtent(label);
  }
  std::string FindBrowser() override { return Is("nobrowser") ? "" : "browser"; }
  bool OpenPage(const std::string&, const std::string&) override { return !Is("nopage"); }
  bool MustLeave() override { return false; }
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}

  ReadOutcome Read(const fs::path& path, std::string& text) override {
    ReadOutcome outcome = ReadOutcome::Missing;
    if (Asks("read")) {
      outcome = static_cast<ReadOutcome>(line_.Number(0, 3));
      text = line_.Word();
      const std::string key = known_.shelf.KeyOf(path);
      if (outcome == ReadOutcome::Read)
        known_.shelf.files[key] = text;
      else if (outcome != ReadOutcome::Refused)
        known_.shelf.files.erase(key);
      Advance();
    } else {
      outcome = known_.shelf.Read(path, text);
    }
    Late();
    return outcome;
  }
  std::vector<std::string> Names(const fs::path& folder, Entries which) override {
    auto names = Asks("names") ? ReadList() : known_.shelf.Names(folder, which);
    Late();
    return names;
  }
  std::vector<std::string> Places() override { return Asks("places") ? ReadList() : known_.shelf.Places(); }
  fs::path TargetOf(fs::path path) override {
    if (!Asks("target")) return path;
    path = known_.shelf.PathOf(line_.Word());
    Advance();
    return path;
  }
  WriteOutcome Replace(const fs::path& path, const std::string& text, bool hurries) override {
    WriteOutcome outcome = WriteOutcome::Written;
    if (Asks("written")) {
      outcome = static_cast<WriteOutcome>(line_.Number(1, 2));
      Advance();
    } else {
      known_.shelf.Replace(path, text, hurries);
    }
    Late();
    return outcome;
  }
  bool Append(const fs::path&, const std::string&, const Ledger&, bool) override {
    const bool failed = Is("failed");
    Late();
    return !failed;
  }
  std::vector<std::string> LinesWith(const fs::path&, std::string_view) override {
    auto found = Asks("lines") ? ReadList() : std::vector<std::string>();
    Late();
    return found;
  }
  bool PutAside(const fs::path& path) override {
    const bool failed = Is("failed");
    if (!failed) known_.shelf.PutAside(path);
    Late();
    return !failed;
  }
  bool Rename(const fs::path& from, const fs::path& to) override {
    const bool done = known_.shelf.Rename(from, to);
    return Is(done ? "failed" : "done") ? !done : done;
  }
  void Remove(const fs::path& path) override {
    if (Asks("nothing")) Advance();
    known_.shelf.Remove(path);
  }
  void Sync(const fs::path&) override {}
  void Sweep(const fs::path&) override {}
  std::string Suffix() override { return known_.shelf.Suffix(); }
  FolderLock Lock(const fs::path&, int, const std::function<bool()>&) override {
    bool held = true, isThere = true;
    if (Asks("lock")) {
      held = line_.Flag();
      isThere = line_.Flag();
      Advance();
    }
    Late();
    return {held, isThere};
  }

 private:
  [[noreturn]] void Fail(const std::string& why) const {
    const std::string where = hasLine_ ? "line " + std::to_string(line_.number) + ": " : "at its end: ";
    throw Stop{{Verdict::Kind::Fails, where + why, {}}};
  }

  // Time passes as it did, before whoever looks on.
  void Pass(long long milliseconds, bool isDeed) {
    if (!viewer_) return;
    if (!comment_.empty()) viewer_->Says(std::exchange(comment_, ""));
    if (watch_.GameIsUnder() && !inGame_) ++game_;
    inGame_ = watch_.GameIsUnder();
    viewer_->Passes({milliseconds, passed_, step_++, game_, inGame_ ? common_->deal.Decks() : 0, isDeed});
    passed_ += std::max(0ll, milliseconds);
  }

  // On to the next line; what stands on this one must have been read.
  void Advance() {
    if (hasLine_) line_.End();
    known_.LineDone();
    while ((hasLine_ = lines_.Read(line_))) {
      what_ = line_.Word();
      if (what_ != "say") break;
      comment_ = line_.Word();
      line_.End();
    }
    if (!hasLine_) what_ = "";
    kind_ = KindOf(what_);
    const bool counts = what_ == "told" || what_ == "waited" || what_ == "late";
    if (hasLine_ && kind_ == Event::Kind::None && !counts && what_ != "end" && what_ != "nextdeal" &&
        what_ != "nextistoday" && what_ != "now")
      line_.Wrong("there is nothing like \"" + what_ + "\"");
    at_ = counts ? line_.Number(0, kMostWaits) : -1;
    if (kind_ == Event::Kind::None) return;
    if (line_.Peek().starts_with('@')) at_ = line_.NumberBehind('@', 0, kMostWaits);
    time_ = kind_ == Event::Kind::Tick && line_.AtEnd() ? 0 : line_.Number(-kLongest, kLongest);
  }

  // A question; true if the record holds an answer of that kind to it, which stands in `line_`.
  bool Asks(std::string_view what) {
    if (!common_) return false;
    Look();
    ++known_.asked;
    if (what_ != "told" || at_ != known_.asked) return false;
    if (line_.Peek() != what) Fail("the windows ask for " + std::string(what));
    line_.Word();
    return true;
  }
  bool Is(std::string_view what) {
    const bool is = Asks(what);
    if (is) Advance();
    return is;
  }
  void TakeTime(std::string_view what, int at) {
    if (what_ != what || at_ != at) return;
    known_.clock += line_.Number(-kLongest, kLongest);
    Advance();
  }
  void Late() { TakeTime("late", known_.asked); }

  std::vector<std::string> ReadList() {
    std::vector<std::string> list;
    while (!line_.AtEnd()) list.push_back(line_.Word());
    Advance();
    return list;
  }

  // The next event, that came while the windows waited as they do now: `waits` waits behind the line before,
  // where pending events were let through.
  Event TakeEvent(int waits = -1) {
    if (kind_ == Event::Kind::None) Fail(hasLine_ ? "an event should stand there" : "nothing more happens");
    if (at_ != waits) Fail("it came in another wait");
    if (line_.depth != static_cast<size_t>(platform.HandlersUnderWay()))
      Fail("it doesn't stand at its depth");
    std::string whyNot;
    current_ = ReadEvent(line_, kind_, platform, whyNot);
    current_.event.text = current_.text;
    if (!whyNot.empty()) Fail(whyNot);
    const long long before = known_.clock;
    if (kind_ == Event::Kind::Tick) known_.clock = std::max(known_.clock, *platform.timers.NextDue());
    known_.clock += time_;
    if (viewer_) {
      viewer_->Comes(current_.event);
      Pass(known_.clock - before, kind_ != Event::Kind::Tick && kind_ != Event::Kind::Foresee);
    }
    Advance();
    if (what_ == "now") {
      known_.SetMoment(ReadMoment(line_));
      Advance();
    }
    return current_.event;
  }

  // Where the recorder has noticed the end of a game, so do we.
  void Look() {
    if (!common_) return;
    auto result = watch_.Look(*common_);
    if (!result) return;
    result->ended = known_.Now();
    if (what_ != "end") Fail("a game ends");
    GameResult told;
    told.game = line_.Word();
    told.limit = line_.Word();
    told.score = line_.Number(INT64_MIN, INT64_MAX);
    told.rounds = static_cast<int>(line_.Number(0, 1000));
    told.place = static_cast<int>(line_.Number(0, 100));
    told.custom = line_.Flag();
    told.deal = static_cast<int>(line_.Number(0, kLastDeal));
    told.ended = ReadMoment(line_);
    told.table = result->table;
    if (told != *result)
      Fail("the game ended with " + std::to_string(result->score) + " points after " +
           std::to_string(result->rounds) + " rounds, at place " + std::to_string(result->place));
    Advance();
    if (hasLine_) return;
    if (viewer_) viewer_->Ended();
    throw Stop{{Verdict::Kind::Holds, "", *result}};
  }

  LineReader lines_;
  Line line_;  // the next one
  bool hasLine_ = false;
  std::string what_;                      // its first word
  Event::Kind kind_ = Event::Kind::None;  // which event that is
  long long at_ = -1;   // at which question or wait since the line before; -1 for an event in a common wait
  long long time_ = 0;  // that has passed until the event

  const Head& head_;
  Viewer* const viewer_;
  std::string comment_;  // on what comes next
  long long passed_ = 0;
  int game_ = 0;  // the number of the one that began last
  bool inGame_ = false;
  int step_ = 0;
  Known known_;
  modCommon* common_ = nullptr;  // from the record's beginning on
  GameWatch watch_;
  Again current_;
  int waits_ = 0;
};

// How a record is to be played again.
struct Asked {
  Observer* trace = nullptr;
  Viewer* viewer = nullptr;
  Platform* platform = nullptr;
};

Verdict Judge(std::string_view text, const Head& head, LineReader lines, std::vector<GameEntry> games,
              const Asked& asked) {
  const size_t last = text.size() > 1 ? text.rfind('\n', text.size() - 2) : std::string_view::npos;
  const size_t word = last == std::string_view::npos ? last : text.find_first_not_of(' ', last + 1);
  if (word == std::string_view::npos || !text.substr(word).starts_with("end "))
    throw NoRecord{"it doesn't end with a game"};
  try {
    Player player(lines, head, asked.viewer, asked.platform);
    if (asked.trace) player.platform.trace = asked.trace;
    player.Run(std::move(games));
  } catch (const Stop& stop) {
    return stop.verdict;
  }
  return {};
}

Verdict Replay(std::string_view text, const std::string& program, std::vector<GameEntry> games,
               const Asked& asked) {
  try {
    LineReader lines(text);
    const Head head = ReadHead(lines);
    Verdict verdict = Judge(text, head, lines, std::move(games), asked);
    if (verdict.kind == Verdict::Kind::Fails && head.program != program)
      return {Verdict::Kind::NoRecord,
              "version " + head.program + " made it, which played differently (" + verdict.why + ")",
              {}};
    return verdict;
  } catch (const NoRecord& why) {
    return {Verdict::Kind::NoRecord, why.why, {}};
  }
}

}  // namespace

std::string Verdict::Text() const {
  if (kind == Kind::Fails) return "fails: " + why;
  if (kind == Kind::NoRecord) return "no record: " + why;
  return "holds " + result.game + " " + result.limit + " " + std::to_string(result.score) + " " +
         std::to_string(result.place) + " " + IsoText(result.ended) + (result.custom ? " custom" : "");
}

Verdict Replay(std::string_view text, const std::string& program, std::vector<GameEntry> games,
               Observer* trace) {
  return Replay(text, program, std::move(games), Asked{.trace = trace});
}

Verdict ReplayBefore(Viewer& viewer, std::string_view text, const std::string& program,
                     std::vector<GameEntry> games, Platform* platform) {
  return Replay(text, program, std::move(games), Asked{.viewer = &viewer, .platform = platform});
}

Verdict LookThrough(std::string_view text, const std::string& program, std::vector<GameEntry> games,
                    Contents& contents) {
  class Reader : public Viewer {
   public:
    explicit Reader(Contents& contents) : contents_(contents) {}
    void Passes(const Moment& moment) override {
      contents_.length = moment.at + std::max(0ll, moment.passes);
      const bool isNew = contents_.rounds.empty() || contents_.rounds.back().game != moment.game ||
                         contents_.rounds.back().number < moment.round;
      if (moment.round > 0 && isNew)
        contents_.rounds.push_back({moment.game, moment.round, moment.step, moment.at});
    }

    void Says(const std::string&) override { ++contents_.comments; }

   private:
    Contents& contents_;
  } reader(contents);
  contents = {};
  return ReplayBefore(reader, text, program, std::move(games));
}

Verdict ReadRecord(const fs::path& path, std::string& text) {
  switch (Disk().Read(path, text)) {
    case ReadOutcome::Read:
      return {};
    case ReadOutcome::Missing:
      return {Verdict::Kind::NoRecord, "there is no such file", {}};
    case ReadOutcome::Unusable:
      return {Verdict::Kind::NoRecord, "it is no file of up to 1 MB", {}};
    default:
      return {Verdict::Kind::NoRecord, "it can't be read", {}};
  }
}

Verdict ReplayFile(const fs::path& path, const std::string& program, const std::vector<GameEntry>& games) {
  std::string text;
  const Verdict unread = ReadRecord(path, text);
  return unread.why.empty() ? Replay(text, program, games) : unread;
}

}  // namespace record
