// Fivestack from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/fivestack_table.h"

namespace {

using namespace modFivestack;

const std::string kWin = "frmFivestack.";
const std::string kFlash = "150 x12", kNext = "\"Prepare for Round ";
const std::string kTooLow = "\"Sorry, 97 or more needed to win!\", " + kFlash + ", ";
constexpr int kGreen = 49152;

std::string Story(const std::string& trace) { return StoryOf(trace, kWin + "ScoringLabel"); }

class Fivestack : public ::testing::Test {
 protected:
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  int Number(const std::string& property) { return driver.Get(kWin + property).get<int>(); }
  bool Is(const std::string& property) { return driver.Get(kWin + property) == true; }
  // "21 0 15s": the totals as they are read, "s" for a soft one, "c" for a closed column.
  std::string Board() {
    std::string board;
    for (int i = 0; i < kColumns; ++i) {
      const std::string at = "(" + std::to_string(i) + ").";
      board += (i ? " " : "") + Text("ColumnTotal" + at + "Caption");
      if (Is("ColumnSoft" + at + "Visible") && Text("ColumnSoft" + at + "Caption") == "Soft") board += "s";
      const bool closed = Text("cmdHit" + at + "Caption") == "Closed";
      EXPECT_EQ(Is("cmdHit" + at + "Enabled"), !closed);
      if (closed) board += "c";
    }
    return board;
  }
  std::string Next() { return driver.common().ImageList2.Key(Number("NextCardPicture.Picture")); }
  // The card total, and what Give Up reads and does by now.
  std::string Offer() { return Text("lblCurrentTotal.Caption") + Text("cmdGiveUp.Caption"); }
  frmFivestack& Game() { return FivestackOf(driver); }
  long long Score() { return driver.common().CurrentScore; }
  std::string Table() { return folder.Read("HiScores60.Txt"); }

  TestFolder folder;
  Driver driver{folder.Path()};
};

// Each row is a round: cards in the order in which they come, clicks, and what the board shows then.
TEST_F(Fivestack, ColumnsCountToTwentyOne) {
  const struct {
    std::vector<std::string> cards;
    const char* clicks;
    const char* board;
    const char* next;
  } cases[] = {
      {{"1S", "8S", "6S", "2S", "3S"}, "111", "0 15 0 0 0", "3S"},  // the two is skipped
      {{"2S", "2H", "2C", "2D", "3S", "4S", "5S"}, "333334", "0 0 0 11c 4", "5S"},
      // A soft column that goes over with its fifth card is lowered, and stays closed.
      {{"1S", "2S", "3S", "4S", "9S", "5S", "6S"}, "44444", "0 0 0 0 19c", "6S"},
      {{"1S", "10S", "5S", "5H", "6S", "7S"}, "0011", "21s 10 0 0 0", "6S"},
  };
  driver.Do(kOpenFivestack);
  for (const auto& each : cases) {
    driver.Do(LayRound(each.cards) + kPlayFivestack);
    EXPECT_EQ(Next(), each.cards[0]) << "the first card of the deck is never seen";
    driver.Do(Hit(each.clicks));
    EXPECT_EQ(Board(), each.board) << each.clicks;
    EXPECT_EQ(Next(), each.next) << each.clicks;
    driver.Do(kPlayFivestack + "answer \"Yes\"");
  }
}

TEST_F(Fivestack, TheTotalRunsUpColumnByColumn) {
  StartFivestack(driver, {"9S", "7S", "5S"});
  driver.Do(Hit("02"));
  EXPECT_EQ(Joined(LinesOf(driver.Trace(Hit("4")), "* set frmFivestack.lblCurrentTotal.Caption ")),
            "\"0\"|\"9\"|\"16\"|\"21\"");
}

TEST_F(Fivestack, ABustLosesTheRound) {
  StartFivestack(driver, {"10S", "11S", "1S", "2S"});
  const std::string trace = driver.Trace(Hit("0000"));  // 21 is no shield
  EXPECT_EQ(Story(trace), "Click x4, Busted, \"Busted!\", Busted, " + kFlash + ", " + kNext + "2\", 2000");
  EXPECT_TRUE(Contains(trace, "cmdGiveUp.Caption \"&Give up\""));
  EXPECT_EQ(Text("Caption") + Text("lblRound.Caption"), "Fivestack!: Round 2Round: 2");
  EXPECT_EQ(Offer() + Board(), "0&Give Up0 0 0 0 0");
  EXPECT_EQ(Score(), 0);
}

TEST_F(Fivestack, ASavedAceMayCostTheScore) {
  // Four columns of 20, and 17 with an ace that counts 11.
  StartFivestack(driver,
                 {"10S", "11S", "10H", "11H", "10C", "11C", "10D", "11D", "1S", "6S", "8S", "2S", "2H"});
  driver.Do(Hit("0011223344"));
  EXPECT_EQ(Offer(), "97&Take score");
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kGreen);
  driver.Do(Hit("4"));
  EXPECT_EQ(Board() + " " + Next(), "20 20 20 20 15 2H");
  EXPECT_EQ(Offer(), "95&Give up");
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kRed);
  EXPECT_EQ(Story(driver.Trace(kGiveUp)), "Busted, " + kTooLow + kNext + "2\", 2000");
}

