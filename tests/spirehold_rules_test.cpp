// The rules of Spirehold, as tables.
#include <gtest/gtest.h>

#include <cstdlib>

#include "games/spirehold/rules.h"

using namespace modSpirehold;

TEST(SpireholdRules, NeighboursOnTheRingOfRanksAreLegal) {
  for (int rank = 1; rank <= 13; ++rank)
    for (int up = 1; up <= 13; ++up) {
      const int apart = std::abs(rank - up);
      EXPECT_EQ(IsNeighbour(rank, up), apart == 1 || apart == 12) << rank << " on " << up;
    }
  for (int rank = 1; rank <= 13; ++rank)
    for (int none : {0, kNoRank, -1}) EXPECT_FALSE(IsNeighbour(rank, none)) << rank << " on " << none;
  for (int up : {0, 1, 13, kNoRank}) EXPECT_FALSE(IsNeighbour(0, up)) << up;
}

TEST(SpireholdRules, ACardIsCoveredByTheTwoBelowIt) {
  for (int card = 0; card < kCovered; ++card) {
    const Pair pair = kCoveredBy[card];
    EXPECT_EQ(pair.right, pair.left + 1);
    for (int below : {pair.left, pair.right}) {
      EXPECT_GT(kTable[below].top, kTable[card].top) << card;
      EXPECT_LT(kTable[below].top - kTable[card].top, kCardHeight) << card;
    }
    EXPECT_EQ(kTable[pair.left].halves, kTable[card].halves - 1) << card;
    EXPECT_EQ(kTable[pair.right].halves, kTable[card].halves + 1) << card;
  }
  const struct {
    int card, left, right;
  } some[] = {{0, 3, 4},   {1, 5, 6},   {2, 7, 8},    {4, 10, 11},  {5, 12, 13},
              {8, 16, 17}, {9, 18, 19}, {11, 20, 21}, {12, 21, 22}, {17, 26, 27}};
  for (const auto& each : some) {
    EXPECT_EQ(kCoveredBy[each.card].left, each.left);
    EXPECT_EQ(kCoveredBy[each.card].right, each.right);
  }
  // The gaps between the towers.
  for (const Pair& pair : kCoveredBy) {
    EXPECT_FALSE(pair.left == 11 && pair.right == 12);
    EXPECT_FALSE(pair.left == 14 && pair.right == 15);
  }
}

TEST(SpireholdRules, TheStackShrinksInStages) {
  const struct {
    int first, last;
    const char* stage;
  } stages[] = {{28, 34, "FULL"}, {35, 41, "HALF"}, {42, 51, "BACK"}, {52, 52, "EMPTY"}};
  for (const auto& each : stages)
    for (int index = each.first; index <= each.last; ++index) EXPECT_STREQ(StackStage(index), each.stage);
  for (int index : {0, 27, 53, 32767}) EXPECT_EQ(StackStage(index), nullptr) << index;
}

TEST(SpireholdRules, ARunIsWorthMoreWithEachCard) {
  long long value = 0, total = 0;
  for (int card = 1; card <= 6; ++card) {
    EXPECT_EQ(NextCardWorth(card - 1, 100), card * 100);
    value = NextRunValue(value, 100);
    total += value;
  }
  EXPECT_EQ(total, 2100);
  EXPECT_EQ(NextRunValue(32667, 100), 32767);
  EXPECT_THROW(NextRunValue(32668, 100), RuntimeError);
  EXPECT_EQ(NextCardWorth(1, 32767), 65534);
}
