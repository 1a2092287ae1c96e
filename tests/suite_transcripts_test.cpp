// How the difference between two runs is told.
#include <gtest/gtest.h>

#include "tests/driver.h"
#include "tests/transcripts/transcripts.h"

namespace {

using transcripts::Differences;

const std::string kScript = "# A script.\nclick a\n\nget b\nadvance 10\ndump w\nclick c\n";
const std::string kBefore =
    "* load w\nok\n* set a 1\n* set b 5\nok\nok 7\n* set a 2\nok\nok {\"b\":{\"Left\":3},\"c\":1}\n* end\n";

std::string Changed(std::string text, const std::string& part, const std::string& other) {
  return text.replace(text.find(part), part.size(), other);
}

TEST(Differences, NameTheStepAndTheLines) {
  EXPECT_EQ(Differences(kScript, kBefore, kBefore), "");
  EXPECT_EQ(Differences(kScript, kBefore, Changed(kBefore, "* load w\n", "")),
            "1 step of 6 differs\n  step 0, (the start)\n    - * load w\n");
  EXPECT_EQ(Differences(kScript, kBefore, Changed(kBefore, "ok 7", "error \"no\"")),
            "1 step of 6 differs\n  step 2, get b\n    - ok 7\n    + error \"no\"\n");
  EXPECT_EQ(Differences(kScript, kBefore, Changed(kBefore, "* set b 5\n", "* set a 2\n* set b 5\n* c\n")),
            "1 step of 6 differs\n  step 1, click a\n    + * set a 2\n    + * c\n");
  EXPECT_NE(Differences(kScript, kBefore, kBefore.substr(0, kBefore.size() - 1)), "");
}

TEST(Differences, TellDumpsByTheirProperties) {
  EXPECT_EQ(Differences(kScript, kBefore, Changed(kBefore, "3},\"c\":1", "4,\"Top\":1}")),
            "1 step of 6 differs\n  step 4, dump w\n      b.Left: 3 -> 4\n      c: 1 -> \"(gone)\"\n"
            "      b.Top: \"(new)\" -> 1\n");
}

TEST(Differences, TellTheLikeOnceAndAllInAFewLines) {
  std::string script, before, now;
  for (int i = 0; i < 200; ++i) {
    script += "advance " + std::to_string(i) + "\n";
    before += "* set a " + std::to_string(i) + "\nok\n";
    now += "* set b " + std::to_string(i) + "\nok\n";
  }
  EXPECT_EQ(Differences(script, before, now),
            "200 steps of 200 differ\n  step 0, (the start)\n    - * set a 0\n    + * set b 0\n"
            "    the like in 199 other steps: 1 to 199\n");
  now.clear();
  for (int i = 0; i < 200; ++i) now += "* set a " + std::string(i + 1, 'x') + "\nok\n";
  const std::string told = Differences(script, before, now, 30);
  EXPECT_LE(std::ranges::count(told, '\n'), 35);
  EXPECT_TRUE(told.ends_with(" other differences\n")) << told;
  EXPECT_GT(std::ranges::count(Differences(script, before, now, 10000), '\n'), 400);
}

}  // namespace
