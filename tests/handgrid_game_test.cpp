// Handgrid from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/handgrid_table.h"
#include "window/guide.h"

namespace {

const std::string kWin = "frmHandgrid.", kPause = "click frmHandgrid.cmdPause\n";
const std::string kCloseYes = "close frmHandgrid\nanswer \"Yes\"\n";

std::string Story(const std::string& trace) { return StoryOf(trace, kWin + "ScoringLabel"); }

class Handgrid : public ::testing::Test {
 protected:
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  std::string Caption(const std::string& control) { return Text(control + ".Caption"); }
  std::string Panel(int number) { return Text("StatusBar1.Panels(" + std::to_string(number) + ").Text"); }
  int Number(const std::string& property) { return driver.Get(kWin + property).get<int>(); }
  bool Is(const std::string& property) { return driver.Get(kWin + property) == true; }
  frmHandgrid& Game() { return HandgridOf(driver); }
  long long Score() { return driver.common().CurrentScore; }
  // "1 Pair|Nothing|..." of the five rows or columns.
  std::string Lines(const std::string& label) {
    std::vector<std::string> names;
    for (int line = 1; line <= 5; ++line) names.push_back(Caption(label + "(" + std::to_string(line) + ")"));
    return Joined(names);
  }
  // Whether all of these are, "cmdPlay.Enabled".
  void Are(bool expected, std::initializer_list<const char*> properties) {
    for (const char* property : properties) EXPECT_EQ(Is(property), expected) << property;
  }
  void Load(const std::string& settings) {
    folder.Write("Handgrid.Ini", settings);
    driver.Do(kOpenHandgrid);
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(Handgrid, ReadsBackWhatItWroteButTheLongestLimit) {
  const std::string values =
      "[Play Sounds]\r\nFalse\r\n\r\n[Play Music]\r\nTrue\r\n\r\n[Count Down Score]\r\nFalse\r\n\r\n"
      "[Deck]\r\n3\r\n\r\n[Time Bonus]\r\n-7\r\n\r\n[Bonus Score]\r\n2147483647\r\n\r\n[Pair Score]\r\n1\r\n\r\n"
      "[Two Pair Score]\r\n2\r\n\r\n[Trips Score]\r\n3\r\n\r\n[Flush Score]\r\n4\r\n\r\n"
      "[Full House Score]\r\n5\r\n\r\n[Straight Score]\r\n6\r\n\r\n[Four Score]\r\n7\r\n\r\n"
      "[Straight Flush Score]\r\n8\r\n\r\n[Royal Flush Score]\r\n9\r\n\r\n[Over Writes]\r\n32767\r\n\r\n"
      "[State]\r\n2\r\n\r\n[Width]\r\n9570\r\n\r\n[Height]\r\n7200\r\n\r\n";
  for (const int limit : {30, 45, 60, 75, 90, 105}) {
    const std::string file = "[Time]\r\n" + std::to_string(limit) + "\r\n\r\n" + values;
    Load(file);
    EXPECT_EQ(driver.common().TimeLimit, limit);
    driver.Do(kCloseYes);
    EXPECT_EQ(folder.Read("Handgrid.Ini"), file);
  }
  Load(
      "[Time]\r\n120\r\n\r\n[Over Writes]\r\n32768\r\n\r\n[Pair Score]\r\n1e9\r\n\r\n[Nothing]\r\n8\r\n\r\n");
  EXPECT_TRUE(Is("mnu75.Checked"));
  EXPECT_EQ(Game().OverWritesAllowed, 3);
  driver.Do("click frmHandgrid.mnu120\n" + kCloseYes);
  EXPECT_TRUE(folder.Read("Handgrid.Ini").starts_with("[Time]\r\n120\r\n"));
  EXPECT_TRUE(folder.Has("HandgridHighScores120.Txt"));
}

// --- A whole game ----------------------------------------------------------------------------------

TEST_F(Handgrid, IsPlayedThroughToTheTable) {
  driver.Do(kOpenHandgrid);
  EXPECT_EQ(Story(driver.Trace(FirstDeck(RichGrid()) + kPlayHandgrid)), "Click");
  // The first round: half the grid in five seconds, all of it in twelve.
  driver.Do("advance 5000");
  EXPECT_EQ(Story(driver.Trace(ClickCells(0, 11))),
            "Click x4, TwentyOne, Click x4, TwentyOne, Click, TwentyOne");
  EXPECT_EQ(Lines("lblRow"), "Royal Flush|St. Flush|1 Pair|Nothing|Nothing");
  EXPECT_EQ(Caption("lblPointsEarned"), "Points Earned: 950");
  const auto guide = GuideTo(Game());
  EXPECT_EQ(guide->ToolTip(Game().lblRow(2)) + guide->ToolTip(Game().lblRow(4)), "St. Flush 400");
  EXPECT_EQ(guide->Says(Game().lblRow(2)) + ". " + guide->Says(Game().lblCol(5)),
            "Row 2: St. Flush 400. Column 5: Nothing");
  driver.Do("advance 7000");
  EXPECT_EQ(Story(driver.Trace(ClickCells(12, 23))),
            "TwentyOne x2, Click x2, TwentyOne x2, Click, TwentyOne x2, Click x3");
  const std::string trace = driver.Trace(ClickCell(24));
  EXPECT_EQ(
      Story(trace),
      "TwentyOne x2, Wingame, \"1600 X 63 =\", 2000, Snap 75 x63, \"Prepare for round  2!\", 250 x10, Click");
  EXPECT_EQ(Score(), 1600 * 63);
  EXPECT_EQ(Caption("lblRound"), "Round: 2");
  EXPECT_EQ(Caption("lblPointsEarned") + Caption("lblCards"), "Points Earned: 0Cards remaining: 51");
  EXPECT_EQ(Lines("lblRow"), "Nothing|Nothing|Nothing|Nothing|Nothing");

  // The second runs out of time: nothing is added.
  driver.Do("advance 74000\n" + ClickCell(0) + NextDeck(driver, PoorGrid()));
  EXPECT_EQ(Story(driver.Trace("advance 999")), "");
  EXPECT_EQ(Story(driver.Trace("advance 1")),
            "\"Times Up!\", Slide, 2000, \"Prepare for round  3!\", 250 x10, Click");
  EXPECT_EQ(Score(), 100800);

  // The third grid holds no hand; the score is enough all the same.
  EXPECT_EQ(
      Story(driver.Trace(NextDeck(driver, RichGrid()) + "advance 33000\n" + kFillGrid)),
      "Click x25, Wingame, \"0 X 42 =\", 2000, Snap 75 x42, \"Bonus round!\", HighScore, 250 x10, Click");
  EXPECT_EQ(Caption("lblRound"), "Bonus Round");
  EXPECT_EQ(Score(), 100800);

  // The bonus round is the last, whatever the score.
  driver.Do("advance 74000\n" + ClickCells(0, 23));
  EXPECT_EQ(Story(driver.Trace(ClickCell(24) + kEnterName)),
            "TwentyOne x2, Wingame, \"1600 X 1 =\", 2000, Snap 75, \"Game Over\", HighScore, 2000");
  EXPECT_TRUE(folder.Read("HandgridHighScores75.Txt").starts_with("Ann, 102400\r\nQuillmark, 30000\r\n"));
  Are(false, {"lblHighScore.Visible", "Surface.Visible", "PlayCards(0).Visible", "cmdPause.Enabled"});

  // The next game begins under the caption of the last.
  driver.Do(kRelease + kPlayHandgrid);
  EXPECT_EQ(Caption("lblRound"), "Bonus Round");
  EXPECT_EQ(Caption("lblCurrentScore"), "0");
}

TEST(HandgridNames, StandOnTheLabels) {
  std::string names;
  for (int hand = 0; hand < modHandgrid::kHands; ++hand)
    names += std::string(HandName(static_cast<modHandgrid::Hand>(hand))) + "|";
  EXPECT_EQ(names,
            "Nothing|1 Pair|2 Pair|3 of a kind|Straight|Flush|Full House|4 of a kind|St. Flush|Royal Flush|");
}

// --- Laying cards ----------------------------------------------------------------------------------

TEST_F(Handgrid, CardsAreLaidOverOthersAsOftenAsAllowed) {
  StartHandgrid(driver, {"7S", "7C", "9D", "9H", "7H", "2S", "3S"});
  EXPECT_EQ(Story(driver.Trace("click frmHandgrid.CardStackPicture")), "Chord");
  EXPECT_EQ(Story(driver.Trace(ClickCells(0, 1) + ClickCell(5))), "Click, TwentyOne, Click");
  // A pair goes in the row, and makes no sound; another comes in the column.
  EXPECT_EQ(Story(driver.Trace(ClickCell(0))), "TwentyOne");
  EXPECT_EQ(Lines("lblRow") + "|" + Caption("lblCol(1)"), "Nothing|Nothing|Nothing|Nothing|Nothing|1 Pair");
  EXPECT_EQ(Caption("lblPointsEarned"), "Points Earned: 50");
  EXPECT_EQ(Number("PlayCards(0).Picture"), driver.common().ImageList2("9H"));
  EXPECT_EQ(Story(driver.Trace(ClickCell(5) + ClickCell(5))), "Click x2");
  EXPECT_EQ(Caption("lblPointsEarned"), "Points Earned: 0");
  EXPECT_EQ(Caption("lblOverwrites") + Caption("lblCards"), "Over Writes Remaining: 0Cards remaining: 45");
  const std::string before = driver.Do("dump frmHandgrid");
  EXPECT_EQ(driver.Trace(ClickCell(5)), "* sound \"\\\\Chord.wav\"\nok\n");
  EXPECT_EQ(driver.Do("dump frmHandgrid"), before);
  EXPECT_EQ(Story(driver.Trace(ClickCell(24))), "Click");
  // The next round allows as many again.
  driver.Do("advance 75000\n" + kRelease + ClickCell(0));
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 3");
}

TEST_F(Handgrid, OverwritesRunOutByTheirLastDigitOnly) {
  Load("[Over Writes]\r\n0\r\n\r\n");
  driver.Do(kPlayHandgrid);
  EXPECT_EQ(Number("lblOverwrites.ForeColor"), kRed);
  EXPECT_EQ(Story(driver.Trace(ClickCell(3) + ClickCell(3))).substr(0, 12), "Click, Chord");
  driver.Do(kPlayHandgrid + "answer \"Yes\"\n");
  Game().OverWritesAllowed = 10;
  driver.Do(kPlayHandgrid);
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 10");
  EXPECT_EQ(Number("lblOverwrites.ForeColor"), kBlue);
  driver.Do(kPlayHandgrid + "answer \"Yes\"\n");
  Game().OverWritesAllowed = 1;
  driver.Do(kPlayHandgrid);
  EXPECT_EQ(Number("lblOverwrites.ForeColor"), kBlue);
}

// Later cards lie over earlier rows, and no empty place over a card.
TEST_F(Handgrid, CardsLieOverTheRowBefore) {
  StartHandgrid(driver, {});
  driver.Do(ClickCell(20) + ClickCell(10) + ClickCell(0) + ClickCell(5));
  frmHandgrid& game = Game();
  for (const auto& [above, below] : {std::pair(0, 5), {5, 10}, {10, 20}, {15, 10}})
    EXPECT_LT(game.PlayCards(above).z, game.PlayCards(below).z) << above;
  driver.Do(ClickCell(15) + "advance 75000");
  for (int cell = 5; cell < 25; ++cell) EXPECT_LT(game.PlayCards(cell - 5).z, game.PlayCards(cell).z) << cell;
}

// With 26 overwrites the last card of the deck is the last one needed.
TEST_F(Handgrid, TheDeckLastsForAsManyOverwritesAsTheDialogAllows) {
  Load("[Over Writes]\r\n26\r\n\r\n");
  driver.Do(kPlayHandgrid + ClickCells(0, 23));
  for (int over = 1; over <= 26; ++over) {
    driver.Do(ClickCell(over % 24));
    const int left = 51 - 24 - over;
    EXPECT_EQ(Caption("lblCards"), "Cards remaining: " + std::to_string(left));
    EXPECT_EQ(Number("CardStackPicture.Picture"), left > 25 ? 1 : left > 12 ? 3 : left >= 1 ? 2 : 13);
  }
  const std::string last = Story(driver.Trace(ClickCell(24)));
  EXPECT_FALSE(Contains(last, "Chord")) << last;
  EXPECT_TRUE(Contains(last, "Wingame, \"")) << last;
}

// Only a settings file allows more: then a card of nothing empties a cell, and the next one isn't there.
TEST_F(Handgrid, ADeckThatRunsOutEndsTheGame) {
  Load("[Over Writes]\r\n100\r\n\r\n");
  driver.Do(kPlayHandgrid + ClickCells(0, 23));
  for (int over = 1; over <= 27; ++over) driver.Do(ClickCell(5));
  driver.Do("click frmHandgrid.mnuHot");  // the stack stays empty under another back
  EXPECT_EQ(Number("CardStackPicture.Picture"), 13);
  EXPECT_TRUE(Story(driver.Trace(ClickCell(5))).ends_with("Chord"));  // the last card: no other follows it
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 0");
  EXPECT_EQ(Number("HoleCard.Picture"), 13);
  EXPECT_EQ(driver.Trace(ClickCell(24)), "* sound \"\\\\Chord.wav\"\nok\n");  // no card for an empty cell
  driver.Do(ClickCell(7));
  EXPECT_EQ(Game().board.cells[7], "");
  EXPECT_EQ(Game().board.holeCount, -1);
  EXPECT_EQ(Number("PlayCards(7).Picture"), 13);
  const std::string told = driver.Do(ClickCell(8) + "answer \"OK\"");
  EXPECT_EQ(Joined(BoxesOf(told)), "Subscript out of range");
  EXPECT_EQ(Story(driver.Trace(kPlayHandgrid)), "Click");
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 100");
}

// A hand that was named with the last card of the deck silences the next round's first card.
TEST_F(Handgrid, AHandNamedWithNoCardLeftIsHeardInTheNextRound) {
  Load("[Over Writes]\r\n100\r\n\r\n");
  driver.Do(kPlayHandgrid);
  for (int card = 1; card <= 51; ++card) driver.Do(ClickCell(0));
  std::string& beside = Game().board.cells[1] = Game().board.hole;
  beside.back() = beside.back() == 'S' ? 'H' : 'S';
  EXPECT_EQ(Story(driver.Trace(ClickCell(0))), "TwentyOne, Chord");
  driver.Do("advance 74000");
  EXPECT_EQ(Story(driver.Trace("advance 1000")),
            "\"Times Up!\", Slide, 2000, \"Prepare for round  2!\", 250 x10");
}

// --- The clock and the input -----------------------------------------------------------------------

TEST_F(Handgrid, TheDialFollowsTheFigureBySecondTimer) {
  driver.Do(kOpenHandgrid + "click frmHandgrid.mnu60\n" + kPlayHandgrid);
  const auto pies = [&](const std::string& commands) {
    return Joined(LinesOf(driver.Trace(commands), "* draw frmHandgrid.Surface "));
  };
  EXPECT_EQ(pies("advance 800"), "clear|clear|clear|clear");
  // Both timers are due: the clock comes first and draws what was before it.
  EXPECT_EQ(pies("advance 200"), "clear|clear|pie 0 6 65280");
  EXPECT_EQ(pies("advance 1000"),
            "clear|pie 0 6 65280|clear|pie 0 6 65280|clear|pie 0 6 65280|clear|pie 0 6 65280|"
            "clear|pie 0 6 65280|clear|pie 0 12 65280");
  driver.Do("advance 55000");
  EXPECT_EQ(Panel(2), "Click on cards to get the best Poker hand!   ");  // no warnings
  driver.Do("advance 3000\n");
  EXPECT_EQ(pies("advance 600"), "clear|clear|clear");
  // The seconds stand up and left of the dial's middle.
  EXPECT_NEAR(Number("lblTimeBonus.Left"), Number("Surface.Width") / 2 - Number("lblTimeBonus.Width") / 1.3,
              1);
}

TEST_F(Handgrid, InputIsDeadUntilTheSelectorTicks) {
  StartHandgrid(driver, RichGrid());
  driver.Do(kFillGrid);
  EXPECT_TRUE(driver.common().window->standing.InputIsDead());
  const std::string dead =
      ClickCell(0) + kPlayHandgrid + "click frmHandgrid.mnuPlay\n" + kPause +
      "click frmHandgrid.mnuPause\nclick frmHandgrid.cmdQuit\nclick frmHandgrid.mnuExit\n";
  EXPECT_EQ(driver.Trace(dead), "ok\nok\nok\nok\nok\nok\nok\n");
  EXPECT_EQ(Story(driver.Trace("click frmHandgrid.CardStackPicture")), "Chord");  // has nothing to fear
  driver.Do("advance 0");  // a tick has waited since the count
  EXPECT_FALSE(driver.common().window->standing.InputIsDead());
  driver.Do(ClickCell(0) + kPause);
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 50");
  EXPECT_EQ(Caption("cmdPause"), "&Resume");
}

// The entry stays live after a game: it pauses nothing, and takes Play away until the next click.
TEST_F(Handgrid, ThereIsAPauseWithNoGame) {
  driver.Do(kOpenHandgrid + kPlayHandgrid + kPlayHandgrid + "answer \"Yes\"\n");
  driver.Do("click frmHandgrid.mnuPause");
  EXPECT_EQ(Caption("mnuPause"), "&Resume");
  Are(false, {"cmdPlay.Enabled", "lblMessage.Visible", "PlayCards(0).Visible"});
  driver.Do("click frmHandgrid.mnuPause");
  Are(true, {"cmdPlay.Enabled", "frmSplash.Visible"});
  Are(false, {"Timer1.Enabled", "PlayCards(0).Visible"});
}

// --- Counting --------------------------------------------------------------------------------------

TEST_F(Handgrid, WhatIsCounted) {
  const std::tuple<const char*, std::string, int> cases[] = {
      {"", "1600 X 74 =\", 2000, Snap 75 x74", 1600 * 74},
      {"[Time Bonus]\r\n10\r\n\r\n", "1600 X 74 =\", 2000, Snap 75 x74", 16000 * 74},
      {"[Time Bonus]\r\n0\r\n\r\n", "1600 X 74 =\", 2000, Snap 75 x74", 0},
      {"[Count Down Score]\r\nFalse\r\n\r\n", "1600 X 74 =\", 2000", 1600 * 74},
      {"[Royal Flush Score]\r\n-1000\r\n\r\n", "100 X 74 =\", 2000, Snap 75 x74", 100 * 74},
      {"[Time Bonus]\r\n-3\r\n\r\n", "1600 X 74 =\", 2000, Snap 75 x74", -4800 * 74},
  };
  for (const auto& [settings, story, paid] : cases) {
    Load(settings);
    driver.Do(FirstDeck(RichGrid()) + kPlayHandgrid + "advance 1000\n" + ClickCells(0, 23));
    const std::string told = Story(driver.Trace(ClickCell(24)));
    EXPECT_TRUE(Contains(told, "Wingame, \"" + story + ", \"Prepare")) << told;
    EXPECT_EQ(Score(), paid) << settings;
    driver.Do(kRelease + kPlayHandgrid + "answer \"Yes\"\n" + kCloseYes);
  }
}

TEST_F(Handgrid, TheBonusRoundIsReachedByTheExactScore) {
  for (const int score : {100000, 99999}) {
    Driver suite(folder.Path());
    suite.Do(kOpenHandgrid + kPlayHandgrid + "advance 75000\nadvance 75000\n");
    suite.common().CurrentScore = score;
    suite.Do("advance 75000\n" + (score < 100000 ? kEnterName : ""));
    EXPECT_EQ(suite.InGame(), score == 100000);
    EXPECT_EQ(suite.Text(kWin + "lblRound.Caption"), score == 100000 ? "Bonus Round" : "Round: 3");
  }
}

// --- Ends ------------------------------------------------------------------------------------------

TEST_F(Handgrid, EndGameEntersNothing) {
  StartHandgrid(driver, RichGrid());
  driver.Do("click frmHandgrid.mnuMusic\n" + kFillGrid + kRelease + "advance 2000\n");
  const std::string no = driver.Trace("click frmHandgrid.mnuPlay\nadvance 9000\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(no)), "You have a game in progress, are you sure you want to quit?");
  EXPECT_EQ(StoryOf(no, kWin + "lblMessage"), "silence, \"Game Paused\", silence, box, \"\", open, music");
  EXPECT_EQ(Caption("lblTimeBonus"), "73");
  EXPECT_EQ(StoryOf(driver.Trace(kPlayHandgrid + "answer \"Yes\""), kWin + "lblMessage"),
            "silence, \"Game Paused\", silence, box, \"\"");
  EXPECT_TRUE(folder.Read("HandgridHighScores75.Txt").starts_with("Quillmark, 30000\r\n"));
  EXPECT_EQ(Caption("cmdPause"), "Pau&se");
  Are(false, {"cmdPause.Enabled", "Surface.Visible", "lblHighScore.Visible", "PlayCards(0).Visible"});
}

TEST_F(Handgrid, TheClockRunsOutUnderTheClosingQuestion) {
  StartHandgrid(driver, {});
  driver.Do("advance 70000\nclose frmHandgrid\nadvance 6000\nanswer \"No\"");
  EXPECT_EQ(Caption("lblRound"), "Round: 2");
  EXPECT_TRUE(driver.InGame());
  // The game may end so: the question still stands, behind the table.
  driver.Do("advance 75000\nadvance 70000");
  driver.common().CurrentScore = 50000;
  const std::string told = driver.Do("close frmHandgrid\nadvance 6000\nanswer \"No\"\n" + kEnterName +
                                     "advance 1000\nanswer \"No\"");
  EXPECT_TRUE(Contains(told, "error \"no message box stands\"")) << told;
  EXPECT_EQ(Caption("cmdPlay"), "&Play");
  Are(true, {"Timer2.Enabled", "Visible"});  // the dial was full while the name was entered
  driver.Do(kPlayHandgrid);
  EXPECT_TRUE(driver.InGame());
}

// What outgrows 32 bits: the game is over, its score goes to the table, the next game is a clean one.
TEST_F(Handgrid, AnOverflowEndsTheGameAndNotTheProgram) {
  const std::string huge = "\r\n2147483647\r\n\r\n";
  const struct {
    std::string settings;
    long long score, entered;
  } cases[] = {
      {"[Straight Flush Score]" + huge, 40000, 40000},   // the points, in the middle of the judging
      {"[Time Bonus]" + huge, 40000, 40000},             // a step
      {"[Time Bonus]\r\n100000\r\n\r\n", 40000, 40000},  // the total
      {"", 2147483000, 2147483000},                      // the score, at the first step
      {"", 2147483647 - 1600 * 74, 2147483647},          // and at the last
  };
  for (const auto& [settings, score, entered] : cases) {
    TestFolder own;
    own.Write("Handgrid.Ini", settings);
    Driver suite(own.Path());
    StartHandgrid(suite, RichGrid());
    suite.common().CurrentScore = score;
    const std::string told = suite.Do(kFillGrid + "advance 3000\nanswer \"OK\"\n" + kEnterName);
    EXPECT_TRUE(
        Contains(told, R"({"text":"Overflow","title":"Handgrid!","icon":"critical","buttons":["OK"]})"));
    EXPECT_TRUE(Contains(own.Read("HandgridHighScores75.Txt"), ", " + std::to_string(entered) + "\r\n"))
        << settings;
    for (const char* hidden : {"lblMessage", "lblScoring", "ScoringLabel", "PlayCards(0)"})
      EXPECT_EQ(suite.Get(kWin + hidden + ".Visible"), false) << hidden;
    EXPECT_EQ(suite.Get(kWin + "ScoringLabel.FontSize"), 18);
    EXPECT_EQ(Story(suite.Trace(kRelease + FirstDeck({"2S", "9D"}) + kPlayHandgrid + ClickCells(0, 1))),
              "Click x3");
    EXPECT_EQ(suite.Text(kWin + "lblPointsEarned.Caption"), "Points Earned: 0");
    EXPECT_EQ(suite.Text(kWin + "lblOverwrites.Caption"), "Over Writes Remaining: 3");
  }
}

TEST_F(Handgrid, AnErrorOnTheWayIntoAGameEndsTheProgram) {
  driver.Do(kOpenHandgrid);
  driver.common().ImageList2.SetKey(20, "");
  const std::string told = driver.Do(FirstDeck({"7S"}) + kPlayHandgrid + "answer \"OK\"\n");
  EXPECT_TRUE(told.ends_with("* end \"Element not found\"\n")) << told;
}

}  // namespace
