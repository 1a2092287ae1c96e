// The instruments: struck wooden bars, bells, a whistle, a small brass, paper and hands.
#pragma once

#include <cstdint>
#include <random>

#include "wave.h"

namespace make_sounds {

/// White noise of a fixed seed, so that every run makes the same file.
class Noise {
 public:
  explicit Noise(std::uint32_t seed) : engine_(seed) {}
  /// Evenly spread over -1..1.
  double Sample() { return 2 * Unit() - 1; }
  /// Evenly spread over the range.
  double Between(double low, double high) { return low + (high - low) * Unit(); }

 private:
  double Unit() { return static_cast<double>(engine_()) / 4294967295.0; }
  std::mt19937 engine_;
};

/// The frequency of a MIDI note number (69 is 440 Hz).
double Pitch(double note);

/// A marimba bar: `ring` is the time in which the ground tone falls to a third; `bright` 1 is a hard mallet.
void AddBar(Wave& wave, double at, double note, double level, double ring, double bright = 0.5);

/// A glockenspiel-like bell, long and clear.
void AddBell(Wave& wave, double at, double note, double level, double ring);

/// A muffled tap on wood, more knock than tone.
void AddTap(Wave& wave, double at, double hertz, double level, double ring);

/// A soft horn of few harmonics, held for `length`.
void AddHorn(Wave& wave, double at, double note, double level, double length);

/// A whistle that glides from one note to another with a vibrato that grows up to `wobble` semitones.
void AddGlide(Wave& wave, double at, double length, double from, double to, double level, double wobble,
              double reed);

/// A brush of paper: noise around a middle frequency that moves, `attack` up and `decay` down.
struct Brush {
  double at = 0;
  double length = 0.1;
  double from_hertz = 3000;
  double to_hertz = 3000;
  double width = 1.0;  // of the band, relative to its middle
  double attack = 0.005;
  double decay = 0.03;  // time to fall to a third
  double level = 1;
};
void AddBrush(Wave& wave, Noise& noise, const Brush& brush);

/// A small room behind the sound.
void AddRoom(Wave& wave, double mix, double decay);

}  // namespace make_sounds
