// Who may read and write the files that the suite makes, and those that it replaces.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <set>

#include "tests/driver.h"

namespace {

namespace fs = std::filesystem;

int ModeOf(const fs::path& path) {
  struct stat status = {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777;
}

// Opens and closes every game, clears its table, and saves one.
void MakeAllFiles(const TestFolder& folder) {
  std::string commands;
  for (const GameEntry& game : AllGames()) {
    const std::string name = std::string(game.button).substr(3);
    commands += "click frmSelect.cmd" + name + "\nclick frm" + name + ".mnuClear\nanswer \"Yes\"\n";
    if (name == "Sumfall")
      commands +=
          "click frmSumfall.cmdPlay\nclick frmSumfall.cmdPlay\nanswer \"Yes\"\nclick frmSumfall.mnuSave\n"
          "type frmSave.txtGameName \"game.sfl\"\nclick frmSave.cmdOK\n";
    commands += "close frm" + name + "\nanswer \"Yes\"\n";
  }
  const std::string told = RunConsole(folder, commands);
  EXPECT_FALSE(Contains(told, "error")) << told;
}

constexpr int kFiles = 7 + 7 + 1;  // settings, tables, a saved game

class Modes : public testing::Test {
 protected:
  void TearDown() override { umask(before_); }
  void Allow(int mask) { umask(static_cast<mode_t>(mask)); }
  // The modes that are met, and nothing if the files aren't all there.
  std::set<int> Met() {
    std::set<int> met;
    int files = 0;
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
      met.insert(ModeOf(entry.path()));
      ++files;
    }
    return files < kFiles ? std::set<int>{} : met;
  }
  TestFolder folder;

 private:
  const mode_t before_ = umask(022);
};

}  // namespace

TEST_F(Modes, OfNewFilesAreReadableForOthersAsFarAsTheyMayBe) {
  for (const auto& [mask, mode] : {std::pair{022, 0644}, {077, 0600}, {027, 0640}, {0, 0644}}) {
    for (const auto& entry : fs::directory_iterator(folder.Path())) fs::remove(entry);
    Allow(mask);
    MakeAllFiles(folder);
    EXPECT_EQ(Met(), std::set<int>{mode}) << std::oct << mask;
  }
}

TEST_F(Modes, OfFilesThatAreReplacedStay) {
  MakeAllFiles(folder);
  for (const int mode : {0600, 0640, 0664, 0666}) {
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
      chmod(entry.path().c_str(), static_cast<mode_t>(mode));
      const std::string name = entry.path().filename();
      // Something else than what will be written.
      folder.Write(name, folder.Read(name) + (name.ends_with(".Ini") ? "[Nothing]\r\n1\r\n" : "Ann, 1\r\n"));
    }
    MakeAllFiles(folder);
    EXPECT_EQ(Met(), std::set<int>{mode}) << std::oct << mode;
  }
}

TEST_F(Modes, OfDamagedFilesAreTheirsBesideAndTheNewOnes) {
  MakeAllFiles(folder);
  for (const auto& entry : fs::directory_iterator(folder.Path())) {
    folder.Write(entry.path().filename(), "\1\2 damaged");
    chmod(entry.path().c_str(), 0640);
  }
  MakeAllFiles(folder);
  EXPECT_TRUE(folder.Has("Sumfall.Ini.bad") && folder.Has("TreyshiftHiScores120.Txt.bad"));
  EXPECT_EQ(Met(), std::set<int>{0640});
}
