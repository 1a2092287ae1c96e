// The rules of Fivestack, as tables.
#include <gtest/gtest.h>

#include "games/fivestack/rules.h"

using namespace modFivestack;

TEST(FivestackRules, TheCardTotalHasItsValue) {
  const struct {
    long long total;
    int row, value;
    bool paid;
  } cases[] = {{-1, 9, 0, false},   {0, 9, 0, false},    {96, 9, 0, false},   {97, 8, 50, true},
               {98, 7, 100, true},  {99, 6, 150, true},  {100, 5, 200, true}, {101, 4, 250, true},
               {102, 3, 300, true}, {103, 2, 400, true}, {104, 1, 500, true}, {105, 0, 1000, true},
               {106, -1, 0, false}, {9999, -1, 0, false}};
  for (const auto& each : cases) {
    EXPECT_EQ(RowOf(each.total), each.row) << each.total;
    EXPECT_EQ(ValueOf(each.total), each.value) << each.total;
    EXPECT_EQ(IsPaid(each.total), each.paid) << each.total;
  }
  for (const TotalRow& row : kTotals) EXPECT_EQ(row.value % 2, 0) << "counted in steps of twice the bonus";
}

TEST(FivestackRules, TheDeckEndsWithItsLastCard) {
  const CardCodes deck = StandardDeck();
  const std::pair<int, int> worths[] = {{1, 1}, {2, 2}, {10, 10}, {11, 10}, {13, 10}, {14, 1}, {52, 10}};
  for (const auto& [position, worth] : worths) EXPECT_EQ(GetCardValue(deck, position), worth) << position;
  for (const long long beyond : {53ll, 32767ll, -1ll}) EXPECT_THROW(CardAt(deck, beyond), RuntimeError);
}

// Draws into one column: what it holds after each card.
TEST(FivestackRules, AcesCountElevenWhileTheyCan) {
  const struct {
    std::vector<const char*> cards;
    std::vector<int> totals;
    int soft;  // at the end
  } cases[] = {{{"9S", "7S", "1S"}, {9, 16, 17}, 0},          {{"1S", "8S", "6S"}, {11, 19, 15}, 0},
               {{"1S", "1H", "9S"}, {11, 12, 21}, 1},         {{"1S", "1H", "1C", "1D"}, {11, 12, 13, 14}, 1},
               {{"10S", "1S", "5S"}, {10, 21, 16}, 0},        {{"11S", "12H", "1S"}, {10, 20, 21}, 0},
               {{"5S", "5H", "1S", "1H"}, {5, 10, 21, 12}, 0}};
  for (const auto& each : cases) {
    Column21 column;
    for (size_t i = 0; i < each.cards.size(); ++i) {
      int worth = FaceWorth(each.cards[i]);
      if (worth == 1) worth = TakeAce(column);
      column.total += worth;
      const bool over = column.total > kTwentyOne;
      EXPECT_EQ(over && BringAceDown(column), over);
      EXPECT_EQ(column.total, each.totals[i]) << each.cards[0] << " card " << i;
    }
    EXPECT_EQ(column.softAces, each.soft) << each.cards[0];
  }
  Column21 hard;
  EXPECT_FALSE(BringAceDown(hard));
}

TEST(FivestackRules, TheTimeBonusFallsFromMaximumToMinimum) {
  const struct {
    int max, min, limit, seconds, bonus;
  } cases[] = {{300, 100, 60, 0, 300},  {300, 100, 60, 1, 297},      {300, 100, 60, 2, 293},
               {300, 100, 60, 3, 290},  {300, 100, 60, 59, 103},     {300, 100, 60, 60, 100},
               {300, 100, 15, 1, 287},  {300, 100, 75, 75, 100},     {2, 1, 45, 45, 1},
               {110, 100, 60, 3, 110},  {110, 100, 60, 9, 108},  // halves go to the even number
               {10000, 1, 75, 75, 1},   {10000, 9999, 15, 1, 10000}, {32767, 32766, 75, 75, 32766},
               {100, 300, 60, 60, 300}, {-100, -300, 60, 30, -200}};
  for (const auto& each : cases)
    EXPECT_EQ(BonusAfter(each.seconds, each.max, each.min, BonusDecay(each.max, each.min, each.limit)),
              each.bonus)
        << each.max << "-" << each.min << " after " << each.seconds;
  for (const int limit : {15, 30, 45, 60, 75})
    for (int min = 1; min < 10000; min += 7)
      ASSERT_EQ(BonusAfter(limit, 10000, min, BonusDecay(10000, min, limit)), min) << limit;
  EXPECT_THROW(BonusDecay(1, 0, 0), RuntimeError);
}
