#include "check.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace make_tune {
namespace {

std::string PitchName(int pitch) {
  constexpr const char* kNames[] = {"c", "c#", "d", "eb", "e", "f", "f#", "g", "ab", "a", "bb", "b"};
  return kNames[pitch % 12] + std::to_string(pitch / 12 - 1);
}

/// On the first or third beat, or at least a beat long.
bool IsWeighty(const Note& note) { return std::abs(std::fmod(note.start, 2.0)) < 1e-9 || note.length >= 1; }

const Chord& ChordAt(const std::vector<Chord>& chords, double beat) {
  return chords[static_cast<std::size_t>(beat * static_cast<double>(chords.size()) / kBeatsPerBar)];
}

bool Rub(int a, int b) {
  const int distance = std::abs(a - b) % 12;
  return distance == 1 || distance == 11;
}

bool Together(const Note& a, const Note& b) {
  const double from = std::max(a.start, b.start);
  const double to = std::min(a.start + a.length, b.start + b.length);
  return to - from >= 0.5;
}

}  // namespace

std::vector<std::string> FindClashes(const Score& score, const std::string& name) {
  std::vector<std::string> clashes;
  const auto report = [&](const std::string& section, std::size_t bar, const Note& note, int pitch,
                          const std::string& what) {
    clashes.push_back(name + ":" + std::to_string(note.line) + ": " + section + " bar " +
                      std::to_string(bar + 1) + ": " + PitchName(pitch) + " " + what);
  };
  for (const auto& [section_name, section] : score.sections) {
    for (const auto& [part, bars] : section.parts) {
      for (std::size_t bar = 0; bar < bars.size(); ++bar) {
        for (const Note& note : bars[bar]) {
          if (note.grace) continue;
          for (int pitch : note.pitches) {
            if (IsWeighty(note) && !InChord(ChordAt(section.chords[bar], note.start), pitch))
              report(section_name, bar, note, pitch, "in " + part + " isn't in the chord");
            for (const auto& [other, other_bars] : section.parts) {
              if (other <= part) continue;
              for (const Note& against : other_bars[bar])
                for (int other_pitch : against.pitches)
                  if (!against.grace && Together(note, against) && Rub(pitch, other_pitch))
                    report(section_name, bar, note, pitch,
                           "in " + part + " rubs with " + PitchName(other_pitch) + " in " + other);
            }
          }
        }
      }
    }
  }
  return clashes;
}

}  // namespace make_tune
