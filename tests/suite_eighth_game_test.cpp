// A whole game that does nothing: what a new game has to give, and no more. It opens, starts, pauses, times
// out, ends and closes by the frame alone.
#include <gtest/gtest.h>

#include "suite/high_scores.h"
#include "suite/round_game.h"
#include "tests/harness.h"

namespace {

constexpr TimeLimitEntry kLimits[] = {{5, "mnu5", "&5 seconds"}, {10, "mnu10", "&10 seconds"}};
constexpr const char* kSections[] = {"[Time]", "[State]", "[Width]", "[Height]", "[Deck]"};
constexpr RulesParagraph kParagraphs[] = {{"There are none."}, {"Good luck and have fun!"}};
constexpr RulesText kRules{30, kParagraphs};
constexpr GamePlan kPlan{.names = {.window = "frmEighth", .settingsFile = "\\Eighth.Ini"},
                         .tables = OneTable("EighthHiScores", "1000"),
                         .width = 9540,
                         .height = 7200,
                         .limits = kLimits,
                         .timeLimit = 5,
                         .sections = kSections,
                         .rules = kRules,
                         .dialog = {.window = "frmEighthCustom"},
                         .rounds = 1,
                         .bonusRound = BonusRound::None};

// Where the standing controls are. A real game adds its board.
constexpr Design kDesign[] = {
    {"lblTime", 150, 120, 1500, 255},         {"Surface", 330, 480, 1140, 1140},
    {"ScoreRectangle", 1860, 420, 2040, 510}, {"RoundRectangle", 5640, 420, 1080, 510},
    {"lblHighScore", 150, 6100, 2700, 255},   {"Card", 3000, 3000, 1065, 1455},
};

class frmEighth : public RoundGame {
 public:
  explicit frmEighth(modCommon& common) : RoundGame(common, kPlan) { ApplyDesign(*this, kDesign); }

  void Play() override {
    if (!dealt) return;
    standing.Begin();
    CurrentRound = 1;
    common.CurrentScore = 0;
    ShowScore();
    InitRound();
  }
  void InitRound() override {
    clock.ResetDial();
    Timer1.Enabled = true;
    ClearRound();
    ShowRoundTime();
    OpenRound();
  }
  void PayAwards() override { AddToScore(1500); }
  void EndGame() override {
    FinishGame();
    splash.Show(true);
  }
  void ShowCards(bool) override {}
  void RefreshPlayCard() override {}

  void PlaceBoard() override { PlaceInMiddle(kDesign); }

  ControlArray<Image, 2> Card{*this, "Card"};
  bool dealt = true;
};

std::string RunEighth(const TestFolder& folder, const std::string& commands, bool dealt = true) {
  std::istringstream in(commands);
  std::ostringstream out;
  ConsoleFrontEnd console({}, in, out);
  console.platform.random.Seed(8);
  Suite suite(console.platform, {folder.Path()},
              {{"cmdEighth", "&Eighth", "Eighth!", "", [dealt](modCommon& common) {
                  auto game = std::make_unique<frmEighth>(common);
                  game->dealt = dealt;
                  return game;
                }}});
  suite.Start();
  console.Run();
  return out.str();
}

}  // namespace

TEST(EighthGame, IsPlayedByTheFrameAlone) {
  TestFolder folder;
  EXPECT_EQ(RunEighth(folder, R"(click frmSelect.cmdEighth
get frmEighth.lblHighScore.Caption
click frmEighth.mnu10
click frmEighth.cmdPlay
advance 3000
click frmEighth.cmdPause
advance 60000
get frmEighth.lblTime.Caption
get frmEighth.lblMessage.Caption
click frmEighth.cmdPause
click frmEighth.mnuRules
click frmRules.cmdOK
advance 7000
type frmHiScoreName.lblPlayerName "Eve"
click frmHiScoreName.cmdOK
get frmHighScores.ScoreList(0).Caption
click frmHighScores.cmdDone
get frmEighth.frmSplash.Visible
get frmEighth.cmdPlay.Caption
close frmEighth
answer "Yes"
close frmSelect
)"),
            R"(* load frmSelect
* show frmSelect
ok
* load frmEighth
* show frmEighth
* hide frmSelect
ok
ok "High Score: 1,000"
ok
ok
ok
ok
ok
ok "Time: 7"
ok "Game Paused"
ok
* load frmRules
* show frmRules modal
ok
* unload frmRules
ok
* load frmHiScoreName
* show frmHiScoreName modal
ok
ok
* unload frmHiScoreName
* load frmHighScores
* show frmHighScores modal
ok
ok "Eve"
* unload frmHighScores
ok
ok true
ok "&Play"
* msgbox {"text":"Giving up so soon?","title":"Eighth!","icon":"question","buttons":["Yes","No"]}
ok
* show frmSelect
* unload frmEighth
ok
* unload frmSelect
* end
)");
  EXPECT_EQ(folder.Read("EighthHiScores10.Txt").substr(0, 11), "Eve, 1500\r\n");
  EXPECT_EQ(folder.Read("Eighth.Ini").substr(0, 12), "[Time]\r\n10\r\n");
}

TEST(EighthGame, AStartThatComesToNothingLeavesTheWindowIdle) {
  TestFolder folder;
  EXPECT_EQ(RunEighth(folder, R"(click frmSelect.cmdEighth
click frmEighth.cmdPlay
get frmEighth.cmdPlay.Caption
get frmEighth.cmdPlay.ToolTipText
get frmEighth.frmSplash.Visible
get frmEighth.Timer4.Enabled
click frmEighth.cmdPlay
click frmEighth.mnuPlay
close frmEighth
answer "Yes"
close frmSelect
)",
                      false),
            R"(* load frmSelect
* show frmSelect
ok
* load frmEighth
* show frmEighth
* hide frmSelect
ok
ok
ok "&Play"
ok "Starts a new game"
ok true
ok true
ok
ok
* msgbox {"text":"Giving up so soon?","title":"Eighth!","icon":"question","buttons":["Yes","No"]}
ok
* show frmSelect
* unload frmEighth
ok
* unload frmSelect
* end
)");
}

TEST(EighthGame, ARowOfADesignMayNameAControlArray) {
  TestFolder folder;
  const std::string said = RunEighth(folder, R"(click frmSelect.cmdEighth
resize frmEighth 10540 8200
get frmEighth.Card(1).Left
get frmEighth.Card(0).Top
)");
  EXPECT_NE(said.find("ok 3500\nok 3500\n"), std::string::npos) << said;
}
