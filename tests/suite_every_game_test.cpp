// What holds for every game of the suite, from the day on which it is named in `AllGames`.
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>

#include "suite/high_scores.h"
#include "tests/driver.h"

namespace {

std::vector<std::string> Buttons() {
  std::vector<std::string> buttons;
  for (const GameEntry& game : AllGames()) buttons.emplace_back(game.button);
  return buttons;
}

class EveryGame : public ::testing::TestWithParam<std::string> {
 protected:
  EveryGame() { Open(); }
  void Open() {
    driver.Do("click frmSelect." + GetParam());
    plan_ = &Game().plan;
  }
  GameWindow& Game() { return *driver.common().window; }
  const GamePlan& Plan() { return *plan_; }  // also when the window is gone
  std::string Window() { return Plan().names.window; }
  std::string Click(const Control& control) { return "click " + control.FullName() + "\n"; }
  std::string Play() { return Click(Game().cmdPlay); }
  // The table's file for the window's settings.
  std::string Table(const HighScoreTable& table) { return Game().TableFile(table.name).substr(1); }
  // What a text box of the modal window holds.
  std::string TextOf(const std::string& box) {
    const Form& form = *driver.platform().ModalForm();
    return static_cast<TextBox*>(form.find(box.substr(box.find('.') + 1)))->Text;
  }
  bool Shown(const Control& control) { return driver.Get(control.FullName() + ".Visible") == true; }

  TestFolder folder;
  Driver driver{folder.Path()};

