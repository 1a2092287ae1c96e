#include "games/duopick/duopick.h"

#include "suite/score_counter.h"

using namespace modDuopick;

// --- Dealing -------------------------------------------------------------------------------------

void frmDuopick::InitRound() {
  platform.DoEvents();
  common.CreateStandardDeck();
  common.ShuffleDeck();
  Deal();
  RoundCompleted = false;
  ClearRound();
  cmdPlay.ToolTipText = "Ends the current game";
  CardsSelected = 0;
  FirstCardIndex = 0;
  PairsCount = 0;
  RunsCount = 0;
  ShowCounts();
  ShowRoundTime();
  lblCurrentRound.Caption = std::to_string(CurrentRound);
  OpenRound();
}

void frmDuopick::Deal() {
  modDuopick::Deal(cards, common.Deck);
  for (int i = 0; i < kCards; ++i) {
    ShowFace(PlayCard(i), cards.DeckCards[i]);
    PlayCard(i).Enabled = true;
  }
  ShowCards(true);
  ShowControls(true);
  CardStackPicture.Picture = common.ImageList2("FULL");
  CardsRemaining = kDealt - kCards;
  lblCards.Caption = std::to_string(CardsRemaining);
  ResetDial();
  Timer1.Enabled = true;
  ShowBonusGoal();
  StatusBar1.Panels(2).Text = "Create runs by clicking on exposed cards!   ";
}

// --- Two by two ----------------------------------------------------------------------------------

bool frmDuopick::CheckForLegalMove(int index) const {
  std::bitset<kField> lying;
  for (int i = 0; i < kField; ++i) lying[i] = PlayCard(i).Visible;
  return IsExposed(index, lying);
}

void frmDuopick::PlayCard_Click(int index) {
  if (common.TakingScore) return;
  const bool pileIsEmpty = index == kUpCard && cards.WastePos == 0;
  if (BoardIsClosed() || pileIsEmpty || !CheckForLegalMove(index)) return Refuse();
  CardsSelected == 0 ? SelectCard(index) : TakeSecondCard(index);
}

void frmDuopick::SelectCard(int index) {
  FirstCardValue = CardValue(cards.DeckCards[index]);
  CardsSelected = 1;
  FirstCardIndex = index;
  PlaySound("\\Markq.wav");
  FieldSelectionRectangle(index).Visible = true;
  PlayCard(index).Enabled = false;
}

// The round may end in here; then the last steps meet the next one, in which nothing is selected.
void frmDuopick::TakeSecondCard(int index) {
  if (FieldSelectionRectangle(index).Visible) {
    PlaySound("\\Tick.wav");
    FieldSelectionRectangle(index).Visible = false;
    PlayCard(index).Enabled = true;
  } else {
    const Match match = MatchOf(FirstCardValue, CardValue(cards.DeckCards[index]));
    if (match == Match::Pair) PairsCount += 1;
    if (match == Match::Run) RunsCount += 1;
    ShowCounts();
    if (match != Match::None) {
      TakeBoth(index);
    } else {
      if (cards.WastePos != 0) PlayCard(kUpCard).Enabled = true;
      PlayCard(FirstCardIndex).Enabled = true;
      Refuse();
    }
    FieldSelectionRectangle(index).Visible = false;
    FieldSelectionRectangle(FirstCardIndex).Visible = false;
  }
  CardsSelected = 0;
  FirstCardIndex = 0;
}

void frmDuopick::TakeBoth(int index) {
  PlaySound("\\TwentyOne.wav");
  RemoveCard(index);
  RemoveCard(static_cast<int>(FirstCardIndex));
  if (index == kUpCard || FirstCardIndex == kUpCard) ShowNextUpCard(index);
  if (!TopRowIsCleared()) return;
  RoundCompleted = true;
  cmdTakeScore_Click();
  RoundCompleted = false;
}

// A picture that is gone marks a gap in the field.
void frmDuopick::RemoveCard(int index) {
  if (index == kUpCard) return;
  PlayCard(index).Visible = false;
  PlayCard(index).Picture = 0;
}

