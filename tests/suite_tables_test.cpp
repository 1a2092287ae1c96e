// High score tables: their form, who gets in where, and that no entry is ever lost.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstring>

#include "suite/high_scores.h"
#include "tests/sumfall_cards.h"

namespace {

const std::string kTable = "HiScores90_11.Txt";

std::string Repeated(const std::string& line, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) text += line;
  return text;
}
const std::string kFresh = Repeated("Quillmark, 50000\r\n", 10) + "\r\n";

// What a player does at the end of a game that has a place.
std::string Enter(const std::string& name) {
  return "type frmHiScoreName.lblPlayerName \"" + name +
         "\"\nclick frmHiScoreName.cmdOK\nclick frmHighScores.cmdDone\n";
}

TEST(Tables, EntriesFindTheirPlace) {
  const auto names = [](const HighScores& scores) {
    std::string all;
    for (const HighScore& entry : scores) all += entry.name + " ";
    return all;
  };
  HighScores scores = FreshHighScores("50000");
  EXPECT_EQ(PlaceOf(scores, 0), std::nullopt);
  EXPECT_EQ(PlaceOf(scores, 50000), std::nullopt) << "a tie goes below the tenth";
  EXPECT_EQ(PlaceOf(scores, 50001), 0u);
  scores = WithEntry(scores, {"a", 60000});
  scores = WithEntry(scores, {"b", 60000});
  EXPECT_EQ(scores.size(), 10u);
  EXPECT_EQ(scores[0].name + scores[1].name, "ab") << "a tie goes below the older entry";

  HighScores falling;
  for (int i = 0; i < 10; ++i) falling.push_back({std::string(1, static_cast<char>('A' + i)), 1000 - i * 10});
  EXPECT_EQ(PlaceOf(falling, 911), 9u);
  const HighScores eleven = WithEntry(falling, {"x", 911});
  EXPECT_EQ(names(eleven), "A B C D E F G H I x J ") << "the old tenth stays as an eleventh line";
  EXPECT_EQ(PlaceOf(eleven, 910), std::nullopt);
  EXPECT_EQ(names(WithEntry(eleven, {"y", 5})), "A B C D E F G H I x ") << "and goes at the next update";
  EXPECT_EQ(names(WithEntry(eleven, {"y", 2000})), "y A B C D E F G H I ");
  EXPECT_EQ(names(WithEntry({{"A", 100}}, {"y", 50})), "A ") << "free places of a short table stay free";
  EXPECT_EQ(names(WithEntry({{"A", 100}}, {"y", 150})), "y A ");
}

TEST(Tables, ReadWhatCanBeRead) {
  const struct {
    const char* text;
    size_t entries;
    bool damaged;
  } rows[] = {{"", 0, false},
              {"\r\n", 0, false},
              {"A, 1\r\nB, -2\r\n\r\n", 2, false},
              {"A,1\nB*,  2", 2, false},
              {"A, 1\r\nrubbish\r\nC, 3\r\n", 1, true},
              {"A, 99999999999\r\n", 0, true},
              {"A, 1, 2\r\n", 0, true},
              {"\x01\x02\xff", 0, true}};
  for (const auto& row : rows) {
    bool damaged = false;
    EXPECT_EQ(ParseHighScores(row.text, damaged).size(), row.entries) << row.text;
    EXPECT_EQ(damaged, row.damaged) << row.text;
  }
}

