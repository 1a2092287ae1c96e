// Treyshift from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/treyshift_table.h"

namespace {

using namespace modTreyshift;

class Treyshift : public GameTest {
 protected:
  Treyshift() : GameTest("Treyshift", "lblMessage", "TreyshiftHiScores120.Txt") {}
  std::string Heard(const std::string& commands) { return TreyshiftStory(driver.Trace(commands)); }
  frmTreyshift& Game() { return TreyshiftOf(driver); }
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
  std::string Clickable() {
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
};

// Numbers have no bounds but their type; what a trip is worth doesn't come back.
TEST_F(Treyshift, KeepsItsSettings) {
  Open();
  EXPECT_EQ(driver.Get(win + "mnuTakeScore.Caption"), nullptr);
  driver.Do("click frmTreyshift.mnu75\nclose frmTreyshift\n" + kYes);
  EXPECT_EQ(Kept(),
            Settings("Time 75|Play Sounds True|Play Music False|Count Down Score True|Deck 1|Time Bonus 200|"
                     "Bonus Score 100000|Trips Score 6000|Runs Score 300|Flush Score 5000|State 0|"
                     "Width 9540|Height 7305"));
  Open(Settings(
      "Trips Score 1|Runs Score -7|Flush Score 2000000000|Bonus Score 99999999999|Time 180|Width 12000"));
  EXPECT_EQ(Game().TripValue, 6000);
  EXPECT_EQ(Game().BonusScore, 100000);
  EXPECT_EQ(driver.clock().TimeLimit, 180);
  driver.Do("close frmTreyshift\n" + kYes);
  EXPECT_TRUE(Contains(Kept(), Settings("Trips Score 6000|Runs Score -7|Flush Score 2000000000")));
}

// The place below a card that is picked up goes with it, and comes back with it.
TEST_F(Treyshift, APlaceTakesClicksBelowACardAlone) {
  StartTreyshift(driver, {"1S", "8H", "6C"});
  EXPECT_EQ(Heard(Lay(0) + Column(0)), "Click x3");
  EXPECT_EQ(Clickable() + " " + Marked(), "0 1 2 3 PlayCardSelection(0)");
  EXPECT_EQ(Heard(Column(3) + Lay(3)), "Click x3");
  EXPECT_EQ(Clickable() + " " + Marked(), "0 1 2 3 7 11 ");
  EXPECT_EQ(Heard(Column(3)), "Click");
  EXPECT_EQ(Clickable() + " " + Marked(), "0 1 2 3 7 PlayCardSelection(7)");
  EXPECT_EQ(Heard(Column(3)), "Markq");
  EXPECT_EQ(Heard(Temp(1) + "click frmTreyshift.UpCard(1)\nclick frmTreyshift.CardStackPicture"), "Chord x3");
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
    EXPECT_EQ(Clickable(), column.pays ? "0 1 2 3" : "0 1 2 3 6 10");
    driver.Do(kPlayTreyshift + kYes);
  }
  // The figures of the last trip and run stay.
  driver.Do(kPlayTreyshift);
  EXPECT_EQ(Text("lblScoreTrips.Caption") + Text("lblScoreRuns.Caption"), "11");
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
  EXPECT_EQ(Heard("advance 120000\n" + kEnterName),
            "\"Times Up!\", Slide, 250 x10, silence, HighScore, \"Game Over\", 1000");
  EXPECT_EQ(Score(), last);
  EXPECT_EQ(Best(), "Ann, " + std::to_string(last));
}

TEST_F(Treyshift, SecondsArePaidThoughNothingWasPlayed) {
  driver.Do(kOpenTreyshift + kPlayTreyshift + "advance 20000");
  EXPECT_EQ(Heard(kTakeTreyshift), "\"Speed Bonus!\", 2000, Snap 75 x100, \"Prepare For Round 2\", 2000");
  EXPECT_EQ(Score(), 100 * 200);
}

// A full table costs nothing while the deck isn't used up; a penalty of nothing is walked through as well.
TEST_F(Treyshift, LeftOverCardsCostOnlyWhenTheDeckIsUsedUp) {
  StartTreyshift(driver, StuckBoard());
  driver.Do(kFillColumns + Store(0));
  common().TimeBonus = 0;
  driver.Do(kTakeTreyshift);
  EXPECT_EQ(Score(), 0);
  const struct {
    int deck, penalty, score;
    const char* told;
  } cases[] = {{15000, 0, 15000, "\"-0\""}, {0, 250, -250, "\"-250\""}};
  for (const auto& each : cases) {
    driver.Do(kPlayTreyshift + kYes + InOrder(StuckBoard()) + kPlayTreyshift + Lay(0));
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
  driver.Do(kPlayTreyshift + kYes + InOrder({"4S", "5S", "6S"}) + kPlayTreyshift + "advance 119999\n");
  Game().CurrentRound = 3;
  EXPECT_EQ(Heard(Lay(0, 3) + kTakeTreyshift + kEnterName),
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
  EXPECT_EQ(Clickable(), "4");  // what shows nothing stays, and is refused
  EXPECT_EQ(Marked(), "");
  EXPECT_FALSE(Game().TempCard(0).Visible || Game().UpCard(2).Visible);
  EXPECT_EQ(Heard("click frmTreyshift.PlayCard(4)\nadvance 60000"), "Chord");
  EXPECT_EQ(Heard("click frmTreyshift.mnuPause"), "\"\", open, music");
  EXPECT_EQ(Clickable(), "0 1 2 3 4");
  EXPECT_EQ(Marked(), "TempCardSelection(1)");
}

// One that was too high is kept with its sign: each card that is left over then pays.
TEST_F(Treyshift, APenaltyThatWasTooHighPays) {
  Open("");
  driver.Do(
      "click frmTreyshift.mnuCustom\ntype frmTreyshiftCustom.txtPenaltyValue \"-20001\"\n"
      "click frmTreyshiftCustom.cmdOK\n" +
      kOk + "click frmTreyshiftCustom.cmdCancel\n" + kPlayTreyshift + Lay(1));
  Game().board.UpCards[kInPlay].clear();
  common().TimeBonus = 0;
  EXPECT_TRUE(Contains(Heard(kTakeTreyshift), "\"Removing left over cards\", \"--20000\", 1000, Click, 500"));
  EXPECT_EQ(Score(), 15000 + 20000);
}

TEST_F(Treyshift, EndGameStopsTheMusicFirstAndEntersNothing) {
  StartTreyshift(driver, StuckBoard());
  driver.Do("click frmTreyshift.mnuMusic\n" + Lay(0, 2));
  common().CurrentScore = 500000;
  EXPECT_EQ(Heard("click frmTreyshift.mnuPlay\nadvance 5000\nanswer \"No\""),
            "silence, \"Game Paused\", silence, box, \"\", open, music");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 120");
  EXPECT_EQ(Heard(kPlayTreyshift + kYes), "silence, \"Game Paused\", silence, box, \"\"");
  EXPECT_EQ(Best(), "Quillmark, 30000");
  EXPECT_FALSE(Game().lblHighScore.Visible || Game().TimerRectangle.Visible || Game().cmdTakeScore.Enabled);
  // A place that shows nothing is still there, under the splash panel; a click on it does nothing.
  EXPECT_EQ(Heard("click frmTreyshift.PlayCard(8)"), "");
}

// By a flush, whose word goes with it.
TEST_F(Treyshift, AnOverflowEndsTheGameAndNotTheProgram) {
  folder.Write("Treyshift.Ini", "[Flush Score]\r\n2000000000\r\n\r\n");
  StartTreyshift(driver, {"4S", "5S", "6S"});
  common().CurrentScore = 200000000;
  EXPECT_EQ(Joined(BoxesOf(driver.Do(Lay(0, 3) + kOk + kEnterName))), "Overflow");
  EXPECT_EQ(Best(), "Ann*, 200000000");
  EXPECT_FALSE(Game().lblFlush.Visible || Game().UpCardSelection.Visible);
  driver.Do(kPlayTreyshift + Lay(1));
  EXPECT_EQ(Text("lblCardCount.Caption"), "Cards remaining: 51");
}

}  // namespace
