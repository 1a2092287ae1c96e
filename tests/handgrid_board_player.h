// Plays Handgrid on boards alone.
#pragma once

#include "games/handgrid/board.h"
#include "tests/board_player.h"

struct HandgridPlayer {
  using Board = modHandgrid::Board;
  struct Move {
    int cell;
  };

  // Now and then with more overwrites than the deck has cards for.
  static Board Deal(Chance& chance) {
    Board board;
    board.Deal(chance.Shuffled(StandardDeck()), chance.Percent(10) ? 100 : chance.Draw(27));
    board.Draw();
    return board;
  }

  static Move Choose(const Board& board, Chance& chance) {
    const int start = chance.Draw(modHandgrid::kCells);
    for (int i = 0; i < modHandgrid::kCells && !chance.Percent(25); ++i)
      if (const int cell = (start + i) % modHandgrid::kCells; board.cells[cell].empty()) return {cell};
    return {start};
  }

  static bool Make(Board& board, const Move& move) {
    if (!board.Takes(move.cell)) return false;
    board.Overwrite(move.cell);
    board.Lay(move.cell);
    board.Draw();
    return true;
  }

  // A card that isn't there can be laid once.
  static bool IsOver(const Board& board) { return board.IsFull() || board.holeCount < 0; }

  static void Count(const Board& board, Census& census) {
    for (const std::string& code : board.cells) census("grid", code);
    for (const std::string& code : board.stack) census("stack", code);
    for (const std::string& code : board.covered) census("covered", code);
    census("hole", board.hole);
  }
};
