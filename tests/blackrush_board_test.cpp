// Boards of Blackrush, without a window.
#include <gtest/gtest.h>

#include "tests/blackrush_board_player.h"
#include "tests/board_laws.h"

using namespace modBlackrush;

namespace {

Board BoardWith(const std::vector<std::string>& cards, long long passes = 3) {
  Board board;
  CardCodes deck{""};
  deck.insert(deck.end(), cards.begin(), cards.end());
  deck.resize(53, "2D");
  board.Deal(deck);
  board.GrantPasses(passes);
  return board;
}

// Moves, a letter each: a column, or "p" for a pass. What came of them: "-" stays, "o" after an ace came
// down, "T" a 21, "G" a Five Card Gimme, "X" a bust, "." a pass that was refused.
std::string Play(Board& board, const std::string& moves, long long step = 1000) {
  std::string told;
  for (const char move : moves) {
    if (move == 'p') {
      told += board.Pass() ? '-' : '.';
      continue;
    }
    const int column = move - '0', asked = board.GetHitTotal(column);
    int total = asked;
    if (board.CheckForBust(column, total)) {
      told += 'X';
      continue;
    }
    const Laid laid = board.LayCard(column, total);
    told += laid == Laid::TwentyOne ? 'T' : laid == Laid::FiveCardGimme ? 'G' : total < asked ? 'o' : '-';
    if (laid == Laid::TwentyOne) board.ClearTwentyOne(column, step);
    board.TurnNextCard();
  }
  return told;
}

// "17/2 0/0 ...": totals and cards, "s" and "S" for a word that is hidden and shown, "+" for a soft ace.
std::string Columns(const Board& board) {
  std::string all;
  for (int i = 0; i < kColumns; ++i) {
    const Column21& column = board.columns[i];
    all += (i ? " " : "") + std::to_string(column.total) + "/" + std::to_string(column.cards.size()) +
           (board.words[i] == Word::None     ? ""
            : board.words[i] == Word::Hidden ? "s"
                                             : "S") +
           std::string(static_cast<size_t>(column.softAces), '+');
  }
  return all;
}

}  // namespace

// What lies on one column, with the aces that another column left there.
TEST(BlackrushBoard, WhatAHitWouldTotal) {
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
    Column21 column{each.total, each.softAces, {}};
    EXPECT_EQ(column.TotalWith(each.card), each.hit) << each.total << " + " << each.card;
    EXPECT_EQ(column.softAces, each.softAces) << "only a card that comes is counted";
    EXPECT_EQ(column.GetHitTotal(each.card), each.hit) << each.total << " + " << each.card;
    EXPECT_EQ(column.softAces, each.softAfter) << each.total << " + " << each.card;
    EXPECT_EQ(column.total, each.total) << "only laying a card changes the total";
  }
}

TEST(BlackrushBoard, CardsAreLaid) {
  const std::string none = "0/0 0/0 0/0 0/0";
  const struct {
    std::vector<std::string> cards;
    std::string moves, told, columns;
    int used, twentyOnes = 0, bonus = 0;
  } cases[] = {
      {{"9S", "13D", "2C"}, "001", "---", "19/2 2/1 0/0 0/0", 3},
      {{"10S", "1S"}, "22", "-T", "0/0 0/0 0/0s 0/0", 2, 1, 1000},
      {{"1S", "1H"}, "00", "--", "12/2S+ 0/0 0/0 0/0", 2},
      {{"1S", "6H", "9D", "5C"}, "0000", "--oT", none, 4, 1, 1000},
      // A bust lays nothing, and uses no card.
      {{"13S", "6H", "9D"}, "00003", "--XX-", "16/2 0/0 0/0 9/1", 3},
      {{"2S", "2H", "2C", "2D", "3D"}, "33333", "----G", none, 5},
      {{"2S", "3H", "4C", "5D", "7D"}, "00000", "----T", none, 5, 1, 1000},
      {{"1S", "2S", "3H", "4C", "9D"}, "00000", "----G", none, 5},
      {{"10S", "1S", "10H", "1H", "10C", "1C"}, "001122", "-T-T-T", "0/0s 0/0s 0/0s 0/0", 6, 3, 3000},
      // An ace that a Gimme leaves behind saves that column once, and 10 points are taken off.
      {{"1S", "1H", "1C", "2D", "3D"}, "11111", "----G", "0/0 0/0+ 0/0 0/0", 5},
      {{"1S", "1H", "1C", "2D", "3D", "13S", "7S", "9S", "8S"},
       "111111111",
       "----G--oX",
       "0/0 16/3 0/0 0/0",
       8},
      // Beside a new ace it may come down first, and then the word stays; a 21 clears both away.
      {{"1S", "1H", "1C", "2D", "3D", "1D", "9S", "5S"}, "11111111", "----G--o", "0/0 15/3S+ 0/0 0/0", 8},
      {{"1S", "1H", "1C", "2D", "3D", "1D", "9S", "5S", "6S"},
       "111111111",
       "----G--oT",
       "0/0 0/0s 0/0 0/0",
       9,
       1,
       1000},
  };
  for (const auto& each : cases) {
    Board board = BoardWith(each.cards);
    EXPECT_EQ(Play(board, each.moves), each.told) << each.moves;
    EXPECT_EQ(Columns(board), each.columns) << each.told;
    EXPECT_EQ(board.CardsUsed(), each.used) << each.told;
    EXPECT_EQ(board.twentyOnes, each.twentyOnes) << each.told;
    EXPECT_EQ(board.bonus, each.bonus) << each.told;
  }
}

