// Handgrid from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/handgrid_table.h"
#include "window/guide.h"

namespace {

const std::string kPause = "click frmHandgrid.cmdPause\n";

class Handgrid : public GameTest {
 protected:
  Handgrid() : GameTest("Handgrid", "ScoringLabel", "HandgridHighScores75.Txt") {}
  frmHandgrid& Game() { return HandgridOf(driver); }
  // Whether all of these are, "cmdPlay.Enabled".
  void Are(bool expected, std::initializer_list<const char*> properties) {
    for (const char* property : properties) EXPECT_EQ(Is(property), expected) << property;
  }
};

TEST_F(Handgrid, ReadsBackWhatItWroteButTheLongestLimit) {
  const std::string values =
      "|Play Sounds False|Play Music True|Count Down Score False|Deck 3|Time Bonus -7|Bonus Score 2147483647|"
      "Pair Score 1|Two Pair Score 2|Trips Score 3|Flush Score 4|Full House Score 5|Straight Score 6|Four Score 7|"
      "Straight Flush Score 8|Royal Flush Score 9|Over Writes 32767|State 2|Width 9570|Height 7200";
  for (const int limit : {30, 45, 60, 75, 90, 105}) {
    const std::string file = Settings("Time " + std::to_string(limit) + values);
    Open(file);
    EXPECT_EQ(driver.clock().TimeLimit, limit);
    driver.Do("close frmHandgrid\n" + kYes);
    EXPECT_EQ(Kept(), file);
  }
  Open(Settings("Time 120|Over Writes 32768|Pair Score 1e9|Nothing 8"));
  EXPECT_TRUE(Is("mnu75.Checked"));
  EXPECT_EQ(Game().OverWritesAllowed, 3);
  driver.Do("click frmHandgrid.mnu120\nclose frmHandgrid\n" + kYes);
  EXPECT_TRUE(Kept().starts_with("[Time]\r\n120\r\n"));
  EXPECT_TRUE(folder.Has("HandgridHighScores120.Txt"));
}

// --- Laying cards ----------------------------------------------------------------------------------

TEST_F(Handgrid, OverwritesRunOutByTheirLastDigitOnly) {
  Open(Settings("Over Writes 0"));
  driver.Do(kPlayHandgrid);
  EXPECT_EQ(Number("lblOverwrites.ForeColor"), kRed);
  EXPECT_EQ(Tell(ClickCell(3) + ClickCell(3)).substr(0, 12), "Click, Chord");
  driver.Do(kPlayHandgrid + kYes);
  Game().OverWritesAllowed = 10;
  driver.Do(kPlayHandgrid);
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 10");
  EXPECT_EQ(Number("lblOverwrites.ForeColor"), kBlue);
  driver.Do(kPlayHandgrid + kYes);
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
  Open(Settings("Over Writes 26"));
  driver.Do(kPlayHandgrid + ClickCells(0, 23));
  for (int over = 1; over <= 26; ++over) {
    driver.Do(ClickCell(over % 24));
    const int left = 51 - 24 - over;
    EXPECT_EQ(Caption("lblCards"), "Cards remaining: " + std::to_string(left));
    EXPECT_EQ(Number("CardStackPicture.Picture"), left > 25 ? 1 : left > 12 ? 3 : left >= 1 ? 2 : 13);
  }
  const std::string last = Tell(ClickCell(24));
  EXPECT_FALSE(Contains(last, "Chord")) << last;
  EXPECT_TRUE(Contains(last, "Wingame, \"")) << last;
}

// Only a settings file allows more: then a card of nothing empties a cell, and the next one isn't there.
TEST_F(Handgrid, ADeckThatRunsOutEndsTheGame) {
  Open(Settings("Over Writes 100"));
  driver.Do(kPlayHandgrid + ClickCells(0, 23));
  for (int over = 1; over <= 27; ++over) driver.Do(ClickCell(5));
  driver.Do("click frmHandgrid.mnuHot");  // the stack stays empty under another back
  EXPECT_EQ(Number("CardStackPicture.Picture"), 13);
  EXPECT_TRUE(Tell(ClickCell(5)).ends_with("Chord"));  // the last card: no other follows it
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 0");
  EXPECT_EQ(Number("HoleCard.Picture"), 13);
  EXPECT_EQ(driver.Trace(ClickCell(24)), "* sound \"\\\\Chord.wav\"\nok\n");  // no card for an empty cell
  driver.Do(ClickCell(7));
  EXPECT_EQ(Game().board.cells[7], "");
  EXPECT_EQ(Game().board.holeCount, -1);
  EXPECT_EQ(Number("PlayCards(7).Picture"), 13);
  const std::string told = driver.Do(ClickCell(8) + kOk);
  EXPECT_EQ(Joined(BoxesOf(told)), "Subscript out of range");
  EXPECT_EQ(Tell(kPlayHandgrid), "Click");
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 100");
}

// A hand that was named with the last card of the deck silences the next round's first card.
TEST_F(Handgrid, AHandNamedWithNoCardLeftIsHeardInTheNextRound) {
  Open(Settings("Over Writes 100"));
  driver.Do(kPlayHandgrid);
  for (int card = 1; card <= 51; ++card) driver.Do(ClickCell(0));
  std::string& beside = Game().board.cells[1] = Game().board.hole;
  beside.back() = beside.back() == 'S' ? 'H' : 'S';
  EXPECT_EQ(Tell(ClickCell(0)), "TwentyOne, Chord");
  driver.Do("advance 74000");
  EXPECT_EQ(Tell("advance 1000"), "\"Times Up!\", Slide, 2000, \"Prepare for round  2!\", 250 x10");
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
  EXPECT_TRUE(common().window->standing.InputIsDead());
  const std::string dead =
      ClickCell(0) + kPlayHandgrid + "click frmHandgrid.mnuPlay\n" + kPause +
      "click frmHandgrid.mnuPause\nclick frmHandgrid.cmdQuit\nclick frmHandgrid.mnuExit\n";
  EXPECT_EQ(driver.Trace(dead), "ok\nok\nok\nok\nok\nok\nok\n");
  EXPECT_EQ(Tell("click frmHandgrid.CardStackPicture"), "Chord");  // has nothing to fear
  driver.Do("advance 0");                                          // a tick has waited since the count
  EXPECT_FALSE(common().window->standing.InputIsDead());
  driver.Do(ClickCell(0) + kPause);
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 50");
  EXPECT_EQ(Caption("cmdPause"), "&Resume");
}

// The entry stays live after a game: it pauses nothing, and takes Play away until the next click.
TEST_F(Handgrid, ThereIsAPauseWithNoGame) {
  driver.Do(kOpenHandgrid + kPlayHandgrid + kPlayHandgrid + kYes);
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
      {"Time 75", "1600 X 74 =\", 2000, Snap 75 x74", 1600 * 74},
      {"Time Bonus 10", "1600 X 74 =\", 2000, Snap 75 x74", 16000 * 74},
      {"Time Bonus 0", "1600 X 74 =\", 2000, Snap 75 x74", 0},
      {"Count Down Score False", "1600 X 74 =\", 2000", 1600 * 74},
      {"Royal Flush Score -1000", "100 X 74 =\", 2000, Snap 75 x74", 100 * 74},
      {"Time Bonus -3", "1600 X 74 =\", 2000, Snap 75 x74", -4800 * 74},
  };
  for (const auto& [settings, story, paid] : cases) {
    Open(Settings(settings));
    driver.Do(FirstDeck(RichGrid()) + kPlayHandgrid + "advance 1000\n" + ClickCells(0, 23));
    const std::string told = Tell(ClickCell(24));
    EXPECT_TRUE(Contains(told, "Wingame, \"" + story + ", \"Prepare")) << told;
    EXPECT_EQ(Score(), paid) << settings;
    driver.Do(kRelease + kPlayHandgrid + kYes);
  }
  // The last second counts as well.
  Open();
  driver.Do(FirstDeck(RichGrid()) + kPlayHandgrid + "advance 74000\n" + ClickCells(0, 23));
  EXPECT_TRUE(Contains(Tell(ClickCell(24)), "Wingame, \"1600 X 1 =\", 2000, Snap 75, \"Prepare"));
}

