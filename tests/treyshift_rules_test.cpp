// The rules of Treyshift, as tables.
#include <gtest/gtest.h>

#include <set>

#include "games/treyshift/rules.h"

using namespace modTreyshift;

TEST(TreyshiftRules, TheOrderOfThreeCardsDecides) {
  const struct {
    int top, middle, bottom;
    Worth worth;
  } columns[] = {
      {3, 3, 3, Worth::Trip},      {13, 13, 13, Worth::Trip},   {4, 5, 6, Worth::Run},
      {6, 5, 4, Worth::Run},       {1, 2, 3, Worth::Run},       {3, 2, 1, Worth::Run},
      {11, 12, 13, Worth::Run},    {13, 12, 11, Worth::Run},    {12, 13, 1, Worth::Run},
      {1, 13, 12, Worth::Run},     {13, 1, 2, Worth::Nothing},  {2, 1, 13, Worth::Nothing},
      {13, 12, 1, Worth::Nothing}, {1, 12, 13, Worth::Nothing}, {12, 1, 13, Worth::Nothing},
      {13, 1, 12, Worth::Nothing}, {5, 7, 6, Worth::Nothing},   {6, 5, 7, Worth::Nothing},
      {3, 3, 4, Worth::Nothing},   {3, 4, 4, Worth::Nothing},   {4, 3, 4, Worth::Nothing},
      {2, 4, 6, Worth::Nothing},   {2, 1, 0, Worth::Run},       {1, 2, 0, Worth::Nothing},
      {12, 13, 0, Worth::Nothing},
  };
  for (const auto& each : columns)
    EXPECT_EQ(Judge(each.top, each.middle, each.bottom), each.worth)
        << each.top << ", " << each.middle << ", " << each.bottom;
}

// Counted another way: the runs are the windows of a line that starts and ends with an ace, in both
// directions.
TEST(TreyshiftRules, OfAllColumnsThirteenAreTripsAndTwentyFourAreRuns) {
  std::set<std::array<int, 3>> runs;
  const int line[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 1};
  for (int i = 0; i + 2 < 14; ++i) {
    runs.insert({line[i], line[i + 1], line[i + 2]});
    runs.insert({line[i + 2], line[i + 1], line[i]});
  }
  ASSERT_EQ(runs.size(), 24u);
  for (int top = 1; top <= 13; ++top)
    for (int middle = 1; middle <= 13; ++middle)
      for (int bottom = 1; bottom <= 13; ++bottom) {
        const Worth worth = Judge(top, middle, bottom);
        EXPECT_EQ(worth == Worth::Trip, top == middle && middle == bottom);
        EXPECT_EQ(worth == Worth::Run, runs.contains({top, middle, bottom}))
            << top << ", " << middle << ", " << bottom;
      }
}

TEST(TreyshiftRules, AFlushIsTheSuitLettersAlone) {
  EXPECT_TRUE(OfOneSuit(" 4S", "15S", " 10S"));
  EXPECT_TRUE(OfOneSuit(" 11D", "12D", "13D"));
  EXPECT_FALSE(OfOneSuit("4S", "5S", "6H"));
  EXPECT_FALSE(OfOneSuit("4H", "5S", "6S"));
  EXPECT_FALSE(OfOneSuit("4S", "5H", "6S"));
  EXPECT_FALSE(OfOneSuit("2S", "1S", ""));
}

TEST(TreyshiftRules, TheStackShrinksInStages) {
  const struct {
    int first, last;
    const char* stage;
  } stages[] = {{3, 19, "FULL"}, {20, 35, "HALF"}, {36, 51, "BACK"}, {52, 56, "EMPTY"}};
  for (const auto& each : stages)
    for (int position = each.first; position <= each.last; ++position)
      EXPECT_STREQ(StackStage(position), each.stage) << position;
  EXPECT_EQ(CardsRemaining(kDealt), 52);
  EXPECT_EQ(CardsRemaining(kUsedUp), 0);
  EXPECT_EQ(CardsRemaining(kBeyondDeck), -1);
}
