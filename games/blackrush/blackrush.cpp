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
  PassesLeft = CardsToPass;
  standing.Begin();
  EnablePause(true);
  mnuUserOptions.Enabled = false;
  mnuTimeLimit.Enabled = false;
  cmdPass.Enabled = CardsToPass != 0;
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
  ResetDial();
  common.ElapsedSeconds = 0;
  DeckPosition = 1;
  ShowFace(NextCardPicture, common.Deck.at(DeckPosition));
  ShowCardsUsed(0);
  ShowPile();
  StartMusic();
}

// --- Hit -----------------------------------------------------------------------------------------

void frmBlackrush::cmdHit_Click(int index) {
  if (standing.InputIsDead()) return;
  const int total = GetHitTotal(index);
  if (total <= kTwentyOne) return LayCard(index, total);
  CheckForBust(index) ? Bust() : LayCard(index, total - 10);
}

int frmBlackrush::GetHitTotal(int index) {
  const long long softBefore = columns[index].softAces;
  const int total = modBlackrush::GetHitTotal(columns[index], common.Deck.at(DeckPosition));
  if (columns[index].softAces > softBefore) {
    ColumnSoft(index).Visible = true;
    ColumnSoft(index).Caption = "Soft";
  }
  return total;
}

bool frmBlackrush::CheckForBust(int index) {
  if (!BringAceDown(columns[index])) return true;
  if (columns[index].softAces == 0) {
    ColumnSoft(index).Visible = false;
    ColumnSoft(index).Caption = "";
    ShowColumn(index);
  }
  return false;
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
  Column21& column = columns[index];
  Image& place = ColumnImages(index)(column.cards);
  place.BorderStyle = 1;
  place.Visible = true;
  place.Picture = NextCardPicture.Picture;
  column.cards += 1;
  switch (Judge(total, column.cards)) {
    case Laid::TwentyOne:
      TwentyOne(index);
      break;
    case Laid::FiveCardGimme:
      FiveCardGimme(index);
      break;
    case Laid::Stays:
      column.total = total;
      ShowColumn(index);
      PlaySound("\\Click.wav");
      break;
  }
  TurnNextCard();
}

void frmBlackrush::TwentyOne(int index) {
  TwentyOnes += 1;
  lbl21s.Caption = std::to_string(TwentyOnes);
  Bonus += TwentyOneBonusValue;
  ShowBonus();
  ColumnTotal(index).Caption = "21";
  ClearColumn(index);
  ShowEmptyPlace(index);
  columns[index] = {};
  ShowColumn(index);
  ColumnSoft(index).Visible = false;  // the word stays, and is seen again after a pause
  ResetCounter();
  Timer3.Enabled = true;
  PlaySound("\\TwentyOne.wav");
}

// Soft aces of the column aren't forgotten: one that is left over saves a hard column later.
void frmBlackrush::FiveCardGimme(int index) {
  columns[index].total = 0;
  columns[index].cards = 0;
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
  DeckPosition += 1;
  ShowCardsUsed(DeckPosition - 1);
  ShowPile();
  if (DeckPosition >= kLastCard) cmdPass.Enabled = false;
  if (DeckPosition > kLastCard) return DeckCompleted();
  ShowFace(NextCardPicture, common.Deck.at(DeckPosition));
}

void frmBlackrush::DeckCompleted() {
  ShowEmpty(NextCardPicture);
  common.CurrentScore += DeckCompletionBonus;
  ClearColumns();
  PlaySound("\\Applause.wav");
  ShowMessage("Awesome score!", false);
  platform.Sleep(1000);
  ShowScore();
  EnableHitButtons(false);
  cmdTakeScore_Click();
}

// --- Pass ----------------------------------------------------------------------------------------

void frmBlackrush::cmdPass_Click() {
  if (standing.InputIsDead()) return;
  PassesLeft -= 1;
  DeckPosition += 1;
  ShowCardsUsed(DeckPosition - 1);
  PlaySound("\\Click.wav");
  ShowPile();
  ShowFace(NextCardPicture, common.Deck.at(DeckPosition));
  if (DeckPosition == kLastCard || PassesLeft == 0) cmdPass.Enabled = false;
}

// --- The 21 Counter ------------------------------------------------------------------------------

void frmBlackrush::Timer3_Timer() {
  if (ProgressBar1.Value < ProgressBar1.Max) {
    ProgressBar1.Value += 1;
    if (ProgressBar1.Value == kCounterFlashes) Timer5.Enabled = true;
    return;
  }
  ResetCounter();
  Bonus = TwentyOneBonusValue;
  ShowBonus();
  lblBonus.ForeColor = kRed;
  platform.Sleep(250);
  lblBonus.ForeColor = kBlue;
}

void frmBlackrush::Timer5_Timer() {
  lblTwentyoneTime.ForeColor = lblTwentyoneTime.ForeColor == kRed ? kBlack : kRed;
}

void frmBlackrush::ResetCounter() {
  ProgressBar1.Value = ProgressBar1.Min;
  Timer5.Enabled = false;
  lblTwentyoneTime.ForeColor = kBlue;
}

void frmBlackrush::SetCounterSpeed(int interval) {
  CounterSpeed = interval;
  Timer3.Interval = interval;
}