 private:
  const GamePlan* plan_ = nullptr;
};

TEST_P(EveryGame, OpensInItsSplashState) {
  GameWindow& game = Game();
  const std::vector<GameEntry> games = AllGames();
  const auto entry = std::ranges::find(games, GetParam(), &GameEntry::button);
  EXPECT_EQ(entry->Name(), Plan().Name()) << "by both the history knows the game";
  EXPECT_EQ(entry->rounds, Plan().rounds);
  EXPECT_EQ(game.Caption, driver.common().AppTitle);
  EXPECT_TRUE(game.standing.CanStart());
  EXPECT_TRUE(game.frmSplash.Visible && game.Timer4.Enabled && game.ClockTimer.Enabled);
  EXPECT_FALSE(game.Timer1.Enabled || game.cmdPause.Enabled || game.mnuPause.Enabled ||
               game.lblMessage.Visible || game.lblScoring.Visible);
  EXPECT_EQ(game.cmdPlay.Caption, "&Play");
  EXPECT_EQ(game.cmdPlay.ToolTipText, "Starts a new game");
  EXPECT_EQ(game.mnuPlay.Caption, "&Play");
  EXPECT_EQ(game.lblProductName.Caption, driver.common().AppTitle);
  EXPECT_EQ(game.lblPlatform.Caption, "Windows 95/98/NT");
  EXPECT_EQ(game.StatusBar1.Panels(1).Text.get().rfind("Welcome to " + driver.common().AppTitle, 0), 0u);
  EXPECT_EQ(game.Width, Plan().width);
  EXPECT_EQ(game.Height, Plan().height);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
  EXPECT_TRUE(folder.Has(Table(Plan().tables.shown)));
  EXPECT_EQ(game.lblHighScore.Caption,
            Plan().names.highScore + FormatNumber(std::stoll(Plan().tables.shown.defaultScore)));
}

TEST_P(EveryGame, SettingsComeBackAsTheyWereWritten) {
  const auto close = [&] { driver.Do("close " + Window() + "\nanswer \"Yes\""); };
  const std::string file = std::string(Plan().names.settingsFile).substr(1);
  close();
  const std::string defaults = folder.Read(file);
  for (const char* section : {"[State]\r\n0\r\n", "[Play Sounds]\r\nTrue\r\n", "[Play Music]\r\nFalse\r\n"})
    EXPECT_TRUE(Contains(defaults, section)) << section;
  Open();
  const bool clock = Plan().HasClock();
  const std::string limit = clock ? Window() + "." + Plan().limits.front().menu : "";
  driver.Do(Click(Game().mnuSounds) + Click(Game().mnuMusic) + Click(Game().mnuNight) +
            (clock ? "click " + limit + "\n" : "") + "resize " + Window() + " 12000 9000");
  const long long deck = driver.common().DeckDesign;
  close();
  const std::string changed = folder.Read(file);
  Open();
  if (clock) {
    EXPECT_EQ(driver.clock().TimeLimit, Plan().limits.front().seconds);
    EXPECT_EQ(driver.Get(limit + ".Checked"), true);
  }
  EXPECT_EQ(driver.common().DeckDesign, deck);
  EXPECT_TRUE(driver.common().PlayMusic && !driver.common().PlaySounds);
  EXPECT_EQ(driver.Get(Window() + ".mnuNight.Checked"), true);
  EXPECT_EQ(Game().Width, 12000);
  close();
  EXPECT_EQ(folder.Read(file), changed);
  // Each value of the game's own finds its way back; those that the game reads in another way excepted.
  for (const char* section : Plan().sections) EXPECT_TRUE(Contains(changed, section)) << section;
}

// Numbers of the dialog that don't count as customised scoring.
const std::set<std::string> kHarmless = {"txtWaitPeriod", "txt21BonusValue"};

TEST_P(EveryGame, EachFieldOfTheDialogMarksTheTable) {
  std::vector<std::string> boxes;
  std::string dialog;
  driver.meanwhile = [&] {
    const Form& form = *driver.platform().ModalForm();
    dialog = form.name;
    for (const Control* control : form.Controls())
      if (control->kind == Control::Kind::TextBox) boxes.push_back(control->FullName());
  };
  const std::string open = Click(Game().mnuCustom);
  driver.Do(open + "@\n");
  const std::string defaults = "click " + dialog + ".cmdDefault\n", ok = "click " + dialog + ".cmdOK\n";
  std::vector<int> standards;
  driver.meanwhile = [&] {
    for (const std::string& box : boxes) standards.push_back(std::stoi(TextOf(box)));
  };
  driver.Do(open + defaults + "@\n" + ok);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
  for (size_t i = 0; i < boxes.size(); ++i) {
    const std::string& box = boxes[i];
    const int other = standards[i] == 1 ? 2 : standards[i] - 1;
    const std::string said =
        driver.Do(open + defaults + "type " + box + " \"" + std::to_string(other) + "\"\n" + ok);
    EXPECT_TRUE(BoxesOf(said).empty()) << box << said;
    EXPECT_EQ(driver.common().CustomScoringInUse, !kHarmless.contains(box.substr(box.find('.') + 1))) << box;
    driver.Do(open + defaults + ok);
    EXPECT_FALSE(driver.common().CustomScoringInUse) << box;
  }
  EXPECT_FALSE(boxes.empty());
}

TEST_P(EveryGame, PausesAndGoesOn) {
  if (!Plan().HasClock()) GTEST_SKIP() << "it has no clock";
  driver.Do(Click(Game().mnuMusic) + Play() + "advance 2000");
  GameWindow& game = Game();
  EXPECT_TRUE(game.standing.IsPlaying());
  EXPECT_TRUE(game.Timer1.Enabled && !game.frmSplash.Visible);
  EXPECT_EQ(game.cmdPlay.Caption, Plan().names.endGame);
  const std::string cards = driver.Do("dump " + Window());
  for (const Control* command : std::initializer_list<const Control*>{&game.cmdPause, &game.mnuPause}) {
    std::string said = driver.Trace(Click(*command));
    EXPECT_TRUE(game.standing.IsPaused());
    EXPECT_EQ(game.lblMessage.Caption, "Game Paused");
    EXPECT_TRUE(game.lblMessage.Visible && !game.Timer1.Enabled && !game.cmdPlay.Enabled);
    EXPECT_EQ(game.cmdPause.Caption.get() + game.mnuPause.Caption.get(), "&Resume&Resume");
    EXPECT_EQ(Joined(LinesOf(said, "* mci ")), "\"close HarbekMidi\"");
    driver.Do("advance 200000");
    EXPECT_EQ(driver.clock().ElapsedSeconds, 2);
    said = driver.Trace(Click(*command));
    EXPECT_TRUE(game.standing.IsPlaying());
    EXPECT_FALSE(game.lblMessage.Visible);
    EXPECT_EQ(game.lblMessage.Caption, "");
    EXPECT_EQ(game.cmdPause.Caption, Plan().names.pause);
    EXPECT_EQ(game.cmdPause.ToolTipText, Plan().names.pauseTip);
    EXPECT_EQ(LinesOf(said, "* mci ").size(), 2u) << "the music begins again";
  }
  driver.Do("advance 999");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 2) << "the second begins anew";
  driver.Do("advance 1");
  EXPECT_EQ(driver.clock().ElapsedSeconds, 3);
}

