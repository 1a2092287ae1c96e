// The command lines of the two programs, and the folders that they work with.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "suite/suite.h"

enum class Program { Desktop, Console };

struct Options {
  bool help = false, version = false;
  std::string folder;                    // --folder, "" if it isn't given
  bool console = false;                  // the desktop's --console
  double speed = 1;                      // --speed
  std::optional<uint64_t> seed;          // --seed
  DateTime start{2000, 1, 1, 12, 0, 0};  // --start
  Extent screen{1024 * 15, 768 * 15};    // --screen, twips
  int deal = 0;                          // --deal
  std::string game;                      // --game or --today, as on its button: "Sumfall"
  bool today = false;                    // --today
  bool history = false;                  // --history
  bool statistics = false;               // --statistics, of `game` if that isn't ""
  std::string record;                    // --record, "" if it isn't given
  std::string watched;                   // the desktop's --watch
  bool noRecords = false;                // the desktop's --no-records
  bool verify = false;                   // the console's --verify
  bool verifyTables = false;             // the console's --verify-tables
  std::vector<std::string> records;      // that it names
  std::string savedGame;
};

// What is wrong with a command line.
class BadOptions : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads a command line, the program's name left out. Throws `BadOptions`.
Options ParseOptions(Program program, const std::vector<std::string>& arguments);
std::string Usage(Program program);

// Reads the command line and does what is common: tells of mistakes, helps, names the version. The exit
// status if that was all, else nothing.
std::optional<int> ReadCommandLine(Program program, int argc, char** argv, Options& options);

// The folder for settings, tables and saved games: the one that --folder names; the program's own if it holds
// a file named "portable"; else the player's data folder, to which files of earlier versions move. Throws
// std::runtime_error if there is none to be had.
std::filesystem::path FindAppPath(const Options& options);
// Whether a file of that name in there is a table of high scores.
bool IsTable(std::string_view file);
// What is asked of the suite, which keeps its files in that folder.
SuiteOptions SuiteFor(const Options& options, const std::filesystem::path& folder, Program program);
// The folder with pictures, sounds and music; where it should be if there is none.
std::filesystem::path FindDataFolder();
