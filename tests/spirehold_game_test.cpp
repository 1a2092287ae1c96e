// Spirehold from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/spirehold_table.h"

namespace {

const std::string kWin = "frmSpirehold.";

class Spirehold : public ::testing::Test {
 protected:
  std::string Story(const std::string& commands) {
    return StoryOf(driver.Trace(commands), kWin + "lblMessage");
  }
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  bool Is(const std::string& property) { return driver.Get(kWin + property) == true; }
  bool FaceUp(int card) {
    const std::string image = "UpCardImage(" + std::to_string(card) + ").";
    return Is(image + "Enabled") && driver.Get(kWin + image + "Picture") >= kFirstFace;
  }
  frmSpirehold& Game() { return SpireholdOf(driver); }
  // Makes the up card one that this card may be laid on.
  void LayBelow(int card) {
    Game().board.pile.back() = NumberedCode(CardValue(Game().board.table[card]) % 13 + 1, 'S');
  }
  long long Score() { return driver.common().CurrentScore; }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(Spirehold, OpensWithItsOwnNames) {
  driver.Do(kOpenSpirehold);
  std::vector<std::string> captions;
  for (const char* name : {"mnuGame", "mnuClear", "mnuClearHighRun", "mnuCustom", "lblTower1", "lblCardCount",
                           "lblCurrentRun", "lblHighRun", "lblNextCard", "lblHighScore"})
    captions.push_back(Text(std::string(name) + ".Caption"));
  for (const auto& entry : Game().timeLimitEntries) captions.push_back(entry->Caption);
  EXPECT_EQ(Joined(captions),
            "&Game|&Clear High Scores...|Clear &High Run|&User Options...|Tower 1 completed!|"
            "Cards remaining:|Current Run:|Highest Run:|Next card worth:|Current High Score: 30,000|"
            "&30 seconds|&45 seconds (default)|&60 seconds|&90 seconds ");
  EXPECT_EQ(Text("lblCards.ToolTipText"), "Displays your Current Score");
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
  EXPECT_EQ(Joined({Game().cmdPlay.Caption, Game().mnuPlay.Caption}), "&End Game|&Play");
  // The first round: ten seconds go by, and one run clears the table.
  driver.Do("advance 10000");
  EXPECT_EQ(Story(ClickCards(27, 3)), "Markq x25");
  EXPECT_EQ(Joined({Game().lblCurrentRun.Caption, Game().lblHighRun.Caption, Game().lblNextCard.Caption,
                    Game().lblCurrentScore.Caption}),
            "Current Run: 25|Highest Run: 25|Next card worth: 2600 points|32,500");
  EXPECT_EQ(Story(ClickCard(2) + ClickCard(1)), "Markq, HighScore, Markq, HighScore");
  EXPECT_EQ(Joined({Game().lblTower3.Caption, Game().lblTower2.Caption}),
            "Tower 3 Completed!|Tower 2 Completed!");
  EXPECT_EQ(Story(ClickCard(0)),
            "Markq, HighScore, \"Speed Bonus!\", 2000, Snap 75 x35, \"Tower Bonus!!\", 1000, Snap 75 x20, "
            "\"Highest Run Bonus!\", 1000, Snap 75 x20, \"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Score(), 40600 + 3500 + 15000 + 28000);
  driver.Do("advance 999");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 45") << "the clock starts anew";
  EXPECT_FALSE(Is("lblTower1.Visible"));

  // The second is given up at once, the bonus round runs out of time.
  EXPECT_EQ(Story(kTake),
            "\"Sorry, you must complete at least\\r\\none tower to receive the time bonus!\", Slide, 3000, "
            "\"Prepare for Bonus Round!\", Applause, 250 x11, \"\"");
  EXPECT_EQ(Text("lblCurrentRound.Caption"), "Bonus");
  EXPECT_EQ(Story("advance 45000\n" + kEnterName), "\"Times Up!\", 250 x10, HighScore, \"Game Over\", 2000");
  EXPECT_EQ(folder.Read("SpireholdHiScores45.Txt").substr(0, 12), "Ann, 87100\r\n");
}

TEST_F(Spirehold, CardsLieBetweenTheTwoThatCoverThem) {
  driver.Do(kOpenSpirehold);
  for (int card = 0; card < modSpirehold::kCovered; ++card) {
    const Image& image = Game().UpCardImage(card);
    const Image& left = Game().UpCardImage(modSpirehold::kLeftCover[card]);
    const Image& right = Game().UpCardImage(modSpirehold::kLeftCover[card] + 1);
    EXPECT_EQ(left.Top, right.Top) << card;
    EXPECT_GT(left.Top, image.Top) << card;
    EXPECT_LT(left.Top, image.Top + image.Height) << card;
    EXPECT_NEAR(left.Left + image.Width / 2, image.Left, 1) << card;
    EXPECT_NEAR(right.Left - image.Width / 2, image.Left, 1) << card;
  }
}

TEST_F(Spirehold, ACardTurnsOverWhenBothBelowItAreGone) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 18));
  for (int card = 0; card < 18; ++card) EXPECT_EQ(FaceUp(card), card >= 9) << card;
  EXPECT_TRUE(Contains(driver.Do(ClickCard(4)), "error"));
  // Between two towers nothing lies on 11 and 12 together.
  const std::pair<int, std::vector<int>> turns[] = {{9, {}},      {11, {}}, {12, {}}, {10, {3, 4}}, {14, {}},
                                                    {13, {5, 6}}, {15, {}}, {3, {}},  {4, {0}}};
  for (const auto& [card, turned] : turns) {
    std::vector<int> now;
    for (int i = 0; i < 9; ++i) now.push_back(FaceUp(i));
    LayBelow(card);
    driver.Do(ClickCard(card));
    for (int each : turned) now[each] = true;
    for (int i = 0; i < 9; ++i) EXPECT_EQ(FaceUp(i), i != card && now[i]) << card << " " << i;
  }
  LayBelow(0);
  driver.Do(ClickCard(0));
  EXPECT_TRUE(Is("lblTower1.Visible") && Game().board.TowersCompleted() == 1);
}

