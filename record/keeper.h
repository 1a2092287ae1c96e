// The records that the suite keeps by itself, in a folder beside the tables: those of table entries, and of
// the games played last. Which record belongs to which entry stands in a file among them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "record/replay.h"
#include "suite/high_scores.h"

namespace record {

// An entry of a table, and the record of its game.
struct KeptEntry {
  std::string table;   // "HiScores90_11.Txt"
  std::string record;  // the file's name
  HighScore entry;     // as it stands in the table
  size_t place = 0;    // there, from 0
};

// Whether a record holds and belongs to that entry.
bool Proves(const Verdict& verdict, const KeptEntry& entry);

// How much is kept.
struct Room {
  size_t lastGames = 100;  // besides those that have an entry in a table
  uintmax_t mostBytes = 50'000'000;
};

class Keeper {
 public:
  // `folder` is `AppPath`; nothing is made before there is a record.
  explicit Keeper(const std::filesystem::path& folder, const Room& room = {})
      : room_(room), tables_(folder), folder_(folder / "records") {}

  // A name for the record of a game that begins now; those of later games sort behind it.
  std::string NameFor(const std::string& game, const DateTime& now);
  // Writes it, and takes away what is kept no longer. False if it can't be written.
  bool Keep(const std::string& name, const std::string& text);
  // The game of that record has this entry. False if that can't be written.
  bool Enter(const KeptEntry& entry);
  // The entries that stand in their tables and have a record; of one table, if it is named.
  std::vector<KeptEntry> Entries(const std::string& table = "");
  // Plays the record of an entry again.
  Verdict Check(const KeptEntry& entry, const std::string& program, const std::vector<GameEntry>& games);
  std::filesystem::path PathOf(const std::string& record) const { return folder_ / record; }

 private:
  std::vector<KeptEntry> Written();
  void Prune(const std::string& newest);

  const Room room_;
  Disk disk_;
  std::filesystem::path tables_, folder_;
};

}  // namespace record
