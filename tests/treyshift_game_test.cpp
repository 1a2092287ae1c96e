// Treyshift from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/treyshift_table.h"

namespace {

using namespace modTreyshift;

const std::string kWin = "frmTreyshift.";
constexpr int kEmpty = 13;

class Treyshift : public ::testing::Test {
 protected:
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  std::string Panel(int number) { return Text("StatusBar1.Panels(" + std::to_string(number) + ").Text"); }
  bool Is(const std::string& property) { return driver.Get(kWin + property) == true; }
  // Those of the properties that aren't so.
  std::string Not(bool so, std::initializer_list<const char*> properties) {
    std::vector<std::string> others;
    for (const char* property : properties)
      if (Is(property) != so) others.emplace_back(property);
    return Joined(others);
  }
  std::string Heard(const std::string& commands) { return TreyshiftStory(driver.Trace(commands)); }
  frmTreyshift& Game() { return TreyshiftOf(driver); }
  long long Score() { return driver.common().CurrentScore; }
  // The cards on the table: storage, then the columns from the left, each from the top.
  std::string Table() {
    std::vector<std::string> cards;
    const auto add = [&](const std::string& code) {
      cards.push_back(code.empty() ? "-" : std::string(CardKey(code)));
    };
    for (const std::string& code : Game().TempCards) add(code);
    for (int column = 0; column < kColumns; ++column)
      for (int slot = column; slot < kFieldSlots; slot += kColumns) add(Game().FieldCards[slot]);
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
  // Plays the whole deck of `WholeDeck` but for what is left over.
  std::string PlayWholeDeck() {
    std::string clicks;
    for (int card = 0; card < 51; card += 3) clicks += Lay(card / 3 % kColumns, 3);
    return clicks;
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

// --- The window ----------------------------------------------------------------------------------

TEST_F(Treyshift, OpensWithItsOwnNames) {
  driver.Do(kOpenTreyshift);
  std::vector<std::string> captions;
  for (const char* name :
       {"mnuFile", "mnuPlay", "mnuClear", "mnuCustom", "cmdTakeScore", "cmdQuit", "lblTemp", "lblFieldCards",
        "lblFlush", "lblScoreTrips", "lblScoreRuns", "lblHighScore"})
    captions.push_back(Text(std::string(name) + ".Caption"));
  EXPECT_EQ(Joined(captions),
            "&File|&Play|&Clear High Scores...|&User Options...|&Take Score|E&xit|Temporary Storage|"
            "   Playing Field   |Flush!|0|0|High Score: 30,000");
  captions.clear();
  for (const auto& entry : Game().timeLimitEntries) captions.push_back(entry->Caption);
  EXPECT_EQ(Joined(captions),
            "&60 seconds|&75 seconds|&90 seconds|&105 seconds|1&20 seconds (default)|1&35 seconds|"
            "1&50 seconds|1&80 seconds");
  EXPECT_EQ(Text("cmdTakeScore.ToolTipText"), "Ends the round and awards points");
  EXPECT_EQ(driver.Get(kWin + "mnuTakeScore.Caption"), nullptr);
  EXPECT_EQ(Panel(1), "Welcome to Treyshift!  ");
  EXPECT_EQ(Not(true, {"mnu120.Checked", "Timer2.Enabled", "Timer3.Enabled", "Timer4.Enabled",
                       "lblHighScore.Visible"}),
            "");
  EXPECT_EQ(
      Not(false, {"FieldRect.Visible", "UpCard(2).Visible", "TempCard(0).Visible", "PlayCard(0).Visible",
                  "lblFlush.Visible", "ScoringLabelOutline.Visible", "Timer1.Enabled"}),
      "");
  driver.Do("click frmTreyshift.mnu75\nclose frmTreyshift\nanswer \"Yes\"");
  EXPECT_TRUE(folder.Read("TreyshiftHiScores75.Txt").starts_with("Quillmark, 30000\r\n"));
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
               "[Bonus Score]\r\n99999999999\r\n\r\n[Time Bonus]\r\n9000\r\n\r\n[Time]\r\n180\r\n\r\n"
               "[Play Sounds]\r\nFalse\r\n\r\n[Play Music]\r\nTrue\r\n\r\n[Count Down Score]\r\nFalse\r\n\r\n"
               "[Deck]\r\n3\r\n\r\n[State]\r\n2\r\n\r\n[Width]\r\n12000\r\n\r\n");
  driver.Do(kOpenTreyshift);
  const modCommon& common = driver.common();
  EXPECT_EQ(Game().TripValue, 6000);
  EXPECT_EQ(Game().RunValue, -7);
  EXPECT_EQ(Game().FlushValue, 2000000000);
  EXPECT_EQ(Game().BonusScore, 100000);
  EXPECT_EQ(common.TimeBonus, 9000);
  EXPECT_EQ(common.TimeLimit, 180);
  EXPECT_FALSE(common.PlaySounds || common.CountDownScore);
  EXPECT_TRUE(common.PlayMusic && common.CustomScoringInUse);
  EXPECT_TRUE(Is("mnu180.Checked") && Is("mnuNight.Checked"));
  EXPECT_FALSE(Is("mnu120.Checked"));
  driver.Do("close frmTreyshift\nanswer \"Yes\"");
  EXPECT_TRUE(folder.Read("Treyshift.Ini")
                  .ends_with("[Trips Score]\r\n6000\r\n\r\n[Runs Score]\r\n-7\r\n\r\n"
                             "[Flush Score]\r\n2000000000\r\n\r\n[State]\r\n2\r\n\r\n"
                             "[Width]\r\n9540\r\n\r\n[Height]\r\n7305\r\n\r\n"));
}

TEST_F(Treyshift, TheBoardMovesAsOneAndTheButtonsKeepToTheRight) {
  StartTreyshift(driver, StuckBoard());
  const auto apart = [&](const char* what, const char* from) {
    return std::pair(
        driver.Get(kWin + what + ".Left").get<int>() - driver.Get(kWin + from + ".Left").get<int>(),
        driver.Get(kWin + what + ".Top").get<int>() - driver.Get(kWin + from + ".Top").get<int>());
  };
  for (const char* size : {"9540 7305", "14000 11000", "20000 7305"}) {
    driver.Do(std::string("resize frmTreyshift ") + size);
    EXPECT_EQ(apart("PlayCard(11)", "PlayCard(0)"), std::pair(4320, 720));
    EXPECT_EQ(apart("PlayCardSelection(7)", "PlayCard(7)"), std::pair(0, 0));
    EXPECT_EQ(apart("TempCard(2)", "PlayCard(0)"), std::pair(3480, -1920));
    EXPECT_EQ(apart("TempCardSelection(1)", "TempCard(1)"), std::pair(0, 0));
    EXPECT_EQ(apart("UpCard(2)", "PlayCard(0)"), std::pair(2400, 2520));
    EXPECT_EQ(apart("UpCardSelection", "UpCard(2)"), std::pair(15, 0));
    EXPECT_EQ(apart("CardStackPicture", "FieldRect"), std::pair(360, 2640));
    EXPECT_EQ(Game().cmdExit.Left, Game().Width - 1320);
  }
}

// --- Moves ---------------------------------------------------------------------------------------

TEST_F(Treyshift, IsDealtFromTheEndOfTheFan) {
  StartTreyshift(driver, {"5H", "9C", "2S", "13D"});
  EXPECT_EQ(Panel(1), "Make 100,000 for Bonus Round!   ");
  EXPECT_EQ(Panel(2), "Create runs and triples by moving available cards!   ");
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: 52");
  EXPECT_EQ(Text("lblTrips.Caption"), "Trips (6000):");
  EXPECT_EQ(Text("lblRuns.Caption"), "Runs (300):");
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 1");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 120");
  EXPECT_EQ(Open(), "0 1 2 3");
  EXPECT_EQ(Not(false, {"mnuCustom.Enabled", "mnuTime.Enabled"}), "");
  EXPECT_EQ(Not(true, {"cmdTakeScore.Enabled", "cmdPause.Enabled", "mnuPause.Enabled", "mnuDeck.Enabled"}),
            "");
  driver.Do(Lay(0) + Lay(1) + Lay(2) + Lay(3));
  EXPECT_EQ(Table(), "- - - 5H - - 9C - - 2S - - 13D - -");
}

// Each line is one click on what the line before has left: what is heard, what lies where, what can be
// clicked, what is marked.
TEST_F(Treyshift, CardsGoWhereTheyMay) {
  StartTreyshift(driver, {"1S", "8H", "6C", "11D", "2H"});
  const struct {
    std::string click;
    const char *heard, *table, *open, *marked;
  } steps[] = {
      // Nothing is selected, or not to be taken.
      {Column(2), "Chord", "- - - - - - - - - - - - - - -", "0 1 2 3", ""},
      {Temp(1), "Chord", "- - - - - - - - - - - - - - -", "0 1 2 3", ""},
      {"click frmTreyshift.UpCard(1)", "Chord", "- - - - - - - - - - - - - - -", "0 1 2 3", ""},
      {"click frmTreyshift.CardStackPicture", "Chord", "- - - - - - - - - - - - - - -", "0 1 2 3", ""},
      // From the deck: taken back, into the storage, into a column.
      {kUp, "Click", "- - - - - - - - - - - - - - -", "0 1 2 3", "UpCardSelection"},
      {kUp, "Markq", "- - - - - - - - - - - - - - -", "0 1 2 3", ""},
      {kUp + Temp(1), "Click x2", "- 1S - - - - - - - - - - - - -", "0 1 2 3", ""},
      {kUp + Temp(1), "Click, Chord", "- 1S - - - - - - - - - - - - -", "0 1 2 3", "UpCardSelection"},
      {Column(0), "Click", "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4", ""},
      // From the storage: taken back, to another slot, below a card. A deck card can't be selected meanwhile.
      {Temp(1), "Click", "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4", "TempCardSelection(1)"},
      {Temp(1), "Markq", "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4", ""},
      {Temp(1) + kUp, "Click, Chord", "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4", "TempCardSelection(1)"},
      {Temp(2), "Click", "- - 1S 8H - - - - - - - - - - -", "0 1 2 3 4", ""},
      {Temp(2) + Column(0), "Click x2", "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4 8", ""},
      // From a column: only its last card, and never into the column itself.
      {Column(0), "Click", "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4", "PlayCardSelection(4)"},
      {Column(0), "Markq", "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4", ""},
      {Column(0) + Column(3), "Click x2", "- - - 8H - - - - - - - - 1S - -", "0 1 2 3", ""},
      {Column(0) + Column(3), "Click x2", "- - - - - - - - - - - - 1S 8H -", "0 1 2 3 7", ""},
      {Column(3) + Temp(0), "Click x2", "8H - - - - - - - - - - - 1S - -", "0 1 2 3", ""},
      // The third card; the column is full then.
      {kUp + Column(3) + kUp + Column(3), "Click x4", "8H - - - - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11",
       ""},
      {kUp + Column(3), "Click, Chord", "8H - - - - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11",
       "UpCardSelection"},
      {kUp + Column(3) + Column(0), "Markq, Click x2", "8H - - 11D - - - - - - - - 1S 6C -", "0 1 2 3 7", ""},
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

TEST_F(Treyshift, ASelectionThatIsTakenBackLeavesNoPlaceBelowItsCard) {
  StartTreyshift(driver, {"1S", "8H", "6C"});
  driver.Do(Lay(0));
  EXPECT_EQ(Open(), "0 1 2 3 4");
  driver.Do(Column(0) + Column(0));
  EXPECT_EQ(Open(), "0 1 2 3");
  driver.Do(Lay(0));  // the card's own slot does as well
  EXPECT_EQ(Open(), "0 1 2 3 4 8");
  EXPECT_EQ(Table(), "- - - 1S 8H - - - - - - - - - -");
}

TEST_F(Treyshift, FullColumnsPayAtOnce) {
  const struct {
    std::vector<std::string> cards;
    const char* heard;
    int pays, trips, runs;
  } columns[] = {
      {{"3S", "3H", "3D"}, "Click x6, TwentyOne", 6000, 1, 0},
      {{"4S", "5H", "6D"}, "Click x6, TwentyOne", 300, 0, 1},
      {{"13S", "12H", "11D"}, "Click x6, TwentyOne", 300, 0, 1},
      {{"12S", "13S", "1D"}, "Click x6, TwentyOne", 300, 0, 1},
      {{"11C", "12C", "13C"}, "Click x6, 250, HighScore", 5300, 0, 1},
      {{"1D", "13D", "12D"}, "Click x6, 250, HighScore", 5300, 0, 1},
      {{"13S", "1S", "2S"}, "Click x6", 0, 0, 0},
      {{"5C", "7C", "6C"}, "Click x6", 0, 0, 0},
  };
  driver.Do(kOpenTreyshift);
  for (const auto& column : columns) {
    SCOPED_TRACE(Joined(column.cards));
    driver.Do(InOrder(column.cards) + kPlayTreyshift);
    EXPECT_EQ(Heard(Lay(2, 3)), column.heard);
    EXPECT_EQ(Score(), column.pays);
    EXPECT_EQ(Text("lblCurrentScore.Caption"), FormatNumber(column.pays));
    EXPECT_EQ(Game().TripCount, column.trips);
    EXPECT_EQ(Game().RunCount, column.runs);
    EXPECT_EQ(Table(), column.pays ? "- - - - - - - - - - - - - - -"
                                   : "- - - - - - - - - " + Joined(column.cards, " ") + " - - -");
    EXPECT_EQ(Open(), column.pays ? "0 1 2 3" : "0 1 2 3 6 10");
    EXPECT_FALSE(Is("lblFlush.Visible"));
    driver.Do(kPlayTreyshift + "answer \"Yes\"");
  }
  // The figures of the last trip and run stay.
  driver.Do(kPlayTreyshift);
  EXPECT_EQ(Text("lblScoreTrips.Caption") + Text("lblScoreRuns.Caption"), "11");
}

TEST_F(Treyshift, TheWordFlushStandsWhereTheColumnWas) {
  StartTreyshift(driver, {"4S", "5S", "6S"});
  const std::string trace = driver.Trace(Lay(1, 3));
  const size_t gone = trace.find("* set frmTreyshift.PlayCard(9).Visible false"),
               word = trace.find("* set frmTreyshift.lblFlush.Visible true"),
               wait = trace.find("* sleep 250"), sound = trace.find("HighScore"),
               flush = trace.find("lblCurrentScore.Caption \"5,000\""),
               run = trace.find("lblCurrentScore.Caption \"5,300\"");
  EXPECT_TRUE(gone < word && word < wait && wait < sound && sound < flush && flush < run &&
              run < trace.size());
  const Label& label = Game().lblFlush;
  const Image& card = Game().PlayCard(1);
  EXPECT_EQ(label.Left, card.Left + (card.Width - label.Width) / 2);
  EXPECT_EQ(label.Top, card.Top + (card.Height - label.Height) / 2);
}

// --- The deck ------------------------------------------------------------------------------------

TEST_F(Treyshift, TheDeckGoesDownToNothing) {
  StartTreyshift(driver, WholeDeck());
  for (int card = 1; card <= 51; ++card) {
    driver.Do(Lay(0));
    const int position = kDealt + card;
    EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: " + std::to_string(52 - card));
    EXPECT_EQ(Game().CardStackPicture.Picture, position < 20   ? 1
                                               : position < 36 ? 3
                                               : position < 52 ? 2
                                                               : kEmpty)
        << position;
    for (int i = 0; i < kUpSlots; ++i) {
      const bool gone = position > 52 && i <= position - 53;
      EXPECT_EQ(Game().UpCards[i].empty(), gone) << position;
      EXPECT_EQ(Game().UpCard(i).Picture == kEmpty, gone) << position;
      EXPECT_EQ(Game().UpCard(i).BorderStyle == 0, gone) << position;
    }
  }
  EXPECT_EQ(Score(), kWholeDeckPays);
  EXPECT_EQ(Text("lblScoreTrips.Caption"), "13");
  EXPECT_EQ(Text("lblScoreRuns.Caption"), "4");
  driver.Do(Store(0));
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: 0");
  EXPECT_EQ(Game().UpCard(kInPlay).BorderStyle, 0);
}

// Behind the last card there is one more that isn't one. Once it was moved nothing moves any more.
TEST_F(Treyshift, BehindTheLastCardIsNothingAndThatCanBeMovedOnce) {
  StartTreyshift(driver, WholeDeck());
  driver.Do(PlayWholeDeck() + Store(0));
  EXPECT_EQ(Heard(kUp + Column(2)), "Click x2");
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: -1");
  EXPECT_EQ(Game().PlayCard(2).Picture, kEmpty);
  EXPECT_EQ(Game().PlayCard(2).BorderStyle, 1);
  EXPECT_EQ(Open(), "0 1 2 3 6");
  EXPECT_EQ(Heard(kUp + Column(1)), "Click");
  EXPECT_EQ(Marked(), "");
  // A selection elsewhere is dropped, and its mark stays.
  EXPECT_EQ(Heard(Temp(0) + Column(1)), "Click");
  EXPECT_EQ(Marked(), "TempCardSelection(0)");
  EXPECT_FALSE(Game().Selected);
  EXPECT_EQ(Table(), "13D - - - - - - - - - - - - - -");
  EXPECT_EQ(Heard(Column(1)), "Chord");
  EXPECT_TRUE(driver.common().GameInProgress);
  driver.Do(kTakeTreyshift);
  EXPECT_EQ(Marked(), "");
}

// It counts as rank 0: two, ace, nothing is a run.
TEST_F(Treyshift, NothingIsOneBelowTheAce) {
  StartTreyshift(driver, {"2S", "1S", "9C"});
  driver.Do(Lay(0, 2));
  Game().DeckPosition = kUsedUp;
  Game().UpCards[kInPlay].clear();
  Game().ShowEmpty(Game().UpCard(kInPlay));
  EXPECT_EQ(Heard(Lay(0)), "Click x2, TwentyOne");
  EXPECT_EQ(Score(), 300);
  EXPECT_EQ(Open(), "0 1 2 3");
}

// --- Rounds --------------------------------------------------------------------------------------

TEST_F(Treyshift, IsPlayedThroughToTheTable) {
  StartTreyshift(driver, WholeDeck());
  driver.Do("click frmTreyshift.mnuMusic\nadvance 20000\n" + PlayWholeDeck() + Store(1));
  // The deck is used up, and the king of diamonds is left over. A second goes by with the flushes.
  EXPECT_EQ(Heard(InOrder(StuckBoard()) + kTakeTreyshift),
            "silence, \"Deck Completion Bonus!\", \"15,000!\", Applause, 2000, \"Removing left over cards\", "
            "\"-250\", 1000, Click, 500, \"Speed Bonus!\", 2000, Snap 75 x99, \"Prepare For Round 2\", 2000, "
            "open, music");
  EXPECT_EQ(Score(), kWholeDeckPays + 15000 - 250 + 99 * 200);
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 2");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 120");
  EXPECT_EQ(Text("lblScoreTrips.Caption") + " " + Text("lblScoreRuns.Caption"), "13 4");
  EXPECT_EQ(Game().TripCount + Game().RunCount, 0);
  // The count is of the old deck until the new one is touched.
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: 0");
  driver.Do(Lay(0));
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: 51");
  EXPECT_EQ(driver.Get(kWin + "lblCurrentScore.ForeColor"), kBlue);
  EXPECT_EQ(Not(false, {"lblScoring.Visible", "lblMessage.Visible", "ScoringLabelOutline.Visible",
                        "lblFlush.Visible"}),
            "");

  // Four full columns and a full storage: the board is stuck. One tick has waited.
  driver.Do(Lay(0, 2) + Lay(1, 3) + Lay(2, 3) + Lay(3, 3) + Store(0) + Store(1) + "advance 10000\n");
  const long long before = Score();
  EXPECT_EQ(Heard(Store(2)),
            "Click x2, \"No more legal moves left!\", Slide, 2000, silence, 2000, Snap 75 x109, "
            "\"Prepare For Bonus Round\", 2000, open, music");
  EXPECT_EQ(Score() - before, 109 * 200);
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 3");

  // The bonus round runs out of time: cards on the table cost nothing.
  driver.Do(Lay(0, 2));
  const long long last = Score();
  EXPECT_EQ(Heard("advance 120000\n" + kName),
            "\"Times Up!\", Slide, 250 x10, silence, HighScore, \"Game Over\", 1000");
  EXPECT_EQ(Score(), last);
  EXPECT_TRUE(folder.Read("TreyshiftHiScores120.Txt").starts_with("Ann, " + std::to_string(last) + "\r\n"));
  EXPECT_EQ(Text("lblHighScore.Caption"), "High Score: " + FormatNumber(last));
  EXPECT_EQ(Panel(2), "Game Over");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Starts a new game");
  EXPECT_EQ(Text("cmdPlay.Caption") + Text("mnuPlay.Caption"), "&Play&Play");
  EXPECT_EQ(Not(true, {"frmSplash.Visible", "Timer4.Enabled", "cmdPlay.Enabled", "cmdQuit.Enabled",
                       "mnuCustom.Enabled", "mnuTime.Enabled"}),
            "");
  EXPECT_EQ(Not(false, {"lblMessage.Visible", "lblScoring.Visible", "ScoringLabelOutline.Visible",
                        "lblHighScore.Visible", "lblCurrentScore.Visible", "FieldRect.Visible",
                        "UpCard(2).Visible", "CardStackPicture.Visible", "PlayCard(0).Visible",
                        "cmdPause.Enabled", "cmdTakeScore.Enabled", "mnuPause.Enabled", "Timer1.Enabled"}),
            "");
  EXPECT_EQ(driver.common().DialSeconds, 0);
}

TEST_F(Treyshift, AScoreOfExactlyTheBonusScoreEarnsTheBonusRound) {
  driver.Do(kOpenTreyshift);
  const struct {
    int round, score;
    bool plays;
  } cases[] = {{1, 0, true}, {2, 99999, false}, {2, 100000, true}, {3, 200000, false}};
  for (const auto& each : cases) {
    driver.Do(kPlayTreyshift);
    driver.common().TimeBonus = 0;
    Game().CurrentRound = each.round;
    driver.common().CurrentScore = each.score;
    driver.Do(kTakeTreyshift + (each.plays ? "" : kName));
    EXPECT_EQ(driver.common().GameInProgress, each.plays) << each.round << " " << each.score;
    if (each.plays) driver.Do(kPlayTreyshift + "answer \"Yes\"");
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
  Game().DeckPosition = kUsedUp;
  Game().ShowEmpty(Game().UpCard(kInPlay));
  const std::string trace = driver.Trace("advance 120000");
  EXPECT_EQ(TreyshiftStory(trace),
            "\"Times Up!\", Slide, 250 x10, \"Deck Completion Bonus!\", \"15,000!\", Applause, 2000, "
            "\"Removing left over cards\", \"-250\", 1000, Click, 500, Click, 500, Click, 500, Click, 500, "
            "Click, 500, Click, 500, Click, 500, Click, 500, Click, 500, Click, 500, Click, 500, Click, 500, "
            "Click, 500, \"Speed Bonus!\", \"Prepare For Round 2\", 2000");
  EXPECT_EQ(Score(), 15000 - 13 * 250);
  // From the last slot to the first, the storage behind the columns.
  std::vector<std::string> marks;
  for (const std::string& mark : LinesOf(trace, "* set frmTreyshift."))
    if (Contains(mark, "CardSelection") && mark.ends_with("Visible true"))
      marks.push_back(mark.substr(0, mark.find('.')));
  EXPECT_EQ(marks.size(), 13u);
  EXPECT_EQ(marks.front() + " " + marks[11] + " " + marks.back(),
            "PlayCardSelection(11) PlayCardSelection(0) TempCardSelection(2)");
  EXPECT_EQ(Text("lblFlush.Caption"), "Flush!");
  EXPECT_EQ(Text("lblFlush.FontSize") + Text("lblFlush.BackStyle"), "81");

  const struct {
    int deck, penalty, score;
    const char* told;
  } cases[] = {{15000, 0, 15000, "\"-0\""}, {0, 250, -250, "\"-250\""}};
  for (const auto& each : cases) {
    driver.Do(kPlayTreyshift + "answer \"Yes\"\n" + InOrder(StuckBoard()) + kPlayTreyshift + Lay(0));
    Game().ShowEmpty(Game().UpCard(kInPlay));
    Game().DeckValue = each.deck;
    Game().PenaltyValue = each.penalty;
    EXPECT_TRUE(
        Contains(Heard("advance 120000"), each.told + std::string(", 1000, Click, 500, \"Speed Bonus!\"")));
    EXPECT_EQ(Score(), each.score);
    EXPECT_EQ(Text("lblCurrentScore.Caption"), FormatNumber(each.score));
  }
}

TEST_F(Treyshift, WarnsOfTheTimeAndPaysWithoutCountingIfSoWished) {
  folder.Write("Treyshift.Ini", "[Time]\r\n90\r\n\r\n[Count Down Score]\r\nFalse\r\n\r\n");
  StartTreyshift(driver, StuckBoard());
  const std::pair<const char*, const char*> seconds[] = {
      {"44000", "Create runs and triples by moving available cards!   "},
      {"1000", "Times running out!"},
      {"23000", "Times running out!"},
      {"1000", "Better Hurry!"}};
  for (const auto& [passing, told] : seconds) {
    driver.Do(std::string("advance ") + passing);
    EXPECT_EQ(Panel(2), told);
  }
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 21");
  EXPECT_EQ(driver.common().DialSeconds, 69);
  const std::string trace = driver.Trace(kTakeTreyshift);
  EXPECT_EQ(TreyshiftStory(trace), "\"Speed Bonus!\", 2000, \"Prepare For Round 2\", 2000");
  EXPECT_EQ(Score(), 21 * 200);
  // The speed bonus is told to the left of its amount.
  const std::string untilPaid = trace.substr(0, trace.find("* sleep"));
  const int message = std::stoi(LinesOf(untilPaid, "* set frmTreyshift.lblMessage.Left ").back()),
            amount = std::stoi(LinesOf(untilPaid, "* set frmTreyshift.lblScoring.Left ").back());
  EXPECT_EQ(message + Game().lblMessage.Width + 100, amount);
}

// A round is never paid twice: what waits may end it while it is about to be paid.
TEST_F(Treyshift, ATickThatWaitsMayEndTheRoundFirst) {
  StartTreyshift(driver, StuckBoard());
  driver.Do(kFillColumns + Store(0) + Store(1) + "advance 119999\n");
  EXPECT_EQ(driver.common().ElapsedSeconds, 119);
  EXPECT_EQ(
      Heard(Store(2)),
      "Click x2, \"No more legal moves left!\", Slide, 2000, \"Times Up!\", Slide, 250 x10, \"Speed Bonus!\", "
      "\"Prepare For Round 2\", 2000");
  EXPECT_EQ(Game().CurrentRound, 2);
  EXPECT_FALSE(driver.common().TakingScore);
  EXPECT_EQ(driver.Get(kWin + "MousePointer"), 0);
  // The same behind a flush and a click on Take Score, in the last round.
  Game().CurrentRound = 3;
  driver.Do(kPlayTreyshift + "answer \"Yes\"\n" + InOrder({"4S", "5S", "6S"}) + kPlayTreyshift +
            "advance 119999\n");
  Game().CurrentRound = 3;
  EXPECT_EQ(Heard(Lay(0, 3) + kTakeTreyshift + kName),
            "Click x6, 250, HighScore, \"Times Up!\", Slide, 250 x10, \"Speed Bonus!\", \"Game Over\", 1000");
  EXPECT_FALSE(driver.common().GameInProgress);
  EXPECT_TRUE(Is("frmSplash.Visible"));
}

// After the last round the commands are dead until the selector's tick; the menu isn't.
TEST_F(Treyshift, InputIsDeadUntilTheSelectorTicks) {
  driver.Do(kOpenTreyshift + kPlayTreyshift);
  Game().CurrentRound = 3;
  driver.Do(kTakeTreyshift);
  driver.common().TakingScore = true;
  driver.Do(kPlayTreyshift + "click frmTreyshift.cmdQuit");
  EXPECT_FALSE(driver.common().GameInProgress);
  EXPECT_EQ(driver.Do("advance 250\n"), "ok\n");
  EXPECT_FALSE(driver.common().TakingScore);
  driver.common().TakingScore = true;
  driver.Do("click frmTreyshift.mnuPlay");
  EXPECT_TRUE(driver.common().GameInProgress);
  EXPECT_FALSE(driver.common().TakingScore);
  driver.common().TakingScore = true;  // while a round is scored
  EXPECT_EQ(Heard(kUp + kTakeTreyshift + "click frmTreyshift.cmdPause\nclick frmTreyshift.mnuPause"), "");
  EXPECT_EQ(Game().CurrentRound, 1);
  EXPECT_FALSE(Game().IsPaused());
  EXPECT_EQ(Heard(Column(0)), "Chord");  // the columns don't ask
}

// --- Pausing, ending, closing --------------------------------------------------------------------

TEST_F(Treyshift, APauseHidesTheCardsAndKeepsTheSelection) {
  StartTreyshift(driver, StuckBoard());
  driver.Do("click frmTreyshift.mnuMusic\n" + Lay(0) + Store(1) + Temp(1));
  EXPECT_EQ(Heard("click frmTreyshift.cmdPause"), "\"Game Paused\", silence");
  EXPECT_EQ(Open(), "4");  // what shows nothing stays, and is refused
  EXPECT_EQ(Marked(), "");
  EXPECT_EQ(Not(false, {"TempCard(0).Visible", "UpCard(2).Visible", "CardStackPicture.Visible"}), "");
  EXPECT_TRUE(Is("lblCardCount.Visible"));
  EXPECT_EQ(Heard("click frmTreyshift.PlayCard(4)\nadvance 60000"), "Chord");
  EXPECT_EQ(Heard("click frmTreyshift.mnuPause"), "\"\", open, music");
  EXPECT_EQ(Open(), "0 1 2 3 4");
  EXPECT_EQ(Marked(), "TempCardSelection(1)");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 120");
  driver.Do("advance 1000");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 119");
  // The rules, the Hall of Fame and About stop the clock as well, and leave a pause alone.
  for (const char* look : {"click frmTreyshift.mnuRules\nadvance 5000\nclick frmRules.cmdOK",
                           "click frmTreyshift.mnuView\nadvance 5000\nclick frmHighScores.cmdDone"})
    EXPECT_EQ(Heard(look), "\"Game Paused\", silence, \"\", open, music");
  EXPECT_EQ(Heard("click frmTreyshift.cmdPause\nclick frmTreyshift.mnuAbout\nclick frmAbout.cmdCoolDude"),
            "\"Game Paused\", silence");
  EXPECT_TRUE(Game().IsPaused());
}

TEST_F(Treyshift, EndGameStopsTheMusicFirstAndEntersNothing) {
  StartTreyshift(driver, StuckBoard());
  driver.Do("click frmTreyshift.mnuMusic\n" + Lay(0, 2));
  driver.common().CurrentScore = 500000;
  std::string told = driver.Trace("click frmTreyshift.mnuPlay\nadvance 5000\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(told)), "You have a game in progress, are you sure you want to quit?");
  EXPECT_EQ(TreyshiftStory(told), "silence, \"Game Paused\", silence, box, \"\", open, music");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 120");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the game in progress");
  EXPECT_TRUE(Is("UpCard(2).Visible") && Is("Timer1.Enabled"));
  told = driver.Trace(kPlayTreyshift + "answer \"Yes\"");
  EXPECT_EQ(TreyshiftStory(told), "silence, \"Game Paused\", silence, box, \"\"");
  EXPECT_TRUE(folder.Read("TreyshiftHiScores120.Txt").starts_with("Quillmark, 30000\r\n"));
  EXPECT_EQ(Text("cmdPlay.Caption") + Text("mnuPlay.Caption"), "&Play&Play");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Starts a new game");
  EXPECT_EQ(Not(true, {"frmSplash.Visible", "Timer4.Enabled", "cmdPlay.Enabled", "cmdQuit.Enabled",
                       "mnuCustom.Enabled", "mnuTime.Enabled", "mnuDeck.Enabled", "Timer2.Enabled"}),
            "");
  EXPECT_EQ(Not(false, {"lblMessage.Visible", "lblHighScore.Visible", "lblCurrentScore.Visible",
                        "TimerRectangle.Visible", "UpCard(2).Visible", "PlayCard(4).Visible",
                        "CardStackPicture.Visible", "cmdPause.Enabled", "cmdTakeScore.Enabled",
                        "mnuPause.Enabled", "Timer1.Enabled"}),
            "");
  // A place that shows nothing is still there, under the splash panel; a click on it does nothing.
  EXPECT_EQ(Heard("click frmTreyshift.PlayCard(8)"), "");
}

TEST_F(Treyshift, TheClockRunsUnderTheClosingQuestion) {
  StartTreyshift(driver, StuckBoard());
  const std::string told = driver.Do("close frmTreyshift\nadvance 130000\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(told)), "You have a game in progress. Are you sure you want to quit now?");
  EXPECT_EQ(Text("lblRound.Caption"), "Round: 2");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 115");
  driver.Do("click frmTreyshift.cmdQuit\nanswer \"Yes\"");
  EXPECT_TRUE(Contains(driver.Do("windows"), "\"name\":\"frmSelect\""));
  EXPECT_FALSE(Contains(driver.Do("windows"), "frmTreyshift"));
}

// --- What goes wrong -----------------------------------------------------------------------------

TEST_F(Treyshift, AnOverflowEndsTheGameAndNotTheProgram) {
  const struct {
    const char* settings;
    std::string clicks;
    int score;
    long long kept;
  } cases[] = {
      {"[Flush Score]\r\n2000000000\r\n\r\n", Lay(0, 3), 200000000, 200000000},
      {"[Time Bonus]\r\n2000000000\r\n\r\n", kTakeTreyshift, 70000, 70000},
      {"[Runs Score]\r\n2147483647\r\n\r\n", Lay(0, 3) + "advance 250\n", 2147480000, 2147480000},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.settings);
    TestFolder own;
    own.Write("Treyshift.Ini", each.settings);
    Driver suite(own.Path());
    StartTreyshift(suite, {"4S", "5S", "6S"});
    suite.common().CurrentScore = each.score;
    const std::string told = suite.Do(each.clicks + "answer \"OK\"\n" + kName);
    EXPECT_TRUE(Contains(
        told, R"(msgbox {"text":"Overflow","title":"Treyshift!","icon":"critical","buttons":["OK"]})"))
        << told;
    EXPECT_TRUE(
        own.Read("TreyshiftHiScores120.Txt").starts_with("Ann*, " + std::to_string(each.kept) + "\r\n"))
        << own.Read("TreyshiftHiScores120.Txt");
    EXPECT_EQ(suite.Text(kWin + "cmdPlay.Caption"), "&Play");
    EXPECT_EQ(suite.Get(kWin + "frmSplash.Visible"), true);
    for (const char* hidden :
         {"lblMessage", "lblScoring", "lblFlush", "ScoringLabelOutline", "UpCardSelection"})
      EXPECT_EQ(suite.Get(kWin + hidden + ".Visible"), false) << hidden;
    EXPECT_EQ(suite.Get(kWin + "lblCurrentScore.ForeColor"), kBlue);
    EXPECT_EQ(suite.Get(kWin + "MousePointer"), 0);
    suite.Do(kPlayTreyshift + Lay(1));
    EXPECT_EQ(suite.Text(kWin + "lblCardCount.Caption"), "Cards remaining: 51");
  }
}

TEST_F(Treyshift, AGameThatCantBeDealtEndsTheProgram) {
  driver.Do(kOpenTreyshift);
  driver.common().ImageList2.SetKey(kEmpty, "");
  const std::string told = driver.Do(kPlayTreyshift + "answer \"OK\"");
  EXPECT_TRUE(Contains(told, R"("text":"Element not found","title":"Treyshift!","icon":"critical")")) << told;
  EXPECT_TRUE(Contains(told, "* end \"Element not found\"")) << told;
}

}  // namespace
