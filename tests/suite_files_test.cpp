// Settings files good and bad, and that no file is ever half written.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include "tests/game_test.h"
#include "tests/sumfall_cards.h"

namespace {

const std::string kIni = "Sumfall.Ini";

const std::string kDefaults = Settings(
    "Color 1|Play Music False|Time 90|DrawTimer True|Play Sounds True|CardGoal 11|State 0|Width 9540|Height 7200|"
    "Deck 1");
const std::string kClose = "close frmSumfall\nanswer \"Yes\"\n";

TEST(Settings, AMissingFileIsMadeWithTheDefaults) {
  TestFolder folder;
  Driver driver(folder.Path());
  EXPECT_TRUE(BoxesOf(driver.Do(kOpenSumfall)).empty());
  EXPECT_EQ(folder.Read(kIni), kDefaults);
  for (const char* ticked : {"mnuRed", "mnu90", "mnuDrawTimer", "mnuSounds", "mnu11", "mnuPalm"})
    EXPECT_EQ(driver.Get("frmSumfall." + std::string(ticked) + ".Checked"), true) << ticked;
  EXPECT_EQ(driver.Get("frmSumfall.mnuMusic.Checked"), false);
}

TEST(Settings, AreAppliedAsTheMenusWouldAndWrittenBack) {
  TestFolder folder;
  const std::string text = Settings(
      "Color 4|Play Music True|Time 150|DrawTimer False|Play Sounds False|CardGoal 14|State 0|Width 12000|"
      "Height 9000|Deck 3");
  folder.Write(kIni, text);
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  for (const char* ticked : {"mnuPurple", "mnuMusic", "mnu150", "mnu14", "mnuNight"})
    EXPECT_EQ(driver.Get("frmSumfall." + std::string(ticked) + ".Checked"), true) << ticked;
  for (const char* unticked : {"mnuRed", "mnu90", "mnuDrawTimer", "mnuSounds", "mnu11", "mnuPalm"})
    EXPECT_EQ(driver.Get("frmSumfall." + std::string(unticked) + ".Checked"), false) << unticked;
  EXPECT_EQ(driver.Get("frmSumfall.UpCardSelectionRectangle.BorderColor"), 0x800080);
  EXPECT_EQ(driver.Text("frmSumfall.lblElevens.Caption"), "Fourteens:");
  EXPECT_EQ(driver.common().ImageList2("BACK"), 8);
  EXPECT_EQ(driver.Get("frmSumfall.Width"), 12000);
  EXPECT_TRUE(folder.Has("HiScores150_14.Txt"));
  driver.Do(kClose);
  EXPECT_EQ(folder.Read(kIni), text);
}

TEST(Settings, AValueThatMatchesNothingChangesNothing) {
  const struct {
    const char *section, *value, *property, *expected;
  } rows[] = {
      {"Time", "75", "mnu90.Checked", "true"},
      {"Time", "99999", "mnu90.Checked", "true"},
      {"Time", "", "mnu90.Checked", "true"},
      {"Time", "30", "mnu30.Checked", "true"},
      {"Deck", "5", "mnuPalm.Checked", "false"},
      {"Deck", "0", "mnuHot.Checked", "false"},
      {"Color", "6", "UpCardSelectionRectangle.BorderColor", "255"},
      {"Color", "-1", "UpCardSelectionRectangle.BorderColor", "255"},
      {"Color", "0", "UpCardSelectionRectangle.BorderColor", "65535"},
      {"CardGoal", "9", "mnu11.Checked", "false"},
      {"CardGoal", "9", "lblElevens.Caption", "Elevens:"},
      {"CardGoal", "40000", "mnu11.Checked", "true"},
      {"CardGoal", "x", "mnu11.Checked", "true"},
      {"State", "7", "WindowState", "0"},
      {"State", "2", "WindowState", "2"},
      {"Play Sounds", "perhaps", "mnuSounds.Checked", "true"},
      {"DrawTimer", "False", "mnuDrawTimer.Checked", "false"},
      {"Width", "5000", "Width", "9540"},
      {"Width", "99999999999", "Width", "9540"},
      {"Width", "-20", "Width", "9540"},
      {"Width", "999999", "Width", "15360"},
      {"Height", "8000", "Height", "8000"},
  };
  for (const auto& row : rows) {
    TestFolder folder;
    folder.Write(kIni, "; a line that nobody knows\r\n" +
                           Settings(std::string(row.section) + " " + row.value) + "[Unknown]\r\n12\r\n");
    Driver driver(folder.Path());
    EXPECT_TRUE(BoxesOf(driver.Do(kOpenSumfall)).empty());
    EXPECT_EQ(driver.Text("frmSumfall." + std::string(row.property)), row.expected)
        << row.section << row.value;
    EXPECT_FALSE(folder.Has(kIni + ".bad"));
  }
}

TEST(Settings, TheOrderOfTheFileMatters) {
  const struct {
    const char* settings;
    int width, height;
  } rows[] = {
      {"State 2|Width 10000|Height 8000", 15360, 11520},
      {"Width 10000|Height 8000|State 2", 15360, 11520},
      {"State 0|Width 10000|Height 8000", 10000, 8000},
      {"Width 12000|Height 3000", 9540, 7200},  // the resize event sets both
      {"Height 3000|Width 12000", 12000, 7200},
  };
  for (const auto& row : rows) {
    TestFolder folder;
    folder.Write(kIni, Settings(row.settings));
    Driver driver(folder.Path());
    driver.Do(kOpenSumfall);
    EXPECT_EQ(driver.Get("frmSumfall.Width"), row.width) << Settings(row.settings);
    EXPECT_EQ(driver.Get("frmSumfall.Height"), row.height) << Settings(row.settings);
  }
}

TEST(Settings, AMaximisedWindowIsWrittenWithItsDesignSize) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall + "resize frmSumfall 12000 9000\nstate frmSumfall 2\n" + kClose);
  const std::string text = folder.Read(kIni);
  EXPECT_TRUE(Contains(text, "[State]\r\n2\r\n\r\n[Width]\r\n9540\r\n\r\n[Height]\r\n7200\r\n")) << text;
}

