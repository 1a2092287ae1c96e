#include "wave.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

namespace make_sounds {
namespace {

constexpr double kPeak = 0.7079457843841379;  // -3 dBFS

double PeakOf(const Wave& wave) {
  double peak = 0;
  for (double sample : wave) peak = std::max(peak, std::abs(sample));
  return peak;
}

/// A gentle high pass: what lies under some 25 Hz only moves the loudspeaker.
void BlockDc(Wave& wave) {
  const double keep = 1 - 2 * kPi * 25 / kRate;
  double last_in = 0;
  double last_out = 0;
  for (double& sample : wave) {
    const double out = sample - last_in + keep * last_out;
    last_in = sample;
    last_out = out;
    sample = out;
  }
}

/// Takes the mean away in the shape of an arch, which leaves both ends at zero.
void CentreBetweenEnds(Wave& wave) {
  const auto arch = [&](std::size_t i) {
    return std::sin(kPi * static_cast<double>(i) / static_cast<double>(wave.size() - 1));
  };
  double sum = 0;
  double arch_sum = 0;
  for (std::size_t i = 0; i < wave.size(); ++i) {
    sum += wave[i];
    arch_sum += arch(i);
  }
  for (std::size_t i = 0; i < wave.size(); ++i) wave[i] -= sum / arch_sum * arch(i);
}

void PutNumber(std::string& bytes, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<char>(number >> (8 * i) & 0xff));
}

std::string WaveFile(const Wave& wave) {
  const auto data_size = static_cast<std::uint32_t>(wave.size() * 2);
  std::string bytes = "RIFF";
  PutNumber(bytes, 36 + data_size, 4);
  bytes += "WAVEfmt ";
  PutNumber(bytes, 16, 4);
  PutNumber(bytes, 1, 2);  // PCM
  PutNumber(bytes, 1, 2);  // mono
  PutNumber(bytes, static_cast<std::uint32_t>(kRate), 4);
  PutNumber(bytes, static_cast<std::uint32_t>(kRate) * 2, 4);
  PutNumber(bytes, 2, 2);
  PutNumber(bytes, 16, 2);
  bytes += "data";
  PutNumber(bytes, data_size, 4);
  for (double sample : wave) {
    const auto value = static_cast<std::int32_t>(std::lround(std::clamp(sample, -1.0, 1.0) * 32767));
    PutNumber(bytes, static_cast<std::uint32_t>(value), 2);
  }
  return bytes;
}

constexpr std::size_t kHeadSize = 44;  // bytes before the first sample

int SampleIn(const std::string& bytes, std::size_t at) {
  const int low = static_cast<unsigned char>(bytes[at]), high = static_cast<unsigned char>(bytes[at + 1]);
  return static_cast<std::int16_t>(low | high << 8);
}

}  // namespace

Wave Silence(double seconds) { return Wave(SampleAt(seconds), 0.0); }

std::size_t SampleAt(double seconds) { return static_cast<std::size_t>(std::lround(seconds * kRate)); }

void SoftLimit(Wave& wave, double drive) {
  const double peak = PeakOf(wave);
  if (peak == 0) return;
  for (double& sample : wave) sample = std::tanh(sample / peak * drive);
}

void Finish(Wave& wave, double fade_in, double fade_out) {
  if (wave.size() < 2) return;
  BlockDc(wave);
  const std::size_t rise = SampleAt(fade_in);
  const std::size_t fall = SampleAt(fade_out);
  for (std::size_t i = 0; i < std::min(rise, wave.size()); ++i)
    wave[i] *= 0.5 - 0.5 * std::cos(kPi * static_cast<double>(i) / static_cast<double>(rise));
  for (std::size_t i = 0; i < std::min(fall, wave.size()); ++i)
    wave[wave.size() - 1 - i] *=
        0.5 - 0.5 * std::cos(kPi * static_cast<double>(i) / static_cast<double>(fall));
  CentreBetweenEnds(wave);
  const double peak = PeakOf(wave);
  if (peak == 0) return;
  for (double& sample : wave) sample *= kPeak / peak;
}

void Soften(Wave& wave, double decibels) {
  for (double& sample : wave) sample *= std::pow(10, -decibels / 20);
}

bool WriteWave(const std::filesystem::path& path, const Wave& wave) {
  const std::string bytes = WaveFile(wave);
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !file.fail();
}

bool SoundsAlike(const std::filesystem::path& path, const Wave& wave) {
  std::ifstream file(path, std::ios::binary);
  const std::string found{std::istreambuf_iterator<char>(file), {}};
  const std::string made = WaveFile(wave);
  if (found.size() != made.size() || found.compare(0, kHeadSize, made, 0, kHeadSize) != 0) return false;
  for (std::size_t i = kHeadSize; i < made.size(); i += 2)
    if (std::abs(SampleIn(found, i) - SampleIn(made, i)) > 1) return false;
  return true;
}

}  // namespace make_sounds
