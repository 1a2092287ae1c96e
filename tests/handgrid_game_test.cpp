// Handgrid from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/handgrid_table.h"
#include "window/text.h"

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
  int Picture(const std::string& key) { return driver.common().ImageList2(key); }
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

// --- Opening, settings -----------------------------------------------------------------------------

TEST_F(Handgrid, OpensWithItsOwnNames) {
  driver.Do(kOpenHandgrid);
  const std::pair<const char*, const char*> captions[] = {{"mnuFile", "&File"},
                                                          {"mnuPlay", "&Play"},
                                                          {"mnuClear", "&Clear High Scores..."},
                                                          {"mnuCustom", "&User Options..."},
                                                          {"mnu30", "&30 seconds"},
                                                          {"mnu60", "&60 seconds  "},
                                                          {"mnu75", "&75 seconds (default)"},
                                                          {"mnu120", "&120 seconds"},
                                                          {"cmdQuit", "E&xit"},
                                                          {"lblRound", "Round: 1"},
                                                          {"lblTime", "Time:"},
                                                          {"lblHighScore", "High Score: 30,000"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(Caption(name), caption);
  EXPECT_EQ(Text("cmdQuit.ToolTipText"), "Closes Handgrid");
  EXPECT_EQ(Panel(1), "Welcome to Handgrid!  ");
  EXPECT_EQ(Lines("lblRow") + "|" + Lines("lblCol"),
            "Nothing|Nothing|Nothing|Nothing|Nothing|Nothing|Nothing|Nothing|Nothing|Nothing");
  for (const char* missing :
       {"cmdTakeScore", "mnuTakeScore", "RoundRectangle", "lblCurrentRound", "lblRow(0)"})
    EXPECT_TRUE(Contains(driver.Do("get " + kWin + missing + ".Visible"), "error")) << missing;
  // Only the best score is to be seen; the dial is drawn all the same.
  Are(true,
      {"lblHighScore.Visible", "frmSplash.Visible", "Timer2.Enabled", "Timer4.Enabled", "mnu75.Checked"});
  Are(false, {"PlayCards(0).Visible", "HoleCard.Visible", "CardStackPicture.Visible", "Surface.Visible",
              "TimerRectangle.Visible", "ScoreRectangle.Visible", "lblTimeBonus.Visible", "lblRow(1).Visible",
              "lblCards.Visible", "ScoringLabel.Visible", "ScoringLabelOutline.Visible", "mnuPause.Enabled",
              "Timer1.Enabled"});
  driver.Do(kCloseYes);
  EXPECT_EQ(folder.Read("Handgrid.Ini"),
            "[Time]\r\n75\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Play Music]\r\nFalse\r\n\r\n"
            "[Count Down Score]\r\nTrue\r\n\r\n[Deck]\r\n1\r\n\r\n[Time Bonus]\r\n1\r\n\r\n"
            "[Bonus Score]\r\n100000\r\n\r\n[Pair Score]\r\n50\r\n\r\n[Two Pair Score]\r\n70\r\n\r\n"
            "[Trips Score]\r\n80\r\n\r\n[Flush Score]\r\n100\r\n\r\n[Full House Score]\r\n200\r\n\r\n"
            "[Straight Score]\r\n90\r\n\r\n[Four Score]\r\n300\r\n\r\n[Straight Flush Score]\r\n400\r\n\r\n"
            "[Royal Flush Score]\r\n500\r\n\r\n[Over Writes]\r\n3\r\n\r\n[State]\r\n0\r\n\r\n"
            "[Width]\r\n9570\r\n\r\n[Height]\r\n7200\r\n\r\n");
}

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
    Are(true, {("mnu" + std::to_string(limit) + ".Checked").c_str()});
    driver.Do(kCloseYes);
    EXPECT_EQ(folder.Read("Handgrid.Ini"), file);
  }
  Load(
      "[Time]\r\n120\r\n\r\n[Over Writes]\r\n32768\r\n\r\n[Pair Score]\r\n1e9\r\n\r\n[Nothing]\r\n8\r\n\r\n");
  EXPECT_EQ(driver.common().TimeLimit, 75);
  EXPECT_EQ(Game().OverWritesAllowed, 3);
  Are(true, {"mnu75.Checked"});
  driver.Do("click frmHandgrid.mnu120\n" + kCloseYes);
  EXPECT_TRUE(folder.Read("Handgrid.Ini").starts_with("[Time]\r\n120\r\n"));
  EXPECT_TRUE(folder.Has("HandgridHighScores120.Txt"));
}

