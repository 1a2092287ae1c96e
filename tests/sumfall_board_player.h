// Plays Sumfall on its board alone, as `tests/board_player.h` tells.
#pragma once

#include "games/sumfall/board.h"
#include "tests/board_player.h"

struct SumfallPlayer {
  using Board = modSumfall::Board;
  struct Move {
    enum Kind { Click, Turn, Pause } kind;
    int place = 0;
  };

  static Board Deal(Chance& chance) {
    using namespace modSumfall;
    Board board;
    const int goal = kLowestGoal + chance.Draw(kHighestGoal - kLowestGoal + 1);
    board.Deal(chance.Shuffled(DeckForGoal(goal)), goal);
    return board;
  }

  // A card that fits; else one that is given back, or the next of the stock.
  static Move Choose(const Board& board, Chance& chance) {
    constexpr int kClicks = modSumfall::kUpCard + 1;
    const int start = chance.Draw(kClicks);
    if (chance.Percent(8)) return {Move::Click, start};
    if (chance.Percent(15)) return {chance.Percent(95) ? Move::Turn : Move::Pause};
    for (const bool selected : {false, true}) {
      if (selected && chance.Percent(40)) break;
      for (int i = 0; i < kClicks; ++i) {
        const int place = (start + i) % kClicks;
        if (board.selected[place] == selected && board.Takes(place)) return {Move::Click, place};
      }
    }
    return {Move::Turn};
  }

  static bool Make(Board& board, const Move& move) {
    if (move.kind == Move::Pause) {
      board.DropSelection();
      return true;
    }
    if (move.kind == Move::Turn) return Turn(board);
    if (!board.Takes(move.place)) return false;
    if (!board.Toggle(move.place) || !board.IsCombination()) return true;
    board.TakeCombination([](int) {});
    if (board.TurnsByItself()) Turn(board);
    board.upCardUsed = false;
    return true;
  }

  // With the stock used up a player at random would seek the last combinations for long.
  static bool IsOver(const Board& board) {
    return board.CheckForCompletion() || board.stock.empty() || board.IsStuck();
  }

  static void Count(const Board& board, Census& census) {
    for (const std::string& card : board.field) census("field", card);
    for (const std::string& card : board.upCards) census("up cards", card);
    // The card turned up by the deal is there twice until it comes by again.
    for (const std::string& card : board.stock)
      census(&card == &board.stock[0] ? "the first up card again" : "stock", card);
    for (const std::string& card : board.taken) census("taken", card);
  }

 private:
  static bool Turn(Board& board) {
    if (!board.CanTurn()) return false;
    board.MoveUpCardToFieldArea();
    board.TurnStock();
    return true;
  }
};
