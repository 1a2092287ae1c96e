#include "games/sumfall/sumfall.h"

#include "suite/dial.h"
#include "window/text.h"

using namespace modSumfall;

// --- Dealing -------------------------------------------------------------------------------------

bool frmSumfall::CreateSumfallDeck() {
  try {
    const int goal = static_cast<int>(CardGoal);
    common.Deck = DeckForGoal(goal);
    DeckGoal = goal;
    for (CardCodes* deck : {&Round1Deck, &Round2Deck, &Round3Deck}) deck->assign(common.Deck.size(), "");
    StockCards.assign(DeckSize(goal) - kPlaces + 1, "");
    return true;
  } catch (const RuntimeError&) {
    common.MsgBox("Unable to create the deck.");
    return false;
  }
}

CardCodes& frmSumfall::RoundDeck(long long round) {
  return round == 1 ? Round1Deck : round == 2 ? Round2Deck : Round3Deck;
}

bool frmSumfall::Deal(bool newGame) {
  const CardCodes& deck = common.Deck;
  const int stockBound = static_cast<int>(StockCards.size()) - 1;
  try {
    UpCardIndex = 1;
    StockIndex = stockBound - 1;
    UpCardSelectionRectangle.Visible = false;
    UpCardPicture.BorderStyle = 1;
    PlayCardPicture.Visible = false;
    HideMessage();
    for (int i = 1; i < kPlaces; ++i) {
      FieldCardPicture(i).Visible = false;
      FieldSelectionRectangle(i).Visible = false;
    }
    ShowBonusGoal();
    StatusBar1.Panels(2).Text = "Click on exposed cards to total " + std::to_string(CardGoal) + "!   ";
    CardTotalVisible(true);
    lblCardCount.Caption = "Cards: " + std::to_string(stockBound);
    lblCardCount.Visible = true;
    for (int i = 0; i < kPlaces; ++i) {
      FieldCardPicture(i).Picture = common.ImageList2(CardKey(deck.at(i + 1)));
      FieldCardPicture(i).BorderStyle = 1;
      FieldCards[i] = deck[i + 1];
      FieldCardPicture(i).Visible = true;
    }
    UpCardPicture.Picture = common.ImageList2(CardKey(deck.at(kPlaces + 1)));
    UpCards[1] = deck[kPlaces + 1];
    UpCardPicture.Visible = true;
    // The stock begins with the card that was just turned up: it comes back at the very end.
    for (int i = kPlaces + 1, j = 0; i <= UpperBound(deck); ++i, ++j) {
      if (!common.ImageList2.Has(CardKey(deck[i]))) RaiseElementNotFound();
      StockCards.at(j) = deck[i];
    }
    PlayCardPicture.Picture = common.ImageList2("FULL");
    PlayCardPicture.Visible = true;
    CurrentTotal = 0;
    ShowTotal();
    lblCurrentTotal.Visible = true;
    ShowRoundTime();
    lblTime.Visible = true;
    Timer1.Enabled = true;
    common.ElapsedSeconds = 0;
    if (newGame) {
      common.PreviousScore = common.CurrentScore;
      common.CurrentScore = 0;
      ShowScore();
      CurrentRound = 1;
    }
    CenterIn(lblCurrentScore, ScoreRectangle);
    lblCurrentRound.Caption = std::to_string(CurrentRound);
    CombinationCount = 0;
    lblCurrentElevens.Caption = "0";
    ShowControls(true);
    StoreRoundDeck();
    ResetDial();
    ShowTimerRect();
    return true;
  } catch (const RuntimeError&) {
    common.MsgBox("Unable to deal the cards.");
    return false;
  }
}

void frmSumfall::StoreRoundDeck() { RoundDeck(CurrentRound) = common.Deck; }

// --- Selection and combinations ------------------------------------------------------------------

bool frmSumfall::CheckLegalFieldCardMove(int index) const {
  for (int cover : CoveredBy(index))
    if (FieldCardPicture(cover).Visible) return false;
  return true;
}

