#include "games/blackrush/blackrush.h"

using namespace modBlackrush;

// --- A new game ----------------------------------------------------------------------------------

void frmBlackrush::Play() {
  standing.InputLives();
  QuitRequested = false;
  ForgetTwentyOnes();
  CurrentRound = 1;
  ShowRound();
  common.CurrentScore = 0;
  ShowScore();
  board.GrantPasses(CardsToPass);
  standing.Begin();
  EnablePause(true);
  mnuUserOptions.Enabled = false;
  mnuTimeLimit.Enabled = false;
  cmdPass.Enabled = board.mayPass;
  cmdTakeScore.Enabled = true;
  EnableHitButtons(true);
  StatusBar1.Panels(2).Text = "Create columns of 21 to increase bonus score!";
  ShowBonusGoal(" for bonus round.");
  for (int i = 0; i < kColumns; ++i) ShowEmptyPlace(i);
  if (common.CreateStandardDeck() && common.ShuffleDeck()) ShowGameBoard(true);
  ShowRoundTime();
  lblTime.Visible = true;
  Timer1.Enabled = true;
  Surface.Visible = true;
  clock.ResetDial();
  clock.ElapsedSeconds = 0;
  board.Deal(common.Deck);
  ShowFace(NextCardPicture, board.Next());
  ShowCardsUsed(0);
  ShowPile();
  StartMusic();
}

// --- Hit -----------------------------------------------------------------------------------------

void frmBlackrush::cmdHit_Click(int index) {
  if (standing.InputIsDead()) return;
  int total = GetHitTotal(index);
  CheckForBust(index, total) ? Bust() : LayCard(index, total);
}

int frmBlackrush::GetHitTotal(int index) {
  const long long softBefore = board.columns[index].softAces;
  const int total = board.GetHitTotal(index);
  if (board.columns[index].softAces > softBefore) {
    ColumnSoft(index).Visible = true;
    ColumnSoft(index).Caption = "Soft";
  }
  return total;
}

bool frmBlackrush::CheckForBust(int index, int& total) {
  const int asked = total;
  const bool bust = board.CheckForBust(index, total);
  if (total < asked && board.columns[index].softAces == 0) {
    ColumnSoft(index).Visible = false;
    ColumnSoft(index).Caption = "";
    ShowColumn(index);
  }
  return bust;
}

// The card stays on show, to be played elsewhere.
void frmBlackrush::Bust() {
  lblBust.Visible = true;
  PlaySound("\\Slide.wav");
  AddToScore(-kBustCost);
  platform.Sleep(450);
  lblBust.Visible = false;
}

void frmBlackrush::LayCard(int index, int total) {
  Image& place = ColumnImages(index)(static_cast<int>(board.columns[index].cards.size()));
  place.BorderStyle = 1;
  place.Visible = true;
  place.Picture = NextCardPicture.Picture;
  switch (board.LayCard(index, total)) {
    case Laid::TwentyOne:
      TwentyOne(index);
      break;
    case Laid::FiveCardGimme:
      FiveCardGimme(index);
      break;
    case Laid::Stays:
      ShowColumn(index);
      PlaySound("\\Click.wav");
      break;
  }
  TurnNextCard();
}

void frmBlackrush::TwentyOne(int index) {
  lbl21s.Caption = std::to_string(board.twentyOnes);
  board.ClearTwentyOne(index, TwentyOneBonusValue);
  ShowBonus();
  ColumnTotal(index).Caption = "21";
  ClearColumn(index);
  ShowEmptyPlace(index);
  ShowColumn(index);
  ColumnSoft(index).Visible = false;  // the word stays, and is seen again after a pause
  ResetCounter();
  Timer3.Enabled = true;
  PlaySound("\\TwentyOne.wav");
}

void frmBlackrush::FiveCardGimme(int index) {
  ClearColumn(index);
  CenterIn(lblFiveCards, ColumnImages(index)(0));
  lblFiveCards.Visible = true;
  AddToScore(FiveCardGimmeBonus);
  ResetCounter();
  ShowColumn(index);
  PlaySound("\\Click.wav");
  platform.Sleep(450);
  lblFiveCards.Visible = false;
  ShowEmptyPlace(index);
  ColumnSoft(index).Caption = "";
}

void frmBlackrush::TurnNextCard() {
  board.TurnNextCard();
  ShowCardsUsed(board.CardsUsed());
  ShowPile();
  if (!board.mayPass) cmdPass.Enabled = false;
  if (!board.HasNext()) return DeckCompleted();
  ShowFace(NextCardPicture, board.Next());
}

void frmBlackrush::DeckCompleted() {
  ShowEmpty(NextCardPicture);
  common.CurrentScore += DeckCompletionBonus;
  ClearColumns();
  PlaySound("\\Applause.wav");
  TellBriefly("Awesome score!");
  platform.Sleep(1000);
  ShowScore();
  EnableHitButtons(false);
  cmdTakeScore_Click(By::Button);
}

// --- Pass ----------------------------------------------------------------------------------------

void frmBlackrush::cmdPass_Click() {
  if (standing.InputIsDead()) return;
  if (!board.Pass()) return;
  ShowCardsUsed(board.CardsUsed());
  PlaySound("\\Click.wav");
  ShowPile();
  ShowFace(NextCardPicture, board.Next());
  cmdPass.Enabled = board.mayPass;
}

// --- The 21 Counter ------------------------------------------------------------------------------

void frmBlackrush::Timer3_Timer() {
  if (board.StepCounter(TwentyOneBonusValue)) {
    ProgressBar1.Value = static_cast<int>(board.counter);
    if (board.counter == kCounterFlashes) Timer5.Enabled = true;
    return;
  }
  ResetCounter();
  ShowBonus();
  lblBonus.ForeColor = kRed;
  platform.Sleep(250);
  lblBonus.ForeColor = kBlue;
}

void frmBlackrush::Timer5_Timer() {
  lblTwentyoneTime.ForeColor = lblTwentyoneTime.ForeColor == kRed ? kBlack : kRed;
}

void frmBlackrush::ResetCounter() {
  board.counter = 0;
  ProgressBar1.Value = ProgressBar1.Min;
  Timer5.Enabled = false;
  lblTwentyoneTime.ForeColor = kBlue;
}
