// Waves from elsewhere: what is let through to the library that plays them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

inline constexpr std::uintmax_t kLargestWave = 16 << 20;  // as a file, and as it is kept to be played

// Why a wave isn't played, "" if it may be: it is plain samples of a usual rate, and made ready to be played
// it is no larger than that.
std::string WhyNotPlay(const std::filesystem::path& path);
