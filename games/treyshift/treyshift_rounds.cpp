// How rounds of Treyshift begin, are paid and end.
#include <algorithm>

#include "games/treyshift/treyshift.h"
#include "suite/score_counter.h"

using namespace modTreyshift;

// --- A round begins ------------------------------------------------------------------------------

void frmTreyshift::Play() {
  standing.Begin();
  standing.InputLives();
  CurrentRound = 1;
  common.CurrentScore = 0;
  InitRound();
  StatusBar1.Panels(2).Text = "Click on cards to straights or runs!   ";
  ShowBonusGoal(" for bonus round.  ");
  mnuTime.Enabled = false;
  mnuCustom.Enabled = false;
  cmdTakeScore.Enabled = true;
  cmdPause.Enabled = true;
  mnuPause.Enabled = true;
  BeginRound();
  ShowCardCount();
}

// Nobody touches a round that isn't dealt yet: what was clicked meanwhile comes to nothing.
void frmTreyshift::InitRound() {
  standing.Hold();
  platform.DoEvents();
  standing.InputLives();
  board.Clear();
  for (int i = 0; i < kFieldSlots; ++i) {
    PlayCard(i).Picture = 0;
    PlayCard(i).BorderStyle = 0;
    if (i >= kSecondRow) PlayCard(i).Visible = false;
    PlayCardSelection(i).Visible = false;
  }
  for (int i = 0; i < kUpSlots; ++i) {
    UpCard(i).Picture = 0;
    UpCard(i).BorderStyle = 1;
  }
  for (int i = 0; i < kTempSlots; ++i) {
    TempCard(i).Picture = 0;
    TempCard(i).BorderStyle = 0;
    TempCardSelection(i).Visible = false;
  }
  UpCardSelection.Visible = false;
  clock.ElapsedSeconds = 0;
  lblRound.Caption = "Round: " + std::to_string(CurrentRound);
  ShowCardCount();  // of the deck that was
  ShowScore();
  lblTrips.Caption = "Trips (" + std::to_string(TripValue) + "):";
  lblRuns.Caption = "Runs (" + std::to_string(RunValue) + "):";
  CenterFigures();
}

void frmTreyshift::BeginRound() {
  common.CreateStandardDeck();
  common.ShuffleDeck();
  Deal();
  ShowScoringLabel(false);
  ShowControls(true);
  ShowCards(true);
  ShowRoundTime();
  standing.Open();
  StartMusic();
}

void frmTreyshift::Deal() {
  board.Deal(common.Deck);
  for (int i = 0; i < kUpSlots; ++i) UpCard(i).Picture = common.ImageList2(CardKey(board.UpCards[i]));
  for (int i = 0; i < kTempSlots; ++i) TempCard(i).Picture = common.ImageList2("EMPTY");
  for (int i = 0; i < kColumns; ++i) PlayCard(i).Picture = common.ImageList2("EMPTY");
  RefreshPlayCard();
  clock.ResetDial();
  Timer1.Enabled = true;
  ShowBonusGoal();
  StatusBar1.Panels(2).Text = "Create runs and triples by moving available cards!   ";
}

// --- A round ends --------------------------------------------------------------------------------

void frmTreyshift::TimeIsUp() {
  MousePointer = kHourglass;
  Timer1.Enabled = false;
  SetVisible({&UpCard(0), &UpCard(1), &UpCard(2), &UpCardSelection, &CardStackPicture, &lblCardCount}, false);
  lblScoring.Caption = "Times Up!";
  lblScoring.Left = (Width - lblScoring.Width) / 2;
  lblScoring.Top = UpCardSelection.Top;
  lblScoring.Visible = true;
  StatusBar1.Panels(2).Text = "Time has expired!";
  PlaySound("\\Slide.wav");
  Blink(lblScoring, 10);
  TakeScore();
  lblMessage.Visible = false;
  MousePointer = kDefaultPointer;
}

// The events that are let through may end this round, or the game, before it comes to be paid here.
void frmTreyshift::TakeScore() {
  const Integer round = CurrentRound;
  platform.DoEvents();
  if (standing.IsPaused()) ResumeGame();  // too late for a pause
  if (!standing.IsPlaying() || CurrentRound != round) return;
  standing.Score();
  EndRound();
  platform.DoEvents();
}

void frmTreyshift::EndRound() {
  MousePointer = kHourglass;
  Timer1.Enabled = false;
  lblScoring.ForeColor = kBlue;
  StopMusic();
  ShowControls(false, true);
  if (board.DeckIsUsedUp()) CompleteDeck();
  ShowCards(false);
  lblMessage.Caption = "Speed Bonus!";
  PlaceMessage();
  CenterScoringLabel();
  CountTimeBonus(*this, common.TimeBonus);
  lblMessage.Visible = false;
  if (GoesOn()) {
    AnnounceNextRound();
    InitRound();
    BeginRound();
  } else {
    GameOver();
  }
  MousePointer = kDefaultPointer;
}

