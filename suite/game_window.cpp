#include "suite/game_window.h"

#include "suite/high_scores.h"
#include "suite/score_counter.h"

// --- Loading -------------------------------------------------------------------------------------

void GameWindow::Form_Load() {
  MousePointer = kHourglass;
  Timer4.Enabled = true;
  Timer1.Enabled = false;
  clock.Load();
  common.PlaySounds = true;
  common.PlayMusic = false;
  common.DeckDesign = plan.deckDesign;
  common.CountDownScore = true;
  common.CustomScoringInUse = false;
  standing.Rest();
  settings.SetStandard();
  if (plan.dialRuns == DialRuns::FromLoading) Timer2.Enabled = true;
  if (plan.dialRuns == DialRuns::FromEachRound) clock.ResetDial();
  if (plan.limitChosenFirst) ChooseTimeLimit(plan.timeLimit);
  SetDefaults();
  for (Visual* above : std::initializer_list<Visual*>{&frmSplash, &lblMessage, &lblScoring}) above->ZOrder(0);
  Caption = common.AppTitle;
  StatusBar1.Panels(1).Text = "Welcome to " + common.AppTitle + plan.names.welcomeEnding;
  StatusBar1.Panels(3).Text = common.TimeOfDay();
  Move(Left, Top, plan.width, plan.height);
  ReadSettingsINI();
  CheckForCustom();
  SettingsRead();
  common.GameStartTime = platform.Milliseconds();
  splash.Load();
  CenterOnScreen();
  ShowTableLeader();
  MousePointer = kDefaultPointer;
}

// --- Play and End Game ---------------------------------------------------------------------------

void GameWindow::cmdPlay_Click(By) {
  if (!standing.CanStart()) return AskToEndGame(plan.endGame.text);
  LeaveIdle();
  StartGame();
}

void GameWindow::LeaveIdle() {
  cmdPlay.ToolTipText = "Ends the game in progress";
  commands.SetPlayCaption(plan.names.endGame);
  splash.Show(false);
}

void GameWindow::StartGame() {
  HideMessage();
  standing.Hold();
  // A saved game opened in between has cards of its own.
  if (daily != 0 && (!common.nextDeal || common.nextDeal->number != 0))
    common.nextDeal = DealName{daily, log.WasPlayed(daily)};
  common.BeginDeal(plan.Name());
  if (const auto failure = FailureOf<std::exception>([this] { Play(); })) PlayFailed(*failure);
  if (!Loaded()) return;
  if (!standing.InGame()) return BackToIdle();
  if (standing.IsBusy()) standing.Open();
  log.Begin();
}

void GameWindow::PlayFailed(const std::string& description) {
  if (!plan.playFailure) throw RuntimeError(description);
  common.MsgBox(description, *plan.playFailure);
  platform.End(description);
}

void GameWindow::BackToIdle() {
  log.End();
  standing.Rest();
  Timer1.Enabled = false;
  clock.ResetDial();
  HideMessage();
  commands.Rest();
  ShowCards(false);
  splash.Show(true);
  MousePointer = kDefaultPointer;
}

// Under the question a clock that wasn't stopped may end the game; then there is nothing left to end.
void GameWindow::AskToEndGame(const std::string& question) {
  if (!standing.IsPlaying()) return;
  const int score = static_cast<int>(common.CurrentScore);
  const auto& [text, meanwhile, tipIsAhead] = plan.endGame;
  if (tipIsAhead) commands.TellStart();
  if (meanwhile != WhileAsked::Paused) StopMusic();
  if (meanwhile != WhileAsked::RunsOn) PauseGame();
  const bool ends = common.Ask(question);
  const bool wasRunning = !standing.CanStart();
  if (ends && meanwhile == WhileAsked::Silenced) standing.GiveUp();
  if (meanwhile != WhileAsked::RunsOn)
    ResumeGame();
  else if (!ends && standing.InGame())
    StartMusic();
  if (!ends && tipIsAhead) cmdPlay.ToolTipText = "Ends the game in progress";
  if (!wasRunning || !ends) return;
  commands.TellStart();
  commands.SetPlayCaption("&Play");
  log.GiveUp(score);
  EndGame();
  log.End();
  standing.End();
}

// --- The round clock -----------------------------------------------------------------------------

