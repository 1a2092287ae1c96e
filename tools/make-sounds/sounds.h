// The thirteen waves of the suite.
#pragma once

#include <string_view>
#include <vector>

#include "wave.h"

namespace make_sounds {

/// A wave's file name and what makes it.
struct Sound {
  std::string_view file_name;
  Wave (*make)();
};

/// All waves, by name.
const std::vector<Sound>& AllSounds();

}  // namespace make_sounds
