// A whole game that does nothing: what a new game has to give, and no more. It opens, starts, pauses, times
// out, ends and closes by the frame alone; and so do others that aren't like any of the suite: with three
// rounds, without a clock, with any number of columns.
#include <gtest/gtest.h>

#include "suite/column_guide.h"
#include "suite/column_places.h"
#include "suite/high_scores.h"
#include "suite/round_game.h"
#include "tests/driver.h"

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
constexpr Design kClockDesign[] = {{"lblTime", 150, 120, 1500, 255}, {"Surface", 330, 480, 1140, 1140}};
constexpr Design kDesign[] = {
    {"ScoreRectangle", 1860, 420, 2040, 510},
    {"RoundRectangle", 5640, 420, 1080, 510},
    {"lblHighScore", 150, 6100, 2700, 255},
    {"Card", 3000, 3000, 1065, 1455},
};

class frmEighth : public RoundGame {
 public:
  explicit frmEighth(modCommon& common, const GamePlan& plan = kPlan) : RoundGame(common, plan) {
    if (plan.HasClock()) ApplyDesign(*this, kClockDesign);
    ApplyDesign(*this, kDesign);
  }

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
  void PayAwards() override {
    AddToScore(1500);
    if (whilePaid) whilePaid();
  }
  void EndGame() override {
    FinishGame();
    splash.Show(true);
    StopMusic();
  }
  void ShowCards(bool) override {}
  void RefreshPlayCard() override {}

  void PlaceBoard() override {
    PlaceInMiddle(kClockDesign);
    PlaceInMiddle(kDesign);
  }

  ControlArray<Image, 2> Card{*this, "Card"};
  bool dealt = true;
  std::function<void()> whilePaid;
};

// Three rounds before a bonus round that nobody reaches.
constexpr GamePlan kThreeRounds = [] {
  GamePlan plan = kPlan;
  plan.rounds = 3;
  return plan;
}();

constexpr GamePlan kNoClock = [] {
  GamePlan plan = kPlan;
  plan.limits = {};
  plan.timeLimit = 0;
  return plan;
}();

// As many columns of cards, with nothing else changed.
template <int N>
class frmColumns : public frmEighth {
 public:
  explicit frmColumns(modCommon& common) : frmEighth(common) {
    static constexpr const char* kNames[] = {"Column1", "Column2", "Column3", "Column4",
                                             "Column5", "Column6", "Column7"};
    for (int i = 0; i < N; ++i) images.push_back(std::make_unique<Slots>(*this, kNames[i]));
    SetUpColumns(*this, kPlaces);
  }
  void PlaceBoard() override {
    PlaceColumns(*this, kPlaces, [this](int i, int left) { ColumnTotal(i).Left = left; });
  }
  static constexpr ColumnPlaces kPlaces{420, 1200, 1815, 2280, {2550, 2940, 3345, 3750, 4140}, 450, 5670};

  using Slots = ControlArray<Image, kCardsOfColumn>;
  Slots& ColumnImages(int i) { return *images[i]; }
  std::vector<std::unique_ptr<Slots>> images;
  ControlArray<Label, N> ColumnTotal{*this, "ColumnTotal"}, ColumnSoft{*this, "ColumnSoft"};
  ControlArray<CommandButton, N> cmdHit{*this, "cmdHit"};
  Image PlayCardPicture{*this, "PlayCardPicture"}, NextCardPicture{*this, "NextCardPicture"};
  ColumnBoard<N> board;
};

template <int N>
class Columns : public ColumnGuide<frmColumns<N>> {
 public:
  using ColumnGuide<frmColumns<N>>::ColumnGuide;
  bool IsOpen(int) const override { return true; }
  bool SaysSoft(int) const override { return false; }
};

using Create = std::function<std::unique_ptr<GameWindow>(modCommon&)>;
Create Eighth(const GamePlan& plan) {
  return [&plan](modCommon& common) { return std::make_unique<frmEighth>(common, plan); };
}

std::string RunEighth(const TestFolder& folder, const std::string& commands, const Create& create) {
  std::istringstream in(commands);
  std::ostringstream out;
  ConsoleFrontEnd console({}, in, out);
  console.platform.random.Seed(8);
  Suite suite(console.platform, {folder.Path()}, {{"cmdEighth", "&Eighth", "Eighth!", "", create}});
  suite.Start();
  console.Run();
  return out.str();
}

