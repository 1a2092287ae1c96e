#include "window/script/virtual_clock.h"

#include <algorithm>

void VirtualClock::PassTo(long long moment) {
  const long long passes = std::max(0ll, moment - now_);
  now_ += passes;
  if (!advancing_.empty() && advancing_.back().depth == platform_.WaitsUnderWay())
    advancing_.back().left -= passes;
}

void VirtualClock::Advance(int milliseconds, const std::function<void(long long moment)>& pass,
                           const std::function<void()>& serve) {
  struct Under {
    std::vector<Advancing>& all;
    ~Under() { all.pop_back(); }
  } under{advancing_};
  advancing_.push_back({platform_.WaitsUnderWay(), milliseconds});
  while (!platform_.HasEnded()) {
    const auto due = platform_.timers.NextDue();
    if (!due || *due > now_ + advancing_.back().left) break;
    pass(*due);
    serve();
  }
  pass(now_ + advancing_.back().left);
}
