// Blackrush from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/blackrush_table.h"

namespace {

class Blackrush : public GameTest {
 protected:
  Blackrush() : GameTest("Blackrush", "ScoringLabelInfo", "BlackrushHiScores90.Txt") {}
  std::string Tell(const std::string& commands) { return Story(driver.Trace(commands)); }
  // The words beside the columns that can be read.
  std::string Words() {
    std::string all;
    for (const char* label : {"ColumnSoft(0)", "ColumnSoft(1)", "ColumnSoft(2)", "ColumnSoft(3)"})
      if (Is(std::string(label) + ".Visible")) all += Caption(label);
    return all;
  }
  // The card on show, with the number of cards used.
  std::string Next() {
    return common().ImageList2.Key(Number("NextCardPicture.Picture")) + " " + Caption("lblCardsUsedCount");
  }
  std::string Pile() { return common().ImageList2.Key(Number("PlayCardPicture.Picture")); }
  frmBlackrush& Game() { return BlackrushOf(driver); }
  // The card on show becomes that one of the deck, as if the others had been played.
  void SkipTo(int position) { Game().board.position = position - 1, driver.Do(kPass); }
};

// --- Soft aces that outlive their column -------------------------------------------------------------

TEST_F(Blackrush, TheWordSoftComesBackWithAPause) {
  StartBlackrush(driver, {"1S", "10H"});
  driver.Do(Hits("00"));
  EXPECT_EQ(Words(), "");
  driver.Do(kPause + kPause);
  EXPECT_EQ(Words(), "Soft");
  driver.Do(kTake);
  EXPECT_EQ(Words(), "");
}

// --- The deck ----------------------------------------------------------------------------------------

TEST_F(Blackrush, CardsArePassed) {
  StartBlackrush(driver, {"2S", "3S", "4S", "5S"});
  driver.Do(kPass + kPass + kPass);
  EXPECT_EQ(Next(), "5S 3");
  EXPECT_FALSE(Is("cmdPass.Enabled"));
  EXPECT_EQ(Tell(kTake), "Count x3, \"Prepare for Round 2\", 2000");  // cards passed are used
  EXPECT_TRUE(Is("cmdPass.Enabled"));
  Game().board.passesLeft = 50;
  const std::pair<int, const char*> stages[] = {{16, "FULL"}, {17, "HALF"}, {35, "BACK"}, {51, "BACK"}};
  for (const auto& [position, stage] : stages) {
    SkipTo(position);
    EXPECT_EQ(Pile(), stage) << position;
  }
  driver.Do(kPass + "click frmBlackrush.mnuPalm\n" + kPause + kPause);
  EXPECT_EQ(Pile(), "EMPTY");
  EXPECT_EQ(Next(), std::string(CardKey(common().Deck[52])) + " 51");
  EXPECT_FALSE(Is("cmdPass.Enabled"));  // the last card can't be passed
}

TEST_F(Blackrush, TheDeckIsPlayedThrough) {
  driver.Do(kOpenBlackrush + "click frmBlackrush.mnuMusic\n" + kPlayBlackrush);
  SkipTo(52);
  Game().board.columns[2].total = 20;
  Game().board.deck[52] = "13S";
  EXPECT_EQ(Tell(Hit(2)), "Slide, 450");  // a bust doesn't end the round
  const CardCodes deck = common().Deck;
  EXPECT_EQ(Tell(DrawsFor(deck, {}) + Hit(1)),
            "Click, Applause, \"Awesome score!\", 2000, 1000, silence, Count x52, silence, open, music, "
            "\"Prepare for Round 2\", 2000, open, music");
  EXPECT_EQ(Score(), -100 + 100000 + 5200);
  EXPECT_EQ(common().Deck, deck) << "reshuffled, and not rebuilt";
  EXPECT_TRUE(Is("cmdPass.Enabled") && Is("cmdHit(0).Enabled"));
}

// --- The 21 Counter ----------------------------------------------------------------------------------

TEST_F(Blackrush, TheBonusRisesUntilTheCounterExpires) {
  StartBlackrush(driver, {"10S", "1S", "10H", "1H", "2S", "2H", "2C", "2D", "3D", "10C", "1C"});
  const auto bar = [&] { return Number("ProgressBar1.Value"); };
  const auto flash = [&] { return Number("lblTwentyoneTime.ForeColor"); };
  driver.Do("advance 5000\n" + Hits("00"));
  EXPECT_EQ(bar(), 0);  // nothing runs before the first
  driver.Do("advance 4410");
  EXPECT_EQ(bar(), 49);
  driver.Do("advance 50\n" + Hits("11") + "advance 40");  // the Hit kept the counter's step
  EXPECT_EQ(bar(), 1);
  driver.Do("advance 4410");
  EXPECT_EQ(flash(), kBlue);
  driver.Do("advance 250");
  EXPECT_EQ(flash(), kRed);
  driver.Do("advance 250");
  EXPECT_EQ(flash(), kBlack);
  // Five cards buy time, and no more.
  driver.Do("advance 2200\n" + Hits("22222"));
  EXPECT_EQ(bar(), 0);
  EXPECT_EQ(flash(), kBlue);
  EXPECT_EQ(Caption("lblBonus"), "2000");
  // Too late: the bonus falls to one step, and the bar goes on.
  driver.Do("advance 8950");
  EXPECT_EQ(bar(), 100);
  const std::string expired = driver.Trace("advance 90");
  EXPECT_EQ(Joined(LinesOf(expired, "* set frmBlackrush.lblBonus.")),
            "Caption \"1000\"|ForeColor 255|ForeColor 16711680");
  EXPECT_FALSE(Is("Timer5.Enabled"));
  driver.Do("advance 900");
  EXPECT_GE(bar(), 9);
  driver.Do(Hits("00"));
  EXPECT_EQ(Caption("lblBonus"), "2000");
}

TEST_F(Blackrush, APauseKeepsTheCountersState) {
  StartBlackrush(driver, {"10S", "1S", "9H"});
  driver.Do(kPause + kPause);
  EXPECT_FALSE(Is("Timer3.Enabled"));
  driver.Do(Hits("00") + "advance 4600\n" + kPause);
  EXPECT_FALSE(Is("Timer1.Enabled") || Is("Timer3.Enabled") || Is("cmdHit(2).Enabled"));
  EXPECT_TRUE(Is("Timer5.Enabled")) << "the words flash on";
  driver.Do("advance 60000\n" + kPause + "advance 90");
  EXPECT_EQ(Number("ProgressBar1.Value"), 52);
}

// --- Rounds and their ends ---------------------------------------------------------------------------

// The bonus round wants more than its score.
TEST_F(Blackrush, TheBonusRoundWantsOnePointMore) {
  Open();
  for (const int score : {250000, 250001}) {
    driver.Do(kPlayBlackrush);
    Game().CurrentRound = 3;
    common().CurrentScore = score;
    const std::string trace = driver.Trace(kTake + (score == 250000 ? kEnterName : ""));
    EXPECT_EQ(Story(trace), score == 250000 ? "HighScore, \"Game Over\", 2000"
                                            : "HighScore, \"Prepare for Bonus Round\", 2000");
    // The round that never comes stands under the announcement.
    if (score == 250000) {
      EXPECT_EQ(Joined(LinesOf(trace, "* set frmBlackrush.lblRound.Caption ")), "\"Round: 4\"|\"Game Over\"");
    }
  }
  EXPECT_EQ(Tell(kTake + kEnterName), "HighScore, \"Game Over\", 2000");
  EXPECT_EQ(Best(), "Ann, 250001");
}

TEST_F(Blackrush, TwentyOnesArePaidAfterTheCards) {
  StartBlackrush(driver, {"10S", "1S", "10H", "1H", "10C", "1C", "2S"});
  driver.Do(Hits("001122") + "advance 2500");
  const std::string paid = driver.Trace(kTake);
  EXPECT_EQ(Story(paid), "Count x6, 750, Count x9, \"Prepare for Round 2\", 2000");
  EXPECT_EQ(Joined(LinesOf(paid, "* set frmBlackrush.lblRoundScore.Caption ")), "\"3 X 3,000 = 9,000\"");
  EXPECT_EQ(Caption("lblTotalScore") + Caption("lblRound") + Caption("lblBonus"), "9,600Round: 20");
  // The clock wasn't stopped: the round is two ticks old.
  EXPECT_EQ(Caption("lblTime"), "Time: 88");
}

TEST_F(Blackrush, TimeRunsOut) {
  driver.Do(kOpenBlackrush + "click frmBlackrush.mnu30\n");
  StartBlackrush(driver, {"10S", "1S", "9H"});
  driver.Do("advance 14000");
  EXPECT_EQ(Panel(2), "Create columns of 21 to increase bonus score!");
  driver.Do("advance 9000");
  EXPECT_EQ(Panel(2) + Caption("lblTime"), "Better Hurry!Time: 7");
  driver.Do(Hits("002") + "advance 6000");
  const std::string ended = driver.Trace("advance 1000");
  EXPECT_EQ(Story(ended), "\"Times Up!\", 250 x10, Count x3, 750, Count x1, \"Prepare for Round 2\", 2000");
  EXPECT_LT(ended.find("* set frmBlackrush.Timer3.Enabled false"), ended.find("Times Up!"));
  EXPECT_LT(ended.find("* set frmBlackrush.Column3(0).Visible false"), ended.find("Times Up!"));
  EXPECT_EQ(Score(), 300 + 1000);
  // A time-out stops the clock: the next round has all its seconds, and its label waits for the first.
  driver.Do("advance 999");
  EXPECT_EQ(Caption("lblTime"), "Time:");
  driver.Do("advance 1");
  EXPECT_EQ(Caption("lblTime"), "Time: 29");
  EXPECT_EQ(
      Tell("advance 29000\nadvance 30000\n"),
      "\"Times Up!\", 250 x10, \"Prepare for Round 3\", 2000, \"Times Up!\", 250 x10, \"Game Over\", 2000");
}

// The counter may expire while the round is being paid; the next round begins at nothing all the same.
TEST_F(Blackrush, ALateExpiryDoesntReachTheNextRound) {
  StartBlackrush(driver, {"10S", "1S"});
  driver.Do(Hits("00") + "advance 9050\n");
  EXPECT_EQ(Tell(kTake), "Count x2, 750, Count x1, 250, \"Prepare for Round 2\", 2000");
  EXPECT_EQ(Caption("lblBonus"), "0");
}

TEST_F(Blackrush, ARoundThatIsntOpenCantRunOut) {
  driver.Do(kOpenBlackrush + "click frmBlackrush.mnu15\n" + kPlayBlackrush + Hit(0));
  Game().Timer4.OnTimer = [this] {  // something modal comes in while events are let through
    Game().Timer4.Enabled = false;
    common().Ask("Well?");
  };
  Game().Timer4.Enabled = true;
  driver.Do("advance 150\n" + kTake + "advance 60000\nanswer \"Yes\"");
  EXPECT_EQ(Caption("lblRound"), "Round: 2");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 14);
  EXPECT_EQ(Tell("advance 1000"), "\"Times Up!\", 250 x10, \"Prepare for Round 3\", 2000");
}

