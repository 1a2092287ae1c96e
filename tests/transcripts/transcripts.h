// Recorded runs of the console: scripts, what they answer, and where two answers differ.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace transcripts {

// The scripts in tests/scripts, in order. Beside `name.console` stands its transcript, `name.expected`.
std::vector<std::filesystem::path> Scripts();
std::filesystem::path TranscriptOf(std::filesystem::path script);

// What `cardhaven-console --seed 7` answers to these commands, with its folder's name as FOLDER.
std::string Play(const std::string& commands);

// Tells step by step where `now` isn't what was answered `before`: the command, "-" before what is gone, "+"
// before what is new. Steps that differ alike stand together. At most about so many lines; "" if nothing
// differs.
std::string Differences(const std::string& commands, const std::string& before, const std::string& now,
                        size_t most = 60);

}  // namespace transcripts
