// Plays Blackrush on boards alone: well mostly, at random now and then, at times with aces left over from
// another round.
#pragma once

#include "games/blackrush/board.h"
#include "tests/board_player.h"

struct BlackrushBoardPlayer {
  using Board = modBlackrush::Board;
  struct Move {
    int column;  // -1 passes
  };

  static Board Deal(Chance& chance) {
    Board board;
    for (Column21& column : board.columns) column.softAces = chance.Percent(10);
    board.GrantPasses(chance.Draw(5) - 1);
    board.Deal(chance.Shuffled(StandardDeck()));
    return board;
  }
  static Move Choose(const Board& board, Chance& chance) {
    if (chance.Percent(2)) return {-1};
    int best = chance.Draw(modBlackrush::kColumns), most = -1;
    if (chance.Percent(5)) return {best};
    for (int i = 0; i < modBlackrush::kColumns; ++i) {
      const int total = board.columns[i].TotalWith(board.Next());
      if ((total <= kTwentyOne || board.columns[i].softAces > 0) && total > most) best = i, most = total;
    }
    // A last card that no column takes is the end of most rounds.
    return {most < 0 && chance.Percent(50) ? -1 : best};
  }
  static bool Make(Board& board, const Move& move) {
    if (move.column < 0) return board.Pass();
    int total = board.GetHitTotal(move.column);
    if (board.CheckForBust(move.column, total)) return false;
    if (board.LayCard(move.column, total) == modBlackrush::Laid::TwentyOne)
      board.ClearTwentyOne(move.column, 1000);
    board.TurnNextCard();
    return true;
  }
  static bool IsOver(const Board& board) {
    if (!board.HasNext()) return true;
    if (board.mayPass) return false;
    for (const Column21& column : board.columns)
      if (column.TotalWith(board.Next()) <= kTwentyOne || column.softAces > 0) return false;
    return true;
  }
  static void Count(const Board& board, Census& census) {
    for (const Column21& column : board.columns)
      for (const std::string& card : column.cards) census("column", card);
    for (const std::string& card : board.passed) census("passed", card);
    for (const std::string& card : board.gone) census("gone", card);
    for (long long i = board.position; i <= UpperBound(board.deck); ++i) census("stock", board.deck[i]);
  }
};
