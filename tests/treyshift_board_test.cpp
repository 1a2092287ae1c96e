// The board of Treyshift: where cards may go, what columns are worth, what lies behind the deck.
#include <set>

#include "tests/board_laws.h"
#include "tests/treyshift_board_player.h"

using namespace modTreyshift;

namespace {

// The deck gives these cards first, from the fan's last one on.
Board Dealt(std::vector<std::string> first) {
  CardCodes deck = StandardDeck();
  std::swap(first.at(0), first.at(2));
  std::copy(first.begin(), first.end(), deck.begin() + 1);
  Board board;
  board.Deal(deck);
  return board;
}

Outcome Take(Board& board, Zone zone, int slot) { return board.Take(zone, slot); }
// The next cards of the deck go to that column.
void Lay(Board& board, int column, int cards = 1) {
  for (int i = 0; i < cards; ++i) {
    Take(board, Zone::Deck, kInPlay);
    Take(board, Zone::Field, column);
  }
}

// The storage, then the columns from the left, each from the top.
std::string Table(const Board& board) {
  std::string table;
  const auto add = [&](const std::string& code) {
    table += (table.empty() ? "" : " ") + (code.empty() ? "-" : std::string(CardKey(code)));
  };
  for (const std::string& code : board.TempCards) add(code);
  for (int column = 0; column < kColumns; ++column)
    for (int slot = column; slot < kFieldSlots; slot += kColumns) add(board.FieldCards[slot]);
  return table;
}
std::string Open(const Board& board) {
  std::string open;
  for (int slot = 0; slot < kFieldSlots; ++slot)
    if (board.open[slot]) open += (open.empty() ? "" : " ") + std::to_string(slot);
  return open;
}

Board ColumnOf(const std::array<std::string, 3>& codes) {
  Board board;
  for (int row = 0; row < kRows; ++row) board.FieldCards[1 + row * kColumns] = codes[row];
  return board;
}

}  // namespace

// Each line is one click on what the line before has left.
TEST(TreyshiftBoard, CardsGoWhereTheyMay) {
  Board board = Dealt({"1S", "8H", "6C", "11D", "2H"});
  constexpr Outcome kRefused = Outcome::Refused, kSelected = Outcome::Selected, kLetGo = Outcome::LetGo,
                    kLaid = Outcome::Laid;
  const struct {
    Zone zone;
    int slot;
    Outcome outcome;
    int meant;
    const char *table, *open;
  } clicks[] = {
      // Nothing is selected, and nothing is there; or not in play.
      {Zone::Field, 2, kRefused, 2, "- - - - - - - - - - - - - - -", "0 1 2 3"},
      {Zone::Temp, 1, kRefused, 1, "- - - - - - - - - - - - - - -", "0 1 2 3"},
      {Zone::Deck, 1, kRefused, 1, "- - - - - - - - - - - - - - -", "0 1 2 3"},
      // From the deck: let go, into the storage, into a column.
      {Zone::Deck, 2, kSelected, 2, "- - - - - - - - - - - - - - -", "0 1 2 3"},
      {Zone::Deck, 2, kLetGo, 2, "- - - - - - - - - - - - - - -", "0 1 2 3"},
      {Zone::Deck, 2, kSelected, 2, "- - - - - - - - - - - - - - -", "0 1 2 3"},
      {Zone::Temp, 1, kLaid, 1, "- 1S - - - - - - - - - - - - -", "0 1 2 3"},
      {Zone::Deck, 2, kSelected, 2, "- 1S - - - - - - - - - - - - -", "0 1 2 3"},
      {Zone::Temp, 1, kRefused, 1, "- 1S - - - - - - - - - - - - -", "0 1 2 3"},
      {Zone::Field, 0, kLaid, 0, "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4"},
      // From the storage: let go, to another slot, below a card. A card of the deck isn't selected meanwhile.
      {Zone::Temp, 1, kSelected, 1, "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Temp, 1, kLetGo, 1, "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Temp, 1, kSelected, 1, "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Deck, 2, kRefused, 2, "- 1S - 8H - - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Temp, 2, kLaid, 2, "- - 1S 8H - - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Temp, 2, kSelected, 2, "- - 1S 8H - - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Field, 0, kLaid, 4, "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4 8"},
      // From a column: only its last card, and never into the column itself.
      {Zone::Field, 0, kSelected, 4, "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Field, 0, kLetGo, 4, "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Field, 4, kSelected, 4, "- - - 8H 1S - - - - - - - - - -", "0 1 2 3 4"},
      {Zone::Field, 3, kLaid, 3, "- - - 8H - - - - - - - - 1S - -", "0 1 2 3"},
      {Zone::Field, 0, kSelected, 0, "- - - 8H - - - - - - - - 1S - -", "0 1 2 3"},
      {Zone::Field, 3, kLaid, 7, "- - - - - - - - - - - - 1S 8H -", "0 1 2 3 7"},
      {Zone::Field, 7, kSelected, 7, "- - - - - - - - - - - - 1S 8H -", "0 1 2 3 7"},
      {Zone::Temp, 0, kLaid, 0, "8H - - - - - - - - - - - 1S - -", "0 1 2 3"},
      // The third card; the column is full then.
      {Zone::Deck, 2, kSelected, 2, "8H - - - - - - - - - - - 1S - -", "0 1 2 3"},
      {Zone::Field, 3, kLaid, 7, "8H - - - - - - - - - - - 1S 6C -", "0 1 2 3 7 11"},
      {Zone::Deck, 2, kSelected, 2, "8H - - - - - - - - - - - 1S 6C -", "0 1 2 3 7 11"},
      {Zone::Field, 3, kLaid, 11, "8H - - - - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11"},
      {Zone::Deck, 2, kSelected, 2, "8H - - - - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11"},
      {Zone::Field, 3, kRefused, 11, "8H - - - - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11"},
      {Zone::Deck, 2, kLetGo, 2, "8H - - - - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11"},
      {Zone::Field, 3, kSelected, 11, "8H - - - - - - - - - - - 1S 6C 11D", "0 1 2 3 7 11"},
      {Zone::Field, 1, kLaid, 1, "8H - - - - - 11D - - - - - 1S 6C -", "0 1 2 3 7"},
  };
  for (const auto& click : clicks) {
    SCOPED_TRACE(&click - clicks);
    int slot = click.slot;
    EXPECT_EQ(board.Takes(click.zone, slot), click.outcome != kRefused);
    EXPECT_EQ(board.Take(click.zone, slot), click.outcome);
    EXPECT_EQ(slot, click.meant);
    EXPECT_EQ(Table(board), click.table);
    EXPECT_EQ(Open(board), click.open);
    EXPECT_EQ(board.Selected() && board.IsSelected(click.zone, slot), click.outcome == kSelected);
  }
}

