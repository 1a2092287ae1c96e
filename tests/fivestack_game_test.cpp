// Fivestack from its button to its place in the table.
#include <gtest/gtest.h>

#include "tests/fivestack_table.h"

namespace {

using namespace modFivestack;

const std::string kFlash = "150 x12", kNext = "\"Prepare for Round ";
const std::string kTooLow = "\"Sorry, 97 or more needed to win!\", " + kFlash + ", ";
constexpr int kGreen = 49152;

class Fivestack : public GameTest {
 protected:
  Fivestack() : GameTest("Fivestack", "ScoringLabel", "HiScores60.Txt") {}
  std::string Next() { return common().ImageList2.Key(Number("NextCardPicture.Picture")); }
  // The card total, and what Give Up reads and does by now.
  std::string Offer() { return Caption("lblCurrentTotal") + Caption("cmdGiveUp"); }
  frmFivestack& Game() { return FivestackOf(driver); }
};

// --- Rounds and scores ---------------------------------------------------------------------------

TEST_F(Fivestack, TheTotalRunsUpColumnByColumn) {
  StartFivestack(driver, {"9S", "7S", "5S"});
  driver.Do(Hit("02"));
  EXPECT_EQ(Joined(LinesOf(driver.Trace(Hit("4")), "* set frmFivestack.lblCurrentTotal.Caption ")),
            "\"0\"|\"9\"|\"16\"|\"21\"");
}

TEST_F(Fivestack, ABustLosesTheRound) {
  StartFivestack(driver, {"10S", "11S", "1S", "2S"});
  const std::string trace = driver.Trace(Hit("0000"));  // 21 is no shield
  EXPECT_EQ(Told(trace), "Click x4, Busted, \"Busted!\", Busted, " + kFlash + ", " + kNext + "2\", 2000");
  EXPECT_TRUE(Contains(trace, "cmdGiveUp.Caption \"&Give up\""));
  EXPECT_EQ(Text("Caption") + Caption("lblRound"), "Fivestack!: Round 2Round: 2");
  EXPECT_EQ(Offer(), "0&Give Up");
  EXPECT_EQ(Score(), 0);
}

TEST_F(Fivestack, ASavedAceMayCostTheScore) {
  // Four columns of 20, and 17 with an ace that counts 11.
  StartFivestack(driver,
                 {"10S", "11S", "10H", "11H", "10C", "11C", "10D", "11D", "1S", "6S", "8S", "2S", "2H"});
  driver.Do(Hit("0011223344"));
  EXPECT_EQ(Offer(), "97&Take score");
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kGreen);
  driver.Do(Hit("4"));
  EXPECT_EQ(Caption("ColumnTotal(4)") + Next(), "152H") << "the two of spades is skipped";
  EXPECT_EQ(Offer(), "95&Give up");
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kRed);
  EXPECT_EQ(Tell(kGiveUp), "Busted, " + kTooLow + kNext + "2\", 2000");
}

TEST_F(Fivestack, PassesAreCountedByTheRound) {
  Open(Settings("Cards To Pass 2"));
  driver.Do(LayRound({"2S", "3S", "4S", "5S"}) + kPlayFivestack + kPass);
  EXPECT_TRUE(Is("cmdPass.Enabled"));
  driver.Do(kPass);
  EXPECT_EQ(Next(), "4S");
  EXPECT_FALSE(Is("cmdPass.Enabled"));
  driver.Do(kGiveUp);
  EXPECT_TRUE(Is("cmdPass.Enabled"));
  Open(Settings("Cards To Pass -3"));
  EXPECT_FALSE(Is("cmdPass.Enabled"));
}

TEST_F(Fivestack, AScoreIsCountedOver) {
  StartFivestack(driver, CardsFor(99));
  driver.Do("advance 2000\n" + PlayRound(99));
  const std::string trace = driver.Trace(kGiveUp), story = Told(trace);
  EXPECT_TRUE(Contains(trace, "Card Total Value (150) X Time Bonus (293)"));
  EXPECT_TRUE(story.starts_with(R"("43,950", 2000, 10, "43,364", 10, "42,778", Tick, 10, "42,192", 10, )"))
      << story;
  EXPECT_TRUE(story.ends_with(R"("586", Tick, 10, "0", 50, "Prepare for Round 2", 2000)")) << story;
  EXPECT_EQ(LinesOf(trace, "* sleep 10").size(), 75u);
  EXPECT_EQ(Score(), 43950);
}

