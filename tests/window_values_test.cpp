// Numbers, texts, lists of files, and chance.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "tests/harness.h"
#include "window/lists.h"
#include "window/number.h"
#include "window/text.h"

namespace {

// What a calculation comes to, or the description of its failure.
template <class Calculation>
std::string Outcome(Calculation calculate) {
  try {
    return std::to_string(static_cast<long long>(calculate()));
  } catch (const RuntimeError& error) {
    return error.what();
  }
}

TEST(Numbers, HoldTheirRangeAndNoMore) {
  EXPECT_EQ(Outcome([] { return Integer(32767); }), "32767");
  EXPECT_EQ(Outcome([] { return Integer(-32768); }), "-32768");
  EXPECT_EQ(Outcome([] { return Integer(32768); }), "Overflow");
  EXPECT_EQ(Outcome([] { return Integer(-32769); }), "Overflow");
  EXPECT_EQ(Outcome([] { return Long(2147483647); }), "2147483647");
  EXPECT_EQ(Outcome([] { return Long(2147483648LL); }), "Overflow");
  EXPECT_EQ(Outcome([] { return Long(INT64_MIN); }), "Overflow");
  EXPECT_EQ(Outcome([] { return Integer(32767) += 1; }), "Overflow");
  EXPECT_EQ(Outcome([] { return Integer(-32768) -= 1; }), "Overflow");
  EXPECT_EQ(Outcome([] { return Long(INT_MAX) += INT64_MAX; }), "Overflow");
  EXPECT_EQ(Outcome([] { return Long(0) -= INT64_MIN; }), "Overflow");
  // What is calculated in between may be larger than what is stored.
  EXPECT_EQ(Outcome([] { return Long(Long(INT_MAX) * Long(2) - Long(INT_MAX)); }), "2147483647");
  Integer kept = 32767;
  EXPECT_EQ(Outcome([&] { return ++kept; }), "Overflow");
  EXPECT_EQ(kept, 32767) << "a failed step must leave the value";
}

TEST(Numbers, RoundAHalfToTheEvenNeighbour) {
  const struct {
    double value;
    const char* rounded;
  } rows[] = {
      {0.5, "0"},           {1.5, "2"},        {2.5, "2"},         {-0.5, "0"},  {-1.5, "-2"},
      {22.5, "22"},         {37.5, "38"},      {32767.4, "32767"}, {-2.5, "-2"}, {32767.5, "Overflow"},
      {-32768.5, "-32768"}, {NAN, "Overflow"}, {1e300, "Overflow"}};
  for (const auto& row : rows)
    EXPECT_EQ(Outcome([&] { return Integer(row.value); }), row.rounded) << row.value;
}

TEST(Texts, ReadTheNumberAtTheirStart) {
  const struct {
    const char* text;
    double value;
  } rows[] = {{"", 0},    {"abc", 0}, {"12", 12},     {"12abc", 12},       {" 12", 12}, {"-3.5x", -3.5},
              {"2D", 2},  {"1e5", 1}, {"5,000", 5},   {".5", 0.5},         {"0x10", 0}, {"inf", 0},
              {"nan", 0}, {"--3", 0}, {"1.2.3", 1.2}, {"5000001", 5000001}};
  for (const auto& row : rows) EXPECT_EQ(Val(row.text), row.value) << row.text;
  EXPECT_EQ(Val(std::string(400, '9')), HUGE_VAL);
  int number = 7;
  for (const char* text : {"", " 1", "1 ", "+1", "1.0", "2147483648", "x"})
    EXPECT_FALSE(ParseLong(text, number));
  EXPECT_TRUE(ParseLong("-2147483648", number));
  EXPECT_EQ(number, INT_MIN);
}

TEST(Texts, ShowNumbersGrouped) {
  const std::pair<long long, const char*> rows[] = {{0, "0"},
                                                    {-1, "-1"},
                                                    {999, "999"},
                                                    {1000, "1,000"},
                                                    {-999, "-999"},
                                                    {-1000, "-1,000"},
                                                    {80000, "80,000"},
                                                    {123456789, "123,456,789"},
                                                    {-100, "-100"},
                                                    {2147483647, "2,147,483,647"},
                                                    {-2147483648LL, "-2,147,483,648"}};
  for (const auto& [value, text] : rows) EXPECT_EQ(FormatNumber(value), text);
}

TEST(FileLists, FitNamesToPatterns) {
  const struct {
    const char *name, *pattern;
    bool fits;
  } rows[] = {{"game.sfl", "*.sfl", true},
              {"game.SFL", "*.sfl", true},
              {"game.txt", "*.sfl", false},
              {"game.txt", "*.sfl;*.txt", true},
              {"a.sfl", "?.sfl", true},
              {"ab.sfl", "?.sfl", false},
              {"anything", "*", true},
              {"aaab", "*a*b", true},
              {"", "*", true},
              {"x", "", false},
              {"mygame.sfl.bak", "*.sfl", false}};
  for (const auto& row : rows)
    EXPECT_EQ(FitsPattern(row.name, row.pattern), row.fits) << row.name << row.pattern;
}

TEST(Chance, IsUniformAndFollowsTheSeed) {
  RandomSource a, b, c;
  a.Seed(5);
  b.Seed(5);
  c.Seed(6);
  bool differs = false;
  for (int i = 0; i < 100; ++i) {
    a.Stir(i);  // does nothing to a seeded one
    const double drawn = a.Next();
    EXPECT_EQ(drawn, b.Next());
    differs |= drawn != c.Next();
  }
  EXPECT_TRUE(differs);
  int counts[10] = {};
  RandomSource stirred;
  for (int i = 0; i < 100000; ++i) {
    stirred.Stir(i / 3);  // a coarse clock
    const double drawn = stirred.Next();
    ASSERT_TRUE(drawn >= 0 && drawn < 1);
    ++counts[static_cast<int>(drawn * 10)];
  }
  for (int count : counts) EXPECT_NEAR(count, 10000, 600);  // six standard deviations
}

TEST(Chance, ForeseenResultsComeInOrderForTheirBoundsAlone) {
  RandomSource random;
  random.Foresee(1, 52, 7);
  random.Foresee(1, 52, 52);
  EXPECT_EQ(random.CountForeseen(1, 52), 2u);
  int result = 0;
  EXPECT_FALSE(random.TakeForeseen(1, 56, result));
  EXPECT_TRUE(random.TakeForeseen(1, 52, result));
  EXPECT_EQ(result, 7);
  EXPECT_TRUE(random.TakeForeseen(1, 52, result));
  EXPECT_EQ(result, 52);
  EXPECT_FALSE(random.TakeForeseen(1, 52, result));
}

}  // namespace
