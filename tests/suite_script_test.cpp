// Recorded runs: the same lines give the same bytes, and what was read through stays as it is.
#include <gtest/gtest.h>

#include <set>

#include "tests/documents.h"
#include "tests/driver.h"

namespace {

std::vector<std::string> Scripts() {
  std::vector<std::string> scripts;
  for (const auto& entry : std::filesystem::directory_iterator(CARDHAVEN_TEST_SCRIPTS))
    if (entry.path().extension() == ".console") scripts.push_back(entry.path().stem().string());
  std::ranges::sort(scripts);
  return scripts;
}

class Recorded : public ::testing::TestWithParam<std::string> {};

// A transcript is what `cardhaven-console --seed 7` answers, with the folder's name as FOLDER.
TEST_P(Recorded, AnswersAsItDid) {
  const std::filesystem::path script =
      std::filesystem::path(CARDHAVEN_TEST_SCRIPTS) / (GetParam() + ".console");
  TestFolder folder;
  RunOptions options;
  options.seed = 7;
  std::string output = RunConsole(folder, ReadFile(script), options);
  const std::string path = folder.Path().string();
  for (size_t at; (at = output.find(path)) != std::string::npos;) output.replace(at, path.size(), "FOLDER");
  EXPECT_EQ(output, ReadFile(std::filesystem::path(script).replace_extension(".expected")));
}
INSTANTIATE_TEST_SUITE_P(Scripts, Recorded, ::testing::ValuesIn(Scripts()),
                         [](const auto& info) { return info.param; });

TEST(Manual, TellsEachEventLine) {
  const std::string page = ReadFile(std::filesystem::path(CARDHAVEN_SOURCE) / "docs/console.md");
  std::set<std::string> events;
  for (const std::string& script : Scripts())
    for (const std::string& line :
         LinesOf(ReadFile(std::filesystem::path(CARDHAVEN_TEST_SCRIPTS) / (script + ".expected")), "* "))
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
