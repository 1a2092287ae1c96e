// What holds on every board: each card that was dealt lies in one place, a refused move moves no card, and a
// board that is printed and read is the same board.
#pragma once

#include <gtest/gtest.h>

#include <iostream>

#include "suite/board_text.h"
#include "tests/board_player.h"

#if defined(__SANITIZE_ADDRESS__)
inline constexpr int kBoardMoves = 50'000;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr int kBoardMoves = 50'000;
#else
inline constexpr int kBoardMoves = 1'000'000;
#endif
#else
inline constexpr int kBoardMoves = 1'000'000;
#endif

template <class Player>
void KeepsTheLaws(uint32_t seed, int moves = kBoardMoves) {
  Chance chance(seed);
  int rounds = 0, refused = 0;
  while (moves > 0) {
    auto board = Player::Deal(chance);
    const std::vector<std::string> dealt = CensusOf<Player>(board).Codes();
    ASSERT_FALSE(dealt.empty());
    for (++rounds; moves > 0 && !Player::IsOver(board); --moves) {
      const auto before = board;
      const auto move = Player::Choose(board, chance);
      const bool taken = Player::Make(board, move);
      if (!taken) {
        ++refused;
        ASSERT_EQ(CensusOf<Player>(board).cards, CensusOf<Player>(before).cards)
            << "refused on " << PrintBoard(before);
      }
      // The whole count, and the text, now and then: they cost more than a move.
      if (moves % 16 == 0) {
        ASSERT_EQ(CensusOf<Player>(board).Codes(), dealt) << PrintBoard(before) << "\nbecame\n"
                                                          << PrintBoard(board);
        const std::string line = PrintBoard(board);
        const auto read = ReadBoard<typename Player::Board>(line);
        ASSERT_TRUE(read && *read == board) << line;
      }
    }
  }
  std::cout << rounds << " rounds, " << refused << " moves refused\n";
  EXPECT_GT(rounds, 100);
  EXPECT_GT(refused, 100);
}