// --- A whole game ----------------------------------------------------------------------------------

TEST_F(Handgrid, IsPlayedThroughToTheTable) {
  driver.Do(kOpenHandgrid);
  EXPECT_EQ(Story(driver.Trace(FirstDeck(RichGrid()) + kPlayHandgrid)), "Click");
  EXPECT_EQ(Panel(1), "Make 100,000 for bonus round.  ");
  EXPECT_EQ(Panel(2), "Click on cards to get the best Poker hand!   ");
  EXPECT_EQ(Caption("cmdPlay") + Caption("mnuPlay"), "&End Game&End Game");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the game in progress");
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 51");
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 3");
  EXPECT_EQ(Caption("lblTimeBonus"), "75");
  Are(true, {"PlayCards(24).Visible", "HoleCard.Visible", "Surface.Visible", "lblPointsEarned.Visible",
             "cmdPause.Enabled", "mnuPause.Enabled", "mnuDeck.Enabled", "Timer1.Enabled"});
  Are(false,
      {"mnuCustom.Enabled", "mnuTime.Enabled", "frmSplash.Visible", "Timer4.Enabled", "lblMessage.Visible"});

  // The first round: half the grid in five seconds, all of it in twelve.
  driver.Do("advance 5000");
  EXPECT_EQ(Story(driver.Trace(ClickCells(0, 11))),
            "Click x4, TwentyOne, Click x4, TwentyOne, Click, TwentyOne");
  EXPECT_EQ(Lines("lblRow"), "Royal Flush|St. Flush|1 Pair|Nothing|Nothing");
  EXPECT_EQ(Caption("lblPointsEarned"), "Points Earned: 950");
  EXPECT_EQ(Number("lblRow(1).ForeColor"), kBlue);
  EXPECT_EQ(Number("lblRow(4).ForeColor"), kButtonText);
  EXPECT_EQ(Number("CardStackPicture.Picture"), 1);
  driver.Do("advance 7000");
  EXPECT_EQ(Story(driver.Trace(ClickCells(12, 23))),
            "TwentyOne x2, Click x2, TwentyOne x2, Click, TwentyOne x2, Click x3");
  EXPECT_EQ(Caption("lblTimeBonus"), "63");
  const std::string trace = driver.Trace(ClickCell(24));
  EXPECT_EQ(
      Story(trace),
      "TwentyOne x2, Wingame, \"1600 X 63 =\", 2000, Snap 75 x63, \"Prepare for round  2!\", 250 x10, Click");
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmHandgrid.lblMessage.Caption ")),
            "\"Round Points X Seconds Remaining\"");
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmHandgrid.lblMessage.Visible ")), "true|false");
  EXPECT_EQ(LinesOf(trace, "* set frmHandgrid.ScoringLabel.Font"),
            (std::vector<std::string>{"Name \"Arial\"", "Size 20", "Name \"MS Sans Serif\"", "Size 18"}));
  EXPECT_EQ(LinesOf(trace, "* set frmHandgrid.lblScoring.Caption ").front(), "\"100,800\"");
  EXPECT_EQ(LinesOf(trace, "* set frmHandgrid.lblScoring.Caption ").back(), "\"0\"");
  EXPECT_EQ(LinesOf(trace, "* set frmHandgrid.lblCurrentScore.ForeColor "),
            (std::vector<std::string>{std::to_string(kCyan), std::to_string(kBlue)}));
  EXPECT_EQ(Score(), 1600 * 63);
  EXPECT_EQ(Caption("lblRound"), "Round: 2");
  EXPECT_EQ(Caption("lblPointsEarned"), "Points Earned: 0");
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 51");
  EXPECT_EQ(Lines("lblRow") + Lines("lblCol").substr(0, 7), "Nothing|Nothing|Nothing|Nothing|NothingNothing");
  EXPECT_EQ(Number("ScoringLabel.ForeColor"), kRed);
  Are(true, {"PlayCards(3).Visible", "lblRow(3).Visible", "cmdPlay.Enabled", "Timer1.Enabled"});
  Are(false,
      {"ScoringLabel.Visible", "ScoringLabelOutline.Visible", "lblScoring.Visible", "lblMessage.Visible"});

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
  EXPECT_EQ(Panel(2), "Game Over");
  EXPECT_EQ(Caption("cmdPlay") + Caption("mnuPlay"), "&Play&Play");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Starts a new game");
  EXPECT_EQ(Number("MousePointer"), 0);
  Are(true, {"frmSplash.Visible", "Timer2.Enabled", "Timer4.Enabled", "mnuPause.Enabled", "mnuCustom.Enabled",
             "mnuTime.Enabled", "cmdPlay.Enabled", "cmdQuit.Enabled"});
  Are(false, {"lblHighScore.Visible", "lblCurrentScore.Visible", "Surface.Visible", "PlayCards(0).Visible",
              "ScoringLabel.Visible", "ScoringLabelOutline.Visible", "cmdPause.Enabled", "Timer1.Enabled"});

  // The next game begins under the caption of the last.
  driver.Do(kRelease + kPlayHandgrid);
  EXPECT_EQ(Caption("lblRound"), "Bonus Round");
  EXPECT_EQ(Caption("lblCurrentScore"), "0");
}

