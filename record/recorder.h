// Stands at the border while a game window is open, and writes down what comes in: enough to play its games
// again. Begins anew with each window.
#pragma once

#include <functional>
#include <memory>
#include <set>

#include "record/game_watch.h"
#include "record/known.h"
#include "suite/suite.h"

class Recorder : public Border {
 public:
  // Puts itself before whoever stands at the platform's border; so no windows may be made yet.
  Recorder(Platform& platform, std::string program);
  ~Recorder() override;
  // Begins to watch the suite that was made since. Chance was seeded by then, or is to be with each window.
  void Attach(modCommon& common, const SuiteOptions& options = {});

  // A game has begun.
  std::function<void(const std::string& game, const DateTime& now)> onGameBegin;
  // A game has ended; `record` holds its window up to here, and is empty if that would be too large.
  std::function<void(const std::string& record, const GameResult& result)> onGameEnd;
  // A score stands in its table, under its name. Told when the program waits.
  std::function<void(const TableEntry& entry)> onEntered;

  // A comment on what comes next, for those who watch it.
  void Say(const std::string& comment);

  Event Next(const Wait& wait) override;
  void Entered(const Event& event) override;
  long long Milliseconds() override;
  DateTime Now() override;
  uint64_t Chance() override;
  Extent ScreenExtent() override;
  Extent TextExtent(const Label& label) override;
  std::string FindBrowser() override;
  bool OpenPage(const std::string& browser, const std::string& url) override;
  bool MustLeave() override { return inner_.MustLeave(); }

  ReadOutcome Read(const std::filesystem::path& path, std::string& text) override;
  std::vector<std::string> Names(const std::filesystem::path& folder, Entries which) override;
  std::vector<std::string> Places() override;
  std::filesystem::path TargetOf(std::filesystem::path path) override;
  WriteOutcome Replace(const std::filesystem::path& path, const std::string& text, bool hurries) override;
  bool Append(const std::filesystem::path& path, const std::string& line, const Ledger& ledger,
              bool hurries) override;
  std::vector<std::string> LinesWith(const std::filesystem::path& path, std::string_view text) override;
  bool PutAside(const std::filesystem::path& path) override;
  bool Rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
  void Remove(const std::filesystem::path& path) override;
  void Sync(const std::filesystem::path& folder) override { inner_.Sync(folder); }
  void Sweep(const std::filesystem::path& folder) override { inner_.Sweep(folder); }
  std::string Suffix() override { return inner_.Suffix(); }
  FolderLock Lock(const std::filesystem::path& folder, int patience,
                  const std::function<bool()>& mustHurry) override;

 private:
  struct Serving {
    Wait::Serving what;
    int handlers;  // under way when the wait began
  };
  int HandlersServed() const;
  void Begin();
  uint64_t FreshSeed();
  void Look();
  void LookForEntry();
  bool Asks();
  void Put(const std::string& line);
  void Answered(const std::string& what);
  void TakeTime();

  Platform& platform_;
  Border& inner_;
  const std::string program_;
  modCommon* common_ = nullptr;
  bool seedsAfresh_ = false;

  std::vector<Serving> servings_;       // in which the front end may hand events on, the innermost last
  std::optional<Wait::Serving> given_;  // an event was given back, and is about to enter
  int ring_ = 0;

  bool under_ = false;   // a record is
  bool opened_ = false;  // its window has been seen
  bool trouble_ = false;
  record::Head head_;
  std::string body_;
  std::unique_ptr<record::Known> known_;
  std::set<std::string> touched_;  // files that were asked for
  GameWatch watch_;
  int entered_ = 0;  // the table entry that was told last
};
