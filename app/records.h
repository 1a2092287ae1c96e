// What the two programs do with records of games.
#pragma once

#include <atomic>
#include <memory>

#include "app/options.h"
#include "record/keeper.h"
#include "record/recorder.h"

// Writes down what is played, where the command line says, or else for itself.
class RecordKeeper {
 public:
  // To be made before any window. `keeps`: whether records are kept beside the tables just now; null where
  // that is nobody's wish.
  RecordKeeper(Platform& platform, const Options& options, std::function<bool()> keeps = nullptr,
               const record::Room& room = {});
  void Attach(modCommon& common, const SuiteOptions& suite);

 private:
  void KeepBeside(modCommon& common);

  std::unique_ptr<Recorder> recorder_;
  const std::string file_;  // "" where records are kept beside the tables
  const std::function<bool()> keeps_;
  const record::Room room_;
  std::unique_ptr<record::Keeper> keeper_;
  std::string kept_;  // the record of the game that ended last
  bool complained_ = false;
};

// The records in `folder` that prove the entries of a table, by their places; "" for none. `stop` is looked
// at now and then.
std::vector<std::string> FindProofs(const std::filesystem::path& folder, const std::string& table,
                                    const std::atomic<bool>& stop);
// Whether a file holds, in a line.
std::string VerdictOn(const std::string& file);

// Plays records again and tells on standard output, in a line each, whether they hold; the exit status.
int Verify(const std::vector<std::string>& files);
// The same for the records of all entries that stand in tables of that folder.
int VerifyTables(const std::filesystem::path& folder);
