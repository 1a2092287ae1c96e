// What each click does: the moves and the columns.
#include "games/treyshift/treyshift.h"

#include <algorithm>
#include <utility>

using namespace modTreyshift;

// --- Slots ---------------------------------------------------------------------------------------

// A slot shows a card, the place of none, or, below the last card of a column, nothing at all: a card may be
// laid there.
bool frmTreyshift::ShowsEmpty(const Image& slot) const { return slot.Picture == common.ImageList2("EMPTY"); }

bool frmTreyshift::HasCard(const Image& slot) const { return slot.Picture != 0 && !ShowsEmpty(slot); }

// The slots that show nothing stay where they are when the cards go.
bool frmTreyshift::SlotsAreClosed() {
  if (standing.IsPaused()) Refuse();
  return !standing.IsPlaying();
}

// --- Selection -----------------------------------------------------------------------------------

Shape& frmTreyshift::SelectionOf(Zone zone, int index) {
  if (zone == ZoneDeck) return UpCardSelection;
  return zone == ZoneTemp ? TempCardSelection(index) : PlayCardSelection(index);
}

void frmTreyshift::Select(Zone zone, int index) {
  SourceZone = zone;
  SourceIndex = index;
  Selected = true;
  SelectionOf(zone, index).Visible = true;
  PlaySound("\\Click.wav");
}

void frmTreyshift::CancelSelection() {
  SelectionOf(SourceZone, SourceIndex).Visible = false;
  SourceIndex = -1;
  SourceZone = ZoneNone;
  Selected = false;
  PlaySound("\\Markq.wav");
}

// --- Clicks --------------------------------------------------------------------------------------

// A fan that is used up can be selected, too.
void frmTreyshift::UpCard_Click(int index) {
  if (standing.InputIsDead()) return;
  if (index != kInPlay) return Refuse();
  if (!Selected) return Select(ZoneDeck, index);
  SourceZone == ZoneDeck ? CancelSelection() : Refuse();
}

void frmTreyshift::CardStackPicture_Click() { Refuse(); }

void frmTreyshift::TempCard_Click(int index) {
  if (SlotsAreClosed()) return;
  const bool isEmpty = ShowsEmpty(TempCard(index));
  if (Selected && isEmpty)
    MoveCard(index, ZoneTemp);
  else if (Selected && SourceZone == ZoneTemp && SourceIndex == index)
    CancelSelection();
  else if (Selected || isEmpty)
    Refuse();
  else
    Select(ZoneTemp, index);
  if (IsStuck()) EndStuckRound();
}

// Wherever a column is clicked, its lowest slot is meant.
void frmTreyshift::PlayCard_Click(int index) {
  if (SlotsAreClosed()) return;
  for (int row = 1; row < kRows; ++row)
    if (index < kThirdRow && PlayCard(index + kColumns).Visible) index += kColumns;
  if (!Selected)
    SelectFieldCard(index);
  else if (SourceZone == ZoneField && SourceIndex == index)
    CancelSelection();
  else
    LayInColumn(index);
  if (index >= kThirdRow && IsStuck()) EndStuckRound();
}

void frmTreyshift::SelectFieldCard(int& index) {
  if (ShowsEmpty(PlayCard(index))) return Refuse();
  // No card can be laid on the one that is selected.
  for (int row = 1; row < kRows && PlayCard(index).Picture == 0; ++row) {
    PlayCard(index).Visible = false;
    index -= kColumns;
  }
  const bool isLast = index >= kThirdRow || PlayCard(index + kColumns).Picture == 0;
  isLast ? Select(ZoneField, index) : Refuse();
}

void frmTreyshift::LayInColumn(int& index) {
  if (index < kSecondRow) {
    MoveCard(index, ZoneField);
    PlayCard(index).Visible = true;
  } else if (index < kThirdRow) {
    MoveCard(index, ZoneField);
    PlayCard(index >= kThirdRow ? index : index + kColumns).Visible = true;
  } else if (PlayCard(index).Picture == 0) {
    MoveCard(index, ZoneField);
  } else {
    Refuse();
  }
  for (int column = 0; column < kColumns; ++column)
    if (PlayCard(column + kThirdRow).Picture != 0) CheckColumn(column);
}

// --- Moves ---------------------------------------------------------------------------------------

void frmTreyshift::MoveCard(int& destIndex, Zone destZone) {
  if (DeckPosition < kBeyondDeck) destZone == ZoneField ? MoveToField(destIndex) : MoveToTemp(destIndex);
  Selected = false;
  if (SourceZone == ZoneDeck) UpCardSelection.Visible = false;
}

void frmTreyshift::MoveToField(int& index) {
  if (index >= kSecondRow && ShowsEmpty(PlayCard(index - kColumns))) index -= kColumns;
  if (HasCard(PlayCard(index))) index += kColumns;
  LayOn(PlayCard(index), FieldCards.at(index));
  if (SourceZone != ZoneDeck) return;
  if (index < kThirdRow) PlayCard(index + kColumns).Visible = true;
  UpDateDeck();
}

