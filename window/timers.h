// When which timer ticks. Knows no clock: the time is told.
#pragma once

#include <optional>
#include <vector>

class Timer;

class Timers {
 public:
  using Milliseconds = long long;

  void Add(Timer& timer);
  void Remove(Timer& timer);
  // Begins the timer's interval anew at `now()`, or forgets it if it is off.
  void Restart(Timer& timer);

  // The timer whose tick is due next, and when that is; nothing if no timer can tick.
  Timer* Next() const;
  std::optional<Milliseconds> NextDue() const;
  // The timer whose tick was due first, at `now` or before; ties go to the timer made first. Null if there is
  // none. Its next tick is at the next multiple of its interval after `now`.
  Timer* TakeDue(Milliseconds now);
  // All timers with a tick waiting at `now`, in the order in which they would be taken.
  std::vector<Timer*> Waiting(Milliseconds now) const;
  // Takes the waiting tick of this timer. False if it has none any more.
  bool Take(Timer& timer, Milliseconds now);
  // Between these two calls the timer doesn't tick. False if the timer is gone.
  void BeginTick(Timer& timer);
  void EndTick(Timer* timer);

  Milliseconds now = 0;  // set by the platform before it restarts or serves timers

 private:
  struct Entry {
    Timer* timer;
    bool running = false;
    bool ticking = false;
    Milliseconds due = 0;
    int interval = 0;
  };
  const Entry* First() const;
  Entry* Find(const Timer* timer);
  static void Advance(Entry& entry, Milliseconds now);

  std::vector<Entry> entries_;  // in the order in which the timers were made
};
