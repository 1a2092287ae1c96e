// Pictures, waves and tunes that a player has put beside the program's own.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

// Why such a file isn't used, "" if it may be: only plain files up to that size are.
std::string WhyNotUse(const std::filesystem::path& path, std::uintmax_t largest);
// Its text; or why it is refused. False if there is no file.
bool ReadForeignFile(const std::filesystem::path& path, std::uintmax_t largest, std::string& text,
                     std::string& why);
// One line on standard error, once a file.
void TellRefused(const std::filesystem::path& path, const std::string& why);