bool frmSumfall::CheckForCompletion() const {
  for (int i = 0; i < kPlaces; ++i)
    if (FieldCardPicture(i).Visible) return false;
  return true;
}

void frmSumfall::FieldCardPicture_Click(int index) {
  if (BoardIsClosed() || !CheckLegalFieldCardMove(index)) return Refuse();
  const int value = CardValue(FieldCards[index]);
  Shape& selection = FieldSelectionRectangle(index);
  if (!selection.Visible) {
    if (value + CurrentTotal > CardGoal) return Refuse();
    selection.Visible = true;
    CurrentTotal += value;
    ShowTotal();
    PlaySound("\\Markq.wav");
    CheckTotal();
  } else {
    CurrentTotal -= value;
    ShowTotal();
    PlaySound("\\Tick.wav");
    selection.Visible = false;
  }
}

void frmSumfall::UpCardPicture_Click() {
  if (BoardIsClosed() || UpCardIndex == 0) return Refuse();
  const int value = CardValue(UpCards[UpCardIndex]);
  if (!UpCardSelectionRectangle.Visible) {
    if (value + CurrentTotal > CardGoal) return Refuse();
    PlaySound("\\Markq.wav");
    CurrentTotal += value;
    ShowTotal();
    UpCardSelectionRectangle.Visible = true;
    CheckTotal();
  } else {
    PlaySound("\\Tick.wav");
    CurrentTotal -= value;
    ShowTotal();
    UpCardSelectionRectangle.Visible = false;
  }
}

void frmSumfall::CheckTotal() {
  UpCardUsed = false;
  if (CurrentTotal != CardGoal) return;
  PlaySound("\\TwentyOne.wav");
  for (int i = 0; i < kPlaces; ++i) {
    if (!FieldSelectionRectangle(i).Visible) continue;
    common.CurrentScore += kField[i].points;
    FieldSelectionRectangle(i).Visible = false;
    FieldCardPicture(i).Visible = false;
  }
  if (UpCardSelectionRectangle.Visible) {
    UpCardUsed = true;
    common.CurrentScore += 100;
    UpCardSelectionRectangle.Visible = false;
    UpCardIndex -= 1;
    if (UpCardIndex > 0) {
      UpCardPicture.Picture = common.ImageList2(CardKey(UpCards[UpCardIndex]));
    } else {
      UpCardPicture.BorderStyle = 0;
      UpCardPicture.Picture = common.ImageList2("EMPTY");
    }
  }
  CombinationCount += 1;
  lblCurrentElevens.Caption = std::to_string(CombinationCount);
  lblCurrentTotal.Caption = "0";
  CurrentTotal = 0;
  ShowScore();
  if (CheckForCompletion()) cmdTakeScore_Click();
  if (UpCardUsed && UpCardPicture.Picture == common.ImageList2("EMPTY")) PlayCardPicture_Click();
  UpCardUsed = false;
}

void frmSumfall::PlayCardPicture_Click() {
  // A pile that is full to the brim takes no further card, unless the field takes the one on top.
  const bool pileIsFull = UpCardIndex >= kUpCards - 1 && FreePlace() < 0;
  if (BoardIsClosed() || StockIndex < 0 || pileIsFull) {
    if (!UpCardUsed) Refuse();
    return;
  }
  MousePointer = kHourglass;
  if (UpCardIndex > 0) MoveUpCardToFieldArea();
  if (!UpCardUsed) PlaySound("\\Markq.wav");
  UpCardPicture.BorderStyle = 1;
  UpCardPicture.Picture = common.ImageList2(CardKey(StockCards[StockIndex]));
  UpCardIndex += 1;
  UpCards[UpCardIndex] = StockCards[StockIndex];
  StockIndex -= 1;
  for (int i = 0; i < kPlaces; ++i) FieldSelectionRectangle(i).Visible = false;
  UpCardPicture.Visible = true;
  UpCardSelectionRectangle.Visible = false;
  CurrentTotal = 0;
  ShowTotal();
  lblCardCount.Caption = "Cards: " + std::to_string(StockIndex + 1);
  RefreshPlayCard();
  if (!UpCardUsed) TakePoints(100);
  MousePointer = kDefaultPointer;
}