void frmTreyshift::MoveToTemp(int index) {
  LayOn(TempCard(index), TempCards.at(index));
  if (SourceZone == ZoneDeck) UpDateDeck();
}

// Takes the selected card from its place and lays it into a slot. The fan moves up later.
void frmTreyshift::LayOn(Image& slot, std::string& code) {
  slot.BorderStyle = 1;
  switch (SourceZone) {
    case ZoneDeck:
      slot.Picture = UpCard(kInPlay).Picture;
      code = UpCards[kInPlay];
      break;
    case ZoneTemp:
      slot.Picture = TempCard(SourceIndex).Picture;
      code = std::exchange(TempCards.at(SourceIndex), "");
      ShowEmpty(TempCard(SourceIndex));
      TempCardSelection(SourceIndex).Visible = false;
      break;
    case ZoneField:
      slot.Picture = PlayCard(SourceIndex).Picture;
      code = std::exchange(FieldCards.at(SourceIndex), "");
      ClearFieldSlot(SourceIndex);
      break;
    case ZoneNone:
      break;
  }
  PlaySound("\\Click.wav");
}

void frmTreyshift::ClearFieldSlot(int slot) {
  PlayCardSelection(slot).Visible = false;
  if (slot < kSecondRow) {
    ShowEmpty(PlayCard(slot));
    PlayCard(slot + kColumns).Visible = false;
    return;
  }
  PlayCard(slot).BorderStyle = 0;
  PlayCard(slot).Picture = 0;
  PlayCard(slot).Visible = false;
}

void frmTreyshift::UpDateDeck() {
  DeckPosition += 1;
  for (int i = kInPlay; i > 0; --i) {
    UpCard(i).Picture = UpCard(i - 1).Picture;
    UpCards[i] = UpCards[i - 1];
  }
  RefreshPlayCard();
  if (DeckPosition <= UpperBound(common.Deck)) {
    UpCards[0] = common.Deck[DeckPosition];
    UpCard(0).Picture = common.ImageList2(CardKey(UpCards[0]));
  } else {
    ShowEmpty(UpCard(0));
    UpCards[0].clear();
  }
  // The frame of a card goes with it, one slot at a time.
  for (int i = 1; i <= kInPlay; ++i) {
    if (DeckPosition != UpperBound(common.Deck) + 1 + i) continue;
    UpCard(i).BorderStyle = 0;
    UpCards[i].clear();
  }
  ShowCardCount();
}

// --- The stuck board -----------------------------------------------------------------------------

// The only position that is known to be stuck; a full column has made nothing.
bool frmTreyshift::IsStuck() const {
  const auto isFilled = [](const std::string& code) { return !code.empty(); };
  return std::ranges::all_of(TempCards, isFilled) &&
         std::all_of(FieldCards.begin() + kThirdRow, FieldCards.end(), isFilled);
}

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
  switch (Judge(CardValue(FieldCards[column]), CardValue(FieldCards[column + kSecondRow]),
                CardValue(FieldCards[column + kThirdRow]))) {
    case Worth::Nothing:
      return;
    case Worth::Trip:
      ClearColumn(column);
      TripCount += 1;
      lblScoreTrips.Caption = std::to_string(TripCount);
      AddToScore(TripValue);
      return PlaySound("\\TwentyOne.wav");
    case Worth::Run:
      break;
  }
  const bool isFlush = CheckFlush(column);
  ClearColumn(column);
  if (isFlush) {
    ShowFlushMessage(column);
    PlaySound("\\HighScore.wav");
    AddToScore(FlushValue);
    lblFlush.Visible = false;
  } else {
    PlaySound("\\TwentyOne.wav");
  }
  RunCount += 1;
  lblScoreRuns.Caption = std::to_string(RunCount);
  AddToScore(RunValue);
}

bool frmTreyshift::CheckFlush(int column) const {
  return OfOneSuit(FieldCards[column], FieldCards[column + kSecondRow], FieldCards[column + kThirdRow]);
}

void frmTreyshift::ClearColumn(int column) {
  for (int slot = column; slot < kFieldSlots; slot += kColumns) FieldCards[slot].clear();
  ShowEmpty(PlayCard(column));
  for (int slot = column + kSecondRow; slot < kFieldSlots; slot += kColumns) {
    PlayCard(slot).BorderStyle = 0;
    PlayCard(slot).Picture = 0;
    PlayCard(slot).Visible = false;
  }
}

void frmTreyshift::ShowFlushMessage(int column) {
  CenterIn(lblFlush, PlayCard(column));
  lblFlush.Top = PlayCard(column).Top + (PlayCard(column).Height - lblFlush.Height) / 2;
  lblFlush.Visible = true;
  platform.Sleep(250);
}
