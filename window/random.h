// Where chance comes from: a generator that is stirred from outside, and results that a script has laid
// ready.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <utility>

class RandomSource {
 public:
  // From now on the results follow from `seed` alone; nothing is stirred in any more.
  void Seed(uint64_t seed);
  bool Seeded() const { return seeded_; }
  // From which the results follow, as from a seed.
  uint64_t State() const { return state_; }
  // Stirs a number into the generator that nobody can foresee, unless it was seeded.
  void Stir(uint64_t number);
  // Uniform in [0, 1).
  double Next();

  // Lays a result ready for draws with exactly these bounds, within which it lies.
  void Foresee(int lower, int upper, int result);
  // Takes the next result laid ready for these bounds; false if there is none.
  bool TakeForeseen(int lower, int upper, int& result);
  // How many results wait for these bounds.
  size_t CountForeseen(int lower, int upper) const;
  void ForgetForeseen() { foreseen_.clear(); }
  const std::map<std::pair<int, int>, std::deque<int>>& AllForeseen() const { return foreseen_; }

 private:
  uint64_t state_ = 0;
  bool seeded_ = false;
  std::map<std::pair<int, int>, std::deque<int>> foreseen_;
};
