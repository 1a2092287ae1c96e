// How rounds and games of Blackrush end, and how the next round begins; the pause.
#include "games/blackrush/blackrush.h"
#include "suite/score_counter.h"

using namespace modBlackrush;

// --- The end of a round --------------------------------------------------------------------------

void frmBlackrush::TimeIsUp() {
  Timer1.Enabled = false;
  Timer3.Enabled = false;
  ClearColumns();
  KeepTelling("Times Up!");
  StatusBar1.Panels(2).Text = "Time has expired!";
  lblTime.Caption = "Time:";
  Blink(ScoringLabelInfo, 10);
  cmdTakeScore_Click(By::Button);
  if (!standing.IsOver()) ScoringLabelInfo.Visible = false;
}

// The clock isn't stopped while the score is taken.
void frmBlackrush::TakeScore() {
  standing.Score();
  MousePointer = kHourglass;
  SetVisible({&ProgressBar1, &lblTwentyoneTime}, false);
  EnablePlayControls(false);
  EnablePause(false);
  StopMusic();
  CountCardsUsed();
  if (board.twentyOnes != 0) CountTwentyOnes();
  EndCount();
  CurrentRound += 1;
  clock.ElapsedSeconds = 0;
  ShowRound();
  NextRound();
  if (standing.InGame()) StartMusic();
  MousePointer = kDefaultPointer;
}

void frmBlackrush::CountCardsUsed() {
  long long cards = board.CardsUsed();
  for (Label* label : {&lblCardsUsed, &lblCardsUsedCount}) label->ForeColor = kRed;
  if (common.CountDownScore) {
    while (cards > 0) {
      platform.Sleep(75);
      AddToScore(CardsUsedBonusValue);
      PlaySound("\\CountScore.wav");
      ShowCardsUsed(--cards);
    }
  } else {
    AddToScore(cards * CardsUsedBonusValue);
    ShowCardsUsed(0);
    platform.Sleep(500);
  }
  for (Label* label : {&lblCardsUsed, &lblCardsUsedCount}) label->ForeColor = kBlue;
}

void frmBlackrush::CountTwentyOnes() {
  for (Label* label : {&lbl21Bonus, &lblTwentyOnes, &lbl21s, &lblBonus}) label->ForeColor = kRed;
  const Long pay = board.TwentyOnesPay();
  lblRoundScore.Caption =
      std::to_string(board.twentyOnes) + " X " + FormatNumber(board.bonus) + " = " + FormatNumber(pay);
  lblRoundScoreCount.Caption = std::to_string(pay);
  SetVisible({&lblRoundScore, &lblRoundScoreCount}, true);
  platform.Sleep(750);
  if (common.CountDownScore && pay == 0) return;
  if (common.CountDownScore && TwentyOneBonusValue > 0) {  // other steps would never end
    long long left = pay;
    CountInSteps(pay, TwentyOneBonusValue, [&](long long step) {
      platform.Sleep(75);
      AddToScore(step);
      left -= step;
      lblRoundScoreCount.Caption = std::to_string(left);
      PlaySound("\\CountScore.wav");
    });
  } else {
    AddToScore(pay);
    platform.Sleep(500);
  }
}

// Nothing is left of a count.
void frmBlackrush::EndCount() {
  for (Label* label : {&lbl21Bonus, &lblTwentyOnes, &lbl21s, &lblBonus, &lblCardsUsed, &lblCardsUsedCount})
    label->ForeColor = kBlue;
  SetVisible({&lblRoundScore, &lblRoundScoreCount}, false);
  ForgetTwentyOnes();
  clock.ResetDial();
  SetVisible({&TimerRectangle, &TimerBevelSide, &TimerBevelBottom, &ProgressBar1, &lblTwentyoneTime}, true);
}

// --- The next round, or the end of the game ------------------------------------------------------

