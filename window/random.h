// Where chance comes from: a generator that is stirred with the clock, and results that a script has laid
// ready.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <utility>

class RandomSource {
 public:
  // From now on the results follow from `seed` alone; the clock isn't looked at any more.
  void Seed(uint64_t seed);
  // Stirs the clock's present reading into the generator, unless it was seeded.
  void Reseed();
  // Uniform in [0, 1).
  double Next();

  // Lays a result ready for draws with exactly these bounds. False if it lies outside them.
  bool Foresee(int lower, int upper, int result);
  // Takes the next result laid ready for these bounds; false if there is none.
  bool TakeForeseen(int lower, int upper, int& result);
  // How many results wait for these bounds.
  size_t CountForeseen(int lower, int upper) const;
  void ForgetForeseen() { foreseen_.clear(); }

 private:
  uint64_t state_ = 0;
  bool seeded_ = false;
  std::map<std::pair<int, int>, std::deque<int>> foreseen_;
};
