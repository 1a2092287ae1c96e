#include "games/fivestack/fivestack.h"

#include <algorithm>

using namespace modFivestack;

namespace {

constexpr int kGreen = 49152;

// What Give Up reads: a total that was lost differs from none.
constexpr char kGiveUp[] = "&Give Up", kLost[] = "&Give up", kTakeScore[] = "&Take score";

}  // namespace

// --- Hit and Pass --------------------------------------------------------------------------------

void frmFivestack::cmdHit_Click(int index) {
  if (standing.InputIsDead()) return;
  NextCardPicture.Visible = true;
  PlaySound("\\Click.wav");
  const Laid laid = CalculateColumnValue(index);
  if (laid == Laid::Refused) return;
  if (laid == Laid::Over) {
    if (CheckForBust(index)) {
      cmdGiveUp.Caption = kLost;
      cmdGiveUp_Click();
      return;
    }
    SumUp();
    if (board.cardTotal < kLowestPaid) {
      lblCurrentTotal.ForeColor = kRed;
      cmdGiveUp.Caption = kLost;
    }
    return;
  }
  SumUp();  // 105 ends the round in here
  if (board.cardTotal >= kLowestPaid) lblCurrentTotal.ForeColor = kGreen;
  ShowNextCard();
}

void frmFivestack::cmdPass_Click() {
  if (!board.Pass()) return;
  ShowNextCard();
  PlaySound("\\Click.wav");
  if (board.passesLeft <= 0) cmdPass.Enabled = false;
}

Laid frmFivestack::CalculateColumnValue(int index) {
  const Laid laid = board.Lay(index);
  if (laid == Laid::Refused) return laid;
  const Column21& column = board.columns[index];
  Image& slot = ColumnImages(index)(static_cast<int>(column.cards.size()) - 1);
  slot.BorderStyle = 1;
  slot.Visible = true;
  slot.Picture = NextCardPicture.Picture;
  if (column.softAces > 0) {
    ColumnSoft(index).Caption = "Soft";
    ColumnSoft(index).Visible = true;
  }
  ColumnTotal(index).Caption = std::to_string(column.total);
  if (!board.Takes(index)) CloseColumn(index);
  return laid;
}

// An ace that comes down costs the card on show: it is skipped, and nobody plays it.
bool frmFivestack::CheckForBust(int index) {
  if (board.CheckForBust(index)) {
    CloseCurrentRound();
    return true;
  }
  ShowNextCard();
  ColumnSoft(index).Visible = false;
  ColumnSoft(index).Caption = "";
  ColumnTotal(index).Caption = std::to_string(board.columns[index].total);
  return false;
}

void frmFivestack::CloseColumn(int index, bool close) {
  cmdHit(index).Enabled = !close;
  cmdHit(index).Caption = close ? "Closed" : "Hit";
}

// --- The card total ------------------------------------------------------------------------------

// The total runs up column by column, and the table with it.
void frmFivestack::SumUp() {
  ShowCardTotal(0);
  long long sum = 0;
  for (const Column21& column : board.columns) ShowCardTotal(sum += column.total);
  if (board.cardTotal != kPerfect) return;
  platform.front.Triumph(lblCurrentTotal, true);
  cmdGiveUp_Click();
}

void frmFivestack::ShowCardTotal(long long total) {
  shownTotal_ = total;
  lblCurrentTotal.Caption = std::to_string(total);
}

void frmFivestack::lblCurrentTotal_Change() {
  UpdateCardTotalValue();
  CenterCardTotal();
}

void frmFivestack::UpdateCardTotalValue() {
  ClearCardTotalRows();
  const int row = RowOf(shownTotal_);
  for (int i = 2 * row; row >= 0 && i < 2 * row + 2; ++i) {
    tableLabels[i]->FontBold = true;
    tableLabels[i]->ForeColor = kRed;
  }
  if (ValueOf(shownTotal_) > 0) cmdGiveUp.Caption = kTakeScore;
}

void frmFivestack::ClearCardTotalRows() {
  for (const auto& label : tableLabels) {
    label->FontBold = false;
    label->ForeColor = kBlack;
  }
}

// --- A new game ----------------------------------------------------------------------------------

void frmFivestack::LeaveIdle() {
  MousePointer = kHourglass;
  standing.InputLives();
  QuitRequested = false;
  splash.Show(false);
  StatusBar1.Panels(2).Text = "Click on Hit buttons to create columns of 21!   ";
  ShowBonusGoal(" for bonus round.  ");
  // The back design may be changed during a game.
  for (Menu* entry : {&mnuTime, &mnuCustom}) entry->Enabled = false;
  commands.SetPlayCaption(plan.names.endGame);
  cmdPlay.ToolTipText = "Ends the game in progress";
}

