// Nothing comes to the windows but by the border: what was seen there brings a whole game back, on nothing
// else.
#include <gtest/gtest.h>

#include <deque>

#include "tests/driver.h"

namespace {

// What came in, in its order; of events whom they happened to, of answers what was asked.
struct Entry {
  std::string what;
  Event event = {};
  long long number = 0;
  std::string text = {};
  std::vector<std::string> names = {};
  DateTime moment = {};
  Extent extent = {};
};
using Record = std::deque<Entry>;

// Stands before a console and notes what comes by.
class Recording : public Border {
 public:
  Recording(Border& inner, Record& record) : inner_(inner), record_(record) {}

  Event Next(const Wait& wait) override {
    const Event event = inner_.Next(wait);
    if (wait.serving == Wait::Serving::Input) record_.push_back({"no more input"});
    return event;
  }
  void Entered(const Event& event) override {
    const std::string whom =
        event.control && event.kind != Event::Kind::Tick ? event.control->FullName() : "";
    record_.push_back({whom, event, 0, std::string(event.text)});
  }
  long long Milliseconds() override {
    return Note({.what = "clock", .number = inner_.Milliseconds()}).number;
  }
  DateTime Now() override { return Note({.what = "now", .moment = inner_.Now()}).moment; }
  Extent ScreenExtent() override { return Note({.what = "screen", .extent = inner_.ScreenExtent()}).extent; }
  Extent TextExtent(const Label& label) override {
    return Note({.what = "text", .extent = inner_.TextExtent(label)}).extent;
  }
  std::string FindBrowser() override { return inner_.FindBrowser(); }
  bool OpenPage(const std::string& browser, const std::string& url) override {
    return inner_.OpenPage(browser, url);
  }
  ReadOutcome Read(const std::filesystem::path& path, std::string& text) override {
    const auto outcome = inner_.Read(path, text);
    record_.push_back({"read " + path.filename().string(), {}, static_cast<long long>(outcome), text});
    return outcome;
  }
  std::vector<std::string> Names(const std::filesystem::path& folder, Entries which) override {
    return Note({.what = "names", .names = inner_.Names(folder, which)}).names;
  }

 private:
  const Entry& Note(Entry entry) { return record_.emplace_back(std::move(entry)); }

  Border& inner_;
  Record& record_;
};

// Has nothing but the record: no input, no clock, no disk.
class Replaying : public FrontEnd {
 public:
  explicit Replaying(Record record) : record_(std::move(record)) {}
  Platform platform{*this};
  std::string outOfStep;  // where the windows first asked for something else than they had
  bool AtTheEnd() const { return record_.empty(); }

  Event Next(const Wait& wait) override {
    if (wait.serving == Wait::Serving::Nothing) return {};
    if (record_.empty()) return {Event::Kind::Over};
    if (record_.front().event.kind == Event::Kind::None) {
      Take(wait.serving == Wait::Serving::Input ? "no more input" : "an event");
      return {wait.serving == Wait::Serving::Input ? Event::Kind::None : Event::Kind::Over};
    }
    // It is noted again when it enters, and taken then.
    current_ = record_.front();
    current_.event.text = current_.text;
    current_.event.control = Find(current_.what);
    return current_.event;
  }
  void Entered(const Event& event) override {
    if (record_.empty() || record_.front().event.kind != event.kind) return Lose("an event");
    record_.pop_front();
  }
  long long Milliseconds() override { return Take("clock").number; }
  DateTime Now() override { return Take("now").moment; }
  Extent ScreenExtent() override { return Take("screen").extent; }
  Extent TextExtent(const Label&) override { return Take("text").extent; }
  std::string FindBrowser() override { return "browser"; }
  bool OpenPage(const std::string&, const std::string&) override { return true; }
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}

  ReadOutcome Read(const std::filesystem::path& path, std::string& text) override {
    const Entry entry = Take("read " + path.filename().string());
    text = entry.text;
    return static_cast<ReadOutcome>(entry.number);
  }
  std::vector<std::string> Names(const std::filesystem::path&, Entries) override {
    return Take("names").names;
  }
  WriteOutcome Replace(const std::filesystem::path&, const std::string&, bool) override {
    return WriteOutcome::Written;
  }
  bool PutAside(const std::filesystem::path&) override { return true; }
  void Sweep(const std::filesystem::path&) override { Take("names"); }
  FolderLock Lock(const std::filesystem::path&, int, const std::function<bool()>&) override {
    return {true, true};
  }

 private:
  Entry Take(const std::string& what) {
    if (record_.empty() || record_.front().what != what) {
      Lose(what);
      return {};
    }
    const Entry entry = record_.front();
    record_.pop_front();
    return entry;
  }
  void Lose(const std::string& what) {
    if (outOfStep.empty())
      outOfStep = what + " instead of " + (record_.empty() ? "the end" : record_.front().what);
  }
  Control* Find(const std::string& name) const {
    for (const Form* form : platform.forms) {
      if (!form->Loaded()) continue;
      if (name == form->name) return const_cast<Form*>(form);
      for (Control* control : form->Controls())
        if (control->FullName() == name) return control;
    }
    return nullptr;
  }

  Record record_;
  Entry current_;
};

// What the windows did, line by line.
class Told {
 public:
  explicit Told(Platform& platform) : script_(platform, hands_, out_) {
    script_.Execute("trace on");
    platform.trace = &script_;
    platform.random.Seed(7);
  }
  std::vector<std::string> Lines() const { return LinesOf(out_.str(), "* "); }

 private:
  struct NoHands : Hands {
    void Advance(int) override {}
  } hands_;
  std::ostringstream out_;
  Script script_;
};

TEST(Border, WhatWasSeenThereBringsAWholeGameBack) {
  for (const char* game : {"sumfall", "fivestack", "treyshift", "handgrid"}) {
    SCOPED_TRACE(game);
    TestFolder folder;
    Record record;
    std::vector<std::string> played;
    {
      std::ifstream in(std::filesystem::path(CARDHAVEN_SOURCE "/tests/scripts") /
                       (std::string(game) + "_whole_game.console"));
      std::ostringstream out;
      ConsoleFrontEnd console({}, in, out);
      Recording recording(console, record);
      console.platform.border = &recording;
      const Told told(console.platform);
      Suite suite(console.platform, {folder.Path()}, AllGames());
      suite.Start();
      console.Run();
      played = told.Lines();
    }
    ASSERT_GT(played.size(), 1000u);
    std::filesystem::remove_all(folder.Path());
    Replaying replaying(record);
    const Told told(replaying.platform);
    {
      Suite suite(replaying.platform, {folder.Path()}, AllGames());
      suite.Start();
      replaying.platform.Run();
    }
    ASSERT_EQ(replaying.outOfStep, "");
    const std::vector<std::string> replayed = told.Lines();
    for (size_t i = 0; i < played.size(); ++i)
      ASSERT_EQ(i < replayed.size() ? replayed[i] : "nothing", played[i]) << "line " << i;
    EXPECT_EQ(replayed.size(), played.size());
    EXPECT_TRUE(replaying.AtTheEnd());
    EXPECT_FALSE(std::filesystem::exists(folder.Path())) << "nothing is written but by the border";
  }
}

}  // namespace
