// Where the program lies, and where its player's files do.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace folders {

using Path = std::filesystem::path;

// The folder of the program that runs; "" where the system doesn't tell.
Path OfProgram();
// Where programs keep what is their player's; "" where nobody knows.
Path OfPlayersData();
Path Absolute(const Path& path);
bool IsFolder(const Path& path);
bool Exists(const Path& path);
// In bytes; 0 of what is no plain file.
std::uintmax_t SizeOf(const Path& path);
// Whether these are two folders, and files can be taken out of the first.
bool CanTakeFrom(const Path& from, const Path& to);
// A folder that can't be made is as one that can't be written. A new one is the player's alone.
void Make(const Path& folder);
// Moves a file, perhaps to another disk, to where nothing lies yet; what is there stays. Never a link: where
// it leads may hang on where it lies.
void Move(const Path& file, const Path& place);

}  // namespace folders