void frmDuopick::ShowNextUpCard(int index) {
  TakeUpCard(cards);
  if (cards.WastePos > 0) {
    PlayCard(kUpCard).Enabled = true;
    ShowCard(PlayCard(kUpCard), cards.DeckCards[kUpCard]);
    PlayCard(index).Enabled = true;
    PlayCard(FirstCardIndex).Enabled = true;
  } else {
    PlayCard(kUpCard).Enabled = false;
    ShowEmpty(PlayCard(kUpCard));
  }
}

bool frmDuopick::TopRowIsCleared() const {
  for (int i = 0; i < kTopRow; ++i)
    if (PlayCard(i).Visible) return false;
  return true;
}

void frmDuopick::ClearSelectionRectangles() {
  for (int i = 0; i < kField; ++i) {
    FieldSelectionRectangle(i).Visible = false;
    PlayCard(i).Enabled = true;
  }
  FieldSelectionRectangle(kUpCard).Visible = false;
  if (cards.WastePos != 0) PlayCard(kUpCard).Enabled = true;
  CardsSelected = 0;
  FirstCardValue = 0;
}

// --- The stack -----------------------------------------------------------------------------------

int frmDuopick::FirstGap() const {
  for (int i = 0; i < kField; ++i)
    if (PlayCard(i).Picture == 0) return i;
  return -1;
}

// Goes on after an error, step by step: a stack that is used up is clicked in vain.
void frmDuopick::CardStackPicture_Click() {
  MousePointer = kHourglass;
  CardsRemaining = std::max(0ll, CardsRemaining - 1);
  lblCards.Caption = std::to_string(CardsRemaining);
  PlaySound("\\Click.wav");
  if (const int gap = FirstGap(); gap >= 0 && cards.WastePos != 0) {
    PutUpCardBack(cards, gap);
    GoOnAfterError([&] { ShowCard(PlayCard(gap), cards.DeckCards[gap]); });
    PlayCard(gap).Visible = PlayCard(gap).Picture != 0;
  }
  TurnCard(cards);
  GoOnAfterError([&] { ShowCard(PlayCard(kUpCard), cards.DeckCards[kUpCard]); });
  PlayCard(kUpCard).Enabled = true;
  ClearSelectionRectangles();
  if (StackStage(cards.StackIndex))
    RefreshPlayCard();
  else
    PlaySound("\\Chord.wav");
  MousePointer = kDefaultPointer;
}

// --- Rounds --------------------------------------------------------------------------------------

void frmDuopick::Play() {
  CurrentRound = 1;
  common.CurrentScore = 0;
  ShowScore();
  common.GameInProgress = true;
  frmSplash.Visible = false;
  InitRound();
}

void frmDuopick::HideCardsAtTimeUp() {
  ShowCards(false);
  ClearSelectionRectangles();
}

void frmDuopick::HideBoard() {
  ClearSelectionRectangles();
  ShowCards(false);
}

void frmDuopick::PayAwards() {
  lblMessage.ForeColor = kRed;
  if (RoundCompleted) AwardBonus(*this, "Completion Bonus", 1, CompletionBonus);
  CountTimeBonus(*this, common.TimeBonus);
  if (RunsCount != 0) AwardBonus(*this, "Runs Bonus", RunsCount, RunsBonus);
  if (PairsCount != 0) AwardBonus(*this, "Pairs Bonus", PairsCount, PairsBonus);
}

void frmDuopick::AnnounceRound(bool bonus) {
  EnableButtons(true);
  GameWindow::AnnounceRound(bonus);
}

void frmDuopick::GameFinished() {
  ClearSelectionRectangles();
  cmdPlay.Enabled = true;
  cmdExit.Enabled = true;
}

// Given up: no score is entered.
void frmDuopick::EndGame() {
  mnuTime.Enabled = true;
  mnuCustom.Enabled = true;
  common.GameInProgress = false;
  ClearSelectionRectangles();
  ShowCards(false);
  ShowControls(false, true);
  for (Menu* entry : {&mnuTakeScore, &mnuPause}) entry->Enabled = false;
  for (CommandButton* button : {&cmdTakeScore, &cmdPause}) button->Enabled = false;
  Timer1.Enabled = false;
  ShowSplash(true);
  StopMusic();
}
