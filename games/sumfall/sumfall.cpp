#include "games/sumfall/sumfall.h"

#include "window/text.h"

using namespace modSumfall;

// --- Dealing -------------------------------------------------------------------------------------

bool frmSumfall::CreateSumfallDeck() {
  const auto create = [this] {
    const int goal = static_cast<int>(CardGoal);
    common.Deck = DeckForGoal(goal);
    DeckGoal = goal;
    for (CardCodes* deck : {&Round1Deck, &Round2Deck, &Round3Deck}) deck->assign(common.Deck.size(), "");
  };
  return common.Try(create, "Unable to create the deck.");
}

CardCodes& frmSumfall::RoundDeck(long long round) {
  return round == 1 ? Round1Deck : round == 2 ? Round2Deck : Round3Deck;
}

bool frmSumfall::Deal(bool newGame) {
  const auto deal = [&] {
    board.Deal(common.Deck, CardGoal);
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
    lblCardCount.Caption = "Cards: " + std::to_string(board.stock.size());
    lblCardCount.Visible = true;
    for (int i = 0; i < kPlaces; ++i) {
      ShowFace(FieldCardPicture(i), board.field[i]);
      FieldCardPicture(i).Visible = true;
    }
    ShowFace(UpCardPicture, board.upCards.back());
    UpCardPicture.Visible = true;
    for (const std::string& card : board.stock)
      if (!common.ImageList2.Has(CardKey(card))) RaiseElementNotFound();
    PlayCardPicture.Picture = common.ImageList2("FULL");
    PlayCardPicture.Visible = true;
    ShowTotal();
    lblCurrentTotal.Visible = true;
    ShowRoundTime();
    lblTime.Visible = true;
    Timer1.Enabled = true;
    clock.ElapsedSeconds = 0;
    if (newGame) {
      common.PreviousScore = common.CurrentScore;
      common.CurrentScore = 0;
      ShowScore();
      CurrentRound = 1;
    }
    CenterIn(lblCurrentScore, ScoreRectangle);
    lblCurrentRound.Caption = std::to_string(CurrentRound);
    lblCurrentElevens.Caption = "0";
    ShowControls(true);
    RoundDeck(CurrentRound) = common.Deck;
    clock.ResetDial();
    ShowTimerRect();
  };
  return common.Try(deal, "Unable to deal the cards.");
}

// --- Selection and combinations ------------------------------------------------------------------

void frmSumfall::FieldCardPicture_Click(int index) {
  if (standing.BoardIsClosed() || !board.Takes(index)) return Refuse();
  Shape& selection = FieldSelectionRectangle(index);
  if (board.Toggle(index)) {
    selection.Visible = true;
    ShowTotal();
    PlaySound("\\Markq.wav");
    CheckTotal();
  } else {
    ShowTotal();
    PlaySound("\\Tick.wav");
    selection.Visible = false;
  }
}

void frmSumfall::UpCardPicture_Click() {
  if (standing.BoardIsClosed() || !board.Takes(kUpCard)) return Refuse();
  const bool selected = board.Toggle(kUpCard);
  PlaySound(selected ? "\\Markq.wav" : "\\Tick.wav");
  ShowTotal();
  UpCardSelectionRectangle.Visible = selected;
  if (selected) CheckTotal();
}

void frmSumfall::CheckTotal() {
  if (!board.IsCombination()) return;
  PlaySound("\\TwentyOne.wav");
  board.TakeCombination([this](int place) {
    common.CurrentScore += kPoints[place];
    if (place == kUpCard) {
      UpCardSelectionRectangle.Visible = false;
    } else {
      FieldSelectionRectangle(place).Visible = false;
      FieldCardPicture(place).Visible = false;
    }
  });
  if (board.TurnsByItself()) UpCardPicture.BorderStyle = 0;
  if (board.upCardUsed) ShowUpCard();
  lblCurrentElevens.Caption = std::to_string(board.combinations);
  ShowTotal();
  ShowScore();
  if (board.CheckForCompletion()) {
    platform.front.Triumph(*this);
    cmdTakeScore_Click(By::Button);
  }
  if (board.TurnsByItself()) PlayCardPicture_Click();
  board.upCardUsed = false;
}

