#include "games/duopick/duopick.h"

#include "suite/score_counter.h"

using namespace modDuopick;

// --- Dealing -------------------------------------------------------------------------------------

void frmDuopick::InitRound() {
  common.CreateStandardDeck();
  common.ShuffleDeck();
  Deal();
  ClearRound();
  cmdPlay.ToolTipText = "Ends the current game";
  ShowCounts();
  ShowRoundTime();
  lblCurrentRound.Caption = std::to_string(CurrentRound);
  OpenRound();
}

void frmDuopick::Deal() {
  board.Deal(common.Deck);
  for (int i = 0; i < kCards; ++i) {
    ShowFace(PlayCard(i), board.Code(i));
    PlayCard(i).Enabled = true;
  }
  ShowCards(true);
  ShowControls(true);
  CardStackPicture.Picture = common.ImageList2("FULL");
  lblCards.Caption = std::to_string(board.stack.size());
  clock.ResetDial();
  Timer1.Enabled = true;
  ShowBonusGoal();
  StatusBar1.Panels(2).Text = "Create runs by clicking on exposed cards!   ";
}

// --- Two by two ----------------------------------------------------------------------------------

void frmDuopick::PlayCard_Click(int index) {
  if (standing.InputIsDead()) return;
  const int first = board.selected;
  switch (standing.BoardIsClosed() ? Outcome::Refused : board.Take(index)) {
    case Outcome::Refused:
      return Refuse();
    case Outcome::Selected:
      PlaySound("\\Markq.wav");
      FieldSelectionRectangle(index).Visible = true;
      PlayCard(index).Enabled = false;
      return;
    case Outcome::LetGo:
      PlaySound("\\Tick.wav");
      FieldSelectionRectangle(index).Visible = false;
      PlayCard(index).Enabled = true;
      return;
    case Outcome::Mismatch:
      PlayCard(first).Enabled = true;
      Refuse();
      break;
    case Outcome::Match:
      TakeBoth(first, index);
  }
  FieldSelectionRectangle(first).Visible = false;
}

// The round may end in here; then the last step meets the next one, in which nothing is selected.
void frmDuopick::TakeBoth(int first, int second) {
  ShowCounts();
  PlaySound("\\TwentyOne.wav");
  RemoveCard(second);
  RemoveCard(first);
  if (second == kUpCard || first == kUpCard) ShowNextUpCard(first, second);
  if (!board.RoundCompleted()) return;
  platform.front.Triumph(*this);
  cmdTakeScore_Click(By::Button);
}

void frmDuopick::RemoveCard(int index) {
  if (index == kUpCard) return;
  PlayCard(index).Visible = false;
  PlayCard(index).Picture = 0;
}

void frmDuopick::ShowNextUpCard(int first, int second) {
  PlayCard(kUpCard).Enabled = !board.waste.empty();
  if (board.waste.empty()) return ShowEmpty(PlayCard(kUpCard));
  ShowUpCard();
  PlayCard(second).Enabled = true;
  PlayCard(first).Enabled = true;
}

void frmDuopick::ClearSelectionRectangles() {
  for (int i = 0; i < kField; ++i) {
    FieldSelectionRectangle(i).Visible = false;
    PlayCard(i).Enabled = true;
  }
  FieldSelectionRectangle(kUpCard).Visible = false;
  if (!board.waste.empty()) PlayCard(kUpCard).Enabled = true;
  board.selected = kNone;
}

// --- The stack -----------------------------------------------------------------------------------

void frmDuopick::CardStackPicture_Click() {
  MousePointer = kHourglass;
  const bool isUsedUp = board.stack.empty();
  const int gap = board.TurnCard();
  lblCards.Caption = std::to_string(board.stack.size());
  PlaySound("\\Click.wav");
  if (gap != kNone) {
    ShowFace(PlayCard(gap), board.Code(gap));
    PlayCard(gap).Visible = true;
  }
  ShowUpCard();
  PlayCard(kUpCard).Enabled = true;
  ClearSelectionRectangles();
  isUsedUp ? PlaySound("\\Chord.wav") : RefreshPlayCard();
  MousePointer = kDefaultPointer;
}

// --- Rounds --------------------------------------------------------------------------------------

void frmDuopick::Play() {
  CurrentRound = 1;
  common.CurrentScore = 0;
  ShowScore();
  standing.Begin();
  frmSplash.Visible = false;
  platform.DoEvents();
  InitRound();
}

// When the time is up the selection goes after the cards.
void frmDuopick::HideBoard(bool timeIsUp) {
  if (!timeIsUp) ClearSelectionRectangles();
  ShowCards(false);
  ClearSelectionRectangles();
}

void frmDuopick::PayAwards() {
  lblMessage.ForeColor = kRed;
  if (board.RoundCompleted()) AwardBonus(*this, "Completion Bonus", 1, CompletionBonus);
  CountTimeBonus(*this, common.TimeBonus);
  if (board.RunsCount != 0) AwardBonus(*this, "Runs Bonus", board.RunsCount, RunsBonus);
  if (board.PairsCount != 0) AwardBonus(*this, "Pairs Bonus", board.PairsCount, PairsBonus);
}

// Given up: no score is entered.
void frmDuopick::EndGame() {
  mnuTime.Enabled = true;
  mnuCustom.Enabled = true;
  standing.End();
  ClearSelectionRectangles();
  ShowCards(false);
  ShowControls(false, true);
  for (Menu* entry : {&mnuTakeScore, &mnuPause}) entry->Enabled = false;
  for (CommandButton* button : {&cmdTakeScore, &cmdPause}) button->Enabled = false;
  Timer1.Enabled = false;
  splash.Show(true);
  StopMusic();
}
