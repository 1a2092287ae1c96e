// How rounds begin, and what rounds and games have in common when they end.
#include "suite/game_window.h"
#include "suite/high_scores.h"
#include "suite/score_counter.h"

void GameWindow::ClearRound() {
  standing.InputLives();
  clock.ElapsedSeconds = 0;
  HideMessage();
}

void GameWindow::OpenRound() {
  standing.Open();
  commands.SetPlayCaption(plan.names.endGame);
  commands.EnableOptions(false);
  for (Menu* entry : {&mnuPause, &mnuTakeScore}) entry->Enabled = true;
  commands.EnableButtons(true);
  ShowControls(true);
  StartMusic();
}

void GameWindow::cmdTakeScore_Click(By) {
  if (!standing.InputIsDead()) TakeScore();
}

bool GameWindow::EarnsBonusRound() const {
  if (plan.bonusRound == BonusRound::None) return false;
  return plan.bonusRound == BonusRound::ForMore ? common.CurrentScore > BonusScore
                                                : common.CurrentScore >= BonusScore;
}

void GameWindow::EndScoring() {
  lblScoring.Visible = false;
  MousePointer = kDefaultPointer;
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
    commands.SetPlayCaption("&Play");
    commands.EnableOptions(true);
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
