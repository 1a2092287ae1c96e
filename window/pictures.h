// Where a picture of the catalogue comes from. The suite makes the list; front ends that draw use it.
#pragma once

#include <string>
#include <vector>

enum class PictureKind {
  Other,
  Back,  // of a single card
  Pile,  // the back of several
  Place  // without a card
};

struct PictureFile {
  std::string file;           // SVG, in the folder of the pictures
  int width = 0, height = 0;  // pixels at 100 %
  PictureKind kind = PictureKind::Other;
};

// Entry i holds the picture of catalogue index i + 1.
using PictureFiles = std::vector<PictureFile>;
