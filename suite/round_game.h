// A game of rounds that all end in the common way: Take Score, or the clock, pays the round's awards; then
// the next round is announced and dealt, or the game is over.
#pragma once

#include "suite/game_window.h"

class RoundGame : public GameWindow {
 public:
  using GameWindow::GameWindow;

  // === What such a game must give ==================================================================

  // Deals round `CurrentRound` and starts its clock.
  virtual void InitRound() = 0;
  // The awards in the game's order.
  virtual void PayAwards() = 0;

  // === Steps, by when they come ====================================================================

  // Dead input, no clock, no commands, the hourglass, no board, no music. Sumfall's music stops first, and
  // its menu is dead, too.
  virtual void BeginScoring();
  // Takes the board away: when the time is up, and while the round is paid.
  virtual void HideBoard(bool /*timeIsUp*/) { ShowCards(false); }
  // The next round has been announced. What was clicked meanwhile meets dead input, and comes to nothing.
  virtual void DropWaitingInput() { platform.DoEvents(); }
  // What else a finished game hides, between the score's entry and "Game Over": Spirehold's towers.
  virtual void GameFinished() {}

  void TakeScore() override;
  void TimeIsUp() override;
  void GameOver() override;

 private:
  // The message blinks, and is gone.
  void AnnounceRound(bool bonus);
};
