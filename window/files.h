// The files that the suite keeps: settings, tables, saved games. All are small texts, replaced whole.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "window/system/disk.h"

// A change to a file that is kept: made to what the file holds at that moment, which another copy of the
// program may have written.
struct FileChange {
  // The new text from the old one, "" if the file is missing or was put aside.
  std::function<std::string(const std::string& old)> apply;
  // Whether a text may be changed. One that makes no sense is put aside first.
  std::function<bool(const std::string& old)> makesSense;
  // Takes nothing over from the old text. Not made to a file whose old text nobody could read.
  bool replaces = false;
  // Nobody else's is in that file: where there is no time to wait for the lock it is made without.
  bool mayGoWithoutLock = false;
  // Where the change can't be made and there is no later, this is left in a file beside; and how whoever has
  // the lock next adds what others have left so, and sees how often it stands in a text.
  std::string note = {};
  std::function<std::string(const std::string& old, const std::string& note)> addNote = nullptr;
  std::function<int(const std::string& text, const std::string& note)> countNote = nullptr;
};

// What the disk refused, for the player.
struct FileRefusal {
  enum class What { Read, Lock, ReplaceFile, WriteFolder } what;
  std::filesystem::path path;
};

class Files {
 public:
  // What is left of earlier trouble with the disk. A change that waits is what its file would hold by now.
  struct Memory {
    struct Change {
      std::string text;
      bool replaces;
    };
    std::map<std::filesystem::path, std::string> known;
    std::map<std::filesystem::path, Change> waiting;
    std::set<std::filesystem::path> unread;
    std::set<std::pair<FileRefusal::What, std::filesystem::path>> told;
    bool stuck = false;
    bool HoldsTrouble() const { return stuck || !waiting.empty() || !unread.empty() || !told.empty(); }
  };

  Files(std::filesystem::path folder, Disk& disk) : folder_(std::move(folder)), disk_(disk) {}

  // `AppPath`.
  const std::filesystem::path& Folder() const { return folder_; }
  // The file that the suite calls "\Name", in `AppPath`.
  std::filesystem::path PathOf(std::string_view name) const;

  // What the file holds, and what waits to be written to it. Where it can't be read now, what it held when it
  // was read last.
  ReadOutcome Read(const std::filesystem::path& path, std::string& text);
  // Replaces the file. False if that can't be done.
  bool Write(const std::filesystem::path& path, const std::string& text);
  // Adds a line to a file of lines, while no other copy of the program does. False if that can't be done.
  bool Append(const std::filesystem::path& path, const std::string& line, const Ledger& ledger);
  // Whether copies of the program that had no time have left notes, which the next change of the file adds.
  bool HasNotes(const std::filesystem::path& path);
  // Changes a file that the suite keeps by itself, while no other copy of the program does. Where the disk
  // refuses, the change waits for the next try, until the program ends.
  void Keep(const std::filesystem::path& path, FileChange change);
  // Tries again to make the changes that wait.
  void TryAgain();
  // Whether something waits to be written there.
  bool Waits(const std::filesystem::path& path) const { return waiting_.contains(path); }
  // What the disk has refused since the last call; each thing once.
  std::vector<FileRefusal> TakeRefusals();

  Memory Remember() const;
  void Recall(const Memory& memory);

  // How long another copy of the program is waited for, in milliseconds. A longer wait has no better chances:
  // what holds a lock that long is stuck.
  int patience = 30'000;
  // Whether there is no time any more, for that wait or for the disk.
  std::function<bool()> mustHurry;

 private:
  void Settle(const std::filesystem::path& path);
  std::optional<FileRefusal::What> Change(const std::filesystem::path& path,
                                          std::vector<FileChange>& changes);
  std::vector<std::filesystem::path> AddNotes(const std::filesystem::path& path, const FileChange& change,
                                              const std::string& old, std::string& text);
  bool Hurries() const { return mustHurry && mustHurry(); }
  void Refuse(FileRefusal::What what, const std::filesystem::path& path);

  std::filesystem::path folder_;
  Disk& disk_;
  std::map<std::filesystem::path, std::string> known_;  // as read or written last
  std::map<std::filesystem::path, std::vector<FileChange>> waiting_;
  std::set<std::filesystem::path> unread_;  // never read, since the disk refused
  std::set<std::filesystem::path> swept_;   // folders
  std::set<std::pair<FileRefusal::What, std::filesystem::path>> told_;
  std::vector<FileRefusal> refusals_;
  bool stuck_ = false;  // the last wait for a lock was in vain
};
