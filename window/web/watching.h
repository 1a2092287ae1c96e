// The page as it shows a recording: what comes to the windows comes from a record. The page's bar steers it,
// and nothing else that is done there comes here.
#pragma once

#include "window/watching.h"
#include "window/web/web.h"

class WatchingPage : public WebFrontEnd, private Screening {
 public:
  WatchingPage(const PictureFiles& pictures, Guides guides, Recording recording);

  Watching watching;
  // Plays the recording by `once` until the viewer leaves.
  void Play(const std::function<void()>& once);
  // It isn't to be watched.
  void Refuse(const std::string& why);

  void FormShown(Form& form) override;
  void FocusMoved(Visual& control) override;
  void Clicked(Control& control) override;
  void Triumph(Visual& where, bool goes) override;
  void PlayWave(const std::string& path) override;

 private:
  void Hold(int milliseconds) override { watching.Wait(milliseconds); }
  void Rest(double milliseconds) override;
  long long Clock() override { return Milliseconds(); }
  void StepBegins(bool) override { settled_ = false; }
  void HoldCards(bool held) override;
  void SettleWindows() override { settled_ = true; }
  void Point(const Event& next) override;
  void ShowBar() override;
  void Speak(const std::string&) override {}  // the bar does
  void ForgetWindows() override { WebFrontEnd::ForgetWindows(); }

  bool settled_ = false;  // no handler is in the middle of something
  bool points_ = false;   // to what comes next
  std::string bar_;       // as the page was told of it last
};
