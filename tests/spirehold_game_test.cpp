// Spirehold from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/spirehold_table.h"

namespace {

const std::string kWin = "frmSpirehold.";

std::string Story(const std::string& trace) { return StoryOf(trace, kWin + "lblMessage"); }

class Spirehold : public ::testing::Test {
 protected:
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  std::string Panel(int number) { return Text("StatusBar1.Panels(" + std::to_string(number) + ").Text"); }
  bool Is(const std::string& property) { return driver.Get(kWin + property) == true; }
  bool FaceUp(int card) {
    const std::string image = "UpCardImage(" + std::to_string(card) + ").";
    return Is(image + "Enabled") && driver.Get(kWin + image + "Picture") >= kFirstFace;
  }
  frmSpirehold& Game() { return SpireholdOf(driver); }
  long long Score() { return driver.common().CurrentScore; }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(Spirehold, OpensWithItsOwnNames) {
  driver.Do(kOpenSpirehold);
  const std::pair<const char*, const char*> captions[] = {{"mnuGame", "&Game"},
                                                          {"mnuPlay", "&Play"},
                                                          {"mnuClear", "&Clear High Scores..."},
                                                          {"mnuClearHighRun", "Clear &High Run"},
                                                          {"mnuCustom", "&User Options..."},
                                                          {"mnu30", "&30 seconds"},
                                                          {"mnu45", "&45 seconds (default)"},
                                                          {"mnu60", "&60 seconds"},
                                                          {"mnu90", "&90 seconds "},
                                                          {"lblTower1", "Tower 1 completed!"},
                                                          {"lblCardCount", "Cards remaining:"},
                                                          {"lblCurrentRun", "Current Run:"},
                                                          {"lblHighRun", "Highest Run:"},
                                                          {"lblNextCard", "Next card worth:"},
                                                          {"lblHighScore", "Current High Score: 30,000"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(Text(std::string(name) + ".Caption"), caption);
  EXPECT_EQ(Text("lblCards.ToolTipText"), "Displays your Current Score");
  EXPECT_EQ(Text("cmdTakeScore.ToolTipText"), "End current round and take score");
  EXPECT_TRUE(Is("mnu45.Checked"));
  EXPECT_FALSE(Is("UpCardImage(20).Visible"));
  driver.Do("close frmSpirehold\nanswer \"Yes\"");
  EXPECT_EQ(
      folder.Read("Spirehold.Ini"),
      "[Play Music]\r\nFalse\r\n\r\n[Time]\r\n45\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Hi Run]\r\n0\r\n\r\n"
      "[Card Bonus]\r\n100\r\n\r\n[Bonus Score]\r\n40000\r\n\r\n[Tower Bonus]\r\n5000\r\n\r\n"
      "[High Run Bonus]\r\n1000\r\n\r\n[Count Down Score]\r\nTrue\r\n\r\n[Time Bonus]\r\n100\r\n\r\n"
      "[State]\r\n0\r\n\r\n[Width]\r\n9570\r\n\r\n[Height]\r\n7200\r\n\r\n[Deck]\r\n1\r\n\r\n");
}

TEST_F(Spirehold, IsPlayedThroughToTheTable) {
  StartSpirehold(driver, Staircase());
  EXPECT_EQ(Panel(1), "Make 40,000 for Bonus Round!   ");
  EXPECT_EQ(Panel(2), "Create runs by clicking on exposed cards!   ");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the current game");
  EXPECT_EQ(Text("cmdPlay.Caption"), "&End Game");
  EXPECT_EQ(Text("mnuPlay.Caption"), "&Play");
  EXPECT_EQ(Text("lblCards.Caption"), "24");
  for (const char* closed : {"mnuCustom", "mnuTime", "mnuClearHighRun"})
    EXPECT_FALSE(Is(std::string(closed) + ".Enabled"));

  // The first round: ten seconds go by, and one run clears the table.
  driver.Do("advance 10000");
  EXPECT_EQ(Story(driver.Trace(ClickCards(27, 3))), "Markq x25");
  EXPECT_EQ(Text("lblCurrentRun.Caption"), "Current Run: 25");
  EXPECT_EQ(Text("lblHighRun.Caption"), "Highest Run: 25");
  EXPECT_EQ(Text("lblNextCard.Caption"), "Next card worth: 2600 points");
  EXPECT_EQ(Text("lblCurrentScore.Caption"), "32,500");
  EXPECT_EQ(Story(driver.Trace(ClickCard(2) + ClickCard(1))), "Markq, HighScore, Markq, HighScore");
  EXPECT_FALSE(Is("lblTower1.Visible"));
  EXPECT_EQ(Text("lblTower3.Caption"), "Tower 3 Completed!");
  EXPECT_EQ(Text("lblTower2.Caption"), "Tower 2 Completed!");
  EXPECT_EQ(Story(driver.Trace(ClickCard(0))),
            "Markq, HighScore, \"Speed Bonus!\", 2000, Snap 75 x35, \"Tower Bonus!!\", 1000, Snap 75 x20, "
            "\"Highest Run Bonus!\", 1000, Snap 75 x20, \"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Score(), 40600 + 3500 + 15000 + 28000);
  EXPECT_EQ(Text("lblCurrentRound.Caption"), "2");
  EXPECT_EQ(Text("lblCurrentRun.Caption"), "Current Run: 0");
  driver.Do("advance 999");  // the clock starts anew
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 45");
  EXPECT_FALSE(Is("lblTower1.Visible") || Is("lblScoring.Visible") || Is("lblMessage.Visible"));
  EXPECT_EQ(driver.Get(kWin + "lblMessage.ForeColor"), kBlack);

  // The second is given up at once, the bonus round runs out of time.
  EXPECT_EQ(Story(driver.Trace(kTake)),
            "\"Sorry, you must complete at least\\r\\none tower to receive the time bonus!\", Slide, 3000, "
            "\"Prepare for Bonus Round!\", Applause, 250 x11, \"\"");
  EXPECT_EQ(Text("lblCurrentRound.Caption"), "Bonus");
  EXPECT_EQ(Story(driver.Trace("advance 45000\n" + kEnterName)),
            "\"Times Up!\", 250 x10, HighScore, \"Game Over\", 2000");
  EXPECT_EQ(folder.Read("SpireholdHiScores45.Txt").substr(0, 12), "Ann, 87100\r\n");
  EXPECT_EQ(Text("lblHighScore.Caption"), "Current High Score: 87,100");
  EXPECT_EQ(Panel(2), "Game Over");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Starts a new game");
  for (const char* shown :
       {"frmSplash.Visible", "lblCurrentScore.Visible", "Timer4.Enabled", "cmdPlay.Enabled",
        "cmdExit.Enabled", "mnuCustom.Enabled", "mnuTime.Enabled", "mnuClearHighRun.Enabled"})
    EXPECT_TRUE(Is(shown)) << shown;
  for (const char* hidden :
       {"lblMessage.Visible", "lblHighScore.Visible", "lblCurrentRun.Visible", "UpCardImage(20).Visible",
        "cmdPause.Enabled", "cmdTakeScore.Enabled", "mnuTakeScore.Enabled", "Timer1.Enabled"})
    EXPECT_FALSE(Is(hidden)) << hidden;
}

TEST_F(Spirehold, ACardTurnsOverWhenBothBelowItAreGone) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 18));
  driver.Do("random\n");
  for (int card = 9; card < 18; ++card) EXPECT_TRUE(FaceUp(card)) << card;
  for (int card = 0; card < 9; ++card) EXPECT_FALSE(FaceUp(card)) << card;
  EXPECT_TRUE(Contains(driver.Do(ClickCard(4)), "error"));
  const auto take = [&](int card) {
    Game().UpCardValue = CardValue(Game().DeckCards[card]) % 13 + 1;
    driver.Do(ClickCard(card));
    EXPECT_FALSE(Is("UpCardImage(" + std::to_string(card) + ").Visible"));
  };
  take(9);
  take(11);
  take(12);
  for (int card : {3, 4, 5}) EXPECT_FALSE(FaceUp(card)) << card;
  take(10);
  EXPECT_TRUE(FaceUp(3) && FaceUp(4));
  take(14);
  take(13);
  EXPECT_TRUE(FaceUp(5) && FaceUp(6));
  take(15);
  EXPECT_FALSE(FaceUp(7));
  take(3);
  EXPECT_FALSE(FaceUp(0));
  take(4);
  EXPECT_TRUE(FaceUp(0));
  take(0);
  EXPECT_TRUE(Is("lblTower1.Visible"));
  EXPECT_EQ(Game().TowersCompleted, 1);
}

TEST_F(Spirehold, TheStackEndsWithTheFirstUpCardAndThenWithNothing) {
  StartSpirehold(driver, {{51, "7H"}, {50, "9C"}, {20, "8D"}, {21, "1C"}});
  EXPECT_EQ(Story(driver.Trace(ClickCard(21))), "Chord");  // refused
  EXPECT_EQ(Story(driver.Trace(ClickCard(20) + "click frmSpirehold.UpCardPicture")), "Markq, Chord");
  for (int turn = 1; turn <= 24; ++turn) {
    EXPECT_EQ(Story(driver.Trace(kTurn)), "Click");
    EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Picture"), turn <= 6    ? 1
                                                             : turn <= 13 ? 3
                                                             : turn <= 23 ? 2
                                                                          : 13);
    EXPECT_EQ(Text("lblCards.Caption"), std::to_string(24 - turn));
    EXPECT_EQ(Text("lblCurrentRun.Caption"), "Current Run: 0");
  }
  EXPECT_EQ(driver.Get(kWin + "UpCardPicture.Picture"), driver.common().ImageList2("7H"));
  EXPECT_EQ(Game().UpCardValue, 7);
  for (int turn = 25; turn <= 27; ++turn) {
    EXPECT_EQ(Story(driver.Trace(kTurn)), "Click, Chord");
    EXPECT_EQ(Text("lblCards.Caption"), "0");
    EXPECT_EQ(Game().UpCardValue, 0);
  }
  EXPECT_EQ(driver.Get(kWin + "UpCardPicture.Picture"), driver.common().ImageList2("7H"));
  EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Picture"), 13);
  std::string clicks;
  for (int card = 18; card < 28; ++card)
    if (card != 20) clicks += ClickCard(card);
  EXPECT_EQ(Story(driver.Trace(clicks)), "Chord x9");  // no card fits any more
  Game().StackIndex = 32767;
  EXPECT_EQ(Story(driver.Trace(kTurn)), "Click, Chord");
}

TEST_F(Spirehold, ARunsValueOutlivesTheRoundAndTheGame) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 23) + LayCards(Staircase()) + kTake);
  EXPECT_EQ(Text("lblNextCard.Caption"), "Next card worth: 100 points");
  long long before = Score();
  driver.Do(ClickCard(27));
  EXPECT_EQ(Score() - before, 600);
  driver.Do(kPlaySpirehold + "answer \"Yes\"\n" + LayCards(Staircase()) + kPlaySpirehold + ClickCard(27));
  EXPECT_EQ(Score(), 700);
  EXPECT_EQ(Text("lblNextCard.Caption"), "Next card worth: 200 points");
  driver.Do(kTurn);
  Game().UpCardValue = 1;
  driver.Do(ClickCard(26));
  EXPECT_EQ(Score(), 800);
}

