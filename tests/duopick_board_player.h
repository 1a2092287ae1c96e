// Plays Duopick on boards alone.
#pragma once

#include "games/duopick/board.h"
#include "tests/board_player.h"

struct DuopickPlayer {
  using Board = modDuopick::Board;
  struct Move {
    int card;  // none turns a card of the stack
  };

  static Board Deal(Chance& chance) {
    Board board;
    board.Deal(chance.Shuffled(StandardDeck()));
    return board;
  }

  // Mostly a card that goes with the one that is selected, or a first one at random; else the stack.
  static Move Choose(const Board& board, Chance& chance) {
    const int start = chance.Draw(modDuopick::kCards);
    if (chance.Percent(10)) return {start};
    if (board.selected == modDuopick::kNone && chance.Percent(20)) return {modDuopick::kNone};
    for (int i = 0; i < modDuopick::kCards; ++i)
      if (const int card = (start + i) % modDuopick::kCards; board.Takes(card)) return {card};
    return {modDuopick::kNone};
  }

  static bool Make(Board& board, const Move& move) {
    if (move.card == modDuopick::kNone) {
      board.TurnCard();
      return true;
    }
    const modDuopick::Outcome outcome = board.Take(move.card);
    return outcome != modDuopick::Outcome::Refused && outcome != modDuopick::Outcome::Mismatch;
  }

  static bool IsOver(const Board& board) {
    return board.RoundCompleted() || (board.stack.empty() && board.IsStuck());
  }

  static void Count(const Board& board, Census& census) {
    for (const std::string& code : board.field) census("field", code);
    for (const std::string& code : board.waste) census("waste", code);
    for (const std::string& code : board.stack) census("stack", code);
    for (const std::string& code : board.taken) census("taken", code);
  }
};