// --- Values from the settings file -------------------------------------------------------------------

TEST_F(Blackrush, SettingsAreReadBack) {
  const std::string rest =
      "Cards To Pass 3|TwentyOne Bonus Value 1000|Cards Used Bonus Value 100|5 Cards Bonus Value 750|"
      "Deck Completion Bonus 100000|Wait Period 2000|Time Limit 90|Bonus Round Score 250000|"
      "Count Down Score True|State 0|Width 9060|Height 7155";
  Open();
  EXPECT_EQ(Kept(), Settings("Play Sounds True|Timer Speed 90|Play Music False|Deck 3|" + rest));
  Open(Settings("Timer Speed 360|Deck 1|Wait Period 40000"));
  EXPECT_EQ(Number("Timer3.Interval"), 360);
  EXPECT_TRUE(Is("mnuHot.Checked") && common().CustomScoringInUse);
  driver.Do("close frmBlackrush\n" + kYes);
  EXPECT_EQ(Kept(), Settings("Play Sounds True|Timer Speed 360|Play Music False|Deck 1|" + rest))
      << "what doesn't fit was skipped";
  Open(Settings("Timer Speed 91"));
  EXPECT_EQ(Number("Timer3.Interval") + Game().CounterSpeed, 180);
}

TEST_F(Blackrush, WhatValuesFromTheFilePay) {
  const struct {
    const char *section, *value, *story;
    int score;
  } values[] = {
      {"[Count Down Score]", "False", "500, 750, 500, \"Prepare for Round 2\", 2000", 1200},
      {"[TwentyOne Bonus Value]", "0", "Count x2, 750, \"Prepare for Round 2\", 2000", 200},
      {"[TwentyOne Bonus Value]", "-50", "Count x2, 750, 500, \"Prepare for Round 2\", 2000", 150},
      {"[Cards Used Bonus Value]", "-7", "Count x2, 750, Count x1, \"Prepare for Round 2\", 2000", 986},
      {"[Wait Period]", "-9", "Count x2, 750, Count x1, \"Prepare for Round 2\", 0", 1200},
      {"[Cards To Pass]", "-2", "Count x2, 750, Count x1, \"Prepare for Round 2\", 2000", 1200},
  };
  for (const auto& each : values) {
    folder.Write("Blackrush.Ini", std::string(each.section) + "\r\n" + each.value + "\r\n\r\n");
    Driver suite(folder.Path());
    StartBlackrush(suite, {"10S", "1S"});
    suite.Do(Hits("00"));
    EXPECT_EQ(Story(suite.Trace(kTake)), each.story) << each.section << each.value;
    EXPECT_EQ(suite.common().CurrentScore, each.score) << each.section << each.value;
  }
}