// More than a tick may come where events are let through while a round is being paid: one that isn't open yet
// keeps its last second.
void GameWindow::Tick() {
  if (standing.IsBusy() && clock.ElapsedSeconds + 1 >= clock.TimeLimit) return;
  clock.Tick();
  ShowTimeLeft();
  if (clock.ElapsedSeconds >= clock.TimeLimit) TimeIsUp();
}

void GameWindow::ShowTimeLeft() {
  const long long limit = clock.TimeLimit, left = limit - clock.ElapsedSeconds;
  const long long quarter = RoundHalfEven(static_cast<double>(limit) / 4);
  const long long half = RoundHalfEven(static_cast<double>(limit) / 2);
  lblTime.Caption = "Time: " + std::to_string(left);
  if (left >= quarter && left <= half) StatusBar1.Panels(2).Text = "Times running out!";
  if (left < quarter) StatusBar1.Panels(2).Text = "Better Hurry!";
}

// --- Pausing -------------------------------------------------------------------------------------

void GameWindow::Pause() {
  if (standing.IsBusy()) return;
  standing.IsPaused() ? ResumeGame() : PauseGame();
}

void GameWindow::PauseGame() {
  standing.Pause();
  cmdPause.ToolTipText = "Resumes the current game";
  TellPause(true);
  Timer1.Enabled = false;
  commands.SetPauseCaptions(true);
  commands.EnableAllButPause(false);
  CoverCards(true);
  StopMusic();
}

void GameWindow::ResumeGame() {
  standing.Resume();
  cmdPause.ToolTipText = plan.names.pauseTip;
  TellPause(false);
  Timer1.Enabled = standing.InGame();
  commands.SetPauseCaptions(false);
  commands.EnableAllButPause(true);
  if (standing.InGame()) {
    CoverCards(false);
    StartMusic();
  }
  if (WindowState == window_state::kMinimised) Sleep();
}

// Also when a question over a minimised window has been answered.
void GameWindow::Sleep() {
  if (!plan.sleepsMinimised) return;
  Timer1.Enabled = false;
  StopMusic();
}

void GameWindow::TellPause(bool paused) {
  if (paused) {
    lblMessage.Caption = "Game Paused";
    if (standing.InGame()) lblMessage.Visible = true;
  } else {
    lblMessage.Visible = false;
    lblMessage.Caption = "";
  }
}

void GameWindow::PauseAround(const std::function<void()>& action) {
  const bool pauses = standing.IsPlaying();
  if (pauses) PauseGame();
  action();
  if (pauses && Loaded() && standing.IsPaused()) ResumeGame();
}

// --- Minimised and restored ----------------------------------------------------------------------

void GameWindow::Form_StateChange(int before) {
  if (WindowState == window_state::kMinimised) return Sleep();
  if (!plan.sleepsMinimised || before != window_state::kMinimised || !standing.IsPlaying()) return;
  Timer1.Enabled = true;
  StartMusic();
}

// --- Closing -------------------------------------------------------------------------------------

// What comes in between two steps of a round's end can't close the window under them: the question waits.
void GameWindow::Form_QueryUnload(bool& cancel) {
  closeWanted_ = standing.IsBusy();
  if (closeWanted_) {
    cancel = true;
    return;
  }
  const int score = static_cast<int>(common.CurrentScore);
  const bool wasPaused = standing.IsPaused();
  const bool clicksPause = plan.whileClosing == WhileClosing::PauseIsClicked ? cmdPause.Enabled.get()
                           : plan.whileClosing == WhileClosing::Paused       ? standing.IsPlaying()
                                                                             : false;
  if (clicksPause) Pause();
  std::string question = "You have a game in progress. Are you sure you want to quit now?";
  if (!standing.InGame())
    question = common.MinutesPlayed() < 5 ? "Giving up so soon?"
                                          : "Are you sure you want to quit now? Were just getting started!";
  cancel = !common.Ask(question);
  if (!cancel) log.Close(score);
  // The game may have come further meanwhile, or to its end.
  if (clicksPause && cancel && standing.InGame() && standing.IsPaused() != wasPaused) Pause();
}

void GameWindow::CloseIfWanted() {
  if (std::exchange(closeWanted_, false)) Unload();
}

// The clock stops first: a disk that refuses is told in a box, under which timers tick.
void GameWindow::Form_Unload() {
  MousePointer = kHourglass;
  Timer1.Enabled = false;
  log.Close();
  SaveSettings();
  common.files.TryAgain();
  standing.End();
  StopMusic();
  common.window = nullptr;
  if (common.selector) common.selector->Show();
}