int frmSumfall::FreePlace() const {
  for (int i = 0; i < kPlaces; ++i)
    if (!FieldCardPicture(i).Visible) return i;
  return -1;
}

bool frmSumfall::MoveUpCardToFieldArea() {
  const int place = FreePlace();
  if (place < 0) return false;
  FieldCardPicture(place).Picture = UpCardPicture.Picture;
  FieldCardPicture(place).Visible = true;
  FieldCards[place] = UpCards[UpCardIndex];
  UpCardIndex -= 1;
  TakePoints(100);
  return true;
}

void frmSumfall::ShowTotal() { lblCurrentTotal.Caption = std::to_string(CurrentTotal); }

void frmSumfall::TakePoints(long long points) { AddToScore(-points); }

// --- Rounds --------------------------------------------------------------------------------------

void frmSumfall::Play() {
  MousePointer = kHourglass;
  bool ready = true;
  if (ReplayPending) {
    for (int i = 1; i <= UpperBound(common.Deck); ++i) common.Deck[i] = Round1Deck.at(i);
  } else {
    ready = CreateSumfallDeck() && common.ShuffleDeck();
  }
  if (!ready || !Deal(true)) {
    common.MsgBox("Unknown Error! Unable to play " + common.AppTitle, Icon::Critical, Buttons::OKCancel);
    return Unload();
  }
  common.GameInProgress = true;
  common.TakingScore = false;
  lblHighScore.Visible = true;
  cmdTakeScore.Enabled = true;
  cmdTakeScore.Caption = "&Take Score";
  cmdTakeScore.ToolTipText = "Ends current round and awards time bonus";
  cmdPause.Enabled = true;
  mnuTakeScore.Enabled = true;
  mnuTakeScore.Caption = "&Take Score";
  for (Menu* entry : {&mnuPause, &mnuView, &mnuDeck}) entry->Enabled = true;
  for (Menu* entry : {&mnuOpen, &mnuTime, &mnuGoal, &mnuCustom}) entry->Enabled = false;
  MousePointer = kDefaultPointer;
}

// Told like any other failure: there is no game yet that could be lost.
void frmSumfall::PlayFailed(const std::string&) { throw; }

void frmSumfall::BackToIdle() {
  GameWindow::BackToIdle();
  EndGame();
}

void frmSumfall::BeginScoring() {
  common.TakingScore = true;
  phase = Phase::Scoring;
  Timer1.Enabled = false;
  MousePointer = kHourglass;
  StopMusic();
  EnableCommands(false);
  HideBoard();
}

void frmSumfall::HideBoard() {
  SelRectangle(false);
  completed_ = CheckForCompletion();
  FieldCardDisplay(false);
  CardTotalVisible(false);
  ShowLowerCards(false);
}

// What was clicked during the count meets `TakingScore` in the pending events.
void frmSumfall::PayAwards() {
  if (completed_) PayCompletionBonus();
  if (CombinationCount != 0) PayCombinationBonus();
  lblCurrentElevens.ForeColor = kBlue;
  if (common.TimeLimit - common.ElapsedSeconds >= 1) PayTimeBonus();
  platform.DoEvents();
  common.TakingScore = false;
}

void frmSumfall::PayCompletionBonus() {
  PlaySound("\\Wingame.wav");
  ShowMessage("Completion Bonus! " + std::to_string(CompletionBonus));
  lblCurrentScore.ForeColor = kCyan;
  platform.Sleep(1000);
  if (!CountDownScore) {
    AddToScore(CompletionBonus);
    platform.Sleep(1000);
    return;
  }
  const long long step = CompletionBonus / 10;
  for (int i = 0; i < 10; ++i) {
    lblMessage.ForeColor = lblMessage.ForeColor == kRed ? kBlack : kRed;
    AddToScore(step);
    PlaySound("\\Snap.wav");
    platform.Sleep(75);
  }
}

