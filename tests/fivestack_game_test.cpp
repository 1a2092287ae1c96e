// Fivestack from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/fivestack_table.h"

namespace {

using namespace modFivestack;

const std::string kWin = "frmFivestack.";
const std::string kFlash = "150 x12", kNext = "\"Prepare for Round ";
constexpr int kGreen = 49152;

std::string Story(const std::string& trace) { return StoryOf(trace, kWin + "ScoringLabel"); }

// What the line below the message says, in order.
std::string Info(const std::string& trace) {
  return Joined(LinesOf(trace, "* set frmFivestack.ScoringLabelInfo.Caption "));
}

class Fivestack : public ::testing::Test {
 protected:
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  std::string Panel(int number) { return Text("StatusBar1.Panels(" + std::to_string(number) + ").Text"); }
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
  std::string Next() {
    for (const std::string& code : StandardDeck())
      if (!code.empty() && driver.common().ImageList2(CardKey(code)) == Number("NextCardPicture.Picture"))
        return std::string(CardKey(code));
    return "none";
  }
  frmFivestack& Game() { return FivestackOf(driver); }
  long long Score() { return driver.common().CurrentScore; }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(Fivestack, OpensWithItsOwnNames) {
  driver.Do(kOpenFivestack);
  const std::pair<const char*, const char*> captions[] = {{"mnuFile", "&File"},
                                                          {"mnuClear", "&Clear High Scores..."},
                                                          {"mnuCustom", "&User Options..."},
                                                          {"mnu15", "&15 seconds"},
                                                          {"mnu60", "&60 seconds (default)"},
                                                          {"mnu75", "&75 seconds"},
                                                          {"cmdPass", "&Pass"},
                                                          {"cmdHit(4)", "Hit"},
                                                          {"cmdGiveUp", "&Give Up"},
                                                          {"cmdQuit", "E&xit"},
                                                          {"frmScore", "Card Total Value"},
                                                          {"lblCurrentRoundScore", "Card Total"},
                                                          {"lbl105", "105"},
                                                          {"lblScore105", "1000"},
                                                          {"lblscore97", "50"},
                                                          {"lblNothing", "< 97"},
                                                          {"lblScore0", "0"},
                                                          {"lblRound", "Round: 1"},
                                                          {"lblHighScore", "High Score: 50,000"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(Text(std::string(name) + ".Caption"), caption);
  EXPECT_EQ(Panel(1), "Welcome to Fivestack!   ");
  EXPECT_TRUE(Is("mnu60.Checked") && Is("mnuHot.Checked"));
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kHotCards.back);
  EXPECT_TRUE(driver.Get(kWin + "cmdTakeScore.Visible").is_null());
  for (const char* hidden :
       {"cmdHit(0)", "cmdGiveUp", "cmdPass", "frmScore", "Surface", "lblTimeBonus", "lblTime",
        "lblTotalScore", "lblCurrentTotal", "Column1(0)", "Column1Line", "ScoringLabelOutline",
        "ScoringLabelInfo", "ScoringLabelRoundTotal", "ColumnSoft(0)"})
    EXPECT_FALSE(Is(std::string(hidden) + ".Visible")) << hidden;
  driver.Do("close frmFivestack\nanswer \"Yes\"");
  EXPECT_EQ(
      folder.Read("Fivestack.Ini"),
      "[Time]\r\n60\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Play Music]\r\nFalse\r\n\r\n[Deck]\r\n1\r\n\r\n"
      "[TimeBonusMax]\r\n300\r\n\r\n[TimeBonusMin]\r\n100\r\n\r\n[BonusScore]\r\n200000\r\n\r\n"
      "[WaitPeriod]\r\n2000\r\n\r\n[CountDownScore]\r\nTrue\r\n\r\n[Cards To Pass]\r\n1\r\n\r\n"
      "[State]\r\n0\r\n\r\n[Width]\r\n9540\r\n\r\n[Height]\r\n7305\r\n\r\n");
}

TEST_F(Fivestack, AGameBegins) {
  StartFivestack(driver, {"9S", "7S"});
  EXPECT_EQ(Panel(1), "Make 200,000 for bonus round.  ");
  EXPECT_EQ(Panel(2), "Click on Hit buttons to create columns of 21!   ");
  EXPECT_EQ(Text("Caption"), "Fivestack!: Round 1");
  EXPECT_EQ(Text("cmdPlay.Caption") + Text("mnuPlay.Caption"), "&End Game&End Game");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the game in progress");
  EXPECT_EQ(Board(), "0 0 0 0 0");
  EXPECT_EQ(Next(), "9S") << "the first card of the deck is never seen";
  EXPECT_EQ(Text("lblTimeBonus.Caption"), " 300");
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kRed);
  EXPECT_TRUE(Is("lblNothing.FontBold") && Number("lblScore0.ForeColor") == kRed);
  for (int i = 1; i <= kColumns; ++i) {
    const std::string column = "Column" + std::to_string(i);
    EXPECT_EQ(Number(column + "(0).Picture"), driver.common().ImageList2("EMPTY"));
    EXPECT_EQ(Number(column + "(0).BorderStyle"), 0);
    EXPECT_TRUE(Is(column + "(0).Visible") && Is(column + "Line.Visible"));
    EXPECT_FALSE(Is(column + "(1).Visible"));
  }
  for (const char* closed : {"mnuTime", "mnuCustom"}) EXPECT_FALSE(Is(std::string(closed) + ".Enabled"));
  EXPECT_TRUE(Is("mnuDeck.Enabled") && Is("cmdPass.Enabled") && Is("cmdPause.Enabled"));
  for (const char* shown :
       {"cmdHit(0)", "cmdGiveUp", "cmdPass", "frmScore", "Surface", "lblTimeBonus", "lblTime",
        "lblTotalScore", "lblCurrentTotal", "ColumnTotal(0)", "lblRound", "PlayCardPicture"})
    EXPECT_TRUE(Is(std::string(shown) + ".Visible")) << shown;
}

// Each row is a round: cards in the order in which they come, clicks, and what the board shows then.
TEST_F(Fivestack, ColumnsCountToTwentyOne) {
  const struct {
    std::vector<std::string> cards;
    const char* clicks;
    const char* board;
    const char* next;
  } cases[] = {
      {{"9S", "7S", "1S", "2S"}, "000", "17 0 0 0 0", "2S"},
      {{"1S", "8S", "6S", "2S", "3S"}, "111", "0 15 0 0 0", "3S"},  // the two is skipped
      {{"1S", "1H", "9S", "2S"}, "222", "0 0 21s 0 0", "2S"},
      {{"1S", "1H", "9S", "2S", "3S", "4S"}, "2222", "0 0 13 0 0", "4S"},
      {{"2S", "2H", "2C", "2D", "3S", "4S"}, "33333", "0 0 0 11c 0", "4S"},
      {{"2S", "2H", "2C", "2D", "3S", "4S", "5S"}, "333334", "0 0 0 11c 4", "5S"},
      // A soft column that goes over with its fifth card is lowered, and stays closed.
      {{"1S", "2S", "3S", "4S", "9S", "5S", "6S"}, "44444", "0 0 0 0 19c", "6S"},
      {{"1S", "10S", "5S", "5H", "6S", "7S"}, "0011", "21s 10 0 0 0", "6S"},
  };
  driver.Do(kOpenFivestack);
  for (const auto& each : cases) {
    driver.Do(LayRound(each.cards) + kPlayFivestack);
    const std::string story = Story(driver.Trace(Hit(each.clicks)));
    EXPECT_EQ(story,
              "Click" + (each.clicks[1] ? " x" + std::to_string(std::string(each.clicks).size()) : ""));
    EXPECT_EQ(Board(), each.board) << each.clicks;
    EXPECT_EQ(Next(), each.next) << each.clicks;
    long long sum = 0;
    for (const Column21& column : Game().columns) sum += column.total;
    EXPECT_EQ(Text("lblCurrentTotal.Caption"), std::to_string(sum));
    driver.Do(kPlayFivestack + "answer \"Yes\"");
  }
  // The cards lie on each other, and a closed column takes no more.
  driver.Do(LayRound(cases[4].cards) + kPlayFivestack + Hit("33333"));
  for (int slot = 0; slot < 5; ++slot) {
    EXPECT_EQ(Number("Column4(" + std::to_string(slot) + ").Picture"),
              driver.common().ImageList2(cases[4].cards[slot]));
    EXPECT_EQ(Number("Column4(" + std::to_string(slot) + ").BorderStyle"), 1);
  }
  EXPECT_TRUE(Contains(driver.Do(Hit("3")), "error"));
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
  const std::vector<std::string> colours = LinesOf(trace, "* set frmFivestack.ScoringLabel.ForeColor ");
  EXPECT_EQ(Joined(colours), "0|255|0|255|0|255|0|255|0|255|0|255|16711680");
  EXPECT_EQ(Text("Caption"), "Fivestack!: Round 2");
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 2");
  EXPECT_EQ(Text("cmdGiveUp.Caption"), "&Give Up");
  EXPECT_EQ(Board(), "0 0 0 0 0");
  EXPECT_EQ(Score(), 0);
  EXPECT_EQ(Number("MousePointer"), 0);
  EXPECT_FALSE(Is("ScoringLabel.Visible") || Is("ScoringLabelOutline.Visible"));
  EXPECT_FALSE(Contains(trace, "Surface pie"));
}

TEST_F(Fivestack, ASavedAceMayCostTheScore) {
  // Four columns of 20, and 17 with an ace that counts 11.
  StartFivestack(driver,
                 {"10S", "11S", "10H", "11H", "10C", "11C", "10D", "11D", "1S", "6S", "8S", "2S", "2H"});
  driver.Do(Hit("0011223344"));
  EXPECT_EQ(Text("lblCurrentTotal.Caption") + Text("cmdGiveUp.Caption"), "97&Take score");
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kGreen);
  EXPECT_TRUE(Is("lbl97.FontBold"));
  driver.Do(Hit("4"));
  EXPECT_EQ(Board(), "20 20 20 20 15");
  EXPECT_EQ(Text("lblCurrentTotal.Caption") + Text("cmdGiveUp.Caption"), "95&Give up");
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kRed);
  EXPECT_FALSE(Is("lbl97.FontBold"));
  EXPECT_TRUE(Is("lblNothing.FontBold"));
  EXPECT_EQ(Next(), "2H");
  EXPECT_EQ(Story(driver.Trace(kGiveUp)),
            "Busted, \"Sorry, 97 or more needed to win!\", " + kFlash + ", " + kNext + "2\", 2000");
}