// --- Laying cards ----------------------------------------------------------------------------------

TEST_F(Handgrid, CardsAreLaidOverOthersAsOftenAsAllowed) {
  StartHandgrid(driver, {"7S", "7C", "9D", "9H", "7H", "2S", "3S"});
  EXPECT_EQ(Story(driver.Trace("click frmHandgrid.CardStackPicture")), "Chord");
  EXPECT_EQ(Story(driver.Trace(ClickCells(0, 1) + ClickCell(5))), "Click, TwentyOne, Click");
  EXPECT_EQ(Number("lblOverwrites.ForeColor"), kBlue);
  // A pair goes in the row, and makes no sound; another comes in the column.
  EXPECT_EQ(Story(driver.Trace(ClickCell(0))), "TwentyOne");
  EXPECT_EQ(Lines("lblRow") + "|" + Caption("lblCol(1)"), "Nothing|Nothing|Nothing|Nothing|Nothing|1 Pair");
  EXPECT_EQ(Number("lblRow(1).ForeColor"), kButtonText);
  EXPECT_EQ(Caption("lblPointsEarned"), "Points Earned: 50");
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 2");
  EXPECT_EQ(Number("PlayCards(0).Picture"), Picture("9H"));
  EXPECT_EQ(Story(driver.Trace(ClickCell(5) + ClickCell(5))), "Click x2");
  EXPECT_EQ(Caption("lblPointsEarned"), "Points Earned: 0");
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 0");
  EXPECT_EQ(Number("lblOverwrites.ForeColor"), kRed);
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 45");
  const std::string before = driver.Do("dump frmHandgrid");
  EXPECT_EQ(driver.Trace(ClickCell(5)), "* sound \"\\\\Chord.wav\"\nok\n");
  EXPECT_EQ(driver.Do("dump frmHandgrid"), before);
  EXPECT_EQ(Story(driver.Trace(ClickCell(24))), "Click");
  // The next round allows as many again.
  driver.Do("advance 75000\n" + kRelease + ClickCell(0));
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 3");
  EXPECT_EQ(Story(driver.Trace("click frmHandgrid.mnuSounds\n" + ClickCell(1) + ClickCell(1))), "");
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
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 1");
  EXPECT_EQ(Number("lblOverwrites.ForeColor"), kRed);
  const std::string last = Story(driver.Trace(ClickCell(24)));
  EXPECT_FALSE(Contains(last, "Chord")) << last;
  EXPECT_TRUE(Contains(last, "Wingame, \"")) << last;
}

