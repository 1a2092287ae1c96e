#include "games/handgrid/handgrid.h"

#include "suite/score_counter.h"

using namespace modHandgrid;

// --- Dealing -------------------------------------------------------------------------------------

void frmHandgrid::Deal() {
  HoleCard.Picture = common.ImageList2("EMPTY");
  StackPicture = "FULL";
  RefreshPlayCard();
  CardStackPicture.Visible = true;
  board.Deal(common.Deck, OverWritesAllowed);
  ShowCardsRemaining();
  DrawNextCard();
  for (int line = 1; line <= kSide; ++line)
    for (Label* label : {&lblCol(line), &lblRow(line)}) {
      label->ForeColor = kButtonText;
      label->Caption = HandName(Hand::Nothing);
    }
}

void frmHandgrid::DrawNextCard() {
  if (board.Draw()) {
    if (!HandSoundPlayed) PlaySound("\\Click.wav");
    HandSoundPlayed = false;
    ShowCardsRemaining();
    ShowFace(HoleCard, board.hole);
  } else {
    PlaySound("\\Chord.wav");
  }
  const size_t left = board.stack.size();
  StackPicture = left > 25 ? "FULL" : left > 12 ? "HALF" : left > 0 ? "BACK" : "EMPTY";
  RefreshPlayCard();
}

void frmHandgrid::Reset(bool endOfGame) {
  splash.Show(endOfGame);
  board.Clear();
  for (int i = 0; i < kCells; ++i) PlayCards(i).Picture = common.ImageList2("EMPTY");
  for (int column = 0; column < kSide; ++column) StackColumn(column);
  if (!endOfGame) return;
  commands.SetPlayCaption("&Play");
  mnuPause.Enabled = true;  // although there is nothing to pause
  cmdPause.Enabled = false;
  HoleCard.BorderStyle = 0;
  ShowOverWrites();
  for (int i = 0; i < kCells; ++i) PlayCards(i).BorderStyle = 0;
}

// --- Laying a card -------------------------------------------------------------------------------

void frmHandgrid::PlayCards_Click(int index) {
  if (standing.InputIsDead()) return;
  RoundPoints = 0;
  if (board.Takes(index)) {
    const bool filled = !board.cells[index].empty();
    board.Overwrite(index);
    ShowOverWrites();
    PlayCards(index).BorderStyle = 1;
    PlayCards(index).Picture = common.ImageList2(board.hole.empty() ? "EMPTY" : CardKey(board.hole));
    const auto before = board.hands;
    board.Lay(index);
    if (!filled) StackColumn(index % kSide);
    ShowHands(before);
    ShowEmpty(HoleCard);
    DrawNextCard();
  } else {
    Refuse();
  }
  ShowScore();
  if (!board.IsFull()) return;
  PlaySound("\\Wingame.wav");
  NextRound(RoundEnd::GridFull);
}

// The sound of a new hand takes the place of the next card's click, also if nobody hears it.
void frmHandgrid::ShowHands(const std::array<Hand, kLines>& before) {
  for (int line = 0; line < kLines; ++line) {
    const Hand hand = board.hands[line];
    RoundPoints += Scores.Of(hand);
    ShowPointsEarned();
    Label& label = HandLabel(line);
    label.Caption = HandName(hand);
    if (hand != Hand::Nothing && hand != before[line]) {
      PlaySound("\\TwentyOne.wav");
      HandSoundPlayed = true;
    }
    label.ForeColor = hand == Hand::Nothing ? kButtonText : kBlue;
  }
}

void frmHandgrid::CardStackPicture_Click() { Refuse(); }

// --- The round clock -----------------------------------------------------------------------------

void frmHandgrid::ShowTimeLeft() {
  lblTimeBonus.Caption = std::to_string(clock.Left());
  lblTime.Caption = "Time:";
}

void frmHandgrid::TimeIsUp() {
  ScoringLabel.Caption = "Times Up!";
  NextRound(RoundEnd::TimesUp);
}

// --- Rounds --------------------------------------------------------------------------------------