TEST_F(Fivestack, PassesAreCountedByTheRound) {
  folder.Write("Fivestack.Ini", "[Cards To Pass]\r\n2\r\n\r\n");
  StartFivestack(driver, {"2S", "3S", "4S", "5S"});
  EXPECT_EQ(Story(driver.Trace(kPass)), "Click");
  EXPECT_EQ(Next(), "3S");
  EXPECT_TRUE(Is("cmdPass.Enabled"));
  driver.Do(kPass);
  EXPECT_EQ(Next(), "4S");
  EXPECT_FALSE(Is("cmdPass.Enabled"));
  driver.Do(Hit("0"));
  EXPECT_EQ(Board(), "4 0 0 0 0");
  driver.Do(kGiveUp);
  EXPECT_TRUE(Is("cmdPass.Enabled"));
  for (const char* none : {"0", "-3"}) {
    TestFolder other;
    other.Write("Fivestack.Ini", std::string("[Cards To Pass]\r\n") + none + "\r\n\r\n");
    Driver suite(other.Path());
    suite.Do(kOpenFivestack);
    EXPECT_EQ(suite.Get(kWin + "cmdPass.Enabled"), false) << none;
    EXPECT_TRUE(suite.common().CustomScoringInUse);
    suite.Do(kPlayFivestack);
    EXPECT_EQ(suite.Get(kWin + "cmdPass.Enabled"), false) << none;
    EXPECT_EQ(suite.Get(kWin + "cmdPass.Visible"), true) << none;
  }
}

