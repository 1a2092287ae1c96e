// Command lines: what they mean, and what is refused.
#include <gtest/gtest.h>

#include "app/options.h"

namespace {

// "refused", or what was understood.
std::string Told(Program program, const std::vector<std::string>& arguments) {
  try {
    const Options options = ParseOptions(program, arguments);
    return std::to_string(options.deal) + " " + (options.today ? "today " : "") + options.game + "|" +
           options.savedGame;
  } catch (const BadOptions&) {
    return "refused";
  }
}

}  // namespace

TEST(CommandLine, DealsGamesAndFiles) {
  using enum Program;
  const struct {
    Program program;
    std::vector<std::string> arguments;
    std::string told;
  } kRows[] = {
      {Console, {"--deal", "1"}, "1 |"},
      {Desktop, {"--deal=999999999"}, "999999999 |"},
      {Console, {"--deal", "0"}, "refused"},
      {Console, {"--deal", "1000000000"}, "refused"},
      {Console, {"--deal", "7x"}, "refused"},
      {Console, {"--deal"}, "refused"},
      {Desktop, {"--game", "sumfall"}, "0 Sumfall|"},
      {Console, {"--today", "Treyshift"}, "0 today Treyshift|"},
      {Console, {"--today", "Sumfall!"}, "refused"},
      {Console, {"--statistics", "Duopick"}, "0 Duopick|"},
      {Console, {"--statistics", "--history"}, "0 |"},
      {Console, {"--statistics", "mine.sfl"}, "refused"},
      {Desktop, {"--history"}, "refused"},
      {Console, {"mine.sfl"}, "0 |mine.sfl"},
      {Desktop, {"my game.sfl"}, "0 Sumfall|my game.sfl"},
      {Desktop, {"--console", "mine.sfl"}, "0 |mine.sfl"},
      {Desktop, {"file:///home/me/100%25%20sch%C3%B6n.sfl"}, "0 Sumfall|/home/me/100% schön.sfl"},
      {Desktop, {"file://here/a%2.sfl"}, "0 Sumfall|/a%2.sfl"},
      {Desktop, {"one.sfl", "two.sfl"}, "refused"},
  };
  for (const auto& row : kRows) EXPECT_EQ(Told(row.program, row.arguments), row.told);
}