TEST(Tables, APlaceAsksForTheNameAndShowsTheHallOfFame) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  std::string said = FinishWith(driver, 50000, "");
  EXPECT_TRUE(LinesOf(said, "* show").empty()) << "a tie with all ten has no place";
  EXPECT_EQ(folder.Read(kTable), kFresh);

  driver.Do("trace on");
  said = FinishWith(
      driver, 71200,
      "get frmHiScoreName.lblInfo.Caption\nget frmHiScoreName.Caption\n"
      "type frmHiScoreName.lblPlayerName \"Smith, J\"\nkey frmHiScoreName \"Return\"\nanswer \"OK\"\n" +
          Enter("J\xc3\xb6rg \\n Smith"));
  driver.Do("trace off");
  EXPECT_EQ(BoxesOf(said), std::vector<std::string>{"Sorry, you may not use commas in your name."});
  EXPECT_TRUE(Contains(said, "\"icon\":\"critical\""));
  EXPECT_EQ(Joined(LinesOf(said, "ok \"")),
            "Great score! Please enter your name so we can induct you into the Sumfall! Hall of "
            "Fame:\"|Sumfall!\"");
  EXPECT_LT(said.find("* sound \"\\\\HighScore.wav\""), said.find("* show frmHiScoreName modal"));
  EXPECT_LT(said.find("* show frmHiScoreName modal"), said.find("* show frmHighScores modal"));
  EXPECT_LT(said.find("* unload frmHighScores"),
            said.find("* set frmSumfall.lblMessage.Caption \"Game Over\""));
  EXPECT_EQ(folder.Read(kTable),
            "J\xc3\xb6rg   Smith, 71200\r\n" + Repeated("Quillmark, 50000\r\n", 9) + "\r\n");
  EXPECT_EQ(driver.Text("frmSumfall.lblHighScore.Caption"), "High Score: 71,200");

  driver.common().CustomScoringInUse = true;
  said =
      FinishWith(driver, 71200,
                 "close frmHiScoreName\nget frmHighScores.Caption\nget frmHighScores.lblHiScoreInfo.Caption\n"
                 "get frmHighScores.ScoreList(0).Caption\nget frmHighScores.ScoreList(2).Caption\n"
                 "get frmHighScores.ScoreList(3).Caption\nget frmHighScores.ScoreList(19).Caption\n"
                 "click frmHighScores.cmdDone\n");
  EXPECT_EQ(Joined(LinesOf(said, "ok ")),
            "\"Sumfall! Hall of Fame (90 secs)\"|"
            "\"High Scores for Card Goal of 11\\r\\n* denotes customized scoring was used\"|"
            "\"J\xc3\xb6rg   Smith\"|\"Unknown User*\"|\"71,200\"|\"50,000\"");
  EXPECT_TRUE(Contains(folder.Read(kTable), "Unknown User*, 71200\r\n"));
}

TEST(Tables, ViewAndClear) {
  TestFolder folder;
  Driver driver(folder.Path());
  folder.Write(kTable, "A, 90000\r\nB, 80000\r\n\r\n");
  folder.Write("HiScores30_11.Txt", "C, 70000\r\n\r\n");
  driver.Do(kOpenSumfall + kPlay);
  const std::string view =
      "click frmSumfall.mnuViewHiScore\nget frmHighScores.ScoreList(2).Caption\nget "
      "frmHighScores.ScoreList(4).Caption\n";
  std::string said =
      driver.Do(view +
                "get frmSumfall.lblMessage.Caption\nadvance 5000\nget frmSumfall.lblTime.Caption\n"
                "click frmHighScores.cmdClear\nanswer \"No\"\nclick frmHighScores.cmdDone\n");
  EXPECT_EQ(Joined(LinesOf(said, "ok ")), "\"B\"|\"\"|\"Game Paused\"|\"Time: 90\"");
  EXPECT_EQ(BoxesOf(said), std::vector<std::string>{"This will clear all High Scores. Are You Sure?"});
  EXPECT_EQ(driver.Text("frmSumfall.lblMessage.Caption"), "") << "the game goes on";
  said = driver.Do(view +
                   "click frmHighScores.cmdClear\nanswer \"Yes\"\nget frmHighScores.ScoreList(2).Caption\n"
                   "click frmHighScores.cmdDone\n");
  EXPECT_EQ(LinesOf(said, "ok ").back(), "\"Quillmark\"");
  EXPECT_EQ(folder.Read(kTable), kFresh);
  EXPECT_EQ(folder.Read("HiScores30_11.Txt"), "C, 70000\r\n\r\n") << "only the present table is cleared";
  EXPECT_EQ(driver.Text("frmSumfall.lblHighScore.Caption"), "High Score: 50,000");
  folder.Write(kTable, "A, 90000\r\n\r\n");
  driver.Do("click frmSumfall.mnuClear\nanswer \"Yes\"");
  EXPECT_EQ(folder.Read(kTable), kFresh);
  // A paused game stays paused.
  driver.Do("click frmSumfall.cmdPause\n" + view + "click frmHighScores.cmdDone");
  EXPECT_EQ(driver.Text("frmSumfall.lblMessage.Caption"), "Game Paused");
}

