// Plays Fivestack on boards alone: well mostly, at random now and then, at times with more passes than cards.
#pragma once

#include "games/fivestack/board.h"
#include "tests/board_player.h"

struct FivestackBoardPlayer {
  using Board = modFivestack::Board;
  struct Move {
    int column;  // -1 passes
  };

  static Board Deal(Chance& chance) {
    Board board;
    board.Clear(chance.Percent(5) ? 40 : chance.Draw(4));
    board.Deal(chance.Shuffled(StandardDeck()));
    return board;
  }
  static Move Choose(const Board& board, Chance& chance) {
    if (chance.Percent(board.passesLeft > 10 ? 80 : 4)) return {-1};
    int best = chance.Draw(modFivestack::kColumns);
    if (chance.Percent(10)) return {best};
    long long most = -1;
    for (int i = 0; i < modFivestack::kColumns; ++i) {
      const Column21& column = board.columns[i];
      const bool fits = column.TotalWith(board.Next()) <= kTwentyOne || column.softAces > 0;
      if (fits && board.Takes(i) && column.total > most) best = i, most = column.total;
    }
    return {best};
  }
  static bool Make(Board& board, const Move& move) {
    if (move.column < 0) return board.Pass();
    try {
      const modFivestack::Laid laid = board.Lay(move.column);
      if (laid == modFivestack::Laid::Over) board.CheckForBust(move.column);
      return laid != modFivestack::Laid::Refused;
    } catch (const RuntimeError&) {
      return true;  // an ace came down for want of the card that it costs
    }
  }
  static bool IsOver(const Board& board) {
    if (board.position > UpperBound(board.deck) || board.cardTotal >= modFivestack::kPerfect) return true;
    for (int i = 0; i < modFivestack::kColumns; ++i)
      if (board.Takes(i)) return false;
    return true;
  }
  static void Count(const Board& board, Census& census) {
    census("unseen", board.deck[1]);
    for (const Column21& column : board.columns)
      for (const std::string& card : column.cards) census("column", card);
    for (const std::string& card : board.passed) census("passed", card);
    for (const std::string& card : board.skipped) census("skipped", card);
    for (long long i = board.position; i <= UpperBound(board.deck); ++i) census("stock", board.deck[i]);
  }
};
