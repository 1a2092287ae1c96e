// Duopick from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/duopick_table.h"

namespace {

const std::string kWin = "frmDuopick.";
const std::string kYes = "answer \"Yes\"\n", kNo = "answer \"No\"\n";
const std::string kPause = "click frmDuopick.cmdPause\n";

class Duopick : public ::testing::Test {
 protected:
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  std::string Panel(int number) { return Text("StatusBar1.Panels(" + std::to_string(number) + ").Text"); }
  bool Is(const std::string& property) { return driver.Get(kWin + property) == true; }
  std::string Story(const std::string& commands) {
    return StoryOf(driver.Trace(commands), "frmDuopick.lblMessage");
  }
  std::string Card(int card, const std::string& property) {
    return "PlayCard(" + std::to_string(card) + ")." + property;
  }
  bool Outlined(int card) { return Is("FieldSelectionRectangle(" + std::to_string(card) + ").Visible"); }
  // The key of the picture that a card shows, "" for none.
  std::string Face(int card) {
    const int picture = driver.Get(kWin + Card(card, "Picture"));
    return picture == 0 ? "" : driver.common().ImageList2.Key(picture);
  }
  // The cards of the field that are gone.
  std::vector<int> Gaps() {
    std::vector<int> gaps;
    for (int card = 0; card < modDuopick::kField; ++card) {
      EXPECT_EQ(Face(card).empty(), !Is(Card(card, "Visible"))) << card;
      if (Face(card).empty()) gaps.push_back(card);
    }
    return gaps;
  }
  std::vector<int> Exposed() {
    std::vector<int> exposed;
    for (int card = 0; card < modDuopick::kField; ++card)
      if (Is(Card(card, "Visible")) && Game().CheckForLegalMove(card)) exposed.push_back(card);
    return exposed;
  }
  void Start(const std::string& cards) { driver.Do(kOpenDuopick + cards + kPlayDuopick); }
  frmDuopick& Game() { return DuopickOf(driver); }
  long long Score() { return driver.common().CurrentScore; }
  std::string Turn(int times) {
    std::string turns;
    while (times-- > 0) turns += kTurnCard;
    return turns;
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

using Cards = std::vector<int>;

TEST_F(Duopick, OpensWithItsOwnNames) {
  driver.Do(kOpenDuopick);
  const std::pair<const char*, const char*> captions[] = {{"mnuFile", "&File"},
                                                          {"mnuView", "&View High Scores..."},
                                                          {"mnuClear", "&Clear High Scores..."},
                                                          {"mnuCustom", "&User Options..."},
                                                          {"mnu30", "&30 seconds"},
                                                          {"mnu45", "&45 seconds (default)"},
                                                          {"mnu60", "&60 seconds"},
                                                          {"mnu75", "&75 seconds"},
                                                          {"mnu90", "&90 seconds"},
                                                          {"mnu105", "&105 seconds"},
                                                          {"mnu120", "1&20 seconds"},
                                                          {"cmdExit", "E&xit"},
                                                          {"lblCardCount", "Cards remaining:"},
                                                          {"lblPairs", "Pairs x 3000"},
                                                          {"lblRuns", "Runs x 500"},
                                                          {"lblHighScore", "High Score: 30,000"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(Text(std::string(name) + ".Caption"), caption);
  EXPECT_EQ(Text("cmdTakeScore.ToolTipText"), "End current round and take score");
  EXPECT_TRUE(Is("mnu45.Checked") && Is("frmSplash.Visible") && Is("Timer4.Enabled"));
  for (const char* off : {"cmdTakeScore.Enabled", "cmdPause.Enabled", "CardStackPicture.Visible",
                          "PlayCard(0).Visible", "PlayCard(23).Visible"})
    EXPECT_FALSE(Is(off)) << off;
  driver.Do("close frmDuopick\n" + kYes);
  EXPECT_EQ(folder.Read("Duopick.Ini"),
            "[Play Music]\r\nFalse\r\n\r\n[Time]\r\n45\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n"
            "[Play Music]\r\nFalse\r\n\r\n[Count Down Score]\r\nTrue\r\n\r\n[Pairs Bonus]\r\n3000\r\n\r\n"
            "[Runs Bonus]\r\n500\r\n\r\n[Time Bonus]\r\n100\r\n\r\n[Bonus Score]\r\n80000\r\n\r\n"
            "[Completion Bonus]\r\n10000\r\n\r\n[State]\r\n0\r\n\r\n[Width]\r\n9570\r\n\r\n"
            "[Height]\r\n7200\r\n\r\n[Deck]\r\n1\r\n\r\n");
}

TEST_F(Duopick, IsPlayedThroughToTheTable) {
  Start(LayEightPairs());
  EXPECT_EQ(Panel(1), "Make 80,000 for Bonus Round!   ");
  EXPECT_EQ(Panel(2), "Create runs by clicking on exposed cards!   ");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the current game");
  EXPECT_EQ(Text("cmdPlay.Caption") + Text("mnuPlay.Caption"), "&End Game&End Game");
  EXPECT_EQ(Text("lblCards.Caption") + Text("lblTime.Caption"), "28Time: 45");
  EXPECT_FALSE(Is("mnuCustom.Enabled") || Is("mnuTime.Enabled") || Is("frmSplash.Visible"));

  // The first round: the top row goes with twelve seconds left, eight pairs and four runs.
  driver.Do("advance 33000");
  EXPECT_EQ(Panel(2), "Times running out!");
  EXPECT_EQ(Story(ClickTwoByTwo(0, 4)), "Markq, TwentyOne, Markq, TwentyOne");
  driver.Do(ClickTwoByTwo(4, 16));
  EXPECT_EQ(Text("lblScorePairs.Caption") + "," + Text("lblScoreRuns.Caption"), "8,0");
  driver.Do(ClickTwoByTwo(16, 22));
  EXPECT_EQ(Text("lblScorePairs.Caption") + "," + Text("lblScoreRuns.Caption"), "8,3");
  EXPECT_EQ(Score(), 0);
  EXPECT_EQ(Gaps().size(), 21u);
  EXPECT_EQ(Story(LayTwelvePairs() + ClickTwoByTwo(22, 24)),
            "Markq, TwentyOne, \"Completion Bonus!\", 1000, Snap 75 x20, \"Speed Bonus!\", 2000, "
            "Snap 75 x12, \"Runs Bonus!\", 1000, Snap 75 x20, \"Pairs Bonus!\", 1000, Snap 75 x20, "
            "\"Prepare for Round Two!\", 250 x11, \"\"");
  EXPECT_EQ(Text("lblCurrentScore.Caption"), "37,200");
  // The last steps of that click met the second round, and did nothing to it.
  EXPECT_EQ(Text("lblCurrentRound.Caption"), "2");
  EXPECT_EQ(Text("lblScorePairs.Caption") + "," + Text("lblScoreRuns.Caption"), "0,0");
  EXPECT_EQ(Gaps(), Cards());
  for (int card = 0; card < modDuopick::kCards; ++card)
    EXPECT_TRUE(Is(Card(card, "Enabled")) && !Outlined(card)) << card;
  EXPECT_FALSE(Game().RoundCompleted || Game().CardsSelected != 0);
  EXPECT_FALSE(Is("lblScoring.Visible") || Is("lblMessage.Visible"));
  EXPECT_EQ(driver.Get(kWin + "lblMessage.ForeColor"), kBlack);
  EXPECT_EQ(driver.Get(kWin + "MousePointer"), kDefaultPointer);
  driver.Do("advance 999");  // the clock starts anew
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 45");

  // The second, with pairs alone, leads to the bonus round.
  driver.Do(ClickTwoByTwo(0, 23));
  EXPECT_EQ(Story(LayTwelvePairs() + Click({4})),
            "TwentyOne, \"Completion Bonus!\", 1000, Snap 75 x20, \"Speed Bonus!\", 2000, Snap 75 x45, "
            "\"Pairs Bonus!\", 1000, Snap 75 x20, \"Prepare for Bonus Round!\", Applause, 250 x11, \"\"");
  EXPECT_EQ(Score(), 37200 + 50500);
  EXPECT_EQ(Text("lblCurrentRound.Caption"), "3");

  // The game ends with the bonus round, inside a click on a card.
  driver.Do(ClickTwoByTwo(0, 23));
  EXPECT_EQ(Story(Click({4}) + kEnterName),
            "TwentyOne, \"Completion Bonus!\", 1000, Snap 75 x20, \"Speed Bonus!\", 2000, Snap 75 x45, "
            "\"Pairs Bonus!\", 1000, Snap 75 x20, HighScore, \"Game Over\", 2000");
  EXPECT_EQ(folder.Read("DuopickHighScores45.Txt").substr(0, 13), "Ann, 138200\r\n");
  EXPECT_EQ(Text("lblHighScore.Caption"), "High Score: 138,200");
  EXPECT_EQ(Panel(2), "Game Over");
  EXPECT_EQ(Text("cmdPlay.Caption") + Text("cmdPlay.ToolTipText"), "&PlayStarts a new game");
  for (const char* shown : {"frmSplash.Visible", "lblCurrentScore.Visible", "Timer4.Enabled",
                            "cmdPlay.Enabled", "cmdExit.Enabled", "mnuCustom.Enabled", "mnuTime.Enabled"})
    EXPECT_TRUE(Is(shown)) << shown;
  for (const char* hidden : {"lblMessage.Visible", "lblPairs.Visible", "lblScoreRuns.Visible",
                             "PlayCard(0).Visible", "CardStackPicture.Visible", "cmdPause.Enabled",
                             "cmdTakeScore.Enabled", "mnuTakeScore.Enabled", "Timer1.Enabled"})
    EXPECT_FALSE(Is(hidden)) << hidden;
  EXPECT_TRUE(driver.common().TakingScore);
  // The next game begins from nothing.
  driver.Do(kPlayDuopick);
  EXPECT_EQ(Text("lblCurrentScore.Caption") + "," + Text("lblCurrentRound.Caption"), "0,1");
}

TEST_F(Duopick, TimeRunsOutOnAHalfMadePair) {
  Start(LayEightPairs());
  driver.Do("advance 44000\n" + ClickTwoByTwo(0, 3));
  EXPECT_EQ(Panel(2), "Better Hurry!");
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
  EXPECT_EQ(Score(), 3000);
  EXPECT_FALSE(Outlined(20));
  // Nothing made and no time left: straight to what comes next.
  EXPECT_EQ(Story("advance 45000"), "\"Times Up!\", 250 x10, \"Game Over\", 2000");
  EXPECT_EQ(Score(), 3000);
}

TEST_F(Duopick, TwoCardsThatDontMatchAreBothPutBack) {
  Start(LayDuopick({{18, "13S"}, {19, "1H"}, {20, "2C"}, {21, "12D"}, {22, "7H"}, {23, "8S"}}));
  EXPECT_EQ(Exposed(), Cards({18, 19, 20, 21, 22}));
  const struct {
    Cards cards;
    const char* heard;
    int outlined;                                   // or -1
  } deeds[] = {{{0}, "Chord", -1},                  // covered
               {{18, 14}, "Markq, Chord", 18},      // a covered one leaves the selection alone
               {{20}, "Chord", -1},                 // king and two
               {{20, 18}, "Markq, Chord", -1},      //
               {{19, 21}, "Markq, Chord", -1},      // ace and queen
               {{23, 18}, "Markq, Chord", -1},      // the up card as the first
               {{18, 23}, "Markq, Chord", -1},      // and as the second
               {{19, 18}, "Markq, TwentyOne", -1},  // ace and king
               {{20, 21, 20}, "Markq, Chord, Markq", 20}};
  for (const auto& deed : deeds) {
    const std::string heard = Story(Click(deed.cards));
    EXPECT_EQ(heard, deed.heard) << deed.cards.front();
    for (int card = 0; card < modDuopick::kCards; ++card) {
      EXPECT_EQ(Outlined(card), card == deed.outlined) << card;
      const bool taken = card == 18 || card == 19;
      EXPECT_TRUE(taken || Is(Card(card, "Enabled")) == (card != deed.outlined)) << card;
    }
  }
  EXPECT_EQ(Game().RunsCount, 1);
  EXPECT_EQ(Game().PairsCount, 0);
  EXPECT_EQ(Gaps(), Cards({18, 19}));
  EXPECT_EQ(Exposed(), Cards({14, 20, 21, 22}));
  // A selected card can't be clicked; were it clicked, it would be put back.
  EXPECT_TRUE(Contains(driver.Do(Click({20})), "disabled"));
  Game().PlayCard(20).Enabled = true;
  EXPECT_EQ(Story(Click({20})), "Tick");
  EXPECT_FALSE(Outlined(20));
  EXPECT_EQ(Game().CardsSelected, 0);
}

TEST_F(Duopick, TheUpCardGivesWayToTheOneBeneath) {
  Start(LayDuopick({{18, "7S"}, {19, "8H"}, {20, "5C"}, {23, "7H"}, {24, "9C"}}));
  EXPECT_EQ(Story(kTurnCard), "Click");
  EXPECT_EQ(Face(23), "9C");
  EXPECT_EQ(Text("lblCards.Caption"), "27");
  EXPECT_EQ(Story(Click({23, 19})), "Markq, TwentyOne");  // a run; the seven was beneath
  EXPECT_EQ(Face(23), "7H");
  EXPECT_TRUE(Is("PlayCard(23).Enabled"));
  EXPECT_EQ(Story(Click({18, 23})), "Markq, TwentyOne");  // a pair, and the pile is empty
  EXPECT_EQ(Face(23), "EMPTY");
  EXPECT_EQ(Game().cards.WastePos, 0);
  EXPECT_TRUE(Is("PlayCard(23).Visible"));
  EXPECT_TRUE(Contains(driver.Do(Click({23})), "disabled"));
  Game().PlayCard(23).Enabled = true;
  EXPECT_EQ(Story(Click({23})), "Chord");
  // An empty pile fills no gap.
  driver.Do(Click({20}) + kTurnCard);
  EXPECT_FALSE(Outlined(20));
  EXPECT_EQ(Gaps(), Cards({18, 19}));
  EXPECT_EQ(Game().cards.WastePos, 1);
  EXPECT_TRUE(Is("PlayCard(23).Enabled"));
  EXPECT_EQ(Game().PairsCount + Game().RunsCount, 2);
}

TEST_F(Duopick, TurningACardFillsTheFirstGapAndDropsTheSelection) {
  Start(LayTwelvePairs());
  driver.Do(ClickTwoByTwo(0, 4) + ClickTwoByTwo(6, 8) + Click({22}));
  EXPECT_EQ(Gaps(), Cards({14, 15, 18, 19, 20, 21}));
  EXPECT_EQ(Exposed(), Cards({9, 10, 16, 22}));
  EXPECT_TRUE(Outlined(22));
  const std::string upCard = Face(23);
  EXPECT_EQ(Story(kTurnCard), "Click");
  EXPECT_EQ(Gaps(), Cards({15, 18, 19, 20, 21}));
  EXPECT_EQ(Face(14), upCard);
  EXPECT_EQ(Exposed(), Cards({14, 16, 22}));  // and two cards are covered again
  EXPECT_FALSE(Outlined(22));
  EXPECT_TRUE(Is("PlayCard(22).Enabled") && Is("PlayCard(14).Enabled"));
  EXPECT_EQ(Game().cards.WastePos, 1);
  EXPECT_EQ(Game().PairsCount, 3);
  // The card that came back plays like any other.
  Game().cards.DeckCards[16] = Game().cards.DeckCards[14];
  driver.Do(Click({16, 14}));
  EXPECT_EQ(Gaps(), Cards({14, 15, 16, 18, 19, 20, 21}));
}

// One in the top row covers nothing; one in the second row covers two of the first.
TEST_F(Duopick, TheUpperGapsComeFirst) {
  Start(LayTwelvePairs());
  driver.Do(ClickTwoByTwo(0, 22));
  EXPECT_EQ(Exposed(), Cards({3, 4}));
  driver.Do(kTurnCard);  // the pile was empty
  for (int card : {0, 1, 2, 5, 6, 7, 8, 9}) {
    driver.Do(kTurnCard);
    EXPECT_FALSE(Face(card).empty()) << card;
    EXPECT_TRUE(Is(Card(card, "Visible"))) << card;
    const Cards exposed[] = {{0, 3, 4},    {0, 1, 3, 4}, {0, 1, 2, 3, 4}, {2, 3, 4, 5},
                             {3, 4, 5, 6}, {4, 5, 6, 7}, {5, 6, 7, 8},    {6, 7, 8, 9}};
    EXPECT_EQ(Exposed(), exposed[card < 3 ? card : card - 2]) << card;
  }
}

TEST_F(Duopick, TheStackEndsAndThenGivesAnUpCardOfNoRank) {
  Start(LayDuopick({{18, "1S"}, {19, "1H"}, {20, "2C"}, {51, "9D"}}));
  for (int turn = 1; turn <= 28; ++turn) {
    EXPECT_EQ(Story(kTurnCard), "Click");
    EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Picture"), turn <= 10   ? 1
                                                             : turn <= 17 ? 3
                                                             : turn <= 27 ? 2
                                                                          : 13)
        << turn;
    EXPECT_EQ(Text("lblCards.Caption"), std::to_string(28 - turn));
    EXPECT_EQ(Game().cards.WastePos, turn + 1);
  }
  EXPECT_EQ(Face(23), "9D");
  for (int turn = 29; turn <= 33; ++turn) {
    EXPECT_EQ(Story(kTurnCard), "Click, Chord");
    EXPECT_EQ(Text("lblCards.Caption"), "0");
    EXPECT_EQ(Game().cards.WastePos, 30);
    EXPECT_EQ(Face(23), "9D");  // what is seen is no longer what lies there
  }
  EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Picture"), 13);
  // Only an ace goes with it, and only as the second card.
  EXPECT_EQ(Story(Click({18, 23, 23, 20, 23, 18})), "Markq, Chord, Markq, Chord, Markq, TwentyOne");
  EXPECT_EQ(Game().RunsCount, 1);
  EXPECT_EQ(Face(23), "9D");  // the one beneath, for good
  EXPECT_EQ(Game().cards.WastePos, 29);
  EXPECT_EQ(Story(Click({23, 19})), "Markq, Chord");
  // That card fills the gap. From then on there is none to fill another with.
  driver.Do(kTurnCard);
  EXPECT_EQ(Face(18), "9D");
  EXPECT_EQ(Story(Click({23, 19})), "Markq, TwentyOne");
  EXPECT_EQ(Face(23),
            driver.common().ImageList2.Key(driver.common().ImageList2(CardKey(Game().cards.UpCards[28]))));
  const std::string last = Face(23);
  driver.Do(kTurnCard);
  EXPECT_EQ(Face(19), last);
  Game().cards.DeckCards[20] = "1C";
  driver.Do(Click({23, 20}) + kTurnCard + kTurnCard);
  EXPECT_EQ(Gaps(), Cards());
  Game().cards.DeckCards[21] = "1D";
  Game().cards.UpCards[Game().cards.WastePos - 1] = "";
  driver.Do(Click({23, 21}));
  EXPECT_EQ(Game().cards.DeckCards[23], "");
  driver.Do(Turn(3));
  EXPECT_EQ(Gaps(), Cards({21})) << "no card, no filling";
  Game().cards.StackIndex = 32767;
  EXPECT_EQ(Story(kTurnCard), "Click, Chord");
  EXPECT_TRUE(Is("cmdTakeScore.Enabled"));
}

TEST_F(Duopick, TheSplashCardsGoOnMovingBehindTheGame) {
  Start("");
  EXPECT_TRUE(Is("Timer4.Enabled"));
  EXPECT_FALSE(LinesOf(driver.Trace("advance 2000"), "* set frmDuopick.imgSplashImage").empty());
  driver.Do(kPause);
  EXPECT_TRUE(Is("Timer4.Enabled"));
}

TEST_F(Duopick, ASelectionOutlivesAPause) {
  Start(LayTwelvePairs());
  driver.Do("advance 1500\n" + ClickTwoByTwo(0, 2) + Click({20}));
  EXPECT_EQ(Story(kPause), "\"Game Paused\"");
  for (int card = 0; card < modDuopick::kCards; ++card) EXPECT_FALSE(Is(Card(card, "Visible"))) << card;
  EXPECT_FALSE(Is("CardStackPicture.Visible"));
  EXPECT_TRUE(Contains(driver.Do("advance 5000\n" + kTurnCard), "error"));
  driver.Do("click frmDuopick.mnuHot\n" + kPause);
  EXPECT_EQ(Gaps(), Cards({18, 19}));
  EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Picture"), 10) << "in the new design";
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 44");
  EXPECT_TRUE(Outlined(20));
  EXPECT_FALSE(Is("PlayCard(20).Enabled"));
  EXPECT_EQ(Story(Click({21})), "TwentyOne");
  EXPECT_EQ(Game().PairsCount, 2);
}

TEST_F(Duopick, EndGameEntersNoScore) {
  Start(LayTwelvePairs() + "click frmDuopick.mnuMusic\n");
  driver.Do(ClickTwoByTwo(0, 4) + Click({22}));
  driver.common().CurrentScore = 90000;
  EXPECT_EQ(Story(kPlayDuopick + kNo), "\"Game Paused\", silence, box, \"\", open, music");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the current game");
  EXPECT_TRUE(Is("Timer1.Enabled") && Outlined(22));
  const std::string asked = driver.Trace("click frmDuopick.mnuPlay\n" + kYes);
  EXPECT_EQ(Joined(BoxesOf(asked)), "You have a game in progress, are you sure you want to quit?");
  EXPECT_EQ(StoryOf(asked, "frmDuopick.lblMessage"),
            "\"Game Paused\", silence, box, \"\", open, music, silence");
  EXPECT_FALSE(Contains(folder.Read("DuopickHighScores45.Txt"), "90000"));
  EXPECT_EQ(Text("cmdPlay.Caption") + Text("mnuPlay.Caption") + Text("cmdPlay.ToolTipText"),
            "&Play&PlayStarts a new game");
  for (const char* on : {"frmSplash.Visible", "Timer4.Enabled", "lblScore.Visible", "mnuCustom.Enabled",
                         "mnuTime.Enabled", "cmdPlay.Enabled", "cmdExit.Enabled"})
    EXPECT_TRUE(Is(on)) << on;
  for (const char* off :
       {"CardStackPicture.Visible", "PlayCard(0).Visible", "lblPairs.Visible", "Timer1.Enabled",
        "cmdPause.Enabled", "cmdTakeScore.Enabled", "mnuPause.Enabled", "mnuTakeScore.Enabled"})
    EXPECT_FALSE(Is(off)) << off;
  EXPECT_FALSE(Outlined(22));
  driver.Do(kPlayDuopick);
  EXPECT_EQ(Gaps(), Cards());
  EXPECT_TRUE(Is("PlayCard(22).Enabled"));
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
  EXPECT_EQ(Story("click frmDuopick.mnuTakeScore\n" + kEnterName),
            "silence, \"Speed Bonus!\", 2000, \"Game Over\", 2000");
  EXPECT_TRUE(folder.Read("DuopickHighScores45.Txt").starts_with("Ann, 34000"));
}

// Seven pairs and four runs leave two cards of the top row: no completion bonus.
TEST_F(Duopick, ARoundThatIsntClearedPaysTimeRunsAndPairs) {
  Start(LayEightPairs());
  driver.Do("advance 33000\n" + ClickTwoByTwo(2, 4) + ClickTwoByTwo(0, 2));
  Game().PairsCount = 7;
  Game().RunsCount = 4;
  driver.Do(kTakeScoreDuopick);
  EXPECT_EQ(Score(), 1200 + 2000 + 21000);
}

TEST_F(Duopick, TheBonusRoundIsReachedByTheExactScore) {
  for (const int score : {80000, 79999}) {
    Driver suite(folder.Path());
    suite.Do(kOpenDuopick + kPlayDuopick + "advance 45000\n");
    suite.common().CurrentScore = score;
    suite.Do("advance 45000\n" + (score < 80000 ? kEnterName : ""));
    EXPECT_EQ(suite.common().GameInProgress, score == 80000);
    EXPECT_EQ(suite.Text(kWin + "lblCurrentRound.Caption"), score == 80000 ? "3" : "2");
  }
}

// Whole steps of a twentieth; a step of nothing pays at once.
TEST_F(Duopick, ABonusIsCountedInWholeSteps) {
  const struct {
    int bonus, paid, steps;
    const char* left;
  } cases[] = {{0, 0, 0, "0"},
               {7, 7, 0, "7"},
               {11, 11, 11, "0"},
               {1010, 1050, 21, "-40"},
               {32767, 34398, 21, "-1,631"},
               {-40, -42, 21, "2"}};
  driver.Do(kOpenDuopick);
  for (const auto& each : cases) {
    driver.Do(kPlayDuopick);
    Game().RunsBonus = each.bonus;
    Game().RunsCount = 1;
    driver.common().ElapsedSeconds = 45;
    const std::string trace = driver.Trace(kTakeScoreDuopick);
    EXPECT_EQ(Score(), each.paid) << each.bonus;
    EXPECT_EQ(LinesOf(trace, "* sound \"\\\\Snap").size(), static_cast<size_t>(each.steps)) << each.bonus;
    EXPECT_EQ(Text("lblScoring.Caption"), each.left);
    driver.Do(kPlayDuopick + kYes);
  }
}

// What can outgrow its type: the game is over, its score goes to the table, the program goes on.
TEST_F(Duopick, AnOverflowEndsTheGameAndNotTheProgram) {
  const auto run = [&](const std::string& settings, const std::string& commands, int preset) {
    TestFolder own;
    own.Write("Duopick.Ini", settings);
    Driver suite(own.Path());
    suite.Do(kOpenDuopick + LayEightPairs() + kPlayDuopick + "advance 44000\n");
    suite.common().CurrentScore = preset;
    const std::string told = suite.Do(commands + "answer \"OK\"\n" + kEnterName);
    EXPECT_TRUE(
        Contains(told, R"(msgbox {"text":"Overflow","title":"Duopick!","icon":"critical","buttons":["OK"]})"))
        << told;
    EXPECT_EQ(suite.Text(kWin + "cmdPlay.Caption"), "&Play");
    EXPECT_EQ(suite.Get(kWin + "frmSplash.Visible"), true);
    for (const char* hidden : {"lblMessage.Visible", "lblScoring.Visible", "PlayCard(3).Visible"})
      EXPECT_EQ(suite.Get(kWin + hidden), false) << hidden;
    EXPECT_EQ(suite.Get(kWin + "lblCurrentScore.ForeColor"), kBlue);
    EXPECT_EQ(suite.Get(kWin + "MousePointer"), 0);
    // The next game doesn't take the top row for cleared.
    EXPECT_FALSE(Contains(suite.Trace(kPlayDuopick + kTakeScoreDuopick), "Completion"));
    return own.Read("DuopickHighScores45.Txt").substr(0, 20);
  };
  // A total; the round ended inside a click on a card.
  EXPECT_TRUE(
      run("[Pairs Bonus]\r\n2000000000\r\n\r\n", ClickTwoByTwo(0, 24), 50000).starts_with("Ann*, 62100\r\n"));
  // The score itself, by Take Score and by the clock.
  EXPECT_TRUE(
      run("", ClickTwoByTwo(0, 2) + kTakeScoreDuopick, 2147483600).starts_with("Ann, 2147483600\r\n"));
  EXPECT_TRUE(run("", ClickTwoByTwo(0, 2) + "advance 1000\n", 2147483600).starts_with("Ann, 2147483600\r\n"));
}

TEST_F(Duopick, AFailureLeavesNoSelectionBehind) {
  Start("");
  driver.Do(Click({20}));
  Game().Timer4.OnTimer = RaiseOverflow;
  driver.Do("advance 200\nanswer \"OK\"\n");
  EXPECT_EQ(Text("cmdPlay.Caption"), "&Play");
  EXPECT_FALSE(Outlined(20));
  Game().Timer4.OnTimer = nullptr;
  driver.Do(kPlayDuopick);
  EXPECT_TRUE(Is("PlayCard(20).Enabled") && !Outlined(20));
}

TEST_F(Duopick, AnErrorOnTheWayIntoAGameEndsTheProgram) {
  driver.Do(kOpenDuopick);
  driver.common().ImageList2.SetKey(20, "");
  EXPECT_EQ(driver.Do(LayDuopick({{3, "7S"}}) + kPlayDuopick + "answer \"OK\"\n"),
            "ok 52\n* msgbox {\"text\":\"Element not found\",\"title\":\"Duopick!\",\"icon\":\"none\","
            "\"buttons\":[\"OK\"]}\nok\n* end \"Element not found\"\n");
}

// The menu clears a table that nobody plays into; the Hall of Fame clears the one that it shows.
TEST_F(Duopick, ClearInTheMenuClearsAnotherTable) {
  folder.Write("DuopickHighScores45.Txt", "Eve, 71200\r\n\r\n");
  folder.Write("DuopickHiScores45.Txt", "Old, 5\r\n\r\n");
  Start("");
  EXPECT_EQ(Text("lblHighScore.Caption"), "High Score: 71,200");
  EXPECT_EQ(Story("advance 1000\nclick frmDuopick.mnuClear\nadvance 3000\n" + kNo),
            "\"Game Paused\", box, \"\"");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 44");
  EXPECT_EQ(folder.Read("DuopickHiScores45.Txt"), "Old, 5\r\n\r\n");
  EXPECT_EQ(Joined(BoxesOf(driver.Do("click frmDuopick.mnuClear\n" + kYes))),
            "This will clear all High Scores. Are You Sure?");
  EXPECT_EQ(folder.Read("DuopickHighScores45.Txt"), "Eve, 71200\r\n\r\n");
  EXPECT_EQ(folder.Read("DuopickHiScores45.Txt").substr(0, 18), "Quillmark, 30000\r\n");
  EXPECT_EQ(Text("lblHighScore.Caption"), "High Score: 30,000");
  EXPECT_TRUE(Is("Timer1.Enabled"));
  driver.Do("click frmDuopick.mnuView\nclick frmHighScores.cmdClear\n" + kYes +
            "click frmHighScores.cmdDone\n");
  EXPECT_EQ(folder.Read("DuopickHighScores45.Txt").substr(0, 18), "Quillmark, 30000\r\n");
}

TEST_F(Duopick, AMissingTableIsMadeWithAnotherScoreAtTheEndOfAGame) {
  driver.Do(kOpenDuopick + "click frmDuopick.mnu60\n" + kPlayDuopick + kTakeScoreDuopick);
  EXPECT_EQ(folder.Read("DuopickHighScores60.Txt").substr(0, 18), "Quillmark, 30000\r\n");
  std::filesystem::remove(folder.Path() / "DuopickHighScores60.Txt");
  driver.Do(kTakeScoreDuopick);
  EXPECT_EQ(folder.Read("DuopickHighScores60.Txt").substr(0, 18), "Quillmark, 50000\r\n");
  EXPECT_EQ(Text("lblHighScore.Caption"), "High Score: 50,000");
}

TEST_F(Duopick, SettingsAreTakenAsTheyAre) {
  folder.Write(
      "Duopick.Ini",
      "[Time]\r\n120\r\n\r\n[Pairs Bonus]\r\n-5\r\n\r\n[Runs Bonus]\r\n40000\r\n\r\n[Nonsense]\r\n1\r\n\r\n"
      "[Bonus Score]\r\n900000\r\n\r\n[Completion Bonus]\r\n99999999999\r\n\r\n[State]\r\n2\r\n\r\n"
      "[Width]\r\n12000\r\n\r\n[Height]\r\n9000\r\n\r\n[Deck]\r\n4\r\n\r\n");
  Start("");
  EXPECT_EQ(Text("lblTime.Caption"), "Time: 120");
  EXPECT_TRUE(Is("mnu120.Checked") && Is("mnuHot.Checked"));
  EXPECT_EQ(Text("lblPairs.Caption") + ", " + Text("lblRuns.Caption"), "Pairs x -5, Runs x 40000");
  EXPECT_EQ(Panel(1), "Make 900,000 for Bonus Round!   ");
  EXPECT_EQ(Game().CompletionBonus, 10000);  // what doesn't fit was skipped
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  driver.Do("close frmDuopick\n" + kYes);
  const std::string kept = folder.Read("Duopick.Ini");
  for (const char* part : {"[State]\r\n2\r\n\r\n[Width]\r\n9570\r\n\r\n[Height]\r\n7200\r\n\r\n[Deck]\r\n4",
                           "[Time]\r\n120\r\n", "[Runs Bonus]\r\n40000\r\n"})
    EXPECT_TRUE(Contains(kept, part)) << kept;
}

TEST_F(Duopick, TheClockRunsOnWhileThePlayerIsAskedAboutClosing) {
  Start(LayEightPairs());
  driver.Do(ClickTwoByTwo(0, 12) + kTakeScoreDuopick + "advance 40000");
  driver.common().CurrentScore = 40000;
  // The game ends under the question; the table stands before it then.
  const std::string told = driver.Do("close frmDuopick\nadvance 6000\nanswer \"No\"\n" + kEnterName + kNo);
  EXPECT_TRUE(Contains(told, "error \"no message box stands\"")) << told;
  EXPECT_EQ(Text("cmdPlay.Caption"), "&Play");
  EXPECT_TRUE(folder.Read("DuopickHighScores45.Txt").starts_with("Ann, 40000"));
  EXPECT_TRUE(Contains(driver.Do(kPlayDuopick), "ok"));
}

TEST_F(Duopick, TheBoardIsPlacedFromTheMiddle) {
  driver.Do(kOpenDuopick);
  for (const auto& [width, height] : {std::pair(9570, 7200), {14000, 9000}, {100, 100}}) {
    driver.Do("resize frmDuopick " + std::to_string(width) + " " + std::to_string(height));
    const int right = (std::max(width, 9570) - 9570) / 2, down = (std::max(height, 7200) - 7200) / 2;
    for (int card = 0; card < modDuopick::kCards; ++card)
      for (const std::string name : {"PlayCard(", "FieldSelectionRectangle("}) {
        const std::string control = kWin + name + std::to_string(card) + ").";
        EXPECT_EQ(driver.Get(control + "Left"), modDuopick::kTable[card].left + right);
        EXPECT_EQ(driver.Get(control + "Top"), modDuopick::kTable[card].top + down);
      }
    EXPECT_EQ(driver.Get(kWin + "CardStackPicture.Left"), 1950 + right);
    EXPECT_EQ(driver.Get(kWin + "cmdPlay.Left"), std::max(width, 9570) - 1320);
  }
}

}  // namespace
