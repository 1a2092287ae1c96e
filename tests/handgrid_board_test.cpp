// The board of Handgrid: the judge of hands against another one that is written in another way, and tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <vector>

#include "tests/board_laws.h"
#include "tests/handgrid_board_player.h"

using namespace modHandgrid;

namespace {

using Codes = std::vector<std::string>;

Hand Judge(const Codes& codes) {
  Line line;
  std::ranges::copy(codes, line.begin());
  return EvaluateHand(line);
}

// Knows hands by how often their ranks come and by the bits of their ranks, as players do, without an order
// of tests.
Hand OtherJudge(const Codes& codes) {
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
  if (most == 4) return Hand::Four;
  if (most == 3) return shape.count(2) > 0 ? Hand::FullHouse : Hand::Trips;
  if (most == 2) return shape.count(2) == 2 ? Hand::TwoPair : Hand::OnePair;
  if (cards < 5) return Hand::Nothing;
  const bool aceHigh = bits == (1u << 1 | 0xFu << 10);
  bool straight = aceHigh;
  for (int lowest = 1; lowest <= 9; ++lowest) straight = straight || bits == 0x1Fu << lowest;
  if (suits.size() == 1) return aceHigh ? Hand::RoyalFlush : straight ? Hand::StraightFlush : Hand::Flush;
  return straight ? Hand::Straight : Hand::Nothing;
}

std::string Told(const Codes& codes) {
  std::string text;
  for (const std::string& code : codes) text += (code.empty() ? "--" : code) + " ";
  return text;
}

std::string Code(int rank, char suit) { return rank == 0 ? "" : std::to_string(rank) + suit; }

}  // namespace

TEST(HandgridBoard, LinesAreHands) {
  const struct {
    Codes codes;
    Hand hand;
  } lines[] = {
      {{"", "", "", "", ""}, Hand::Nothing},
      {{"7S", "", "", "", ""}, Hand::Nothing},
      {{"", "7S", "", "", "7D"}, Hand::OnePair},
      {{"10S", "", "1S", "", ""}, Hand::Nothing},  // a ten is no ace
      {{"10S", "1S", "1H", "", ""}, Hand::OnePair},
      {{"7S", "8S", "7D", "8D", ""}, Hand::TwoPair},
      {{"7S", "7C", "7D", "", ""}, Hand::Trips},
      {{"7S", "7C", "7D", "8S", "8C"}, Hand::FullHouse},
      {{"8S", "7C", "8D", "7S", "8C"}, Hand::FullHouse},
      {{"7S", "7C", "7D", "7H", ""}, Hand::Four},
      {{"7S", "7C", "7D", "7H", "1C"}, Hand::Four},
      {{"2S", "5S", "9S", "11S", ""}, Hand::Nothing},  // four are no flush
      {{"2S", "5S", "9S", "11S", "13S"}, Hand::Flush},
      {{"2S", "5S", "9S", "11S", "13H"}, Hand::Nothing},
      {{"1S", "10H", "11S", "12S", "13S"}, Hand::Straight},
      {{"13S", "1S", "11S", "12S", "10S"}, Hand::RoyalFlush},
      {{"2D", "3D", "4D", "5D", "1D"}, Hand::StraightFlush},
      {{"1D", "2D", "3D", "4D", "5H"}, Hand::Straight},
      {{"13S", "1S", "2D", "3D", "4D"}, Hand::Nothing},  // not round the corner
      {{"12S", "13S", "1S", "2S", "3S"}, Hand::Flush},
      {{"9S", "10S", "11S", "12S", "13S"}, Hand::StraightFlush},
      {{"10S", "11D", "12S", "13S", ""}, Hand::Nothing},
      {{"", "1D", "2D", "3D", "4D"}, Hand::Nothing},
  };
  for (const auto& [codes, hand] : lines) EXPECT_EQ(Judge(codes), hand) << Told(codes);
}

