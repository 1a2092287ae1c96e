#include "app/reports.h"

#include <cstdlib>
#include <iostream>

#include "games/games.h"
#include "history/statistics.h"
#include "window/system/foreign_files.h"

namespace {

// False, and says so, if there is one that can't be read.
bool ReadHistory(const std::filesystem::path& folder, std::string& text) {
  const auto path = folder / kHistoryFile;
  std::string why;
  if (!ReadForeignFile(path, kLargestHistory, text, why) || why.empty()) return true;
  std::cerr << "cardhaven-console: " << path.string() << ": " << why << "\n";
  return false;
}

int Print(const std::string& text) { return std::cout << text << std::flush ? EXIT_SUCCESS : EXIT_FAILURE; }

}  // namespace

int PrintHistory(const std::filesystem::path& folder) {
  std::string text;
  if (!ReadHistory(folder, text)) return EXIT_FAILURE;
  std::string lines = std::string(kHistoryHeader) + "\n";
  EachGame(text, [&](std::string_view line, const PlayedGame&) { lines.append(line) += "\n"; });
  return Print(lines);
}

int PrintStatistics(const std::filesystem::path& folder, const std::string& game) {
  std::string text;
  if (!ReadHistory(folder, text)) return EXIT_FAILURE;
  std::vector<PlayedGame> games;
  EachGame(text, [&](std::string_view, const PlayedGame& played) {
    if (game.empty() || played.game == game) games.push_back(played);
  });
  return Print(FormatStatistics(Summarise(games, KnownGames())));
}