TEST_F(Spirehold, TheStackEndsWithTheFirstUpCardAndThenWithNothing) {
  StartSpirehold(driver, {{51, "7H"}, {50, "9C"}, {20, "8D"}, {21, "1C"}});
  EXPECT_EQ(Story(ClickCard(21)), "Chord");  // refused
  EXPECT_EQ(Story(ClickCard(20) + "click frmSpirehold.UpCardPicture"), "Markq, Chord");
  for (int turn = 1; turn <= 27; ++turn) {
    EXPECT_EQ(Story(kTurn), turn <= 24 ? "Click" : "Click, Chord");
    EXPECT_EQ(Text("lblCards.Caption"), std::to_string(std::max(0, 24 - turn)));
    EXPECT_EQ(Text("lblCurrentRun.Caption"), "Current Run: 0");
  }
  EXPECT_EQ(driver.Get(kWin + "UpCardPicture.Picture"), driver.common().ImageList2("7H"));
  std::string clicks;
  for (int card = 18; card < 28; ++card)
    if (card != 20) clicks += ClickCard(card);
  EXPECT_EQ(Story(clicks), "Chord x9");  // no card fits any more
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
  LayBelow(26);
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
  EXPECT_EQ(paid(ClickCards(27, 22) + kTurn), 6000);  // also when it isn't the last
  // One made in a game that was given up isn't paid by the next game.
  driver.Do("advance 250\n" + LayCards(Staircase()) + kPlaySpirehold + ClickCards(27, 21) + kPlaySpirehold +
            "answer \"Yes\"\n" + kPlaySpirehold);
  EXPECT_EQ(Game().board.HighestRun, 7);
  EXPECT_EQ(paid(""), 0);
}

TEST_F(Spirehold, AwardsComeAtOnceWhenNothingIsCounted) {
  folder.Write("Spirehold.Ini", "[Count Down Score]\r\nFalse\r\n\r\n[High Run Bonus]\r\n40000\r\n\r\n");
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 1));
  EXPECT_EQ(
      Story(ClickCard(0)),
      "Markq, HighScore, \"Speed Bonus!\", 2000, \"Tower Bonus!!\", 1000, \"Highest Run Bonus!\", 1000, "
      "\"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Score(), 40600 + 4500 + 15000 + 28 * 40000);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
}

// One card makes the highest run, so that the bonus is the total.
TEST_F(Spirehold, ABonusIsCountedInWholeSteps) {
  const struct {
    int bonus, paid;
    size_t steps;
    const char* left;
  } cases[] = {
      {7, 7, 0, "7"}, {11, 11, 11, "0"}, {30, 30, 15, "0"}, {1010, 1050, 21, "-40"}, {-40, -42, 21, "2"}};
  driver.Do(kOpenSpirehold);
  for (const auto& each : cases) {
    driver.Do(LayCards(Staircase()) + kPlaySpirehold + kTurn);
    Game().board.HighestRun = 0;
    LayBelow(27);
    Game().HighRunBonus = each.bonus;
    driver.Do(ClickCard(27));
    const long long before = Score();
    const std::string trace = driver.Trace(kTake);
    EXPECT_EQ(Score() - before, each.paid) << each.bonus;
    EXPECT_EQ(LinesOf(trace, "* sound \"\\\\Snap").size(), each.steps) << each.bonus;
    EXPECT_EQ(Text("lblScoring.Caption"), each.left);
    driver.Do(kPlaySpirehold + "answer \"Yes\"");
  }
}