bool frmTreyshift::GoesOn() const {
  return CurrentRound < plan.rounds || (CurrentRound == plan.rounds && EarnsBonusRound());
}

void frmTreyshift::AnnounceNextRound() {
  lblScoring.ForeColor = kRed;
  CurrentRound += 1;
  lblScoring.Caption = CurrentRound > plan.rounds ? "Prepare For Bonus Round"
                                                  : "Prepare For Round " + std::to_string(CurrentRound);
  CenterScoringLabel();
  ShowScoringLabel(true);
  if (CurrentRound > plan.rounds) platform.front.Triumph(*this);
  platform.Sleep(2000);
}

// --- The deck is used up -------------------------------------------------------------------------

void frmTreyshift::CompleteDeck() {
  SetVisible({&UpCard(0), &UpCard(1), &UpCard(2), &CardStackPicture}, false);
  lblScoring.Caption = "Deck Completion Bonus!";
  lblMessage.Caption = FormatNumber(DeckValue) + "!";
  AddToScore(DeckValue);
  PlaySound("\\Applause.wav");
  ShowInDeckPlace(2000);
  SetVisible({&lblScoring, &lblMessage}, false);
  const auto isFilled = [](const std::string& code) { return !code.empty(); };
  if (std::ranges::any_of(board.FieldCards, isFilled) || std::ranges::any_of(board.TempCards, isFilled))
    RemoveLeftOvers();
}

// The two big labels, one below the other, where the deck was.
void frmTreyshift::ShowInDeckPlace(int milliseconds) {
  for (Label* label : {&lblScoring, &lblMessage}) label->Left = (Width - label->Width) / 2;
  lblScoring.Top = UpCardSelection.Top;
  lblMessage.Top = lblScoring.Height + UpCardSelection.Top + 100;
  SetVisible({&lblScoring, &lblMessage}, true);
  platform.Sleep(milliseconds);
}

void frmTreyshift::RemoveLeftOvers() {
  const std::string penalty = "-" + std::to_string(PenaltyValue);
  lblScoring.Caption = "Removing left over cards";
  lblMessage.Caption = penalty;
  ShowInDeckPlace(1000);
  lblFlush.Caption = penalty;
  lblFlush.BackStyle = 0;
  lblFlush.FontSize = 10;
  lblFlush.Top = PlayCardSelection(0).Top - 250;
  for (int i = kFieldSlots - 1; i >= 0; --i) {
    if (board.FieldCards[i].empty()) continue;
    RemoveCard(PlayCard(i), PlayCardSelection(i));
    if (i < kSecondRow)
      ShowEmpty(PlayCard(i));
    else
      PlayCard(i).Visible = false;
  }
  lblFlush.Top = TempCardSelection(0).Top - 250;
  for (int i = kTempSlots - 1; i >= 0; --i) {
    if (board.TempCards[i].empty()) continue;
    RemoveCard(TempCard(i), TempCardSelection(i));
    ShowEmpty(TempCard(i));
  }
  RestoreFlush();
  SetVisible({&lblMessage, &lblScoring}, false);
}

// Half a second for each card; what it costs stands above it.
void frmTreyshift::RemoveCard(Image& card, Shape& selection) {
  selection.Visible = true;
  AddToScore(-PenaltyValue);
  CenterIn(lblFlush, card);
  lblFlush.Visible = true;
  PlaySound("\\Click.wav");
  platform.Sleep(500);
  selection.Visible = false;
}

void frmTreyshift::RestoreFlush() {
  lblFlush.Caption = "Flush!";
  lblFlush.BackStyle = 1;
  lblFlush.FontSize = 8;
  lblFlush.Visible = false;
}

// --- The game ends -------------------------------------------------------------------------------

void frmTreyshift::GameOver() {
  FinishGame();
  ShowControls(false);
  clock.ResetDial();
  commands.TellStart();
  lblScoring.ForeColor = kBlue;
  lblScoring.Caption = "Game Over";
  CenterScoringLabel();
  ShowScoringLabel(true);
  platform.Sleep(1000);
  ShowScoringLabel(false);
  splash.Show(true);
}

// Whatever was on show when it happened goes.
void frmTreyshift::GameFailed() {
  HideMessage();
  RestoreFlush();
  for (int i = 0; i < kFieldSlots; ++i) PlayCardSelection(i).Visible = false;
  for (int i = 0; i < kTempSlots; ++i) TempCardSelection(i).Visible = false;
  UpCardSelection.Visible = false;
  GameWindow::GameFailed();
}

void frmTreyshift::EndGame() {
  ShowControls(false);
  BackToIdle();
}
