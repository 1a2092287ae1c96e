// Chord symbols and what the accompaniment makes of them.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace make_tune {

/// A chord as pitch classes (0 is C), the root first.
struct Chord {
  std::vector<int> classes;
  int bass = 0;  // the class in the bass, the root unless the symbol says otherwise
};

/// Reads "Bb", "F#m7", "Edim", "F/C"; nothing when it isn't a chord symbol.
std::optional<Chord> ParseChord(std::string_view symbol);

/// The class of a note name ("c", "f#", "bb"), moving `text` past it; nothing when there is none.
std::optional<int> TakeNoteName(std::string_view& text);

bool InChord(const Chord& chord, int pitch);

/// The chord in close position in the middle of the keyboard, moving little from `before`.
std::vector<int> Voicing(const Chord& chord, const std::vector<int>& before);

/// The pitch of that class that lies nearest to `near` within low..high.
int NearestPitch(int pitch_class, int near, int low, int high);

}  // namespace make_tune
