// What moves on a board cost by themselves: whole rounds are played first, then their moves are made again.
#pragma once

#include <benchmark/benchmark.h>

#include <utility>

#include "tests/board_player.h"

template <class Player>
void BM_BoardMoves(benchmark::State& state) {
  Chance chance(1);
  std::vector<std::pair<typename Player::Board, std::vector<typename Player::Move>>> rounds;
  size_t moves = 0;
  for (int i = 0; i < 100; ++i) {
    auto board = Player::Deal(chance);
    auto& round = rounds.emplace_back(board, std::vector<typename Player::Move>());
    while (!Player::IsOver(board) && round.second.size() < 1000) {
      round.second.push_back(Player::Choose(board, chance));
      Player::Make(board, round.second.back());
    }
    moves += round.second.size();
  }
  for (auto _ : state)
    for (const auto& [dealt, made] : rounds) {
      auto board = dealt;
      for (const auto& move : made) benchmark::DoNotOptimize(Player::Make(board, move));
    }
  state.SetItemsProcessed(static_cast<int64_t>(moves) * static_cast<int64_t>(state.iterations()));
}
