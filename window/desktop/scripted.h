// The windows, driven by lines: a virtual clock that passes in real time, commands from standard input.
#pragma once

#include <optional>
#include <ostream>

#include "window/desktop/desktop.h"
#include "window/desktop/hands.h"

struct ScriptOptions {
  DateTime start{2000, 1, 1, 12, 0, 0};  // the time of day at virtual time 0
  double speed = 1;                      // virtual milliseconds to a real one
};

class ScriptedDesktop : public DesktopFrontEnd, private DesktopHands {
 public:
  ScriptedDesktop(const DesktopFolders& folders, PictureFiles pictures, const ScriptOptions& options,
                  std::ostream& out);

  bool HeedsWindowManager() const override { return false; }
  bool HeedsPointer() const override { return false; }
  bool ShowsMotion() const override { return false; }
  long long Milliseconds() override { return now_; }
  DateTime Now() override;
  void Sleep(int milliseconds) override;
  void ServeInput() override {}  // the lines are all the input there is
  std::string FindBrowser() override { return "browser"; }
  bool OpenPage(const std::string&, const std::string&) override { return true; }

 protected:
  void Serve() override;
  void WaitFor(const std::function<bool()>& waiting) override;
  void ArmTimer() override {}

 private:
  void PressAnswer(::Answer answer) override;
  void Advance(int milliseconds) override;
  // Obeys the next line. False if what the handler waits for came first.
  bool ObeyOne(const std::function<bool()>& waiting);
  // Moves the clock on, and real time with it.
  void PassTo(long long moment);
  void ReadInput();
  [[noreturn]] void Leave();

  ScriptOptions options_;
  std::ostream& out_;
  long long now_ = 0;
  double owed_ = 0;    // real milliseconds that haven't passed yet
  std::string input_;  // what has been read and not obeyed
  bool inputEnded_ = false;
  std::vector<long long> targets_;  // until when the `advance` commands under way go on, outermost first
  size_t shifted_ = 0;              // targets before this one belong to handlers that wait further out
  Script script_;
};
