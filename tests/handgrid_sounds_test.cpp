// What is heard when a card is laid: each hand that a line comes to have, once; else the next card's click.
#include <gtest/gtest.h>

#include <random>

#include "tests/handgrid_table.h"

using namespace modHandgrid;

namespace {

// The hands of all lines, rows first.
auto HandsOf(Board& grid) {
  grid.EvaluateLines();
  return grid.hands;
}

}  // namespace

TEST(HandgridSounds, AHandIsHeardOnceAndTakesThePlaceOfTheClick) {
  TestFolder folder;
  Driver driver(folder.Path());
  driver.Do(kOpenHandgrid);
  std::mt19937 chance(3);
  int hands = 0, lost = 0, quiet = 0;
  for (int game = 0; game < 25; ++game) {
    CardNames deck = game == 0 ? RichGrid() : CardNames{};
    const CardCodes standard = StandardDeck();
    for (int i = 1; i <= UpperBound(standard) && game > 0; ++i) deck.emplace_back(CardKey(standard[i]));
    std::shuffle(deck.begin() + (game == 0 ? 25 : 0), deck.end(), chance);
    // Many of one suit or rank first, so that hands come.
    if (game % 3 == 1)
      std::ranges::stable_sort(deck, {}, [](const std::string& card) { return card.back(); });
    if (game % 3 == 2)
      std::ranges::stable_sort(deck, {}, [](const std::string& card) { return CardValue(card); });
    driver.Do(FirstDeck(deck) + kPlayHandgrid);
    std::vector<int> cells(kCells);
    for (int i = 0; i < kCells; ++i) cells[i] = i;
    if (game > 0) std::ranges::shuffle(cells, chance);
    cells.insert(cells.begin() + 20, {cells[3], cells[11], cells[19]});  // three overwrites
    Board grid;
    for (size_t i = 0; i + 1 < cells.size() && i < deck.size(); ++i) {
      const auto before = HandsOf(grid);
      grid.cells[cells[i]] = deck[i];
      const auto after = HandsOf(grid);
      std::vector<std::string> expected;
      for (size_t line = 0; line < after.size(); ++line) {
        if (before[line] == after[line]) continue;
        after[line] == Hand::Nothing ? void(++lost) : expected.push_back("\"\\\\TwentyOne.wav\"");
      }
      hands += static_cast<int>(expected.size());
      if (expected.empty()) ++quiet, expected.push_back("\"\\\\Click.wav\"");
      ASSERT_EQ(Joined(LinesOf(driver.Trace(ClickCell(cells[i])), "* sound ")), Joined(expected))
          << "game " << game << ", card " << i << " on cell " << cells[i];
    }
    driver.Do(kPlayHandgrid + "answer \"Yes\"\n");
  }
  EXPECT_GT(hands, 100);
  EXPECT_GT(lost, 5);
  EXPECT_GT(quiet, 100);
}
