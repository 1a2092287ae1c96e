#include "suite/round_game.h"

void RoundGame::BeginScoring() {
  standing.Score();
  Timer1.Enabled = false;
  commands.EnableButtons(false);
  MousePointer = kHourglass;
  HideBoard(false);
  StopMusic();
}

void RoundGame::TakeScore() {
  BeginScoring();
  PayAwards();
  CurrentRound += 1;
  const bool bonus = CurrentRound == plan.rounds + 1;
  if (CurrentRound <= plan.rounds || (bonus && EarnsBonusRound())) {
    AnnounceRound(bonus);
    DropWaitingInput();
    InitRound();
  } else {
    GameOver();
  }
  EndScoring();
}

void RoundGame::AnnounceRound(bool bonus) {
  if (plan.commandsLiveWhileTold) commands.EnableButtons(true);
  const BonusCall& call = plan.bonusCall;
  if (bonus) platform.front.Triumph(*this);
  if (bonus && call.waveFirst) PlaySound(call.wave);
  static constexpr const char* kNumbers[] = {"One", "Two", "Three", "Four", "Five", "Six"};
  const size_t round = static_cast<size_t>(CurrentRound);
  const std::string number = round <= std::size(kNumbers) ? kNumbers[round - 1] : std::to_string(round);
  ShowMessage(bonus ? call.text : "Prepare for Round " + number + "!");
  if (bonus && !call.waveFirst) PlaySound(call.wave);
  Blink(lblMessage, 11);
  lblMessage.Visible = false;
}

void RoundGame::TimeIsUp() {
  MousePointer = kHourglass;
  Timer1.Enabled = false;
  HideBoard(true);
  commands.EnableButtons(false);
  ShowMessage("Times Up!");
  StatusBar1.Panels(2).Text = "Time has expired!";
  Blink(lblMessage, 10);
  cmdTakeScore_Click(By::Button);
  if (!standing.IsOver()) lblMessage.Visible = false;
  MousePointer = kDefaultPointer;
}

void RoundGame::GameOver() {
  MousePointer = kHourglass;
  FinishGame();
  GameFinished();
  const auto offerPlay = [this] {
    for (CommandButton* button : {&cmdPlay, &cmdExit}) button->Enabled = true;
  };
  if (plan.commandsLiveWhileTold) offerPlay();
  commands.TellStart();
  TellGameOver(lblMessage);
  splash.Show(true);
  offerPlay();
}
