// A front end that takes its events from a record, at full speed, without a screen and without a disk.
#pragma once

#include <optional>

#include "record/game_watch.h"
#include "record/known.h"
#include "suite/select.h"

namespace record {

// What became of a record.
struct Verdict {
  enum class Kind { Holds, Fails, NoRecord };
  Kind kind = Kind::NoRecord;
  std::string why;    // it doesn't hold
  GameResult result;  // of its last game, if it holds

  // "holds Sumfall 90_11 1200 3 2000-01-01T12:00:00+00:00", "fails: ...", "no record: ..."
  std::string Text() const;
};

// Plays a record again. `program` is our own version: one made by another that goes differently proves
// nothing. `trace` is told of all that happens.
Verdict Replay(std::string_view text, const std::string& program, std::vector<GameEntry> games,
               Observer* trace = nullptr);

// The same with a file.
Verdict ReplayFile(const std::filesystem::path& path, const std::string& program,
                   const std::vector<GameEntry>& games);

}  // namespace record
