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
  Event Next(const Wait& wait) override {
    if (wait.serving == Wait::Serving::Nothing) now_ = wait.until;
    if (wait.box) return {.kind = Event::Kind::Answer, .answer = AnswersOf(wait.box->buttons).front()};
    if (wait.modal) return {Event::Kind::Close, wait.modal};
    return {wait.serving == Wait::Serving::All ? Event::Kind::Over : Event::Kind::None};
  }
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}
  std::string FindBrowser() override { return ""; }
  bool OpenPage(const std::string&, const std::string&) override { return false; }

 private:
  long long now_ = 0;
};
