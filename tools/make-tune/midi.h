// Standard MIDI files.
#pragma once

#include <string>

#include "arrange.h"

namespace make_tune {

/// The bytes of a format 1 file: a track of tempos, then one per part.
std::string MidiFile(const Tune& tune);

}  // namespace make_tune