TEST(TreyshiftBoard, ASelectionThatIsLetGoLeavesNoPlaceBelowItsCard) {
  Board board = Dealt({"1S", "8H", "6C"});
  Lay(board, 0);
  EXPECT_EQ(Open(board), "0 1 2 3 4");
  EXPECT_EQ(Take(board, Zone::Field, 0), Outcome::Selected);
  EXPECT_EQ(Take(board, Zone::Field, 0), Outcome::LetGo);
  EXPECT_EQ(Open(board), "0 1 2 3");
  Lay(board, 0);  // the card's own slot does as well
  EXPECT_EQ(Open(board), "0 1 2 3 4 8");
  EXPECT_EQ(Table(board), "- - - 1S 8H - - - - - - - - - -");
}

TEST(TreyshiftBoard, TheOrderOfThreeCardsDecides) {
  // Counted another way: the runs are the windows of a line that starts and ends with an ace, in both
  // directions.
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
        const Worth worth =
            ColumnOf({NumberedCode(top, 'S'), NumberedCode(middle, 'H'), NumberedCode(bottom, 'S')}).Judge(1);
        EXPECT_EQ(worth == Worth::Trip, top == middle && middle == bottom);
        EXPECT_EQ(worth == Worth::Run, runs.contains({top, middle, bottom}))
            << top << ", " << middle << ", " << bottom;
      }
  for (const auto& codes : {std::array<std::string, 3>{"3S", "3H", ""}, {"2S", "1H", ""}, {"", "", ""}})
    EXPECT_EQ(ColumnOf(codes).Judge(1), Worth::Nothing) << "it isn't full";
}

TEST(TreyshiftBoard, AFlushIsTheSuitLettersAlone) {
  const struct {
    std::array<std::string, 3> codes;
    bool flush;
  } cases[] = {{{" 4S", "15S", " 10S"}, true}, {{" 11D", "12D", "13D"}, true}, {{"4S", "5S", "6H"}, false},
               {{"4H", "5S", "6S"}, false},    {{"4S", "5H", "6S"}, false},    {{"2S", "1S", ""}, false}};
  for (const auto& each : cases) EXPECT_EQ(ColumnOf(each.codes).CheckFlush(1), each.flush) << each.codes[0];
}

TEST(TreyshiftBoard, AColumnThatIsPaidEmptiesItself) {
  Board board = Dealt({"4S", "5H", "6D", "9C"});
  Lay(board, 2, 3);
  EXPECT_EQ(board.Judge(2), Worth::Run);
  board.ClearColumn(2);
  EXPECT_EQ(board.paid, (std::vector<std::string>{"4S", "5H", "6D"}));
  EXPECT_EQ(Open(board), "0 1 2 3");
  EXPECT_EQ(board.Judge(2), Worth::Nothing);
  Lay(board, 2);
  EXPECT_EQ(Open(board), "0 1 2 3 6");
}

