// From the score to what each part plays.
#pragma once

#include <string>
#include <vector>

#include "score.h"

namespace make_tune {

inline constexpr int kTicksPerBeat = 480;

struct Sounding {
  int from = 0;  // ticks
  int to = 0;
  int pitch = 60;
  int velocity = 80;
};

struct Track {
  Part part;
  std::vector<Sounding> notes;
};

struct TempoChange {
  int at = 0;  // ticks
  double tempo = 120;
};

struct Tune {
  std::string title;
  std::vector<TempoChange> tempos;
  std::vector<Track> tracks;
  int end = 0;
};

/// Plays the sections in their order: the written parts, and bass, chords and drums after the styles.
Tune Arrange(const Score& score);

}  // namespace make_tune
