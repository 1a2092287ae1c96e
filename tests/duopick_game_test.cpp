// Duopick from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/duopick_table.h"

namespace {

const std::string kYes = "answer \"Yes\"\n", kNo = "answer \"No\"\n";
const std::string kPause = "click frmDuopick.cmdPause\n";

using Cards = std::vector<int>;

class Duopick : public ::testing::Test {
 protected:
  std::string Story(const std::string& commands) {
    return StoryOf(driver.Trace(commands), "frmDuopick.lblMessage");
  }
  bool Outlined(int card) { return Game().FieldSelectionRectangle(card).Visible; }
  // The key of the picture that a card shows, "" for none.
  std::string Face(int card) {
    const int picture = Game().PlayCard(card).Picture;
    return picture == 0 ? "" : driver.common().ImageList2.Key(picture);
  }
  // The cards of the field that are gone.
  Cards Gaps() {
    Cards gaps;
    for (int card = 0; card < modDuopick::kField; ++card) {
      EXPECT_EQ(Face(card).empty(), !Game().PlayCard(card).Visible) << card;
      if (Face(card).empty()) gaps.push_back(card);
    }
    return gaps;
  }
  // Pairs, runs and round, as the board tells them.
  std::string Counts() {
    return Joined({Game().lblScorePairs.Caption, Game().lblScoreRuns.Caption, Game().lblCurrentRound.Caption},
                  " ");
  }
  std::string Kept(const char* limit = "45") {
    return folder.Read(std::string("DuopickHighScores") + limit + ".Txt");
  }
  void Start(const std::string& cards) { driver.Do(kOpenDuopick + cards + kPlayDuopick); }
  frmDuopick& Game() { return DuopickOf(driver); }
  long long Score() { return driver.common().CurrentScore; }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(Duopick, OpensWithItsOwnNames) {
  driver.Do(kOpenDuopick);
  std::vector<std::string> captions;
  for (const char* name : {"mnuFile", "mnuView", "mnuClear", "mnuCustom", "cmdExit", "lblCardCount",
                           "lblPairs", "lblRuns", "lblHighScore"})
    captions.push_back(driver.Text(std::string("frmDuopick.") + name + ".Caption"));
  for (const auto& entry : Game().timeLimitEntries) captions.push_back(entry->Caption);
  EXPECT_EQ(Joined(captions),
            "&File|&View High Scores...|&Clear High Scores...|&User Options...|E&xit|Cards remaining:|"
            "Pairs x 3000|Runs x 500|High Score: 30,000|&30 seconds|&45 seconds (default)|&60 seconds|"
            "&75 seconds|&90 seconds|&105 seconds|1&20 seconds");
  driver.Do("close frmDuopick\n" + kYes);
  EXPECT_EQ(folder.Read("Duopick.Ini"),
            "[Play Music]\r\nFalse\r\n\r\n[Time]\r\n45\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n"
            "[Play Music]\r\nFalse\r\n\r\n[Count Down Score]\r\nTrue\r\n\r\n[Pairs Bonus]\r\n3000\r\n\r\n"
            "[Runs Bonus]\r\n500\r\n\r\n[Time Bonus]\r\n100\r\n\r\n[Bonus Score]\r\n80000\r\n\r\n"
            "[Completion Bonus]\r\n10000\r\n\r\n[State]\r\n0\r\n\r\n[Width]\r\n9570\r\n\r\n"
            "[Height]\r\n7200\r\n\r\n[Deck]\r\n1\r\n\r\n");
}

TEST_F(Duopick, CardsThatCoverLieOnThoseTheyCover) {
  driver.Do(kOpenDuopick);
  for (int card = 0; card < modDuopick::kField; ++card)
    for (int other = 0; other < modDuopick::kField; ++other) {
      modDuopick::Board two;
      two.field[card] = two.field[other] = "7S";
      if (two.CheckForLegalMove(card)) continue;
      const Image &below = Game().PlayCard(card), &above = Game().PlayCard(other);
      EXPECT_GT(other, card) << "what is drawn later lies above";
      EXPECT_LT(std::abs(above.Left - below.Left), below.Width) << card << ", " << other;
      EXPECT_GT(above.Top, below.Top);
      EXPECT_LT(above.Top, below.Top + below.Height) << card << ", " << other;
    }
}

TEST_F(Duopick, IsPlayedThroughToTheTable) {
  Start(LayEightPairs());
  // The first round: the top row goes with twelve seconds left, eight pairs and four runs.
  driver.Do("advance 33000\n" + ClickTwoByTwo(0, 22));
  EXPECT_EQ(Counts(), "8 3 1");
  EXPECT_EQ(Score(), 0);
  EXPECT_EQ(Story(LayTwelvePairs() + ClickTwoByTwo(22, 24)),
            "Markq, TwentyOne, \"Completion Bonus!\", 1000, Snap 75 x20, \"Speed Bonus!\", 2000, "
            "Snap 75 x12, \"Runs Bonus!\", 1000, Snap 75 x20, \"Pairs Bonus!\", 1000, Snap 75 x20, "
            "\"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Game().lblCurrentScore.Caption, "37,200");
  // The last steps of that click met the second round, and did nothing to it.
  EXPECT_EQ(Counts(), "0 0 2");
  EXPECT_EQ(Gaps(), Cards());
  EXPECT_TRUE(Game().PlayCard(3).Enabled && Game().PlayCard(4).Enabled && !Outlined(4));
  EXPECT_EQ(Game().board.selected, modDuopick::kNone);
  driver.Do("advance 999");
  EXPECT_EQ(Game().lblTime.Caption, "Time: 45") << "the clock starts anew";

  // The second, with pairs alone, leads to the bonus round; the game ends with that, inside a click on a
  // card.
  const std::string paid =
      "TwentyOne, \"Completion Bonus!\", 1000, Snap 75 x20, \"Speed Bonus!\", 2000, Snap 75 x45, "
      "\"Pairs Bonus!\", 1000, Snap 75 x20, ";
  driver.Do(ClickTwoByTwo(0, 23));
  EXPECT_EQ(Story(LayTwelvePairs() + Click({4})),
            paid + "\"Prepare for Bonus Round!\", Applause, 250 x11, \"\"");
  EXPECT_EQ(Score(), 37200 + 50500);
  EXPECT_EQ(Counts(), "0 0 3");
  driver.Do(ClickTwoByTwo(0, 23));
  EXPECT_EQ(Story(Click({4}) + kEnterName), paid + "HighScore, \"Game Over\", 2000");
  EXPECT_EQ(Kept().substr(0, 13), "Ann, 138200\r\n");
  EXPECT_EQ(Game().lblHighScore.Caption, "High Score: 138,200");
  driver.Do(kPlayDuopick);
  EXPECT_EQ(Counts() + " " + Game().lblCurrentScore.Caption.get(), "0 0 1 0");
}

TEST_F(Duopick, TimeRunsOutOnAHalfMadePair) {
  Start(LayEightPairs());
  driver.Do("advance 44000\n" + ClickTwoByTwo(0, 3));
  EXPECT_TRUE(Outlined(20));
  const std::string trace = driver.Trace("advance 1000");
  EXPECT_EQ(StoryOf(trace, "frmDuopick.lblMessage"),
            "\"Times Up!\", 250 x10, \"Pairs Bonus!\", 1000, Snap 75 x20, \"Prepare for Round Two!\", "
            "250 x11, \"\"");
  // The cards and the outline are gone before anything is said.
  const size_t told = trace.find("Times Up!");
  for (const char* before : {"PlayCard(22).Visible false", "FieldSelectionRectangle(20).Visible false",
                             "CardStackPicture.Visible false"})
    EXPECT_LT(trace.find(before), told) << before;
  EXPECT_EQ(Story("advance 45000"), "\"Times Up!\", 250 x10, \"Game Over\", 2000");
  EXPECT_EQ(Score(), 3000);
}

TEST_F(Duopick, TwoCardsThatDontMatchAreBothPutBack) {
  Start(LayDuopick({{18, "13S"}, {19, "1H"}, {20, "2C"}, {21, "12D"}, {22, "7H"}, {23, "8S"}}));
  const struct {
    Cards cards;
    const char* heard;
    int outlined;                                   // or -1
  } deeds[] = {{{0}, "Chord", -1},                  // covered
               {{18, 14}, "Markq, Chord", 18},      // a covered one leaves the selection alone
               {{20}, "Chord", -1},                 // king and two
               {{19, 21}, "Markq, Chord", -1},      // ace and queen
               {{23, 18}, "Markq, Chord", -1},      // the up card as the first
               {{18, 23}, "Markq, Chord", -1},      // and as the second
               {{19, 18}, "Markq, TwentyOne", -1},  // ace and king
               {{20, 21, 20}, "Markq, Chord, Markq", 20}};
  for (const auto& deed : deeds) {
    EXPECT_EQ(Story(Click(deed.cards)), deed.heard) << deed.cards.front();
    for (int card = 0; card < modDuopick::kCards; ++card) {
      EXPECT_EQ(Outlined(card), card == deed.outlined) << card;
      const bool taken = card == 18 || card == 19;
      EXPECT_TRUE(taken || Game().PlayCard(card).Enabled == (card != deed.outlined)) << card;
    }
  }
  EXPECT_EQ(Counts(), "0 1 1");
  // A selected card can't be clicked; were it clicked, it would be put back.
  EXPECT_TRUE(Contains(driver.Do(Click({20})), "disabled"));
  Game().PlayCard(20).Enabled = true;
  EXPECT_EQ(Story(Click({20})), "Tick");
  EXPECT_FALSE(Outlined(20));
}

TEST_F(Duopick, TheUpCardGivesWayToTheOneBeneath) {
  Start(LayDuopick({{18, "7S"}, {19, "8H"}, {20, "5C"}, {23, "7H"}, {24, "9C"}}));
  EXPECT_EQ(Story(kTurnCard), "Click");
  EXPECT_EQ(Face(23) + " " + Game().lblCards.Caption.get(), "9C 27");
  EXPECT_EQ(Story(Click({23, 19})), "Markq, TwentyOne");  // a run; the seven was beneath
  EXPECT_EQ(Face(23), "7H");
  EXPECT_EQ(Story(Click({18, 23})), "Markq, TwentyOne");  // a pair, and the pile is empty
  EXPECT_EQ(Face(23), "EMPTY");
  EXPECT_TRUE(Contains(driver.Do(Click({23})), "disabled"));
  Game().PlayCard(23).Enabled = true;
  EXPECT_EQ(Story(Click({23})), "Chord");
  // An empty pile fills no gap.
  driver.Do(Click({20}) + kTurnCard);
  EXPECT_FALSE(Outlined(20));
  EXPECT_EQ(Gaps(), Cards({18, 19}));
  EXPECT_EQ(Game().board.waste.size(), 1u);
  EXPECT_TRUE(Game().PlayCard(23).Enabled);
  EXPECT_EQ(Counts(), "1 1 1");
}

TEST_F(Duopick, TurningACardFillsTheFirstGapAndDropsTheSelection) {
  Start(LayTwelvePairs());
  driver.Do(ClickTwoByTwo(0, 4) + ClickTwoByTwo(6, 8) + Click({22}));
  EXPECT_TRUE(Game().board.CheckForLegalMove(9));
  const std::string upCard = Face(23);
  EXPECT_EQ(Story(kTurnCard), "Click");
  EXPECT_EQ(Gaps(), Cards({15, 18, 19, 20, 21}));
  EXPECT_EQ(Face(14), upCard);
  EXPECT_FALSE(Game().board.CheckForLegalMove(9)) << "covered again";
  EXPECT_FALSE(Outlined(22));
  EXPECT_TRUE(Game().PlayCard(22).Enabled && Game().PlayCard(14).Enabled);
  // The card that came back plays like any other.
  Game().board.field[16] = Game().board.field[14];
  driver.Do(Click({16, 14}));
  EXPECT_EQ(Gaps(), Cards({14, 15, 16, 18, 19, 20, 21}));
}

TEST_F(Duopick, TheStackEndsAndThenGivesAnUpCardOfNoRank) {
  Start(LayDuopick({{18, "1S"}, {19, "1H"}, {20, "2C"}, {51, "9D"}}));
  for (int turn = 1; turn <= 33; ++turn) {
    EXPECT_EQ(Story(kTurnCard), turn <= 28 ? "Click" : "Click, Chord");
    EXPECT_EQ(Game().lblCards.Caption, std::to_string(std::max(0, 28 - turn)));
    EXPECT_EQ(driver.common().ImageList2.Key(Game().CardStackPicture.Picture), turn < 11   ? "FULL"
                                                                               : turn < 18 ? "HALF"
                                                                               : turn < 28 ? "BACK"
                                                                                           : "EMPTY");
    EXPECT_EQ(Face(23) == "9D", turn >= 28);  // what is seen is in the end no longer what lies there
  }
  // Only an ace goes with it, and only as the second card.
  EXPECT_EQ(Story(Click({18, 23, 23, 20, 23, 18})), "Markq, Chord, Markq, Chord, Markq, TwentyOne");
  EXPECT_EQ(Counts(), "0 1 1");
  // The one beneath, which is the one that was seen, fills the gap. A card of no rank fills none.
  driver.Do(kTurnCard);
  EXPECT_EQ(Face(18), "9D");
  EXPECT_EQ(Story(Click({23, 19})), "Markq, TwentyOne");
  Game().board.waste.back() = "";
  driver.Do(kTurnCard + kTurnCard);
  EXPECT_EQ(Gaps(), Cards({19}));
}

TEST_F(Duopick, ASelectionOutlivesAPause) {
  Start(LayTwelvePairs());
  driver.Do("advance 1500\n" + ClickTwoByTwo(0, 2) + Click({20}));
  EXPECT_EQ(Story(kPause), "\"Game Paused\"");
  for (int card = 0; card < modDuopick::kCards; ++card) EXPECT_FALSE(Game().PlayCard(card).Visible) << card;
  EXPECT_TRUE(Outlined(20));
  EXPECT_TRUE(Contains(driver.Do(kTurnCard), "error"));
  driver.Do("click frmDuopick.mnuHot\n" + kPause);
  EXPECT_EQ(Gaps(), Cards({18, 19}));
  EXPECT_EQ(driver.Get("frmDuopick.CardStackPicture.Picture"), 10) << "in the new design";
  EXPECT_FALSE(Game().PlayCard(20).Enabled);
  EXPECT_EQ(Story(Click({21})), "TwentyOne");
  EXPECT_EQ(Counts(), "2 0 1");
  EXPECT_FALSE(LinesOf(driver.Trace("advance 2000"), "* set frmDuopick.imgSplashImage").empty())
      << "the splash cards go on moving behind the game";
}

TEST_F(Duopick, EndGameEntersNoScore) {
  Start(LayTwelvePairs() + "click frmDuopick.mnuMusic\n");
  driver.Do(ClickTwoByTwo(0, 4) + Click({22}));
  driver.common().CurrentScore = 90000;
  EXPECT_EQ(Story(kPlayDuopick + kNo), "\"Game Paused\", silence, box, \"\", open, music");
  EXPECT_TRUE(Outlined(22));
  EXPECT_EQ(Story("click frmDuopick.mnuPlay\n" + kYes),
            "\"Game Paused\", silence, box, \"\", open, music, silence");
  EXPECT_FALSE(Contains(Kept(), "90000"));
  EXPECT_FALSE(Outlined(22) || Game().cmdTakeScore.Enabled || Game().lblPairs.Visible);
  driver.Do(kPlayDuopick);
  EXPECT_EQ(Gaps(), Cards());
  EXPECT_TRUE(Game().PlayCard(22).Enabled);
}

TEST_F(Duopick, AwardsComeAtOnceWhenNothingIsCounted) {
  folder.Write(
      "Duopick.Ini",
      "[Count Down Score]\r\nFalse\r\n\r\n[Play Sounds]\r\nFalse\r\n\r\n[Play Music]\r\nTrue\r\n\r\n");
  driver.Do(kOpenDuopick + LayEightPairs());
  EXPECT_EQ(Story(kPlayDuopick), "open, music");
  driver.Do(ClickTwoByTwo(0, 20));
  // Taken a moment before the top row is cleared: no completion bonus.
  EXPECT_EQ(Story(kTakeScoreDuopick),
            "silence, \"Speed Bonus!\", 2000, \"Runs Bonus!\", 1000, \"Pairs Bonus!\", 1000, "
            "\"Prepare for Round Two!\", 250 x11, \"\", open, music");
  EXPECT_EQ(Score(), 4500 + 1000 + 24000);
}

TEST_F(Duopick, TheBonusRoundIsReachedByTheExactScore) {
  driver.Do(kOpenDuopick);
  for (const int score : {79999, 80000}) {
    driver.Do(kPlayDuopick + "advance 45000\n");
    driver.common().CurrentScore = score;
    driver.Do("advance 45000\n" + (score < 80000 ? kEnterName : ""));
    EXPECT_EQ(driver.InGame(), score == 80000);
  }
}

// It comes inside a click on a card.
TEST_F(Duopick, AnOverflowEndsTheGameAndNotTheProgram) {
  folder.Write("Duopick.Ini", "[Pairs Bonus]\r\n2000000000\r\n\r\n");
  Start(LayEightPairs());
  driver.common().CurrentScore = 50000;
  const std::string told =
      driver.Do("advance 44000\n" + ClickTwoByTwo(0, 24) + "answer \"OK\"\n" + kEnterName);
  EXPECT_EQ(Joined(BoxesOf(told)), "Overflow");
  EXPECT_TRUE(Kept().starts_with("Ann*, 62100\r\n"));
  EXPECT_FALSE(Contains(driver.Trace(kPlayDuopick + kTakeScoreDuopick), "Completion"))
      << "the next game doesn't take the top row for cleared";
}

// The menu clears a table that nobody plays into; the Hall of Fame clears the one that it shows.
TEST_F(Duopick, ClearInTheMenuClearsAnotherTable) {
  folder.Write("DuopickHighScores45.Txt", "Eve, 71200\r\n\r\n");
  folder.Write("DuopickHiScores45.Txt", "Old, 5\r\n\r\n");
  Start("");
  EXPECT_EQ(Story("click frmDuopick.mnuClear\nadvance 3000\n" + kNo), "\"Game Paused\", box, \"\"");
  EXPECT_EQ(folder.Read("DuopickHiScores45.Txt"), "Old, 5\r\n\r\n");
  driver.Do("click frmDuopick.mnuClear\n" + kYes);
  EXPECT_EQ(Kept(), "Eve, 71200\r\n\r\n");
  EXPECT_TRUE(folder.Read("DuopickHiScores45.Txt").starts_with("Quillmark, 30000\r\n"));
  EXPECT_EQ(Game().lblHighScore.Caption, "High Score: 30,000");
  driver.Do("click frmDuopick.mnuView\nclick frmHighScores.cmdClear\n" + kYes +
            "click frmHighScores.cmdDone\n");
  EXPECT_TRUE(Kept().starts_with("Quillmark, 30000\r\n"));
}

TEST_F(Duopick, AMissingTableIsMadeWithAnotherScoreAtTheEndOfAGame) {
  driver.Do(kOpenDuopick + "click frmDuopick.mnu60\n" + kPlayDuopick + kTakeScoreDuopick);
  EXPECT_TRUE(Kept("60").starts_with("Quillmark, 30000\r\n"));
  std::filesystem::remove(folder.Path() / "DuopickHighScores60.Txt");
  driver.Do(kTakeScoreDuopick);
  EXPECT_TRUE(Kept("60").starts_with("Quillmark, 50000\r\n"));
  EXPECT_EQ(Game().lblHighScore.Caption, "High Score: 50,000");
}

// Values beyond the dialog's bounds are played with; what doesn't fit is skipped.
TEST_F(Duopick, SettingsAreTakenAsTheyAre) {
  folder.Write("Duopick.Ini",
               "[Time]\r\n120\r\n\r\n[Pairs Bonus]\r\n-5\r\n\r\n[Runs Bonus]\r\n40000\r\n\r\n"
               "[Nonsense]\r\n1\r\n\r\n[Bonus Score]\r\n900000\r\n\r\n"
               "[Completion Bonus]\r\n99999999999\r\n\r\n[Deck]\r\n4\r\n\r\n");
  Start("");
  EXPECT_EQ(Game().lblTime.Caption, "Time: 120");
  EXPECT_TRUE(Game().mnuHot.Checked);
  EXPECT_EQ(Joined({Game().lblPairs.Caption, Game().lblRuns.Caption, Game().StatusBar1.Panels(1).Text}),
            "Pairs x -5|Runs x 40000|Make 900,000 for Bonus Round!   ");
  EXPECT_EQ(Game().CompletionBonus, 10000);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
}

TEST_F(Duopick, TheClockRunsOnWhileThePlayerIsAskedAboutClosing) {
  Start(LayEightPairs());
  driver.Do(ClickTwoByTwo(0, 12) + kTakeScoreDuopick + "advance 40000");
  driver.common().CurrentScore = 40000;
  // The game ends under the question; the table stands before it then.
  const std::string told = driver.Do("close frmDuopick\nadvance 6000\nanswer \"No\"\n" + kEnterName + kNo);
  EXPECT_TRUE(Contains(told, "error \"no message box stands\"")) << told;
  EXPECT_EQ(Game().cmdPlay.Caption, "&Play");
  EXPECT_TRUE(Kept().starts_with("Ann, 40000"));
}

}  // namespace