TEST(Settings, ADesignStaysInForceWhereTheFileNamesNone) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall + "click frmSumfall.mnuHot\n" + kClose);
  EXPECT_TRUE(Contains(folder.Read(kIni), "[Deck]\r\n4\r\n"));
  folder.Write(kIni, Settings("Time 60"));
  driver.Do(kOpenSumfall);
  EXPECT_EQ(driver.common().ImageList2("FULL"), 10);
}

TEST(Settings, AFileThatMakesNoSenseIsKeptBeside) {
  const std::string huge(3 << 20, '#');
  for (const std::string& text : {std::string("no settings at all"), std::string("\0\1\2\xff", 4), huge}) {
    TestFolder folder;
    folder.Write(kIni, text);
    Driver driver(folder.Path());
    EXPECT_TRUE(BoxesOf(driver.Do(kOpenSumfall)).empty());
    EXPECT_EQ(folder.Read(kIni), kDefaults);
    EXPECT_EQ(folder.Read(kIni + ".bad"), text);
  }
  TestFolder folder;
  std::filesystem::create_directory(folder.Path() / kIni);
  mkfifo((folder.Path() / "HiScores90_11.Txt").c_str(), 0600);
  Driver driver(folder.Path());
  EXPECT_TRUE(BoxesOf(driver.Do(kOpenSumfall)).empty());
  EXPECT_EQ(folder.Read(kIni), kDefaults);
  EXPECT_TRUE(std::filesystem::is_fifo(folder.Path() / "HiScores90_11.Txt.bad"));
  TestFolder empty;
  empty.Write(kIni, "");
  Driver other(empty.Path());
  other.Do(kOpenSumfall);
  EXPECT_EQ(empty.Read(kIni), kDefaults);
  EXPECT_FALSE(empty.Has(kIni + ".bad")) << "an empty file holds nothing to keep";
}

TEST(Settings, AFolderThatCantBeWrittenIsToldOnce) {
  TestFolder folder;
  folder.Write("file", "in the way");
  Driver driver(folder.Path() / "file" / "below");
  std::string said = driver.Do(kOpenSumfall + "answer \"OK\"");
  ASSERT_EQ(BoxesOf(said).size(), 1u);
  EXPECT_TRUE(Contains(BoxesOf(said)[0], "can't be kept"));
  said = FinishWith(driver, 61000,
                    "type frmHiScoreName.lblPlayerName \"Me\"\nclick frmHiScoreName.cmdOK\n"
                    "get frmHighScores.ScoreList(0).Caption\nclick frmHighScores.cmdDone");
  EXPECT_EQ(Joined(LinesOf(said, "ok ")), "\"Me\"") << "the score lasts until the program ends";
  said = driver.Do(
      "click frmSumfall.mnu30\nclick frmSumfall.mnuHot\nclick frmSumfall.cmdExit\nanswer \"Yes\"\n" +
      kOpenSumfall);
  EXPECT_EQ(BoxesOf(said).size(), 1u) << "only the closing question";
  EXPECT_EQ(driver.Get("frmSumfall.mnu30.Checked"), true);
}

