#include "suite/game_window.h"

#include <algorithm>

#include "suite/dial.h"
#include "suite/dialogs.h"
#include "suite/high_scores.h"
#include "window/text.h"

GameWindow::GameWindow(modCommon& common, const GamePlan& plan)
    : Form(common.platform, plan.window),
      common(common),
      plan(plan),
      cmdTakeScore(*this, plan.takeScoreButton),
      cmdExit(*this, plan.exitButton),
      ClockTimer(*this, plan.clockTimer),
      mnuFile(*this, plan.fileMenu),
      mnuPlay(mnuFile, "mnuPlay"),
      mnuTakeScore(mnuFile, plan.takeScoreMenu),
      mnuPause(mnuFile, "mnuPause"),
      mnuFileLine(mnuFile, "mnuFileLine"),
      mnuExit(mnuFile, "mnuExit"),
      mnuOptions(*this, "mnuOptions"),
      mnuView(mnuOptions, plan.viewMenu),
      mnuClear(mnuOptions, "mnuClear"),
      mnuOptionsLine(mnuOptions, "mnuOptionsLine"),
      mnuMusic(mnuOptions, "mnuMusic"),
      mnuSounds(mnuOptions, "mnuSounds"),
      mnuCustom(mnuOptions, plan.customMenu),
      mnuTime(mnuOptions, "mnuTime"),
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

// --- Loading and settings ------------------------------------------------------------------------

void GameWindow::Form_Load() {
  MousePointer = kHourglass;
  Timer4.Enabled = true;
  Timer1.Enabled = false;
  common.TimeLimit = plan.timeLimit;
  common.ElapsedSeconds = 0;
  common.PlaySounds = true;
  common.PlayMusic = false;
  common.DeckDesign = plan.deckDesign;
  common.CountDownScore = true;
  common.CustomScoringInUse = false;
  common.GameInProgress = false;
  common.TakingScore = false;
  SetDefaults();
  for (Visual* above : std::initializer_list<Visual*>{&frmSplash, &lblMessage, &lblScoring}) above->ZOrder(0);
  Caption = common.AppTitle;
  StatusBar1.Panels(1).Text = "Welcome to " + common.AppTitle + "  ";
  StatusBar1.Panels(3).Text = common.TimeOfDay();
  Move(Left, Top, plan.width, plan.height);
  ReadSettingsINI();
  SettingsRead();
  common.GameStartTime = platform.front.Milliseconds();
  lblCompanyProduct.Caption = "Quillmark Presents";
  lblVersion.Caption = "Version 4.0";
  lblProductName.Caption = common.AppTitle;
  frmSplash.Visible = true;
  CenterOnScreen();
  ShowHighScore(plan.tableName, *this, plan.defaultScore);
  MousePointer = kDefaultPointer;
}

void GameWindow::ReadSettingsINI() {
  const auto apply = [this](std::string_view section, std::string_view value) {
    return ApplySetting(section, value);
  };
  const auto path = common.files.PathOf(plan.settingsFile);
  std::string text;
  const ReadOutcome outcome = common.files.Read(path, text);
  if (outcome == ReadOutcome::Read && ReadSettings(text, apply) > 0) return;
  const bool makesNoSense = outcome == ReadOutcome::Unusable || !Trim(text).empty();
  if (makesNoSense) common.files.PutAside(path);
  // The defaults are written, and read like any other settings, so that ticks and labels follow.
  ReadSettings(SaveSettings(), apply);
}

bool GameWindow::ApplySetting(std::string_view section, std::string_view value) {
  int number = 0;
  const bool isNumber = ParseLong(value, number);
  if (section == plan.timeSection) {
    const auto limit = std::ranges::find(plan.limits, number, &TimeLimitEntry::seconds);
    if (isNumber && limit != plan.limits.end()) ChooseTimeLimit(number);
  } else if (section == "[Play Sounds]") {
    ApplyFlag(value, common.PlaySounds);
    mnuSounds.Checked = common.PlaySounds;
  } else if (section == "[Play Music]") {
    ApplyFlag(value, common.PlayMusic);
    mnuMusic.Checked = common.PlayMusic;
  } else if (section == "[Deck]") {
    if (isNumber && number >= 1 && number <= 4) ChooseDeck(number);
  } else if (section == "[State]") {
    if (isNumber && number >= window_state::kNormal && number <= window_state::kMaximised)
      WindowState = number;
  } else if (section == "[Width]" || section == "[Height]") {
    if (isNumber) ApplySize(section, number);
  } else {
    return ApplyGameSetting(section, value);
  }
  return true;
}

