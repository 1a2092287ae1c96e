// Watching a recording at a person's pace: when what is to be seen, where it stands, and what the viewer's
// keys mean. Whichever front end shows it lets the time go by.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "window/platform.h"

// What is watched.
struct Recording {
  struct Round {
    std::string name;  // "Round 2"
    int step = 0;      // of the record, with which it begins
    long long at = 0;  // milliseconds after its beginning
  };
  std::string title;
  std::vector<Round> rounds;
  long long length = 0;      // milliseconds
  bool hasComments = false;  // for those who watch
};

// What a front end does before which a recording is played.
class Screening {
 public:
  virtual ~Screening() = default;
  // Lets the viewer act, for at most so many milliseconds, below 0 for any time; may return earlier.
  virtual void Rest(double milliseconds) = 0;
  virtual long long Clock() = 0;  // milliseconds
  // A step of the record begins. While it goes fast to another round nobody sees it.
  virtual void StepBegins(bool fast) = 0;
  // Whether what lies elsewhere lies there at once, and what has changed so far does.
  virtual void HoldCards(bool held) = 0;
  virtual void SettleBoards() {}
  virtual void SettleWindows() {}
  // This is what the recorded player is about to do; none: it is done.
  virtual void Point(const Event& next) = 0;
  // The bar is to show what has changed in it.
  virtual void ShowBar() = 0;
  virtual void Speak(const std::string& comment) = 0;
  // All windows go without a word.
  virtual void ForgetWindows() = 0;
};

class Watching {
 public:
  Watching(Recording what, Screening& screen) : recording(std::move(what)), screen_(screen) {}

  const Recording recording;

  // Plays it by `once`, and again from its beginning when the viewer goes back, until he leaves.
  void Play(const std::function<void()>& once);

  // To be called by `once`. They leave it by throwing `Elsewhere`, with all windows forgotten.
  struct Elsewhere {};
  // So much time passes at that step of the record; then comes a deed of the player's, or something else.
  void Pass(long long milliseconds, long long at, int step, bool isDeed);
  void Comes(const Event& event) { next_ = event; }
  void Say(const std::string& comment);
  void AtEnd();
  // Lets time of the record pass at the chosen speed, or for ever while it is paused.
  void Wait(double milliseconds);
  bool IsFast() const { return step_ < target_; }

  // --- The viewer
  static constexpr int kSpeeds[] = {1, 2, 4, 8};
  // What a key does: "Space", "Right", ".", "PageDown", "8". False if it means nothing.
  bool Take(std::string_view key);
  void SetSpeed(int speed);
  void SetPaused(bool paused);
  void NextDeed() { asked_ = true; }
  // So many rounds on from where it stands; to the round of that moment.
  void GoBy(int rounds);
  void GoTo(long long at);
  void Leave() { left_ = true; }

  // --- What the bar shows
  int Speed() const { return speed_; }
  bool Paused() const { return paused_; }
  long long At() const { return shown_; }
  const std::string& Comment() const { return comment_; }
  // "Round 2, 0:15 of 1:40"
  std::string Place(long long at) const;

 private:
  size_t RoundAt(long long at) const;
  void GoTo(const Recording::Round& round);
  void ShowPlace(long long at);
  void ShowComment(const std::string& comment);
  void LeaveIfAsked();

  Screening& screen_;
  Event next_;
  long long at_ = 0, shown_ = 0;
  int step_ = 0, target_ = 0, speed_ = 1;
  bool paused_ = false, goesBack_ = false, left_ = false;
  bool asked_ = false;  // for one deed
  bool stepping_ = false, stepped_ = false;
  double owed_ = 0;     // milliseconds of the record that haven't passed yet
  double reading_ = 0;  // of the comment, that is left
  std::string comment_;
};