TEST(Tables, ADamagedOneIsKeptBesideTheNew) {
  const struct {
    const char *text, *kept;
    int best;
  } rows[] = {{"A, 99000\r\nB; 5\r\n", "A, 99000\r\n\r\n", 99000},
              {"\xff\xfe rubbish", nullptr, 50000},
              {"A, 12345678901\r\n", nullptr, 50000}};
  for (const auto& row : rows) {
    TestFolder folder;
    folder.Write(kTable, row.text);
    Driver driver(folder.Path());
    driver.Do(kOpenSumfall);
    EXPECT_EQ(folder.Read(kTable + ".bad"), row.text);
    EXPECT_EQ(folder.Read(kTable), row.kept ? row.kept : kFresh);
    EXPECT_EQ(driver.Text("frmSumfall.lblHighScore.Caption"), "High Score: " + FormatNumber(row.best));
  }
  TestFolder folder;
  std::filesystem::create_directories(folder.Path() / kTable / "inner");
  folder.Write("HiScores30_11.Txt", std::string(2 << 20, 'x'));
  Driver driver(folder.Path());
  EXPECT_TRUE(BoxesOf(driver.Do(kOpenSumfall + "click frmSumfall.mnu30")).empty());
  EXPECT_EQ(folder.Read(kTable), kFresh) << "where a folder stood";
  EXPECT_EQ(folder.Read("HiScores30_11.Txt"), kFresh);
  EXPECT_TRUE(folder.Has(kTable + ".bad/inner"));
}

TEST(Tables, AReadThatFailsIsNoEmptyTable) {
  TestFolder folder;
  const auto path = folder.Path() / kTable;
  std::filesystem::create_symlink("/proc/self/mem", path);  // a plain file of which every read fails
  Driver driver(folder.Path());
  std::string said = driver.Do(kOpenSumfall + "answer \"OK\"");
  ASSERT_EQ(BoxesOf(said).size(), 1u);
  EXPECT_TRUE(Contains(BoxesOf(said)[0], kTable + " can't be read now. It stays as it is."));
  EXPECT_EQ(driver.Text("frmSumfall.lblHighScore.Caption"), "High Score: 50,000");
  said = FinishWith(driver, 60000, Enter("First"));
  EXPECT_TRUE(BoxesOf(said).empty()) << "told once";
  EXPECT_EQ(driver.Text("frmSumfall.lblHighScore.Caption"), "High Score: 60,000") << "the suite plays on";
  EXPECT_TRUE(std::filesystem::is_symlink(path));
  EXPECT_FALSE(folder.Has(kTable + ".bad"));

  std::filesystem::remove(path);
  folder.Write(kTable, "A, 90000\r\nB, 55000\r\n\r\n");
  FinishWith(driver, 70000, Enter("Second"));
  EXPECT_EQ(folder.Read(kTable), "A, 90000\r\nSecond, 70000\r\nFirst, 60000\r\nB, 55000\r\n\r\n");
}