void frmSumfall::PayCombinationBonus() {
  std::string word = lblElevens.Caption;
  word.pop_back();
  const Long bonus = CombinationBonus * CombinationCount;
  ShowMessage(std::to_string(CombinationCount) + " " + word + "! Bonus = " + std::to_string(bonus));
  lblCurrentScore.ForeColor = kCyan;
  lblCurrentElevens.ForeColor = kCyan;
  if (!CountDownScore) {
    AddToScore(bonus);
    CombinationCount = 0;
    lblCurrentElevens.Caption = "0";
    platform.Sleep(1000);
    return;
  }
  while (CombinationCount > 0) {
    AddToScore(CombinationBonus);
    CombinationCount -= 1;
    lblCurrentElevens.Caption = std::to_string(CombinationCount);
    PlaySound("\\Snap.wav");
    platform.Sleep(75);
  }
}

void frmSumfall::PayTimeBonus() {
  const long long limit = common.TimeLimit;
  const Long bonus = (limit - common.ElapsedSeconds) * common.TimeBonus;
  ShowMessage("Speed Bonus! " + std::to_string(bonus));
  lblCurrentScore.ForeColor = kCyan;
  platform.Sleep(1000);
  if (!CountDownScore) {
    common.ElapsedSeconds = common.TimeLimit;
    common.CurrentScore += bonus;
    ResetDial();
    lblCurrentScore.ForeColor = kRed;
    ShowScore();
    platform.Sleep(1000);
    lblCurrentScore.ForeColor = kBlack;
    return;
  }
  while (common.ElapsedSeconds < limit) {
    DrawTimeDial(DialAngle(*this, common.ElapsedSeconds), *this);
    common.DialSeconds = common.ElapsedSeconds + 1;
    common.ElapsedSeconds += 1;
    AddToScore(common.TimeBonus);
    PlaySound("\\Snap.wav");
    platform.Sleep(75);
  }
}

void frmSumfall::AnnounceRound(bool bonus) {
  if (!bonus) return Announce("Prepare for Round Two!");
  PlaySound("\\HighScore.wav");
  Announce("Bonus Round!");
}

void frmSumfall::InitRound() {
  lblCurrentRound.Caption = std::to_string(CurrentRound);
  const CardCodes& stored = RoundDeck(CurrentRound);
  if (ReplayPending && stored.size() > 1 && !stored[1].empty()) {
    common.Deck = stored;
  } else {
    common.ShuffleDeck();
  }
  if (!Deal()) return BackToIdle();  // only the cards of a damaged saved game can't be dealt
  phase = Phase::Playing;
  lblMessage.Visible = false;
  EnableCommands(true);
  if (CurrentRound == kBonusRound) {
    lblCurrentRound.Caption = "Bonus";
    StartMusic();
    ReplayPending = false;
  }
  FieldCardDisplay(true);
}

void frmSumfall::GameOver() {
  Timer1.Enabled = false;
  for (int i = 0; i < kPlaces; ++i) {
    FieldCardPicture(i).Visible = false;
    FieldSelectionRectangle(i).Visible = false;
  }
  CurrentRound = 1;
  common.GameInProgress = false;
  common.PreviousScore = common.CurrentScore;
  ShowLowerCards(false);
  mnuSave.Enabled = true;
  mnuOpen.Enabled = true;
  StatusBar1.Panels(2).Text = "Game over";
  lblCurrentTotal.Caption = "0";
  EnterHighScore();
  lblMessage.Top = Height / 2;
  TellGameOver(lblMessage);
  ShowSplash(true);
  cmdExit.Enabled = true;
  cmdPlay.Enabled = true;
  cmdPlay.ToolTipText = "Starts a new game";
  SetPlayCaption("&Play");
  cmdTakeScore.Caption = "&Replay";
  mnuTakeScore.Caption = "&Replay";
  cmdTakeScore.ToolTipText = "Replays the last game";
  cmdTakeScore.Enabled = true;
  mnuTakeScore.Enabled = true;
  for (Menu* entry : {&mnuExit, &mnuPlay, &mnuTime, &mnuGoal, &mnuCustom}) entry->Enabled = true;
  cmdPause.Enabled = false;
  mnuPause.Enabled = false;
  common.ElapsedSeconds = common.TimeLimit;
  ResetDial();
  ReplayPending = false;
}