void frmFivestack::Play() {
  CurrentRound = 1;
  Caption = common.AppTitle + ": Round " + std::to_string(CurrentRound);
  DealCards();
  ShowGraphics(true);
  ShowHitButtons(true);
  ShowRoundControls(true);
  SetVisible({&lblHighScore, &lblScore, &ScoreRectangle, &ScoreBevelBottom, &ScoreBevelSide, &lblTotalScore},
             true);
  common.CurrentScore = 0;
  ShowScore();
  StartClock();
  standing.Begin();
  StartMusic();
  MousePointer = kDefaultPointer;
}

// The first card of the deck is never seen.
void frmFivestack::DealCards() {
  if (common.CreateStandardDeck() && common.ShuffleDeck()) EnableControls();
  Reset();
  PlayCardPicture.Visible = true;
  board.Deal(common.Deck);
  ShowNextCard();
  NextCardPicture.Visible = true;
  for (int i = 0; i < kColumns; ++i) {
    ShowEmpty(ColumnImages(i)(0));
    ColumnImages(i)(0).Visible = true;
  }
  cmdPass.Enabled = board.passesLeft > 0;
  cmdPause.Enabled = true;
  mnuPause.Enabled = true;
}

void frmFivestack::StartClock() {
  UpdateCardTotalValue();
  clock.ResetDial();
  Timer1.Enabled = true;
}

void frmFivestack::EnableControls() {
  for (int i = 1; i < kColumns; ++i) {  // the first one is enabled by `Reset`
    cmdHit(i).Enabled = true;
    ColumnTotal(i).Visible = true;
  }
  lblCurrentTotal.Visible = true;
  ShowScoringLabel(false);
  ScoringLabelOutline.Visible = false;
}

void frmFivestack::Reset() {
  board.Clear(CardsToPass);
  for (int i = 0; i < kColumns; ++i) {
    for (int slot = 0; slot < kCardsOfColumn; ++slot) {
      Image& image = ColumnImages(i)(slot);
      image.Visible = false;
      image.BorderStyle = 0;
      image.Picture = 0;
    }
    ColumnSoft(i).Visible = false;
    ColumnSoft(i).Caption = "";
    ColumnTotal(i).Caption = "0";
    CloseColumn(i, false);
  }
  ShowCardTotal(0);
  cmdGiveUp.Caption = kGiveUp;
  ShowHitButtons(false);
  cmdPause.Enabled = false;
  mnuPause.Enabled = false;
  Timer1.Enabled = false;
  clock.ElapsedSeconds = 0;
  ShowTimeBonus(TimeBonusMax);
}

// --- The time bonus ------------------------------------------------------------------------------

float frmFivestack::TimeBonusDecay() const { return BonusDecay(TimeBonusMax, TimeBonusMin, clock.TimeLimit); }

void frmFivestack::ShowTimeLeft() {
  common.TimeBonus = BonusAfter(clock.ElapsedSeconds, TimeBonusMax, TimeBonusMin, TimeBonusDecay());
  ShowTimeBonus(common.TimeBonus);
  lblTime.Caption = "Time Bonus:";
}

void frmFivestack::ShowTimeBonus(long long bonus) {
  lblTimeBonus.Caption = (bonus < 0 ? "" : " ") + std::to_string(bonus);
}

void frmFivestack::TimeIsUp() {
  ShowCards(false);
  ScoringLabel.ForeColor = kRed;
  Timer1.Enabled = false;
  ScoringLabel.Caption = "Times Up!";
  SetVisible({&ScoringLabel, &ScoringLabelOutline}, true);
  Wait();
  cmdGiveUp_Click();
}

// --- The end of a round --------------------------------------------------------------------------

void frmFivestack::cmdGiveUp_Click() {
  if (standing.InputIsDead()) return;
  const auto failure = FailureOf<std::exception>([&] {
    standing.Score();
    Timer1.Enabled = false;
    MousePointer = kHourglass;
    CurrentRound += 1;
    board.Worth() > 0 ? TakeScore() : LoseRound();
    Reset();
    platform.DoEvents();
    if (standing.InGame()) EndRound(CurrentRound);
    MousePointer = kDefaultPointer;
  });
  if (failure) PlayFailed(*failure);
}

void frmFivestack::LoseRound() {
  PlaySound("\\Busted.wav");
  StopMusic();
  ShowCards(false);
  ScoringLabel.ForeColor = kRed;
  if (board.cardTotal < kLowestPaid) {
    ScoringLabel.Caption = "Sorry, 97 or more needed to win!";
  } else {
    ScoringLabel.Caption = "Busted!";
    PlaySound("\\Busted.wav");
  }
  SetVisible({&ScoringLabelOutline, &ScoringLabel}, true);
  Blink(ScoringLabel, 12, 150);
  ScoringLabel.Visible = false;
}

