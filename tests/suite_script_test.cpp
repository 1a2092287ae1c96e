// Recorded runs: the same lines give the same bytes, and those that were read through stay as they are.
#include <gtest/gtest.h>

#include "tests/driver.h"

namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(SumfallScripts, GiveTheSameBytesEachTime) {
  int pinned = 0;
  for (const auto& entry : std::filesystem::directory_iterator(CARDHAVEN_TEST_SCRIPTS)) {
    const std::filesystem::path script = entry.path();
    if (script.extension() != ".console" || script.stem().string().rfind("sumfall", 0) != 0) continue;
    const std::string commands = ReadFile(script);
    RunOptions options;
    options.seed = 7;
    const auto run = [&] {
      TestFolder folder;
      std::string output = RunConsole(folder, commands, options);
      const std::string path = folder.Path().string();
      for (size_t at; (at = output.find(path)) != std::string::npos;)
        output.replace(at, path.size(), "FOLDER");
      return output;
    };
    const std::string first = run();
    EXPECT_EQ(first, run()) << script;
    const std::filesystem::path expected = std::filesystem::path(script).replace_extension(".expected");
    if (!std::filesystem::exists(expected)) continue;
    ++pinned;
    EXPECT_EQ(first, ReadFile(expected)) << script;
  }
  EXPECT_GT(pinned, 0);
}

TEST(SumfallScripts, AnotherSeedDealsOtherCards) {
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
