// The front end without a screen: a virtual clock, commands from a stream, answers to another.
#pragma once

#include <iosfwd>

#include "window/script/script.h"
#include "window/script/virtual_clock.h"

struct ConsoleOptions {
  DateTime start{2000, 1, 1, 12, 0, 0};  // the time of day at virtual time 0
  Extent screen{1024 * 15, 768 * 15};    // twips
};

class ConsoleFrontEnd : public FrontEnd, private Hands {
 public:
  ConsoleFrontEnd(const ConsoleOptions& options, std::istream& in, std::ostream& out);

  Platform platform{*this};

  // Answers for the start, then obeys commands until the input or the program ends.
  void Run() { platform.Run(); }

  Event Next(const Wait& wait) override;
  long long Milliseconds() override { return clock_.Now(); }
  DateTime Now() override { return Later(options_.start, clock_.Now()); }
  Extent ScreenExtent() override { return options_.screen; }
  Extent TextExtent(const Label& label) override { return PlainExtent(label); }
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}
  std::string FindBrowser() override { return "browser"; }
  bool OpenPage(const std::string&, const std::string&) override { return true; }

 private:
  void Advance(int milliseconds) override;

  ConsoleOptions options_;
  std::istream& in_;
  std::ostream& out_;
  VirtualClock clock_{platform};
  Script script_;
};