std::string RunEighth(const TestFolder& folder, const std::string& commands, bool dealt = true) {
  return RunEighth(folder, commands, [dealt](modCommon& common) {
    auto game = std::make_unique<frmEighth>(common);
    game->dealt = dealt;
    return game;
  });
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

TEST(EighthGame, EachRoundIsAnnouncedByItsNumber) {
  TestFolder folder;
  const std::string take = "click frmEighth.cmdTakeScore\n";
  const std::string said =
      RunEighth(folder, "click frmSelect.cmdEighth\nclick frmEighth.cmdPlay\ntrace on\n" + take + take + take,
                Eighth(kThreeRounds));
  EXPECT_EQ(Joined(LinesOf(said, "* set frmEighth.lblMessage.Caption ")),
            R"("Prepare for Round Two!"|""|"Prepare for Round Three!"|"")");
  EXPECT_TRUE(Contains(said, "* show frmHiScoreName modal"));
}

// A tick stands for the click: both wait until the round has been paid and the next one announced.
TEST(EighthGame, WhatIsClickedWhileARoundIsPaidComesToNothing) {
  TestFolder folder;
  int presses = 0;
  const std::string said = RunEighth(folder,
                                     "click frmSelect.cmdEighth\nclick frmEighth.cmdPlay\ntrace on\n"
                                     "click frmEighth.cmdTakeScore\nadvance 1000\n",
                                     [&](modCommon& common) {
                                       auto game = std::make_unique<frmEighth>(common, kThreeRounds);
                                       game->whilePaid = [&presses, &window = *game] {
                                         window.Timer4.OnTimer = [&] {
                                           window.Timer4.Enabled = false;
                                           ++presses;
                                           window.cmdTakeScore_Click(GameWindow::By::Button);
                                         };
                                         window.Timer4.Enabled = true;
                                       };
                                       return game;
                                     });
  EXPECT_EQ(presses, 1);
  EXPECT_EQ(Joined(LinesOf(said, "* set frmEighth.lblMessage.Caption ")), R"("Prepare for Round Two!"|"")");
}

TEST(EighthGame, IsSilentOnceItIsGivenUp) {
  TestFolder folder;
  const std::string said = RunEighth(folder, R"(click frmSelect.cmdEighth
click frmEighth.mnuMusic
click frmEighth.cmdPlay
trace on
click frmEighth.cmdPlay
answer "Yes"
)");
  const std::vector<std::string> sent = LinesOf(said, "* mci ");
  ASSERT_FALSE(sent.empty()) << said;
  EXPECT_TRUE(sent.back().starts_with("\"close")) << said;
}

TEST(EighthGame, MayHaveNoClock) {
  TestFolder folder;
  const std::string said = RunEighth(folder, R"(click frmSelect.cmdEighth
dump frmEighth
click frmEighth.cmdPlay
advance 3000
click frmEighth.cmdPause
click frmEighth.cmdPause
advance 60000
click frmEighth.cmdTakeScore
click frmHiScoreName.cmdOK
get frmHighScores.Caption
)",
                                     Eighth(kNoClock));
  for (const char* absent : {"lblTime", "Surface", "Timer1", "Timer2", "mnuTime", "msgbox", "secs"})
    EXPECT_FALSE(Contains(said, absent)) << absent;
  EXPECT_TRUE(Contains(said, "ok \"Eighth! Hall of Fame\"\n")) << said;
  EXPECT_EQ(folder.Read("EighthHiScores.Txt").substr(0, 9), "Unknown U");
}

template <int N>
void ExpectColumns() {
  TestFolder folder;
  const Create create = [](modCommon& common) {
    auto game = std::make_unique<frmColumns<N>>(common);
    const Columns<N> guide(*game);
    EXPECT_EQ(guide.Keys().front().keys, "1 to " + std::to_string(N));
    EXPECT_EQ(guide.Places().size(), size_t{N}) << "the Hit buttons, as long as no card lies there";
    return game;
  };
  const std::string last = std::to_string(N - 1), middle = "get frmEighth.Column" + std::to_string(N);
  const std::string said =
      RunEighth(folder,
                "click frmSelect.cmdEighth\nresize frmEighth 10540 8200\nget frmEighth.cmdHit(" + last +
                    ").Left\n" + middle + "(4).Left\n" + middle + "(4).Top\n",
                create);
  EXPECT_EQ(Joined(LinesOf(said, "ok ")),
            std::to_string(950 + 1200 * (N - 1)) + "|" + std::to_string(920 + 1200 * (N - 1)) + "|4640");
}

TEST(EighthGame, HasAnyNumberOfColumns) {
  ExpectColumns<2>();
  ExpectColumns<7>();
}

TEST(Selector, HasRoomForNineGames) {
  TestFolder folder;
  std::istringstream in;
  std::ostringstream out;
  ConsoleFrontEnd console({}, in, out);
  Suite suite(console.platform, {folder.Path()},
              std::vector<GameEntry>(9, {"cmdEighth", "&Eighth", "Eighth!", "", Eighth(kPlan)}));
  suite.Start();
  const auto& select = dynamic_cast<const frmSelect&>(*console.platform.forms.front());
  int free = 0;  // below the button before
  for (const auto& button : select.gameButtons) {
    EXPECT_GE(button->Top, free);
    free = button->Top + button->Height;
  }
  EXPECT_LE(free, select.frmGameChoice.Height);
}
