#include "app/options.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "games/games.h"
#include "suite/deal.h"
#include "window/system/disk.h"
#include "window/system/folders.h"

namespace fs = std::filesystem;

namespace {

template <class Number>
bool Parse(std::string_view text, Number& value) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size();
}

// "YYYY-MM-DDTHH:MM:SS"
bool ParseMoment(const std::string& text, DateTime& moment) {
  if (text.size() != 19 || text[4] != '-' || text[7] != '-' || text[10] != 'T' || text[13] != ':' ||
      text[16] != ':')
    return false;
  const auto part = [&](size_t from, size_t length, int& value) {
    for (size_t i = from; i < from + length; ++i)
      if (text[i] < '0' || text[i] > '9') return false;
    return Parse(std::string_view(text).substr(from, length), value);
  };
  if (!part(0, 4, moment.year) || !part(5, 2, moment.month) || !part(8, 2, moment.day) ||
      !part(11, 2, moment.hour) || !part(14, 2, moment.minute) || !part(17, 2, moment.second))
    return false;
  using namespace std::chrono;
  const year_month_day date{year(moment.year), month(unsigned(moment.month)), day(unsigned(moment.day))};
  return moment.year > 0 && date.ok() && moment.hour < 24 && moment.minute < 60 && moment.second < 60;
}

// "1024x768"
bool ParseScreen(const std::string& text, Extent& screen) {
  const size_t by = text.find('x');
  if (by == std::string::npos) return false;
  int width = 0, height = 0;
  if (!Parse(std::string_view(text).substr(0, by), width) ||
      !Parse(std::string_view(text).substr(by + 1), height))
    return false;
  if (width < 1 || height < 1 || width > 16383 || height > 16383) return false;
  screen = {width * 15, height * 15};
  return true;
}

std::string Name(Program program) { return program == Program::Desktop ? "cardhaven" : "cardhaven-console"; }

fs::path ProgramFolder() {
  const fs::path own = folders::OfProgram();
  return own.empty() ? folders::Absolute("program").parent_path() : own;
}

bool IsKeptFile(const std::string& name) {
  const std::string known = name.substr(0, name.find(".bad"));
  return known.ends_with(".Ini") || known.ends_with(".sfl") || IsTable(known);
}

// Earlier versions kept files beside the program. They move to where they are kept now; what is there already
// goes before them.
void CarryOver(const fs::path& from, const fs::path& to) {
  // They did so only where they could write; a folder of the system's isn't looked through at each start.
  if (!folders::CanTakeFrom(from, to)) return;
  for (const std::string& name : Disk().Names(from, Disk::Entries::Files))
    if (IsKeptFile(name)) folders::Move(from / name, to / name);
}

// The game that is called so, in whatever letters; "" if there is none.
std::string GameNamed(const std::string& name) {
  const auto lower = [](char letter) { return std::tolower(static_cast<unsigned char>(letter)); };
  for (const GameEntry& game : AllGames())
    if (std::ranges::equal(game.Name(), name, {}, lower, lower)) return std::string(game.Name());
  return "";
}

// File managers may name a file as "file:///home/me/a%20game.sfl".
std::string PathOf(const std::string& argument) {
  constexpr std::string_view kScheme = "file://";
  if (!argument.starts_with(kScheme)) return argument;
  const size_t root = argument.find('/', kScheme.size());  // behind the machine's name
  std::string path;
  for (size_t i = std::min(root, argument.size()); i < argument.size(); ++i) {
    int byte = 0;
    if (argument[i] == '%' && i + 2 < argument.size() &&
        std::from_chars(&argument[i + 1], &argument[i + 3], byte, 16).ptr == &argument[i + 3]) {
      path += static_cast<char>(byte);
      i += 2;
    } else {
      path += argument[i];
    }
  }
  return path;
}

