// Files that lie in memory: what a game finds that is played again, and where it writes. Nothing on the disk
// is touched.
#pragma once

#include <map>

#include "window/system/disk.h"

namespace record {

class Shelf : public Disk {
 public:
  // `folder` is `AppPath`.
  explicit Shelf(std::filesystem::path folder) : folder_(std::move(folder)) {}

  // By their keys.
  std::map<std::string, std::string, std::less<>> files;

  // A file's name as records have it: within `AppPath` from there on.
  std::string KeyOf(const std::filesystem::path& path) const;
  std::filesystem::path PathOf(const std::string& key) const;
  bool IsOutside(const std::filesystem::path& path) const;

  ReadOutcome Read(const std::filesystem::path& path, std::string& text) override;
  std::vector<std::string> Names(const std::filesystem::path& folder, Entries which) override;
  std::vector<std::string> Places() override { return {"/"}; }
  std::filesystem::path TargetOf(std::filesystem::path path) override { return path; }
  WriteOutcome Replace(const std::filesystem::path& path, const std::string& text, bool hurries) override;
  // The history is none of a game's affairs.
  bool Append(const std::filesystem::path&, const std::string&, const Ledger&, bool) override { return true; }
  std::vector<std::string> LinesWith(const std::filesystem::path&, std::string_view) override { return {}; }
  bool PutAside(const std::filesystem::path& path) override;
  bool Rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
  void Remove(const std::filesystem::path& path) override { files.erase(KeyOf(path)); }
  void Sync(const std::filesystem::path&) override {}
  void Sweep(const std::filesystem::path&) override {}
  std::string Suffix() override { return std::string(kSuffixLetters, '0'); }
  FolderLock Lock(const std::filesystem::path&, int, const std::function<bool()>&) override {
    return {true, true};
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace record
