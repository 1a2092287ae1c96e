// Plays on boards alone, with no window: what must hold on every board whatever is tried on it, and moves
// that a benchmark can make again.
//
// A game gives a `Player`, in tests/<game>_board_player.h:
//
//   using Board = modGame::Board;
//   struct Move { ... };                             // plain data
//   static Board Deal(Chance& chance);               // the board of a fresh round
//   static Move Choose(const Board&, Chance& chance);  // sensible mostly, now and then senseless
//   static bool Make(Board&, const Move&);           // false if the board has refused it
//   static bool IsOver(const Board&);
//   static void Count(const Board&, Census& census); // each card and its place, with one `census(place,
//   code)`
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "suite/cards.h"

class Chance {
 public:
  explicit Chance(uint32_t seed) : source_(seed) {}
  int Draw(int below) { return static_cast<int>(source_() % static_cast<uint32_t>(below)); }
  bool Percent(int percent) { return Draw(100) < percent; }
  CardCodes Shuffled(CardCodes deck) {
    Shuffle(deck, [this](int lower, int upper) { return lower + Draw(upper - lower + 1); });
    return deck;
  }

 private:
  std::mt19937 source_;
};

// Where each card lies. A place without a card is counted with an empty code, or not at all.
class Census {
 public:
  struct Card {
    std::string_view place, code;
    friend bool operator==(const Card&, const Card&) = default;
  };
  void operator()(std::string_view place, std::string_view code) {
    if (!code.empty()) cards.push_back({place, code});
  }
  std::vector<Card> cards;

  std::vector<std::string> Codes() const {
    std::vector<std::string> codes;
    for (const Card& card : cards) codes.emplace_back(CardKey(card.code));
    std::sort(codes.begin(), codes.end());
    return codes;
  }
};

template <class Player>
Census CensusOf(const typename Player::Board& board) {
  Census census;
  Player::Count(board, census);
  return census;
}
