// The rules of Handgrid: the judge of hands against another one that is written in another way, and tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <vector>

#include "games/handgrid/rules.h"

using namespace modHandgrid;

namespace {

using Codes = std::vector<std::string>;

Hand Judge(const Codes& codes) {
  Line line;
  std::ranges::transform(codes, line.begin(), ReadCard);
  return EvaluateHand(line);
}

// Knows hands by how often their ranks come and by the bits of their ranks, as players do, without an order
// of tests.
std::string OtherJudge(const Codes& codes) {
  std::map<int, int> counts;
  std::set<char> suits;
  unsigned bits = 0;
  int cards = 0;
  for (const std::string& code : codes) {
    if (code.empty()) continue;
    ++cards;
    ++counts[std::stoi(code)];
    suits.insert(code.back());
    bits |= 1u << std::stoi(code);
  }
  std::multiset<int, std::greater<>> shape;
  for (const auto& [rank, count] : counts) shape.insert(count);
  const int most = shape.empty() ? 0 : *shape.begin();
  if (most == 4) return "4 of a kind";
  if (most == 3) return shape.count(2) > 0 ? "Full House" : "3 of a kind";
  if (most == 2) return shape.count(2) == 2 ? "2 Pair" : "1 Pair";
  if (cards < 5) return "Nothing";
  const bool aceHigh = bits == (1u << 1 | 0xFu << 10);
  bool straight = aceHigh;
  for (int lowest = 1; lowest <= 9; ++lowest) straight = straight || bits == 0x1Fu << lowest;
  if (suits.size() == 1) return aceHigh ? "Royal Flush" : straight ? "St. Flush" : "Flush";
  return straight ? "Straight" : "Nothing";
}

std::string Told(const Codes& codes) {
  std::string text;
  for (const std::string& code : codes) text += (code.empty() ? "--" : code) + " ";
  return text;
}

std::string Code(int rank, char suit) { return rank == 0 ? "" : std::to_string(rank) + suit; }

}  // namespace

TEST(HandgridRules, LinesAreCalledByTheirNames) {
  const struct {
    Codes codes;
    const char* name;
  } lines[] = {
      {{"", "", "", "", ""}, "Nothing"},
      {{"7S", "", "", "", ""}, "Nothing"},
      {{"", "7S", "", "", "7D"}, "1 Pair"},
      {{"10S", "", "1S", "", ""}, "Nothing"},  // a ten is no ace
      {{"10S", "1S", "1H", "", ""}, "1 Pair"},
      {{"7S", "8S", "7D", "8D", ""}, "2 Pair"},
      {{"7S", "7C", "7D", "", ""}, "3 of a kind"},
      {{"7S", "7C", "7D", "8S", "8C"}, "Full House"},
      {{"8S", "7C", "8D", "7S", "8C"}, "Full House"},
      {{"7S", "7C", "7D", "7H", ""}, "4 of a kind"},
      {{"7S", "7C", "7D", "7H", "1C"}, "4 of a kind"},
      {{"2S", "5S", "9S", "11S", ""}, "Nothing"},  // four are no flush
      {{"2S", "5S", "9S", "11S", "13S"}, "Flush"},
      {{"2S", "5S", "9S", "11S", "13H"}, "Nothing"},
      {{"1S", "10H", "11S", "12S", "13S"}, "Straight"},
      {{"13S", "1S", "11S", "12S", "10S"}, "Royal Flush"},
      {{"2D", "3D", "4D", "5D", "1D"}, "St. Flush"},
      {{"1D", "2D", "3D", "4D", "5H"}, "Straight"},
      {{"13S", "1S", "2D", "3D", "4D"}, "Nothing"},  // not round the corner
      {{"12S", "13S", "1S", "2S", "3S"}, "Flush"},
      {{"9S", "10S", "11S", "12S", "13S"}, "St. Flush"},
      {{"10S", "11D", "12S", "13S", ""}, "Nothing"},
      {{"", "1D", "2D", "3D", "4D"}, "Nothing"},
  };
  for (const auto& [codes, name] : lines) EXPECT_STREQ(HandName(Judge(codes)), name) << Told(codes);
}

