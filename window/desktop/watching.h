// The windows, showing a game that is played again: what comes to them comes from a record, at a person's
// pace. The one who watches has a bar to steer it, and does nothing to the game.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <exception>
#include <memory>

#include "window/desktop/desktop.h"
#include "window/desktop/view/watch_bar.h"

class WatchingDesktop : public DesktopFrontEnd {
 public:
  WatchingDesktop(const DesktopFolders& folders, PictureFiles pictures, const Recording& recording);
  ~WatchingDesktop() override;

  // Plays the recording by `once`, and again from its beginning when the viewer goes back, until he leaves.
  void Play(const std::function<void()>& once);

  // To be called by whoever plays it. They leave it by throwing `Elsewhere`, with all windows forgotten.
  struct Elsewhere {};
  // So much time passes at that step of the record; then comes a deed of the player's, or something else.
  void Pass(long long milliseconds, long long at, int step, bool isDeed);
  void Comes(const Event& event);
  void Say(const std::string& comment);
  void AtEnd();

  void Deliver(Form&, std::function<void()>) override {}  // what the viewer does to the windows
  bool TakeAsHurry() override { return false; }
  void FormShown(Form& form) override;
  void PropertyChanged(Control& control, Prop prop) override;
  void PlayWave(const std::string& path) override;

 protected:
  void Sleep(int milliseconds) override { Wait(milliseconds); }
  void ServeInput() override {}
  void ArmTimer() override {}

 private:
  class Guard;
  class Hand;

  bool IsFast() const { return step_ < target_; }
  // Lets record time pass at the chosen speed, or for ever while it is paused.
  void Wait(double milliseconds);
  void ShowHand();
  void LeaveIfAsked();
  void Follow(FormWindow& window);

  WatchBar bar_;
  std::unique_ptr<Guard> guard_;
  QPointer<QWidget> hand_;
  Event next_;
  long long at_ = 0;
  int step_ = 0, target_ = 0;
  bool goesBack_ = false, left_ = false, stepping_ = false, stepped_ = false, placed_ = false;
  double owed_ = 0;          // milliseconds of the record that haven't passed yet
  double reading_ = 0;       // of the comment, that is left
  QElapsedTimer sinceFast_;  // since the windows were last alive while it runs fast
};