void frmHandgrid::Play() {
  MousePointer = kHourglass;
  standing.InputLives();
  CurrentRound = 1;
  common.CurrentScore = 0;
  ShowScore();
  RoundPoints = 0;
  ShowPointsEarned();
  StatusBar1.Panels(2).Text = "Click on cards to get the best Poker hand!   ";
  ShowBonusGoal(" for bonus round.  ");
  mnuTime.Enabled = false;
  mnuCustom.Enabled = false;
  mnuPause.Enabled = true;
  cmdPause.Enabled = true;
  ShowOverWrites();
  clock.ElapsedSeconds = 0;
  ShowTimeLeft();
  clock.ResetDial();
  Timer1.Enabled = true;
  if (common.CreateStandardDeck()) {
    Reset(false);
    common.ShuffleDeck();
    Deal();
    ShowControls(true, true);
    ShowCards(true);
  }
  StartMusic();
  standing.Begin();
  MousePointer = kDefaultPointer;
}

// Nothing can come in between, since all of it blocks; and input stays dead until the selector's next
// tick, so that clicks that came meanwhile meet no new board.
void frmHandgrid::NextRound(RoundEnd end) {
  standing.Score();
  MousePointer = kHourglass;
  StopMusic();
  CurrentRound += 1;
  ShowCards(false);
  ShowControls(false, true);
  ScoringLabel.ForeColor = kRed;
  Timer1.Enabled = false;
  CenterScoringLabel();
  end == RoundEnd::TimesUp ? ForfeitRound() : PayRound();
  const bool bonus = CurrentRound == plan.rounds + 1;
  if (CurrentRound <= plan.rounds || (bonus && EarnsBonusRound())) {
    AnnounceNextRound();
    BeginNextRound();
  } else {
    GameOver();
  }
  EndScoring();
}

void frmHandgrid::ForfeitRound() {
  ShowAnnouncement(true);
  PlaySound("\\Slide.wav");
  platform.Sleep(2000);
}

void frmHandgrid::PayRound() {
  const long long secondsLeft = clock.Left();
  if (secondsLeft > 0) {
    SetAnnouncementFont("Arial", 20);
    ScoringLabel.Caption = std::to_string(RoundPoints) + " X " + std::to_string(secondsLeft) + " =";
    ShowAnnouncement(true);
    const Long perSecond = common.TimeBonus * RoundPoints;
    CountTimeBonus(*this, perSecond, "Round Points X Seconds Remaining");
    lblMessage.Visible = false;
  }
  SetAnnouncementFont("MS Sans Serif", 18);
}

void frmHandgrid::AnnounceNextRound() {
  ShowAnnouncement(true);
  if (CurrentRound > plan.rounds) {
    lblRound.Caption = "Bonus Round";
    ScoringLabel.Caption = "Bonus round!";
    CheerBonusRound();
  } else {
    const std::string number = std::to_string(CurrentRound);
    lblRound.Caption = "Round: " + number;
    ScoringLabel.Caption = "Prepare for round  " + number + "!";  // the second blank is the number's sign
  }
  Blink(ScoringLabel, 10);
}

void frmHandgrid::BeginNextRound() {
  Reset(false);
  ShowAnnouncement(false);
  common.ShuffleDeck();
  Deal();
  ShowCards(true);
  ShowControls(true, true);
  clock.ElapsedSeconds = 0;
  ShowTimeLeft();
  ShowOverWrites();
  clock.ResetDial();
  Timer1.Enabled = true;
  RoundPoints = 0;
  ShowPointsEarned();
  StartMusic();
  standing.Open();
}

// --- The end of a game ---------------------------------------------------------------------------

// The dial stands at 0 from here on: `Timer2` goes on drawing it while the player enters a name.
void frmHandgrid::GameOver() {
  clock.ResetDial();
  ScoringLabel.Caption = "Game Over";
  FinishGame();
  MousePointer = kHourglass;
  ShowControls(false, false);
  CenterScoringLabel();
  ShowAnnouncement(true);
  TellGameOver(ScoringLabel);
  ShowAnnouncement(false);
  Reset(true);
  commands.TellStart();
}

// Whatever was being shown is taken back, so that the next game begins as any other.
void frmHandgrid::GameFailed() {
  HandSoundPlayed = false;
  lblMessage.Visible = false;
  SetAnnouncementFont("MS Sans Serif", 18);
  GameWindow::GameFailed();
}

void frmHandgrid::EndGame() {
  ShowCards(false);
  ShowControls(false, false);
  Reset(true);
  clock.ResetDial();
  for (Menu* entry : {&mnuTime, &mnuDeck, &mnuCustom}) entry->Enabled = true;
  Timer1.Enabled = false;
}