TEST_F(Spirehold, OnlyALongerRunIsPaid) {
  folder.Write("Spirehold.Ini", "[Hi Run]\r\n5\r\n\r\n");
  StartSpirehold(driver, Staircase());
  EXPECT_EQ(Text("lblHighRun.Caption"), "Highest Run: 5");
  const auto paid = [&](const std::string& clicks) {
    driver.Do(clicks);
    const long long before = Score();
    driver.Do(LayCards(Staircase()) + kTake);
    return Score() - before;
  };
  EXPECT_EQ(paid(ClickCards(27, 23)), 0);
  EXPECT_EQ(paid(ClickCards(27, 22)), 6000);
  // One made in a game that was given up isn't paid by the next game.
  driver.Do(ClickCards(27, 21) + kPlaySpirehold + "answer \"Yes\"\n" + kPlaySpirehold);
  EXPECT_EQ(paid(""), 0);
}

TEST_F(Spirehold, AwardsComeAtOnceWhenNothingIsCounted) {
  folder.Write("Spirehold.Ini", "[Count Down Score]\r\nFalse\r\n\r\n[High Run Bonus]\r\n40000\r\n\r\n");
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 1));
  EXPECT_EQ(
      Story(driver.Trace(ClickCard(0))),
      "Markq, HighScore, \"Speed Bonus!\", 2000, \"Tower Bonus!!\", 1000, \"Highest Run Bonus!\", 1000, "
      "\"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Score(), 40600 + 4500 + 15000 + 28 * 40000);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
}