TEST_F(Fivestack, PassesAreCountedByTheRound) {
  folder.Write("Fivestack.Ini", "[Cards To Pass]\r\n2\r\n\r\n");
  StartFivestack(driver, {"2S", "3S", "4S", "5S"});
  driver.Do(kPass);
  EXPECT_TRUE(Is("cmdPass.Enabled"));
  driver.Do(kPass);
  EXPECT_EQ(Next(), "4S");
  EXPECT_FALSE(Is("cmdPass.Enabled"));
  driver.Do(kGiveUp);
  EXPECT_TRUE(Is("cmdPass.Enabled"));
  driver.Do("close frmFivestack\nanswer \"Yes\"");
  folder.Write("Fivestack.Ini", "[Cards To Pass]\r\n-3\r\n\r\n");
  driver.Do(kOpenFivestack);
  EXPECT_FALSE(Is("cmdPass.Enabled"));
  driver.Do(kPlayFivestack);
  EXPECT_FALSE(Is("cmdPass.Enabled"));
}

// --- Scores --------------------------------------------------------------------------------------

TEST_F(Fivestack, AScoreIsCountedOver) {
  StartFivestack(driver, CardsFor(99));
  driver.Do("advance 2000\n" + PlayRound(99));
  const std::string trace = driver.Trace(kGiveUp), story = Story(trace);
  EXPECT_TRUE(Contains(trace, "Card Total Value (150) X Time Bonus (293)"));
  EXPECT_TRUE(story.starts_with(R"("43,950", 2000, 10, "43,364", 10, "42,778", Tick, 10, "42,192", 10, )"))
      << story;
  EXPECT_TRUE(story.ends_with(R"("586", Tick, 10, "0", 50, "Prepare for Round 2", 2000)")) << story;
  EXPECT_EQ(LinesOf(trace, "* sleep 10").size(), 75u);
  EXPECT_EQ(LinesOf(trace, "* set frmFivestack.lblTotalScore.Caption ").size(), 75u);
  EXPECT_EQ(Score(), 43950);
}

TEST_F(Fivestack, APerfectBoardIsScoredByItsLastCard) {
  StartFivestack(driver, CardsFor(105));
  driver.Do("advance 30000\n" + HitAll(1) + LayRound(CardsFor(97)));
  const std::string trace = driver.Trace(Hit("4"));
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmFivestack.ScoringLabelInfo.Caption ")),
            "\"Card Total Value (1000) X Time Bonus (200)\"|\"Totally Awesome Score!\"");
  EXPECT_TRUE(Story(trace).starts_with("Click, \"200,000\", 2000, Applause, 2000 x2, 10, \"199,600\", 10"));
  EXPECT_EQ(Score(), 200000);
  // The rest of the click runs on the new round's board.
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kRed);
  EXPECT_EQ(Board() + " " + Next(), "0 0 0 0 0 10S");
}

