// The board of Sumfall: decks, what can be taken, combinations, turns, and whether anything is left to do.
#include <gtest/gtest.h>

#include "tests/board_laws.h"
#include "tests/sumfall_board_player.h"

using namespace modSumfall;

namespace {

using Cards = std::vector<std::string>;

// A board on which these cards lie and nothing else, "7=4S" at a place; the piles' last card is on top.
Board Lay(int goal, const std::vector<std::pair<int, const char*>>& field, const Cards& upCards = {},
          const Cards& stock = {}) {
  Board board;
  board.goal = goal;
  for (const auto& [place, card] : field) board.field[place] = card;
  board.upCards = upCards;
  board.stock = stock;
  return board;
}

// What is paid for selecting these places one after another; -1 if one isn't taken, 0 if nothing comes of it.
int Paid(Board& board, std::initializer_list<int> places) {
  int points = 0;
  for (const int place : places) {
    if (!board.Takes(place)) return -1;
    if (board.Toggle(place) && board.IsCombination())
      board.TakeCombination([&](int gone) { points += kPoints[gone]; });
  }
  return points;
}

std::string FreePlaces(const Board& board) {
  std::string places;
  for (int place = 0; place <= kUpCard; ++place)
    if (board.Takes(place)) places += std::to_string(place) + " ";
  return places;
}

}  // namespace

TEST(SumfallBoard, DecksOfEachGoal) {
  const std::pair<int, int> sizes[] = {{9, 52},  {10, 52}, {11, 52}, {12, 56}, {13, 60},
                                       {14, 64}, {15, 64}, {16, 52}, {-3, 52}};
  const std::pair<int, const char*> codes[] = {
      {1, "1S"},   {4, "1S"},    {5, "1H"},   {9, "1C"},    {13, "1D"},  {16, "1D"},
      {17, " 2S"}, {25, " 10S"}, {26, " 2H"}, {34, " 10H"}, {35, " 2C"}, {43, " 10C"},
      {44, " 2D"}, {52, " 10D"}, {53, "11S"}, {54, "11H"},  {55, "11C"}, {56, "11D"},
      {57, "12S"}, {60, "12D"},  {61, "13S"}, {64, "13D"}};
  for (const auto& [goal, size] : sizes) {
    const CardCodes deck = DeckForGoal(goal);
    EXPECT_EQ(UpperBound(deck), size) << goal;
    EXPECT_EQ(deck[0], "");
    for (const auto& [index, code] : codes) {
      if (index > size) break;
      EXPECT_EQ(deck[index], code) << goal;
    }
    Board board;
    board.combinations = 7;
    board.taken = {"1S"};
    board.Deal(deck, goal);
    EXPECT_TRUE(board.combinations == 0 && board.taken.empty());
    EXPECT_EQ(board.field[21], deck[22]);
    EXPECT_EQ(board.upCards, Cards{deck[23]});
    EXPECT_EQ(board.stock.size(), size - 22u);
    EXPECT_EQ(board.stock.front(), deck[23]) << "the up card lies at the bottom of the pile once more";
    EXPECT_EQ(board.stock.back(), deck[size]);
  }
}

TEST(SumfallBoard, CardsLieFreeFromBelow) {
  const struct {
    std::vector<int> gone;
    const char* free;
  } rows[] = {
      {{}, "7 20 21 22 "},
      {{20}, "7 16 17 21 22 "},
      {{16, 17, 20, 21}, "7 10 11 12 18 19 22 "},
      {{7, 12, 16, 17, 20, 21}, "3 10 11 18 19 22 "},
      {{3, 7, 12, 13, 16, 17, 18, 19, 20, 21}, "4 10 11 14 15 22 "},
      {{3, 4, 7, 12, 13, 16, 17, 18, 19, 20, 21}, "0 10 11 14 15 22 "},
  };
  for (const auto& [gone, free] : rows) {
    Board board;
    board.Deal(DeckForGoal(15), 15);
    for (const int place : gone) board.field[place].clear();
    EXPECT_EQ(FreePlaces(board), free) << gone.size();
  }
}