void ApplyValue(const std::string& option, const std::string& value, Options& options) {
  const auto bad = [&](const char* wanted) {
    throw BadOptions("the value of " + option + " must be " + wanted + ", not \"" + value + "\"");
  };
  if (option == "--folder") {
    if (value.empty()) bad("a folder");
    options.folder = value;
  } else if (option == "--seed") {
    uint64_t seed = 0;
    if (!Parse(value, seed)) bad("a whole number from 0 up");
    options.seed = seed;
  } else if (option == "--deal") {
    if (!Parse(value, options.deal) || options.deal < 1 || options.deal > kLastDeal)
      bad("a whole number from 1 to 999999999");
  } else if (option == "--game" || option == "--today") {
    options.game = GameNamed(value);
    options.today = option == "--today";
    if (options.game.empty()) bad("a game, such as Sumfall");
  } else if (option == "--speed") {
    if (!Parse(value, options.speed) || !std::isfinite(options.speed) || options.speed < 0.01 ||
        options.speed > 100000)
      bad("a number from 0.01 to 100000");
  } else if (option == "--start") {
    if (!ParseMoment(value, options.start)) bad("a moment written YYYY-MM-DDTHH:MM:SS");
  } else if (option == "--record") {
    if (value.empty()) bad("a file");
    options.record = value;
  } else if (option == "--watch") {
    if (value.empty()) bad("a file");
    options.watched = PathOf(value);
  } else if (!ParseScreen(value, options.screen)) {
    bad("a size in pixels written WIDTHxHEIGHT");
  }
}

bool TakesValue(Program program, const std::string& option) {
  constexpr std::string_view kCommon[] = {"--folder", "--seed",  "--start", "--deal",
                                          "--game",   "--today", "--record"};
  if (std::ranges::count(kCommon, option) > 0) return true;
  return program == Program::Desktop ? option == "--speed" || option == "--watch" : option == "--screen";
}

}  // namespace

Options ParseOptions(Program program, const std::vector<std::string>& arguments) {
  Options options;
  std::string needsConsole;
  std::vector<std::string> files;
  bool onlyFiles = false;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const size_t equals = argument.find('=');
    const std::string option = argument.substr(0, equals);
    if (onlyFiles || argument.size() < 2 || argument[0] != '-') {
      files.push_back(argument);
    } else if (argument == "--") {
      onlyFiles = true;
    } else if (argument == "--help" || argument == "-h") {
      options.help = true;
    } else if (argument == "--version") {
      options.version = true;
    } else if (argument == "--console" && program == Program::Desktop) {
      options.console = true;
    } else if (argument == "--verify" && program == Program::Console) {
      options.verify = true;
    } else if (argument == "--verify-tables" && program == Program::Console) {
      options.verifyTables = true;
    } else if (argument == "--no-records" && program == Program::Desktop) {
      options.noRecords = true;
    } else if (argument == "--history" && program == Program::Console) {
      options.history = true;
    } else if (option == "--statistics" && program == Program::Console) {
      options.statistics = true;
      const bool here = equals != std::string::npos;
      if (here || (i + 1 < arguments.size() && !arguments[i + 1].starts_with('-')))
        ApplyValue("--game", here ? argument.substr(equals + 1) : arguments[++i], options);
    } else if (TakesValue(program, option)) {
      if (equals == std::string::npos && i + 1 == arguments.size())
        throw BadOptions(option + " needs a value");
      ApplyValue(option, equals == std::string::npos ? arguments[++i] : argument.substr(equals + 1), options);
      if (option == "--seed" || option == "--start" || option == "--speed") needsConsole = option;
    } else {
      throw BadOptions("there is no option " + argument);
    }
  }
  if (program == Program::Desktop && !options.console && !needsConsole.empty())
    throw BadOptions(needsConsole + " goes with --console only");
  if (options.verify) {
    if (files.empty()) throw BadOptions("--verify needs a record");
    options.records = std::move(files);
  } else if (files.size() > 1) {
    throw BadOptions("there is more than one saved game");
  } else if (!files.empty()) {
    options.savedGame = program == Program::Desktop ? PathOf(files.front()) : files.front();
  }
  // A double click on a saved game means to play it.
  if (program == Program::Desktop && !options.console && !options.savedGame.empty() && options.game.empty())
    options.game = "Sumfall";
  return options;
}