// One card makes the highest run, so that the bonus is the total.
TEST_F(Spirehold, ABonusIsCountedInWholeSteps) {
  const struct {
    int bonus, paid, steps;
    const char* left;
  } cases[] = {
      {0, 0, 0, "0"},      {7, 7, 0, "7"},          {10, 10, 0, "10"},     {11, 11, 11, "0"},
      {30, 30, 15, "0"},   {1010, 1050, 21, "-40"}, {1000, 1000, 20, "0"}, {32767, 34398, 21, "-1,631"},
      {-40, -42, 21, "2"}, {-5, -5, 0, "-5"}};
  driver.Do(kOpenSpirehold);
  for (const auto& each : cases) {
    driver.Do(LayCards(Staircase()) + kPlaySpirehold + kTurn);
    Game().HighestRun = 0;
    Game().UpCardValue = 13;
    Game().HighRunBonus = each.bonus;
    driver.Do(ClickCard(27));
    const long long before = Score();
    const std::string trace = driver.Trace(kTake);
    EXPECT_EQ(Score() - before, each.paid) << each.bonus;
    EXPECT_EQ(LinesOf(trace, "* sound \"\\\\Snap").size(), static_cast<size_t>(each.steps)) << each.bonus;
    EXPECT_EQ(Text("lblScoring.Caption"), each.left);
    driver.Do(kPlaySpirehold + "answer \"Yes\"");
  }
}

