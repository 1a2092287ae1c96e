// Lays known cards for Handgrid.
#pragma once

#include "games/handgrid/handgrid.h"
#include "tests/game_test.h"
#include "tests/sumfall_cards.h"

inline frmHandgrid& HandgridOf(Driver& driver) { return static_cast<frmHandgrid&>(*driver.common().window); }

using CardNames = std::vector<std::string>;

// The command that makes a game's first round turn up these cards, in this order.
inline std::string FirstDeck(const CardNames& cards) { return DrawsFor(StandardDeck(), cards); }
// The same for the round that follows the present one.
inline std::string NextDeck(Driver& driver, const CardNames& cards) {
  return DrawsFor(driver.common().Deck, cards);
}

// Row by row a royal flush, a straight flush, four of a kind, a full house, a flush; pairs in the first and
// the last column. 1,600 points.
inline CardNames RichGrid() {
  return {"1S", "10S", "11S", "12S", "13S",  //
          "2H", "3H",  "4H",  "5H",  "6H",   //
          "7C", "7H",  "7D",  "7S",  "8C",   //
          "9C", "9D",  "9H",  "4C",  "4D",   //
          "2D", "5D",  "8D",  "11D", "13D"};
}
inline constexpr int kRichPoints = 500 + 400 + 300 + 200 + 100 + 50 + 50;

// No hand in any line.
inline CardNames PoorGrid() {
  CardNames cards;
  int seen[13] = {};
  for (int row = 0; row < 5; ++row)
    for (int column = 0; column < 5; ++column) {
      const int step = 2 * row + column;
      cards.push_back(std::to_string(5 * step % 13 + 1) + "SHCD"[(seen[step]++ + column + 2 * row) % 4]);
    }
  return cards;
}

inline std::string ClickCell(int cell) {
  return "click frmHandgrid.PlayCards(" + std::to_string(cell) + ")\n";
}
inline std::string ClickCells(int from, int to) {
  std::string clicks;
  for (int cell = from; cell <= to; ++cell) clicks += ClickCell(cell);
  return clicks;
}

inline const std::string kOpenHandgrid = "click frmSelect.cmdHandgrid\n";
inline const std::string kPlayHandgrid = "click frmHandgrid.cmdPlay\n";
inline const std::string kFillGrid = ClickCells(0, 24);
inline const std::string kRelease = "advance 250\n";  // the selector's tick opens the board again

// Opens Handgrid and starts a game with these cards.
inline void StartHandgrid(Driver& driver, const CardNames& cards) {
  driver.Do(kOpenHandgrid + FirstDeck(cards) + kPlayHandgrid);
}