TEST_F(Fivestack, WithoutACountTheTotalJumps) {
  folder.Write("Fivestack.Ini", "[CountDownScore]\r\nFalse\r\n\r\n[WaitPeriod]\r\n-5\r\n\r\n");
  StartFivestack(driver, CardsFor(100));
  driver.Do("advance 1000\n" + PlayRound(100));
  EXPECT_EQ(Story(driver.Trace(kGiveUp)), "\"59,400\", 0, \"Prepare for Round 2\", 0");
  EXPECT_EQ(Score(), 59400);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
}

TEST_F(Fivestack, TheFirstSecondPaysTheBonusOfTheLastRound) {
  StartFivestack(driver, CardsFor(97));
  EXPECT_EQ(Story(driver.Trace(PlayRound(97) + LayRound(CardsFor(98)) + kGiveUp)),
            "Click x14, \"0\", 2000, 50, " + kNext + "2\", 2000");
  EXPECT_EQ(Score(), 0);
  driver.Do("advance 3000\n" + PlayRound(98) + LayRound(CardsFor(97)) + kGiveUp);
  EXPECT_EQ(Score(), 29000);
  EXPECT_EQ(Text("lblTimeBonus.Caption"), " 300");
}

TEST_F(Fivestack, TheTimeBonusFallsWithEachSecond) {
  driver.Do(kOpenFivestack + "click frmFivestack.mnu15\n" + kPlayFivestack);
  std::string said;
  for (int second = 1; second <= 14; ++second) {
    driver.Do("advance 1000");
    said += Text("lblTimeBonus.Caption");
  }
  EXPECT_EQ(said, " 287 273 260 247 233 220 207 193 180 167 153 140 127 113");
  EXPECT_EQ(Text("StatusBar1.Panels(2).Text"), "Click on Hit buttons to create columns of 21!   ")
      << "nobody is warned";
  EXPECT_TRUE(Is("Timer2.Enabled"));
  EXPECT_EQ(Story(driver.Trace("advance 1000")),
            "\"Times Up!\", 2000, Busted, " + kTooLow + kNext + "2\", 2000");
  EXPECT_FALSE(Is("Timer2.Enabled"));
}

TEST_F(Fivestack, TimeOutPaysAtTheMinimum) {
  StartFivestack(driver, CardsFor(97));
  driver.Do(PlayRound(97) + "advance 59000");
  const std::string story = Story(driver.Trace("advance 1000"));
  EXPECT_TRUE(story.starts_with("\"Times Up!\", 2000, \"5,000\", 2000, 10, \"4,800\", 10, \"4,600\", Tick"))
      << story;
  EXPECT_EQ(Score(), 5000);
}

// A bonus below zero, from the settings file, is counted off exactly; one of nothing pays nothing.
TEST_F(Fivestack, ABonusBelowZeroIsCountedOff) {
  folder.Write("Fivestack.Ini", "[TimeBonusMin]\r\n-300\r\n\r\n[Time]\r\n60\r\n\r\n");
  StartFivestack(driver, CardsFor(98));
  driver.Do("advance 30000\n" + PlayRound(98) + LayRound(CardsFor(98)));
  EXPECT_EQ(Text("lblTimeBonus.Caption"), " 0");
  EXPECT_EQ(LinesOf(driver.Trace(kGiveUp), "* sleep 10").size(), 0u);
  EXPECT_EQ(Score(), 0);
  driver.Do("advance 31000\n" + PlayRound(98));
  EXPECT_EQ(Text("lblTimeBonus.Caption"), "-10");
  EXPECT_EQ(LinesOf(driver.Trace(kGiveUp), "* sleep 10").size(), 50u);
  EXPECT_EQ(Score(), -1000);
  EXPECT_EQ(Text("lblTotalScore.Caption"), "-1,000");
}

// --- The end of a game ---------------------------------------------------------------------------

