// Each slot in which a card is left when the deck is used up costs the penalty once.
#include <gtest/gtest.h>

#include "tests/treyshift_table.h"

namespace {

// Plays a whole deck: these cards go where `clicks` says, and all others are paid in that column by threes.
std::string UseUpDeck(const std::vector<std::string>& kept, const std::string& clicks, int column) {
  std::vector<std::string> cards = kept;
  for (const std::string& card : WholeDeck())
    if (std::ranges::count(kept, card) == 0) cards.push_back(card);
  return InOrder(cards) + "click frmTreyshift.cmdPlay\n" + clicks +
         Lay(column, static_cast<int>(cards.size() - kept.size()));
}

class LeftOvers : public testing::Test {
 protected:
  LeftOvers() { driver.Do(kOpenTreyshift); }

  // What was removed and what each removal cost, "Temp0 -250 Temp1 -250".
  std::string Removed(const std::string& game) {
    driver.Do(game);
    EXPECT_EQ(driver.Text("frmTreyshift.lblCardCount.Caption"), "Cards remaining: 0");
    long long score = Score();
    const std::string trace = driver.Trace(kTakeTreyshift);
    std::string told;
    for (const std::string& line : LinesOf(trace, "* set frmTreyshift.")) {
      const size_t mark = line.find("CardSelection("), end = line.find(").Visible true");
      if (mark != std::string::npos && end != std::string::npos)
        told += (told.empty() ? "" : " ") + line.substr(0, mark) + line.substr(mark + 14, end - mark - 14);
      if (Contains(line, "Speed Bonus")) break;
      if (!line.starts_with("lblCurrentScore.Caption")) continue;
      std::string digits;
      for (const char letter : line.substr(line.find('"')))
        if (letter == '-' || (letter >= '0' && letter <= '9')) digits += letter;
      if (!told.empty()) told += " " + std::to_string(std::stoll(digits) - score);
      score = std::stoll(digits);
    }
    driver.Do(kPlayTreyshift + "answer \"Yes\"\n");
    return told;
  }
  long long Score() { return driver.common().CurrentScore; }

  TestFolder folder;
  Driver driver{folder.Path()};
};

}  // namespace

TEST_F(LeftOvers, CostThePenaltyInEachPlaceOfTheStorage) {
  for (int slot = 0; slot < 3; ++slot)
    EXPECT_EQ(Removed(UseUpDeck({"13D"}, Store(slot), 0)), "Temp" + std::to_string(slot) + " -250");
}

TEST_F(LeftOvers, CostThePenaltyInEachPlaceOfTheColumns) {
  for (int column = 0; column < 4; ++column) {
    const int other = (column + 1) % 4;
    const auto name = [&](int row) { return "Play" + std::to_string(column + 4 * row) + " -250"; };
    EXPECT_EQ(Removed(UseUpDeck({"13D"}, Lay(column), other)), name(0));
    EXPECT_EQ(Removed(UseUpDeck({"13D", "12D", "11D", "10D"}, Lay(column, 2) + Store(0) + Store(2), other)),
              name(1) + " " + name(0) + " Temp2 -250 Temp0 -250");
    EXPECT_EQ(Removed(UseUpDeck({"13D", "12D", "10D", "11D"}, Lay(column, 3) + Store(1), other)),
              name(2) + " " + name(1) + " " + name(0) + " Temp1 -250");
  }
}