// Only a settings file allows more: then a card of nothing empties a cell, and the next one isn't there.
TEST_F(Handgrid, ADeckThatRunsOutEndsTheGame) {
  Load("[Over Writes]\r\n100\r\n\r\n");
  driver.Do(kPlayHandgrid + ClickCells(0, 23));
  for (int over = 1; over <= 27; ++over) driver.Do(ClickCell(5));
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 0");
  EXPECT_EQ(Number("CardStackPicture.Picture"), 13);
  driver.Do("click frmHandgrid.mnuHot");  // the stack stays empty under another back
  EXPECT_EQ(Number("CardStackPicture.Picture"), 13);
  EXPECT_TRUE(Story(driver.Trace(ClickCell(5))).ends_with("Chord"));  // the last card: no other follows it
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 0");
  EXPECT_EQ(Number("HoleCard.Picture"), 13);
  EXPECT_EQ(driver.Trace(ClickCell(24)), "* sound \"\\\\Chord.wav\"\nok\n");  // no card for an empty cell
  driver.Do(ClickCell(7));
  EXPECT_EQ(Game().PlayedCards[7], "");
  EXPECT_EQ(Game().HoleCount, -1);
  EXPECT_EQ(Number("PlayCards(7).Picture"), 13);
  EXPECT_EQ(Number("PlayCards(7).BorderStyle"), 1);
  EXPECT_EQ(driver.Trace(ClickCell(7)), "* sound \"\\\\Chord.wav\"\nok\n");
  driver.Do(kPause + kPause);
  EXPECT_EQ(Number("PlayCards(7).BorderStyle"), 0);
  const std::string told = driver.Do(ClickCell(8) + "answer \"OK\"");
  EXPECT_EQ(Joined(BoxesOf(told)), "Subscript out of range");
  EXPECT_TRUE(Contains(told, R"("icon":"critical")"));
  Are(true, {"frmSplash.Visible", "Timer2.Enabled", "cmdPlay.Enabled"});
  EXPECT_EQ(Story(driver.Trace(kPlayHandgrid)), "Click");
  EXPECT_EQ(Caption("lblOverwrites"), "Over Writes Remaining: 100");
}

// A hand that was named with the last card of the deck silences the next round's first card.
TEST_F(Handgrid, AHandNamedWithNoCardLeftIsHeardInTheNextRound) {
  Load("[Over Writes]\r\n100\r\n\r\n");
  driver.Do(kPlayHandgrid);
  for (int card = 1; card <= 51; ++card) driver.Do(ClickCell(0));
  Game().PlayedCards[1] = Game().HoleCards(1);
  Game().PlayedCards[1].back() = Game().PlayedCards[1].back() == 'S' ? 'H' : 'S';
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
  EXPECT_EQ(Caption("lblTimeBonus"), "59");
  EXPECT_EQ(pies("advance 1000"),
            "clear|pie 0 6 65280|clear|pie 0 6 65280|clear|pie 0 6 65280|clear|pie 0 6 65280|"
            "clear|pie 0 6 65280|clear|pie 0 12 65280");
  EXPECT_EQ(Caption("lblTime"), "Time:");
  driver.Do("advance 55000");
  EXPECT_EQ(Panel(2), "Click on cards to get the best Poker hand!   ");  // no warnings
  driver.Do("advance 3000\n");
  EXPECT_EQ(Caption("lblRound"), "Round: 2");
  EXPECT_EQ(pies("advance 600"), "clear|clear|clear");
  Are(true, {"Timer2.Enabled"});
}