// Each set of ranks with gaps among them, in mixed suits and, where there can be one, in a single suit.
TEST(HandgridRules, EveryKindOfLineIsJudgedAlike) {
  std::mt19937 chance(5);
  const char suits[] = "SHCD";
  std::map<std::string, int> met;
  int ranks[5];
  for (ranks[0] = 0; ranks[0] <= 13; ++ranks[0])
    for (ranks[1] = ranks[0]; ranks[1] <= 13; ++ranks[1])
      for (ranks[2] = ranks[1]; ranks[2] <= 13; ++ranks[2])
        for (ranks[3] = ranks[2]; ranks[3] <= 13; ++ranks[3])
          for (ranks[4] = ranks[3]; ranks[4] <= 13; ++ranks[4]) {
            if (ranks[0] > 0 && ranks[0] == ranks[4]) continue;  // no five of a rank
            Codes mixed(5), single(5);
            bool flush = ranks[0] > 0;
            for (int i = 0; i < 5; ++i) {
              mixed[i] = Code(ranks[i], suits[i % 4]);
              single[i] = Code(ranks[i], 'C');
              flush = flush && (i == 0 || ranks[i] != ranks[i - 1]);
            }
            for (Codes* codes : {&mixed, &single}) {
              if (codes == &single && !flush) continue;
              std::ranges::shuffle(*codes, chance);
              const std::string name = OtherJudge(*codes);
              ASSERT_EQ(HandName(Judge(*codes)), name) << Told(*codes);
              ++met[name];
            }
          }
  const std::map<std::string, int> all{
      {"Royal Flush", 1}, {"St. Flush", 9}, {"Straight", 10}, {"Flush", 1287 - 10}};
  for (const auto& [name, count] : all) EXPECT_EQ(met[name], count) << name;
  EXPECT_EQ(met.size(), 10u);
}

TEST(HandgridRules, RandomLinesAreJudgedAlike) {
  std::mt19937 chance(7);
  Codes deck;
  for (char suit : {'S', 'H', 'C', 'D'})
    for (int rank = 1; rank <= 13; ++rank) deck.push_back(Code(rank, suit));
  for (int n = 0; n < 100000; ++n) {
    for (int i = 0; i < 5; ++i) std::swap(deck[i], deck[i + chance() % (deck.size() - i)]);
    Codes codes(deck.begin(), deck.begin() + 5);
    if (n % 3 == 0) codes[chance() % 5].clear();
    if (n % 9 == 0) codes[chance() % 5].clear();
    ASSERT_EQ(HandName(Judge(codes)), OtherJudge(codes)) << Told(codes);
  }
}

TEST(HandgridRules, EachHandHasItsPrice) {
  const struct {
    Hand hand;
    const char* name;
    int points;
  } prices[] = {{Hand::Nothing, "Nothing", 0},           {Hand::OnePair, "1 Pair", 50},
                {Hand::TwoPair, "2 Pair", 70},           {Hand::Trips, "3 of a kind", 80},
                {Hand::Straight, "Straight", 90},        {Hand::Flush, "Flush", 100},
                {Hand::FullHouse, "Full House", 200},    {Hand::Four, "4 of a kind", 300},
                {Hand::StraightFlush, "St. Flush", 400}, {Hand::RoyalFlush, "Royal Flush", 500}};
  const HandScores scores;
  for (const auto& [hand, name, points] : prices) {
    EXPECT_STREQ(HandName(hand), name);
    EXPECT_EQ(scores.Of(hand), points) << name;
  }
}

TEST(HandgridRules, RowsAreReadAndColumnsAfterATurn) {
  Grid grid;
  grid[0] = " 9S";
  grid[20] = " 9D";  // the first column's last card
  grid[7] = grid[8] = grid[9] = "4C";
  EXPECT_EQ(EvaluateLines(grid), (LineHands{Hand::Nothing, Hand::Trips}));
  Grid turned = grid;
  TransposeCards(turned);
  for (int row = 0; row < 5; ++row)
    for (int column = 0; column < 5; ++column) EXPECT_EQ(turned[column * 5 + row], grid[row * 5 + column]);
  EXPECT_EQ(EvaluateLines(turned), (LineHands{Hand::OnePair}));
}

TEST(HandgridRules, TheStackShrinksInStages) {
  for (int left = -30; left <= 52; ++left)
    EXPECT_STREQ(StackStage(left), left > 25 ? "FULL" : left > 12 ? "HALF" : left >= 1 ? "BACK" : "EMPTY");
  Slots slots;
  slots(0) = slots(52) = "1S";
  for (int slot : {-1, 53}) EXPECT_THROW(slots(slot), RuntimeError) << slot;
}