TEST(Tables, OlderOnesPutAsideStayAndWhatCantBePutAsideToo) {
  TestFolder folder;
  folder.Write(kTable + ".bad", "older");
  folder.Write(kTable + ".bad-2", "old");
  folder.Write(kTable, "rubbish");
  Driver(folder.Path()).Do(kOpenSumfall);
  EXPECT_EQ(folder.Read(kTable + ".bad") + folder.Read(kTable + ".bad-2") + folder.Read(kTable + ".bad-3"),
            "olderoldrubbish");
  EXPECT_EQ(folder.Read(kTable), kFresh);
  // A kill between the two steps has left one file under both names.
  folder.Write("HiScores30_11.Txt", "rubbish");
  std::filesystem::create_hard_link(folder.Path() / "HiScores30_11.Txt",
                                    folder.Path() / "HiScores30_11.Txt.bad");
  Driver(folder.Path()).Do(kOpenSumfall + "click frmSumfall.mnu30");
  EXPECT_EQ(folder.Read("HiScores30_11.Txt"), kFresh);
  EXPECT_FALSE(folder.Has("HiScores30_11.Txt.bad-2"));
}

TEST(Tables, ALinkStaysOneAndItsTargetIsReplaced) {
  TestFolder folder, elsewhere;
  elsewhere.Write("shared.Txt", "A, 70000\r\n\r\n");
  std::filesystem::create_symlink(elsewhere.Path() / "shared.Txt", folder.Path() / kTable);
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  FinishWith(driver, 75000, Enter("Me"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / kTable));
  EXPECT_EQ(elsewhere.Read("shared.Txt"), "Me, 75000\r\nA, 70000\r\n\r\n");
}

TEST(Tables, WithoutTheLockAnEntryWaits) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenSumfall);
  driver.common().files.patience = 30;
  {
    const FolderLock other(folder.Path(), 1000, nullptr);
    ASSERT_TRUE(other.Held());
    const std::string said =
        FinishWith(driver, 60000,
                   "type frmHiScoreName.lblPlayerName \"Me\"\nclick frmHiScoreName.cmdOK\n"
                   "answer \"OK\"\nclick frmHighScores.cmdDone\n");
    ASSERT_EQ(BoxesOf(said).size(), 1u);
    EXPECT_TRUE(Contains(BoxesOf(said)[0], "in use by another copy"));
    EXPECT_EQ(driver.Text("frmSumfall.lblHighScore.Caption"), "High Score: 60,000");
    EXPECT_EQ(folder.Read(kTable), kFresh);
    folder.Write(kTable, "Other, 80000\r\nQuillmark, 50000\r\n\r\n");
  }
  driver.Do("close frmSumfall\nanswer \"Yes\"");
  EXPECT_EQ(folder.Read(kTable), "Other, 80000\r\nMe, 60000\r\nQuillmark, 50000\r\n\r\n");
}

TEST(Tables, WhatCouldNotBeEnteredIsLeftBesideForTheNextStart) {
  TestFolder folder;
  {
    const FolderLock other(folder.Path(), 1000, nullptr);
    Driver driver(folder.Path());
    driver.common().files.patience = 30;
    driver.Do(kOpenSumfall + "answer \"OK\"\nanswer \"OK\"");
    for (int score : {60000, 61000})
      FinishWith(driver, score,
                 "type frmHiScoreName.lblPlayerName \"P" + std::to_string(score) +
                     "\"\nclick frmHiScoreName.cmdOK\nanswer \"OK\"\nclick frmHighScores.cmdDone\n");
    driver.Do("close frmSumfall\nanswer \"Yes\"\nclose frmSelect");
    EXPECT_FALSE(folder.Has(kTable));
    folder.Write(kTable, "Other, 80000\r\nQuillmark, 50000\r\n\r\n");
    folder.Write("HiScores90_11.late-0123456789abcdef.Txt", "rubbish");
  }
  for (int start = 0; start < 2; ++start) Driver(folder.Path()).Do(kOpenSumfall);
  EXPECT_EQ(folder.Read(kTable),
            "Other, 80000\r\nP61000, 61000\r\nP60000, 60000\r\nQuillmark, 50000\r\n\r\n");
  EXPECT_EQ(folder.Read("HiScores90_11.late-0123456789abcdef.Txt.bad"), "rubbish");
  int files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.Path())) ++files;
  EXPECT_EQ(files, 3) << "the table, the settings and the rubbish";
}