// --- Scores --------------------------------------------------------------------------------------

TEST_F(Fivestack, AScoreIsCountedOver) {
  StartFivestack(driver, CardsFor(99));
  driver.Do("advance 2000\n" + PlayRound(99));
  const std::string trace = driver.Trace(kGiveUp);
  EXPECT_EQ(Info(trace), "\"Card Total Value (150) X Time Bonus (293)\"");
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmFivestack.ScoringLabelRoundTotal.Caption ")),
            "\"Round 1 Total: \"");
  EXPECT_TRUE(Story(trace).starts_with(
      "\"43,950\", 2000, 10, \"43,364\", 10, \"42,778\", Tick, 10, \"42,192\", 10, "))
      << Story(trace);
  EXPECT_TRUE(Story(trace).ends_with("\"586\", Tick, 10, \"0\", 50, \"Prepare for Round 2\", 2000"));
  EXPECT_EQ(LinesOf(trace, "* sleep 10").size(), 75u);
  EXPECT_EQ(LinesOf(trace, "* sound \"\\\\Tick").size(), 25u);
  EXPECT_EQ(LinesOf(trace, "* set frmFivestack.lblTotalScore.Caption ").size(), 75u);
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmFivestack.ScoringLabel.ForeColor ")), "0|255|16711680");
  EXPECT_EQ(Score(), 43950);
  EXPECT_EQ(Text("lblTotalScore.Caption"), "43,950");
  EXPECT_FALSE(Is("ScoringLabelRoundTotal.Visible") || Is("ScoringLabelInfo.Visible"));
}