// A window larger than the screen couldn't be handled: it may have been kept on a larger one.
void GameWindow::ApplySize(std::string_view section, int value) {
  if (WindowState == window_state::kMaximised) return;
  // One that is too small is left to the resize event, which a minimised window doesn't have.
  const bool resizes = WindowState == window_state::kNormal;
  const Extent screen = platform.ScreenExtent();
  if (section == "[Width]")
    Width = std::clamp(value, resizes ? 1 : plan.width, std::max(plan.width, screen.width));
  else
    Height = std::clamp(value, resizes ? 1 : plan.height, std::max(plan.height, screen.height));
}

void GameWindow::ApplyFlag(std::string_view value, bool& flag) {
  if (value == "True") flag = true;
  if (value == "False") flag = false;
}

void GameWindow::WriteWindowSettings(SettingsWriter& writer) const {
  const bool maximised = WindowState == window_state::kMaximised;
  writer.Add("[State]", WindowState);
  writer.Add("[Width]", maximised ? plan.width : Width.get());
  writer.Add("[Height]", maximised ? plan.height : Height.get());
  writer.Add("[Deck]", common.DeckDesign);
}

std::string GameWindow::SaveSettings() {
  SettingsWriter writer;
  WriteSettings(writer);
  common.files.Keep(common.files.PathOf(plan.settingsFile), writer.Text());
  common.TellWhatCantBeKept();
  return writer.Text();
}

std::string GameWindow::TableFile(const std::string& tableName) const {
  return "\\" + tableName + std::to_string(common.TimeLimit) + ".Txt";
}

// --- Timers --------------------------------------------------------------------------------------

void GameWindow::Timer1_Timer() {
  common.ElapsedSeconds += 1;
  DrawTimeDial(DialAngle(*this, common.ElapsedSeconds), *this);
  common.DialSeconds = common.ElapsedSeconds;
  ShowTimeLeft();
  if (common.ElapsedSeconds == common.TimeLimit) TimeIsUp();
}

void GameWindow::ShowTimeLeft() {
  const long long limit = common.TimeLimit, left = limit - common.ElapsedSeconds;
  const long long quarter = RoundHalfEven(static_cast<double>(limit) / 4);
  const long long half = RoundHalfEven(static_cast<double>(limit) / 2);
  lblTime.Caption = "Time: " + std::to_string(left);
  if (left >= quarter && left <= half) StatusBar1.Panels(2).Text = "Times running out!";
  if (left < quarter) StatusBar1.Panels(2).Text = "Better Hurry!";
}

void GameWindow::TimeIsUp() {
  MousePointer = kHourglass;
  Timer1.Enabled = false;
  HideCardsAtTimeUp();
  for (CommandButton* button : {&cmdPlay, &cmdPause, &cmdTakeScore, &cmdExit}) button->Enabled = false;
  ShowMessage("Times Up!");
  StatusBar1.Panels(2).Text = "Time has expired!";
  BlinkMessage(10);
  cmdTakeScore_Click();
  if (lblMessage.Caption != "Game Over") lblMessage.Visible = false;
  MousePointer = kDefaultPointer;
}

void GameWindow::Timer4_Timer() {
  Image& image = imgSplashImage(SplashPosition_);
  image.ZOrder(1);
  if (SplashForward_) {
    SplashShowBack_ ? ShowSplashBack(image) : ShowSplashFace(image);
    if (++SplashPosition_ == 4) {
      SplashForward_ = false;
      SplashPosition_ = 3;
    }
  } else if (--SplashPosition_ == -1) {
    SplashForward_ = true;
    SplashPosition_ = 0;
    SplashShowBack_ = !SplashShowBack_;
  }
}

void GameWindow::ShowSplashFace(Image& image) {
  image.Picture = common.RandomInteger(kFirstFace, kLastFace);
  image.BorderStyle = 1;
}

void GameWindow::ShowSplashBack(Image& image) {
  image.Picture = common.ImageList2("BACK");
  image.BorderStyle = 0;
}

// --- Play, pause, take score ---------------------------------------------------------------------

void GameWindow::cmdPlay_Click() {
  if (cmdPlay.Caption != "&Play")
    return AskToEndGame("You have a game in progress, are you sure you want to quit?");
  cmdPlay.ToolTipText = "Ends the game in progress";
  SetPlayCaption("&End Game");
  ShowSplash(false);
  Play();
  if (plan.playStartsMusic && common.PlayMusic && common.GameInProgress) common.StartMusic();
}

