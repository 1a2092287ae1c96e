// Plays the same scripts on both front ends, without a screen and in real windows, and compares what they
// answer.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <regex>

#include "tests/documents.h"
#include "tests/harness.h"
#include "tests/transcripts/transcripts.h"

namespace {

// What a command writes to its standard output.
std::string Output(const std::string& command) {
  std::string output;
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return "can't start " + command;
  char buffer[4096];
  while (const size_t count = fread(buffer, 1, sizeof buffer, pipe)) output.append(buffer, count);
  const int status = pclose(pipe);
  return output + "exit " + std::to_string(WEXITSTATUS(status)) + "\n";
}

// Places and sizes follow from the widths of texts, which each front end measures with its own letters.
std::string WithoutPlaces(const std::string& output) {
  static const std::regex places(R"(^\* set \S+\.(Left|Top|Width|Height) )"),
      dumped(R"re("(Left|Top|Width|Height)":-?\d+,?)re");
  std::istringstream lines(output);
  std::string line, kept;
  while (std::getline(lines, line))
    if (!std::regex_search(line, places)) kept += std::regex_replace(line, dumped, "") + "\n";
  return kept;
}

class FrontEnds : public testing::TestWithParam<std::filesystem::path> {};

}  // namespace

TEST_P(FrontEnds, AnswerAlike) {
  const std::string arguments = " --seed 7 --start 2000-01-01T12:00:00 ";
  const std::string script = " < " + GetParam().string() + " 2>/dev/null";
  TestFolder consoleFolder, desktopFolder;
  const std::string console = Output(std::string(CARDHAVEN_CONSOLE) + arguments + "--folder " +
                                     consoleFolder.Path().string() + script);
  // The bus library keeps a block till the end: no leak of ours in a sanitized build.
  const std::string desktop =
      Output("ASAN_OPTIONS=detect_leaks=0 SDL_AUDIODRIVER=dummy xvfb-run -a -s '-screen 0 1024x768x24' " +
             std::string(CARDHAVEN_DESKTOP) + " --console --speed 50" + arguments + "--folder " +
             desktopFolder.Path().string() + script);
  const std::string differences =
      transcripts::Differences(ReadFile(GetParam()), WithoutPlaces(console), WithoutPlaces(desktop));
  EXPECT_TRUE(differences.empty()) << differences;
  EXPECT_GT(std::ranges::count(console, '\n'), 20);
}

INSTANTIATE_TEST_SUITE_P(Scripts, FrontEnds, testing::ValuesIn(transcripts::Scripts()),
                         [](const auto& info) { return info.param.stem().string(); });

TEST(Desktop, SaysWhatIsWrong) {
  EXPECT_EQ(Output("env -u DISPLAY -u WAYLAND_DISPLAY " CARDHAVEN_DESKTOP " 2>&1 >/dev/null | wc -l"),
            "1\nexit 0\n");
  EXPECT_EQ(Output("env -u DISPLAY -u WAYLAND_DISPLAY " CARDHAVEN_DESKTOP " 2>/dev/null"), "exit 1\n");
  for (const char* program : {CARDHAVEN_DESKTOP, CARDHAVEN_CONSOLE}) {
    EXPECT_EQ(Output(std::string(program) + " --nonsense 2>/dev/null"), "exit 2\n");
    EXPECT_EQ(Output(std::string(program) + " --folder 2>/dev/null"), "exit 2\n");
    EXPECT_NE(Output(std::string(program) + " --nonsense 2>&1").find("--folder DIR"), std::string::npos);
    EXPECT_NE(Output(std::string(program) + " --version").find("exit 0"), std::string::npos);
    EXPECT_NE(Output(std::string(program) + " --help").find("SAVED-GAME"), std::string::npos);
  }
}

TEST(Desktop, SaysNothingWhereThereIsNoSound) {
  TestFolder folder;
  for (const char* driver : {"-u SDL_AUDIODRIVER", "SDL_AUDIODRIVER=alsa", "SDL_AUDIODRIVER=nonsense"})
    EXPECT_EQ(
        Output(
            "(sleep 1; echo quit) | env " + std::string(driver) +
            " ALSA_CONFIG_PATH=/dev/null ASAN_OPTIONS=detect_leaks=0 QT_QPA_PLATFORM=offscreen " CARDHAVEN_DESKTOP
            " --console --folder " +
            folder.Path().string() + " 2>&1 >/dev/null"),
        "exit 0\n")
        << driver;
}
