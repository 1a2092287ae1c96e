// Time that passes only in a script's `advance` and in sleeps.
#pragma once

#include <functional>
#include <vector>

#include "window/platform.h"

class VirtualClock {
 public:
  explicit VirtualClock(Platform& platform) : platform_(platform) {}

  long long Now() const { return now_; }
  // Moves on to that moment, and never back. What passes while a handler waits for its box or window isn't
  // taken off the `advance` that has led there.
  void PassTo(long long moment);
  // Lets so much time pass: each tick that falls due is served by `serve`, behind `pass` to its moment.
  void Advance(int milliseconds, const std::function<void(long long moment)>& pass,
               const std::function<void()>& serve);

 private:
  struct Advancing {
    size_t depth;    // of the wait that it was asked for in
    long long left;  // may fall below 0, in a sleep
  };
  Platform& platform_;
  long long now_ = 0;
  std::vector<Advancing> advancing_;
};
