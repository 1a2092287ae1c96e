// Boards of Fivestack, without a window.
#include <gtest/gtest.h>

#include "tests/board_laws.h"
#include "tests/fivestack_board_player.h"

using namespace modFivestack;

namespace {

// A board on which these cards come next, from the first that is seen.
Board BoardWith(const std::vector<std::string>& cards, int passes = 1) {
  Board board;
  board.Clear(passes);
  CardCodes deck{"", "13D"};
  deck.insert(deck.end(), cards.begin(), cards.end());
  board.Deal(deck);
  return board;
}

// Moves, a letter each: a column, or "p" for a pass. What came of them: "-" stays, "o" an ace came down, "X"
// is a bust, "." was refused, "!" raised an error.
std::string Play(Board& board, const std::string& moves) {
  std::string told;
  for (const char move : moves) try {
      if (move == 'p') {
        told += board.Pass() ? '-' : '.';
        continue;
      }
      const Laid laid = board.Lay(move - '0');
      told += laid == Laid::Refused            ? '.'
              : laid == Laid::Stays            ? '-'
              : board.CheckForBust(move - '0') ? 'X'
                                               : 'o';
    } catch (const RuntimeError&) {
      told += '!';
    }
  return told;
}

// "17 0 0 21s 4": the totals, "s" for a soft one, "c" for a column that takes no card.
std::string Columns(const Board& board) {
  std::string all;
  for (int i = 0; i < kColumns; ++i)
    all += (i ? " " : "") + std::to_string(board.columns[i].total) +
           (board.columns[i].softAces > 0 ? "s" : "") + (board.Takes(i) ? "" : "c");
  return all;
}

}  // namespace

TEST(FivestackBoard, TheCardTotalHasItsValue) {
  const struct {
    long long total;
    int row, value;
  } cases[] = {{-1, 9, 0},    {0, 9, 0},      {96, 9, 0},    {97, 8, 50},   {98, 7, 100},
               {99, 6, 150},  {100, 5, 200},  {101, 4, 250}, {102, 3, 300}, {103, 2, 400},
               {104, 1, 500}, {105, 0, 1000}, {106, -1, 0},  {9999, -1, 0}};
  for (const auto& each : cases) {
    EXPECT_EQ(RowOf(each.total), each.row) << each.total;
    EXPECT_EQ(ValueOf(each.total), each.value) << each.total;
  }
  for (const int value : kValues) EXPECT_EQ(value % 2, 0) << "counted in steps of twice the bonus";
}

// The first card that is named is the first that is seen.
TEST(FivestackBoard, CardsAreLaid) {
  const struct {
    std::vector<std::string> cards;
    const char *moves, *told, *columns, *next;
    int total;
  } cases[] = {
      {{"9S", "7S", "1S", "2S"}, "000", "---", "17 0 0 0 0", "2S", 17},
      {{"11S", "12H", "1S", "2S"}, "000", "---", "21 0 0 0 0", "2S", 21},
      {{"1S", "8S", "6S", "2S", "3S"}, "111", "--o", "0 15 0 0 0", "3S", 15},  // the two is skipped
      {{"1S", "1H", "9S", "2S", "3S", "4S"}, "2222", "---o", "0 0 13 0 0", "4S", 13},
      {{"1S", "1H", "1C", "1D", "3S"}, "2222", "----", "0 0 14s 0 0", "3S", 14},
      {{"5S", "5H", "1S", "1H", "2S", "3S"}, "0000", "---o", "12 0 0 0 0", "3S", 12},
      // A fifth card closes a column, whatever it makes.
      {{"2S", "2H", "2C", "2D", "3S", "4S", "5S"}, "3333333", "-----..", "0 0 0 11c 0", "4S", 11},
      {{"1S", "2S", "3S", "4S", "9S", "5S", "6S"}, "44444", "----o", "0 0 0 0 19c", "6S", 19},
      // 21 is no shield. Nothing more is laid after a bust.
      {{"10S", "11S", "1S", "2S", "3S"}, "00001", "---X.", "23c 0c 0c 0c 0c", "3S", kBustTotal},
      {{"10S", "11S", "12S", "3S"}, "220p", "---.", "10 0 20 0 0", "3S", 30},
  };
  for (const auto& each : cases) {
    Board board = BoardWith(each.cards, 0);
    EXPECT_EQ(board.Next(), each.cards[0]);
    EXPECT_EQ(Play(board, each.moves), each.told) << each.cards[0] << each.moves;
    EXPECT_EQ(Columns(board), each.columns) << each.cards[0] << each.moves;
    EXPECT_EQ(board.Next(), each.next) << each.moves;
    EXPECT_EQ(board.cardTotal, each.total) << each.moves;
  }
}

TEST(FivestackBoard, PassesAndSkippedCardsAreKeptApart) {
  Board board = BoardWith({"1S", "8S", "3S", "6S", "2S", "4S", "5S"}, 2);
  EXPECT_EQ(Play(board, "00p0pp"), "---o-.");
  EXPECT_EQ(board.passed, (std::vector<std::string>{"3S", "4S"}));
  EXPECT_EQ(board.skipped, (std::vector<std::string>{"2S"}));
  EXPECT_EQ(board.passesLeft, 0);
  board.Clear(3);
  EXPECT_EQ(board.Next(), "5S") << "the deck is still there";
  EXPECT_EQ(board.passesLeft, 3);
  EXPECT_TRUE(board.passed.empty() && board.skipped.empty());
}

// The total stands as it was last summed up where the cards run out.
TEST(FivestackBoard, TheDeckEndsWithItsLastCard) {
  Board board = BoardWith({"1S", "8S", "6S"}, 9);
  EXPECT_EQ(Play(board, "000"), "--!") << "no card is left for the ace to cost";
  EXPECT_EQ(board.cardTotal, 19);
  EXPECT_EQ(board.columns[0].softAces, 1);
  board = BoardWith({"1S", "8S", "6S", "2S"}, 9);
  EXPECT_EQ(Play(board, "000"), "--!") << "nor one to show behind it";
  EXPECT_EQ(board.cardTotal, 19);
  board = BoardWith({"9S"}, 9);
  EXPECT_EQ(Play(board, "0"), "-");
  EXPECT_EQ(board.cardTotal, 9);
  EXPECT_THROW(board.Next(), RuntimeError);
  EXPECT_THROW(Board().Next(), RuntimeError);
}

TEST(FivestackBoard, TheTimeBonusFallsFromMaximumToMinimum) {
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

TEST(FivestackBoard, KeepsItsCards) { KeepsTheLaws<FivestackBoardPlayer>(5); }