TEST_F(Fivestack, TheRoundLineReadsAsOneSentence) {
  StartFivestack(driver, CardsFor(99));
  driver.Do("advance 2000\n" + PlayRound(99));
  // The count stops at its first look at the clock.
  frmFivestack& game = Game();
  bool looked = false;
  game.lblTotalScore.OnChange = [&] {
    if (looked) return;
    looked = true;
    const Label &total = game.ScoringLabelRoundTotal, &amount = game.ScoringLabel,
                &info = game.ScoringLabelInfo;
    const Shape& outline = game.ScoringLabelOutline;
    EXPECT_EQ(total.Left + total.Width, amount.Left);
    EXPECT_EQ(total.Top, amount.Top);
    const int middle = outline.Left + outline.Width / 2;
    EXPECT_NEAR((total.Left + amount.Left + amount.Width) / 2, middle, 1);
    EXPECT_NEAR(info.Left + info.Width / 2, middle, 1);
    EXPECT_GE(info.Top, total.Top + total.Height);
    EXPECT_LE(info.Top + info.Height, outline.Top + outline.Height);
    EXPECT_GE(total.Top, outline.Top);
  };
  driver.Do(kGiveUp);
  EXPECT_TRUE(looked);
}

TEST_F(Fivestack, APerfectBoardIsScoredByItsLastCard) {
  StartFivestack(driver, CardsFor(105));
  driver.Do("advance 30000\n" + HitAll(1) + LayRound(CardsFor(97)));
  EXPECT_EQ(Text("lblCurrentTotal.Caption"), "100");
  const std::string trace = driver.Trace(Hit("4"));
  EXPECT_EQ(Info(trace), "\"Card Total Value (1000) X Time Bonus (200)\"|\"Totally Awesome Score!\"");
  EXPECT_TRUE(Story(trace).starts_with("Click, \"200,000\", 2000, Applause, 2000 x2, 10, \"199,600\", 10"));
  EXPECT_EQ(LinesOf(trace, "* sleep 10").size(), 500u);
  EXPECT_EQ(Score(), 200000);
  EXPECT_EQ(Text("Caption"), "Fivestack!: Round 2");
  // The rest of the click runs on the new round's board.
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kRed);
  EXPECT_EQ(Next(), "10S");
  EXPECT_EQ(Board(), "0 0 0 0 0");
}

TEST_F(Fivestack, WithoutACountTheTotalJumps) {
  folder.Write("Fivestack.Ini", "[CountDownScore]\r\nFalse\r\n\r\n[WaitPeriod]\r\n0\r\n\r\n");
  StartFivestack(driver, CardsFor(100));
  driver.Do("advance 1000\n" + PlayRound(100));
  const std::string trace = driver.Trace(kGiveUp);
  EXPECT_EQ(Story(trace), "\"59,400\", 0, \"Prepare for Round 2\", 0");
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmFivestack.ScoringLabel.ForeColor ")), "0|255|16711680");
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
  driver.Do(PlayRound(97) + kGiveUp + kEnterName);
  EXPECT_EQ(Score(), 0);
  EXPECT_EQ(folder.Read("HiScores60.Txt").substr(0, 20), "Quillmark, 50000\r\nQu");
  EXPECT_EQ(Text("lblTotalScore.Caption"), "43,500") << "the total stays on show";
}

TEST_F(Fivestack, TheTimeBonusFallsWithEachSecond) {
  driver.Do(kOpenFivestack + "click frmFivestack.mnu15\n" + kPlayFivestack);
  std::string said;
  for (int second = 1; second <= 14; ++second) {
    driver.Do("advance 1000");
    said += Text("lblTimeBonus.Caption");
  }
  EXPECT_EQ(said, " 287 273 260 247 233 220 207 193 180 167 153 140 127 113");
  EXPECT_EQ(Text("lblTime.Caption"), "Time Bonus:");
  EXPECT_EQ(Panel(2), "Click on Hit buttons to create columns of 21!   ") << "nobody is warned";
  EXPECT_TRUE(Is("Timer2.Enabled"));
  EXPECT_EQ(Story(driver.Trace("advance 1000")),
            "\"Times Up!\", 2000, Busted, \"Sorry, 97 or more needed to win!\", " + kFlash + ", " + kNext +
                "2\", 2000");
  EXPECT_FALSE(Is("Timer2.Enabled"));
  EXPECT_EQ(driver.common().DialSeconds, 0);
}

