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

// Where a record stands that is played again.
struct Moment {
  long long passes = 0;  // milliseconds that pass now, by the record
  long long at = 0;      // those that have passed before
  int step = 0;          // how many times time has passed before
  int game = 0;          // from 1; 0 before the first one
  int round = 0;         // of it, from 1; 0 between games
  bool isDeed = false;   // a deed or an answer of the player's comes next
};

// Whoever looks on while a record is played again. May throw to stop it, anything but a `std::exception`.
class Viewer {
 public:
  virtual ~Viewer() = default;
  // The windows wait, and time passes.
  virtual void Passes(const Moment& moment) = 0;
  // A comment on what comes next.
  virtual void Says(const std::string& /*comment*/) {}
  // This event is the next one, when the time that passes now has gone by.
  virtual void Comes(const Event& /*event*/) {}
  // The last game has ended; the windows stand as they did then.
  virtual void Ended() {}
};

// Plays a record again. `program` is our own version: one made by another that goes differently proves
// nothing. `trace` is told of all that happens.
Verdict Replay(std::string_view text, const std::string& program, std::vector<GameEntry> games,
               Observer* trace = nullptr);
// The same before a viewer. With a platform that is on that one, whose front end shows the windows and is
// asked nothing; no other windows are on it.
Verdict ReplayBefore(Viewer& viewer, std::string_view text, const std::string& program,
                     std::vector<GameEntry> games, Platform* platform = nullptr);

// The rounds of a record.
struct Round {
  int game = 1, number = 1;  // from 1
  int step = 0;              // with which it begins
  long long at = 0;          // milliseconds after the record's beginning
};
struct Contents {
  std::vector<Round> rounds;
  long long length = 0;  // milliseconds
  int comments = 0;
};
// Plays it again, and tells what is in it as well.
Verdict LookThrough(std::string_view text, const std::string& program, std::vector<GameEntry> games,
                    Contents& contents);

// Reads a file that may be a record; `why` says why it can be none.
Verdict ReadRecord(const std::filesystem::path& path, std::string& text);
// Plays a file again.
Verdict ReplayFile(const std::filesystem::path& path, const std::string& program,
                   const std::vector<GameEntry>& games);

}  // namespace record