TEST_F(Handgrid, InputIsDeadUntilTheSelectorTicks) {
  StartHandgrid(driver, RichGrid());
  driver.Do(kFillGrid);
  EXPECT_TRUE(driver.common().TakingScore);
  const std::string dead =
      ClickCell(0) + kPlayHandgrid + "click frmHandgrid.mnuPlay\n" + kPause +
      "click frmHandgrid.mnuPause\nclick frmHandgrid.cmdQuit\nclick frmHandgrid.mnuExit\n";
  EXPECT_EQ(driver.Trace(dead), "ok\nok\nok\nok\nok\nok\nok\n");
  EXPECT_EQ(Story(driver.Trace("click frmHandgrid.CardStackPicture")), "Chord");  // has nothing to fear
  driver.Do("advance 0");  // a tick has waited since the count
  EXPECT_FALSE(driver.common().TakingScore);
  driver.Do(ClickCell(0) + kPause);
  EXPECT_EQ(Caption("lblCards"), "Cards remaining: 50");
  EXPECT_EQ(Caption("cmdPause"), "&Resume");
}

TEST_F(Handgrid, ThePauseHidesTheCardsAndKeepsTheLabels) {
  StartHandgrid(driver, {"7S", "7C"});
  driver.Do("click frmHandgrid.mnuMusic\nadvance 3000\n" + ClickCells(0, 1));
  EXPECT_EQ(StoryOf(driver.Trace(kPause), kWin + "lblMessage"), "\"Game Paused\", silence");
  Are(false, {"PlayCards(0).Visible", "PlayCards(24).Visible", "HoleCard.Visible", "CardStackPicture.Visible",
              "cmdPlay.Enabled", "cmdQuit.Enabled", "Timer1.Enabled", "ScoringLabelOutline.Visible"});
  Are(true, {"lblMessage.Visible", "lblRow(1).Visible", "lblCards.Visible", "Surface.Visible"});
  EXPECT_EQ(Number("PlayCards(0).Picture"), Picture("EMPTY"));
  driver.Do("advance 90000\nclick frmHandgrid.mnuHot");
  EXPECT_EQ(Number("CardStackPicture.Picture"), 10);
  EXPECT_EQ(StoryOf(driver.Trace(kPause), kWin + "lblMessage"), "\"\", open, music");
  EXPECT_EQ(Number("PlayCards(0).Picture"), Picture("7S"));
  EXPECT_EQ(Number("PlayCards(5).Picture"), Picture("EMPTY"));
  EXPECT_EQ(Caption("lblTimeBonus"), "72");
  Are(true, {"PlayCards(0).Visible", "HoleCard.Visible", "Timer1.Enabled", "cmdPlay.Enabled"});
}

// The entry stays live after a game: it pauses nothing, and takes Play away until the next click.
TEST_F(Handgrid, ThereIsAPauseWithNoGame) {
  driver.Do(kOpenHandgrid + kPlayHandgrid + kPlayHandgrid + "answer \"Yes\"\n");
  driver.Do("click frmHandgrid.mnuPause");
  EXPECT_EQ(Caption("mnuPause"), "&Resume");
  Are(false, {"cmdPlay.Enabled", "lblMessage.Visible", "PlayCards(0).Visible"});
  driver.Do("click frmHandgrid.mnuPause\nadvance 5000");
  Are(true, {"cmdPlay.Enabled", "frmSplash.Visible", "mnuPause.Enabled"});
  Are(false, {"Timer1.Enabled", "PlayCards(0).Visible", "cmdPause.Enabled", "lblMessage.Visible"});
}

// --- Counting --------------------------------------------------------------------------------------

TEST_F(Handgrid, WhatIsCounted) {
  const struct {
    const char* settings;
    const char* story;
    int paid;
  } cases[] = {
      {"", "\"1600 X 74 =\", 2000, Snap 75 x74", 1600 * 74},
      {"[Time Bonus]\r\n10\r\n\r\n", "\"1600 X 74 =\", 2000, Snap 75 x74", 16000 * 74},
      {"[Time Bonus]\r\n0\r\n\r\n", "\"1600 X 74 =\", 2000, Snap 75 x74", 0},
      {"[Count Down Score]\r\nFalse\r\n\r\n", "\"1600 X 74 =\", 2000", 1600 * 74},
      {"[Time Bonus]\r\n-3\r\n\r\n", "\"1600 X 74 =\", 2000, Snap 75 x74", -4800 * 74},
      {"[Royal Flush Score]\r\n-1000\r\n\r\n", "\"100 X 74 =\", 2000, Snap 75 x74", 100 * 74},
  };
  for (const auto& each : cases) {
    Load(each.settings);
    driver.Do(FirstDeck(RichGrid()) + kPlayHandgrid + "advance 1000\n" + ClickCells(0, 23));
    const std::string trace = driver.Trace(ClickCell(24));
    EXPECT_TRUE(Contains(Story(trace), "Wingame, " + std::string(each.story) + ", \"Prepare"))
        << Story(trace);
    EXPECT_EQ(LinesOf(trace, "* set frmHandgrid.lblScoring.Caption ").front(),
              "\"" + FormatNumber(each.paid) + "\"");
    EXPECT_EQ(Score(), each.paid) << each.settings;
    driver.Do(kRelease + kPlayHandgrid + "answer \"Yes\"\n" + kCloseYes);
  }
}

