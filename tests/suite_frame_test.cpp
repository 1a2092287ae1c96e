// The plan of a game window, seen on Sumfall: clock, dial, pausing, closing, music, the shared dialogs.
#include <gtest/gtest.h>

#include "tests/sumfall_cards.h"

namespace {

const std::string kWin = "frmSumfall.";

class Frame : public ::testing::Test {
 protected:
  Frame() { driver.Do(kOpenSumfall); }
  std::string Text(const std::string& property) { return driver.Text(kWin + property); }
  std::string Panel(int number) { return Text("StatusBar1.Panels(" + std::to_string(number) + ").Text"); }
  bool Is(const std::string& property) { return driver.Get(kWin + property) == true; }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(Frame, StandsInTheMiddleAndTellsTheTimeOfDay) {
  EXPECT_EQ(driver.Get(kWin + "Left"), (15360 - 9540) / 2);
  EXPECT_EQ(driver.Get(kWin + "Top"), (11520 - 7200) / 2);
  driver.Do("advance 59999");
  EXPECT_EQ(Panel(3), "12:00 PM");
  driver.Do("advance 1");
  EXPECT_EQ(Panel(3), "12:01 PM");
}

TEST_F(Frame, SplashShowsTheGamesCardAndBacksInTurn) {
  const auto pictures = [&] {
    std::string all;
    for (int i = 0; i < 4; ++i) all += Text("imgSplashImage(" + std::to_string(i) + ").Picture") + " ";
    return all;
  };
  std::string said = driver.Trace(
      "random 14..65 30\nclick frmSumfall.mnuNight\nadvance 1250");  // one tick, then four forward
  EXPECT_EQ(pictures(), "8 8 8 8 ");
  driver.Do("advance 2000");
  EXPECT_EQ(pictures(), "68 68 68 68 ");
  driver.Do("advance 1500");
  EXPECT_EQ(pictures(), "8 8 68 68 ");
  EXPECT_FALSE(Contains(said, "frmSumfall.imgSplashImage(0).BorderStyle")) << "the frame is left alone";
  driver.Do(kPlay + "advance 3000");
  EXPECT_EQ(pictures(), "8 8 68 68 ") << "the animation stands still during a game";
}

TEST_F(Frame, WarnsInTheLastHalfAndInTheLastQuarter) {
  const struct {
    int limit, half, quarter;
  } rows[] = {{30, 15, 8}, {60, 30, 15}, {90, 45, 22}, {120, 60, 30}, {150, 75, 38}, {180, 90, 45}};
  for (const auto& row : rows) {
    driver.Do("click frmSumfall.mnu" + std::to_string(row.limit) + "\n" + kPlay);
    const std::string hint = "Click on exposed cards to total 11!   ";
    for (int left = row.limit - 1; left > 0; --left) {
      driver.Do("advance 1000");
      EXPECT_EQ(Text("lblTime.Caption"), "Time: " + std::to_string(left));
      EXPECT_EQ(Panel(2), left > row.half       ? hint
                          : left >= row.quarter ? "Times running out!"
                                                : "Better Hurry!")
          << row.limit << " " << left;
    }
    driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"");
  }
}

// The slices of the dial, as "start-end:colour".
std::string Slices(const std::string& output) {
  std::string all;
  for (const std::string& line : LinesOf(output, "* draw frmSumfall.Surface ")) {
    std::istringstream words(line);
    std::string kind, start, end, colour;
    words >> kind >> start >> end >> colour;
    all += kind == "clear" ? "| " : start + "-" + end + ":" + colour + " ";
  }
  return all;
}

TEST_F(Frame, DialGrowsQuarterByQuarter) {
  driver.Do(kPlay);
  frmSumfall& game = SumfallOf(driver);
  const std::string half = "0-90:65280 90-180:65280 ", third = half + "180-270:65535 ";
  const struct {
    int angle;
    std::string slices;
    bool blinks;
  } rows[] = {{0, "", false},
              {1, "0-1:65280 ", false},
              {90, "0-90:65280 ", false},
              {91, "0-90:65280 90-91:65280 ", false},
              {180, half, false},
              {181, half + "180-181:65535 ", false},
              {270, third, false},
              {271, third + "270-271:0 ", true},
              {300, third + "270-300:255 ", true},
              {359, third + "270-359:0 ", true},
              {360, third + "270-360:255 ", false},
              {361, "", false},
              {-5, "", false}};
  for (const auto& row : rows) {
    std::string said;
    game.Timer1.Enabled = game.Timer2.Enabled = false;
    game.Timer4.OnTimer = [&] { game.clock.Draw(row.angle); };
    game.Timer4.Enabled = true;
    said = driver.Trace("advance 250");
    game.Timer4.Enabled = false;
    EXPECT_EQ(Slices(said), "| " + row.slices) << row.angle;
    EXPECT_EQ(Is("Timer2.Enabled"), row.blinks) << row.angle;
  }
}

TEST_F(Frame, DialBlinksInTheLastQuarterUntilItIsFull) {
  driver.Do("click frmSumfall.mnu30\n" + kPlay + "advance 22000");
  const std::string third = "0-90:65280 90-180:65280 180-270:65535 270-276:";
  const std::string said = driver.Trace("advance 1000");
  EXPECT_EQ(Slices(said), "| " + third + "0 ") << "second 23 is at 276 degrees";
  EXPECT_EQ(Slices(driver.Trace("advance 600")), "| " + third + "255 | " + third + "0 | " + third + "255 ");
  driver.Do("click frmSumfall.cmdPause");
  EXPECT_NE(Slices(driver.Trace("advance 200")), "") << "the blink goes on while the clock stands";
}

TEST_F(Frame, APausedFieldLiesFaceDownAndRefusesClicks) {
  driver.Do(kPlay + "advance 2500\nclick frmSumfall.cmdPause");
  const std::string said = driver.Trace(
      "click frmSumfall.FieldCardPicture(21)\nclick frmSumfall.UpCardPicture\nclick frmSumfall.PlayCardPicture");
  EXPECT_EQ(Joined(LinesOf(said, "* sound ")), Joined(std::vector<std::string>(3, "\"\\\\Chord.wav\"")));
  for (int place = 0; place < 22; ++place) {
    EXPECT_EQ(driver.Get(Field(place) + ".Picture"), 2);
    EXPECT_EQ(driver.Get(Field(place) + ".BorderStyle"), 0);
  }
  driver.Do("click frmSumfall.mnuMagic");
  EXPECT_EQ(driver.Get(Field(20) + ".Picture"), 5) << "the new back shows at once";
  driver.Do("click frmSumfall.cmdPause");
  for (int place = 0; place < 22; ++place) EXPECT_GE(driver.Get(Field(place) + ".Picture"), 14);
}

TEST_F(Frame, DialogsLeaveAFinishedGameAlone) {
  FinishWith(driver, 0, "");
  EXPECT_EQ(Joined(LinesOf(driver.Do("click frmSumfall.mnuRules\nget frmSumfall.lblMessage.Caption\nclick "
                                     "frmRules.cmdOK\nget frmSumfall.lblMessage.Caption"),
                           "ok ")),
            "\"Game Over\"|\"Game Over\"");
}

TEST_F(Frame, AboutTellsTheWholeMinutes) {
  driver.Do("advance 59999");
  const std::string about =
      "click frmSumfall.mnuAbout\nget frmAbout.lblStats.Caption\nget frmAbout.Caption\nclick "
      "frmAbout.cmdCoolDude\n";
  EXPECT_EQ(Joined(LinesOf(driver.Do(about + "advance 120001\n" + about), "ok ")),
            "\"This session has lasted 0 minutes.Thanks for playing!\"|\"About Sumfall!\"|"
            "\"This session has lasted 3 minutes.Thanks for playing!\"|\"About Sumfall!\"");
}

TEST_F(Frame, SumfallStandsStillWhileItAsksAboutClosing) {
  const std::string no = "close frmSumfall\nanswer \"No\"\n";
  std::string said =
      driver.Do(kPlay +
                "advance 1700\nclose frmSumfall\nget frmSumfall.lblMessage.Caption\nadvance "
                "5000\nanswer \"No\"\nadvance 999\nget frmSumfall.lblTime.Caption\nadvance 1\nget "
                "frmSumfall.lblTime.Caption");
  EXPECT_EQ(Joined(LinesOf(said, "ok ")), "\"Game Paused\"|\"Time: 89\"|\"Time: 88\"");
  said = driver.Do("click frmSumfall.cmdPause\n" + no + "get frmSumfall.lblMessage.Caption");
  EXPECT_EQ(Joined(LinesOf(said, "ok ")), "\"Game Paused\"") << "a game that was paused already stays so";
  said =
      driver.Trace("click frmSumfall.mnuMusic\nclick frmSumfall.cmdPause\nclose frmSumfall\nanswer \"Yes\"");
  EXPECT_TRUE(Contains(said, "* set frmSumfall.MousePointer 11"));
  EXPECT_EQ(LinesOf(said, "* mci ").back(), "\"close HarbekMidi\"");
  EXPECT_LT(said.rfind("* show frmSelect"), said.rfind("* unload frmSumfall"));
}

TEST_F(Frame, EndGameAsksWithTheClockStanding) {
  driver.Do(kPlay + "advance 3000\nclick frmSumfall.mnuMusic");
  const std::string quit = "You have a game in progress, are you sure you want to quit now?",
                    restart = "You have a game in progress, are you sure you want to restart now?";
  std::string said = driver.Do(
      "click frmSumfall.cmdPlay\nget frmSumfall.lblMessage.Caption\nget "
      "frmSumfall.cmdPlay.ToolTipText\nadvance 9000\nanswer \"No\"\nclick frmSumfall.mnuPlay\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(said)), quit + "|" + restart);
  EXPECT_EQ(Joined(LinesOf(said, "ok ")), "\"Game Paused\"|\"Starts a new game\"");
  EXPECT_EQ(Text("cmdPlay.ToolTipText") + Text("lblTime.Caption"), "Ends the game in progressTime: 87");
  said = driver.Trace("click frmSumfall.cmdPlay\nanswer \"Yes\"");
  EXPECT_EQ(Joined(LinesOf(said, "* mci ")),
            "\"close HarbekMidi\"|\"open \\\"\\\\Quillmark.MID\\\" type sequencer alias HarbekMidi\"|\"play "
            "HarbekMidi\"|\"close HarbekMidi\"");
  EXPECT_FALSE(driver.InGame());
  EXPECT_EQ(Text("cmdTakeScore.Caption") + Text("mnuTakeScore.Caption"), "&Replay&Replay");
  EXPECT_EQ(Text("lblTime.Caption") + Text("lblCurrentScore.Caption") + Text("lblCurrentRound.Caption"),
            "Time:01");
  EXPECT_FALSE(Contains(folder.Read("HiScores90_11.Txt"), "Unknown")) << "no score is entered";
}

TEST_F(Frame, WithoutSoundsNothingIsHeard) {
  const std::string refused = "click frmSumfall.FieldCardPicture(0)\n";
  EXPECT_TRUE(LinesOf(driver.Trace("click frmSumfall.mnuSounds\n" + kPlay + refused), "* sound ").empty());
  EXPECT_EQ(Joined(LinesOf(driver.Trace("click frmSumfall.mnuSounds\n" + refused), "* sound ")),
            "\"\\\\Chord.wav\"");
}

TEST_F(Frame, MenuPlayDiffersFromTheButton) {
  std::string said = driver.Trace("click frmSumfall.mnuMusic\nclick frmSumfall.mnuPlay");
  EXPECT_TRUE(LinesOf(said, "* mci ").empty()) << "no music";
  EXPECT_TRUE(Is("Timer4.Enabled") && Is("mnuSave.Enabled") && !Is("frmSplash.Visible"));
  EXPECT_TRUE(driver.InGame());
  driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"");
  driver.Do(kPlay);
  EXPECT_FALSE(Is("Timer4.Enabled") || Is("mnuSave.Enabled") || Is("mnuOpen.Enabled") ||
               Is("mnuTime.Enabled") || Is("mnuGoal.Enabled") || Is("mnuScoring.Enabled"));
  EXPECT_TRUE(Is("mnuDeck.Enabled") && Is("mnuViewHiScore.Enabled") && Is("mnuPause.Enabled"));
}

}  // namespace