void frmSumfall::PlayCardPicture_Click() {
  const bool costs = !board.upCardUsed;
  if (standing.BoardIsClosed() || !board.CanTurn()) {
    if (costs) Refuse();
    return;
  }
  MousePointer = kHourglass;
  if (const int place = board.MoveUpCardToFieldArea(); place >= 0) {
    FieldCardPicture(place).Picture = common.ImageList2(CardKey(board.field[place]));
    FieldCardPicture(place).Visible = true;
    AddToScore(-kTurnCost);
  }
  if (costs) PlaySound("\\Markq.wav");
  board.TurnStock();
  UpCardPicture.BorderStyle = 1;
  ShowUpCard();
  for (int i = 0; i < kPlaces; ++i) FieldSelectionRectangle(i).Visible = false;
  UpCardPicture.Visible = true;
  UpCardSelectionRectangle.Visible = false;
  ShowTotal();
  lblCardCount.Caption = "Cards: " + std::to_string(board.stock.size());
  ShowStock();
  if (costs) AddToScore(-kTurnCost);
  MousePointer = kDefaultPointer;
}

void frmSumfall::ShowUpCard() {
  const std::string& card = board.CardAt(kUpCard);
  UpCardPicture.Picture = common.ImageList2(card.empty() ? "EMPTY" : CardKey(card));
}

void frmSumfall::ShowTotal() { lblCurrentTotal.Caption = std::to_string(board.total); }

// --- Rounds --------------------------------------------------------------------------------------