TEST_P(EveryGame, DialogsStopARunningGameAndNoOther) {
  GameWindow& game = Game();
  const std::pair<const Menu*, const char*> dialogs[] = {{&game.mnuRules, "click frmRules.cmdOK"},
                                                         {&game.mnuAbout, "click frmAbout.cmdCoolDude"},
                                                         {&game.mnuView, "click frmHighScores.cmdDone"}};
  const auto stands = [&]() -> std::string {
    return game.standing.IsPaused() ? "paused" : game.standing.IsPlaying() ? "playing" : "idle";
  };
  std::string seen;
  driver.meanwhile = [&] { seen += stands(); };
  const auto lookAtAll = [&](const std::string& during, const std::string& after) {
    for (const auto& [entry, done] : dialogs) {
      const long long seconds = driver.clock().ElapsedSeconds;
      seen.clear();
      driver.Do(Click(*entry) + "advance 5000\n@\n" + done);
      EXPECT_EQ(seen, during);
      EXPECT_EQ(stands(), after);
      EXPECT_EQ(driver.clock().ElapsedSeconds, seconds);
    }
  };
  lookAtAll("idle", "idle");
  driver.Do(Play() + "advance 1000");
  lookAtAll("paused", "playing");
  driver.Do(Click(game.cmdPause));
  lookAtAll("paused", "paused");
}

TEST_P(EveryGame, TheRulesNameTheTimeLimit) {
  if (!Plan().HasClock()) GTEST_SKIP() << "it has no clock";
  const std::string limit = Plan().limits.back().menu;
  std::string text;
  driver.meanwhile = [&] { text = TextOf("frmRules.lblRules"); };
  driver.Do("click " + Window() + "." + limit + "\n" + Click(Game().mnuRules) + "@\nclick frmRules.cmdOK");
  EXPECT_TRUE(Contains(text, "each lasting " + std::to_string(Plan().limits.back().seconds) + " seconds"));
  EXPECT_TRUE(Contains(text, driver.common().AppTitle + " Rules, Notes and Strategy"));
  EXPECT_TRUE(text.ends_with("Good luck and have fun!"));
  EXPECT_FALSE(Contains(text, "{"));
}

TEST_P(EveryGame, EndGameAsksAndNoGoesOn) {
  driver.Do(Play() + "advance 1000");
  const std::string tip = Game().cmdPlay.ToolTipText;
  std::string said = driver.Do(Play() + "answer \"No\"");
  EXPECT_EQ(BoxesOf(said).size(), 1u);
  EXPECT_TRUE(Game().standing.IsPlaying());
  EXPECT_EQ(Game().cmdPlay.ToolTipText, tip);
  EXPECT_TRUE(Game().Timer1.Enabled && driver.InGame());
  said = driver.Do(Play() + "answer \"Yes\"\n" + "close frmHiScoreName\nclose frmHighScores");
  EXPECT_FALSE(driver.InGame() || Game().Timer1.Enabled);
  EXPECT_TRUE(Game().frmSplash.Visible && Game().Timer4.Enabled && Game().cmdPlay.Enabled);
  EXPECT_EQ(Game().cmdPlay.Caption, "&Play");
  // Sumfall's entry replays now; Handgrid's pauses nothing.
  static const std::map<std::string, std::string> kStay{{"frmSumfall", "mnuTakeScore"},
                                                        {"frmHandgrid", "mnuPause"}};
  std::string stays;
  const auto add = [&](const auto& command) { stays += command.Enabled ? command.NameInForm() : ""; };
  add(Game().cmdPause);
  add(Game().mnuPause);
  add(Game().mnuTakeScore);
  const auto told = kStay.find(Window());
  EXPECT_EQ(stays, told == kStay.end() ? "" : told->second);
  driver.Do(Play() + "advance 1000");
  EXPECT_TRUE(Game().standing.IsPlaying()) << "another game can be played";
  EXPECT_EQ(driver.common().CurrentScore, 0);
}