TEST_F(Fivestack, TheBonusRoundIsReachedByTheExactScore) {
  const std::string over = "HighScore, \"Game Over\", 2000";
  for (const int score : {200000, 199999}) {
    Driver suite(folder.Path());
    StartFivestack(suite, {"2S"});
    suite.Do(kGiveUp + kGiveUp);
    suite.common().CurrentScore = score;
    const bool earned = score == 200000;
    EXPECT_EQ(Story(suite.Trace(kGiveUp + kEnterName)),
              "Busted, " + kTooLow + (earned ? "\"Prepare for Bonus Round!\", HighScore, 2000" : over));
    EXPECT_EQ(suite.InGame(), earned);
    EXPECT_EQ(suite.Text(kWin + "Caption"), earned ? "Fivestack!: Round 4" : "Fivestack!: Game Over");
    if (earned) {
      EXPECT_EQ(Story(suite.Trace(kGiveUp + kEnterName)), "Busted, " + kTooLow + over);
    }
  }
  EXPECT_EQ(Table().substr(0, 26), "Ann, 200000\r\nAnn, 199999\r\n");
}

TEST_F(Fivestack, IsPlayedThroughToTheTable) {
  StartFivestack(driver, CardsFor(104));
  driver.Do("click frmFivestack.mnuMusic\nadvance 3000\n" + PlayRound(104) + LayRound(CardsFor(103)) +
            kGiveUp);
  EXPECT_EQ(Score(), 145000);
  driver.Do("advance 3000\n" + PlayRound(103) + LayRound(CardsFor(105)) + kGiveUp);
  EXPECT_EQ(Score(), 261000);
  driver.Do(Hit("0") + kGiveUp);
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 4");
  EXPECT_EQ(Story(driver.Trace("advance 60000\n" + kEnterName)),
            "\"Times Up!\", 2000, Busted, silence, " + kTooLow + "silence, HighScore, \"Game Over\", 2000");
  EXPECT_EQ(Table().substr(0, 31), "Ann, 261000\r\nQuillmark, 50000\r\n");
  EXPECT_EQ(Text("lblHighScore.Caption"), "High Score: 261,000");
}

TEST_F(Fivestack, EndGameOffersNothingToTheTable) {
  StartFivestack(driver, CardsFor(104));
  driver.Do("advance 3000\n" + PlayRound(104) + kGiveUp + "click frmFivestack.mnuMusic\n" + Hit("0"));
  const std::string asked = "silence, \"Game Paused\", silence, box, \"\", ";
  EXPECT_EQ(Story(driver.Trace("click frmFivestack.mnuPlay\nadvance 90000\nanswer \"No\"")),
            asked + "open, music");
  EXPECT_EQ(driver.common().ElapsedSeconds, 0);
  EXPECT_EQ(Story(driver.Trace(kPlayFivestack + "answer \"Yes\"")), asked + "silence, \"Game Over\"");
  EXPECT_EQ(Table().substr(0, 20), "Quillmark, 50000\r\nQu");
  EXPECT_EQ(Text("lblTotalScore.Caption"), "145,000");
  EXPECT_FALSE(Is("Column1(0).Visible") || Is("cmdHit(0).Visible") || Is("frmScore.Visible"));
}

// --- Pausing, minimising, closing ----------------------------------------------------------------

TEST_F(Fivestack, APauseLeavesNothingButCardsBehind) {
  StartFivestack(driver, {"1S", "8S", "5S"});
  driver.Do(Hit("002") + kPauseFivestack);
  for (const char* name : {"Column1(0)", "Column1(1)", "ColumnSoft(0)", "cmdHit(0)", "NextCardPicture"})
    EXPECT_FALSE(Is(std::string(name) + ".Visible")) << name;
  driver.Do("click frmFivestack.mnuNight\n" + kPauseFivestack);
  EXPECT_TRUE(Is("Column1(1).Visible") && Is("Column2(0).Visible") && Is("ColumnSoft(0).Visible"));
  for (const char* empty : {"Column1(2)", "Column2(1)", "Column3(1)", "ColumnSoft(2)"})
    EXPECT_FALSE(Is(std::string(empty) + ".Visible")) << empty;
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kNightCastle.back);
  driver.Do("click frmFivestack.mnuPalm");
  EXPECT_EQ(driver.common().DeckDesign, 4) << "the deck menu stays open";
}

