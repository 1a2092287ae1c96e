#include "arrange.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>

namespace make_tune {
namespace {

/// A part's note on the even grid of the paper, before swing and hands have touched it.
struct Planned {
  double from = 0;  // in beats from the beginning
  double to = 0;
  int pitch = 60;
  double weight = 1;  // of the velocity
  bool tied = false;
};

class Arranger {
 public:
  explicit Arranger(const Score& score) : score_(score), planned_(score.parts.size()) {}

  Tune Play() {
    tune_.title = score_.title;
    tune_.tempos.push_back({0, score_.tempo});
    double tempo = score_.tempo;
    for (std::size_t i = 0; i < score_.order.size(); ++i) {
      const std::string& next = score_.order[i + 1 < score_.order.size() ? i + 1 : i];
      next_chord_ = score_.sections.at(next).chords.front().front();
      PlaySection(score_.sections.at(score_.order[i]), tempo);
    }
    for (std::size_t i = 0; i < score_.parts.size(); ++i)
      tune_.tracks.push_back({score_.parts[i], Perform(planned_[i])});
    tune_.end = Tick(beat_) + kTicksPerBeat;
    return std::move(tune_);
  }

 private:
  void PlaySection(const Section& section, double& tempo) {
    const double begin = beat_;
    level_ = section.level / 100.0;
    const int beats = static_cast<int>(section.chords.size()) * kBeatsPerBar;
    if (section.tempo_from > 0) {
      for (int i = 0; i < beats; ++i) {
        tempo = section.tempo_from + (section.tempo_to - section.tempo_from) * i / std::max(1, beats - 1);
        if (i == 0 || section.tempo_from != section.tempo_to)
          tune_.tempos.push_back({Tick(begin + i), tempo});
      }
    }
    for (std::size_t bar = 0; bar < section.chords.size(); ++bar) {
      const Style& style = score_.styles.at(section.styles[bar]);
      for (std::size_t i = 0; i < score_.parts.size(); ++i) {
        const auto written = section.parts.find(score_.parts[i].name);
        if (written != section.parts.end()) {
          PlayWritten(i, section, written->second[bar]);
        } else if (score_.parts[i].name == "bass") {
          PlayBass(i, style, section, bar);
        } else if (score_.parts[i].name == "comp") {
          PlayChords(i, style, section.chords[bar]);
        } else if (score_.parts[i].channel == 10) {
          PlayDrums(i, style);
        }
      }
      beat_ += kBeatsPerBar;
    }
  }

  void Plan(std::size_t part, double from, double length, int pitch, double weight, bool tied = false) {
    planned_[part].push_back({beat_ + from, beat_ + from + length, pitch, weight * level_, tied});
  }

  void PlayWritten(std::size_t part, const Section& section, const Bar& bar) {
    for (std::size_t i = 0; i < bar.size(); ++i) {
      const Note& note = bar[i];
      const double weight = note.accent ? 1.15 : 1.0;
      for (int pitch : note.pitches) {
        if (note.grace) {
          Plan(part, std::max(note.start - 0.13, -beat_), 0.16, pitch, 0.72);
          continue;
        }
        Plan(part, note.start, note.staccato ? note.length * 0.45 : note.length * 0.93, pitch, weight,
             note.tied);
        for (const Doubling& doubling : section.doublings)
          if (doubling.part == score_.parts[part].name)
            Plan(part, note.start, note.length * 0.9, pitch + doubling.shift,
                 weight * doubling.percent / 100.0, note.tied);
      }
    }
  }

  static const Chord& ChordAt(const std::vector<Chord>& chords, std::size_t cell) {
    return chords[cell * chords.size() / kCellsPerBar];
  }

  /// How many cells a stroke lasts: its own and the holds after it.
  static std::size_t HeldCells(const std::string& row, std::size_t cell) {
    std::size_t end = cell + 1;
    while (end < row.size() && row[end] == '-') ++end;
    return end - cell;
  }

  void PlayBass(std::size_t part, const Style& style, const Section& section, std::size_t bar) {
    const auto row = style.rows.find("bass");
    if (row == style.rows.end()) return;
    for (std::size_t cell = 0; cell < kCellsPerBar; ++cell) {
      const char what = row->second[cell];
      if (what == '.' || what == '-') continue;
      const Chord& chord = ChordAt(section.chords[bar], cell);
      const std::size_t held = HeldCells(row->second, cell);
      const int pitch = BassPitch(what, chord, NextChord(section, bar, cell + held));
      Plan(part, cell * 0.5, held * 0.5 * 0.9, pitch, cell == 0 ? 1.08 : 0.96);
      last_bass_ = pitch;
    }
  }

  const Chord& NextChord(const Section& section, std::size_t bar, std::size_t cell) const {
    if (cell < kCellsPerBar) return ChordAt(section.chords[bar], cell);
    return bar + 1 < section.chords.size() ? section.chords[bar + 1].front() : next_chord_;
  }