// --- Ends ------------------------------------------------------------------------------------------

TEST_F(Handgrid, EndGameEntersNothing) {
  StartHandgrid(driver, RichGrid());
  driver.Do("click frmHandgrid.mnuMusic\n" + kFillGrid + kRelease + "advance 2000\n");
  const std::string no = driver.Trace("click frmHandgrid.mnuPlay\nadvance 9000\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(no)), "You have a game in progress, are you sure you want to quit?");
  EXPECT_EQ(StoryOf(no, win + "lblMessage"), "silence, \"Game Paused\", silence, box, \"\", open, music");
  EXPECT_EQ(Caption("lblTimeBonus"), "73");
  EXPECT_EQ(StoryOf(driver.Trace(kPlayHandgrid + kYes), win + "lblMessage"),
            "silence, \"Game Paused\", silence, box, \"\"");
  EXPECT_EQ(Best(), "Quillmark, 30000");
  EXPECT_EQ(Caption("cmdPause"), "Pau&se");
  Are(false, {"cmdPause.Enabled", "Surface.Visible", "lblHighScore.Visible", "PlayCards(0).Visible"});
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
      EXPECT_EQ(suite.Get(win + hidden + ".Visible"), false) << hidden;
    EXPECT_EQ(suite.Get(win + "ScoringLabel.FontSize"), 18);
    EXPECT_EQ(Told(suite.Trace(kRelease + FirstDeck({"2S", "9D"}) + kPlayHandgrid + ClickCells(0, 1))),
              "Click x3");
    EXPECT_EQ(suite.Text(win + "lblPointsEarned.Caption"), "Points Earned: 0");
    EXPECT_EQ(suite.Text(win + "lblOverwrites.Caption"), "Over Writes Remaining: 3");
  }
}

}  // namespace
