#include "games/spirehold/spirehold.h"

#include "suite/score_counter.h"
#include "window/text.h"

using namespace modSpirehold;

// --- Dealing -------------------------------------------------------------------------------------

void frmSpirehold::InitRound() {
  platform.DoEvents();
  common.CreateStandardDeck();
  common.ShuffleDeck();
  Deal();
  ClearRound();
  CurrentRun = 0;
  ShowRun();
  ShowHighRun();
  ShowRoundTime();
  lblCurrentRound.Caption = CurrentRound == 3 ? "Bonus" : std::to_string(CurrentRound);
  OpenRound();
}

void frmSpirehold::Deal() {
  for (int i = 0; i <= kFirstUpCard; ++i) DeckCards[i] = common.Deck.at(i + 1);
  for (int i = 0; i < kCovered; ++i) CoverCard(UpCardImage(i));
  for (int i = kCovered; i < kCards; ++i) {
    ShowCard(UpCardImage(i), DeckCards[i]);
    UpCardImage(i).Enabled = true;
    UpCardImage(i).Visible = true;
  }
  StackIndex = kFirstOfStack;
  UpCardCode = DeckCards[kFirstUpCard];
  ShowCard(UpCardPicture, UpCardCode);
  UpCardPicture.Enabled = true;
  UpCardValue = ::CardValue(UpCardCode);
  ShowCards(true);
  CardStackPicture.Picture = common.ImageList2("FULL");
  CardsRemaining = kFirstUpCard + 1 - kFirstOfStack;
  lblCards.Caption = std::to_string(CardsRemaining);
  ResetDial();
  Timer1.Enabled = true;
  ShowBonusGoal();
  StatusBar1.Panels(2).Text = "Create runs by clicking on exposed cards!   ";
  HideTowerLabels();
  NewHighRun = false;
}

// --- Runs and towers -----------------------------------------------------------------------------

bool frmSpirehold::CheckForLegalMove(int index) {
  if (UpCardImage(index).Picture == common.ImageList2("BACK")) return false;
  const int rank = ::CardValue(DeckCards.at(index));
  if (!IsNeighbour(rank, UpCardValue)) return false;
  UpCardValue = rank;
  return true;
}

void frmSpirehold::UpCardImage_Click(int index) {
  if (common.TakingScore) return;
  if (BoardIsClosed() || !CheckForLegalMove(index)) return Refuse();
  PlaySound("\\Markq.wav");
  UpCardPicture.Picture = UpCardImage(index).Picture;
  UpCardImage(index).Picture = 0;  // from this a card is known to be gone
  UpCardImage(index).Visible = false;
  RunValue = NextRunValue(RunValue, CardValue);
  AddToScore(RunValue);
  CurrentRun += 1;
  ShowRun();
  index < kTowers ? CompleteTower(index) : Uncover(index);
  if (TowersCompleted == kTowers) cmdTakeScore_Click();
}

void frmSpirehold::CompleteTower(int index) {
  Label* const labels[] = {&lblTower1, &lblTower2, &lblTower3};
  labels[index]->Visible = true;
  labels[index]->Caption = "Tower " + std::to_string(index + 1) + " Completed!";
  TowersCompleted += 1;
  PlaySound("\\HighScore.wav");
}

void frmSpirehold::Uncover(int index) {
  for (int covered = 0; covered < kCovered; ++covered) {
    const Pair& pair = kCoveredBy[covered];
    if (!pair.Has(index) || UpCardImage(pair.OtherThan(index)).Visible) continue;
    ShowCard(UpCardImage(covered), DeckCards[covered]);
    UpCardImage(covered).Enabled = true;
  }
}

void frmSpirehold::lblCurrentRun_Change() {
  if (CurrentRun > HighestRun) {
    HighestRun = CurrentRun;
    ShowHighRun();
    NewHighRun = true;
  }
  lblNextCard.Caption =
      "Next card worth: " + std::to_string(NextCardWorth(CurrentRun, CardValue)) + " points";
}

// Goes on after an error, step by step: a stack that is used up is clicked in vain.
void frmSpirehold::CardStackPicture_Click() {
  if (common.TakingScore) return;
  if (BoardIsClosed()) return Refuse();
  MousePointer = kHourglass;
  RunValue = 0;
  CurrentRun = 0;
  ShowRun();
  CardsRemaining = std::max(0ll, CardsRemaining - 1);
  lblCards.Caption = std::to_string(CardsRemaining);
  PlaySound("\\Click.wav");
  GoOnAfterError([&] { ShowCard(UpCardPicture, common.Deck.at(StackIndex + 1)); });
  GoOnAfterError([&] { StackIndex += 1; });
  GoOnAfterError([&] { UpCardValue = ::CardValue(DeckCards.at(StackIndex - 1)); });
  if (StackStage(StackIndex))
    RefreshPlayCard();
  else
    PlaySound("\\Chord.wav");
  MousePointer = kDefaultPointer;
}

void frmSpirehold::UpCardPicture_Click() { Refuse(); }

// --- Rounds --------------------------------------------------------------------------------------

void frmSpirehold::Play() {
  common.GameInProgress = true;
  CurrentRound = 1;
  TowersCompleted = 0;
  common.CurrentScore = 0;
  ShowScore();
  InitRound();
  cmdPlay.ToolTipText = "Ends the current game";
}

void frmSpirehold::PayAwards() {
  lblMessage.ForeColor = kRed;
  lblMessage.Visible = true;
  if (common.TimeLimit - common.ElapsedSeconds > 0)
    TowersCompleted != 0 ? CountTimeBonus(*this, common.TimeBonus) : RefuseTimeBonus();
  TowerScore();
  HighRunScore();
  lblMessage.ForeColor = kRed;
}

void frmSpirehold::RefuseTimeBonus() {
  lblMessage.Caption = "Sorry, you must complete at least\r\none tower to receive the time bonus!";
  PlaySound("\\Slide.wav");
  platform.Sleep(3000);
}

void frmSpirehold::TowerScore() {
  // The counter adds a mark of its own.
  if (TowersCompleted > 0) AwardBonus(*this, "Tower Bonus!", TowersCompleted, TowerBonus);
  TowersCompleted = 0;
  lblScoring.Visible = false;
}

void frmSpirehold::HighRunScore() {
  if (!NewHighRun) {
    lblScoring.Visible = false;
    return;
  }
  const Long total = HighestRun * HighRunBonus;
  NewHighRun = false;
  ShowAmount(*this, "Highest Run Bonus!", total, 1000);
  // Only what is counted has to fit the smaller type.
  if (common.CountDownScore)
    CountAmount(*this, Integer(static_cast<long long>(total)));
  else
    AddToScore(total);
  HideAmount(*this);
}

void frmSpirehold::EnableOptions(bool enable) {
  GameWindow::EnableOptions(enable);
  mnuClearHighRun.Enabled = enable;
}

void frmSpirehold::EndGame() {
  FinishGame();
  GameFinished();
  ShowSplash(true);
  StopMusic();
}
