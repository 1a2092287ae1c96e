// A mono wave under construction and its way to a file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace make_sounds {

inline constexpr double kRate = 44100.0;
inline constexpr double kPi = 3.14159265358979323846;

/// Samples at kRate; any scale until Finish brings them to the common peak.
using Wave = std::vector<double>;

/// A silent wave of that length.
Wave Silence(double seconds);

/// The sample at that time.
std::size_t SampleAt(double seconds);

/// Rounds off the highest peaks, so that a dense sound isn't ruled by a few of them; `drive` 1 is mild.
void SoftLimit(Wave& wave, double drive);

/// Takes out DC, fades the ends over the given times and brings the peak to -3 dBFS.
void Finish(Wave& wave, double fade_in, double fade_out);

/// Takes away that many decibels.
void Soften(Wave& wave, double decibels);

/// Writes 16 bit mono PCM; false when the file can't be written.
bool WriteWave(const std::filesystem::path& path, const Wave& wave);
/// Whether that file holds the wave. A sample may be off by one: the last digits of a sine are another matter
/// on each system, and may fall to either side of a half.
bool SoundsAlike(const std::filesystem::path& path, const Wave& wave);

}  // namespace make_sounds
