// Plays Treyshift on boards alone.
#pragma once

#include <algorithm>
#include <cstdlib>

#include "games/treyshift/board.h"
#include "tests/board_player.h"

struct TreyshiftPlayer {
  using Board = modTreyshift::Board;
  using Zone = modTreyshift::Zone;
  struct Move {
    Zone zone;
    int slot;
  };

  // Some decks go well: without one nobody gets to its end.
  static Board Deal(Chance& chance) {
    CardCodes deck = chance.Shuffled(StandardDeck());
    if (chance.Percent(50))
      std::sort(deck.begin() + 1, deck.end(),
                [](const auto& a, const auto& b) { return CardValue(a) < CardValue(b); });
    Board board;
    board.Deal(deck);
    return board;
  }

  // Mostly the card in play, into a column that it completes or may begin.
  static Move Choose(const Board& board, Chance& chance) {
    const int slot = chance.Draw(modTreyshift::kFieldSlots);
    if (chance.Percent(5)) return {Zone::Deck, slot % modTreyshift::kUpSlots};
    if (!board.Selected() && chance.Percent(80)) return {Zone::Deck, modTreyshift::kInPlay};
    if (board.SourceZone == Zone::Deck && chance.Percent(90)) {
      const int rank = CardValue(board.UpCards[modTreyshift::kInPlay]);
      for (int column = 0; column < modTreyshift::kColumns; ++column)
        if (std::abs(CardValue(board.FieldCards[column]) - rank) <= 1 && board.Takes(Zone::Field, column))
          return {Zone::Field, column};
    }
    if (chance.Percent(30)) return {Zone::Temp, slot % modTreyshift::kTempSlots};
    return {Zone::Field, slot};
  }

  // A column that is worth something is paid at once.
  static bool Make(Board& board, const Move& move) {
    int slot = move.slot;
    const modTreyshift::Outcome outcome = board.Take(move.zone, slot);
    if (outcome == modTreyshift::Outcome::Laid && move.zone == Zone::Field &&
        board.Judge(slot % modTreyshift::kColumns) != modTreyshift::Worth::Nothing)
      board.ClearColumn(slot % modTreyshift::kColumns);
    return outcome != modTreyshift::Outcome::Refused;
  }

  static bool IsOver(const Board& board) { return board.IsStuck() || !board.CanMove(); }

  static void Count(const Board& board, Census& census) {
    for (const std::string& code : board.FieldCards) census("field", code);
    for (const std::string& code : board.TempCards) census("storage", code);
    for (const std::string& code : board.UpCards) census("fan", code);
    for (size_t i = board.DeckPosition + 1; i < board.deck.size(); ++i) census("deck", board.deck[i]);
    for (const std::string& code : board.paid) census("paid", code);
  }
};
