// The windows, showing a game that is played again: what comes to them comes from a record, at a person's
// pace. The one who watches has a bar to steer it, and does nothing to the game.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <memory>

#include "window/desktop/desktop.h"
#include "window/desktop/view/watch_bar.h"

class WatchingDesktop : public DesktopFrontEnd, private Screening {
 public:
  WatchingDesktop(const DesktopFolders& folders, PictureFiles pictures, const Recording& recording);
  ~WatchingDesktop() override;

  Watching watching;
  // Plays the recording by `once` until the viewer leaves.
  void Play(const std::function<void()>& once);

  void Deliver(Form&, std::function<void()>) override {}  // what the viewer does to the windows
  bool TakeAsHurry() override { return false; }
  void FormShown(Form& form) override;
  void PropertyChanged(Control& control, Prop prop) override;
  void PlayWave(const std::string& path) override;

 protected:
  void Sleep(int milliseconds) override { watching.Wait(milliseconds); }
  void ServeInput() override {}
  void ArmTimer() override {}

 private:
  class Guard;
  class Hand;

  void Rest(double milliseconds) override;
  long long Clock() override { return Milliseconds(); }
  void StepBegins(bool fast) override;
  void HoldCards(bool held) override { looks.HoldCards(held); }
  void SettleBoards() override { DesktopFrontEnd::SettleBoards(); }
  void SettleWindows() override { DesktopFrontEnd::SettleWindows(); }
  void Point(const Event& next) override;
  void ShowBar() override { bar_.Show(); }
  void Speak(const std::string& comment) override;
  void ForgetWindows() override { DesktopFrontEnd::ForgetWindows(); }

  WatchBar bar_;
  std::unique_ptr<Guard> guard_;
  QPointer<QWidget> hand_;
  bool placed_ = false;
  QElapsedTimer sinceFast_;  // since the windows were last alive while it runs fast
};