TEST_F(Fivestack, AMinimisedGameStandsStill) {
  StartFivestack(driver, {"2S"});
  driver.Do("click frmFivestack.mnuMusic\nadvance 2000");
  EXPECT_EQ(Story(driver.Trace("state frmFivestack 1\nadvance 70000")), "silence");
  EXPECT_EQ(driver.common().ElapsedSeconds, 2);
  // A question over the minimised window changes nothing.
  driver.Do("close frmFivestack\nanswer \"No\"\nadvance 70000");
  EXPECT_EQ(driver.common().ElapsedSeconds, 2);
  EXPECT_EQ(Story(driver.Trace("state frmFivestack 0")), "open, music");
  driver.Do("advance 1000");
  EXPECT_EQ(driver.common().ElapsedSeconds, 3);
  driver.Do(kPauseFivestack + "state frmFivestack 1\nstate frmFivestack 2");
  EXPECT_FALSE(Is("Timer1.Enabled")) << "a paused game stays paused";
}

TEST_F(Fivestack, ClosingPausesARunningGameAndRunsAPausedOne) {
  const std::string close = "close frmFivestack\nadvance 5000\nanswer \"No\"";
  StartFivestack(driver, {"2S"});
  driver.Do("advance 1000\n" + close);
  EXPECT_EQ(driver.common().ElapsedSeconds, 1);
  EXPECT_TRUE(Game().standing.IsPlaying());
  driver.Do(kPauseFivestack + close);
  EXPECT_EQ(driver.common().ElapsedSeconds, 6) << "it ran behind the question";
  EXPECT_TRUE(Game().standing.IsPaused());
  // Behind the question the round may end, and be followed by the next, or by the end of the game.
  driver.Do("close frmFivestack\nadvance 54000\nanswer \"No\"");
  EXPECT_TRUE(Game().standing.IsPaused());
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 2");
  EXPECT_FALSE(Is("Column1(0).Visible") || Is("cmdHit(0).Visible"));
  driver.Do(kPauseFivestack + kGiveUp + kPauseFivestack + "close frmFivestack\nadvance 60000\nanswer \"No\"");
  EXPECT_FALSE(driver.InGame());
  driver.Do(kPlayFivestack + kGiveUp + kGiveUp + kPauseFivestack);
  driver.Do("close frmFivestack\nadvance 60000\nanswer \"Yes\"");
  EXPECT_FALSE(driver.common().window);
}

// --- Settings, failures --------------------------------------------------------------------------

// What isn't "True" is off, and the default limit's table is looked at first.
TEST_F(Fivestack, SettingsAreReadInAnyOrder) {
  folder.Write(
      "Fivestack.Ini",
      "[Cards To Pass]\r\n3\r\n\r\n[TimeBonusMin]\r\n50\r\n\r\n[Nonsense]\r\n1\r\n\r\n[WaitPeriod]\r\n-5\r\n\r\n"
      "[BonusScore]\r\n1000\r\n\r\n[TimeBonusMax]\r\n350\r\n\r\n[Time]\r\n75\r\n\r\n[Deck]\r\n3\r\n\r\n"
      "[Play Sounds]\r\nperhaps\r\n\r\n[Play Music]\r\nTrue\r\n\r\n[CountDownScore]\r\nFalse\r\n\r\n");
  driver.Do(kOpenFivestack);
  EXPECT_FLOAT_EQ(Game().TimeBonusDecay(), 4);
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kNightCastle.back);
  EXPECT_TRUE(Is("mnu75.Checked") && Is("mnuMusic.Checked") && driver.common().CustomScoringInUse);
  EXPECT_FALSE(Is("mnuSounds.Checked") || driver.common().PlaySounds);
  EXPECT_TRUE(folder.Has("HiScores60.Txt") && folder.Has("HiScores75.Txt"));
  driver.Do("click frmFivestack.mnu30");
  EXPECT_FLOAT_EQ(Game().TimeBonusDecay(), 10);
  driver.Do("close frmFivestack\nanswer \"Yes\"");
  EXPECT_EQ(
      folder.Read("Fivestack.Ini"),
      "[Time]\r\n30\r\n\r\n[Play Sounds]\r\nFalse\r\n\r\n[Play Music]\r\nTrue\r\n\r\n[Deck]\r\n3\r\n\r\n"
      "[TimeBonusMax]\r\n350\r\n\r\n[TimeBonusMin]\r\n50\r\n\r\n[BonusScore]\r\n1000\r\n\r\n"
      "[WaitPeriod]\r\n-5\r\n\r\n[CountDownScore]\r\nFalse\r\n\r\n[Cards To Pass]\r\n3\r\n\r\n"
      "[State]\r\n0\r\n\r\n[Width]\r\n9540\r\n\r\n[Height]\r\n7305\r\n\r\n");
  // What no settings name stays as the last game left it.
  driver.common().ImageList2.SetKey(kNightCastle.back, "");
  UseBackDesign(driver.common().ImageList2, kMagicHands);
  folder.Write("Fivestack.Ini", "[Time]\r\n31\r\n\r\n[Deck]\r\n5\r\n\r\n[WaitPeriod]\r\n40000\r\n\r\n");
  driver.Do(kOpenFivestack);
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kMagicHands.back);
  EXPECT_EQ(driver.common().TimeLimit, 60);
  EXPECT_EQ(Game().WaitPeriod, 2000);
}