TEST_F(Blackrush, AnOverflowEndsTheGameAndKeepsTheScore) {
  folder.Write("Blackrush.Ini", "[TwentyOne Bonus Value]\r\n2147483647\r\n\r\n");
  StartBlackrush(driver, {"10S", "1S", "10H", "1H"});
  driver.Do(Hits("001"));
  common().CurrentScore = 60000;
  EXPECT_EQ(Tell(Hit(1) + kOk + kEnterName), "box, HighScore, \"Game Over\", 2000");
  EXPECT_EQ(folder.Read("BlackrushHiScores90.Txt").substr(0, 12), "Ann, 60000\r\n");
  EXPECT_FALSE(Is("Column1(0).Visible") || Is("ScoringLabelInfo.Visible") || Is("cmdHit(0).Visible"));
  // In the middle of a count, too: nothing is left of it.
  StartBlackrush(driver, {"10S", "1S"});
  driver.Do(Hits("00"));
  EXPECT_EQ(Joined(BoxesOf(driver.Do(kTake + kOk + kEnterName))), "Overflow");
  driver.Do(kPlayBlackrush);
  EXPECT_TRUE(Is("ProgressBar1.Visible") && !Is("lblRoundScore.Visible"));
  EXPECT_EQ(Number("lblCardsUsed.ForeColor"), kBlue);
}

