// How a game window is put together: designs, captions, and which event runs what.
#include "suite/dial.h"
#include "suite/dialogs.h"
#include "suite/game_window.h"

namespace {

constexpr Design kSplashDesign[] = {
    {"frmSplash", 1620, 1560, 6300, 2850},
    {"imgSplashImage", 0, 0, 1065, 1440},
    {"lblCompanyProduct", 2600, 330, 3550, 330},
    {"lblProductName", 2600, 780, 3550, 780},
    {"lblPlatform", 2600, 1830, 3550, 270, "Windows 95/98/NT"},
    {"lblVersion", 2600, 2160, 3550, 270},
};

constexpr Design kButtonDesign[] = {
    {"cmdPlay", 8220, 90, 1200, 420, "&Play", "Starts a new game"},
    {"cmdPause", 8220, 1110, 1200, 420},
    {"StatusBar1", 0, 6840, 9540, 360},
};

void SetLettering(Label& label, int size, bool bold) {
  label.FontSize = size;
  label.FontBold = bold;
}

void SetEntry(Menu& entry, const char* caption, int rank) {
  entry.Caption = caption;
  entry.rank = rank;
}

}  // namespace

GameWindow::GameWindow(modCommon& common, const GamePlan& plan)
    : Form(common.platform, plan.names.window),
      common(common),
      plan(plan),
      RoundRectangle(*this, plan.names.roundBox.box),
      RoundBevelSide(*this, plan.names.roundBox.side),
      RoundBevelBottom(*this, plan.names.roundBox.bottom),
      lblCurrentScore(*this, plan.names.score),
      lblCurrentRound(*this, plan.names.roundNumber),
      lblMessage(*this, plan.names.message),
      lblScoring(*this, plan.names.scoring),
      cmdTakeScore(*this, plan.names.takeScoreButton),
      cmdExit(*this, plan.names.exitButton),
      ClockTimer(*this, plan.names.clockTimer),
      mnuFile(*this, plan.names.fileMenu),
      mnuPlay(mnuFile, "mnuPlay"),
      mnuTakeScore(mnuFile, plan.names.takeScoreEntry),
      mnuPause(mnuFile, "mnuPause"),
      mnuFileLine(mnuFile, "mnuFileLine"),
      mnuExit(mnuFile, "mnuExit"),
      mnuOptions(*this, "mnuOptions"),
      mnuView(mnuOptions, plan.names.viewEntry),
      mnuClear(mnuOptions, "mnuClear"),
      mnuOptionsLine(mnuOptions, "mnuOptionsLine"),
      mnuMusic(mnuOptions, "mnuMusic"),
      mnuSounds(mnuOptions, "mnuSounds"),
      mnuCustom(mnuOptions, plan.names.customEntry),
      mnuTime(mnuOptions, plan.names.timeMenu),
      mnuDeck(mnuOptions, "mnuDeck"),
      mnuPalm(mnuDeck, kPalmTree.menu),
      mnuMagic(mnuDeck, kMagicHands.menu),
      mnuNight(mnuDeck, kNightCastle.menu),
      mnuHot(mnuDeck, kHotCards.menu),
      mnuHelp(*this, "mnuHelp"),
      mnuRules(mnuHelp, "mnuRules"),
      mnuAbout(mnuHelp, "mnuAbout") {
  common.window = this;
  Sizable = true;
  MinWidth = plan.width;
  MinHeight = plan.height;
  SetUpControls();
  SetUpMenus();
  BindEvents();
}

GameWindow::~GameWindow() {
  if (common.window == this) common.window = nullptr;
}

void GameWindow::SetUpControls() {
  ApplyDesign(*this, kSplashDesign);
  ApplyDesign(*this, kButtonDesign);
  for (int i = 0; i < imgSplashImage.size(); ++i) {
    imgSplashImage(i).Left = 240 + 390 * i;
    imgSplashImage(i).Top = 300 + 270 * i;
    imgSplashImage(i).Picture = kFirstFace + 13 * i;
    imgSplashImage(i).BorderStyle = 1;
  }
  frmSplash.Panel = true;
  SetLettering(lblCompanyProduct, 10, true);
  SetLettering(lblProductName, 26, true);
  SetLettering(lblPlatform, 9, false);
  SetLettering(lblVersion, 9, false);
  for (Label* label : {&lblCompanyProduct, &lblProductName, &lblPlatform, &lblVersion}) label->Alignment = 2;
  lblProductName.ForeColor = kBlue;

  cmdTakeScore.Caption = "&Take Score";
  cmdTakeScore.Move(8220, 600, 1200, 420);
  cmdExit.Caption = "E&xit";
  cmdExit.ToolTipText = "Exits the game";
  cmdExit.Move(8220, 1620, 1200, 420);
  cmdPause.Caption = plan.names.pause;
  cmdPause.ToolTipText = plan.names.pauseTip;
  cmdTakeScore.Enabled = false;
  cmdPause.Enabled = false;

  for (Label* label : {&lblMessage, &lblScoring, &lblCurrentScore, &lblCurrentRound}) label->AutoSize = true;
  SetLettering(lblMessage, 20, true);
  SetLettering(lblScoring, 20, true);
  SetLettering(lblCurrentScore, 12, true);
  SetLettering(lblCurrentRound, 12, true);
  lblCurrentScore.ForeColor = kBlue;
  lblCurrentRound.ForeColor = kBlue;
  lblMessage.ForeColor = kRed;
  lblMessage.Visible = false;
  lblScoring.Visible = false;
  AddScoreBox(TimerRectangle, TimerBevelSide, TimerBevelBottom);
  AddScoreBox(ScoreRectangle, ScoreBevelSide, ScoreBevelBottom);
  AddScoreBox(RoundRectangle, RoundBevelSide, RoundBevelBottom);

  Timer1.Interval = 1000;
  Timer2.Interval = 200;
  ClockTimer.Interval = 60000;
  ClockTimer.Enabled = true;
  Timer4.Interval = plan.splashInterval;
}