// What can outgrow its type: the game is over, its score goes to the table, the program goes on.
TEST_F(Spirehold, AnOverflowEndsTheGameAndNotTheProgram) {
  const auto run = [&](const std::string& settings, const std::string& clicks, int preset) {
    TestFolder own;
    own.Write("Spirehold.Ini", settings);
    Driver suite(own.Path());
    StartSpirehold(suite, Staircase());
    suite.common().CurrentScore = preset;
    const std::string told = suite.Do(clicks + "answer \"OK\"\n" + kEnterName);
    EXPECT_TRUE(Contains(
        told, R"(msgbox {"text":"Overflow","title":"Spirehold!","icon":"critical","buttons":["OK"]})"))
        << told;
    EXPECT_EQ(suite.Text(kWin + "cmdPlay.Caption"), "&Play");
    EXPECT_EQ(suite.Get(kWin + "frmSplash.Visible"), true);
    for (const char* hidden : {"lblMessage.Visible", "lblScoring.Visible", "lblTower1.Visible"})
      EXPECT_EQ(suite.Get(kWin + hidden), false) << hidden;
    EXPECT_EQ(suite.Get(kWin + "lblCurrentScore.ForeColor"), kBlue);
    EXPECT_EQ(suite.Get(kWin + "MousePointer"), 0);
    EXPECT_TRUE(Contains(suite.Do(kPlaySpirehold + kTurn), "ok\nok\n"));
    return own.Read("SpireholdHiScores45.Txt").substr(0, 20);
  };
  // A run's value: 20,000 and then 40,000.
  EXPECT_TRUE(run("[Card Bonus]\r\n20000\r\n\r\n", ClickCards(27, 26), 40000).starts_with("Ann*, 60000\r\n"));
  // A counted total, when the round ends by the third tower and by the clock.
  EXPECT_TRUE(
      run("[High Run Bonus]\r\n32767\r\n\r\n", ClickCards(27, 0), 50000).starts_with("Ann*, 110100\r\n"));
  EXPECT_TRUE(run("[High Run Bonus]\r\n32767\r\n\r\n", ClickCards(27, 26) + "advance 45000\n", 50000)
                  .starts_with("Ann*, 50300\r\n"));
  // The score itself.
  EXPECT_TRUE(run("", ClickCard(27), 2147483600).starts_with("Ann, 2147483600\r\n"));
}