TEST_F(Fivestack, TimeOutPaysAtTheMinimum) {
  StartFivestack(driver, CardsFor(97));
  driver.Do(PlayRound(97) + "advance 59000");
  const std::string trace = driver.Trace("advance 1000");
  EXPECT_TRUE(
      Story(trace).starts_with("\"Times Up!\", 2000, \"5,000\", 2000, 10, \"4,800\", 10, \"4,600\", Tick"))
      << Story(trace);
  EXPECT_EQ(Score(), 5000);
  driver.Do("advance 999");
  EXPECT_EQ(Text("lblTimeBonus.Caption"), " 300") << "the clock starts anew";
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
  for (const int score : {200000, 199999}) {
    Driver suite(folder.Path());
    StartFivestack(suite, {"2S"});
    suite.Do(kGiveUp + kGiveUp);
    suite.common().CurrentScore = score;
    const std::string trace = suite.Trace(kGiveUp + kEnterName);
    EXPECT_EQ(suite.common().GameInProgress, score == 200000);
    const std::string lost = "Busted, \"Sorry, 97 or more needed to win!\", " + kFlash + ", ";
    EXPECT_EQ(Story(trace), lost + (score == 200000 ? "\"Prepare for Bonus Round!\", HighScore, 2000"
                                                    : "HighScore, \"Game Over\", 2000"));
    EXPECT_EQ(suite.Text(kWin + "Caption"),
              score == 200000 ? "Fivestack!: Round 4" : "Fivestack!: Game Over");
    if (score != 200000) continue;
    EXPECT_EQ(Story(suite.Trace(kGiveUp + kEnterName)), lost + "HighScore, \"Game Over\", 2000");
  }
  EXPECT_EQ(folder.Read("HiScores60.Txt").substr(0, 26), "Ann, 200000\r\nAnn, 199999\r\n");
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
  const std::string trace =
      driver.Trace(LayRound(CardsFor(97)) + "advance 60000\nget frmHiScoreName.Caption\n" + kEnterName);
  EXPECT_EQ(Story(trace), "\"Times Up!\", 2000, Busted, silence, \"Sorry, 97 or more needed to win!\", " +
                              kFlash + ", silence, HighScore, \"Game Over\", 2000");
  EXPECT_EQ(folder.Read("HiScores60.Txt").substr(0, 31), "Ann, 261000\r\nQuillmark, 50000\r\n");
  EXPECT_EQ(Text("lblHighScore.Caption"), "High Score: 261,000");
  EXPECT_EQ(Text("lblTotalScore.Caption"), "261,000");
  EXPECT_EQ(Panel(1), "Game over!  ");
  EXPECT_EQ(Panel(2), "Click on Play to start a new game.  ");
  EXPECT_EQ(Text("Caption"), "Fivestack!: Game Over");
  EXPECT_EQ(Text("cmdPlay.Caption") + Text("mnuPlay.Caption"), "&Play&Play");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Starts a new game");
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 1");
  EXPECT_EQ(Number("ScoringLabel.ForeColor"), kBlue);
  for (const char* shown : {"frmSplash.Visible", "lblTotalScore.Visible", "Timer4.Enabled", "cmdPlay.Enabled",
                            "cmdQuit.Enabled", "mnuCustom.Enabled", "mnuTime.Enabled", "mnuDeck.Enabled"})
    EXPECT_TRUE(Is(shown)) << shown;
  for (const char* hidden :
       {"ScoringLabel.Visible", "ScoringLabelOutline.Visible", "lblTimeBonus.Visible", "lblTime.Visible",
        "Surface.Visible", "TimerRectangle.Visible", "frmScore.Visible", "cmdHit(2).Visible",
        "cmdGiveUp.Visible", "cmdPass.Visible", "lblRound.Visible", "NextCardPicture.Visible",
        "lblCurrentTotal.Visible", "ColumnTotal(0).Visible", "cmdPause.Enabled", "mnuPause.Enabled",
        "Timer1.Enabled", "Timer2.Enabled"})
    EXPECT_FALSE(Is(hidden)) << hidden;
  // The next game begins at nothing, with all its columns.
  driver.Do(LayRound(CardsFor(97)) + kPlayFivestack);
  EXPECT_EQ(Text("lblTotalScore.Caption"), "0");
  EXPECT_EQ(Text("Caption"), "Fivestack!: Round 1");
  EXPECT_TRUE(Is("ColumnTotal(0).Visible") && Is("cmdHit(0).Enabled"));
}