TEST(Settings, AFileThatCantBeReadNowStays) {
  TestFolder folder;
  const auto path = folder.Path() / kIni;
  std::filesystem::create_symlink("/proc/self/mem", path);  // a plain file of which every read fails
  Driver driver(folder.Path());
  EXPECT_EQ(BoxesOf(driver.Do(kOpenSumfall + "answer \"OK\"")).size(), 1u);
  driver.Do("click frmSumfall.mnu30\n" + kClose);
  EXPECT_TRUE(std::filesystem::is_symlink(path));
  EXPECT_TRUE(BoxesOf(driver.Do(kOpenSumfall)).empty()) << "told once";
  EXPECT_EQ(driver.Get("frmSumfall.mnu30.Checked"), true) << "kept until the program ends";
  std::filesystem::remove(path);
  folder.Write(kIni, Settings("Time 60"));
  driver.Do(kClose);
  EXPECT_EQ(folder.Read(kIni), Settings("Time 60")) << "not overwritten before anybody saw it";
  driver.Do(kOpenSumfall);
  EXPECT_EQ(driver.Get("frmSumfall.mnu60.Checked"), true);
}

TEST(Settings, WhatALinkNamesElsewhereIsLeftAloneUnlessItIsAFile) {
  TestFolder folder, elsewhere;
  mkfifo((elsewhere.Path() / "pipe").c_str(), 0600);
  std::filesystem::create_symlink(elsewhere.Path() / "pipe", folder.Path() / kIni);
  Driver driver(folder.Path());
  const auto boxes = BoxesOf(driver.Do(kOpenSumfall + "answer \"OK\""));
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_TRUE(Contains(boxes[0], kIni + " can't be replaced"));
  EXPECT_TRUE(std::filesystem::is_fifo(elsewhere.Path() / "pipe"));
  EXPECT_FALSE(elsewhere.Has("pipe.bad"));
}

TEST(Files, WhatAKilledCopyLeftIsSwept) {
  TestFolder folder;
  const std::vector<std::string> gone = {"Sumfall.Ini.new-0123456789abcdef", "HiScores90_11.Txt.new-4194399"};
  const std::vector<std::string> stay = {"letter.new-0123456789abcdef", "x.Txt.new-", "x.Txt.new-draft",
                                         "HiScores90_11.Txt.new-" + std::to_string(getpid())};
  for (const auto& name : gone) folder.Write(name, "half");
  for (const auto& name : stay) folder.Write(name, "mine");
  folder.Write("Busy.Ini.new-0123456789abcdef", "half");
  {
    const FolderLock writing(folder.Path(), 0, nullptr);
    const int writer = open((folder.Path() / "Busy.Ini.new-0123456789abcdef").c_str(), O_RDONLY);
    ASSERT_EQ(flock(writer, LOCK_EX), 0);
  }
  Driver(folder.Path()).Do(kOpenSumfall);
  for (const auto& name : gone) EXPECT_FALSE(folder.Has(name)) << name;
  for (const auto& name : stay) EXPECT_TRUE(folder.Has(name)) << name;
  EXPECT_TRUE(folder.Has("Busy.Ini.new-0123456789abcdef")) << "its writer lives";
}

// Folders that somebody else holds for good.
class StuckDisk : public Disk {
 public:
  FolderLock Lock(const std::filesystem::path&, int patience, const std::function<bool()>&) override {
    patiences.push_back(patience);
    return {false, true};
  }
  std::vector<int> patiences;
};

TEST(Files, AStuckLockIsWaitedForAtLengthOnce) {
  StuckDisk disk;
  Files files("/nowhere", disk);
  for (int i = 0; i < 2; ++i) EXPECT_FALSE(files.Append("/nowhere/History.csv", "a line", {"a head", 1000}));
  files.Keep("/nowhere/x.Txt",
             {[](const std::string& old) { return old; }, [](const std::string&) { return true; }});
  EXPECT_EQ(disk.patiences, (std::vector<int>{files.patience, 100, 100}));
}

TEST(Files, AreOldOrNewAtAnyMoment) {
  TestFolder folder;
  const auto path = folder.Path() / "table.Txt";
  const std::string texts[2] = {std::string(200000, 'a'), std::string(100000, 'b')};
  ASSERT_EQ(Disk().Replace(path, texts[0]), WriteOutcome::Written);
  int seen[2] = {};
  for (int round = 0; round < 60; ++round) {
    const pid_t child = fork();
    if (child == 0)
      for (int i = round;; ++i) Disk().Replace(path, texts[i % 2]);
    usleep(500 + round * 171);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::string found = folder.Read("table.Txt");
    ASSERT_TRUE(found == texts[0] || found == texts[1]) << found.size() << " bytes after kill " << round;
    ++seen[found == texts[1]];
  }
  EXPECT_GT(seen[1], 0) << "the child must have had the time to write";
  EXPECT_EQ(Disk().Replace(folder.Path() / "none" / "x", "text"), WriteOutcome::NotBeside);
  std::filesystem::create_directories(folder.Path() / "taken" / "inner");
  EXPECT_EQ(Disk().Replace(folder.Path() / "taken", "text"), WriteOutcome::NotOver);
}

}  // namespace
