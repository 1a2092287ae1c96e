// Recorded runs: the same lines give the same bytes, and what was read through stays as it is.
#include <gtest/gtest.h>

#include <set>

#include "tests/documents.h"
#include "tests/driver.h"
#include "tests/transcripts/transcripts.h"

namespace {

class Recorded : public ::testing::TestWithParam<std::filesystem::path> {};

// `transcripts --write` records them anew.
TEST_P(Recorded, AnswersAsItDid) {
  const std::string commands = ReadFile(GetParam());
  const std::string before = ReadFile(transcripts::TranscriptOf(GetParam()));
  const std::string differences = transcripts::Differences(commands, before, transcripts::Play(commands));
  EXPECT_TRUE(differences.empty()) << differences;
}
INSTANTIATE_TEST_SUITE_P(Scripts, Recorded, ::testing::ValuesIn(transcripts::Scripts()),
                         [](const auto& info) { return info.param.stem().string(); });

TEST(Manual, TellsEachEventLine) {
  const std::string page = ReadFile(std::filesystem::path(CARDHAVEN_SOURCE) / "docs/console.md");
  std::set<std::string> events;
  for (const auto& script : transcripts::Scripts())
    for (const std::string& line : LinesOf(ReadFile(transcripts::TranscriptOf(script)), "* "))
      events.insert(line.substr(0, line.find(' ')));
  EXPECT_GT(events.size(), 9u);
  for (const std::string& event : events) EXPECT_TRUE(Contains(page, "| `* " + event)) << event;
}

TEST(Seeds, AnotherSeedDealsOtherCards) {
  const std::string commands = "click frmSelect.cmdSumfall\nclick frmSumfall.cmdPlay\ndump frmSumfall\n";
  std::string dumps[3];
  for (int i = 0; i < 3; ++i) {
    TestFolder folder;
    RunOptions options;
    options.seed = i == 2 ? 8 : 7;
    dumps[i] = RunConsole(folder, commands, options);
  }
  EXPECT_EQ(dumps[0], dumps[1]);
  EXPECT_NE(dumps[0], dumps[2]);
}

}  // namespace
