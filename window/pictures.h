// Where a picture of the catalogue comes from. The suite makes the list; front ends that draw use it.
#pragma once

#include <string>
#include <vector>

struct PictureFile {
  std::string file;           // SVG, in the folder of the pictures
  int width = 0, height = 0;  // pixels at 100 %
};

// Entry i holds the picture of catalogue index i + 1.
using PictureFiles = std::vector<PictureFile>;