TEST_F(Fivestack, ADeckThatIsPassedThroughEndsTheGame) {
  folder.Write("Fivestack.Ini", "[Cards To Pass]\r\n100\r\n\r\n");
  StartFivestack(driver, CardsFor(104));
  driver.Do("advance 3000\n" + PlayRound(104) + kGiveUp);
  std::string clicks;
  for (int i = 0; i < 50; ++i) clicks += kPass;
  EXPECT_FALSE(Contains(driver.Do(clicks), "msgbox"));
  const std::string told = driver.Do(kPass + "answer \"OK\"\n" + kEnterName);
  EXPECT_TRUE(Contains(told, R"({"text":"Subscript out of range","title":"Fivestack!","icon":"critical")"))
      << told;
  EXPECT_FALSE(driver.InGame());
  EXPECT_EQ(Table().substr(0, 14), "Ann*, 145000\r\n");
  EXPECT_FALSE(Is("cmdHit(0).Visible") || Is("Column1(0).Visible") || Is("ScoringLabel.Visible"));
}

TEST_F(Fivestack, AFailedScoreIsToldAndPlayGoesOn) {
  StartFivestack(driver, CardsFor(105));
  driver.common().TimeBonus = 2147484;  // another game may leave such a value
  const std::string told = driver.Do(PlayRound(105) + "answer \"OK\"\n");
  EXPECT_TRUE(Contains(told, R"({"text":"Overflow","title":"Fivestack!","icon":"none")")) << told;
  EXPECT_EQ(Text("Caption"), "Fivestack!: Round 2");
  EXPECT_EQ(Score(), 0);
  // The score itself: what fitted stays counted.
  driver.Do(LayRound(CardsFor(97)) + kGiveUp + "advance 3000\n" + PlayRound(97));
  driver.common().CurrentScore = 2147483647 - 600;
  EXPECT_EQ(Joined(BoxesOf(driver.Do(kGiveUp + "answer \"OK\"\n"))), "Overflow");
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 4");
  EXPECT_EQ(Score(), 2147483647 - 20);
  EXPECT_FALSE(Is("ScoringLabel.Visible") || Is("ScoringLabelInfo.Visible"));
}

TEST_F(Fivestack, OtherErrorsEndTheProgram) {
  driver.Do(kOpenFivestack);
  driver.common().ImageList2.SetKey(13, "");
  const std::string told = driver.Do(kPlayFivestack + "answer \"OK\"\n");
  EXPECT_EQ(Joined(BoxesOf(told)), "Element not found");
  EXPECT_TRUE(told.ends_with("* end \"Element not found\"\n")) << told;
}

}  // namespace
