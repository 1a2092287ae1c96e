// A front end that shows nothing and waits for nobody: what it costs is what the model costs.
#pragma once

#include "window/player.h"

// Sleeps no time, answers boxes by their first button, closes modal windows at once.
class NullFrontEnd : public FrontEnd {
 public:
  long long Milliseconds() override { return now_; }
  DateTime Now() override { return {}; }
  Extent ScreenExtent() override { return {1024 * 15, 768 * 15}; }
  Extent TextExtent(const Label& label) override {
    return {static_cast<int>(label.Caption.get().size()) * label.FontSize * 10, label.FontSize * 30};
  }
  void Sleep(int milliseconds) override { now_ += milliseconds; }
  Answer RunBox(const MessageBox& box) override { return AnswersOf(box.buttons).front(); }
  void RunModal(Form& form) override { player::Close(form); }
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}
  std::string FindBrowser() override { return ""; }
  bool OpenPage(const std::string&, const std::string&) override { return false; }

 private:
  long long now_ = 0;
};
