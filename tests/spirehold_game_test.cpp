// Spirehold from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/spirehold_table.h"

namespace {

class Spirehold : public GameTest {
 protected:
  Spirehold() : GameTest("Spirehold", "lblMessage", "SpireholdHiScores45.Txt") {}
  bool FaceUp(int card) {
    const std::string image = "UpCardImage(" + std::to_string(card) + ").";
    return Is(image + "Enabled") && driver.Get(win + image + "Picture") >= kFirstFace;
  }
  frmSpirehold& Game() { return SpireholdOf(driver); }
  // Makes the up card one that this card may be laid on.
  void LayBelow(int card) {
    Game().board.pile.back() = NumberedCode(CardValue(Game().board.table[card]) % 13 + 1, 'S');
  }
};

TEST_F(Spirehold, KeepsItsSettings) {
  Open();
  EXPECT_EQ(Caption("mnuClearHighRun") + Caption("lblTower1"), "Clear &High RunTower 1 completed!");
  driver.Do("close frmSpirehold\n" + kYes);
  EXPECT_EQ(Kept(),
            Settings("Play Music False|Time 45|Play Sounds True|Hi Run 0|Card Bonus 100|Bonus Score 40000|"
                     "Tower Bonus 5000|High Run Bonus 1000|Count Down Score True|Time Bonus 100|State 0|"
                     "Width 9570|Height 7200|Deck 1"));
}

// The label is told anew when the run changes, and no sooner.
TEST_F(Spirehold, TheNextCardsLabelWaitsForTheRun) {
  Open();
  driver.Do(kPlaySpirehold + kPlaySpirehold + kYes);
  Game().CardValue = 300;
  driver.Do(LayCards(Staircase()) + kPlaySpirehold);
  EXPECT_EQ(Caption("lblNextCard"), "Next card worth: 100 points");
  driver.Do(ClickCard(27));
  EXPECT_EQ(Score(), 300);
  EXPECT_EQ(Caption("lblNextCard"), "Next card worth: 600 points");
}

TEST_F(Spirehold, IsPlayedThroughToTheTable) {
  StartSpirehold(driver, Staircase());
  EXPECT_EQ(Joined({Game().cmdPlay.Caption, Game().mnuPlay.Caption}), "&End Game|&Play");
  // The first round: ten seconds go by, and one run clears the table.
  driver.Do("advance 10000");
  EXPECT_EQ(Tell(ClickCards(27, 3)), "Markq x25");
  EXPECT_EQ(Joined({Game().lblCurrentRun.Caption, Game().lblHighRun.Caption, Game().lblNextCard.Caption,
                    Game().lblCurrentScore.Caption}),
            "Current Run: 25|Highest Run: 25|Next card worth: 2600 points|32,500");
  EXPECT_EQ(Tell(ClickCard(2) + ClickCard(1)), "Markq, HighScore, Markq, HighScore");
  EXPECT_EQ(Joined({Game().lblTower3.Caption, Game().lblTower2.Caption}),
            "Tower 3 Completed!|Tower 2 Completed!");
  EXPECT_EQ(Tell(ClickCard(0)),
            "Markq, HighScore, \"Speed Bonus!\", 2000, Snap 75 x35, \"Tower Bonus!!\", 1000, Snap 75 x20, "
            "\"Highest Run Bonus!\", 1000, Snap 75 x20, \"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Score(), 40600 + 3500 + 15000 + 28000);
  driver.Do("advance 999");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 45") << "the clock starts anew";
  EXPECT_FALSE(Is("lblTower1.Visible"));

  // The second is given up at once, the bonus round runs out of time.
  EXPECT_EQ(Tell(kTake),
            "\"Sorry, you must complete at least\\r\\none tower to receive the time bonus!\", Slide, 3000, "
            "\"Prepare for Bonus Round!\", Applause, 250 x11, \"\"");
  EXPECT_EQ(Text("lblCurrentRound.Caption"), "Bonus");
  EXPECT_EQ(Tell("advance 45000\n" + kEnterName), "\"Times Up!\", 250 x10, HighScore, \"Game Over\", 2000");
  EXPECT_EQ(Best(), "Ann, 87100");
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
  EXPECT_EQ(Tell(ClickCard(21)), "Chord");  // refused
  EXPECT_EQ(Tell(ClickCard(20) + "click frmSpirehold.UpCardPicture"), "Markq, Chord");
  for (int turn = 1; turn <= 27; ++turn) {
    EXPECT_EQ(Tell(kTurn), turn <= 24 ? "Click" : "Click, Chord");
    EXPECT_EQ(Text("lblCards.Caption"), std::to_string(std::max(0, 24 - turn)));
    EXPECT_EQ(Text("lblCurrentRun.Caption"), "Current Run: 0");
  }
  EXPECT_EQ(driver.Get(win + "UpCardPicture.Picture"), common().ImageList2("7H"));
  std::string clicks;
  for (int card = 18; card < 28; ++card)
    if (card != 20) clicks += ClickCard(card);
  EXPECT_EQ(Tell(clicks), "Chord x9");  // no card fits any more
}

TEST_F(Spirehold, ARunsValueOutlivesTheRoundAndTheGame) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 23) + LayCards(Staircase()) + kTake);
  EXPECT_EQ(Text("lblNextCard.Caption"), "Next card worth: 100 points");
  long long before = Score();
  driver.Do(ClickCard(27));
  EXPECT_EQ(Score() - before, 600);
  driver.Do(kPlaySpirehold + kYes + LayCards(Staircase()) + kPlaySpirehold + ClickCard(27));
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
            kYes + kPlaySpirehold);
  EXPECT_EQ(Game().board.HighestRun, 7);
  EXPECT_EQ(paid(""), 0);
}