TEST(TreyshiftBoard, TheDeckIsTurnedUpCardByCard) {
  Board board;
  board.Deal(StandardDeck());
  EXPECT_EQ(board.CardsRemaining(), 52);
  for (int card = 1; card <= 52; ++card) {
    const CardCodes deck = StandardDeck();
    EXPECT_FALSE(board.DeckIsUsedUp());
    EXPECT_EQ(board.UpCards[kInPlay], card <= 3 ? deck[4 - card] : deck[card]) << card;
    EXPECT_EQ(board.UpCards[0], card <= 50 ? deck[card < 2 ? 1 : card == 2 ? 4 : card + 2] : "") << card;
    Take(board, Zone::Deck, kInPlay);
    Take(board, Zone::Temp, 0);
    board.TempCards[0].clear();
    EXPECT_EQ(board.CardsRemaining(), 52 - card);
  }
  EXPECT_TRUE(board.DeckIsUsedUp());
}

// Behind the last card there is one more that isn't one. Once it was moved nothing moves any more.
TEST(TreyshiftBoard, BehindTheLastCardIsNothingAndThatCanBeMovedOnce) {
  const struct {
    std::vector<std::string> column;
    int slot;  // in which it comes to lie
    const char* open;
    Worth worth;
    Outcome then;  // of a click on the column
  } cases[] = {
      {{}, 1, "0 1 2 3 5", Worth::Nothing, Outcome::Selected},  // by the bare slot below it
      {{"9S"}, 5, "0 1 2 3 5 9", Worth::Nothing, Outcome::Selected},
      {{"9S", "8S"}, 9, "0 1 2 3 5 9", Worth::Nothing, Outcome::Refused},
      {{"2S", "1S"}, 9, "0 1 2 3 5 9", Worth::Run, Outcome::Refused},  // it is one below the ace
  };
  for (const auto& each : cases) {
    Board board = Dealt({"3S", "4S", "5S"});
    for (const std::string& code : each.column) {
      board.UpCards[kInPlay] = code;
      Lay(board, 1);
    }
    board.TempCards[0] = "12C";
    board.DeckPosition = kUsedUp;
    board.UpCards = {};
    EXPECT_EQ(Take(board, Zone::Deck, kInPlay), Outcome::Selected);
    int slot = 1;
    EXPECT_EQ(board.Take(Zone::Field, slot), Outcome::Laid);
    EXPECT_EQ(slot, each.slot);
    EXPECT_EQ(Open(board), each.open);
    EXPECT_EQ(board.Judge(1), each.worth);
    EXPECT_FALSE(each.worth == Worth::Run && board.CheckFlush(1));
    EXPECT_EQ(board.CardsRemaining(), -1);
    EXPECT_FALSE(board.CanMove());
    EXPECT_FALSE(board.IsStuck());
    // A card is selected, and let go wherever it should go.
    EXPECT_EQ(Take(board, Zone::Temp, 0), Outcome::Selected);
    EXPECT_FALSE(board.Takes(Zone::Temp, 1) || board.Takes(Zone::Field, 0));
    EXPECT_EQ(Take(board, Zone::Temp, 1), Outcome::Laid);
    EXPECT_FALSE(board.Selected());
    EXPECT_EQ(board.TempCards[0], "12C");
    EXPECT_TRUE(board.TempCards[1].empty());
    EXPECT_EQ(Take(board, Zone::Field, 1), each.then);
    board.ClearColumn(1);
    EXPECT_EQ(board.blank, -1);
  }
}

TEST(TreyshiftBoard, FourFullColumnsAndAFullStorageAreStuck) {
  Board board;
  board.TempCards.fill("1S");
  board.FieldCards.fill("2S");
  EXPECT_TRUE(board.IsStuck());
  for (std::string* code : {&board.TempCards[1], &board.FieldCards[11], &board.FieldCards[8]}) {
    code->clear();
    EXPECT_FALSE(board.IsStuck());
    *code = "3S";
  }
}

TEST(TreyshiftBoard, ADeckLeavesNothingOfTheOneBefore) {
  Board board = Dealt({"4S", "5S", "6S"});
  Lay(board, 0);
  Take(board, Zone::Deck, kInPlay);
  board.TripCount = 2;
  board.Clear();
  Board cleared;
  cleared.DeckPosition = 4;  // it stays on show
  EXPECT_EQ(board, cleared);
  board.Deal(StandardDeck());
  cleared.Deal(StandardDeck());
  EXPECT_EQ(board, cleared);
}

TEST(TreyshiftBoard, KeepsTheLaws) { KeepsTheLaws<TreyshiftPlayer>(71); }