TEST_F(Handgrid, TheBonusRoundIsReachedByTheExactScore) {
  for (const int score : {100000, 99999}) {
    Driver suite(folder.Path());
    suite.Do(kOpenHandgrid + kPlayHandgrid + "advance 75000\nadvance 75000\n");
    suite.common().CurrentScore = score;
    suite.Do("advance 75000\n" + (score < 100000 ? kEnterName : ""));
    EXPECT_EQ(suite.common().GameInProgress, score == 100000);
    EXPECT_EQ(suite.Text(kWin + "lblRound.Caption"), score == 100000 ? "Bonus Round" : "Round: 3");
  }
}

TEST_F(Handgrid, MusicPlaysOncePerRound) {
  driver.Do(kOpenHandgrid + "click frmHandgrid.mnuMusic");
  EXPECT_EQ(Story(driver.Trace(kPlayHandgrid)), "Click, open, music");
  driver.Do("advance 74000");
  EXPECT_EQ(Story(driver.Trace("advance 1000")),
            "\"Times Up!\", silence, Slide, 2000, \"Prepare for round  2!\", 250 x10, Click, open, music");
  driver.Do("advance 75000\nadvance 74000\nclick frmHandgrid.mnuSounds");
  EXPECT_EQ(Story(driver.Trace("advance 1000")), "\"Times Up!\", silence, 2000, \"Game Over\", 2000");
}

// --- Ends ------------------------------------------------------------------------------------------

