#include "catalogue.h"

namespace pictures {

std::vector<Entry> Catalogue() {
  std::vector<Entry> entries;
  for (int back = 1; back <= kBackCount; ++back) {
    const std::string name = "back" + std::to_string(back);
    entries.push_back({name + "-full.svg", 76, 98});
    entries.push_back({name + ".svg", 71, 96});
    entries.push_back({name + "-half.svg", 74, 97});
  }
  entries.push_back({"empty.svg", 71, 96});
  for (char suit : kSuitLetters) {
    for (int rank = 1; rank <= kRankCount; ++rank) {
      entries.push_back({std::to_string(rank) + suit + ".svg", 69, 94});
    }
  }
  entries.push_back({"pointer.svg", 32, 32});
  entries.push_back({"empty-wide.svg", 76, 100});
  entries.push_back({"sumfall.svg", 71, 96});
  return entries;
}

}  // namespace pictures
