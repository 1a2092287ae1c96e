// Recorded runs: the same lines give the same bytes, and what was read through stays as it is.
#include <gtest/gtest.h>

#include "tests/driver.h"

namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

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
