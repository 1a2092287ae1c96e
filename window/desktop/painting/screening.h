// Pictures, waves and tunes from elsewhere: what is let through to the libraries that read them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

inline constexpr std::uintmax_t kLargestPicture = 1 << 20, kLargestWave = 16 << 20, kLargestTune = 1 << 20;

// Why a file isn't used, "" if it may be: only plain files of that size are.
std::string WhyNotUse(const std::filesystem::path& path, std::uintmax_t largest);
// The file's text; or why it is refused. False if there is no file.
bool ReadMediaFile(const std::filesystem::path& path, std::uintmax_t largest, std::string& text,
                   std::string& why);
// Why a picture isn't drawn, "" if it may be: it refers to nothing outside itself, and what it repeats by
// reference doesn't multiply without end.
std::string WhyNotDraw(std::string_view svg);
// One line on standard error, once a file.
void TellRefused(const std::filesystem::path& path, const std::string& why);
