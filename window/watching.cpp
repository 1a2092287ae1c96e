#include "window/watching.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace {

constexpr double kSlice = 15;       // milliseconds by which the record may run ahead
constexpr double kHandShows = 700;  // before the deed
constexpr double kShown = 100;      // between two looks at the bar

std::string Minutes(long long milliseconds) {
  const long long seconds = milliseconds / 1000;
  char text[40];
  std::snprintf(text, sizeof text, "%lld:%02lld", seconds / 60, seconds % 60);
  return text;
}

}  // namespace

void Watching::Play(const std::function<void()>& once) {
  while (!left_) {
    goesBack_ = false;
    step_ = 0;
    at_ = 0;
    owed_ = reading_ = 0;
    ShowComment("");
    screen_.HoldCards(target_ > 0);
    try {
      once();
      left_ = true;
    } catch (const Elsewhere&) {
    }
  }
}

void Watching::LeaveIfAsked() {
  if (!left_ && !goesBack_) return;
  screen_.Point({});
  next_ = {};
  screen_.ForgetWindows();
  throw Elsewhere{};
}

void Watching::Pass(long long milliseconds, long long at, int step, bool isDeed) {
  const bool wasFast = IsFast();
  at_ = at;
  step_ = step;
  if (stepping_ && stepped_) {
    stepping_ = stepped_ = false;
    SetPaused(true);
  }
  if (stepping_ && isDeed) stepped_ = true;
  screen_.StepBegins(IsFast());
  if (IsFast()) return LeaveIfAsked();
  if (wasFast) {  // what has come meanwhile isn't seen to move
    screen_.SettleBoards();
    screen_.HoldCards(false);
    milliseconds = 0;
  }
  if (next_.kind != Event::Kind::None) screen_.SettleWindows();  // no handler is in the middle of something
  Wait(static_cast<double>(std::clamp(milliseconds, 0ll, 3'600'000ll)));
  screen_.Point({});
  next_ = {};
}

// Nobody sits through long thoughts, but the clock of the game is seen to run: it ticks.
void Watching::Wait(double milliseconds) {
  if (IsFast()) return;
  screen_.SettleBoards();
  owed_ = std::max(owed_, -kSlice * speed_) + milliseconds;
  const double all = owed_;
  long long then = screen_.Clock();
  while (true) {
    if (std::exchange(asked_, false)) {
      SetPaused(false);
      stepping_ = true;
    }
    LeaveIfAsked();
    if (IsFast()) {
      screen_.HoldCards(true);
      owed_ = 0;
      return;
    }
    if (stepping_) owed_ = std::min(owed_, 0.0);
    if (!paused_ && owed_ <= 0 && reading_ <= 0) break;
    if (owed_ <= kHandShows) screen_.Point(next_);
    ShowPlace(at_ + std::llround(std::clamp(all - owed_, 0.0, all)));
    // To the next thing that is to be seen.
    const double left = reading_ > 0 ? reading_ : owed_ > kHandShows ? owed_ - kHandShows : owed_;
    screen_.Rest(paused_ ? -1 : std::clamp(left / speed_, 1.0, kShown));
    const long long now = screen_.Clock();
    const double passed = static_cast<double>(now - std::exchange(then, now)) * speed_;
    if (paused_) continue;
    // Who reads lets the game wait.
    (reading_ > 0 ? reading_ : owed_) -= passed;
  }
}

void Watching::Say(const std::string& comment) {
  constexpr double kLetter = 55, kLeast = 1500;  // milliseconds of a slow reader
  if (IsFast()) return;
  ShowComment(comment);
  screen_.Speak(comment);
  const auto letters = std::ranges::count_if(comment, [](char byte) { return (byte & 0xc0) != 0x80; });
  reading_ = kLeast + kLetter * static_cast<double>(letters);
}

void Watching::AtEnd() {
  target_ = 0;
  ShowPlace(at_);
  SetPaused(true);
  stepping_ = stepped_ = false;
  if (reading_ <= 0) ShowComment("The recording ends here. Page Up and Home go back.");
  // Going on from here is going back.
  while (true) {
    Wait(0);
    if (!paused_) {
      target_ = 0;
      goesBack_ = true;
    }
  }
}

// --- The viewer ----------------------------------------------------------------------------------

bool Watching::Take(std::string_view key) {
  if (key == "Space") {
    SetPaused(!paused_);
  } else if (key == "Right" || key == ".") {
    NextDeed();
  } else if (key == "PageDown") {
    GoBy(1);
  } else if (key == "PageUp") {
    GoBy(-1);
  } else if (key == "Home") {
    GoBy(-static_cast<int>(recording.rounds.size()));
  } else if (key == "+" || key == "=") {
    SetSpeed(std::min(speed_ * 2, 8));
  } else if (key == "-") {
    SetSpeed(std::max(speed_ / 2, 1));
  } else if (key == "Escape") {
    Leave();
  } else {
    const auto speed = std::ranges::find_if(kSpeeds, [&](int each) { return key == std::to_string(each); });
    if (speed == std::end(kSpeeds)) return false;
    SetSpeed(*speed);
  }
  return true;
}

void Watching::SetSpeed(int speed) {
  speed_ = speed;
  screen_.ShowBar();
}

void Watching::SetPaused(bool paused) {
  if (std::exchange(paused_, paused) != paused) screen_.ShowBar();
}

size_t Watching::RoundAt(long long at) const {
  size_t round = 0;
  while (round + 1 < recording.rounds.size() && recording.rounds[round + 1].at <= at) ++round;
  return round;
}

void Watching::GoTo(const Recording::Round& round) {
  goesBack_ = round.step <= step_;
  target_ = round.step;
}

void Watching::GoTo(long long at) {
  if (!recording.rounds.empty()) GoTo(recording.rounds[RoundAt(at)]);
}

void Watching::GoBy(int rounds) {
  if (recording.rounds.empty()) return;
  constexpr long long kJustBegun = 3000;  // one back from there is the round before
  const auto now = static_cast<int>(RoundAt(shown_));
  const bool restarts = rounds < 0 && shown_ - recording.rounds[static_cast<size_t>(now)].at > kJustBegun;
  const int last = static_cast<int>(recording.rounds.size()) - 1;
  if (rounds > 0 && now == last) return;
  const auto& round =
      recording.rounds[static_cast<size_t>(std::clamp(restarts ? now : now + rounds, 0, last))];
  GoTo(round);
  shown_ = round.at;  // for the next key; the bar shows it when we are there
}

// --- What the bar shows --------------------------------------------------------------------------

void Watching::ShowPlace(long long at) {
  shown_ = at;
  screen_.ShowBar();
}

void Watching::ShowComment(const std::string& comment) {
  comment_ = comment;
  screen_.ShowBar();
}

std::string Watching::Place(long long at) const {
  const std::string text = Minutes(at) + " of " + Minutes(recording.length);
  const bool hasBegun = !recording.rounds.empty() && at >= recording.rounds.front().at;
  return hasBegun ? recording.rounds[RoundAt(at)].name + ", " + text : text;
}