TEST_F(Spirehold, AwardsComeAtOnceWhenNothingIsCounted) {
  folder.Write("Spirehold.Ini", "[Count Down Score]\r\nFalse\r\n\r\n[High Run Bonus]\r\n40000\r\n\r\n");
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 1));
  EXPECT_EQ(
      Tell(ClickCard(0)),
      "Markq, HighScore, \"Speed Bonus!\", 2000, \"Tower Bonus!!\", 1000, \"Highest Run Bonus!\", 1000, "
      "\"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Score(), 40600 + 4500 + 15000 + 28 * 40000);
  EXPECT_TRUE(common().CustomScoringInUse);
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
    driver.Do(kPlaySpirehold + kYes);
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
    const std::string told = suite.Do(ClickCards(27, each.lastCard) + kOk + kEnterName);
    EXPECT_EQ(Joined(BoxesOf(told)), "Overflow");
    EXPECT_TRUE(own.Read("SpireholdHiScores45.Txt").starts_with(each.kept)) << each.kept;
    EXPECT_EQ(suite.Get(win + "lblTower1.Visible"), false);
    EXPECT_TRUE(Contains(suite.Do(kPlaySpirehold + kTurn), "ok\nok\n"));
  }
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
  EXPECT_EQ(driver.Get(win + "UpCardImage(16).Picture"), 11);
  EXPECT_EQ(driver.Get(win + "CardStackPicture.Picture"), 10);
  EXPECT_TRUE(FaceUp(17) && FaceUp(20) && !FaceUp(16));
}

TEST_F(Spirehold, EndGameOffersTheScore) {
  StartSpirehold(driver, Staircase());
  driver.Do(ClickCards(27, 3));
  driver.Do("click frmSpirehold.mnuPlay\nanswer \"No\"");
  driver.Do(ClickCard(2) + "click frmSpirehold.mnuMusic");
  EXPECT_EQ(Tell(kPlaySpirehold + kYes + kEnterName),
            "\"Game Paused\", silence, box, \"\", open, music, HighScore, silence");
  EXPECT_EQ(Best(), "Ann, 35100");
  EXPECT_TRUE(Is("mnuClearHighRun.Enabled"));
  EXPECT_FALSE(Is("lblTower3.Visible"));
}

TEST_F(Spirehold, ClearHighRun) {
  folder.Write("Spirehold.Ini", "[Hi Run]\r\n9\r\n\r\n[Card Bonus]\r\n40000\r\n\r\n[Time]\r\n31\r\n\r\n");
  driver.Do(kOpenSpirehold);
  EXPECT_EQ(Game().CardValue, 100);  // what doesn't fit was skipped
  EXPECT_EQ(driver.clock().TimeLimit, 45);
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
