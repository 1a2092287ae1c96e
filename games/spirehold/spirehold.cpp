#include "games/spirehold/spirehold.h"

#include "suite/score_counter.h"
#include "window/text.h"

using namespace modSpirehold;

// --- Dealing -------------------------------------------------------------------------------------

void frmSpirehold::InitRound() {
  common.CreateStandardDeck();
  common.ShuffleDeck();
  Deal();
  ClearRound();
  ShowRun();
  ShowHighRun();
  ShowRoundTime();
  lblCurrentRound.Caption = CurrentRound == 3 ? "Bonus" : std::to_string(CurrentRound);
  OpenRound();
}

void frmSpirehold::Deal() {
  board.Deal(common.Deck);
  for (int i = 0; i < kCovered; ++i) CoverCard(UpCardImage(i));
  for (int i = kCovered; i < kCards; ++i) {
    ShowCard(UpCardImage(i), board.table[i]);
    UpCardImage(i).Enabled = true;
    UpCardImage(i).Visible = true;
  }
  ShowCard(UpCardPicture, board.pile.back());
  UpCardPicture.Enabled = true;
  ShowCards(true);
  CardStackPicture.Picture = common.ImageList2("FULL");
  lblCards.Caption = std::to_string(board.stack.size());
  clock.ResetDial();
  Timer1.Enabled = true;
  ShowBonusGoal();
  StatusBar1.Panels(2).Text = "Create runs by clicking on exposed cards!   ";
  HideTowerLabels();
}

// --- Runs and towers -----------------------------------------------------------------------------

void frmSpirehold::UpCardImage_Click(int index) {
  if (standing.InputIsDead()) return;
  if (standing.BoardIsClosed() || !board.Take(index)) return Refuse();
  PlaySound("\\Markq.wav");
  UpCardPicture.Picture = UpCardImage(index).Picture;
  UpCardImage(index).Picture = 0;
  UpCardImage(index).Visible = false;
  board.RaiseRunValue(CardValue);
  AddToScore(board.RunValue);
  board.LengthenRun();
  ShowRun();
  index < kTowers ? CompleteTower(index) : Uncover(index);
  if (board.TowersCompleted() == kTowers) cmdTakeScore_Click(By::Button);
}

void frmSpirehold::CompleteTower(int index) {
  Label* const labels[] = {&lblTower1, &lblTower2, &lblTower3};
  labels[index]->Visible = true;
  labels[index]->Caption = "Tower " + std::to_string(index + 1) + " Completed!";
  platform.front.Triumph(*labels[index]);
  PlaySound("\\HighScore.wav");
}

void frmSpirehold::Uncover(int index) {
  for (int covered = 0; covered < kCovered; ++covered) {
    const int left = kLeftCover[covered];
    if ((index != left && index != left + 1) || board.IsCovered(covered)) continue;
    ShowCard(UpCardImage(covered), board.table[covered]);
    UpCardImage(covered).Enabled = true;
  }
}

void frmSpirehold::lblCurrentRun_Change() {
  if (board.NewHighRun) ShowHighRun();
  lblNextCard.Caption = "Next card worth: " + std::to_string(board.NextCardWorth(CardValue)) + " points";
}

void frmSpirehold::CardStackPicture_Click() {
  if (standing.InputIsDead()) return;
  if (standing.BoardIsClosed()) return Refuse();
  MousePointer = kHourglass;
  const bool isUsedUp = board.stack.empty();
  board.TurnCard();
  ShowRun();
  lblCards.Caption = std::to_string(board.stack.size());
  PlaySound("\\Click.wav");
  if (!isUsedUp) ShowCard(UpCardPicture, board.pile.back());
  isUsedUp ? PlaySound("\\Chord.wav") : ShowStack();
  MousePointer = kDefaultPointer;
}

void frmSpirehold::UpCardPicture_Click() { Refuse(); }

// --- Rounds --------------------------------------------------------------------------------------

void frmSpirehold::Play() {
  standing.Begin();
  CurrentRound = 1;
  common.CurrentScore = 0;
  ShowScore();
  platform.DoEvents();
  InitRound();
  cmdPlay.ToolTipText = "Ends the current game";
}

void frmSpirehold::PayAwards() {
  lblMessage.ForeColor = kRed;
  lblMessage.Visible = true;
  if (clock.Left() > 0)
    board.TowersCompleted() != 0 ? CountTimeBonus(*this, common.TimeBonus) : RefuseTimeBonus();
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
  if (const int towers = board.TowersCompleted()) AwardBonus(*this, "Tower Bonus!", towers, TowerBonus);
  lblScoring.Visible = false;
}

void frmSpirehold::HighRunScore() {
  if (!board.NewHighRun) {
    lblScoring.Visible = false;
    return;
  }
  const Long total = board.HighestRun * HighRunBonus;
  ShowAmount(*this, "Highest Run Bonus!", total, 1000);
  // Only what is counted has to fit the smaller type.
  if (common.CountDownScore)
    CountAmount(*this, Integer(static_cast<long long>(total)));
  else
    AddToScore(total);
  HideAmount(*this);
}

void frmSpirehold::EndGame() {
  FinishGame();
  GameFinished();
  splash.Show(true);
  StopMusic();
}
