// The board of Duopick: what may be taken with what, what a turned card does, when nothing goes any more.
#include <cstdlib>
#include <set>

#include "tests/board_laws.h"
#include "tests/duopick_board_player.h"

using namespace modDuopick;

namespace {

// The deck in its order: the field holds the spades and the hearts up to the ten, the up card is " 11H".
Board Dealt() {
  Board board;
  board.Deal(StandardDeck());
  return board;
}

// A board of which only the named parts hold cards; the lowest row, from place 18, is free.
Board With(const std::vector<std::string>& row, const std::vector<std::string>& waste,
           const std::vector<std::string>& stack = {}) {
  Board board;
  std::copy(row.begin(), row.end(), board.field.begin() + 18);
  board.waste = waste;
  board.stack = stack;
  return board;
}

}  // namespace

TEST(DuopickBoard, PairsAndRunsOnTheRingOfRanks) {
  for (int first = 1; first <= 13; ++first)
    for (int second = 1; second <= 13; ++second) {
      const int apart = std::abs(first - second);
      const Match match = apart == 0 ? Match::Pair : apart == 1 || apart == 12 ? Match::Run : Match::None;
      EXPECT_EQ(MatchOf(first, second), match) << first << ", " << second;
    }
  // An up card of no rank makes a run with an ace, if it comes first.
  EXPECT_EQ(MatchOf(0, 1), Match::Run);
  for (const auto& [first, second] : {std::pair{1, 0}, {0, 2}, {13, 0}, {0, 13}, {13, 14}})
    EXPECT_EQ(MatchOf(first, second), Match::None) << first << ", " << second;
}

TEST(DuopickBoard, ACardIsCoveredByTwoOthers) {
  const std::pair<int, int> covers[] = {{5, 9},   {5, 6},   {6, 7},   {7, 8},   {8, 13},  {9, 10},
                                        {10, 11}, {11, 12}, {12, 13}, {14, 18}, {14, 15}, {15, 16},
                                        {16, 17}, {17, 22}, {18, 19}, {19, 20}, {20, 21}, {21, 22}};
  const Board full = Dealt();
  for (int card = 0; card < kCards; ++card) {
    std::set<int> wanted;
    if (card < 18) wanted = {covers[card].first, covers[card].second};
    EXPECT_EQ(full.CheckForLegalMove(card), card >= 18) << card;
    // Each of the two is enough, and no other card matters.
    for (int other = 0; other < kField && card < kField; ++other) {
      Board board;
      board.field[card] = board.field[other] = "7S";
      EXPECT_EQ(board.CheckForLegalMove(card), !wanted.contains(other)) << card << " under " << other;
    }
    EXPECT_FALSE(Board().CheckForLegalMove(card)) << "none lies there";
  }
}

TEST(DuopickBoard, CardsAreTakenTwoByTwo) {
  const struct {
    int first, second;
    Outcome outcome;
    const char* row;  // and the pile, as they are then
  } cases[] = {
      {18, 19, Outcome::Match, "field=(-,-,2S,13S,7D) waste=(3S,8C)"},  // ace and ace
      {19, 20, Outcome::Match, "field=(1S,-,-,13S,7D) waste=(3S,8C)"},  // ace and two
      {21, 18, Outcome::Match, "field=(-,1H,2S,-,7D) waste=(3S,8C)"},   // king and ace
      {22, 23, Outcome::Match, "field=(1S,1H,2S,13S,-) waste=(3S)"},    // with the up card
      {23, 22, Outcome::Match, "field=(1S,1H,2S,13S,-) waste=(3S)"},    // the same in the other order
      {20, 21, Outcome::Mismatch, "field=(1S,1H,2S,13S,7D) waste=(3S,8C)"},
      {20, 20, Outcome::LetGo, "field=(1S,1H,2S,13S,7D) waste=(3S,8C)"},
      {23, 14, Outcome::Refused, "field=(1S,1H,2S,13S,7D) waste=(3S,8C)"},  // a gap
  };
  for (const auto& each : cases) {
    Board board = With({"1S", "1H", "2S", "13S", "7D"}, {"3S", "8C"});
    EXPECT_TRUE(board.Takes(each.first));
    ASSERT_EQ(board.Take(each.first), Outcome::Selected);
    EXPECT_FALSE(board.Takes(each.first));
    EXPECT_EQ(board.Takes(each.second), each.outcome == Outcome::Match) << each.first << ", " << each.second;
    ASSERT_EQ(board.Take(each.second), each.outcome) << each.first << ", " << each.second;
    EXPECT_EQ(board.selected, each.outcome == Outcome::Refused ? each.first : kNone);
    EXPECT_EQ(board.taken.size(), each.outcome == Outcome::Match ? 2u : 0u);
    std::string line = PrintBoard(board);
    line.erase(line.find("(") + 1, 2 * 18);
    EXPECT_TRUE(line.starts_with(each.row)) << line;
  }
  Board board = With({"1S", "1H", "2S", "13S", "7D"}, {"3S", "8C"});
  for (int card : {18, 19, 22, 23, 20, 23}) board.Take(card);
  EXPECT_EQ(board.PairsCount, 1);
  EXPECT_EQ(board.RunsCount, 2);
  EXPECT_EQ(board.taken, (std::vector<std::string>{"1S", "1H", "7D", "8C", "2S", "3S"}));
  EXPECT_EQ(board.Take(kUpCard), Outcome::Refused) << "the pile is empty";
}

