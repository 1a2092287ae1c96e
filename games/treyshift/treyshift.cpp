// What each click does: the moves and the columns.
#include "games/treyshift/treyshift.h"

#include <utility>

using namespace modTreyshift;

// --- Clicks --------------------------------------------------------------------------------------

// The slots that show nothing stay where they are when the cards go.
bool frmTreyshift::SlotsAreClosed() {
  if (standing.IsPaused()) Refuse();
  return !standing.IsPlaying();
}

// A fan that is used up can be selected, too.
void frmTreyshift::UpCard_Click(int index) {
  if (!standing.InputIsDead()) Take(Zone::Deck, index);
}

void frmTreyshift::CardStackPicture_Click() { Refuse(); }

void frmTreyshift::TempCard_Click(int index) {
  if (SlotsAreClosed()) return;
  Take(Zone::Temp, index);
  if (board.IsStuck()) EndStuckRound();
}

void frmTreyshift::PlayCard_Click(int index) {
  if (SlotsAreClosed()) return;
  if (Take(Zone::Field, index) >= kThirdRow && board.IsStuck()) EndStuckRound();
}

// Gives the slot that was meant, or in which a card came to lie.
int frmTreyshift::Take(Zone zone, int slot) {
  const Zone source = board.SourceZone;
  const bool moves = board.CanMove();
  const Outcome outcome = board.Take(zone, slot);
  const int column = zone == Zone::Field ? slot % kColumns : -1;
  switch (outcome) {
    case Outcome::Refused:
      Refuse();
      break;
    case Outcome::Selected:
      if (column >= 0) ShowOpenSlots(column);
      SelectionOf(zone, slot).Visible = true;
      PlaySound("\\Click.wav");
      break;
    case Outcome::LetGo:
      SelectionOf(zone, slot).Visible = false;
      PlaySound("\\Markq.wav");
      break;
    case Outcome::Laid:
      if (moves) ShowMove(source, zone, slot);
      if (source == Zone::Deck) UpCardSelection.Visible = false;
      if (column < 0) break;
      ShowOpenSlots(column);
      CheckColumn(column);
  }
  return slot;
}

Image& frmTreyshift::CardOf(Zone zone, int index) {
  if (zone == Zone::Deck) return UpCard(index);
  return zone == Zone::Temp ? TempCard(index) : PlayCard(index);
}

Shape& frmTreyshift::SelectionOf(Zone zone, int index) {
  if (zone == Zone::Deck) return UpCardSelection;
  return zone == Zone::Temp ? TempCardSelection(index) : PlayCardSelection(index);
}

void frmTreyshift::ShowOpenSlots(int column) {
  PlayCard(column + kThirdRow).Visible = board.open[column + kThirdRow];
  PlayCard(column + kSecondRow).Visible = board.open[column + kSecondRow];
}

// --- Moves ---------------------------------------------------------------------------------------

// The card lies in its new slot, and the old one shows none. The fan moves up later.
void frmTreyshift::ShowMove(Zone source, Zone zone, int slot) {
  Image &place = CardOf(source, board.SourceIndex), &card = CardOf(zone, slot);
  card.BorderStyle = 1;
  card.Picture = place.Picture;
  if (source == Zone::Field) ClearFieldSlot(board.SourceIndex);
  if (source == Zone::Temp) {
    ShowEmpty(place);
    TempCardSelection(board.SourceIndex).Visible = false;
  }
  PlaySound("\\Click.wav");
  if (source != Zone::Deck) return;
  if (zone == Zone::Field && slot < kThirdRow) PlayCard(slot + kColumns).Visible = true;
  UpDateDeck();
}

void frmTreyshift::ClearFieldSlot(int slot) {
  PlayCardSelection(slot).Visible = false;
  ShowNoCard(slot);
  if (slot < kSecondRow) PlayCard(slot + kColumns).Visible = false;
}

// The top of a column shows where a card may lie, the slots below it nothing.
void frmTreyshift::ShowNoCard(int slot) {
  if (slot < kSecondRow) return ShowEmpty(PlayCard(slot));
  PlayCard(slot).BorderStyle = 0;
  PlayCard(slot).Picture = 0;
  PlayCard(slot).Visible = false;
}

void frmTreyshift::UpDateDeck() {
  for (int i = kInPlay; i > 0; --i) UpCard(i).Picture = UpCard(i - 1).Picture;
  RefreshPlayCard();
  if (board.UpCards[0].empty())
    ShowEmpty(UpCard(0));
  else
    UpCard(0).Picture = common.ImageList2(CardKey(board.UpCards[0]));
  // The frame of a card goes with it.
  for (int i = 1; i <= kInPlay; ++i)
    if (board.UpCards[i].empty()) UpCard(i).BorderStyle = 0;
  ShowCardCount();
}

// --- The stuck board -----------------------------------------------------------------------------

// A click that has waited meanwhile doesn't tell it again: who goes on clicking would never come to the end.
void frmTreyshift::EndStuckRound() {
  if (std::exchange(endsStuck_, true)) return;
  struct Reset {
    bool& flag;
    ~Reset() { flag = false; }
  } const reset{endsStuck_};
  NoMovesLeft();
  TakeScore();
}

void frmTreyshift::NoMovesLeft() {
  MousePointer = kHourglass;
  SetVisible({&UpCard(0), &UpCard(1), &UpCard(2), &CardStackPicture}, false);
  ShowControls(false, true);
  lblScoring.Caption = "No more legal moves left!";
  PlaySound("\\Slide.wav");
  lblScoring.Left = (Width - lblScoring.Width) / 2;
  lblScoring.Top = FieldRect.Top;
  lblScoring.Visible = true;
  platform.Sleep(2000);
}

// --- Columns -------------------------------------------------------------------------------------

void frmTreyshift::CheckColumn(int column) {
  switch (board.Judge(column)) {
    case Worth::Nothing:
      return;
    case Worth::Trip:
      ClearColumn(column);
      board.TripCount += 1;
      lblScoreTrips.Caption = std::to_string(board.TripCount);
      AddToScore(TripValue);
      return PlaySound("\\TwentyOne.wav");
    case Worth::Run:
      break;
  }
  const bool isFlush = board.CheckFlush(column);
  ClearColumn(column);
  if (isFlush) {
    ShowFlushMessage(column);
    PlaySound("\\HighScore.wav");
    AddToScore(FlushValue);
    lblFlush.Visible = false;
  } else {
    PlaySound("\\TwentyOne.wav");
  }
  board.RunCount += 1;
  lblScoreRuns.Caption = std::to_string(board.RunCount);
  AddToScore(RunValue);
}

void frmTreyshift::ClearColumn(int column) {
  board.ClearColumn(column);
  for (int slot = column; slot < kFieldSlots; slot += kColumns) ShowNoCard(slot);
}

void frmTreyshift::ShowFlushMessage(int column) {
  CenterIn(lblFlush, PlayCard(column));
  lblFlush.Top = PlayCard(column).Top + (PlayCard(column).Height - lblFlush.Height) / 2;
  lblFlush.Visible = true;
  platform.Sleep(250);
}