// --- End Game and closing ----------------------------------------------------------------------------

TEST_F(Blackrush, EndGameLeavesTheTableAlone) {
  driver.Do(kOpenBlackrush + "click frmBlackrush.mnuMusic\n");
  StartBlackrush(driver, {"10S"});
  common().CurrentScore = 60000;
  const std::string asked = driver.Trace("click frmBlackrush.mnuPlay\nadvance 3000\nanswer \"No\"\n");
  EXPECT_EQ(Story(asked), "silence, box, open, music");
  EXPECT_EQ(Joined(BoxesOf(asked)), "You have a game in progress. Are you sure you want to quit?");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 3);  // the clock ran on
  EXPECT_EQ(Tell(kPlayBlackrush + kYes), "silence, box, silence, \"Game Over\", 2000");
  EXPECT_TRUE(folder.Read("BlackrushHiScores90.Txt").starts_with("Quillmark, 50000\r\n"));
  EXPECT_EQ(Panel(2), "Game Over ");
  // The next game is for the table again.
  driver.Do(kPlayBlackrush);
  common().CurrentScore = 60000;
  Game().CurrentRound = 4;
  driver.Do(kTake + kEnterName);
  EXPECT_TRUE(folder.Read("BlackrushHiScores90.Txt").starts_with("Ann, 60000\r\n"));
}

TEST_F(Blackrush, TheClockRunsOnUnderTheQuestions) {
  driver.Do(kOpenBlackrush + "click frmBlackrush.mnu15\nclick frmBlackrush.mnuMusic\n" + kPlayBlackrush);
  // A round ends under the question, and the game goes on in the next.
  EXPECT_EQ(Tell(kPlayBlackrush + "advance 16000\nanswer \"No\"\n"),
            "silence, box, \"Times Up!\", 250 x10, silence x2, open, music, \"Prepare for Round 2\", 2000, "
            "open, music, open, music");
  EXPECT_EQ(Text("cmdPlay.ToolTipText"), "Ends the game in progress");
  // The whole game does: there is nothing left to end, and nothing to play to.
  for (const std::string answer : {"No", "Yes"}) {
    const std::string told =
        Tell(kPlayBlackrush + "advance 16000\nadvance 16000\nadvance 16000\nanswer \"" + answer + "\"\n");
    EXPECT_TRUE(told.ends_with("\"Game Over\", 2000")) << told;
    EXPECT_EQ(Caption("cmdPlay") + Text("cmdPlay.ToolTipText"), "&PlayStarts a new game");
    driver.Do(kPlayBlackrush);
  }
  driver.Do(
      "close frmBlackrush\nadvance 2000\nanswer \"No\"\nstate frmBlackrush 1\nadvance 1000\nstate frmBlackrush 0");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 3) << "nor does a minimised window stop it";
}

}  // namespace
