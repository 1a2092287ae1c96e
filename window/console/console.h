// The front end without a screen: a virtual clock, commands from a stream, answers to another.
#pragma once

#include <iosfwd>
#include <optional>

#include "window/script/script.h"

struct ConsoleOptions {
  DateTime start{2000, 1, 1, 12, 0, 0};  // the time of day at virtual time 0
  Extent screen{1024 * 15, 768 * 15};    // twips
};

class ConsoleFrontEnd : public FrontEnd, private Hands {
 public:
  ConsoleFrontEnd(const ConsoleOptions& options, std::istream& in, std::ostream& out);

  Platform platform{*this};

  // Answers for the start, then obeys commands until the input or the program ends.
  void Run();

  long long Milliseconds() override { return now_; }
  DateTime Now() override;
  Extent ScreenExtent() override { return options_.screen; }
  Extent TextExtent(const Label& label) override;
  void Sleep(int milliseconds) override { now_ += milliseconds; }
  bool MustLeave() const override;
  ::Answer RunBox(const MessageBox& box) override;
  void RunModal(Form& form) override;
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}
  std::string FindBrowser() override { return "browser"; }
  bool OpenPage(const std::string&, const std::string&) override { return true; }

 private:
  void PressAnswer(::Answer answer) override { answer_ = answer; }
  void Advance(int milliseconds) override;
  // Obeys commands while `waiting()`; the time that passes isn't taken off an `advance` that is under way.
  template <class Waiting>
  void Wait(Waiting waiting);
  // False when the input or `quit` has ended it all.
  bool ObeyOne();

  ConsoleOptions options_;
  std::istream& in_;
  std::ostream& out_;
  long long now_ = 0;
  std::optional<::Answer> answer_;
  std::vector<long long> targets_;  // until when the `advance` commands under way go on, outermost first
  size_t shifted_ = 0;              // targets before this one belong to handlers that wait further out
  Script script_;
};