// Each set of ranks with gaps among them, in mixed suits and, where there can be one, in a single suit.
TEST(HandgridBoard, EveryKindOfLineIsJudgedAlike) {
  std::mt19937 chance(5);
  const char suits[] = "SHCD";
  std::map<Hand, int> met;
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
              const Hand hand = OtherJudge(*codes);
              ASSERT_EQ(Judge(*codes), hand) << Told(*codes);
              ++met[hand];
            }
          }
  const std::map<Hand, int> all{
      {Hand::RoyalFlush, 1}, {Hand::StraightFlush, 9}, {Hand::Straight, 10}, {Hand::Flush, 1287 - 10}};
  for (const auto& [hand, count] : all) EXPECT_EQ(met[hand], count);
  EXPECT_EQ(met.size(), 10u);
}

TEST(HandgridBoard, ACardCountsInItsRowAndItsColumn) {
  Board board;
  board.Deal(StandardDeck(), 1);
  EXPECT_EQ(board.stack.size(), 52u);
  EXPECT_FALSE(board.Takes(7)) << "no card is drawn yet";
  const auto lay = [&](int cell) {
    board.Draw();
    EXPECT_TRUE(board.Takes(cell));
    board.Overwrite(cell);
    board.Lay(cell);
  };
  for (const int cell : {0, 6, 12}) lay(cell);  // the ace, two and three of spades
  EXPECT_EQ(board.cells[12], " 3S");
  EXPECT_EQ(board.hands, (std::array<Hand, kLines>{}));
  for (int i = 0; i < 10; ++i) board.Draw();
  lay(4);  // the ace of hearts, in the first row and the last column
  EXPECT_EQ(board.hands[0], Hand::OnePair);
  lay(9);
  lay(4);  // the three of hearts takes the pair away
  EXPECT_EQ(board.hands, (std::array<Hand, kLines>{Hand::Nothing, Hand::OnePair}));
  EXPECT_EQ(board.covered, Codes{" 1H"});
  EXPECT_EQ(board.OverWritesLeft(), 0);
  board.Draw();
  EXPECT_TRUE(board.Takes(5) && !board.Takes(4));
  const Board before = board;
  board.EvaluateLines();
  EXPECT_EQ(board, before);
}

// Only more overwrites than a dialog allows use the deck up.
TEST(HandgridBoard, AnEmptyHoleTakesACardAwayOnce) {
  Board board;
  board.Deal(StandardDeck(), 100);
  for (int card = 0; card < 52; ++card) {
    ASSERT_TRUE(board.Draw());
    board.Overwrite(card % 20);
    board.Lay(card % 20);
  }
  EXPECT_FALSE(board.Draw());
  EXPECT_EQ(board.overWritesUsed, 32);
  EXPECT_FALSE(board.Takes(24)) << "there is nothing to lay";
  ASSERT_TRUE(board.Takes(3));
  board.Lay(3);
  EXPECT_EQ(board.cells[3], "");
  EXPECT_EQ(board.holeCount, -1);
  ASSERT_TRUE(board.Takes(4));
  EXPECT_THROW(board.Lay(4), RuntimeError);
  EXPECT_NE(board.cells[4], "");
}

TEST(HandgridBoard, KeepsTheLaws) { KeepsTheLaws<HandgridPlayer>(17); }

// What is named anew after a card is what all lines are.
TEST(HandgridBoard, HandsFollowTheCards) {
  Chance chance(9);
  for (int round = 0; round < 300; ++round) {
    auto board = HandgridPlayer::Deal(chance);
    while (!HandgridPlayer::IsOver(board)) {
      HandgridPlayer::Make(board, HandgridPlayer::Choose(board, chance));
      for (int line = 0; line < kLines; ++line) {
        Codes codes;
        for (int i = 0; i < kSide; ++i)
          codes.push_back(board.cells[line < kSide ? line * kSide + i : i * kSide + line - kSide]);
        ASSERT_EQ(board.hands[line], OtherJudge(codes)) << line << ": " << PrintBoard(board);
      }
    }
  }
}