TEST(BlackrushBoard, WhatOutlivesARound) {
  Board board = BoardWith({"1S", "1H", "1C", "2D", "3D", "10S", "1D", "9S", "1S"});
  EXPECT_EQ(Play(board, "111112233"), "----G-T--");
  EXPECT_EQ(Columns(board), "0/0 0/0+ 0/0s 20/2S+");
  board.WordsAreShownAgain();
  EXPECT_EQ(Columns(board), "0/0 0/0+ 0/0S 20/2S+");
  board.Clear();
  EXPECT_EQ(Columns(board), "0/0 0/0+ 0/0 0/0+");
  EXPECT_EQ(board.twentyOnes, 1) << "they are forgotten when they are paid";
  EXPECT_EQ(board.bonus + board.position, 0);
  board.ForgetTwentyOnes();
  EXPECT_EQ(board.twentyOnes, 0);
}

// Passes that were granted, moves, whether one more is allowed, and when the controls are back.
TEST(BlackrushBoard, CardsArePassed) {
  const struct {
    int granted;
    std::string moves, told;
    int left;
    bool mayPass, whenBack;
  } cases[] = {
      {0, "p", ".", 0, false, false},
      {3, "pp", "--", 1, true, true},
      {3, "pppp", "---.", 0, false, false},
      // Below 0 nobody looks at first.
      {-2, "ppp", "---", -5, true, false},
      // The last card can't be passed, though it can be laid.
      {60, std::string(52, 'p'), std::string(51, '-') + ".", 9, false, false},
  };
  for (const auto& each : cases) {
    Board board = BoardWith({}, each.granted);
    EXPECT_EQ(Play(board, each.moves), each.told) << each.granted;
    EXPECT_EQ(board.passesLeft, each.left) << each.granted;
    EXPECT_EQ(board.mayPass, each.mayPass) << each.granted;
    board.ControlsAreBack();
    EXPECT_EQ(board.mayPass, each.whenBack) << each.granted;
  }
  Board board = BoardWith({}, 60);
  Play(board, std::string(51, 'p'));
  EXPECT_TRUE(board.HasNext());
  EXPECT_EQ(Play(board, "0p"), "-.");
  EXPECT_FALSE(board.HasNext());
  EXPECT_EQ(board.CardsUsed(), 52);
}

TEST(BlackrushBoard, TwentyOnesPayTheirNumberTimesTheBonus) {
  Board board;
  const std::array<long long, 3> pays[] = {{3, 3000, 9000}, {2, -5, -10}, {0, 1000, 0}};
  for (const auto& [number, bonus, pay] : pays) {
    board.twentyOnes = number;
    board.bonus = bonus;
    EXPECT_EQ(board.TwentyOnesPay(), pay);
  }
  board.twentyOnes = 2;
  board.bonus = 2147483647;
  EXPECT_THROW(board.TwentyOnesPay(), RuntimeError);
}

TEST(BlackrushBoard, TheCounterTakesTheBonusBack) {
  Board board = BoardWith({"10S", "1S", "10H", "1H"});
  Play(board, "0011");
  for (int time = 0; time < 2; ++time) {  // the second time to the same value
    for (int step = 1; step <= kCounterEnd; ++step) EXPECT_TRUE(board.StepCounter(1000)) << step;
    EXPECT_EQ(board.bonus, time == 0 ? 2000 : 1000);
    EXPECT_FALSE(board.StepCounter(1000));
    EXPECT_EQ(board.bonus, 1000);
    EXPECT_EQ(board.counter, 0);
  }
}

// A bonus that doesn't fit leaves the 21 counted, its cards and its ace where they are, and no card used.
TEST(BlackrushBoard, AnOverflowStopsInTheMiddle) {
  Board board = BoardWith({"10S", "1S", "10H", "1H"});
  EXPECT_EQ(Play(board, "00", 2147483647), "-T");
  EXPECT_EQ(Play(board, "1"), "-");
  EXPECT_THROW(Play(board, "1"), RuntimeError);
  EXPECT_EQ(Columns(board), "0/0s 10/2S+ 0/0 0/0");
  EXPECT_EQ(board.twentyOnes, 2);
  EXPECT_EQ(board.bonus, 2147483647);
  EXPECT_EQ(board.CardsUsed(), 3);
  board = BoardWith({}, -32768);
  EXPECT_THROW(board.Pass(), RuntimeError);
  EXPECT_EQ(board.CardsUsed(), 0);
}

TEST(BlackrushBoard, KeepsItsCards) { KeepsTheLaws<BlackrushBoardPlayer>(21); }