// Whatever fails in here is told, and play goes on.
void frmFivestack::TakeScore() {
  const auto failure = FailureOf([&] {
    StopMusic();
    ShowCards(false);
    const int worth = board.Worth();
    const Long roundScore = worth * common.TimeBonus;
    ScoringLabelRoundTotal.Caption = "Round " + std::to_string(CurrentRound - 1) + " Total: ";
    ScoringLabel.Caption = FormatNumber(roundScore);
    PlaceRoundTotal();
    ScoringLabelInfo.ForeColor = kBlack;
    ScoringLabel.ForeColor = kBlack;
    ScoringLabelInfo.Caption = "Card Total Value (" + std::to_string(worth) + ") X Time Bonus (" +
                               std::to_string(common.TimeBonus) + ")";
    ShowScoringLabel(true);
    ScoringLabelOutline.Visible = true;
    Wait();
    if (worth == ValueOf(kPerfect)) {
      ScoringLabelInfo.Caption = "Totally Awesome Score!";
      PlaySound("\\Applause.wav");
      Wait();
      Wait();
    }
    ScoringLabel.ForeColor = kRed;
    if (common.CountDownScore)
      CountScore(roundScore);
    else
      AddToScore(roundScore);
  });
  if (failure) common.MsgBox(*failure);
  ShowScoringLabel(false);
}

// All values of the table are even, so that steps of twice the bonus add up, below zero as well.
void frmFivestack::CountScore(long long roundScore) {
  const long long step = 2 * common.TimeBonus;
  int ticks = 0;
  for (long long left = roundScore; left != 0; left -= step) {
    ++ticks;
    ScoringLabel.Caption = FormatNumber(left);
    AddToScore(step);
    if (ticks % 3 == 0) PlaySound("\\Tick.wav");
    platform.Sleep(10);
  }
  ScoringLabel.Caption = "0";
  platform.Sleep(50);
  ScoringLabel.ForeColor = kBlue;
}

// --- The next round, or the end of the game ------------------------------------------------------

void frmFivestack::EndRound(Integer round) {
  clock.ElapsedSeconds = 0;
  if (CurrentRound == kBonusRound && !EarnsBonusRound()) CurrentRound = round = kBonusRound + 1;
  StopMusic();
  round <= kBonusRound ? PrepareRound() : GameOver();
}

void frmFivestack::PrepareRound() {
  platform.DoEvents();
  StartMusic();
  const std::string number = std::to_string(CurrentRound);
  Caption = common.AppTitle + ": Round " + number;
  lblRound.Caption = "Round: " + number;
  ShowCards(false);
  const bool bonus = CurrentRound == kBonusRound;
  ScoringLabel.Caption = bonus ? "Prepare for Bonus Round!" : "Prepare for Round " + number;
  if (bonus) CheerBonusRound();
  ScoringLabel.ForeColor = kBlue;
  ScoringLabel.Visible = true;
  Wait();
  SetVisible({&ScoringLabelOutline, &ScoringLabel}, false);
  ShowTable(true);
  DealCards();
  ShowHitButtons(true);
  ShowRoundControls(true);
  StartClock();
  standing.InputLives();
  standing.Open();
  lblCurrentTotal.ForeColor = kRed;
}

void frmFivestack::GameOver() {
  if (!QuitRequested) {
    EnterHighScore();
    TellGameOver(ScoringLabel);
  }
  standing.GameOver();
  Caption = common.AppTitle + ": Game Over";
  lblRound.Visible = false;
  lblRound.Caption = "Round: 1";
  ScoringLabel.ForeColor = kBlue;
  ScoringLabel.Caption = "Game Over";
  SetVisible({&ScoringLabel, &ScoringLabelOutline}, false);
  common.CurrentScore = 0;
  CurrentRound = 0;
  commands.SetPlayCaption("&Play");
  commands.TellStart();
  for (Menu* entry : {&mnuCustom, &mnuTime, &mnuDeck}) entry->Enabled = true;
  clock.ElapsedSeconds = 0;
  clock.ResetDial();
  Timer1.Enabled = false;
  ShowRoundControls(false);
  splash.Show(true);
  StatusBar1.Panels(1).Text = "Game over!  ";
  StatusBar1.Panels(2).Text = "Click on Play to start a new game.  ";
  lblCurrentTotal.ForeColor = kRed;
}

// --- End Game, failures --------------------------------------------------------------------------

void frmFivestack::EndGame() {
  QuitRequested = true;
  Reset();
  EndRound(kBonusRound + 1);
}

void frmFivestack::GameFailed() {
  if (standing.IsPaused()) ResumeGame();
  StopMusic();
  ShowCards(false);
  ShowScoringLabel(false);
  Reset();
  GameOver();
}

void frmFivestack::BackToIdle() {
  GameWindow::BackToIdle();
  ShowHitButtons(false);
  ShowRoundControls(false);
}

// --- The pause ----------------------------------------------------------------

void frmFivestack::TellPause(bool paused) {
  ScoringLabel.ForeColor = kBlue;
  GameWindow::TellPause(paused);
}

void frmFivestack::CoverCards(bool covered) {
  ShowCards(!covered);
  ShowHitButtons(!covered);
}