TEST_P(EveryGame, ClosingAsksAndNoGoesOn) {
  std::string said = driver.Do("close " + Window() + "\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(said)), "Giving up so soon?");
  driver.Do("advance 300000");
  said = driver.Do("close " + Window() + "\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(said)), "Are you sure you want to quit now? Were just getting started!");
  said = driver.Do(Play() + "close " + Window() + "\nanswer \"No\"");
  EXPECT_EQ(Joined(BoxesOf(said)), "You have a game in progress. Are you sure you want to quit now?");
  EXPECT_TRUE(Game().standing.IsPlaying());
  // A minimised window closes too, and comes back as it was.
  driver.Do("state " + Window() + " 1");
  driver.Do("close " + Window() + "\nanswer \"Yes\"");
  EXPECT_FALSE(driver.common().window);
  EXPECT_EQ(driver.Get("frmSelect.Visible"), true);
  Open();
  EXPECT_EQ(Game().WindowState, window_state::kMinimised);
  driver.Do("state " + Window() + " 0");
  EXPECT_EQ(Game().Width, Plan().width);
}

TEST_P(EveryGame, TimeOutLeadsToTheTableInTheEnd) {
  if (!Plan().HasClock()) GTEST_SKIP() << "it has no clock";
  folder.Write(Table(Plan().tables.final), "Low, -99999\r\n\r\n");
  const std::string name = "type frmHiScoreName.lblPlayerName \"Ann\"\nclick frmHiScoreName.cmdOK\n";
  driver.Do(Click(Game().mnuMusic) + "click " + Window() + "." + Plan().limits.front().menu);
  folder.Write(Table(Plan().tables.final), "Low, -99999\r\n\r\n");
  driver.Do(Play());
  for (int round = 0; round < 5 && driver.InGame(); ++round) {
    const std::string said = driver.Do("advance " + std::to_string(Plan().limits.front().seconds * 1000) +
                                       "\nadvance 2000\n" + name + "click frmHighScores.cmdDone");
    EXPECT_TRUE(BoxesOf(said).empty()) << said;
  }
  EXPECT_FALSE(driver.InGame());
  EXPECT_TRUE(Game().standing.IsOver());
  EXPECT_TRUE(Game().frmSplash.Visible && Game().cmdPlay.Enabled && Game().cmdExit.Enabled);
  EXPECT_FALSE(Game().Timer1.Enabled || Shown(Game().lblMessage) || Game().cmdPause.Enabled);
  EXPECT_TRUE(Contains(folder.Read(Table(Plan().tables.final)), "Ann, "));
}

TEST_P(EveryGame, AFailureInPlayEndsTheGameAndNotTheProgram) {
  driver.Do(Play());
  Game().Timer4.OnTimer = [this] {
    Game().Timer4.Enabled = false;
    RaiseOverflow();
  };
  Game().Timer4.Enabled = true;
  const std::string said = driver.Do("advance 300\nanswer \"OK\"\nclose frmHiScoreName\nclose frmHighScores");
  EXPECT_EQ(Joined(BoxesOf(said)), "Overflow");
  EXPECT_FALSE(Contains(said, "* end"));
  EXPECT_FALSE(driver.InGame() || Game().Timer1.Enabled);
  EXPECT_EQ(Game().MousePointer, kDefaultPointer);
  driver.Do(Play() + "advance 1000");
  EXPECT_TRUE(Game().standing.IsPlaying());
}

// But in Sumfall, where nothing is lost.
TEST_P(EveryGame, AnErrorOnTheWayIntoAGameIsToldAndEndsTheProgram) {
  for (int picture = 13; picture <= kLastFace; ++picture) driver.common().ImageList2.SetKey(picture, "");
  const std::string said = driver.Do(Play() + "answer \"OK\"\n");
  const bool ends = Plan().playFailure.has_value();
  EXPECT_EQ(BoxesOf(said).at(0), ends ? "Element not found" : "Unable to deal the cards.");
  EXPECT_EQ(Contains(said, "* end \"Element not found\"\n"), ends) << said;
}

// In all games but one a score that equals it is enough.
TEST_P(EveryGame, TheBonusRoundIsEarnedByTheScoreAlone) {
  if (Plan().bonusRound == BonusRound::None) GTEST_SKIP() << "it has none";
  if (!Plan().HasClock()) GTEST_SKIP() << "it has no clock";
  const long long needed = Game().BonusScore + (Plan().bonusRound == BonusRound::ForMore);
  const std::string out = "advance " + std::to_string(driver.clock().TimeLimit * 1000) + "\nadvance 2000\n";
  for (const long long score : {needed - 1, needed}) {
    driver.Do(Play());
    while (Game().CurrentRound < Plan().rounds) driver.Do(out);
    driver.common().CurrentScore = score;
    driver.Do(out + (score < needed ? "close frmHiScoreName\nclose frmHighScores\n" : ""));
    EXPECT_EQ(driver.InGame(), score == needed) << score;
  }
  driver.Do(out + "close frmHiScoreName\nclose frmHighScores\n");
  EXPECT_FALSE(driver.InGame()) << "there is no other";
}

// In most games the clock runs on under the question, which is answered behind the table then.
TEST_P(EveryGame, ClosingStopsTheClockOrTheGameMayEndUnderTheQuestion) {
  if (!Plan().HasClock()) GTEST_SKIP() << "it has no clock";
  const bool stops = Plan().whileClosing != WhileClosing::RunsOn;
  const std::string ask = "close " + Window() + "\nadvance ", no = "\nanswer \"No\"\n";
  driver.Do(Play() + ask + "5000" + no);
  EXPECT_EQ(driver.clock().ElapsedSeconds, stops ? 0 : 5);
  if (stops) return;
  Game().CurrentRound = Plan().rounds;
  // In the table, but not as far as the bonus round.
  driver.common().CurrentScore = std::stoi(Plan().tables.final.defaultScore) + 1;
  const std::string limit = std::to_string(driver.clock().TimeLimit * 1000);
  const std::string said =
      driver.Do(ask + limit + "\nadvance 2000\nclick frmHiScoreName.cmdOK\nclick frmHighScores.cmdDone" + no);
  EXPECT_FALSE(driver.InGame()) << said;
  EXPECT_EQ(Game().cmdPlay.Caption, "&Play");
  EXPECT_TRUE(Shown(Game()));
}

TEST_P(EveryGame, NothingTicksWhileAFullDiskIsTold) {
  driver.Do(Play() + "advance 1000");
  std::filesystem::remove_all(folder.Path());
  folder.Write("../" + folder.Path().filename().string(), "a file stands where the folder was");
  const std::string said = driver.Do("close " + Window() + "\nanswer \"Yes\"\nadvance 400000\nanswer \"OK\"");
  EXPECT_EQ(BoxesOf(said).size(), 2u) << said;
  EXPECT_FALSE(driver.common().window);
  std::filesystem::remove(folder.Path());
}

TEST_P(EveryGame, SmallScreensAndSizesAreHeld) {
  for (const auto& [width, height] : {std::pair(600, 400), {20000, 8000}, {9600, 15000}}) {
    driver.Do("resize " + Window() + " " + std::to_string(width) + " " + std::to_string(height));
    EXPECT_GE(Game().Width, Plan().width);
    EXPECT_GE(Game().Height, Plan().height);
    EXPECT_EQ(Game().StatusBar1.Top + Game().StatusBar1.Height, Game().Height);
  }
  driver.Do("state " + Window() + " 2");
  EXPECT_EQ(Game().Width, driver.platform().ScreenExtent().width);
  const std::string file = std::string(Plan().names.settingsFile).substr(1);
  driver.Do("close " + Window() + "\nanswer \"Yes\"");
  EXPECT_TRUE(Contains(folder.Read(file), "[State]\r\n2\r\n"));
  Open();
  EXPECT_EQ(Game().Width, driver.platform().ScreenExtent().width);
}

TEST_P(EveryGame, AWindowKeptOnALargerScreenFitsASmallOne) {
  const std::string file = std::string(Plan().names.settingsFile).substr(1);
  driver.Do("close " + Window() + "\nanswer \"Yes\"");
  std::string settings = folder.Read(file);
  for (const char* size : {"[Width]\r\n", "[Height]\r\n"})
    settings.insert(settings.find(size) + strlen(size), "4");
  folder.Write(file, settings);
  for (const Extent screen :
       {Extent{640 * 15, 480 * 15}, Extent{320 * 15, 200 * 15}, Extent{2560 * 15, 1440 * 15}}) {
    RunOptions options;
    options.console.screen = screen;
    Driver other(folder.Path(), options);
    other.Do("click frmSelect." + GetParam());
    const GameWindow& game = *other.common().window;
    EXPECT_EQ(game.Width, std::max(Plan().width, screen.width));
    EXPECT_EQ(game.Height, std::max(Plan().height, screen.height));
  }
}

INSTANTIATE_TEST_SUITE_P(Games, EveryGame, ::testing::ValuesIn(Buttons()),
                         [](const auto& info) { return info.param; });

}  // namespace