  int BassPitch(char what, const Chord& chord, const Chord& next) const {
    constexpr int kLow = 28;
    constexpr int kHigh = 48;
    switch (what) {
      case '3':
        return NearestPitch(chord.classes[1], last_bass_, kLow, kHigh);
      case '5':
        return NearestPitch(Fifth(chord), last_bass_ - 2, kLow, kHigh);
      case '8':
        return NearestPitch(chord.bass, last_bass_ + 7, kLow, kHigh);
      // A half step towards the next root, from whichever side is nearer.
      case 'a': {
        const int goal = NearestPitch(next.bass, last_bass_, kLow + 1, kHigh);
        return last_bass_ > goal ? goal + 1 : goal - 1;
      }
      default:
        return NearestPitch(chord.bass, (last_bass_ + 36) / 2, kLow, kHigh);
    }
  }

  /// What answers the bass note: the fifth, or the root when the fifth is down there already.
  static int Fifth(const Chord& chord) {
    const int fifth = chord.classes[2];
    return chord.bass == fifth ? chord.classes[0] : fifth;
  }

  void PlayChords(std::size_t part, const Style& style, const std::vector<Chord>& chords) {
    const auto row = style.rows.find("comp");
    if (row == style.rows.end()) return;
    for (std::size_t cell = 0; cell < kCellsPerBar; ++cell) {
      const char what = row->second[cell];
      if (what == '.' || what == '-') continue;
      const std::size_t held = HeldCells(row->second, cell);
      voicing_ = Voicing(ChordAt(chords, cell), voicing_);
      const double length = held > 1 ? held * 0.5 * 0.92 : 0.36;
      for (int pitch : voicing_) Plan(part, cell * 0.5, length, pitch, what == 'X' ? 1.15 : 0.95);
    }
  }

  void PlayDrums(std::size_t part, const Style& style) {
    for (const auto& [drum, key] : score_.drums) {
      const auto row = style.rows.find(drum);
      if (row == style.rows.end()) continue;
      for (std::size_t cell = 0; cell < kCellsPerBar; ++cell) {
        const char what = row->second[cell];
        if (what != '.') Plan(part, cell * 0.5, 0.3, key, what == 'X' ? 1.25 : what == 'o' ? 0.62 : 0.9);
      }
    }
  }

  int Tick(double beat) const {
    // Swing: the first half of each beat is stretched, the second half squeezed.
    const double whole = std::floor(beat + 1e-9);
    const double rest = std::max(0.0, beat - whole);
    const double swung =
        rest < 0.5 ? rest * 2 * score_.swing : score_.swing + (rest - 0.5) * 2 * (1 - score_.swing);
    return static_cast<int>(std::lround((whole + swung) * kTicksPerBeat));
  }

  /// Joins what is tied, then gives times and velocities the small unevenness of hands.
  std::vector<Sounding> Perform(std::vector<Planned>& notes) {
    const std::size_t index = static_cast<std::size_t>(&notes - planned_.data());
    const Part& part = score_.parts[index];
    std::mt19937 hand(static_cast<std::uint32_t>(4711 + index));
    const auto spread = [&](int width) { return static_cast<int>(hand() % (2 * width + 1)) - width; };
    std::stable_sort(notes.begin(), notes.end(),
                     [](const Planned& a, const Planned& b) { return a.from < b.from; });
    std::vector<Sounding> result;
    for (std::size_t i = 0; i < notes.size(); ++i) {
      Planned note = notes[i];
      if (note.weight == 0) continue;
      for (std::size_t j = i + 1; note.tied && j < notes.size(); ++j) {
        if (notes[j].pitch != note.pitch || notes[j].weight == 0) continue;
        note.to = notes[j].to;
        note.tied = notes[j].tied;
        notes[j].weight = 0;
      }
      const double in_bar = std::fmod(note.from, kBeatsPerBar);
      const bool on_beat = std::abs(in_bar - std::round(in_bar)) < 1e-6;
      const int accent = in_bar < 0.01 ? 6 : std::abs(in_bar - 2) < 0.01 ? 3 : on_beat ? 0 : -4;
      const int lift = part.channel == 10 ? 0 : (note.pitch - 66) / 6;
      const int velocity =
          static_cast<int>(std::lround(note.weight * (part.velocity + accent + lift))) + spread(4);
      const int shift = note.from < 0.5 ? 0 : spread(on_beat ? 4 : 7);
      const int from = Tick(note.from) + shift;
      result.push_back(
          {from, std::max(from + 20, Tick(note.to) + shift), note.pitch, std::clamp(velocity, 12, 127)});
    }
    return result;
  }

  const Score& score_;
  std::vector<std::vector<Planned>> planned_;
  Tune tune_;
  double beat_ = 0;
  double level_ = 1;
  int last_bass_ = 36;
  Chord next_chord_;  // the first of the next section
  std::vector<int> voicing_;
};

}  // namespace

Tune Arrange(const Score& score) { return Arranger(score).Play(); }

}  // namespace make_tune
