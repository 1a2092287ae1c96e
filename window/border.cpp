#include "window/border.h"

#include <chrono>

#include "window/system/leaving.h"

uint64_t Border::Chance() {
  return static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

bool Border::MustLeave() { return leaving::IsWanted(); }