TEST_F(Fivestack, EndGameOffersNothingToTheTable) {
  StartFivestack(driver, CardsFor(104));
  driver.Do("advance 3000\n" + PlayRound(104) + kGiveUp + "click frmFivestack.mnuMusic\n" + Hit("0"));
  std::string trace = driver.Trace("click frmFivestack.mnuPlay\nadvance 90000\nanswer \"No\"");
  EXPECT_EQ(Story(trace), "silence, \"Game Paused\", silence, box, \"\", open, music");
  EXPECT_EQ(Joined(BoxesOf(trace)), "You have a game in progress, are you sure you want to quit?");
  EXPECT_TRUE(Is("Timer1.Enabled") && Is("Column1(0).Visible"));
  EXPECT_EQ(driver.common().ElapsedSeconds, 0);
  trace = driver.Trace(kPlayFivestack + "answer \"Yes\"");
  EXPECT_EQ(Story(trace), "silence, \"Game Paused\", silence, box, \"\", silence, \"Game Over\"");
  EXPECT_EQ(folder.Read("HiScores60.Txt").substr(0, 20), "Quillmark, 50000\r\nQu");
  EXPECT_EQ(Text("lblTotalScore.Caption"), "145,000");
  EXPECT_EQ(Text("Caption"), "Fivestack!: Game Over");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Starts a new game");
  EXPECT_TRUE(Is("frmSplash.Visible") && Is("mnuTime.Enabled") && Is("mnuCustom.Enabled"));
  EXPECT_FALSE(Is("Column1(0).Visible") || Is("cmdHit(0).Visible") || Is("frmScore.Visible") ||
               Is("Timer1.Enabled") || driver.common().GameInProgress);
  driver.Do(LayRound(CardsFor(97)) + kPlayFivestack);
  EXPECT_EQ(Text("cmdPause.Caption"), "Pau&se");
  EXPECT_EQ(Text("lblCurrentTotal.Caption"), "0");
}

TEST_F(Fivestack, MusicPlaysInARoundAndStopsWithIt) {
  driver.Do(kOpenFivestack + "click frmFivestack.mnuMusic\nclick frmFivestack.mnuSounds\n" +
            LayRound(CardsFor(97)));
  EXPECT_EQ(Story(driver.Trace(kPlayFivestack)), "open, music");
  EXPECT_EQ(Story(driver.Trace(PlayRound(97) + kGiveUp)),
            "silence, \"0\", 2000, 50, silence, open, music, " + kNext + "2\", 2000");
  EXPECT_EQ(Story(driver.Trace(kGiveUp)), "silence, \"Sorry, 97 or more needed to win!\", " + kFlash +
                                              ", silence, open, music, " + kNext + "3\", 2000");
}

// --- Pausing, minimising, closing ----------------------------------------------------------------

TEST_F(Fivestack, APausedGameShowsNothingOfItsBoard) {
  StartFivestack(driver, {"1S", "8S", "5S"});
  driver.Do(Hit("002") + kPauseFivestack);
  EXPECT_EQ(Text("ScoringLabel.Caption"), "Game Paused");
  EXPECT_EQ(Number("ScoringLabel.ForeColor"), kBlue);
  const char* board[] = {"Column1(0)",
                         "Column1(1)",
                         "Column2(0)",
                         "ColumnSoft(0)",
                         "ColumnTotal(0)",
                         "cmdHit(0)",
                         "cmdGiveUp",
                         "cmdPass",
                         "lblRound",
                         "NextCardPicture",
                         "PlayCardPicture",
                         "lblCurrentTotal",
                         "lblCurrentRoundScore",
                         "Column3Line"};
  for (const char* name : board) EXPECT_FALSE(Is(std::string(name) + ".Visible")) << name;
  for (const char* command : {"cmdPlay", "cmdQuit", "mnuPlay", "mnuExit"})
    EXPECT_FALSE(Is(std::string(command) + ".Enabled")) << command;
  EXPECT_EQ(Text("cmdPause.Caption") + Text("mnuPause.Caption"), "&Resume&Resume");
  driver.Do("click frmFivestack.mnuNight\nclick frmFivestack.mnuPause");
  for (const char* name : board) EXPECT_TRUE(Is(std::string(name) + ".Visible")) << name;
  for (const char* empty : {"Column1(2)", "Column2(1)", "Column3(1)", "ColumnSoft(2)"})
    EXPECT_FALSE(Is(std::string(empty) + ".Visible")) << empty;
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kNightCastle.back);
  driver.Do("click frmFivestack.mnuPalm");
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kPalmTree.back);
  EXPECT_EQ(driver.common().DeckDesign, 4);
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
  // A paused game stays paused, an idle window has no clock.
  driver.Do(kPauseFivestack + "state frmFivestack 1\nstate frmFivestack 2");
  EXPECT_FALSE(Is("Timer1.Enabled"));
  driver.Do(kPauseFivestack + kPlayFivestack + "answer \"Yes\"\nstate frmFivestack 1\nstate frmFivestack 0");
  EXPECT_FALSE(Is("Timer1.Enabled"));
}