void frmSumfall::Play() {
  MousePointer = kHourglass;
  bool ready = true;
  if (ReplayPending) {
    for (int i = 1; i <= UpperBound(common.Deck); ++i) common.Deck[i] = Round1Deck.at(i);
    common.SkipDeck();
  } else {
    ready = CreateSumfallDeck() && common.ShuffleDeck();
  }
  if (!ready || !Deal(true)) {
    common.MsgBox("Unknown Error! Unable to play " + common.AppTitle, Icon::Critical, Buttons::OKCancel);
    return Unload();
  }
  standing.Begin();
  standing.InputLives();
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

void frmSumfall::BackToIdle() {
  GameWindow::BackToIdle();
  EndGame();
}

void frmSumfall::BeginScoring() {
  standing.Score();
  Timer1.Enabled = false;
  MousePointer = kHourglass;
  StopMusic();
  EnableCommands(false);
  HideBoard(false);
}

void frmSumfall::HideBoard(bool timeIsUp) {
  if (timeIsUp) return ShowLowerCards(false);
  SelRectangle(false);
  completed_ = board.CheckForCompletion();
  board.ClearField();
  FieldCardDisplay(false);
  CardTotalVisible(false);
  ShowLowerCards(false);
}

// What was clicked during the count meets dead input in the pending events.
void frmSumfall::PayAwards() {
  if (completed_) PayCompletionBonus();
  if (board.combinations != 0) PayCombinationBonus();
  lblCurrentElevens.ForeColor = kBlue;
  if (clock.Left() >= 1) PayTimeBonus();
  platform.DoEvents();
  standing.InputLives();
}

void frmSumfall::PayCompletionBonus() {
  PlaySound("\\Wingame.wav");
  ShowMessage("Completion Bonus! " + std::to_string(CompletionBonus));
  lblCurrentScore.ForeColor = kCyan;
  platform.Sleep(1000);
  if (!common.CountDownScore) {
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
  const Long bonus = CombinationBonus * board.combinations;
  ShowMessage(std::to_string(board.combinations) + " " + word + "! Bonus = " + std::to_string(bonus));
  lblCurrentScore.ForeColor = kCyan;
  lblCurrentElevens.ForeColor = kCyan;
  if (!common.CountDownScore) {
    AddToScore(bonus);
    board.combinations = 0;
    lblCurrentElevens.Caption = "0";
    platform.Sleep(1000);
    return;
  }
  while (board.combinations > 0) {
    AddToScore(CombinationBonus);
    board.combinations -= 1;
    lblCurrentElevens.Caption = std::to_string(board.combinations);
    PlaySound("\\Snap.wav");
    platform.Sleep(75);
  }
}

void frmSumfall::PayTimeBonus() {
  const long long limit = clock.TimeLimit;
  const Long bonus = (limit - clock.ElapsedSeconds) * common.TimeBonus;
  ShowMessage("Speed Bonus! " + std::to_string(bonus));
  lblCurrentScore.ForeColor = kCyan;
  platform.Sleep(1000);
  if (!common.CountDownScore) {
    clock.ElapsedSeconds = clock.TimeLimit;
    common.CurrentScore += bonus;
    clock.ResetDial();
    lblCurrentScore.ForeColor = kRed;
    ShowScore();
    platform.Sleep(1000);
    lblCurrentScore.ForeColor = kBlack;
    return;
  }
  while (clock.ElapsedSeconds < limit) {
    clock.PaySecond();
    AddToScore(common.TimeBonus);
    PlaySound("\\Snap.wav");
    platform.Sleep(75);
  }
}

void frmSumfall::InitRound() {
  lblCurrentRound.Caption = std::to_string(CurrentRound);
  const CardCodes& stored = RoundDeck(CurrentRound);
  if (ReplayPending && stored.size() > 1 && !stored[1].empty()) {
    common.Deck = stored;
    common.SkipDeck();
  } else {
    common.ShuffleDeck();
  }
  if (!Deal()) {  // only the cards of a damaged saved game can't be dealt
    BackToIdle();
  } else {
    standing.Open();
    lblMessage.Visible = false;
    EnableCommands(true);
    if (CurrentRound == kBonusRound) {
      lblCurrentRound.Caption = "Bonus";
      StartMusic();
    }
  }
  EndCount();
}

void frmSumfall::GameOver() {
  Timer1.Enabled = false;
  board.ClearField();
  board.selected.fill(false);
  for (int i = 0; i < kPlaces; ++i) {
    FieldCardPicture(i).Visible = false;
    FieldSelectionRectangle(i).Visible = false;
  }
  CurrentRound = 1;
  common.PreviousScore = common.CurrentScore;
  ShowLowerCards(false);
  mnuSave.Enabled = true;
  mnuOpen.Enabled = true;
  StatusBar1.Panels(2).Text = "Game over";
  lblCurrentTotal.Caption = "0";
  EnterHighScore();
  lblMessage.Top = Height / 2;
  TellGameOver(lblMessage);
  splash.Show(true);
  cmdExit.Enabled = true;
  cmdPlay.Enabled = true;
  commands.TellStart();
  commands.SetPlayCaption("&Play");
  OfferReplay();
  for (Menu* entry : {&mnuExit, &mnuPlay, &mnuTime, &mnuGoal, &mnuCustom}) entry->Enabled = true;
  cmdPause.Enabled = false;
  mnuPause.Enabled = false;
  clock.ElapsedSeconds = clock.TimeLimit;
  clock.ResetDial();
  ReplayPending = false;
  EndCount();
}

void frmSumfall::OfferReplay() {
  cmdTakeScore.Caption = "&Replay";
  mnuTakeScore.Caption = "&Replay";
  cmdTakeScore.ToolTipText = "Replays the last game";
  cmdTakeScore.Enabled = true;
  mnuTakeScore.Enabled = true;
}

void frmSumfall::EndCount() {
  clock.ElapsedSeconds = 0;
  lblCurrentScore.ForeColor = kBlue;
  lblMessage.ForeColor = kRed;
  SelRectangle(false);
  CardTotalVisible(true);
}

void frmSumfall::EndGame() {
  standing.End();
  ReplayPending = false;
  board.ClearField();
  board.combinations = 0;
  FieldCardDisplay(false);
  ShowLowerCards(false);
  Timer1.Enabled = false;
  Timer2.Enabled = false;
  clock.ElapsedSeconds = 0;
  lblTime.Caption = "Time:";
  Surface.Cls();
  CardTotalVisible(false);
  SelRectangle(false);
  common.PreviousScore = common.CurrentScore;
  common.CurrentScore = 0;
  ShowScore();
  CurrentRound = 1;
  lblCurrentRound.Caption = "1";
  lblCurrentElevens.Caption = "0";
  cmdPause.Enabled = false;
  OfferReplay();
  for (Menu* entry : {&mnuTime, &mnuGoal, &mnuCustom, &mnuSave, &mnuOpen, &mnuPlay}) entry->Enabled = true;
  mnuPause.Enabled = false;
  splash.Show(true);
  StopMusic();
}

// --- Commands ------------------------------------------------------------------------------------

void frmSumfall::cmdPlay_Click(By by) {
  if (by == By::Entry) return mnuPlay_Click();
  if (!standing.CanStart()) return GameWindow::cmdPlay_Click(by);
  mnuSave.Enabled = false;
  GameWindow::cmdPlay_Click(by);
  if (standing.InGame()) StartMusic();
}

// Unlike the button, the entry leaves the splash timer and `mnuSave` alone and starts no music.
void frmSumfall::mnuPlay_Click() {
  if (standing.CanStart()) {
    cmdPlay.ToolTipText = "Ends the game in progress";
    commands.SetPlayCaption("&End Game");
    frmSplash.Visible = false;
    StartGame();
  } else if (standing.InGame()) {
    AskToEndGame("You have a game in progress, are you sure you want to restart now?");
  } else {
    ShowMessage("Select your options and play again!");
    platform.Sleep(2000);
  }
}

void frmSumfall::cmdTakeScore_Click(By by) {
  if (standing.CanStart()) {
    ReplayPending = true;
    if (!common.nextDeal) {
      common.nextDeal = common.deal.Played();
      // Another goal may have another deck, of whose cards the number tells nothing.
      if (DeckSize(DeckGoal) != DeckSize(static_cast<int>(CardGoal))) common.nextDeal->number = 0;
    }
    cmdPlay_Click(By::Button);
  } else if (!standing.InputIsDead()) {
    TakeScore();
    // The bonus round has started its music by itself.
    if (by == By::Button && standing.InGame() && CurrentRound != kBonusRound) StartMusic();
  }
}

void frmSumfall::ChooseGoal(int goal) {
  TickOnly(*goalEntries[goal - kLowestGoal]);
  lblElevens.Caption = GoalWord(goal);
  CardGoal = goal;
  ShowTableLeader();
  StatusBar1.Panels(2).Text = "Click on exposed cards to total " + std::to_string(CardGoal) + "!   ";
}

// --- Saved games ---------------------------------------------------------------------------------

SavedGame frmSumfall::LastGame(const std::string& userName) const {
  SavedGame game;
  game.cardGoal = static_cast<int>(CardGoal);
  game.timeLimit = static_cast<int>(clock.TimeLimit);
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
  const auto read = [&] {
    std::string text;
    if (common.files.Read(path, text) != ReadOutcome::Read) throw RuntimeError("File not found");
    game = ParseSavedGame(text);
  };
  if (!common.Try(
          read,
          "Unable to open the requested file. It may be damaged or you may have entered an invalid file name.",
          Icon::Critical))
    return false;
  ChooseGoal(game.cardGoal);
  common.Deck.assign(DeckSize(game.cardGoal) + 1, "");
  DeckGoal = game.cardGoal;
  for (int round = 0; round < 3; ++round) RoundDeck(round + 1) = game.decks[round];

  const std::string limit = std::to_string(game.timeLimit);
  std::string message = "This game was saved by " + game.userName + ". He or she " + Verdict(game.score) +
                        " score of " + FormatNumber(game.score) + " in this game. " +
                        (game.custom ? "Customized scoring was in effect when this game was played. "
                                     : "Customized scoring was not in effect when this game was played. ");
  const std::string title = "Saved Game Information";
  if (game.timeLimit != clock.TimeLimit) {
    message += "This game was saved with the time limit set to " + limit +
               ". Your time limit is currently set to " + std::to_string(clock.TimeLimit) +
               ". Do you want to change your time limit to " + limit + "?";
    if (platform.MsgBox(message, title, Icon::Question, Buttons::YesNo) == Answer::Yes)
      ChooseTimeLimit(game.timeLimit);
  } else {
    platform.MsgBox(message, title, Icon::Information);
  }
  ReplayPending = true;
  common.nextDeal = DealName{};  // the cards are those of the file
  splash.Show(false);
  cmdTakeScore.Caption = "&Replay";
  cmdTakeScore_Click(By::Button);
  return true;
}

void frmSumfall::Form_Activate() {
  if (commandLineTaken_ || platform.CommandLine.empty()) return;
  commandLineTaken_ = true;
  LoadSavedGame(platform.CommandLine);
}