std::string Usage(Program program) {
  std::string usage = "Usage: " + Name(program);
  if (program == Program::Desktop)
    usage +=
        " [--folder DIR] [--record FILE | --no-records] [--game GAME | --today GAME]\n"
        "                 [--deal N] [--console [--speed N] [--seed N] [--start MOMENT]] [SAVED-GAME]\n"
        "       cardhaven [--folder DIR] --watch FILE\n\n"
        "Seven timed card games in a window.\n\n";
  else
    usage +=
        " [--folder DIR] [--record FILE] [--game GAME | --today GAME] [--deal N]\n"
        "                         [--seed N] [--start MOMENT] [--screen WxH] [SAVED-GAME]\n"
        "       cardhaven-console [--folder DIR] --history | --statistics [GAME]\n"
        "       cardhaven-console --verify FILE... | [--folder DIR] --verify-tables\n\n"
        "The same card games driven by lines: commands from standard input, answers on standard output.\n"
        "The command \"help\" tells which commands there are.\n\n";
  usage +=
      "  SAVED-GAME      a saved game for Sumfall! to open\n"
      "  --folder DIR    where settings, high scores and saved games are kept\n"
      "  --record FILE   write down what is played; the file is replaced whenever a game has ended\n"
      "  --game GAME     open that game at once\n"
      "  --today GAME    open it with the deal of the day\n"
      "  --deal N        play deal N, from 1 to 999999999; such games enter no table\n";
  if (program == Program::Desktop)
    usage +=
        "  --watch FILE    play a record again before your eyes\n"
        "  --no-records    keep no records of games beside the tables\n"
        "  --console       take commands from standard input, under a clock of their own\n"
        "  --speed N       let that clock run N times as fast\n";
  usage +=
      "  --seed N        make the cards fall the same way each time\n"
      "  --start MOMENT  the time of day at the start, as 2000-01-01T12:00:00\n";
  if (program == Program::Console)
    usage +=
        "  --screen WxH    the size of the screen in pixels, as 1024x768\n"
        "  --verify FILE   play records again, and tell which ones hold\n"
        "  --verify-tables do so for all entries of the tables\n"
        "  --history       print the games played so far\n"
        "  --statistics    print what they amount to, of all games or of one\n";
  return usage +
         "  --help          show this text\n"
         "  --version       show the version\n\n"
         "Without --folder, settings, high scores and saved games are kept in the program's own folder if it\n"
         "holds a file named \"portable\", else in $XDG_DATA_HOME/card-haven, which is\n"
         "~/.local/share/card-haven where that isn't set.\n";
}

std::optional<int> ReadCommandLine(Program program, int argc, char** argv, Options& options) {
  try {
    options = ParseOptions(program, std::vector<std::string>(argv + std::min(argc, 1), argv + argc));
  } catch (const BadOptions& wrong) {
    std::cerr << Name(program) << ": " << wrong.what() << "\n\n" << Usage(program);
    return 2;
  }
  if (options.help) {
    std::cout << Usage(program);
    return EXIT_SUCCESS;
  }
  if (options.version) {
    const std::string commit = CARDHAVEN_COMMIT;
    std::cout << Name(program) << " " << CARDHAVEN_VERSION << (commit.empty() ? "" : " (" + commit + ")")
              << "\n";
    return EXIT_SUCCESS;
  }
  return std::nullopt;
}

bool IsTable(std::string_view file) {
  return file.ends_with(".Txt") && file.find("Scores") != std::string_view::npos;
}

fs::path FindAppPath(const Options& options) {
  fs::path kept = options.folder.empty() ? fs::path() : folders::Absolute(options.folder);
  if (!kept.empty()) {
    folders::Make(kept);
    return kept;
  }
  const fs::path own = ProgramFolder();
  if (folders::Exists(own / "portable")) return own;
  const fs::path data = folders::OfPlayersData();
  if (data.empty())
    throw std::runtime_error("there is no home folder to keep files in; name a folder with --folder");
  kept = data / "card-haven";
  folders::Make(kept);
  CarryOver(own, kept);
  return kept;
}

SuiteOptions SuiteFor(const Options& options, const fs::path& folder, Program program) {
  return {folder, options.deal, options.game, options.today,
          [program](const std::string& text) { std::cerr << Name(program) + ": " + text + "\n"; }};
}

fs::path FindDataFolder() {
  // A build folder has the installed layout too, by a link; so what is moved as a whole finds its data.
  const fs::path beside = ProgramFolder().parent_path() / "share/card-haven";
  for (const fs::path& folder : {beside, fs::path(CARDHAVEN_DATA_DIR)})
    if (folders::IsFolder(folder / "pictures")) return folder;
  return beside;
}
