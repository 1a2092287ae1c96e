// The windows, driven by lines: a virtual clock that passes in real time, commands from standard input.
#pragma once

#include <ostream>

#include "window/desktop/desktop.h"
#include "window/desktop/hands.h"
#include "window/script/virtual_clock.h"

struct ScriptOptions {
  DateTime start{2000, 1, 1, 12, 0, 0};  // the time of day at virtual time 0
  double speed = 1;                      // virtual milliseconds to a real one
};

class ScriptedDesktop : public DesktopFrontEnd, private DesktopHands {
 public:
  ScriptedDesktop(const DesktopFolders& folders, PictureFiles pictures, const ScriptOptions& options,
                  std::ostream& out);

  long long Milliseconds() override { return clock_.Now(); }
  DateTime Now() override { return Later(options_.start, clock_.Now()); }
  std::string FindBrowser() override { return "browser"; }
  bool OpenPage(const std::string&, const std::string&) override { return true; }

 protected:
  void Serve() override;
  void Sleep(int milliseconds) override { PassTo(clock_.Now() + milliseconds); }
  void ServeInput() override {}  // the lines are all the input there is
  void ServeAll(const std::function<bool()>& waiting) override;
  void ArmTimer() override {}

 private:
  void PressAnswer(Platform&, Answer answer) override;
  void Advance(int milliseconds) override;
  // Moves the clock on, and real time with it.
  void PassTo(long long moment);
  void ReadInput();
  [[noreturn]] void Leave();

  ScriptOptions options_;
  std::ostream& out_;
  VirtualClock clock_{platform};
  double owed_ = 0;    // real milliseconds that haven't passed yet
  std::string input_;  // what has been read and not obeyed
  bool inputEnded_ = false;
  Script script_;
};
