// What a game window shows, and where; its menus.
#include <algorithm>

#include "suite/game_window.h"
#include "suite/high_scores.h"
#include "suite/scoring_dialog.h"

// --- Commands, messages, score -------------------------------------------------------------------

void GameWindow::ShowMessage(const std::string& text) {
  lblMessage.Caption = text;
  lblMessage.Visible = true;
}

void GameWindow::HideMessage() {
  lblMessage.Caption = "";
  lblMessage.Visible = false;
}

void GameWindow::Blink(Label& label, int times, int milliseconds) {
  for (int i = 0; i < times; ++i) {
    label.ForeColor = label.ForeColor == kRed ? kBlack : kRed;
    platform.Sleep(milliseconds);
  }
}

void GameWindow::AddToScore(long long amount) {
  common.CurrentScore += amount;
  ShowScore();
}

void GameWindow::ShowScore() { lblCurrentScore.Caption = FormatNumber(common.CurrentScore); }

void GameWindow::ShowRoundTime() { lblTime.Caption = "Time: " + std::to_string(clock.TimeLimit); }

void GameWindow::ShowBonusGoal(const char* ending) {
  StatusBar1.Panels(1).Text = "Make " + FormatNumber(BonusScore) + ending;
}

void GameWindow::ShowTableLeader() {
  ShowHighScore(plan.tables.shown.name, *this, plan.tables.shown.defaultScore);
}

void GameWindow::ShowControls(bool visible, bool scoreVisible) {
  SetVisible({&lblTime, &Surface, &TimerRectangle, &TimerBevelSide, &TimerBevelBottom, &lblRound,
              &RoundRectangle, &RoundBevelSide, &RoundBevelBottom, &lblCurrentRound},
             visible);
  SetVisible({&lblScore, &ScoreRectangle, &ScoreBevelSide, &ScoreBevelBottom, &lblCurrentScore},
             scoreVisible);
  for (Visual* control : roundControls) control->Visible = visible;
}

// --- Cards and sounds ----------------------------------------------------------------------------

void GameWindow::ShowFace(Image& image, std::string_view code) {
  image.Picture = common.ImageList2(CardKey(code));
  image.BorderStyle = 1;
}

void GameWindow::ShowBack(Image& image) {
  image.Picture = common.ImageList2("BACK");
  image.BorderStyle = 0;
}

void GameWindow::ShowEmpty(Image& image) {
  image.Picture = common.ImageList2("EMPTY");
  image.BorderStyle = 0;
}

void GameWindow::PlaySound(const char* path) {
  if (common.PlaySounds) common.PlayWaveFile(path);
}

void GameWindow::CheerBonusRound() {
  platform.front.Triumph(*this);
  PlaySound("\\HighScore.wav");
}

void GameWindow::Refuse() {
  platform.front.Refused();
  PlaySound("\\Chord.wav");
}

void GameWindow::StartMusic() {
  if (common.PlayMusic) common.StartMusic();
}

void GameWindow::StopMusic() {
  if (common.PlayMusic) common.StopMusic();
}

// --- Places --------------------------------------------------------------------------------------

void GameWindow::PlaceMessage() {
  if (messageBox) return CenterWithin(lblMessage, *messageBox);
  lblMessage.Left = (Width - lblMessage.Width) / 2;
}

void GameWindow::PlaceScoring() { lblScoring.Left = (Width - lblScoring.Width) / 2; }

// A row may name a control array: then all of it stands there.
void GameWindow::PlaceInMiddle(std::span<const Design> rows) {
  const int right = (Width - plan.width) / 2, down = (Height - plan.height) / 2;
  for (const Design& row : rows)
    for (Control* control : Controls()) {
      if (control->name != row.name || control->kind == Control::Kind::Menu) continue;
      auto& visual = static_cast<Visual&>(*control);
      visual.Left = row.left + right;
      visual.Top = row.top + down;
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
  for (int i = 0; i < 3; ++i) StatusBar1.Panels(i + 1).Width = Width * plan.panels[i] / 100;
  PlaceBoard();
  PlaceEdges();
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
  clock.TimeLimit = seconds;
  for (size_t i = 0; i < plan.limits.size(); ++i)
    if (plan.limits[i].seconds == seconds) TickOnly(*timeLimitEntries[i]);
  ShowTableLeader();
}

void GameWindow::ChooseDeck(int number) {
  const BackDesign& design = plan.designs[number - 1];
  TickOnly(DeckEntry(number));
  UseBackDesign(common.ImageList2, design);
  RefreshPlayCard();
  common.DeckDesign = number;
}

void GameWindow::ToggleSounds() {
  common.PlaySounds = !common.PlaySounds;
  mnuSounds.Checked = common.PlaySounds;
}

void GameWindow::ToggleMusic() {
  common.PlayMusic = !common.PlayMusic;
  mnuMusic.Checked = common.PlayMusic;
  if (!standing.InGame() || standing.IsPaused()) return;
  common.PlayMusic ? common.StartMusic() : common.StopMusic();
}

void GameWindow::ShowCustomScoring() { ScoringDialog(*this).Show(true); }

void GameWindow::mnuClear_Click() {
  const auto clear = [this, table = plan.tables.cleared] {
    if (!common.Ask("This will clear all High Scores. Are You Sure?")) return;
    CreateHighScoreFile(table.name, *this, table.defaultScore);
    ShowHighScore(table.name, *this, table.defaultScore);
  };
  plan.tables.clearingPauses ? PauseAround(clear) : clear();
}