TEST_F(Spirehold, AnErrorOnTheWayIntoAGameEndsTheProgram) {
  driver.Do(kOpenSpirehold);
  driver.common().ImageList2.SetKey(20, "");
  EXPECT_EQ(driver.Do(kPlaySpirehold + "answer \"OK\"\n"),
            "* msgbox {\"text\":\"Element not found\",\"title\":\"Spirehold!\",\"icon\":\"none\","
            "\"buttons\":[\"OK\"]}\nok\n* end \"Element not found\"\n");
}

TEST_F(Spirehold, PausingHidesTheCardsAndKeepsWhatIsGone) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 26) + "click frmSpirehold.cmdPause");
  for (int card = 0; card < 28; ++card) EXPECT_FALSE(Is("UpCardImage(" + std::to_string(card) + ").Visible"));
  EXPECT_FALSE(Is("CardStackPicture.Visible") || Is("UpCardPicture.Visible"));
  driver.Do("click frmSpirehold.mnuHot\nclick frmSpirehold.cmdPause");
  for (int card = 0; card < 28; ++card)
    EXPECT_EQ(Is("UpCardImage(" + std::to_string(card) + ").Visible"), card < 26) << card;
  // The cards that lie face down show the new back, and stay where they are.
  const auto covered = [&](int back) {
    for (int card = 0; card < 17; ++card) {
      EXPECT_EQ(driver.Get(kWin + "UpCardImage(" + std::to_string(card) + ").Picture"), back);
      for (int up = 1; up <= 13; ++up) {
        Game().UpCardValue = up;
        EXPECT_FALSE(Game().CheckForLegalMove(card)) << card;
      }
    }
    EXPECT_TRUE(FaceUp(17) && FaceUp(20));
  };
  covered(11);
  EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Picture"), 10);
  driver.Do("click frmSpirehold.mnuMagic");
  covered(5);
  EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Picture"), 4);
}

TEST_F(Spirehold, EndGameOffersTheScore) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 3));
  const std::string asked = driver.Do("click frmSpirehold.mnuPlay\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(asked)), "You have a game in progress, are you sure you want to quit?");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the current game");
  EXPECT_TRUE(Is("Timer1.Enabled") && Is("UpCardImage(2).Visible"));
  driver.Do(ClickCard(2) + "click frmSpirehold.mnuMusic");
  EXPECT_EQ(Story(driver.Trace(kPlaySpirehold + "answer \"Yes\"\n" + kEnterName)),
            "\"Game Paused\", silence, box, \"\", open, music, HighScore, silence");
  EXPECT_EQ(folder.Read("SpireholdHiScores45.Txt").substr(0, 12), "Ann, 35100\r\n");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Starts a new game");
  EXPECT_TRUE(Is("frmSplash.Visible") && Is("Timer4.Enabled") && Is("mnuClearHighRun.Enabled"));
  EXPECT_FALSE(Is("lblTower3.Visible"));
}

