// The list of all pictures: which files there are, in which order and how large each one is.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pictures {

/// One picture of the catalogue. Its index is its place in the list, counted from 1.
struct Entry {
  std::string file;
  int width = 0;
  int height = 0;
};

/// All pictures in the order of their index.
std::vector<Entry> Catalogue();

/// The number of back designs.
inline constexpr int kBackCount = 4;

/// The letters of the four suits as they stand in file names, in the order of the catalogue.
inline constexpr std::string_view kSuitLetters = "SHCD";

/// The number of ranks, from the ace (1) to the king (13).
inline constexpr int kRankCount = 13;

}  // namespace pictures
