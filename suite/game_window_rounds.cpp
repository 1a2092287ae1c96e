// How rounds and games end, and how the next round begins, as most games do it.
#include "suite/game_window.h"
#include "suite/high_scores.h"
#include "suite/score_counter.h"

void GameWindow::ClearRound() {
  standing.InputLives();
  common.ElapsedSeconds = 0;
  HideMessage();
}

void GameWindow::OpenRound() {
  standing.Open();
  SetPlayCaption(plan.names.endGame);
  EnableOptions(false);
  for (Menu* entry : {&mnuPause, &mnuTakeScore}) entry->Enabled = true;
  EnableButtons(true);
  ShowControls(true);
  StartMusic();
}

void GameWindow::cmdTakeScore_Click() {
  if (!standing.InputIsDead()) TakeScore();
}

void GameWindow::BeginScoring() {
  standing.Score();
  Timer1.Enabled = false;
  EnableButtons(false);
  MousePointer = kHourglass;
  HideBoard();
  StopMusic();
}

void GameWindow::TakeScore() {
  BeginScoring();
  PayAwards();
  CurrentRound += 1;
  const bool bonus = CurrentRound == plan.rounds + 1;
  if (CurrentRound <= plan.rounds || (bonus && EarnsBonusRound())) {
    AnnounceRound(bonus);
    InitRound();
  } else {
    GameOver();
  }
  EndScoring();
}

void GameWindow::AnnounceRound(bool bonus) {
  if (bonus)
    Announce("Prepare for Bonus Round!", "\\Applause.wav");
  else
    Announce("Prepare for Round Two!");
}

void GameWindow::Announce(const std::string& text, const char* wave) {
  ShowMessage(text);
  if (wave) PlaySound(wave);
  Blink(lblMessage, 11);
  lblMessage.Visible = false;
}

void GameWindow::EndScoring() {
  lblScoring.Visible = false;
  MousePointer = kDefaultPointer;
}

void GameWindow::GameOver() {
  MousePointer = kHourglass;
  FinishGame();
  GameFinished();
  cmdPlay.ToolTipText = "Starts a new game";
  TellGameOver(lblMessage);
  ShowSplash(true);
  cmdPlay.Enabled = true;
  cmdExit.Enabled = true;
}

void GameWindow::GameFailed() {
  StopMusic();
  HideAmount(*this);
  GameOver();
  EndScoring();
}

void GameWindow::FinishGame() {
  const auto finish = [this] {
    Timer1.Enabled = false;
    standing.GameOver();
    SetPlayCaption("&Play");
    EnableOptions(true);
    cmdPause.Enabled = false;
    cmdTakeScore.Enabled = false;
    mnuPause.Enabled = false;
    mnuTakeScore.Enabled = false;
    EnterHighScore();
    ShowCards(false);
    ShowControls(false, true);
    StatusBar1.Panels(2).Text = "Game Over";
  };
  common.Try(
      finish,
      "An error occured when attmpting to access the High Score Table. Please close and restart the game.",
      Icon::Critical);
}

void GameWindow::EnterHighScore() {
  const HighScoreTable& table = plan.tables.final;
  UpdateHighScoreTable(table.name, *this, table.defaultScore);
  ShowHighScore(table.name, *this, table.defaultScore);
}

void GameWindow::TellGameOver(Label& label, int milliseconds) {
  standing.GameOver();
  label.Caption = "Game Over";
  label.ForeColor = kRed;
  MousePointer = kHourglass;
  label.Visible = true;
  platform.Sleep(milliseconds);
  label.Visible = false;
  MousePointer = kDefaultPointer;
}
