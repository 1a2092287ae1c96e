#include "window/timers.h"

#include <algorithm>

#include "window/controls.h"

void Timers::Add(Timer& timer) { entries_.push_back({&timer}); }

void Timers::Remove(Timer& timer) {
  std::erase_if(entries_, [&](const Entry& entry) { return entry.timer == &timer; });
}

void Timers::Restart(Timer& timer) {
  Entry* entry = Find(&timer);
  if (!entry) return;
  entry->interval = timer.Interval;
  entry->running = timer.Enabled && timer.Interval > 0;
  entry->due = now + timer.Interval;
}

const Timers::Entry* Timers::First() const {
  const Entry* first = nullptr;
  for (const Entry& entry : entries_)
    if (entry.running && !entry.ticking && (!first || entry.due < first->due)) first = &entry;
  return first;
}

Timer* Timers::Next() const {
  const Entry* first = First();
  return first ? first->timer : nullptr;
}

std::optional<Timers::Milliseconds> Timers::NextDue() const {
  const Entry* first = First();
  if (!first) return std::nullopt;
  return first->due;
}

Timer* Timers::TakeDue(Milliseconds at) {
  const Entry* first = First();
  if (!first || first->due > at) return nullptr;
  Timer* timer = first->timer;
  Advance(*Find(timer), at);
  return timer;
}

std::vector<Timer*> Timers::Waiting(Milliseconds at) const {
  std::vector<const Entry*> waiting;
  for (const Entry& entry : entries_)
    if (entry.running && !entry.ticking && entry.due <= at) waiting.push_back(&entry);
  std::ranges::stable_sort(waiting, {}, &Entry::due);
  std::vector<Timer*> result;
  for (const Entry* entry : waiting) result.push_back(entry->timer);
  return result;
}

bool Timers::Take(Timer& timer, Milliseconds at) {
  Entry* entry = Find(&timer);
  if (!entry || !entry->running || entry->ticking || entry->due > at) return false;
  Advance(*entry, at);
  return true;
}

void Timers::BeginTick(Timer& timer) {
  if (Entry* entry = Find(&timer)) entry->ticking = true;
}

void Timers::EndTick(Timer* timer) {
  if (Entry* entry = Find(timer)) entry->ticking = false;
}

Timers::Entry* Timers::Find(const Timer* timer) {
  const auto found = std::ranges::find(entries_, timer, &Entry::timer);
  return found == entries_.end() ? nullptr : &*found;
}

void Timers::Advance(Entry& entry, Milliseconds at) {
  entry.due += entry.interval * ((at - entry.due) / entry.interval + 1);
}