void frmSumfall::EndScoring() {
  common.ElapsedSeconds = 0;
  lblCurrentScore.ForeColor = kBlue;
  lblMessage.ForeColor = kRed;
  SelRectangle(false);
  CardTotalVisible(true);
  MousePointer = kDefaultPointer;
}

void frmSumfall::EndGame() {
  common.GameInProgress = false;
  ReplayPending = false;
  FieldCardDisplay(false);
  ShowLowerCards(false);
  Timer1.Enabled = false;
  Timer2.Enabled = false;
  common.ElapsedSeconds = 0;
  lblTime.Caption = "Time:";
  Surface.Cls();
  CardTotalVisible(false);
  SelRectangle(false);
  common.PreviousScore = common.CurrentScore;
  common.CurrentScore = 0;
  ShowScore();
  CurrentRound = 1;
  lblCurrentRound.Caption = "1";
  CombinationCount = 0;
  lblCurrentElevens.Caption = "0";
  cmdPause.Enabled = false;
  cmdTakeScore.Caption = "&Replay";
  mnuTakeScore.Caption = "&Replay";
  cmdTakeScore.ToolTipText = "Replays the last game";
  cmdTakeScore.Enabled = true;
  mnuTakeScore.Enabled = true;
  for (Menu* entry : {&mnuTime, &mnuGoal, &mnuCustom, &mnuSave, &mnuOpen, &mnuPlay}) entry->Enabled = true;
  mnuPause.Enabled = false;
  ShowSplash(true);
  StopMusic();
}

// --- Commands ------------------------------------------------------------------------------------

void frmSumfall::cmdPlay_Click() {
  if (InGame()) return GameWindow::cmdPlay_Click();
  mnuSave.Enabled = false;
  GameWindow::cmdPlay_Click();
  if (common.GameInProgress) StartMusic();
}

std::string frmSumfall::EndGameQuestion() const {
  return "You have a game in progress, are you sure you want to quit now?";
}

// Unlike the button, the entry leaves the splash timer and `mnuSave` alone and starts no music.
void frmSumfall::mnuPlay_Click() {
  if (!InGame()) {
    cmdPlay.ToolTipText = "Ends the game in progress";
    SetPlayCaption("&End Game");
    frmSplash.Visible = false;
    StartGame();
  } else if (common.GameInProgress) {
    AskToEndGame("You have a game in progress, are you sure you want to restart now?");
  } else {
    ShowMessage("Select your options and play again!");
    platform.Sleep(2000);
  }
}

// The tool tip tells of the answer Yes while the question stands.
void frmSumfall::BeforeEndQuestion() {
  cmdPlay.ToolTipText = "Starts a new game";
  GameWindow::BeforeEndQuestion();
}

void frmSumfall::AfterEndQuestion(bool ends) {
  GameWindow::AfterEndQuestion(ends);
  if (!ends) cmdPlay.ToolTipText = "Ends the game in progress";
}

void frmSumfall::BeforeClosingQuestion() {
  pausedForClosing_ = phase == Phase::Playing;
  if (pausedForClosing_) PauseGame();
}

void frmSumfall::AfterClosingQuestion(bool closes) {
  if (pausedForClosing_ && !closes) ResumeGame();
}

void frmSumfall::cmdTakeScore_Click() { ReplayOrTakeScore(true); }

void frmSumfall::mnuTakeScore_Click() { ReplayOrTakeScore(false); }

