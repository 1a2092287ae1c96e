#include "window/random.h"

namespace {

// SplitMix64: one step of a counter, and a mix of its bits that passes the usual tests of uniformity.
uint64_t Mix(uint64_t value) {
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
  return value ^ (value >> 31);
}

}  // namespace

void RandomSource::Seed(uint64_t seed) {
  state_ = seed;
  seeded_ = true;
}

void RandomSource::Stir(uint64_t number) {
  // On top of the state, so that two draws within one tick of a coarse clock still differ.
  if (!seeded_) state_ = Mix(state_ ^ number);
}

double RandomSource::Next() {
  state_ += 0x9E3779B97F4A7C15u;
  return static_cast<double>(Mix(state_) >> 11) * 0x1.0p-53;
}

void RandomSource::Foresee(int lower, int upper, int result) { foreseen_[{lower, upper}].push_back(result); }

bool RandomSource::TakeForeseen(int lower, int upper, int& result) {
  if (foreseen_.empty()) return false;
  const auto found = foreseen_.find({lower, upper});
  if (found == foreseen_.end()) return false;
  result = found->second.front();
  found->second.pop_front();
  if (found->second.empty()) foreseen_.erase(found);
  return true;
}

size_t RandomSource::CountForeseen(int lower, int upper) const {
  const auto found = foreseen_.find({lower, upper});
  return found == foreseen_.end() ? 0 : found->second.size();
}