// `CurrentRound` is that of the round to come; one above 4 ends the game.
void frmBlackrush::NextRound() {
  if (CurrentRound > plan.rounds + 1) Timer1.Enabled = false;
  platform.DoEvents();
  StopMusic();
  EmptyBoard();
  const bool bonus = CurrentRound == plan.rounds + 1 && EarnsBonusRound();
  const bool goesOn = CurrentRound <= plan.rounds || bonus;
  goesOn ? PrepareRound(bonus) : GameOver();
  OpenBoard(!goesOn);
}

void frmBlackrush::EmptyBoard() {
  ClearColumns();
  Timer3.Enabled = false;
  ResetCounter();
  board.Clear();  // the bonus, too: the counter may have expired a moment ago
  ShowBonus();
  for (int i = 0; i < kColumns; ++i) {
    ShowColumn(i);
    ColumnSoft(i).Caption = "";
  }
  StatusBar1.Panels(2).Text = "Create columns of 21 to increase bonus score!   ";
}

void frmBlackrush::PrepareRound(bool bonus) {
  StartMusic();
  common.ShuffleDeck();
  PlayCardPicture.Picture = common.ImageList2("FULL");
  if (bonus) CheerBonusRound();
  TellBriefly(bonus ? "Prepare for Bonus Round" : "Prepare for Round " + std::to_string(CurrentRound));
  Timer1.Enabled = true;
  for (int i = 0; i < kColumns; ++i) ShowEmptyPlace(i);
  board.Deal(common.Deck);
  ShowFace(NextCardPicture, board.Next());
  board.GrantPasses(CardsToPass);
  cmdPass.Enabled = board.mayPass;
}

void frmBlackrush::GameOver() {
  Timer1.Enabled = false;
  Timer3.Enabled = false;
  if (!QuitRequested) EnterHighScore();
  TellGameOver(ScoringLabelInfo);
  lblRound.Caption = "Game Over";
  commands.SetPlayCaption("&Play");
  commands.TellStart();
  TellBriefly("Game Over");
  frameScoreInfo.Visible = false;
  splash.Show(true);
  clock.ResetDial();
  ShowGameBoard(false);
  EnablePause(false);
  lblTime.Caption = "Time:";
  mnuUserOptions.Enabled = true;
  mnuTimeLimit.Enabled = true;
  clock.ElapsedSeconds = 0;
}

void frmBlackrush::OpenBoard(bool over) {
  standing.Hold();
  platform.DoEvents();
  standing.InputLives();
  EnablePlayControls(true);
  EnablePause(!over);
  over ? standing.GameOver() : standing.Open();
  if (!over) return;
  StatusBar1.Panels(1).Text = "Click on Play to start a new game  ";
  StatusBar1.Panels(2).Text = "Game Over ";
  EnableHitButtons(false);
  NextCardPicture.BorderStyle = 0;
}

// --- The end of a game before its time -----------------------------------------------------------

void frmBlackrush::EndGame() {
  EnablePause(false);
  lblTime.Caption = "Time:";
  CurrentRound = plan.rounds + 2;
  QuitRequested = true;
  standing.Score();  // no card, no command until the board is in order
  NextRound();
}

void frmBlackrush::GameFailed() {
  StopMusic();
  SetVisible({&lblBust, &lblFiveCards}, false);
  EndCount();
  EmptyBoard();
  GameOver();
  OpenBoard(true);
}

void frmBlackrush::BackToIdle() {
  StopTelling();
  SetVisible({&lblBust, &lblFiveCards}, false);
  EndCount();
  EmptyBoard();
  ShowGameBoard(false);
  GameWindow::BackToIdle();
}

// --- The pause -----------------------------------------------------------------------------------

void frmBlackrush::PauseGame() {
  Timer3.Enabled = false;
  EnablePlayControls(false);
  GameWindow::PauseGame();
}

void frmBlackrush::ResumeGame() {
  GameWindow::ResumeGame();
  EnablePlayControls(true);
  Timer3.Enabled = board.twentyOnes > 0;  // the first of the round starts the counter
}

void frmBlackrush::CoverCards(bool covered) {
  ShowCards(!covered);
  ShowGameBoard(!covered);
}
