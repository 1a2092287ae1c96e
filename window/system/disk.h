// What lies on the disk, for whoever reads and writes whole files. Virtual, so that somebody else's files may
// stand in for the disk's.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "window/system/lock.h"

enum class ReadOutcome {
  Read,
  Missing,
  Unusable,  // there is something, but no text file of a sane size
  Refused    // it can't be read now, and nobody knows what is in it
};

// A file that grows by a line at a time: how it begins, and its largest size in bytes.
struct Ledger {
  std::string head;
  size_t largest;
};

enum class WriteOutcome { Written, NotBeside, NotOver };

class Disk {
 public:
  enum class Entries { All, Folders, Files };

  virtual ~Disk() = default;

  // Only what isn't there is missing, and only what was read can make no sense: everything else may be well
  // again a moment later.
  virtual ReadOutcome Read(const std::filesystem::path& path, std::string& text);
  // The names in a folder, in no order; none where it can't be read.
  virtual std::vector<std::string> Names(const std::filesystem::path& folder, Entries which = Entries::All);
  // Where a player may begin to look for files: the root, the home folder, what is mounted.
  virtual std::vector<std::string> Places();
  // The file that a path means: a symbolic link stays one, and what it names is replaced.
  virtual std::filesystem::path TargetOf(std::filesystem::path path);

  // Replaces a file, which is the old one or the new one whole at any moment. In a hurry what is handed to
  // the system reaches the disk without us.
  virtual WriteOutcome Replace(const std::filesystem::path& path, const std::string& text,
                               bool hurries = false);
  // Adds a line, of which nothing stays if that can't be done. One that was cut off before gets its end
  // first.
  virtual bool Append(const std::filesystem::path& path, const std::string& line, const Ledger& ledger,
                      bool hurries = false);
  // The lines of a ledger in which that text stands; none where it can't be read.
  virtual std::vector<std::string> LinesWith(const std::filesystem::path& path, std::string_view text);
  // Puts a file that nobody can make sense of aside: it has ".bad" behind its name, or ".bad-2" and so on
  // where older ones lie. A plain file stays, under two names, until the new one is renamed over it.
  virtual bool PutAside(const std::filesystem::path& path);
  virtual bool Rename(const std::filesystem::path& from, const std::filesystem::path& to);
  // Takes a file away; what doesn't go holds nothing any more.
  virtual void Remove(const std::filesystem::path& path);
  // What was renamed in a folder stays so, even if the machine goes down.
  virtual void Sync(const std::filesystem::path& folder);
  // Takes away what copies of the program that were killed while they wrote have left.
  virtual void Sweep(const std::filesystem::path& folder);
  // Part of a new file's name: unguessable, and so not the same on two machines that share a folder.
  virtual std::string Suffix();
  static constexpr size_t kSuffixLetters = 16;
  // Waits for other copies of the program.
  virtual FolderLock Lock(const std::filesystem::path& folder, int patience,
                          const std::function<bool()>& mustHurry);
};