TEST(SumfallBoard, WhatMakesTheGoalGoesAndPays) {
  const struct {
    int goal;
    std::vector<std::pair<int, const char*>> field;
    const char* upCard;
    std::initializer_list<int> places;
    int points;
  } rows[] = {
      {11, {{20, "9S"}, {21, "2S"}}, "5C", {20, 21}, 400},
      {11, {{20, "9S"}, {21, "3S"}}, "5C", {20, 21}, -1},  // 12 is too much
      {11, {{20, "9S"}, {21, "1S"}}, "5C", {20, 21}, 0},   // 10 is too little
      {11, {{20, "9S"}, {21, "1S"}}, "1C", {20, 21, kUpCard}, 500},
      {10, {{20, "10S"}}, "5C", {20}, 200},  // alone
      {15, {{20, "13S"}, {21, "2S"}}, "5C", {20, 21}, 400},
      {11, {{20, "9S"}, {0, "2S"}}, "5C", {20, 0}, 900},
      {11, {{0, "4S"}, {1, "4S"}, {7, "3H"}}, "5C", {7, 1, 0}, 1800},
      {11, {{20, "9S"}, {16, "2S"}}, "5C", {20, 16}, -1},  // covered
      {11, {{20, "9S"}, {21, "2S"}}, "", {kUpCard}, -1},
      {11, {{20, "9S"}, {21, "2S"}}, "5C", {20, 20, 21, kUpCard}, 0},
      {11, {{20, " 9S"}, {21, "2S"}}, "5C", {20, 20, 21, 20}, 400},
  };
  for (const auto& row : rows) {
    Board board = Lay(row.goal, row.field);
    if (*row.upCard) board.upCards = {row.upCard};
    EXPECT_EQ(Paid(board, row.places), row.points) << PrintBoard(board);
    EXPECT_EQ(board.combinations, row.points > 0 ? 1 : 0);
    EXPECT_TRUE(row.points <= 0 || board.total == 0);
    EXPECT_EQ(board.CheckForCompletion(), row.points > 0) << PrintBoard(board);
  }
}

// A score that can't be paid leaves that card and what follows it.
TEST(SumfallBoard, WhatFailsWhileItPaysStaysAsFar) {
  for (const int fails : {1, 2, kUpCard}) {
    Board board = Lay(6, {{1, "1S"}, {2, "2S"}}, {"3S"});
    ASSERT_EQ(board.Toggle(1) && board.Toggle(2) && board.Toggle(kUpCard), true);
    EXPECT_THROW(board.TakeCombination([&](int place) {
      if (place == fails) RaiseOverflow();
    }),
                 RuntimeError);
    for (const int place : {1, 2, kUpCard}) {
      EXPECT_EQ(board.selected[place], place >= fails) << fails;
      EXPECT_EQ(board.CardAt(place).empty(), place < fails) << fails;
    }
    EXPECT_EQ(board.combinations, 0);
    EXPECT_EQ(board.upCardUsed, fails == kUpCard);
  }
}

TEST(SumfallBoard, ATurnLetsTheUpCardFall) {
  Board board = Lay(11, {{0, "1S"}, {1, "2S"}, {2, "3S"}, {4, "4S"}}, {"5S", "6S"}, {"7S", "8S"});
  board.Toggle(4);
  EXPECT_EQ(board.MoveUpCardToFieldArea(), 3) << "the highest gap";
  board.TurnStock();
  EXPECT_EQ(board.field[3], "6S");
  EXPECT_EQ(board.upCards, (Cards{"5S", "8S"}));
  EXPECT_EQ(board.stock, Cards{"7S"});
  EXPECT_TRUE(board.total == 0 && !board.selected[4]);
  board.upCards.clear();
  EXPECT_EQ(board.MoveUpCardToFieldArea(), -1);
  board.stock.clear();
  EXPECT_FALSE(board.CanTurn());
}

