// What the history will say of the game in progress.
#pragma once

#include <optional>
#include <vector>

#include "history/history.h"
#include "suite/deal.h"

class GameWindow;

// A game that has ended.
struct EndedGame {
  PlayedGame game;
  bool repeated = false;      // its deal was asked for
  std::vector<int> payments;  // of its rounds
};

class GameLog {
 public:
  explicit GameLog(GameWindow& window) : window_(window) {}

  // A game has begun, and its first round is dealt.
  void Begin();
  // A second of play has passed; with the last one the round's clock has run out.
  void Second(bool last);
  // End Game is confirmed; what stood on the board before the question.
  void GiveUp(int score) { givenUp_ = score; }
  // The game has ended: at that place of the table, from 0, if it has one.
  void End(std::optional<size_t> place = {});
  // The window goes, with the game in progress if there is one; what stood on the board before the player was
  // asked.
  void Close(std::optional<int> score = {});
  // Whether the history has a game with that deal.
  bool WasPlayed(int deal);
  // The game that has ended last in this window.
  const std::optional<EndedGame>& Last() const { return last_; }
  // The deal that is played here, or was last.
  DealName PlayedDeal() const;

 private:
  void Write(GameEnd end, int score);

  GameWindow& window_;
  std::optional<PlayedGame> game_;
  std::optional<EndedGame> last_;
  std::optional<int> givenUp_;
  int timedOut_ = 0;  // the round whose clock ran out
};
