// Duopick from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/duopick_table.h"

namespace {

const std::string kPause = "click frmDuopick.cmdPause\n";

using Cards = std::vector<int>;

class Duopick : public GameTest {
 protected:
  Duopick() : GameTest("Duopick", "lblMessage", "DuopickHighScores45.Txt") {}
  bool Outlined(int card) { return Game().FieldSelectionRectangle(card).Visible; }
  // The key of the picture that a card shows, "" for none.
  std::string Face(int card) {
    const int picture = Game().PlayCard(card).Picture;
    return picture == 0 ? "" : common().ImageList2.Key(picture);
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
  void Start(const std::string& cards) { driver.Do(kOpenDuopick + cards + kPlayDuopick); }
  frmDuopick& Game() { return DuopickOf(driver); }
};

TEST_F(Duopick, KeepsItsSettings) {
  Open();
  driver.Do("close frmDuopick\n" + kYes);
  EXPECT_EQ(Kept(),
            Settings("Play Music False|Time 45|Play Sounds True|Play Music False|Count Down Score True|"
                     "Pairs Bonus 3000|Runs Bonus 500|Time Bonus 100|Bonus Score 80000|"
                     "Completion Bonus 10000|State 0|Width 9570|Height 7200|Deck 1"));
  // Values beyond the dialog's bounds are played with; what doesn't fit is skipped.
  Open(
      Settings("Pairs Bonus -5|Runs Bonus 40000|Nonsense 1|Bonus Score 900000|Completion Bonus 99999999999"));
  driver.Do(kPlayDuopick);
  EXPECT_EQ(Joined({Caption("lblPairs"), Caption("lblRuns"), Panel(1)}),
            "Pairs x -5|Runs x 40000|Make 900,000 for Bonus Round!   ");
  EXPECT_EQ(Game().CompletionBonus, 10000);
  EXPECT_TRUE(common().CustomScoringInUse);
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
  EXPECT_EQ(Tell(LayTwelvePairs() + ClickTwoByTwo(22, 24)),
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
  EXPECT_EQ(Tell(LayTwelvePairs() + Click({4})),
            paid + "\"Prepare for Bonus Round!\", Applause, 250 x11, \"\"");
  EXPECT_EQ(Score(), 37200 + 50500);
  EXPECT_EQ(Counts(), "0 0 3");
  driver.Do(ClickTwoByTwo(0, 23));
  EXPECT_EQ(Tell(Click({4}) + kEnterName), paid + "HighScore, \"Game Over\", 2000");
  EXPECT_EQ(Best(), "Ann, 138200");
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
  EXPECT_EQ(Tell("advance 45000"), "\"Times Up!\", 250 x10, \"Game Over\", 2000");
  EXPECT_EQ(Score(), 3000);
}

TEST_F(Duopick, TwoCardsThatDontMatchAreBothPutBack) {
  Start(LayCards({{18, "13S"}, {19, "1H"}, {20, "2C"}, {21, "12D"}, {22, "7H"}, {23, "8S"}}));
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
    EXPECT_EQ(Tell(Click(deed.cards)), deed.heard) << deed.cards.front();
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
  EXPECT_EQ(Tell(Click({20})), "Tick");
  EXPECT_FALSE(Outlined(20));
}

TEST_F(Duopick, TheUpCardGivesWayToTheOneBeneath) {
  Start(LayCards({{18, "7S"}, {19, "8H"}, {20, "5C"}, {23, "7H"}, {24, "9C"}}));
  EXPECT_EQ(Tell(kTurnCard), "Click");
  EXPECT_EQ(Face(23) + " " + Game().lblCards.Caption.get(), "9C 27");
  EXPECT_EQ(Tell(Click({23, 19})), "Markq, TwentyOne");  // a run; the seven was beneath
  EXPECT_EQ(Face(23), "7H");
  EXPECT_EQ(Tell(Click({18, 23})), "Markq, TwentyOne");  // a pair, and the pile is empty
  EXPECT_EQ(Face(23), "EMPTY");
  EXPECT_TRUE(Contains(driver.Do(Click({23})), "disabled"));
  Game().PlayCard(23).Enabled = true;
  EXPECT_EQ(Tell(Click({23})), "Chord");
  // An empty pile fills no gap.
  driver.Do(Click({20}) + kTurnCard);
  EXPECT_FALSE(Outlined(20));
  EXPECT_EQ(Gaps(), Cards({18, 19}));
  EXPECT_EQ(Game().board.waste.size(), 1u);
  EXPECT_TRUE(Game().PlayCard(23).Enabled);
  EXPECT_EQ(Counts(), "1 1 1");
}

TEST_F(Duopick, TheStackEndsAndThenGivesAnUpCardOfNoRank) {
  Start(LayCards({{18, "1S"}, {19, "1H"}, {20, "2C"}, {51, "9D"}}));
  for (int turn = 1; turn <= 33; ++turn) {
    EXPECT_EQ(Tell(kTurnCard), turn <= 28 ? "Click" : "Click, Chord");
    EXPECT_EQ(Game().lblCards.Caption, std::to_string(std::max(0, 28 - turn)));
    EXPECT_EQ(common().ImageList2.Key(Game().CardStackPicture.Picture), turn < 11   ? "FULL"
                                                                        : turn < 18 ? "HALF"
                                                                        : turn < 28 ? "BACK"
                                                                                    : "EMPTY");
    EXPECT_EQ(Face(23) == "9D", turn >= 28);  // what is seen is in the end no longer what lies there
  }
  // Only an ace goes with it, and only as the second card.
  EXPECT_EQ(Tell(Click({18, 23, 23, 20, 23, 18})), "Markq, Chord, Markq, Chord, Markq, TwentyOne");
  EXPECT_EQ(Counts(), "0 1 1");
  // The one beneath, which is the one that was seen, fills the gap. A card of no rank fills none.
  driver.Do(kTurnCard);
  EXPECT_EQ(Face(18), "9D");
  EXPECT_EQ(Tell(Click({23, 19})), "Markq, TwentyOne");
  Game().board.waste.back() = "";
  driver.Do(kTurnCard + kTurnCard);
  EXPECT_EQ(Gaps(), Cards({19}));
}

TEST_F(Duopick, ASelectionOutlivesAPause) {
  Start(LayTwelvePairs());
  driver.Do("advance 1500\n" + ClickTwoByTwo(0, 2) + Click({20}));
  EXPECT_EQ(Tell(kPause), "\"Game Paused\"");
  for (int card = 0; card < modDuopick::kCards; ++card) EXPECT_FALSE(Game().PlayCard(card).Visible) << card;
  EXPECT_TRUE(Outlined(20));
  EXPECT_TRUE(Contains(driver.Do(kTurnCard), "error"));
  driver.Do("click frmDuopick.mnuHot\n" + kPause);
  EXPECT_EQ(Gaps(), Cards({18, 19}));
  EXPECT_EQ(driver.Get("frmDuopick.CardStackPicture.Picture"), 10) << "in the new design";
  EXPECT_FALSE(Game().PlayCard(20).Enabled);
  EXPECT_EQ(Tell(Click({21})), "TwentyOne");
  EXPECT_EQ(Counts(), "2 0 1");
  EXPECT_FALSE(LinesOf(driver.Trace("advance 2000"), "* set frmDuopick.imgSplashImage").empty())
      << "the splash cards go on moving behind the game";
}

TEST_F(Duopick, EndGameEntersNoScore) {
  Start(LayTwelvePairs() + "click frmDuopick.mnuMusic\n");
  driver.Do(ClickTwoByTwo(0, 4) + Click({22}));
  common().CurrentScore = 90000;
  EXPECT_EQ(Tell(kPlayDuopick + kNo), "\"Game Paused\", silence, box, \"\", open, music");
  EXPECT_TRUE(Outlined(22));
  EXPECT_EQ(Tell("click frmDuopick.mnuPlay\n" + kYes),
            "\"Game Paused\", silence, box, \"\", open, music, silence");
  EXPECT_EQ(Best(), "Quillmark, 30000");
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
  EXPECT_EQ(Tell(kPlayDuopick), "open, music");
  driver.Do(ClickTwoByTwo(0, 20));
  // Taken a moment before the top row is cleared: no completion bonus.
  EXPECT_EQ(Tell(kTakeScoreDuopick),
            "silence, \"Speed Bonus!\", 2000, \"Runs Bonus!\", 1000, \"Pairs Bonus!\", 1000, "
            "\"Prepare for Round Two!\", 250 x11, \"\", open, music");
  EXPECT_EQ(Score(), 4500 + 1000 + 24000);
}

// Twenty doesn't divide the two pairs: 21 steps of 50 are paid.
TEST_F(Duopick, ABonusIsCountedInWholeSteps) {
  Open(Settings("Pairs Bonus 505|Time Bonus 1234"));
  driver.Do(LayTwelvePairs() + kPlayDuopick + ClickTwoByTwo(0, 4) + kTakeScoreDuopick +
            "advance 45000\nadvance 45000\n" + kEnterName);
  EXPECT_EQ(Best(), "Ann*, 56580");
}

// It comes inside a click on a card.
TEST_F(Duopick, AnOverflowEndsTheGameAndNotTheProgram) {
  folder.Write("Duopick.Ini", "[Pairs Bonus]\r\n2000000000\r\n\r\n");
  Start(LayEightPairs());
  common().CurrentScore = 50000;
  const std::string told = driver.Do("advance 44000\n" + ClickTwoByTwo(0, 24) + kOk + kEnterName);
  EXPECT_EQ(Joined(BoxesOf(told)), "Overflow");
  EXPECT_EQ(Best(), "Ann*, 62100");
  EXPECT_FALSE(Contains(driver.Trace(kPlayDuopick + kTakeScoreDuopick), "Completion"))
      << "the next game doesn't take the top row for cleared";
}

// The menu clears a table that nobody plays into; the Hall of Fame clears the one that it shows.
TEST_F(Duopick, ClearInTheMenuClearsAnotherTable) {
  folder.Write("DuopickHighScores45.Txt", "Eve, 71200\r\n\r\n");
  folder.Write("DuopickHiScores45.Txt", "Old, 5\r\n\r\n");
  Start("");
  EXPECT_EQ(Tell("click frmDuopick.mnuClear\nadvance 3000\n" + kNo), "\"Game Paused\", box, \"\"");
  EXPECT_EQ(folder.Read("DuopickHiScores45.Txt"), "Old, 5\r\n\r\n");
  driver.Do("click frmDuopick.mnuClear\n" + kYes);
  EXPECT_EQ(Best(), "Eve, 71200");
  EXPECT_TRUE(folder.Read("DuopickHiScores45.Txt").starts_with("Quillmark, 30000\r\n"));
  EXPECT_EQ(Game().lblHighScore.Caption, "High Score: 30,000");
  driver.Do("click frmDuopick.mnuView\nclick frmHighScores.cmdClear\n" + kYes +
            "click frmHighScores.cmdDone\n");
  EXPECT_EQ(Best(), "Quillmark, 30000");
}

TEST_F(Duopick, AMissingTableIsMadeWithAnotherScoreAtTheEndOfAGame) {
  driver.Do(kOpenDuopick + "click frmDuopick.mnu60\n" + kPlayDuopick + kTakeScoreDuopick);
  EXPECT_TRUE(folder.Read("DuopickHighScores60.Txt").starts_with("Quillmark, 30000\r\n"));
  std::filesystem::remove(folder.Path() / "DuopickHighScores60.Txt");
  driver.Do(kTakeScoreDuopick);
  EXPECT_TRUE(folder.Read("DuopickHighScores60.Txt").starts_with("Quillmark, 50000\r\n"));
  EXPECT_EQ(Game().lblHighScore.Caption, "High Score: 50,000");
}

}  // namespace