void frmSumfall::ReplayOrTakeScore(bool fromButton) {
  if (!InGame()) {
    ReplayPending = true;
    cmdPlay_Click();
  } else if (!common.TakingScore) {
    TakeScore();
    // The bonus round has started its music by itself.
    if (fromButton && common.GameInProgress && CurrentRound != kBonusRound) StartMusic();
  }
}

void frmSumfall::ChooseGoal(int goal) {
  TickOnly(*goalEntries[goal - kLowestGoal]);
  lblElevens.Caption = GoalWord(goal);
  CardGoal = goal;
  ShowTableLeader();
  StatusBar1.Panels(2).Text = "Click on exposed cards to total " + std::to_string(CardGoal) + "!   ";
}

void frmSumfall::SelectionColor(int index) {
  const int colour = kSelectionColours[index].colour;
  for (int i = 0; i < kPlaces; ++i) FieldSelectionRectangle(i).BorderColor = colour;
  UpCardSelectionRectangle.BorderColor = colour;
  SelectionColorIndex = index;
  TickOnly(*colourEntries[index]);
}

// --- Saved games ---------------------------------------------------------------------------------

SavedGame frmSumfall::LastGame(const std::string& userName) const {
  SavedGame game;
  game.cardGoal = static_cast<int>(CardGoal);
  game.timeLimit = static_cast<int>(common.TimeLimit);
  game.score = static_cast<int>(common.PreviousScore);
  game.custom = common.CustomScoringInUse;
  game.userName = userName;
  const CardCodes* decks[] = {&Round1Deck, &Round2Deck, &Round3Deck};
  for (int round = 0; round < 3; ++round) game.decks[round] = *decks[round];
  if (Round1Deck.empty()) game.decks[0].assign(DeckSize(game.cardGoal) + 1, "");
  // A goal that was changed since must not ask for more cards, or fewer, than the file will hold.
  if (UpperBound(game.decks[0]) != DeckSize(game.cardGoal)) game.cardGoal = DeckGoal;
  return game;
}

bool frmSumfall::LoadSavedGame(const std::filesystem::path& path) {
  SavedGame game;
  try {
    std::string text;
    if (common.files.Read(path, text) != ReadOutcome::Read) throw RuntimeError("File not found");
    game = ParseSavedGame(text);
  } catch (const RuntimeError&) {
    common.MsgBox(
        "Unable to open the requested file. It may be damaged or you may have entered an invalid file name.",
        Icon::Critical);
    return false;
  }
  ChooseGoal(game.cardGoal);
  StockCards.assign(DeckSize(game.cardGoal) - kPlaces + 1, "");
  common.Deck.assign(DeckSize(game.cardGoal) + 1, "");
  DeckGoal = game.cardGoal;
  for (int round = 0; round < 3; ++round) RoundDeck(round + 1) = game.decks[round];

  const std::string limit = std::to_string(game.timeLimit);
  std::string message = "This game was saved by " + game.userName + ". He or she " + Verdict(game.score) +
                        " score of " + FormatNumber(game.score) + " in this game. " +
                        (game.custom ? "Customized scoring was in effect when this game was played. "
                                     : "Customized scoring was not in effect when this game was played. ");
  const std::string title = "Saved Game Information";
  if (game.timeLimit != common.TimeLimit) {
    message += "This game was saved with the time limit set to " + limit +
               ". Your time limit is currently set to " + std::to_string(common.TimeLimit) +
               ". Do you want to change your time limit to " + limit + "?";
    if (platform.MsgBox(message, title, Icon::Question, Buttons::YesNo) == Answer::Yes)
      ChooseTimeLimit(game.timeLimit);
  } else {
    platform.MsgBox(message, title, Icon::Information);
  }
  ReplayPending = true;
  ShowSplash(false);
  cmdTakeScore.Caption = "&Replay";
  cmdTakeScore_Click();
  return true;
}

void frmSumfall::Form_Activate() {
  if (commandLineTaken_ || platform.CommandLine.empty()) return;
  commandLineTaken_ = true;
  LoadSavedGame(platform.CommandLine);
}