TEST_F(Fivestack, APerfectBoardIsScoredByItsLastCard) {
  StartFivestack(driver, CardsFor(105));
  driver.Do("advance 30000\n" + HitAll(1) + LayRound(CardsFor(97)));
  const std::string trace = driver.Trace(Hit("4"));
  EXPECT_EQ(Joined(LinesOf(trace, "* set frmFivestack.ScoringLabelInfo.Caption ")),
            "\"Card Total Value (1000) X Time Bonus (200)\"|\"Totally Awesome Score!\"");
  EXPECT_TRUE(Told(trace).starts_with("Click, \"200,000\", 2000, Applause, 2000 x2, 10, \"199,600\", 10"));
  EXPECT_EQ(Score(), 200000);
  // The rest of the click runs on the new round's board.
  EXPECT_EQ(Number("lblCurrentTotal.ForeColor"), kRed);
  EXPECT_EQ(Next(), "10S");
}

TEST_F(Fivestack, WithoutACountTheTotalJumps) {
  Open(Settings("CountDownScore False|WaitPeriod -5"));
  driver.Do(LayRound(CardsFor(100)) + kPlayFivestack + "advance 1000\n" + PlayRound(100));
  EXPECT_EQ(Tell(kGiveUp), "\"59,400\", 0, \"Prepare for Round 2\", 0");
  EXPECT_EQ(Score(), 59400);
  EXPECT_FALSE(common().CustomScoringInUse);
}

TEST_F(Fivestack, TheFirstSecondPaysTheBonusOfTheLastRound) {
  StartFivestack(driver, CardsFor(97));
  EXPECT_EQ(Tell(PlayRound(97) + LayRound(CardsFor(98)) + kGiveUp),
            "Click x14, \"0\", 2000, 50, " + kNext + "2\", 2000");
  EXPECT_EQ(Score(), 0);
  driver.Do("advance 3000\n" + PlayRound(98) + LayRound(CardsFor(97)) + kGiveUp);
  EXPECT_EQ(Score(), 29000);
  EXPECT_EQ(Caption("lblTimeBonus"), " 300");
}

TEST_F(Fivestack, TheTimeBonusFallsUntilTheTimeIsUp) {
  Open();
  driver.Do("click frmFivestack.mnu15\n" + kPlayFivestack + "advance 14000");
  EXPECT_EQ(Caption("lblTimeBonus"), " 113");
  EXPECT_EQ(Panel(2), "Click on Hit buttons to create columns of 21!   ") << "nobody is warned";
  EXPECT_EQ(Tell(LayRound(CardsFor(97)) + "advance 1000"),
            "\"Times Up!\", 2000, Busted, " + kTooLow + kNext + "2\", 2000");
  // Who has a score by then is paid at the minimum.
  driver.Do(PlayRound(97) + "advance 15000");
  EXPECT_EQ(Score(), 5000);
}

// A bonus below zero, from the settings file, is counted off exactly; one of nothing pays nothing.
TEST_F(Fivestack, ABonusBelowZeroIsCountedOff) {
  Open(Settings("TimeBonusMin -300|Time 60"));
  driver.Do(LayRound(CardsFor(98)) + kPlayFivestack + "advance 30000\n" + PlayRound(98) +
            LayRound(CardsFor(98)));
  EXPECT_EQ(Caption("lblTimeBonus"), " 0");
  EXPECT_TRUE(LinesOf(driver.Trace(kGiveUp), "* sleep 10").empty());
  EXPECT_EQ(Score(), 0);
  driver.Do("advance 31000\n" + PlayRound(98));
  EXPECT_EQ(Caption("lblTimeBonus"), "-10");
  EXPECT_EQ(LinesOf(driver.Trace(kGiveUp), "* sleep 10").size(), 50u);
  EXPECT_EQ(Caption("lblTotalScore"), "-1,000");
}

// --- The end of a game ---------------------------------------------------------------------------

TEST_F(Fivestack, TheBonusRoundIsReachedByTheExactScore) {
  const std::string over = "HighScore, \"Game Over\", 2000";
  Open();
  for (const int score : {199999, 200000}) {
    driver.Do(kPlayFivestack + kGiveUp + kGiveUp);
    common().CurrentScore = score;
    const bool earned = score == 200000;
    EXPECT_EQ(Tell(kGiveUp + (earned ? "" : kEnterName)),
              "Busted, " + kTooLow + (earned ? "\"Prepare for Bonus Round!\", HighScore, 2000" : over));
    EXPECT_EQ(driver.InGame(), earned);
    EXPECT_EQ(Text("Caption"), earned ? "Fivestack!: Round 4" : "Fivestack!: Game Over");
  }
  EXPECT_EQ(Tell(kGiveUp + kEnterName), "Busted, " + kTooLow + over);
  EXPECT_EQ(Best(), "Ann, 200000");
}