TEST_F(Fivestack, ClosingPausesARunningGameAndRunsAPausedOne) {
  const std::string close = "close frmFivestack\nadvance 5000\n";
  StartFivestack(driver, {"2S"});
  driver.Do("advance 1000");
  EXPECT_EQ(Joined(BoxesOf(driver.Do(close + "answer \"No\""))),
            "You have a game in progress. Are you sure you want to quit now?");
  EXPECT_EQ(driver.common().ElapsedSeconds, 1);
  EXPECT_EQ(Game().phase, Phase::Playing);
  driver.Do(kPauseFivestack + close + "answer \"No\"");
  EXPECT_EQ(driver.common().ElapsedSeconds, 6) << "it ran behind the question";
  EXPECT_EQ(Game().phase, Phase::Paused);
  // Behind the question the round may end, and be followed by the next, or by the end of the game.
  driver.Do("close frmFivestack\nadvance 54000\nanswer \"No\"");
  EXPECT_EQ(Game().phase, Phase::Paused);
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 2");
  EXPECT_FALSE(Is("Column1(0).Visible") || Is("cmdHit(0).Visible"));
  driver.Do(kPauseFivestack + kGiveUp + kPauseFivestack + "close frmFivestack\nadvance 60000\nanswer \"No\"");
  EXPECT_FALSE(driver.common().GameInProgress);
  EXPECT_TRUE(Is("frmSplash.Visible") && Is("cmdPlay.Enabled"));
  driver.Do(kPlayFivestack + kGiveUp + kGiveUp + kPauseFivestack);
  driver.Do("close frmFivestack\nadvance 60000\nanswer \"Yes\"");
  EXPECT_FALSE(driver.common().window);
  EXPECT_EQ(driver.Get("frmSelect.Visible"), true);
}

// --- Settings, failures, places ------------------------------------------------------------------

TEST_F(Fivestack, SettingsAreReadInAnyOrder) {
  folder.Write(
      "Fivestack.Ini",
      "[Cards To Pass]\r\n3\r\n\r\n[TimeBonusMin]\r\n50\r\n\r\n[Nonsense]\r\n1\r\n\r\n[WaitPeriod]\r\n-5\r\n\r\n"
      "[BonusScore]\r\n1000\r\n\r\n[TimeBonusMax]\r\n350\r\n\r\n[Time]\r\n75\r\n\r\n[Deck]\r\n3\r\n\r\n"
      "[Play Music]\r\nTrue\r\n\r\n[CountDownScore]\r\nFalse\r\n\r\n");
  driver.Do(kOpenFivestack);
  EXPECT_FLOAT_EQ(Game().TimeBonusDecay(), 4);
  EXPECT_EQ(Game().PassesLeft, 3);
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kNightCastle.back);
  EXPECT_TRUE(Is("mnu75.Checked") && Is("mnuMusic.Checked") && driver.common().CustomScoringInUse);
  EXPECT_EQ(Text("lblHighScore.Caption"), "High Score: 50,000");
  EXPECT_TRUE(folder.Has("HiScores75.Txt"));
  driver.Do("click frmFivestack.mnu30");
  EXPECT_FLOAT_EQ(Game().TimeBonusDecay(), 10);
  driver.Do(LayRound(CardsFor(97)) + kPlayFivestack + "advance 1000\n" + PlayRound(97));
  EXPECT_EQ(Story(driver.Trace(kGiveUp)), "silence, \"17,000\", 0, silence, open, music, " + kNext + "2\", 0")
      << "a wait below nothing is none";
  driver.Do("close frmFivestack\nanswer \"Yes\"");
  EXPECT_EQ(folder.Read("Fivestack.Ini"),
            "[Time]\r\n30\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Play Music]\r\nTrue\r\n\r\n[Deck]\r\n3\r\n\r\n"
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
  EXPECT_FALSE(driver.common().GameInProgress);
  EXPECT_EQ(folder.Read("HiScores60.Txt").substr(0, 14), "Ann*, 145000\r\n");
  EXPECT_TRUE(Is("frmSplash.Visible"));
  EXPECT_FALSE(Is("cmdHit(0).Visible") || Is("Column1(0).Visible") || Is("ScoringLabel.Visible"));
  driver.Do(LayRound(CardsFor(97)) + kPlayFivestack);
  EXPECT_EQ(Board(), "0 0 0 0 0");
}

