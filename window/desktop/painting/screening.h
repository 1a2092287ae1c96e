// Pictures from elsewhere: what is let through to the library that draws them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

inline constexpr std::uintmax_t kLargestPicture = 1 << 20;

// Why a picture isn't drawn, "" if it may be: it refers to nothing outside itself, what it repeats by
// reference doesn't multiply without end, and within it are PNG and JPEG of bounded size only.
std::string WhyNotDraw(std::string_view svg);