TEST_F(Fivestack, EndGameOffersNothingToTheTable) {
  StartFivestack(driver, CardsFor(104));
  driver.Do("advance 3000\n" + PlayRound(104) + kGiveUp + "click frmFivestack.mnuMusic\n" + Hit("0"));
  const std::string asked = "silence, \"Game Paused\", silence, box, \"\", ";
  EXPECT_EQ(Tell("click frmFivestack.mnuPlay\nadvance 90000\n" + kNo), asked + "open, music");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 0);
  EXPECT_EQ(Tell(kPlayFivestack + kYes), asked + "silence, \"Game Over\"");
  EXPECT_EQ(Best(), "Quillmark, 50000");
  EXPECT_EQ(Caption("lblTotalScore"), "145,000");
  EXPECT_FALSE(Is("Column1(0).Visible") || Is("cmdHit(0).Visible") || Is("frmScore.Visible"));
}

// --- Pausing, minimising, closing ----------------------------------------------------------------

TEST_F(Fivestack, APauseLeavesNothingButCardsBehind) {
  StartFivestack(driver, {"1S", "8S", "5S"});
  driver.Do(Hit("002") + kPauseFivestack);
  for (const char* name : {"Column1(0)", "Column1(1)", "ColumnSoft(0)", "cmdHit(0)", "NextCardPicture"})
    EXPECT_FALSE(Is(std::string(name) + ".Visible")) << name;
  driver.Do("click frmFivestack.mnuNight\n" + kPauseFivestack);
  EXPECT_TRUE(Is("Column1(1).Visible") && Is("Column2(0).Visible") && Is("ColumnSoft(0).Visible"));
  for (const char* empty : {"Column1(2)", "Column2(1)", "Column3(1)", "ColumnSoft(2)"})
    EXPECT_FALSE(Is(std::string(empty) + ".Visible")) << empty;
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kNightCastle.back);
  driver.Do("click frmFivestack.mnuPalm");
  EXPECT_EQ(common().DeckDesign, 4) << "the deck menu stays open";
}

TEST_F(Fivestack, AMinimisedGameStandsStill) {
  StartFivestack(driver, {"2S"});
  driver.Do("click frmFivestack.mnuMusic\nadvance 2000");
  EXPECT_EQ(Tell("state frmFivestack 1\nadvance 70000"), "silence");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 2);
  // A question over the minimised window changes nothing.
  driver.Do("close frmFivestack\n" + kNo + "advance 70000");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 2);
  EXPECT_EQ(Tell("state frmFivestack 0"), "open, music");
  driver.Do("advance 1000");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 3);
  driver.Do(kPauseFivestack + "state frmFivestack 1\nstate frmFivestack 2");
  EXPECT_FALSE(Is("Timer1.Enabled")) << "a paused game stays paused";
}

TEST_F(Fivestack, ClosingPausesARunningGameAndRunsAPausedOne) {
  const std::string close = "close frmFivestack\nadvance 5000\n" + kNo;
  StartFivestack(driver, {"2S"});
  driver.Do("advance 1000\n" + close);
  EXPECT_EQ(driver.clock().ElapsedSeconds, 1);
  EXPECT_TRUE(Game().standing.IsPlaying());
  driver.Do(kPauseFivestack + close);
  EXPECT_EQ(driver.clock().ElapsedSeconds, 6) << "it ran behind the question";
  EXPECT_TRUE(Game().standing.IsPaused());
  // Behind the question the round may end, and be followed by the next, or by the end of the game.
  driver.Do("close frmFivestack\nadvance 54000\n" + kNo);
  EXPECT_TRUE(Game().standing.IsPaused());
  EXPECT_EQ(Caption("lblRound"), "Round: 2");
  EXPECT_FALSE(Is("Column1(0).Visible") || Is("cmdHit(0).Visible"));
  driver.Do(kPauseFivestack + kGiveUp + kPauseFivestack + "close frmFivestack\nadvance 60000\n" + kNo);
  EXPECT_FALSE(driver.InGame());
}

// --- Settings, failures --------------------------------------------------------------------------

