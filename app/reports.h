// What the console program prints of the games played so far.
#pragma once

#include <filesystem>
#include <string>

// The history's sound lines, under its header; and what they amount to, of all games or of one. The exit
// status.
int PrintHistory(const std::filesystem::path& folder);
int PrintStatistics(const std::filesystem::path& folder, const std::string& game);
