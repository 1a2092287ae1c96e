// Plays Spirehold on boards alone.
#pragma once

#include "games/spirehold/board.h"
#include "tests/board_player.h"

struct SpireholdPlayer {
  using Board = modSpirehold::Board;
  static constexpr int kTurn = -1;
  struct Move {
    int card;  // or a turn
  };

  // Runs of former games are known, and one may be open.
  static Board Deal(Chance& chance) {
    Board board;
    board.HighestRun = chance.Draw(6);
    board.RunValue = 100 * chance.Draw(6);
    board.Deal(chance.Shuffled(StandardDeck()));
    return board;
  }

  // Mostly a card that may be taken, else the stack.
  static Move Choose(const Board& board, Chance& chance) {
    const int start = chance.Draw(modSpirehold::kCards);
    if (chance.Percent(10)) return {start};
    for (int i = 0; i < modSpirehold::kCards && !chance.Percent(3); ++i)
      if (const int card = (start + i) % modSpirehold::kCards; board.CheckForLegalMove(card)) return {card};
    return {kTurn};
  }

  static bool Make(Board& board, const Move& move) {
    if (move.card == kTurn) {
      board.TurnCard();
      return true;
    }
    if (!board.Take(move.card)) return false;
    board.RaiseRunValue(100);
    board.LengthenRun();
    return true;
  }

  static bool IsOver(const Board& board) {
    return board.TowersCompleted() == modSpirehold::kTowers || (board.stack.empty() && board.IsStuck());
  }

  // The first up card is counted twice: it comes again with the last turn.
  static void Count(const Board& board, Census& census) {
    for (const std::string& code : board.table) census("table", code);
    for (const std::string& code : board.stack) census("stack", code);
    for (const std::string& code : board.pile) census("pile", code);
  }
};
