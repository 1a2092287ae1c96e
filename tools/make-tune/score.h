// The score as it is written: parts, accompaniment styles, sections and their order.
#pragma once

#include <istream>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "harmony.h"

namespace make_tune {

inline constexpr int kBeatsPerBar = 4;
inline constexpr int kCellsPerBar = 8;

/// A mistake in the score; the text says file and line.
class ScoreError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Part {
  std::string name;
  int channel = 1;  // 1 to 16, 10 is the drums
  int program = 1;  // 1 to 128
  int volume = 100;
  int pan = 64;
  int reverb = 40;
  int velocity = 88;
};

struct Note {
  std::vector<int> pitches;  // none for a rest
  double start = 0;          // in beats, within its bar
  double length = 0;
  bool tied = false;  // sounds on into the next note of the same pitch
  bool staccato = false;
  bool accent = false;
  bool grace = false;  // crushed in before the next note
  int line = 0;
};

using Bar = std::vector<Note>;

/// A bar of accompaniment: for the bass, the chords and each drum one character per eighth.
struct Style {
  std::map<std::string, std::string> rows;
};

struct Doubling {
  std::string part;
  int shift = 12;
  int percent = 70;
};

struct Section {
  std::vector<std::vector<Chord>> chords;         // by bar, evenly spread over it
  std::vector<std::string> styles;                // by bar
  std::map<std::string, std::vector<Bar>> parts;  // what is written out, by part
  std::vector<Doubling> doublings;
  double tempo_from = 0;  // 0 keeps the tempo
  double tempo_to = 0;
  int level = 100;  // percent of the velocities
  int line = 0;
};

struct Score {
  std::string title;
  double tempo = 120;
  double swing = 0.5;  // where the second eighth of a beat falls
  std::vector<Part> parts;
  std::map<std::string, int> drums;  // key numbers
  std::map<std::string, Style> styles;
  std::map<std::string, Section> sections;
  std::vector<std::string> order;
};

/// The words of a line, without its comment.
std::vector<std::string> Words(std::string_view text);

/// A whole number; nothing when the word is anything else.
std::optional<int> ParseInt(std::string_view word);

/// Reads the notes of one bar; throws std::invalid_argument with what is wrong.
Bar ParseBar(std::string_view text, int line);

/// Reads a score; throws ScoreError. `name` stands for the file in messages.
Score ReadScore(std::istream& in, const std::string& name);

}  // namespace make_tune