// What isn't "True" is off, and the default limit's table is looked at first.
TEST_F(Fivestack, SettingsAreReadInAnyOrder) {
  Open(
      Settings("Cards To Pass 3|TimeBonusMin 50|Nonsense 1|WaitPeriod -5|BonusScore 1000|TimeBonusMax 350|"
               "Time 75|Deck 3|Play Sounds perhaps|Play Music True|CountDownScore False"));
  EXPECT_FLOAT_EQ(Game().TimeBonusDecay(), 4);
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kNightCastle.back);
  EXPECT_TRUE(Is("mnu75.Checked") && Is("mnuMusic.Checked") && common().CustomScoringInUse);
  EXPECT_FALSE(Is("mnuSounds.Checked") || common().PlaySounds);
  EXPECT_TRUE(folder.Has("HiScores60.Txt") && folder.Has("HiScores75.Txt"));
  driver.Do("click frmFivestack.mnu30");
  EXPECT_FLOAT_EQ(Game().TimeBonusDecay(), 10);
  driver.Do("close frmFivestack\n" + kYes);
  EXPECT_EQ(Kept(),
            Settings("Time 30|Play Sounds False|Play Music True|Deck 3|TimeBonusMax 350|TimeBonusMin 50|"
                     "BonusScore 1000|WaitPeriod -5|CountDownScore False|Cards To Pass 3|State 0|Width 9540|"
                     "Height 7305"));
  // What no settings name stays as the last game left it.
  common().ImageList2.SetKey(kNightCastle.back, "");
  UseBackDesign(common().ImageList2, kMagicHands);
  Open(Settings("Time 31|Deck 5|WaitPeriod 40000"));
  EXPECT_EQ(Number("PlayCardPicture.Picture"), kMagicHands.back);
  EXPECT_EQ(driver.clock().TimeLimit, 60);
  EXPECT_EQ(Game().WaitPeriod, 2000);
}

// It marks the table, and is forgotten by the next game.
TEST_F(Fivestack, ARefusedNumberOfPassesHoldsUntilPlay) {
  Open();
  driver.Do(
      "click frmFivestack.mnuCustom\ntype frmFivestackCustomScoring.txtNumberOfCardsToPass \"99\"\n"
      "click frmFivestackCustomScoring.cmdOK\n" +
      kOk + "click frmFivestackCustomScoring.cmdCancel\n");
  EXPECT_TRUE(common().CustomScoringInUse);
  EXPECT_EQ(Game().board.passesLeft, 10);
  driver.Do(kPlayFivestack);
  EXPECT_EQ(Game().board.passesLeft, 1);
}

TEST_F(Fivestack, ADeckThatIsPassedThroughEndsTheGame) {
  Open(Settings("Cards To Pass 100|BonusScore 1"));
  driver.Do(LayRound(CardsFor(104)) + kPlayFivestack + "advance 3000\n" + PlayRound(104) + kGiveUp);
  std::string clicks;
  for (int i = 0; i < 50; ++i) clicks += kPass;
  EXPECT_FALSE(Contains(driver.Do(clicks), "msgbox"));
  const std::string told = driver.Do(kPass + kOk + kEnterName);
  EXPECT_TRUE(Contains(told, R"({"text":"Subscript out of range","title":"Fivestack!","icon":"critical")"))
      << told;
  EXPECT_FALSE(driver.InGame());
  EXPECT_EQ(Best(), "Ann*, 145000");
  EXPECT_FALSE(Is("cmdHit(0).Visible") || Is("Column1(0).Visible") || Is("ScoringLabel.Visible"));
}

TEST_F(Fivestack, AFailedScoreIsToldAndPlayGoesOn) {
  StartFivestack(driver, CardsFor(105));
  common().TimeBonus = 2147484;  // another game may leave such a value
  const std::string told = driver.Do(PlayRound(105) + kOk);
  EXPECT_TRUE(Contains(told, R"({"text":"Overflow","title":"Fivestack!","icon":"none")")) << told;
  EXPECT_EQ(Text("Caption"), "Fivestack!: Round 2");
  EXPECT_EQ(Score(), 0);
  // The score itself: what fitted stays counted.
  driver.Do(LayRound(CardsFor(97)) + kGiveUp + "advance 3000\n" + PlayRound(97));
  common().CurrentScore = 2147483647 - 600;
  EXPECT_EQ(Joined(BoxesOf(driver.Do(kGiveUp + kOk))), "Overflow");
  EXPECT_EQ(Caption("lblRound"), "Round: 4");
  EXPECT_EQ(Score(), 2147483647 - 20);
  EXPECT_FALSE(Is("ScoringLabel.Visible") || Is("ScoringLabelInfo.Visible"));
}

TEST_F(Fivestack, OtherErrorsEndTheProgram) {
  Open();
  common().ImageList2.SetKey(13, "");
  const std::string told = driver.Do(kPlayFivestack + kOk);
  EXPECT_EQ(Joined(BoxesOf(told)), "Element not found");
  EXPECT_TRUE(told.ends_with("* end \"Element not found\"\n")) << told;
}

}  // namespace
