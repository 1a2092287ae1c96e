// What is said by the splash panel of the game that has ended, and of the cards.
#pragma once

#include <filesystem>
#include <string>

#include "window/guide.h"

// How the last game compares with those in that history, and which deal it was; "" if there is nothing to
// say.
std::string RemarkOn(const GameFacts& facts, const std::filesystem::path& history);