TEST_F(Spirehold, EachRoundStartsTheMusicOnce) {
  driver.Do(kOpenSpirehold + "click frmSpirehold.mnuMusic");
  EXPECT_EQ(Story(driver.Trace(kPlaySpirehold)), "open, music");
  driver.Do("advance 44000");
  EXPECT_EQ(Story(driver.Trace("advance 1000")),
            "\"Times Up!\", 250 x10, silence, \"Prepare for Round Two!\", 250 x11, \"\", open, music");
  driver.Do("click frmSpirehold.mnuSounds");
  EXPECT_EQ(Story(driver.Trace(kTurn + kTake)),
            "silence, \"Sorry, you must complete at least\\r\\none tower to receive the time bonus!\", 3000, "
            "\"Game Over\", 2000");
}

TEST_F(Spirehold, TheBonusRoundIsReachedByTheExactScore) {
  for (const int score : {40000, 39999}) {
    Driver suite(folder.Path());
    suite.Do(kOpenSpirehold + kPlaySpirehold + kTake);
    suite.common().CurrentScore = score;
    suite.Do("advance 45000\n" + (score < 40000 ? kEnterName : ""));
    EXPECT_EQ(suite.common().GameInProgress, score == 40000);
  }
}

TEST_F(Spirehold, TheClockRunsOnWhileThePlayerIsAskedAboutClosing) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 9) + kTake + "advance 40000");
  // The game ends under the question; the table stands before it then.
  const std::string told =
      driver.Do("close frmSpirehold\nadvance 6000\nanswer \"No\"\n" + kEnterName + "answer \"No\"\n");
  EXPECT_TRUE(Contains(told, "error \"no message box stands\"")) << told;
  EXPECT_EQ(Text("cmdPlay.Caption"), "&Play");
  EXPECT_EQ(Text("lblCurrentScore.Caption"), "38,000");
  EXPECT_TRUE(Contains(driver.Do(kPlaySpirehold), "ok"));
}

TEST_F(Spirehold, ClearHighRun) {
  folder.Write("Spirehold.Ini", "[Hi Run]\r\n9\r\n\r\n[Card Bonus]\r\n40000\r\n\r\n[Time]\r\n31\r\n\r\n");
  driver.Do(kOpenSpirehold);
  EXPECT_EQ(Game().CardValue, 100);  // what doesn't fit was skipped
  EXPECT_EQ(driver.common().TimeLimit, 45);
  EXPECT_EQ(Joined(BoxesOf(driver.Do("click frmSpirehold.mnuClearHighRun\nanswer \"No\""))),
            "This will clear the current high run value. Are you sure?");
  EXPECT_EQ(Game().HighestRun, 9);
  driver.Do("click frmSpirehold.mnuClearHighRun\nanswer \"Yes\"");
  EXPECT_EQ(Text("lblHighRun.Caption"), "Highest Run: 0");
}

TEST_F(Spirehold, TheBoardIsPlacedFromTheMiddle) {
  driver.Do(kOpenSpirehold);
  for (const auto& [width, height] : {std::pair(9570, 7200), {14000, 9000}, {100, 100}}) {
    driver.Do("resize frmSpirehold " + std::to_string(width) + " " + std::to_string(height));
    const int wide = std::max(width, 9570);
    const auto left = [&](int card) {
      return driver.Get(kWin + "UpCardImage(" + std::to_string(card) + ").Left").get<int>();
    };
    EXPECT_EQ(left(1), (wide - 1065) / 2);
    EXPECT_EQ(left(5), left(1) - 532);
    EXPECT_EQ(left(6), left(1) + 532);
    EXPECT_EQ(left(13), left(1));
    EXPECT_EQ(left(9), left(1) - 4 * 1065);
    EXPECT_EQ(left(18) < 0, wide < 10650);
    EXPECT_EQ(driver.Get(kWin + "cmdPlay.Left"), wide - 1320);
    EXPECT_EQ(driver.Get(kWin + "Width"), wide);
  }
}

}  // namespace