TEST_F(Handgrid, EndGameEntersNothing) {
  StartHandgrid(driver, RichGrid());
  driver.Do("click frmHandgrid.mnuMusic\n" + kFillGrid + kRelease + "advance 2000\n");
  const std::string no = driver.Trace("click frmHandgrid.mnuPlay\nadvance 9000\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(no)), "You have a game in progress, are you sure you want to quit?");
  EXPECT_EQ(StoryOf(no, kWin + "lblMessage"), "silence, \"Game Paused\", silence, box, \"\", open, music");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the game in progress");
  EXPECT_EQ(Caption("lblTimeBonus"), "73");
  Are(true, {"Timer1.Enabled", "PlayCards(2).Visible"});
  EXPECT_EQ(StoryOf(driver.Trace(kPlayHandgrid + "answer \"Yes\""), kWin + "lblMessage"),
            "silence, \"Game Paused\", silence, box, \"\"");
  EXPECT_TRUE(folder.Read("HandgridHighScores75.Txt").starts_with("Quillmark, 30000\r\n"));
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Starts a new game");
  EXPECT_EQ(Caption("cmdPlay") + Caption("mnuPlay") + Caption("cmdPause"), "&Play&PlayPau&se");
  EXPECT_EQ(Panel(2), "Click on cards to get the best Poker hand!   ");
  Are(true, {"frmSplash.Visible", "Timer4.Enabled", "mnuTime.Enabled", "mnuDeck.Enabled", "mnuCustom.Enabled",
             "mnuPause.Enabled", "Timer2.Enabled"});
  Are(false, {"Timer1.Enabled", "cmdPause.Enabled", "Surface.Visible", "TimerRectangle.Visible",
              "lblHighScore.Visible", "PlayCards(0).Visible", "lblRow(1).Visible"});
}

TEST_F(Handgrid, TheClockRunsOutUnderTheClosingQuestion) {
  StartHandgrid(driver, {});
  EXPECT_EQ(Joined(BoxesOf(driver.Do("advance 70000\nclose frmHandgrid\nadvance 6000\nanswer \"No\""))),
            "You have a game in progress. Are you sure you want to quit now?");
  EXPECT_EQ(Caption("lblRound"), "Round: 2");
  EXPECT_TRUE(driver.common().GameInProgress);
  // The game may end so: the question still stands, behind the table.
  driver.Do("advance 75000\nadvance 70000");
  driver.common().CurrentScore = 50000;
  const std::string told = driver.Do("close frmHandgrid\nadvance 6000\nanswer \"No\"\n" + kEnterName +
                                     "advance 1000\nanswer \"No\"");
  EXPECT_TRUE(Contains(told, "error \"no message box stands\"")) << told;
  EXPECT_EQ(Caption("cmdPlay"), "&Play");
  Are(true, {"Timer2.Enabled", "Visible"});  // the dial was full while the name was entered
  driver.Do(kPlayHandgrid);
  EXPECT_TRUE(driver.common().GameInProgress);
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
    EXPECT_EQ(suite.Text(kWin + "cmdPlay.Caption"), "&Play");
    for (const char* shown : {"frmSplash.Visible", "Timer2.Enabled"})
      EXPECT_EQ(suite.Get(kWin + shown), true);
    for (const char* hidden :
         {"lblMessage", "lblScoring", "ScoringLabel", "ScoringLabelOutline", "PlayCards(0)"})
      EXPECT_EQ(suite.Get(kWin + hidden + ".Visible"), false) << hidden;
    EXPECT_EQ(suite.Get(kWin + "lblCurrentScore.ForeColor"), kBlue);
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
  EXPECT_EQ(driver.Do(FirstDeck({"7S"}) + kPlayHandgrid + "answer \"OK\"\n"),
            "ok 52\n* msgbox {\"text\":\"Element not found\",\"title\":\"Handgrid!\",\"icon\":\"critical\","
            "\"buttons\":[\"OK\"]}\nok\n* end \"Element not found\"\n");
}

// --- Places ----------------------------------------------------------------------------------------

TEST_F(Handgrid, GridAndLabelsMoveAsOneBlock) {
  driver.Do(kOpenHandgrid + kPlayHandgrid);
  const auto places = [&](int width, int height) {
    driver.Do("resize frmHandgrid " + std::to_string(width) + " " + std::to_string(height));
    EXPECT_EQ(Number("cmdQuit.Left"), std::max(width, 9570) - 1320);
    std::vector<std::pair<int, int>> all;
    for (const char* name :
         {"PlayCards(0)", "PlayCards(24)", "HoleCard", "CardStackPicture", "lblRow(3)", "lblCol(4)",
          "lblCards", "Surface", "TimerRectangle", "ScoreRectangle", "lblCurrentScore", "lblRound",
          "lblOverwrites", "lblHighScore", "ScoringLabelOutline", "ScoringLabel", "lblMessage"})
      all.emplace_back(Number(std::string(name) + ".Left"), Number(std::string(name) + ".Top"));
    return all;
  };
  const auto small = places(100, 100), large = places(12570, 9200);
  EXPECT_EQ(small[0], std::pair(210, 204));
  EXPECT_EQ(small[1], std::pair(4635, 4410));
  EXPECT_EQ(small[2], std::pair(8310, 4395));
  for (size_t i = 0; i < small.size(); ++i)
    EXPECT_EQ(large[i], std::pair(small[i].first + 1500, small[i].second + 1000)) << i;
  // From the dial's corner, up and left of its middle.
  const auto off = [&](const char* side, const char* own) {
    return Number(std::string("lblTimeBonus.") + side) -
           (Number(std::string("Surface.") + own) / 2 - Number(std::string("lblTimeBonus.") + own) / 1.3);
  };
  EXPECT_NEAR(off("Left", "Width"), 0, 1);
  EXPECT_NEAR(off("Top", "Height"), 0, 1);
}

}  // namespace
