// Everything is tuned to F major, the key of the tune, so that waves and music go together.
#include "sounds.h"

#include <algorithm>
#include <cmath>

#include "synth.h"

namespace make_sounds {
namespace {

// MIDI note numbers that carry the family's sound.
constexpr double kF3 = 53, kA3 = 57, kC4 = 60, kF4 = 65, kA4 = 69, kC5 = 72, kD5 = 74, kF5 = 77, kG5 = 79,
                 kA5 = 81, kC6 = 84, kD6 = 86, kF6 = 89, kA6 = 93, kC7 = 96;

// Decibels. Refusals and deselections, of which a player hears many, stay behind the rest.
constexpr double kAside = 3;

/// Hands: each person claps in a steady beat of their own, near or far, with a hollow or a flat palm.
Wave Applause() {
  constexpr double kLength = 3.1;
  Wave wave = Silence(kLength);
  Noise noise(1301);
  for (int person = 0; person < 34; ++person) {
    const double beat = noise.Between(0.17, 0.29);
    double nearness = noise.Between(0.12, 1.0);
    nearness *= noise.Between(0.4, 1.0);
    const double palm = noise.Between(850, 2300);
    double joins = noise.Between(0.0, 0.55);
    joins *= noise.Between(0.1, 1.0);
    double rest = noise.Between(0.0, 1.5);
    rest *= noise.Between(0.3, 1.0);
    const double leaves = kLength - 0.25 - rest;
    for (double at = joins; at < leaves; at += beat * noise.Between(0.9, 1.1)) {
      // A crowd warms up quickly and tires slowly.
      const double swell = std::min(1.0, 0.12 + at / 0.75) * std::min(1.0, 0.12 + (kLength - at) / 1.9);
      Brush clap;
      clap.at = at;
      clap.length = 0.06;
      clap.from_hertz = palm * noise.Between(0.9, 1.12);
      clap.to_hertz = clap.from_hertz * 0.85;
      clap.width = noise.Between(0.45, 0.9);
      clap.attack = 0.0006;
      clap.decay = noise.Between(0.005, 0.011);
      clap.level = nearness * swell * noise.Between(0.75, 1.0);
      AddBrush(wave, noise, clap);
      // The slap of skin on skin, over the hollow of the palms; distance takes it away.
      clap.length = 0.02;
      clap.from_hertz = clap.to_hertz = noise.Between(3800, 5600);
      clap.width = 1.2;
      clap.decay = 0.0025;
      clap.level *= 0.9 * nearness;
      AddBrush(wave, noise, clap);
    }
  }
  AddRoom(wave, 0.9, 0.7);
  SoftLimit(wave, 1.2);
  Finish(wave, 0.004, 0.45);
  return wave;
}

/// A whistle tumbles down and lands on wood.
Wave Busted() {
  Wave wave = Silence(0.86);
  AddGlide(wave, 0, 0.66, kC5 + 2, kF3 - 1, 0.42, 1.1, 0.55);
  AddTap(wave, 0.665, 230, 0.9, 0.03);
  AddBar(wave, 0.665, kF3, 0.7, 0.05, 0.4);
  Finish(wave, 0.002, 0.05);
  return wave;
}

/// Two low bars, close and muffled: "no", said kindly.
Wave Chord() {
  Wave wave = Silence(0.30);
  AddBar(wave, 0.0, kC4 + 1, 0.75, 0.05, 0.4);
  AddBar(wave, 0.0, kC4 + 4, 0.45, 0.045, 0.3);
  AddBar(wave, 0.105, kA3 + 1, 1.0, 0.06, 0.4);
  AddBar(wave, 0.105, kC4 + 1, 0.5, 0.05, 0.3);
  Finish(wave, 0.001, 0.06);
  Soften(wave, kAside);
  return wave;
}

/// A card is bent, lets go and falls flat.
Wave Click() {
  Wave wave = Silence(0.12);
  Noise noise(407);
  AddBrush(wave, noise, {0.0, 0.045, 1800, 4200, 0.9, 0.03, 0.008, 0.35});
  AddBrush(wave, noise, {0.042, 0.06, 3400, 2000, 0.8, 0.001, 0.011, 0.75});
  AddTap(wave, 0.042, 310, 0.9, 0.018);
  AddTap(wave, 0.060, 240, 0.25, 0.010);
  Finish(wave, 0.002, 0.02);
  return wave;
}

/// The wheels of a wooden counter run through a few teeth.
Wave CountScore() {
  Wave wave = Silence(0.17);
  Noise noise(88);
  constexpr int kTeeth = 5;
  for (int tooth = 0; tooth < kTeeth; ++tooth) {
    const double at = 0.002 + 0.029 * tooth;
    const double level = tooth == kTeeth - 1 ? 1.0 : 0.62 + 0.05 * tooth;
    AddTap(wave, at, 760 + 75 * tooth, level, 0.008);
    AddBrush(wave, noise, {at, 0.012, 2600, 2600, 1.0, 0.0008, 0.003, 0.3 * level});
  }
  Finish(wave, 0.001, 0.025);
  return wave;
}

/// Three short calls and a long one, horns below and bells above.
Wave HighScore() {
  Wave wave = Silence(2.2);
  const auto call = [&](double at, double length, std::initializer_list<double> notes, double level) {
    for (double note : notes) {
      AddHorn(wave, at, note - 12, level * 0.5, length);
      AddBar(wave, at, note, level * 0.5, 0.16, 0.8);
    }
  };
  call(0.00, 0.10, {kC5}, 1.1);
  call(0.14, 0.10, {kC5}, 0.9);
  call(0.28, 0.10, {kC5, kF5}, 0.9);
  call(0.42, 0.24, {kC5, kF5, kA5}, 0.9);
  call(0.70, 0.11, {kF5 - 1, kG5, kA5 + 1}, 0.85);
  call(0.84, 0.85, {kC5, kF5, kA5, kC6}, 0.95);
  AddBell(wave, 0.84, kF6, 0.55, 0.5);
  AddBell(wave, 0.98, kA6, 0.35, 0.4);
  AddBell(wave, 1.12, kC7, 0.35, 0.4);
  AddRoom(wave, 0.35, 0.9);
  SoftLimit(wave, 1.0);
  Finish(wave, 0.001, 0.4);
  return wave;
}

/// A bar touched with a soft mallet.
Wave Markq() {
  Wave wave = Silence(0.24);
  AddBar(wave, 0, kF5, 1.0, 0.045, 0.55);
  AddBar(wave, 0, kF5 - 12, 0.25, 0.05, 0.2);
  Finish(wave, 0.0005, 0.06);
  return wave;
}

/// A deck riffled: the corners fall faster and faster, then the halves are squared.
Wave NoiseBurst() {
  Wave wave = Silence(0.42);
  Noise noise(2024);
  double at = 0.004;
  double gap = 0.021;
  while (at < 0.33) {
    const double swell = 0.45 + 0.55 * std::sin(kPi * std::min(1.0, at / 0.36));
    const double hertz = noise.Between(2300, 3600);
    AddBrush(wave, noise,
             {at, 0.02, hertz, hertz * 0.8, 0.8, 0.0007, 0.0045, swell * noise.Between(0.7, 1.0)});
    AddTap(wave, at, noise.Between(380, 470), 0.10 * swell, 0.006);
    at += gap * noise.Between(0.9, 1.1);
    gap = std::max(0.009, gap * 0.955);
  }
  AddBrush(wave, noise, {0.345, 0.06, 2000, 1200, 1.0, 0.002, 0.012, 0.9});
  AddTap(wave, 0.348, 260, 0.5, 0.012);
  SoftLimit(wave, 1.3);
  Finish(wave, 0.002, 0.03);
  return wave;
}

/// A card glides over cloth and the voice sinks with it.
Wave Slide() {
  Wave wave = Silence(0.72);
  Noise noise(51);
  AddBrush(wave, noise, {0.0, 0.62, 4200, 900, 0.7, 0.14, 0.22, 1.0});
  AddGlide(wave, 0.10, 0.56, kA4, kC4, 0.30, 0.25, 0.1);
  AddBar(wave, 0.56, kC4, 0.5, 0.05, 0.2);
  Finish(wave, 0.01, 0.08);
  return wave;
}

/// One step of a count. It comes every 75 ms for minutes: dull, dry and without a clear pitch.
Wave Snap() {
  Wave wave = Silence(0.048);
  Noise noise(7);
  AddTap(wave, 0.0, 520, 1.0, 0.0075);
  AddBrush(wave, noise, {0.0, 0.014, 1700, 1300, 0.9, 0.0012, 0.003, 0.22});
  Finish(wave, 0.0008, 0.015);
  return wave;
}

/// The selection's answer, a fourth lower and half as long.
Wave Tick() {
  Wave wave = Silence(0.13);
  AddBar(wave, 0, kC5, 1.0, 0.022, 0.25);
  Finish(wave, 0.0008, 0.04);
  Soften(wave, kAside);
  return wave;
}

/// A bright run up the chord that stays in the air.
Wave TwentyOne() {
  Wave wave = Silence(0.95);
  const double notes[] = {kF5, kA5, kC6, kF6};
  for (int i = 0; i < 4; ++i) {
    AddBar(wave, 0.065 * i, notes[i], 0.75, 0.10, 0.8);
    AddBell(wave, 0.065 * i, notes[i], i == 3 ? 0.7 : 0.35, i == 3 ? 0.30 : 0.14);
  }
  AddBell(wave, 0.195, kC7, 0.25, 0.2);
  AddRoom(wave, 0.25, 0.5);
  Finish(wave, 0.0005, 0.2);
  return wave;
}

/// A run up, a held breath, two hops, and everybody lands on the last chord.
Wave Wingame() {
  Wave wave = Silence(2.9);
  Noise noise(77);
  const double run[] = {kC4, kF4, kA4, kC5, kD5, kF5, kG5, kA5, kC6, kD6, kF6};
  double at = 0;
  for (int i = 0; i < 11; ++i) {
    AddBar(wave, at, run[i], 0.65 + 0.03 * i, 0.11, 0.7);
    if (i >= 4) AddBell(wave, at, run[i] + 12, 0.12, 0.12);
    at += 0.058;
  }
  AddGlide(wave, 0.30, 0.36, kC5, kC6 + 2, 0.22, 0.3, 0.05);
  const auto hop = [&](double when, std::initializer_list<double> notes, double ring, double level) {
    for (double note : notes) AddBar(wave, when, note, level, ring, 0.75);
    AddTap(wave, when, 190, level, 0.02);
    AddBrush(wave, noise, {when, 0.05, 5200, 4200, 0.8, 0.001, 0.012, 0.16 * level});
  };
  hop(0.86, {kF4, kC5, kF5, kA5}, 0.09, 0.6);
  hop(1.01, {kF4, kC5, kF5, kA5}, 0.07, 0.45);
  hop(1.16, {kF4 + 1, kC5, kD5 + 1, kA5}, 0.09, 0.55);
  hop(1.31, {kC4, kC5 - 2, kF5 - 1, kG5, kA5 + 1}, 0.10, 0.6);
  hop(1.61, {kF3, kF4, kC5, kF5, kA5, kC6}, 0.38, 0.62);
  AddBell(wave, 1.61, kF6, 0.45, 0.5);
  const double sparkle[] = {kC6, kF6, kA6, kC7};
  for (int i = 0; i < 4; ++i) AddBell(wave, 1.74 + 0.075 * i, sparkle[i], 0.22, 0.32);
  AddBell(wave, 2.12, kF6 + 12, 0.30, 0.22);
  AddRoom(wave, 0.3, 0.8);
  SoftLimit(wave, 0.9);
  Finish(wave, 0.0005, 0.5);
  return wave;
}

}  // namespace

const std::vector<Sound>& AllSounds() {
  static const std::vector<Sound> sounds = {
      {"Applause.wav", Applause},
      {"Busted.wav", Busted},
      {"Chord.wav", Chord},
      {"Click.wav", Click},
      {"CountScore.wav", CountScore},
      {"HighScore.wav", HighScore},
      {"Markq.wav", Markq},
      {"Noise.wav", NoiseBurst},
      {"Slide.wav", Slide},
      {"Snap.wav", Snap},
      {"Tick.wav", Tick},
      {"TwentyOne.wav", TwentyOne},
      {"Wingame.wav", Wingame},
  };
  return sounds;
}

}  // namespace make_sounds