TEST(Tables, WhatWasLeftBesideIsAddedOnce) {
  const struct {
    const char *note, *table, *expected;
  } rows[] = {
      // Who earns the same again stands there twice.
      {"", "A, 60000\r\n\r\n", "A, 60000\r\nA, 60000\r\n"},
      // Moved by a copy that was killed then: before it wrote the table, or after that.
      {"-0", "B, 70000\r\n\r\n", "B, 70000\r\nA, 60000\r\n"},
      {"-0", "B, 70000\r\nA, 60000\r\n\r\n", "B, 70000\r\nA, 60000\r\n"},
      {"-1", "B, 70000\r\nA, 60000\r\n\r\n", "B, 70000\r\nA, 60000\r\nA, 60000\r\n"},
      {"-1", "A, 60000\r\nA, 60000\r\n\r\n", "A, 60000\r\nA, 60000\r\n"},
  };
  for (const auto& row : rows) {
    TestFolder folder;
    const std::string low = "C, 1\r\n";
    const std::string note = "HiScores90_11.late-0123456789abcdef" + std::string(row.note) + ".Txt";
    folder.Write(note, "A, 60000\r\n\r\n");
    folder.Write(kTable, std::string(row.table).insert(strlen(row.table) - 2, low));
    for (int start = 0; start < 2; ++start) Driver(folder.Path()).Do(kOpenSumfall);
    EXPECT_EQ(folder.Read(kTable), row.expected + low + "\r\n") << row.note << " " << row.table;
    EXPECT_FALSE(folder.Has(note)) << row.note << " " << row.table;
  }
  TestFolder folder;
  const std::string other = "HiScores90_11.late-0123456789abcdefg1.Txt";
  folder.Write(other, "A, 60000\r\n\r\n");
  Driver(folder.Path()).Do(kOpenSumfall);
  EXPECT_TRUE(folder.Has(other)) << "that is somebody else's";
  EXPECT_EQ(folder.Read(kTable), kFresh);
}

TEST(Tables, NamesFromElsewhereAreCut) {
  bool damaged = false;
  std::string umlauts, cut;
  for (int i = 0; i < 150; ++i) (i < 100 ? cut : umlauts) += "\xc3\xbc";
  const HighScores scores =
      ParseHighScores(cut + umlauts + ", 5\r\nA\tB, 4\r\n" + std::string(9000, '\x80') + ", 3\r\n", damaged);
  ASSERT_EQ(scores.size(), 3u);
  EXPECT_EQ(scores[0].name, cut);
  EXPECT_EQ(scores[1].name, "A B");
  EXPECT_LE(scores[2].name.size(), 400u);
}

TEST(Tables, ManyCopiesLoseNoEntry) {
  for (int round = 0; round < 5; ++round) {
    TestFolder folder;
    std::vector<pid_t> children;
    for (int child = 0; child < 5; ++child) {
      const pid_t pid = fork();
      if (pid == 0) {
        Driver driver(folder.Path());
        driver.Do(kOpenSumfall);
        for (int game = 0; game < 2; ++game) {
          const int score = 60000 + 10 * child + game;
          FinishWith(driver, score, Enter("P" + std::to_string(score)));
        }
        _exit(0);
      }
      children.push_back(pid);
    }
    for (pid_t pid : children) {
      int status = 1;
      waitpid(pid, &status, 0);
      EXPECT_EQ(status, 0);
    }
    std::string expected;
    for (int child = 4; child >= 0; --child)
      for (int game = 1; game >= 0; --game) {
        const std::string score = std::to_string(60000 + 10 * child + game);
        expected += "P" + score + ", " + score + "\r\n";
      }
    bool damaged = false;
    HighScores scores = ParseHighScores(folder.Read(kTable), damaged);
    scores.resize(std::min<size_t>(scores.size(), 10));
    EXPECT_EQ(FormatHighScores(scores), expected + "\r\n");
    EXPECT_FALSE(damaged);
    EXPECT_FALSE(folder.Has(kTable + ".bad"));
  }
}

}  // namespace