// A run's value, 20,000 and then 40,000; a counted total, when the round ends by the third tower.
TEST_F(Spirehold, AnOverflowEndsTheGameAndNotTheProgram) {
  const struct {
    const char* settings;
    int lastCard;
    const char* kept;
  } cases[] = {{"[Card Bonus]\r\n20000\r\n\r\n", 26, "Ann*, 70000\r\n"},
               {"[High Run Bonus]\r\n32767\r\n\r\n", 0, "Ann*, 110100\r\n"}};
  for (const auto& each : cases) {
    TestFolder own;
    own.Write("Spirehold.Ini", each.settings);
    Driver suite(own.Path());
    StartSpirehold(suite, Staircase());
    suite.common().CurrentScore = 50000;
    const std::string told = suite.Do(ClickCards(27, each.lastCard) + "answer \"OK\"\n" + kEnterName);
    EXPECT_EQ(Joined(BoxesOf(told)), "Overflow");
    EXPECT_TRUE(own.Read("SpireholdHiScores45.Txt").starts_with(each.kept)) << each.kept;
    EXPECT_EQ(suite.Get(kWin + "lblTower1.Visible"), false);
    EXPECT_TRUE(Contains(suite.Do(kPlaySpirehold + kTurn), "ok\nok\n"));
  }
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
  const auto shown = [&] {
    int cards = 0;
    for (int card = 0; card < 28; ++card) cards += Game().UpCardImage(card).Visible;
    return cards;
  };
  driver.Do(ClickCards(27, 26) + "click frmSpirehold.cmdPause");
  EXPECT_EQ(shown(), 0);
  EXPECT_FALSE(Is("CardStackPicture.Visible") || Is("UpCardPicture.Visible"));
  driver.Do("click frmSpirehold.mnuHot\nclick frmSpirehold.cmdPause");
  EXPECT_EQ(shown(), 26);
  // The cards that lie face down show the new back, and stay where they are.
  EXPECT_EQ(driver.Get(kWin + "UpCardImage(16).Picture"), 11);
  EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Picture"), 10);
  EXPECT_TRUE(FaceUp(17) && FaceUp(20) && !FaceUp(16));
}

TEST_F(Spirehold, EndGameOffersTheScore) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 3));
  driver.Do("click frmSpirehold.mnuPlay\nanswer \"No\"");
  driver.Do(ClickCard(2) + "click frmSpirehold.mnuMusic");
  EXPECT_EQ(Story(kPlaySpirehold + "answer \"Yes\"\n" + kEnterName),
            "\"Game Paused\", silence, box, \"\", open, music, HighScore, silence");
  EXPECT_EQ(folder.Read("SpireholdHiScores45.Txt").substr(0, 12), "Ann, 35100\r\n");
  EXPECT_TRUE(Is("mnuClearHighRun.Enabled"));
  EXPECT_FALSE(Is("lblTower3.Visible"));
}

TEST_F(Spirehold, EachRoundStartsTheMusicOnce) {
  driver.Do(kOpenSpirehold + "click frmSpirehold.mnuMusic");
  EXPECT_EQ(Story(kPlaySpirehold), "open, music");
  driver.Do("advance 44000");
  EXPECT_EQ(Story("advance 1000"),
            "\"Times Up!\", 250 x10, silence, \"Prepare for Round Two!\", 250 x11, \"\", open, music");
  driver.Do("click frmSpirehold.mnuSounds");
  EXPECT_EQ(Story(kTurn + kTake),
            "silence, \"Sorry, you must complete at least\\r\\none tower to receive the time bonus!\", 3000, "
            "\"Game Over\", 2000");
}

TEST_F(Spirehold, TheBonusRoundIsReachedByTheExactScore) {
  driver.Do(kOpenSpirehold);
  for (const int score : {39999, 40000}) {
    driver.Do(kPlaySpirehold + kTake);
    driver.common().CurrentScore = score;
    driver.Do("advance 45000\n" + (score < 40000 ? kEnterName : ""));
    EXPECT_EQ(driver.InGame(), score == 40000);
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
}

TEST_F(Spirehold, ClearHighRun) {
  folder.Write("Spirehold.Ini", "[Hi Run]\r\n9\r\n\r\n[Card Bonus]\r\n40000\r\n\r\n[Time]\r\n31\r\n\r\n");
  driver.Do(kOpenSpirehold);
  EXPECT_EQ(Game().CardValue, 100);  // what doesn't fit was skipped
  EXPECT_EQ(driver.common().TimeLimit, 45);
  EXPECT_EQ(Joined(BoxesOf(driver.Do("click frmSpirehold.mnuClearHighRun\nanswer \"No\""))),
            "This will clear the current high run value. Are you sure?");
  EXPECT_EQ(Game().board.HighestRun, 9);
  driver.Do("click frmSpirehold.mnuClearHighRun\nanswer \"Yes\"");
  EXPECT_EQ(Text("lblHighRun.Caption"), "Highest Run: 0");
}

TEST_F(Spirehold, OnlyTheSmallestWindowCutsTheLowestRow) {
  driver.Do(kOpenSpirehold);
  EXPECT_LT(Game().UpCardImage(18).Left, 0);
  driver.Do("resize frmSpirehold 10700 7200");
  EXPECT_GE(Game().UpCardImage(18).Left, 0);
  EXPECT_EQ(Game().UpCardImage(1).Left, (10700 - 1065) / 2);
}

}  // namespace
