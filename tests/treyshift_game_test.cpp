// Treyshift from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/treyshift_table.h"

namespace {

using namespace modTreyshift;

const std::string kWin = "frmTreyshift.";

class Treyshift : public ::testing::Test {
 protected:
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  std::string Heard(const std::string& commands) { return TreyshiftStory(driver.Trace(commands)); }
  frmTreyshift& Game() { return TreyshiftOf(driver); }
  long long Score() { return driver.common().CurrentScore; }
  // The cards on the table: storage, then the columns from the left, each from the top.
  std::string Table() {
    std::vector<std::string> cards;
    const auto add = [&](const std::string& code) {
      cards.push_back(code.empty() ? "-" : std::string(CardKey(code)));
    };
    for (const std::string& code : Game().board.TempCards) add(code);
    for (int column = 0; column < kColumns; ++column)
      for (int slot = column; slot < kFieldSlots; slot += kColumns) add(Game().board.FieldCards[slot]);
    return Joined(cards, " ");
  }
  // The slots of the field that can be clicked.
  std::string Open() {
    std::vector<std::string> slots;
    for (int i = 0; i < kFieldSlots; ++i)
      if (Game().PlayCard(i).Visible) slots.push_back(std::to_string(i));
    return Joined(slots, " ");
  }
  // What is marked as selected.
  std::string Marked() {
    std::vector<std::string> marks;
    for (const Control* control : Game().Controls())
      if (control->name.find("CardSelection") != std::string::npos &&
          static_cast<const Shape*>(control)->Visible)
        marks.push_back(control->NameInForm());
    return Joined(marks);
  }
  std::string PlayWholeDeck() {
    std::string clicks;
    for (int card = 0; card < 51; card += 3) clicks += Lay(card / 3 % kColumns, 3);
    return clicks;
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(Treyshift, OpensWithItsOwnNames) {
  driver.Do(kOpenTreyshift);
  std::vector<std::string> captions;
  for (const char* name : {"mnuFile", "mnuClear", "mnuCustom", "cmdTakeScore", "cmdQuit", "lblTemp",
                           "lblFieldCards", "lblFlush", "lblHighScore"})
    captions.push_back(Text(std::string(name) + ".Caption"));
  for (const auto& entry : Game().timeLimitEntries) captions.push_back(entry->Caption);
  EXPECT_EQ(Joined(captions),
            "&File|&Clear High Scores...|&User Options...|&Take Score|E&xit|Temporary Storage|"
            "   Playing Field   |Flush!|High Score: 30,000|&60 seconds|&75 seconds|&90 seconds|&105 seconds|"
            "1&20 seconds (default)|1&35 seconds|1&50 seconds|1&80 seconds");
  EXPECT_EQ(driver.Get(kWin + "mnuTakeScore.Caption"), nullptr);
  driver.Do("click frmTreyshift.mnu75\nclose frmTreyshift\nanswer \"Yes\"");
  EXPECT_EQ(
      folder.Read("Treyshift.Ini"),
      "[Time]\r\n75\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Play Music]\r\nFalse\r\n\r\n"
      "[Count Down Score]\r\nTrue\r\n\r\n[Deck]\r\n1\r\n\r\n[Time Bonus]\r\n200\r\n\r\n"
      "[Bonus Score]\r\n100000\r\n\r\n[Trips Score]\r\n6000\r\n\r\n[Runs Score]\r\n300\r\n\r\n"
      "[Flush Score]\r\n5000\r\n\r\n[State]\r\n0\r\n\r\n[Width]\r\n9540\r\n\r\n[Height]\r\n7305\r\n\r\n");
}

// Numbers have no bounds but their type; what a trip is worth doesn't come back.
TEST_F(Treyshift, ReadsItsSettings) {
  folder.Write("Treyshift.Ini",
               "[Trips Score]\r\n1\r\n\r\n[Runs Score]\r\n-7\r\n\r\n[Flush Score]\r\n2000000000\r\n\r\n"
               "[Bonus Score]\r\n99999999999\r\n\r\n[Time]\r\n180\r\n\r\n[Width]\r\n12000\r\n\r\n");
  driver.Do(kOpenTreyshift);
  EXPECT_EQ(Game().TripValue, 6000);
  EXPECT_EQ(Game().BonusScore, 100000);
  EXPECT_EQ(driver.common().TimeLimit, 180);
  driver.Do("close frmTreyshift\nanswer \"Yes\"");
  EXPECT_TRUE(
      Contains(folder.Read("Treyshift.Ini"),
               "[Trips Score]\r\n6000\r\n\r\n[Runs Score]\r\n-7\r\n\r\n[Flush Score]\r\n2000000000\r\n\r\n"));
}

// Each line is one click on what the line before has left: what is heard, what lies where, what can be
// clicked, what is marked.
TEST_F(Treyshift, CardsGoWhereTheyMay) {
  StartTreyshift(driver, {"1S", "8H", "6C", "11D", "2H"});
  const struct {
    std::string click;
    const char *heard, *table, *open, *marked;
  } steps[] = {
      {Column(2) + Temp(1) + "click frmTreyshift.UpCard(1)\nclick frmTreyshift.CardStackPicture", "Chord x4",
       "- - - - - - - - - - - - - - -", "0 1 2 3", ""},
      {kUp, "Click", "- - - - - - - - - - - - - - -", "0 1 2 3", "UpCardSelection"},
      {kUp, "Markq", "- - - - - - - - - - - - - - -", "0 1 2 3", ""},
      {kUp + Temp(1), "Click x2", "- 1S - - - - - - - - - - - - -", "0 1 2 3", ""},
      {kUp + Temp(1), "Click, Chord", "- 1S - - - - - - - - - - - - -", "0 1 2 3", "UpCardSelection"},
      {Column(0), "Click", "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4", ""},
      {Temp(1) + kUp, "Click, Chord", "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4", "TempCardSelection(1)"},
      {Temp(2), "Click", "- - 1S 8H - - - - - - - - - - -", "0 1 2 3 4", ""},
      {Temp(2) + Column(0), "Click x2", "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4 8", ""},
      {Column(0), "Click", "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4", "PlayCardSelection(4)"},
      {Column(3), "Click", "- - - 8H - - - - - - - - 1S - -", "0 1 2 3", ""},
      {kUp + Column(3) + kUp + Column(3), "Click x4", "- - - 8H - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11",
       ""},
      {kUp + Column(3), "Click, Chord", "- - - 8H - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11",
       "UpCardSelection"},
  };
  for (const auto& step : steps) {
    SCOPED_TRACE(step.click);
    EXPECT_EQ(Heard(step.click), step.heard);
    EXPECT_EQ(Table(), step.table);
    EXPECT_EQ(Open(), step.open);
    EXPECT_EQ(Marked(), step.marked);
  }
  EXPECT_EQ(Score(), 0);
}

TEST_F(Treyshift, FullColumnsPayAtOnce) {
  const struct {
    std::vector<std::string> cards;
    const char* heard;
    int pays, trips, runs;
  } columns[] = {
      {{"3S", "3H", "3D"}, "Click x6, TwentyOne", 6000, 1, 0},
      {{"4S", "5H", "6D"}, "Click x6, TwentyOne", 300, 0, 1},
      {{"12S", "13S", "1D"}, "Click x6, TwentyOne", 300, 0, 1},
      {{"1D", "13D", "12D"}, "Click x6, 250, HighScore", 5300, 0, 1},
      {{"5C", "7C", "6C"}, "Click x6", 0, 0, 0},
  };
  driver.Do(kOpenTreyshift);
  for (const auto& column : columns) {
    SCOPED_TRACE(Joined(column.cards));
    driver.Do(InOrder(column.cards) + kPlayTreyshift);
    EXPECT_EQ(Heard(Lay(2, 3)), column.heard);
    EXPECT_EQ(Score(), column.pays);
    EXPECT_EQ(Game().board.TripCount, column.trips);
    EXPECT_EQ(Game().board.RunCount, column.runs);
    EXPECT_EQ(Table(), column.pays ? "- - - - - - - - - - - - - - -"
                                   : "- - - - - - - - - " + Joined(column.cards, " ") + " - - -");
    EXPECT_EQ(Open(), column.pays ? "0 1 2 3" : "0 1 2 3 6 10");
    driver.Do(kPlayTreyshift + "answer \"Yes\"");
  }
  // The figures of the last trip and run stay.
  driver.Do(kPlayTreyshift);
  EXPECT_EQ(Text("lblScoreTrips.Caption") + Text("lblScoreRuns.Caption"), "11");
}

// Behind the last card there is one more that isn't one. Once it was moved nothing moves any more.
TEST_F(Treyshift, BehindTheLastCardIsNothingAndThatCanBeMovedOnce) {
  StartTreyshift(driver, WholeDeck());
  driver.Do(PlayWholeDeck() + Store(0));
  EXPECT_EQ(Heard(kUp + Column(2)), "Click x2");
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: -1");
  EXPECT_EQ(Open(), "0 1 2 3 6");
  EXPECT_EQ(Heard(kUp + Column(1)), "Click");
  EXPECT_EQ(Marked(), "");
  // A selection elsewhere is dropped, and its mark stays.
  EXPECT_EQ(Heard(Temp(0) + Column(1)), "Click");
  EXPECT_EQ(Marked(), "TempCardSelection(0)");
  EXPECT_EQ(Table(), "13D - - - - - - - - - - - - - -");
  EXPECT_EQ(Heard(Column(1)), "Chord");
  driver.Do(kTakeTreyshift);
  EXPECT_EQ(Marked(), "");
}

TEST_F(Treyshift, IsPlayedThroughToTheTable) {
  StartTreyshift(driver, WholeDeck());
  driver.Do("click frmTreyshift.mnuMusic\nadvance 20000\n" + PlayWholeDeck() + Store(1));
  // The deck is used up, and the king of diamonds is left over. A second goes by with the flushes.
  EXPECT_EQ(Heard(InOrder(StuckBoard()) + kTakeTreyshift),
            "silence, \"Deck Completion Bonus!\", \"15,000!\", Applause, 2000, \"Removing left over cards\", "
            "\"-250\", 1000, Click, 500, \"Speed Bonus!\", 2000, Snap 75 x99, \"Prepare For Round 2\", 2000, "
            "open, music");
  EXPECT_EQ(Score(), kWholeDeckPays + 15000 - 250 + 99 * 200);
  EXPECT_EQ(Text("lblScoreTrips.Caption") + " " + Text("lblScoreRuns.Caption"), "13 4");
  // The count is of the old deck until the new one is touched.
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: 0");
  driver.Do(Lay(0));
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: 51");

  // Four full columns and a full storage: the board is stuck. One tick has waited.
  driver.Do(Lay(0, 2) + Lay(1, 3) + Lay(2, 3) + Lay(3, 3) + Store(0) + Store(1) + "advance 10000\n");
  const long long before = Score();
  EXPECT_EQ(Heard(Store(2)),
            "Click x2, \"No more legal moves left!\", Slide, 2000, silence, 2000, Snap 75 x109, "
            "\"Prepare For Bonus Round\", 2000, open, music");
  EXPECT_EQ(Score() - before, 109 * 200);

  // The bonus round runs out of time: cards on the table cost nothing.
  driver.Do(Lay(0, 2));
  const long long last = Score();
  EXPECT_EQ(Heard("advance 120000\n" + kName),
            "\"Times Up!\", Slide, 250 x10, silence, HighScore, \"Game Over\", 1000");
  EXPECT_EQ(Score(), last);
  EXPECT_TRUE(folder.Read("TreyshiftHiScores120.Txt").starts_with("Ann, " + std::to_string(last) + "\r\n"));
}

TEST_F(Treyshift, SecondsArePaidThoughNothingWasPlayed) {
  driver.Do(kOpenTreyshift + kPlayTreyshift + "advance 20000");
  EXPECT_EQ(Heard(kTakeTreyshift), "\"Speed Bonus!\", 2000, Snap 75 x100, \"Prepare For Round 2\", 2000");
  EXPECT_EQ(Score(), 100 * 200);
}

TEST_F(Treyshift, AScoreOfExactlyTheBonusScoreEarnsTheBonusRound) {
  driver.Do(kOpenTreyshift);
  driver.common().TimeBonus = 0;
  for (const int score : {99999, 100000}) {
    driver.Do(kPlayTreyshift + kTakeTreyshift);
    driver.common().CurrentScore = score;
    driver.Do(kTakeTreyshift + (score < 100000 ? kName : ""));
    EXPECT_EQ(driver.InGame(), score == 100000);
  }
}

// A full table costs nothing while the deck isn't used up; a penalty of nothing is walked through as well.
TEST_F(Treyshift, LeftOverCardsCostOnlyWhenTheDeckIsUsedUp) {
  StartTreyshift(driver, StuckBoard());
  driver.Do(kFillColumns + Store(0));
  driver.common().TimeBonus = 0;
  driver.Do(kTakeTreyshift);
  EXPECT_EQ(Score(), 0);

  // Thirteen cards are left over, and the clock has run out.
  driver.Do(kPlayTreyshift + "answer \"Yes\"\n" + InOrder(StuckBoard()) + kPlayTreyshift + kFillColumns +
            Store(2));
  Game().board.UpCards[kInPlay].clear();
  const std::string trace = driver.Trace("advance 120000");
  EXPECT_EQ(TreyshiftStory(trace),
            "\"Times Up!\", Slide, 250 x10, \"Deck Completion Bonus!\", \"15,000!\", Applause, 2000, "
            "\"Removing left over cards\", \"-250\", 1000, Click, 500, Click, 500, Click, 500, Click, 500, "
            "Click, 500, Click, 500, Click, 500, Click, 500, Click, 500, Click, 500, Click, 500, Click, 500, "
            "Click, 500, \"Speed Bonus!\", \"Prepare For Round 2\", 2000");
  EXPECT_EQ(Score(), 15000 - 13 * 250);
  // From the last slot to the first, the storage behind the columns.
  const size_t first = trace.find("PlayCardSelection(11).Visible true"),
               last = trace.find("PlayCardSelection(0).Visible true"),
               stored = trace.find("TempCardSelection(2).Visible true");
  EXPECT_TRUE(first < last && last < stored && stored < trace.size());

  const struct {
    int deck, penalty, score;
    const char* told;
  } cases[] = {{15000, 0, 15000, "\"-0\""}, {0, 250, -250, "\"-250\""}};
  for (const auto& each : cases) {
    driver.Do(kPlayTreyshift + "answer \"Yes\"\n" + InOrder(StuckBoard()) + kPlayTreyshift + Lay(0));
    Game().board.UpCards[kInPlay].clear();
    Game().DeckValue = each.deck;
    Game().PenaltyValue = each.penalty;
    EXPECT_TRUE(
        Contains(Heard("advance 120000"), each.told + std::string(", 1000, Click, 500, \"Speed Bonus!\"")));
    EXPECT_EQ(Score(), each.score);
  }
}

// A round is never paid twice: what waits may end it while it is about to be paid.
TEST_F(Treyshift, ATickThatWaitsMayEndTheRoundFirst) {
  StartTreyshift(driver, StuckBoard());
  driver.Do(kFillColumns + Store(0) + Store(1) + "advance 119999\n");
  EXPECT_EQ(
      Heard(Store(2)),
      "Click x2, \"No more legal moves left!\", Slide, 2000, \"Times Up!\", Slide, 250 x10, \"Speed Bonus!\", "
      "\"Prepare For Round 2\", 2000");
  EXPECT_EQ(Game().CurrentRound, 2);
  // The same behind a flush and a click on Take Score, in the last round.
  Game().CurrentRound = 3;
  driver.Do(kPlayTreyshift + "answer \"Yes\"\n" + InOrder({"4S", "5S", "6S"}) + kPlayTreyshift +
            "advance 119999\n");
  Game().CurrentRound = 3;
  EXPECT_EQ(Heard(Lay(0, 3) + kTakeTreyshift + kName),
            "Click x6, 250, HighScore, \"Times Up!\", Slide, 250 x10, \"Speed Bonus!\", \"Game Over\", 1000");
  EXPECT_FALSE(driver.InGame());
}

// After the last round the commands are dead until the selector's tick; the menu isn't.
TEST_F(Treyshift, InputIsDeadUntilTheSelectorTicks) {
  driver.Do(kOpenTreyshift + kPlayTreyshift);
  Game().CurrentRound = 3;
  driver.Do(kTakeTreyshift);
  Game().standing.InputDies();
  driver.Do(kPlayTreyshift + "click frmTreyshift.cmdQuit");
  EXPECT_FALSE(driver.InGame());
  driver.Do("advance 250\n");
  EXPECT_FALSE(Game().standing.InputIsDead());
  Game().standing.InputDies();
  driver.Do("click frmTreyshift.mnuPlay");
  EXPECT_TRUE(driver.InGame());
  EXPECT_FALSE(Game().standing.InputIsDead());
  Game().standing.InputDies();  // while a round is scored
  EXPECT_EQ(Heard(kUp + kTakeTreyshift + "click frmTreyshift.cmdPause\nclick frmTreyshift.mnuPause"), "");
  EXPECT_TRUE(Game().CurrentRound == 1 && !Game().standing.IsPaused());
  EXPECT_EQ(Heard(Column(0)), "Chord");  // the columns don't ask
}

TEST_F(Treyshift, APauseHidesTheCardsAndKeepsTheSelection) {
  StartTreyshift(driver, StuckBoard());
  driver.Do("click frmTreyshift.mnuMusic\n" + Lay(0) + Store(1) + Temp(1));
  EXPECT_EQ(Heard("click frmTreyshift.cmdPause"), "\"Game Paused\", silence");
  EXPECT_EQ(Open(), "4");  // what shows nothing stays, and is refused
  EXPECT_EQ(Marked(), "");
  EXPECT_FALSE(Game().TempCard(0).Visible || Game().UpCard(2).Visible);
  EXPECT_EQ(Heard("click frmTreyshift.PlayCard(4)\nadvance 60000"), "Chord");
  EXPECT_EQ(Heard("click frmTreyshift.mnuPause"), "\"\", open, music");
  EXPECT_EQ(Open(), "0 1 2 3 4");
  EXPECT_EQ(Marked(), "TempCardSelection(1)");
}

TEST_F(Treyshift, EndGameStopsTheMusicFirstAndEntersNothing) {
  StartTreyshift(driver, StuckBoard());
  driver.Do("click frmTreyshift.mnuMusic\n" + Lay(0, 2));
  driver.common().CurrentScore = 500000;
  EXPECT_EQ(Heard("click frmTreyshift.mnuPlay\nadvance 5000\nanswer \"No\""),
            "silence, \"Game Paused\", silence, box, \"\", open, music");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 120");
  EXPECT_EQ(Heard(kPlayTreyshift + "answer \"Yes\""), "silence, \"Game Paused\", silence, box, \"\"");
  EXPECT_TRUE(folder.Read("TreyshiftHiScores120.Txt").starts_with("Quillmark, 30000\r\n"));
  EXPECT_FALSE(Game().lblHighScore.Visible || Game().TimerRectangle.Visible || Game().cmdTakeScore.Enabled);
  // A place that shows nothing is still there, under the splash panel; a click on it does nothing.
  EXPECT_EQ(Heard("click frmTreyshift.PlayCard(8)"), "");
}

TEST_F(Treyshift, TheClockRunsUnderTheClosingQuestion) {
  StartTreyshift(driver, StuckBoard());
  driver.Do("close frmTreyshift\nadvance 130000\nanswer \"No\"");
  EXPECT_EQ(Joined({Game().lblRound.Caption, Game().lblTime.Caption}), "Round: 2|Time: 115");
}

// By a flush, whose word goes with it.
TEST_F(Treyshift, AnOverflowEndsTheGameAndNotTheProgram) {
  folder.Write("Treyshift.Ini", "[Flush Score]\r\n2000000000\r\n\r\n");
  StartTreyshift(driver, {"4S", "5S", "6S"});
  driver.common().CurrentScore = 200000000;
  EXPECT_EQ(Joined(BoxesOf(driver.Do(Lay(0, 3) + "answer \"OK\"\n" + kName))), "Overflow");
  EXPECT_TRUE(folder.Read("TreyshiftHiScores120.Txt").starts_with("Ann*, 200000000\r\n"));
  EXPECT_FALSE(Game().lblFlush.Visible || Game().UpCardSelection.Visible);
  driver.Do(kPlayTreyshift + Lay(1));
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: 51");
}

TEST_F(Treyshift, AGameThatCantBeDealtEndsTheProgram) {
  driver.Do(kOpenTreyshift);
  driver.common().ImageList2.SetKey(13, "");
  const std::string told = driver.Do(kPlayTreyshift + "answer \"OK\"");
  EXPECT_TRUE(Contains(told, "* end \"Element not found\"")) << told;
}

}  // namespace