TEST_F(Fivestack, AFailedScoreIsToldAndPlayGoesOn) {
  StartFivestack(driver, CardsFor(105));
  driver.common().TimeBonus = 2147484;  // another game may leave such a value
  std::string told = driver.Do(PlayRound(105) + "answer \"OK\"\n");
  EXPECT_TRUE(Contains(told, R"({"text":"Overflow","title":"Fivestack!","icon":"none")")) << told;
  EXPECT_EQ(Text("Caption"), "Fivestack!: Round 2");
  EXPECT_EQ(Score(), 0);
  // The score itself: what fitted stays counted.
  driver.Do(LayRound(CardsFor(97)) + kGiveUp + "advance 3000\n" + PlayRound(97));
  driver.common().CurrentScore = 2147483647 - 600;
  told = driver.Do(kGiveUp + "answer \"OK\"\n");
  EXPECT_EQ(Joined(BoxesOf(told)), "Overflow");
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 4");
  EXPECT_EQ(Score(), 2147483647 - 20);
  for (const char* gone :
       {"ScoringLabel", "ScoringLabelInfo", "ScoringLabelRoundTotal", "ScoringLabelOutline"})
    EXPECT_FALSE(Is(std::string(gone) + ".Visible")) << gone;
}

TEST_F(Fivestack, OtherErrorsEndTheProgram) {
  for (const bool inPlay : {true, false}) {
    TestFolder own;
    Driver suite(own.Path());
    suite.Do(kOpenFivestack);
    if (!inPlay) suite.Do(kPlayFivestack);
    suite.common().ImageList2.SetKey(13, "");
    EXPECT_TRUE(
        suite.Do((inPlay ? kPlayFivestack : kGiveUp) + "answer \"OK\"\n")
            .ends_with("* msgbox {\"text\":\"Element not found\",\"title\":\"Fivestack!\",\"icon\":\"none\","
                       "\"buttons\":[\"OK\"]}\nok\n* end \"Element not found\"\n"));
  }
}

TEST_F(Fivestack, TheBoardIsPlacedFromTheMiddle) {
  StartFivestack(driver, {"1S", "2S"});
  driver.Do(Hit("1"));
  for (const auto& [width, height] : {std::pair(9540, 7305), {14000, 9000}, {100, 100}}) {
    driver.Do("resize frmFivestack " + std::to_string(width) + " " + std::to_string(height));
    const int right = (std::max(width, 9540) - 9540) / 2, down = (std::max(height, 7305) - 7305) / 2;
    for (int i = 0; i < kColumns; ++i) {
      const std::string at = "(" + std::to_string(i) + ")";
      const std::string column = "Column" + std::to_string(i + 1);
      EXPECT_EQ(Number(column + "(0).Left"), 420 + 1455 * i + right);
      EXPECT_EQ(Number(column + "(4).Top"), 4140 + down);
      EXPECT_EQ(Number("cmdHit" + at + ".Left"), Number(column + "(0).Left"));
      EXPECT_EQ(Number("ColumnTotal" + at + ".Left"), Number(column + "(0).Left") + (1035 - 495) / 2);
      EXPECT_EQ(Number("ColumnTotal" + at + ".Top"), 1815 + down);
    }
    EXPECT_NEAR(Number("ColumnSoft(1).Left") + Number("ColumnSoft(1).Width") / 2,
                Number("ColumnTotal(1).Left") + 495 / 2, 1);
    EXPECT_NEAR(Number("lblCurrentTotal.Left") + 750 / 2,
                Number("frmScore.Left") + Number("frmScore.Width") / 2, 1);
    EXPECT_EQ(Number("lblTimeBonus.Left"),
              static_cast<int>(Number("TimerRectangle.Left") + Number("TimerRectangle.Width") / 2 -
                               Number("lblTimeBonus.Width") / 1.3));
    EXPECT_EQ(Number("cmdQuit.Left"), std::max(width, 9540) - 1320);
    EXPECT_NEAR(Number("lblHighScore.Left") + Number("lblHighScore.Width") / 2,
                Number("ScoreRectangle.Left") + Number("ScoreRectangle.Width") / 2, 1);
  }
}

// Its own way with settings: what isn't "True" is off, and the default limit's table is looked at first.
TEST(FivestackSettings, AreReadInItsOwnWay) {
  TestFolder folder;
  folder.Write("Fivestack.Ini",
               "[Time]\r\n30\r\n\r\n[Play Sounds]\r\nperhaps\r\n\r\n[Play Music]\r\nTrue\r\n\r\n");
  Driver driver(folder.Path());
  driver.Do("click frmSelect.cmdFivestack");
  EXPECT_EQ(driver.Get("frmFivestack.mnuSounds.Checked"), false);
  EXPECT_EQ(driver.Get("frmFivestack.mnuMusic.Checked"), true);
  EXPECT_FALSE(driver.common().PlaySounds);
  EXPECT_TRUE(folder.Has("HiScores60.Txt") && folder.Has("HiScores30.Txt"));
}

}  // namespace
