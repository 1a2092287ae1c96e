#include "app/records.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "games/games.h"
#include "record/replay.h"
#include "window/system/folders.h"

RecordKeeper::RecordKeeper(Platform& platform, const Options& options) {
  if (options.record.empty()) return;
  recorder_ = std::make_unique<Recorder>(platform, CARDHAVEN_VERSION);
  const std::filesystem::path file = folders::Absolute(options.record);
  const std::string name = file.filename().string();
  if (name.find_first_of(",\"\r\n") == std::string::npos) name_ = name;  // else a line can't tell it
  recorder_->onGameEnd = [file](const std::string& record, const GameResult&) {
    if (record.empty())
      std::cerr << "The game is too long for a record." << std::endl;
    else if (Disk().Replace(file, record, true) != WriteOutcome::Written)
      std::cerr << "The record " << file.string() << " can't be written." << std::endl;
  };
}

void RecordKeeper::Attach(modCommon& common, const SuiteOptions& suite) {
  if (!recorder_) return;
  recorder_->Attach(common, suite);
  common.record = name_;
}

int Verify(const std::vector<std::string>& files) {
  const auto games = AllGames();
  int status = EXIT_SUCCESS;
  for (const std::string& file : files) {
    const record::Verdict verdict = record::ReplayFile(file, CARDHAVEN_VERSION, games);
    std::cout << verdict.Text() << '\n';
    status = std::max(status, static_cast<int>(verdict.kind));
  }
  std::cout.flush();
  return status;
}