void GameWindow::AskToEndGame(const std::string& question) {
  const std::string toolTip = cmdPlay.ToolTipText;
  cmdPlay.ToolTipText = "Starts a new game";
  if (!common.GameInProgress) return;
  Pause();
  const bool quit = common.Ask(question);
  Pause();
  if (quit) {
    SetPlayCaption("&Play");
    EndGame();
  } else {
    cmdPlay.ToolTipText = toolTip;
  }
}

void GameWindow::Pause() {
  const bool pausing = cmdPause.Caption == "Pau&se";
  if (pausing) {
    cmdPause.ToolTipText = "Resumes the current game";
    lblMessage.Caption = "Game Paused";
    if (common.GameInProgress) lblMessage.Visible = true;
    Timer1.Enabled = false;
  } else {
    cmdPause.ToolTipText = "Pauses the current game";
    lblMessage.Visible = false;
    lblMessage.Caption = "";
    Timer1.Enabled = true;
  }
  cmdPause.Caption = pausing ? "&Resume" : "Pau&se";
  mnuPause.Caption = cmdPause.Caption;
  for (CommandButton* button : {&cmdExit, &cmdTakeScore, &cmdPlay}) button->Enabled = !pausing;
  for (Menu* entry : {&mnuExit, &mnuPlay, &mnuTakeScore}) entry->Enabled = !pausing;
  CoverCards(pausing);
  if (!common.PlayMusic) return;
  if (pausing)
    common.StopMusic();
  else if (common.GameInProgress)
    common.StartMusic();
}

void GameWindow::PauseAround(const std::function<void()>& action) {
  const bool pauses = cmdPause.Enabled && !BoardIsClosed();
  if (pauses) Pause();
  action();
  if (pauses && Loaded() && cmdPause.Enabled && lblMessage.Caption != "Game Over") Pause();
}

void GameWindow::cmdTakeScore_Click() {
  if (!common.TakingScore) TakeScore();
}

void GameWindow::FinishGame(const std::string& tableName, const std::string& defaultScore) {
  try {
    Timer1.Enabled = false;
    common.GameInProgress = false;
    SetPlayCaption("&Play");
    mnuCustom.Enabled = true;
    mnuTime.Enabled = true;
    GameFinished();
    cmdPause.Enabled = false;
    cmdTakeScore.Enabled = false;
    mnuPause.Enabled = false;
    mnuTakeScore.Enabled = false;
    UpdateHighScoreTable(tableName, *this, defaultScore);
    ShowHighScore(tableName, *this, defaultScore);
    ShowCards(false);
    ShowControls(false, true);
    StatusBar1.Panels(2).Text = "Game Over";
  } catch (const RuntimeError&) {
    common.MsgBox(
        "An error occured when attmpting to access the High Score Table. Please close and restart the game.",
        Icon::Critical);
  }
}

// --- Shown things --------------------------------------------------------------------------------

void GameWindow::ShowControls(bool visible, std::optional<bool> scoreVisible) {
  SetVisible({&lblTime, &Surface, &TimerRectangle, &TimerBevelSide, &TimerBevelBottom, &lblRound,
              &RoundRectangle, &RoundBevelSide, &RoundBevelBottom, &lblCurrentRound},
             visible);
  SetVisible({&lblScore, &ScoreRectangle, &ScoreBevelSide, &ScoreBevelBottom, &lblCurrentScore},
             scoreVisible.value_or(visible));
  ShowGameControls(visible);
}

void GameWindow::ShowSplash(bool visible) {
  frmSplash.Visible = visible;
  Timer4.Enabled = visible;
}

void GameWindow::PlaySound(const char* path) {
  if (common.PlaySounds) common.PlayWaveFile(path);
}

void GameWindow::AddToScore(long long amount) {
  common.CurrentScore += amount;
  ShowScore();
}

void GameWindow::ShowScore() { lblCurrentScore.Caption = FormatNumber(common.CurrentScore); }

void GameWindow::ShowMessage(const std::string& text) {
  lblMessage.Caption = text;
  lblMessage.Visible = true;
}

void GameWindow::BlinkMessage(int times) {
  for (int i = 0; i < times; ++i) {
    lblMessage.ForeColor = lblMessage.ForeColor == kRed ? kBlack : kRed;
    platform.Sleep(250);
  }
}

void GameWindow::Announce(const std::string& text, const char* wave) {
  ShowMessage(text);
  if (wave) PlaySound(wave);
  BlinkMessage(11);
  lblMessage.Visible = false;
}

void GameWindow::ShowGameOver() {
  lblMessage.Caption = "Game Over";
  lblMessage.ForeColor = kRed;
  MousePointer = kHourglass;
  lblMessage.Visible = true;
  platform.Sleep(2000);
  lblMessage.Visible = false;
  MousePointer = kDefaultPointer;
  ShowSplash(true);
}

