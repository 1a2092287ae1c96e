// The rules of Blackrush, without a window.
#include <gtest/gtest.h>

#include "games/blackrush/rules.h"

using namespace modBlackrush;

TEST(BlackrushRules, WhatAHitWouldTotal) {
  const struct {
    int total, softAces;
    const char* card;
    int hit, softAfter;
  } hits[] = {
      {0, 0, " 7S", 7, 0},   {9, 0, "10H", 19, 0}, {15, 0, "13D", 25, 0}, {11, 0, " 11C", 21, 0},
      {0, 0, "1S", 11, 1},   {10, 0, "1H", 21, 1}, {11, 0, "1C", 12, 0},  {20, 0, "1D", 21, 0},
      {11, 1, " 1D", 12, 1},  // a second ace in a soft column is hard
      {5, 1, "1D", 16, 2},    // left over from a column that is gone
      {17, 1, "9S", 26, 1},
  };
  for (const auto& each : hits) {
    Column21 column{each.total, each.softAces, 1};
    EXPECT_EQ(GetHitTotal(column, each.card), each.hit) << each.total << " + " << each.card;
    EXPECT_EQ(column.softAces, each.softAfter) << each.total << " + " << each.card;
    EXPECT_EQ(column.total, each.total) << "only laying a card changes the total";
  }
}

TEST(BlackrushRules, AnAceComesDownOnce) {
  const struct {
    int total, softAces;
    bool saved;
    int after, softAfter;
  } columns[] = {{17, 1, true, 7, 0}, {17, 0, false, 17, 0}, {18, 2, true, 18, 1}};
  for (const auto& each : columns) {
    Column21 column{each.total, each.softAces, 2};
    EXPECT_EQ(BringAceDown(column), each.saved);
    EXPECT_EQ(column.total, each.after);
    EXPECT_EQ(column.softAces, each.softAfter);
  }
}

TEST(BlackrushRules, WhatBecomesOfAColumn) {
  const struct {
    int total, cards;
    Laid laid;
  } columns[] = {{20, 2, Laid::Stays},         {21, 2, Laid::TwentyOne},    {21, 5, Laid::TwentyOne},
                 {20, 5, Laid::FiveCardGimme}, {6, 5, Laid::FiveCardGimme}, {14, 4, Laid::Stays}};
  for (const auto& each : columns) EXPECT_EQ(Judge(each.total, each.cards), each.laid) << each.total;
}

TEST(BlackrushRules, ThePileShrinks) {
  const std::pair<int, const char*> stages[] = {{0, "FULL"},  {16, "FULL"}, {17, "HALF"},  {34, "HALF"},
                                                {35, "BACK"}, {51, "BACK"}, {52, "EMPTY"}, {53, "EMPTY"}};
  for (const auto& [position, key] : stages) EXPECT_STREQ(PileStage(position), key) << position;
}

TEST(BlackrushRules, TwentyOnesPayTheirNumberTimesTheBonus) {
  EXPECT_EQ(TwentyOnesPay(3, 3000), 9000);
  EXPECT_EQ(TwentyOnesPay(2, -5), -10);
  EXPECT_THROW(TwentyOnesPay(2, 2147483647), RuntimeError);
}
