#include "synth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

namespace make_sounds {
namespace {

struct Partial {
  double ratio;
  double level;
  double ring;  // relative to the ground tone
};

/// Decaying sines that start together, with a rise short enough to be heard as a stroke.
void AddPartials(Wave& wave, double at, double hertz, double level, double ring, double rise,
                 std::initializer_list<Partial> partials) {
  const std::size_t begin = SampleAt(at);
  for (const Partial& partial : partials) {
    const double step = 2 * kPi * hertz * partial.ratio / kRate;
    const double tau = ring * partial.ring;
    if (hertz * partial.ratio > kRate * 0.4) continue;
    const std::size_t end = std::min(wave.size(), begin + SampleAt(tau * 9));
    for (std::size_t i = begin; i < end; ++i) {
      const double n = static_cast<double>(i - begin);
      const double t = n / kRate;
      wave[i] += level * partial.level * (1 - std::exp(-t / rise)) * std::exp(-t / tau) * std::sin(step * n);
    }
  }
}

/// A state variable filter: a band around a frequency that may change with every sample.
class Band {
 public:
  double Next(double in, double hertz, double width) {
    const double f = 2 * std::sin(kPi * std::min(hertz, kRate / 7) / kRate);
    low_ += f * band_;
    band_ += f * (in - low_ - std::clamp(width, 0.05, 1.8) * band_);
    return band_;
  }

 private:
  double low_ = 0;
  double band_ = 0;
};

}  // namespace

double Pitch(double note) { return 440 * std::pow(2.0, (note - 69) / 12); }

void AddBar(Wave& wave, double at, double note, double level, double ring, double bright) {
  AddPartials(
      wave, at, Pitch(note), level, ring, 0.0008 + 0.0015 * (1 - bright),
      {{1, 1, 1}, {2.01, 0.10 * bright, 0.4}, {3.93, 0.42 * bright, 0.22}, {9.4, 0.16 * bright, 0.07}});
}

void AddBell(Wave& wave, double at, double note, double level, double ring) {
  AddPartials(wave, at, Pitch(note), level, ring, 0.0007,
              {{1, 1, 1}, {1.003, 0.35, 0.9}, {2.756, 0.30, 0.35}, {5.404, 0.10, 0.14}});
}

void AddTap(Wave& wave, double at, double hertz, double level, double ring) {
  AddPartials(wave, at, hertz, level, ring, 0.0012, {{1, 1, 1}, {1.62, 0.45, 0.7}, {2.73, 0.2, 0.4}});
}

void AddHorn(Wave& wave, double at, double note, double level, double length) {
  const std::size_t begin = SampleAt(at);
  const double release = 0.07;
  const std::size_t end = std::min(wave.size(), begin + SampleAt(length + release * 5));
  const double step = 2 * kPi * Pitch(note) / kRate;
  for (std::size_t i = begin; i < end; ++i) {
    const double n = static_cast<double>(i - begin);
    const double t = n / kRate;
    double envelope = (1 - std::exp(-t / 0.018)) * (0.75 + 0.25 * std::exp(-t / 0.12));
    if (t > length) envelope *= std::exp(-(t - length) / release);
    double tone = 0;
    for (int harmonic = 1; harmonic <= 6; ++harmonic) {
      // The upper harmonics swell later and fall sooner, as breath does.
      const double share = std::pow(envelope, 0.4 * harmonic) / std::pow(harmonic, 1.35);
      tone += share * std::sin(step * n * harmonic);
    }
    wave[i] += level * envelope * tone * 0.6;
  }
}

void AddGlide(Wave& wave, double at, double length, double from, double to, double level, double wobble,
              double reed) {
  const std::size_t begin = SampleAt(at);
  const std::size_t count = SampleAt(length);
  double phase = 0;
  for (std::size_t i = 0; i < count && begin + i < wave.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    const double share = static_cast<double>(i) / static_cast<double>(count);
    const double vibrato = wobble * share * std::sin(2 * kPi * 7.5 * t);
    const double bend = share * share * (3 - 2 * share);
    phase += 2 * kPi * Pitch(from + (to - from) * bend + vibrato) / kRate;
    const double envelope = (1 - std::exp(-t / 0.015)) * std::min(1.0, (1 - share) * 6) * (1 - 0.45 * share);
    const double tone = std::sin(phase) + reed * (0.5 * std::sin(2 * phase) + 0.35 * std::sin(3 * phase) +
                                                  0.15 * std::sin(4 * phase) + 0.12 * std::sin(5 * phase));
    wave[begin + i] += level * envelope * tone;
  }
}

void AddBrush(Wave& wave, Noise& noise, const Brush& brush) {
  Band band;
  Band second;
  const std::size_t begin = SampleAt(brush.at);
  const std::size_t count = SampleAt(brush.length);
  for (std::size_t i = 0; i < count && begin + i < wave.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    const double share = static_cast<double>(i) / static_cast<double>(count);
    const double hertz = brush.from_hertz * std::pow(brush.to_hertz / brush.from_hertz, share);
    const double grain = band.Next(noise.Sample(), hertz, brush.width);
    const double paper = second.Next(grain, hertz, brush.width * 1.3);
    double envelope = t < brush.attack ? t / brush.attack : std::exp(-(t - brush.attack) / brush.decay);
    envelope *= std::min(1.0, (1 - share) * 10);
    wave[begin + i] += brush.level * envelope * paper * std::sqrt(3000 / hertz) / std::sqrt(brush.width);
  }
}

void AddRoom(Wave& wave, double mix, double decay) {
  constexpr std::array<double, 6> kDelays = {0.0231, 0.0293, 0.0337, 0.0379, 0.0411, 0.0447};
  Wave wet(wave.size(), 0.0);
  for (double seconds : kDelays) {
    const std::size_t delay = SampleAt(seconds);
    const double feedback = std::pow(0.001, seconds / decay);
    Wave line(wave.size(), 0.0);
    double soft = 0;
    for (std::size_t i = delay; i < wave.size(); ++i) {
      soft += 0.45 * (line[i - delay] - soft);  // walls swallow the highs first
      line[i] = wave[i - delay] + feedback * soft;
      wet[i] += line[i] / kDelays.size();
    }
  }
  constexpr std::array<double, 2> kSmears = {0.0051, 0.0017};
  for (double seconds : kSmears) {
    const std::size_t delay = SampleAt(seconds);
    Wave smeared(wet.size(), 0.0);
    for (std::size_t i = 0; i < wet.size(); ++i) {
      const double old_in = i >= delay ? wet[i - delay] : 0;
      const double old_out = i >= delay ? smeared[i - delay] : 0;
      smeared[i] = -0.6 * wet[i] + old_in + 0.6 * old_out;
    }
    wet = smeared;
  }
  for (std::size_t i = 0; i < wave.size(); ++i) wave[i] += mix * wet[i];
}

}  // namespace make_sounds