void GameWindow::SetPlayCaption(const char* caption) {
  cmdPlay.Caption = caption;
  mnuPlay.Caption = caption;
}

void GameWindow::PlaceMessage() { lblMessage.Left = (Width - lblMessage.Width) / 2; }

void GameWindow::PlaceScoring() { lblScoring.Left = (Width - lblScoring.Width) / 2; }

void GameWindow::PlaceInMiddle(std::span<const Design> rows) {
  const int right = (Width - plan.width) / 2, down = (Height - plan.height) / 2;
  for (const Design& row : rows) {
    auto& control = static_cast<Visual&>(*find(row.name));
    control.Left = row.left + right;
    control.Top = row.top + down;
  }
}

void GameWindow::Form_Resize() {
  if (WindowState == window_state::kMinimised) return;
  if (WindowState == window_state::kNormal && (Width < plan.width || Height < plan.height)) {
    Move(Left, Top, plan.width, plan.height);
    return;
  }
  frmSplash.Left = (Width - frmSplash.Width) / 2;
  frmSplash.Top = (Height - kBars - frmSplash.Height) / 2;
  for (CommandButton* button : {&cmdPlay, &cmdTakeScore, &cmdPause, &cmdExit}) button->Left = Width - 1320;
  StatusBar1.Width = Width;
  StatusBar1.Top = Height - StatusBar1.Height;
  StatusBar1.Panels(1).Width = Width * 2 / 5;
  StatusBar1.Panels(2).Width = Width * 9 / 20;
  StatusBar1.Panels(3).Width = Width * 3 / 20;
  PlaceBoard();
  for (const ScoreBox& each : scoreBoxes) {
    each.side.Visual::Move(each.box.Left + each.box.Width, each.box.Top, 0, each.box.Height);
    each.bottom.Visual::Move(each.box.Left, each.box.Top + each.box.Height, each.box.Width, 0);
  }
  PlaceMessage();
}

// --- Menus ---------------------------------------------------------------------------------------

void GameWindow::TickOnly(Menu& entry) {
  for (Control* control : Controls())
    if (control->kind == Kind::Menu && control->parent == entry.parent)
      static_cast<Menu*>(control)->Checked = false;
  entry.Checked = true;
}

void GameWindow::ChooseTimeLimit(int seconds) {
  common.TimeLimit = seconds;
  for (size_t i = 0; i < plan.limits.size(); ++i)
    if (plan.limits[i].seconds == seconds) TickOnly(*timeLimitEntries[i]);
  ShowHighScore(plan.tableName, *this, plan.defaultScore);
}

void GameWindow::ChooseDeck(int number) {
  const BackDesign& design = plan.designs[number - 1];
  TickOnly(static_cast<Menu&>(*find(design.menu)));
  UseBackDesign(common.ImageList2, design);
  RefreshPlayCard();
  if (IsPaused() || plan.backsInPlay) RefreshFieldCards();
  common.DeckDesign = number;
}

void GameWindow::ToggleSounds() {
  common.PlaySounds = !common.PlaySounds;
  mnuSounds.Checked = common.PlaySounds;
}

void GameWindow::ToggleMusic() {
  common.PlayMusic = !common.PlayMusic;
  mnuMusic.Checked = common.PlayMusic;
  if (!common.GameInProgress || IsPaused()) return;
  common.PlayMusic ? common.StartMusic() : common.StopMusic();
}

void GameWindow::ClearHighScores() {
  if (!common.Ask("This will clear all High Scores. Are You Sure?")) return;
  CreateHighScoreFile(plan.tableName, *this, plan.defaultScore);
  ShowHighScore(plan.tableName, *this, plan.defaultScore);
}

// --- Closing -------------------------------------------------------------------------------------

void GameWindow::Form_QueryUnload(bool& cancel) {
  const bool pauses = PausesBeforeClosing() && common.GameInProgress && !IsPaused();
  if (pauses) Pause();
  std::string question = "You have a game in progress. Are you sure you want to quit now?";
  if (!common.GameInProgress)
    question = common.MinutesPlayed() < 5 ? "Giving up so soon?"
                                          : "Are you sure you want to quit now? Were just getting started!";
  cancel = !common.Ask(question);
  if (cancel && pauses) Pause();
}

void GameWindow::Form_Unload() {
  MousePointer = kHourglass;
  SaveSettings();
  Timer1.Enabled = false;
  common.GameInProgress = false;
  if (common.PlayMusic) common.StopMusic();
  common.window = nullptr;
  if (common.selector) common.selector->Show();
}