TEST(DuopickBoard, TheUpCardGoesToTheFirstGapOrStaysInThePile) {
  Board board = Dealt();
  EXPECT_EQ(board.field[0], " 1S");
  EXPECT_EQ(board.Code(kUpCard), " 11H");
  EXPECT_EQ(board.stack.front(), " 13D");
  EXPECT_EQ(board.TurnCard(), kNone);
  EXPECT_EQ(board.waste, (std::vector<std::string>{" 11H", " 12H"}));
  board.field[7] = board.field[2] = "";
  board.Take(18);
  EXPECT_EQ(board.TurnCard(), 2);
  EXPECT_EQ(board.selected, kNone);
  EXPECT_EQ(board.field[2], " 12H");
  EXPECT_EQ(board.waste, (std::vector<std::string>{" 11H", " 13H"}));
  board.waste.clear();
  EXPECT_EQ(board.TurnCard(), kNone) << "a pile that is used up fills no gap";
  EXPECT_EQ(board.waste, std::vector<std::string>{" 1C"});
  EXPECT_EQ(board.stack.size(), 25u);
}

TEST(DuopickBoard, BehindTheEndOfTheStackIsAnUpCardOfNoRank) {
  Board board = Dealt();
  board.field[18] = "1S";
  board.field[19] = "1H";
  for (int turn = 1; turn <= 40; ++turn) {
    board.TurnCard();
    EXPECT_EQ(board.Code(kUpCard), turn <= 28 ? StandardDeck()[kCards + turn] : "") << turn;
    EXPECT_EQ(board.waste.size(), static_cast<size_t>(std::min(turn + 1, kPile)));
  }
  EXPECT_EQ(CensusOf<DuopickPlayer>(board).cards.size(), 52u);
  // It goes with an ace as the first of the two, and not as the second. Then the last card is back.
  board.Take(18);
  EXPECT_EQ(board.Take(kUpCard), Outcome::Mismatch);
  board.Take(kUpCard);
  EXPECT_EQ(board.Take(18), Outcome::Match);
  EXPECT_EQ(board.RunsCount, 1);
  EXPECT_EQ(board.Code(kUpCard), " 13D");
  // That one fills the gap; a card of no rank fills none.
  EXPECT_EQ(board.TurnCard(), 18);
  board.Take(kUpCard);
  EXPECT_EQ(board.Take(19), Outcome::Match);
  board.TurnCard();
  board.TurnCard();
  EXPECT_EQ(board.field[19], " 12D");
  board.field[20] = "";
  board.TurnCard();
  EXPECT_EQ(board.field[20], "");
}

TEST(DuopickBoard, IsStuckWhenNoTurnHelpsEither) {
  using Codes = std::vector<std::string>;
  const struct {
    Codes row, waste, stack;
    bool stuck;
  } cases[] = {
      {{"2S", "4S", "6S"}, {"8S"}, {}, true},
      {{"2S", "4S", "6S"}, {"7S"}, {}, false},
      {{"2S", "4S", "6S"}, {"8S"}, {"12S", "10S"}, true},
      {{"2S", "4S", "6S"}, {"8S"}, {"3S", "10S"}, false},    // one that comes fits
      {{"2S", "4S", "6S"}, {"8S"}, {"10H", "10S"}, false},   // two that come: the first lies in a gap then
      {{"2S", "4S", "6S"}, {"8S", "10H", "12S"}, {}, true},  // what is beneath is out of reach
      {{"2S"}, {}, {}, true},
      {{"3S", "5S", "1S"}, {"8S"}, {}, false},  // behind the end of the stack comes what goes with an ace
      {{}, {"1S"}, {}, false},                  // also if the ace was the up card
  };
  for (const auto& each : cases) {
    const Board board = With(each.row, each.waste, each.stack);
    EXPECT_EQ(board.IsStuck(), each.stuck) << PrintBoard(board);
  }
  EXPECT_FALSE(Dealt().IsStuck());
}

TEST(DuopickBoard, KeepsTheLaws) { KeepsTheLaws<DuopickPlayer>(61); }
