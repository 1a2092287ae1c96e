// Boards as text: what is written can be read, and nothing else can.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "suite/board_text.h"

namespace {

enum class Zone { None = -1, Deck, Field };

struct Sample {
  std::array<std::string, 3> field;
  std::array<std::vector<std::string>, 2> piles;
  Zone zone = Zone::None;
  Integer position;
  bool selected = false;

  template <class Self, class Visit>
  static void VisitFields(Self& board, Visit&& visit) {
    visit("field", board.field, "piles", board.piles, "zone", board.zone, "position", board.position,
          "selected", board.selected);
  }
  bool operator==(const Sample&) const = default;
};

}  // namespace

TEST(BoardText, IsReadAsItWasWritten) {
  const Sample boards[] = {
      {},
      {{"1S", "", " 12H"}, {{{" 1D", "2C"}, {""}}}, Zone::Field, -32768, true},
      {{"", "", ""}, {{{}, {"13C"}}}, Zone::Deck, 32767, false},
  };
  for (const Sample& board : boards) {
    const std::string line = PrintBoard(board);
    const auto read = ReadBoard<Sample>(line);
    ASSERT_TRUE(read) << line;
    EXPECT_EQ(*read, board) << line;
  }
  EXPECT_EQ(PrintBoard(boards[1]),
            "field=(1S,-,_12H) piles=((_1D,2C),(-)) zone=1 position=-32768 selected=1");
}

TEST(BoardText, TakesNothingElse) {
  const std::string good = "field=(1S,-,_12H) piles=((_1D,2C),(-)) zone=1 position=5 selected=1";
  ASSERT_TRUE(ReadBoard<Sample>(good));
  for (size_t length = 0; length < good.size(); ++length)
    EXPECT_FALSE(ReadBoard<Sample>(good.substr(0, length))) << length;
  for (const char* bad : {
           "field=(1S,-,_12H,2S) piles=((),()) zone=1 position=5 selected=1",
           "field=(1S,-) piles=((),()) zone=1 position=5 selected=1",
           "field=(1S,-,-) piles=((),()) zone=1 position=32768 selected=1",
           "field=(1S,-,-) piles=((),()) zone=1 position=five selected=1",
           "field=(1S,-,-) piles=((),()) zone=1 position=5 selected=2",
           "field=(1S,-,-) piles=((),()) zone=1 position=5 selected=1 ",
           "field=(1S,-,-) piles=((((,()) zone=1 position=5 selected=1",
           "field=(1S,,-) piles=((),()) zone=1 position=5 selected=1",
           "piles=((),()) field=(1S,-,-) zone=1 position=5 selected=1",
       })
    EXPECT_FALSE(ReadBoard<Sample>(bad)) << bad;
}