TEST(SumfallBoard, TheUpPileHoldsThirtyOneCards) {
  Board board;
  board.Deal(DeckForGoal(14), 14);
  for (int turned = 0; turned < 30; ++turned) {
    ASSERT_TRUE(board.CanTurn()) << turned;
    EXPECT_EQ(board.MoveUpCardToFieldArea(), -1) << "a full field takes no card";
    board.TurnStock();
  }
  EXPECT_EQ(board.stock.size(), 12u);
  EXPECT_FALSE(board.CanTurn());
  board.field[20].clear();
  EXPECT_TRUE(board.CanTurn()) << "the field takes the top card";
}

TEST(SumfallBoard, TheLastUpCardBringsTheNextOne) {
  Board board = Lay(11, {{20, "9S"}, {21, "6S"}}, {"3S", "5S"}, {"8S"});
  Paid(board, {21, kUpCard});
  EXPECT_FALSE(board.TurnsByItself()) << "another one lies under it";
  board.upCards = {"2S"};
  Paid(board, {20, kUpCard});
  EXPECT_TRUE(board.TurnsByItself());
  board.field[21] = "11S";
  Paid(board, {21});
  EXPECT_FALSE(board.TurnsByItself());
}

// What is let go at the top stays selected, and the total knows nothing of it.
TEST(SumfallBoard, ASelectionAtTheTopIsForgottenByTheTotal) {
  Board board = Lay(11, {{0, "4S"}, {20, "9S"}, {21, "2S"}}, {"5S"});
  board.Toggle(0);
  board.Toggle(kUpCard);
  board.DropSelection();
  EXPECT_TRUE(board.selected[0] && !board.selected[kUpCard] && board.total == 0);
  Board given = board;
  EXPECT_FALSE(given.Toggle(0));
  EXPECT_EQ(given.total, -4);
  EXPECT_EQ(Paid(board, {20, 21}), 1100) << "it goes with the next combination";
  // It outlives even the round.
  Board next = Lay(11, {{0, "4S"}});
  next.Toggle(0);
  next.Deal(DeckForGoal(11), 11);
  EXPECT_TRUE(next.selected[0] && next.total == 0 && !next.Takes(0));
}

TEST(SumfallBoard, KeepsTheLaws) { KeepsTheLaws<SumfallPlayer>(18); }

// Whether a combination can be made now, found by selecting whatever can be selected.
bool AnyCombination(const Board& board, int from = 0) {
  for (int place = from; place <= kUpCard; ++place) {
    Board next = board;
    // A selected card is given back here, so that what was forgotten in the total is tried both ways.
    if (!next.Takes(place)) continue;
    if (next.Toggle(place) && next.IsCombination()) return true;
    if (AnyCombination(next, place + 1)) return true;
  }
  return false;
}

// Late in a round, with few cards: each position is tried out to its end.
TEST(SumfallBoard, IsStuckWhenNothingCanBePlayedAnyMore) {
  Chance chance(4);
  int stuck = 0, stuckWithStock = 0;
  for (int n = 0; n < 3000; ++n) {
    auto board = SumfallPlayer::Deal(chance);
    board.stock.resize(chance.Draw(4));
    for (int place = 0; place < kPlaces; ++place)
      if (chance.Percent(75)) board.field[place].clear();
    if (!board.field[0].empty() && board.Takes(0) && chance.Percent(20)) board.selected[0] = true;
    Board ahead = board;
    bool found = AnyCombination(ahead);
    while (!found && ahead.CanTurn()) {
      ahead.MoveUpCardToFieldArea();
      ahead.TurnStock();
      found = AnyCombination(ahead);
    }
    ASSERT_EQ(board.IsStuck(), !found) << PrintBoard(board);
    stuck += !found;
    stuckWithStock += !found && !board.stock.empty();
  }
  EXPECT_GT(stuck, 200);
  EXPECT_GT(stuckWithStock, 50);
}