void GameWindow::SetUpMenus() {
  SetEntry(mnuFile, plan.names.fileCaption, 10);
  SetEntry(mnuPlay, "&Play", 10);
  SetEntry(mnuTakeScore, "&Take Score", 20);
  SetEntry(mnuPause, plan.names.pause, 30);
  SetEntry(mnuFileLine, "-", 80);
  SetEntry(mnuExit, "E&xit", 90);
  mnuTakeScore.Enabled = false;
  mnuPause.Enabled = false;

  SetEntry(mnuOptions, "&Options", 20);
  SetEntry(mnuView, "&View High Scores...", 10);
  SetEntry(mnuClear, plan.names.clearCaption, 20);
  SetEntry(mnuOptionsLine, "-", 30);
  SetEntry(mnuMusic, "Play &Music (plays during game)", 40);
  SetEntry(mnuSounds, "&Play Sounds", 45);
  SetEntry(mnuCustom, plan.names.customCaption, 60);
  SetEntry(mnuTime, "&Time Limit", 70);
  mnuSounds.Checked = true;
  for (const TimeLimitEntry& limit : plan.limits) {
    auto entry = std::make_unique<Menu>(mnuTime, limit.menu);
    entry->Caption = limit.caption;
    entry->Checked = limit.seconds == plan.timeLimit;
    entry->OnClick = [this, seconds = limit.seconds] { ChooseTimeLimit(seconds); };
    timeLimitEntries.push_back(std::move(entry));
  }

  SetEntry(mnuDeck, "Dec&k", 90);
  for (int number = 1; number <= 4; ++number) {
    const BackDesign& design = plan.designs[number - 1];
    Menu& entry = static_cast<Menu&>(*find(design.menu));
    entry.Caption = design.caption;
    entry.OnClick = [this, number] { ChooseDeck(number); };
  }

  SetEntry(mnuHelp, "&Help", 30);
  SetEntry(mnuRules, "&Rules...", 10);
  SetEntry(mnuAbout, "&About...", 20);
}

void GameWindow::BindEvents() {
  Timer1.OnTimer = [this] {
    if (standing.IsPlaying()) log.Second(common.ElapsedSeconds + 1 == common.TimeLimit);
    Tick();
  };
  Timer2.OnTimer = [this] { DrawTimeDial(DialAngle(*this, common.DialSeconds), *this); };
  ClockTimer.OnTimer = [this] { StatusBar1.Panels(3).Text = common.TimeOfDay(); };
  Timer4.OnTimer = [this] { Timer4_Timer(); };

  const auto heldFrom = [this](Held from, auto deed) {
    return [this, isHeld = plan.held >= from, deed] {
      if (!isHeld || !standing.InputIsDead()) deed();
    };
  };
  cmdPlay.OnClick = heldFrom(Held::Buttons, [this] { cmdPlay_Click(By::Button); });
  mnuPlay.OnClick = heldFrom(Held::Commands, [this] { cmdPlay_Click(By::Entry); });
  cmdTakeScore.OnClick = [this] { cmdTakeScore_Click(By::Button); };
  mnuTakeScore.OnClick = [this] { cmdTakeScore_Click(By::Entry); };
  cmdPause.OnClick = mnuPause.OnClick = heldFrom(Held::Buttons, [this] { Pause(); });
  cmdExit.OnClick = heldFrom(Held::Buttons, [this] { Unload(); });
  mnuExit.OnClick = heldFrom(Held::Commands, [this] { Unload(); });

  mnuView.OnClick = [this] { PauseAround([this] { frmHighScores(common, *this).Show(true); }); };
  mnuRules.OnClick = [this] { PauseAround([this] { frmRules(common, *this).Show(true); }); };
  mnuAbout.OnClick = [this] { PauseAround([this] { frmAbout(common).Show(true); }); };
  mnuClear.OnClick = [this] { mnuClear_Click(); };
  mnuMusic.OnClick = [this] { ToggleMusic(); };
  mnuSounds.OnClick = [this] { ToggleSounds(); };
  mnuCustom.OnClick = [this] { ShowCustomScoring(); };

  lblMessage.OnChange = [this] { PlaceMessage(); };
  lblCurrentScore.OnChange = [this] { CenterIn(lblCurrentScore, ScoreRectangle); };
  lblCurrentRound.OnChange = [this] { CenterIn(lblCurrentRound, RoundRectangle); };
}
