// The board of Spirehold: what covers what, what may be taken, what a run is worth, when nothing goes any
// more.
#include <cstdlib>
#include <set>

#include "tests/board_laws.h"
#include "tests/spirehold_board_player.h"

using namespace modSpirehold;

namespace {

// The deck in its order: the table holds the spades, the hearts, and the ace and two of clubs; the up card is
// the king of diamonds.
Board Dealt() {
  Board board;
  board.Deal(StandardDeck());
  return board;
}

}  // namespace

TEST(SpireholdBoard, NeighboursOnTheRingOfRanksAreLegal) {
  for (int rank = 1; rank <= 13; ++rank) {
    for (int up = 1; up <= 13; ++up) {
      const int apart = std::abs(rank - up);
      EXPECT_EQ(IsNeighbour(rank, up), apart == 1 || apart == 12) << rank << " on " << up;
    }
    EXPECT_FALSE(IsNeighbour(rank, 0) || IsNeighbour(0, rank)) << rank;
  }
}

TEST(SpireholdBoard, ACardIsCoveredByTheTwoBelowIt) {
  const std::set<int> covers[kCovered] = {{3, 4},   {5, 6},   {7, 8},   {9, 10},  {10, 11}, {12, 13},
                                          {13, 14}, {15, 16}, {16, 17}, {18, 19}, {19, 20}, {20, 21},
                                          {21, 22}, {22, 23}, {23, 24}, {24, 25}, {25, 26}, {26, 27}};
  const Board full = Dealt();
  for (int card = 0; card < kCards; ++card) {
    EXPECT_EQ(full.IsCovered(card), card < kCovered) << card;
    // Each of the two is enough, and no other card matters.
    for (int other = 0; other < kCards; ++other) {
      Board board;
      board.table[card] = board.table[other] = "7S";
      board.pile = {"8S"};
      const bool covered = card < kCovered && covers[card].contains(other);
      EXPECT_EQ(board.IsCovered(card), covered) << card << " under " << other;
      EXPECT_EQ(board.CheckForLegalMove(card), !covered) << card << " under " << other;
    }
  }
}

TEST(SpireholdBoard, ACardTakenIsTheUpCard) {
  Board board = Dealt();
  EXPECT_EQ(board.UpCardValue(), 13);
  EXPECT_FALSE(board.Take(25));  // a king
  EXPECT_FALSE(board.Take(0));   // an ace, covered
  ASSERT_TRUE(board.Take(26));   // an ace
  EXPECT_EQ(board.UpCardValue(), 1);
  EXPECT_TRUE(board.table[26].empty());
  EXPECT_FALSE(board.Take(26)) << "it is gone";
  EXPECT_TRUE(board.Take(25));
  EXPECT_EQ(board.pile, (std::vector<std::string>{" 13D", " 1C", " 13H"}));
  EXPECT_TRUE(board.IsCovered(17)) << "the other one lies yet";
  EXPECT_FALSE(board.IsCovered(16));
  // A covered card that would go doesn't, an uncovered one does.
  board.pile.back() = "3S";
  EXPECT_EQ(CardValue(board.table[15]), 3);
  board.table[16] = board.table[14] = "4H";
  EXPECT_FALSE(board.Take(14));
  EXPECT_TRUE(board.Take(16));
}

TEST(SpireholdBoard, ARunIsWorthMoreWithEachCardUntilOneIsTurned) {
  Board board = Dealt();
  long long total = 0;
  for (int card = 1; card <= 6; ++card) {
    EXPECT_EQ(board.NextCardWorth(100), card * 100);
    board.RaiseRunValue(100);
    board.LengthenRun();
    total += board.RunValue;
  }
  EXPECT_EQ(total, 2100);
  // The worth outlives the deal, the run's length doesn't.
  board.Deal(StandardDeck());
  EXPECT_EQ(board.RunValue, 600);
  EXPECT_EQ(board.NextCardWorth(100), 100);
  EXPECT_EQ(board.HighestRun, 6);
  board.LengthenRun();
  board.TurnCard();
  EXPECT_EQ(board.RunValue, 0);
  EXPECT_EQ(board.CurrentRun, 0);
  // A value that is too large is none, and the run isn't longer.
  board.RaiseRunValue(32767);
  EXPECT_THROW(board.RaiseRunValue(1), RuntimeError);
  EXPECT_EQ(board.RunValue, 32767);
  EXPECT_EQ(board.NextCardWorth(32767), 32767);
}

TEST(SpireholdBoard, OnlyALongerRunIsNew) {
  const struct {
    int highest, run, then;
    bool isNew;
  } cases[] = {{5, 4, 5, false}, {5, 5, 5, false}, {5, 6, 6, true},
               {0, 1, 1, true},  {0, 0, 0, false}, {-3, 0, 0, true}};  // from a settings file
  for (const auto& each : cases) {
    Board board;
    board.HighestRun = each.highest;
    board.NewHighRun = true;  // of a game that was given up
    board.Deal(StandardDeck());
    for (int card = 0; card < each.run; ++card) board.LengthenRun();
    board.TurnCard();
    EXPECT_EQ(board.HighestRun, each.then) << each.highest << ", " << each.run;
    EXPECT_EQ(board.NewHighRun, each.isNew) << each.highest << ", " << each.run;
  }
}

TEST(SpireholdBoard, TheFirstUpCardIsTheStacksLastAndThenComesNothing) {
  Board board = Dealt();
  for (int turn = 1; turn <= 27; ++turn) {
    board.TurnCard();
    EXPECT_EQ(board.stack.size(), static_cast<size_t>(std::max(0, 24 - turn)));
    EXPECT_EQ(board.pile.back(), turn <= 24 ? StandardDeck()[kCards + turn] : "") << turn;
  }
  EXPECT_EQ(board.pile.size(), 26u);
  EXPECT_EQ(board.UpCardValue(), 0);
  for (int card = 0; card < kCards; ++card) EXPECT_FALSE(board.Take(card)) << card;
}

// Whoever turns all the stack on a stuck board and tries every card takes none; on any other board a card is
// taken.
TEST(SpireholdBoard, OnAStuckBoardAloneNothingIsTaken) {
  Chance chance(7);
  int stuck = 0;
  for (int round = 0; round < 300; ++round) {
    Board board = SpireholdPlayer::Deal(chance);
    for (bool isStuck = false; !SpireholdPlayer::IsOver(board) && !isStuck;) {
      isStuck = board.IsStuck();
      stuck += isStuck;
      bool taken = false;
      Board later = board;
      for (int turn = 0; turn < 26 && !taken; ++turn, later.TurnCard())
        for (int card = 0; card < kCards; ++card) taken = taken || later.Take(card);
      ASSERT_NE(taken, isStuck) << PrintBoard(board);
      SpireholdPlayer::Make(board, SpireholdPlayer::Choose(board, chance));
    }
  }
  EXPECT_GT(stuck, 50);
}

TEST(SpireholdBoard, KeepsTheLaws) { KeepsTheLaws<SpireholdPlayer>(67); }
