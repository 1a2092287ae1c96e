// Feeds texts from nowhere to all that reads texts: settings, tables, saved games, records, command lines,
// console lines and, where the desktop is built, the screening of pictures.
//
// A plain loop; the corpus has a folder for each reader:
//
//   fuzz CORPUS [SECONDS]   each file of the corpus, then changed ones, with a fixed seed
//
// Built with CARDHAVEN_LIBFUZZER it is a libFuzzer target for the reader that FUZZ_READER names: see
// bench/fuzz.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "app/options.h"
#include "games/games.h"
#include "games/sumfall/saved_game.h"
#include "record/replay.h"
#include "suite/high_scores.h"
#include "suite/settings_file.h"
#include "suite/suite.h"
#include "window/console/console.h"
#ifdef CARDHAVEN_FUZZ_DESKTOP
#include "window/desktop/painting/screening.h"
#endif

namespace {

namespace fs = std::filesystem;

const fs::path& Folder() {
  static const fs::path folder = fs::temp_directory_path() / ("cardhaven-fuzz-" + std::to_string(getpid()));
  return folder;
}

void Expect(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "doesn't hold: %s\n", what);
  std::abort();
}

void Console(const std::string& lines, const char* file, const std::string& text) {
  fs::remove_all(Folder());
  fs::create_directories(Folder());
  if (file) std::ofstream(Folder() / file, std::ios::binary) << text;
  std::istringstream in(lines);
  std::ostringstream out;
  ConsoleFrontEnd console({}, in, out);
  console.platform.random.Seed(1);
  Suite suite(console.platform, {Folder()}, AllGames());
  suite.Start();
  console.Run();
}

void Settings(const std::string& text) {
  Console("click frmSelect.cmdSumfall\nanswer \"OK\"\nadvance 2000\nclose frmSumfall\nanswer \"Yes\"\n",
          "Sumfall.Ini", text);
}

void Table(const std::string& text) {
  bool damaged = false;
  const HighScores scores = ParseHighScores(text, damaged);
  for (const HighScore& entry : scores) Expect(entry.name.size() <= 400, "names are cut");
  bool again = false;
  Expect(ParseHighScores(FormatHighScores(scores), again).size() == scores.size() && !again,
         "a table that was written can be read");
}

void Saved(const std::string& text) {
  try {
    const modSumfall::SavedGame game = modSumfall::ParseSavedGame(text);
    Expect(game.userName.size() <= 400, "names are cut");
    modSumfall::ParseSavedGame(modSumfall::FormatSavedGame(game));
  } catch (const RuntimeError&) {
  }
}

// Whatever it says, a record leaves nothing on the disk.
void Record(const std::string& text) {
  const record::Verdict verdict = record::Replay(text, "", AllGames());
  Expect(verdict.kind != record::Verdict::Kind::Holds || !verdict.result.game.empty(),
         "what holds is a game");
  Expect(!fs::exists(record::kFolder), "nothing is written");
}

void CommandLine(const std::string& text) {
  std::vector<std::string> arguments;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) arguments.push_back(line);
  for (Program program : {Program::Desktop, Program::Console}) try {
      ParseOptions(program, arguments);
    } catch (const BadOptions&) {
    }
}

struct Reader {
  const char* name;
  void (*read)(const std::string& text);
};
constexpr Reader kReaders[] = {
    {"settings", Settings},
    {"table", Table},
    {"saved", Saved},
    {"record", Record},
    {"options", CommandLine},
    {"console", [](const std::string& text) { Console(text, nullptr, ""); }},
#ifdef CARDHAVEN_FUZZ_DESKTOP
    {"svg", [](const std::string& text) { WhyNotDraw(text); }},
#endif
};

}  // namespace

#ifdef CARDHAVEN_LIBFUZZER
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const Reader* const reader = std::ranges::find(
      kReaders, std::string_view(std::getenv("FUZZ_READER") ? std::getenv("FUZZ_READER") : ""),
      [](const Reader& each) { return std::string_view(each.name); });
  if (reader == std::end(kReaders)) {
    std::fputs("FUZZ_READER names no reader\n", stderr);
    std::exit(2);
  }
  reader->read({reinterpret_cast<const char*>(data), size});
  return 0;
}
#else
namespace {

std::string Changed(std::string text, const std::string& other, std::mt19937& random) {
  const auto below = [&](size_t limit) { return limit ? random() % limit : 0; };
  for (size_t changes = 1 + below(4); changes > 0; --changes) {
    const size_t at = below(text.size() + 1), length = below(std::min<size_t>(text.size() - at, 30) + 1);
    switch (below(5)) {
      case 0:
        text.erase(at, length);
        break;
      case 1:
        text.insert(at, text.substr(at, length));
        break;
      case 2:
        text.insert(at, 1, static_cast<char>(random()));
        break;
      case 3: {
        constexpr const char* kOdd[] = {"-1", "0",    "32768", "2147483648", "99999999999",
                                        ",",  "\r\n", "\"",    "[",          "\xff"};
        text.replace(at, length, kOdd[below(std::size(kOdd))]);
        break;
      }
      default: {
        const size_t from = below(other.size() + 1);
        text.replace(at, length, other.substr(from, below(40)));
      }
    }
  }
  return text;
}

std::string& Culprit() {
  static std::string text;
  return text;
}

// Whoever looks for the culprit finds it there.
void WriteCulprit(int number) {
  const int file = open("fuzz-culprit", O_WRONLY | O_CREAT | O_TRUNC, 0644);
  [[maybe_unused]] const ssize_t written = write(file, Culprit().data(), Culprit().size());
  std::signal(number, SIG_DFL);
  std::raise(number);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const double seconds = argc > 2 ? std::atof(argv[2]) : 0;
  for (int number : {SIGABRT, SIGSEGV, SIGFPE}) std::signal(number, WriteCulprit);
  std::mt19937 random(1);
  long inputs = 0;
  for (const Reader& reader : kReaders) {
    std::vector<std::string> corpus;
    for (const auto& entry : fs::directory_iterator(fs::path(argv[1]) / reader.name)) {
      std::ifstream file(entry.path(), std::ios::binary);
      corpus.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    if (corpus.empty()) {
      std::fprintf(stderr, "no corpus for %s\n", reader.name);
      return 1;
    }
    long mine = 0;
    for (const std::string& text : corpus) ++mine, reader.read(text);
    const auto end = std::chrono::steady_clock::now() +
                     std::chrono::duration<double>(seconds / static_cast<double>(std::size(kReaders)));
    while (std::chrono::steady_clock::now() < end) {
      const std::string text =
          Changed(corpus[random() % corpus.size()], corpus[random() % corpus.size()], random);
      Culprit() = text;
      reader.read(text);
      ++mine;
    }
    std::printf("%s: %ld\n", reader.name, mine);
    inputs += mine;
  }
  std::printf("%ld inputs\n", inputs);
  fs::remove_all(Folder());
}
#endif
