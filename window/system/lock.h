// Folders that one copy of the program at a time changes.
#pragma once

#include <filesystem>
#include <functional>
#include <utility>

// While one stands, no other copy of the program holds one for the same folder. Not to be nested, and not to
// be held while the player is asked.
class FolderLock {
 public:
  // Waits up to `patience` milliseconds; those who have waited longer ask more often, and so come first.
  FolderLock(const std::filesystem::path& folder, int patience, const std::function<bool()>& mustHurry);
  // One that was had, or wasn't, where there is no such folder to lock.
  FolderLock(bool held, bool folderIsThere) : held_(held), folderIsThere_(folderIsThere) {}
  ~FolderLock();
  FolderLock(FolderLock&& other) noexcept
      : descriptor_(std::exchange(other.descriptor_, -1)),
        held_(other.held_),
        folderIsThere_(other.folderIsThere_) {}

  // Whether nobody else holds it; true as well where the file system knows no locks.
  bool Held() const { return held_; }
  bool FolderIsThere() const { return folderIsThere_; }

 private:
  int descriptor_ = -1;
  bool held_ = false;
  bool folderIsThere_ = false;
};
