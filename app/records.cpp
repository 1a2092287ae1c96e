#include "app/records.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>
#include <utility>

#include "games/games.h"
#include "record/replay.h"
#include "window/system/folders.h"
#include "window/text.h"

RecordKeeper::RecordKeeper(Platform& platform, const Options& options, std::function<bool()> keeps,
                           const record::Room& room)
    : file_(options.record), keeps_(std::move(keeps)), room_(room) {
  if (!file_.empty() || keeps_) recorder_ = std::make_unique<Recorder>(platform, CARDHAVEN_VERSION);
}

void RecordKeeper::Attach(modCommon& common, const SuiteOptions& suite) {
  if (!recorder_) return;
  recorder_->Attach(common, suite);
  if (file_.empty()) return KeepBeside(common);
  const std::filesystem::path file = folders::Absolute(file_);
  const std::string name = file.filename().string();
  if (name.find_first_of(",\"\r\n") == std::string::npos) common.record = name;  // else a line can't tell it
  recorder_->onGameEnd = [file, &common](const std::string& record, const GameResult&) {
    if (record.empty())
      common.complain("the game is too long for a record");
    else if (Disk().Replace(file, record, true) != WriteOutcome::Written)
      common.complain("the record " + file.string() + " can't be written");
  };
}

// The history names the record as soon as the game ends; so it has its name by then. What can't be written is
// told once.
void RecordKeeper::KeepBeside(modCommon& common) {
  keeper_ = std::make_unique<record::Keeper>(common.files.Folder(), room_);
  recorder_->onGameBegin = [this, &common](const std::string& game, const DateTime& now) {
    common.record = keeps_() ? keeper_->NameFor(game, now) : "";
  };
  recorder_->onGameEnd = [this, &common](const std::string& record, const GameResult&) {
    kept_.clear();
    if (record.empty() || common.record.empty() || !keeps_()) return;
    if (keeper_->Keep(common.record, record))
      kept_ = common.record;
    else if (common.complain && !std::exchange(complained_, true))
      common.complain("records of games can't be written");
  };
  recorder_->onEntered = [this, &common](const TableEntry& entry) {
    if (!entry.place || kept_.empty()) return;
    keeper_->Enter({common.files.PathOf(entry.file).filename().string(),
                    std::exchange(kept_, ""),
                    {NameOnOneLine(Trim(entry.name)), Long(entry.score)}});
  };
}

std::vector<std::string> FindProofs(const std::filesystem::path& folder, const std::string& table,
                                    const std::atomic<bool>& stop) {
  const auto games = AllGames();
  record::Keeper keeper(folder);
  std::vector<std::string> files(kTablePlaces);
  for (const record::KeptEntry& entry : keeper.Entries(table)) {
    if (stop) break;
    const bool counts = entry.place < files.size();
    if (counts && keeper.Check(entry, CARDHAVEN_VERSION, games).kind == record::Verdict::Kind::Holds)
      files[entry.place] = keeper.PathOf(entry.record).string();
  }
  return files;
}

std::string VerdictOn(const std::string& file) {
  return record::ReplayFile(file, CARDHAVEN_VERSION, AllGames()).Text();
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

// Entries whose games were written down nowhere are told as such, and are no fault.
int VerifyTables(const std::filesystem::path& folder) {
  const auto games = AllGames();
  record::Keeper keeper(folder);
  std::map<std::pair<std::string, size_t>, record::KeptEntry> kept;
  for (record::KeptEntry& entry : keeper.Entries()) kept[{entry.table, entry.place}] = std::move(entry);
  int status = EXIT_SUCCESS;
  std::vector<std::string> tables = Disk().Names(folder, Disk::Entries::Files);
  std::erase_if(tables, [](const std::string& name) { return !IsTable(name); });
  std::ranges::sort(tables);
  for (const std::string& table : tables) {
    std::string text;
    bool damaged = false;
    Disk().Read(folder / table, text);
    const HighScores scores = ParseHighScores(text, damaged);
    for (size_t place = 0; place < std::min(scores.size(), kTablePlaces); ++place) {
      std::cout << table << ' ' << place + 1 << ' ' << scores[place].name << ", " << scores[place].score
                << ": ";
      if (const auto found = kept.find({table, place}); found == kept.end()) {
        std::cout << "unproved\n";
      } else {
        const record::Verdict verdict = keeper.Check(found->second, CARDHAVEN_VERSION, games);
        std::cout << verdict.Text() << '\n';
        status = std::max(status, static_cast<int>(verdict.kind));
      }
    }
  }
  std::cout.flush();
  return status;
}
