#include "history/comparison.h"

#include <algorithm>
#include <iterator>

namespace {

// "third", "23rd".
std::string Ordinal(size_t number) {
  static constexpr const char* kWords[] = {"first",   "second", "third", "fourth", "fifth",    "sixth",
                                           "seventh", "eighth", "ninth", "tenth",  "eleventh", "twelfth"};
  if (number <= std::size(kWords)) return kWords[number - 1];
  static constexpr const char* kEndings[] = {"th", "st", "nd", "rd"};
  const size_t last = number % 10;
  return std::to_string(number) + kEndings[number % 100 / 10 != 1 && last <= 3 ? last : 0];
}

}  // namespace

bool SameSettings(const PlayedGame& a, const PlayedGame& b) {
  return a.game == b.game && a.limit == b.limit && a.goal == b.goal && a.custom == b.custom;
}

std::string SettingsText(const PlayedGame& game) {
  std::string text = game.limit > 0 ? "at " + std::to_string(game.limit) + " seconds" : "";
  const auto add = [&](const std::string& more) { text += (text.empty() ? "" : ", ") + more; };
  if (game.goal) add("goal " + std::to_string(*game.goal));
  if (game.custom) add("own scoring");
  return text;
}

std::string SettingsField(const PlayedGame& game) {
  return "," + game.game + "," + std::to_string(game.limit) + "," +
         (game.goal ? std::to_string(*game.goal) : "") + (game.custom ? ",1," : ",0,");
}

// A tie goes below, as in the tables.
std::string HowItCompares(const PlayedGame& game, const std::vector<PlayedGame>& history) {
  if (!game.PlayedOut()) return "";
  size_t games = 1, better = 0;
  bool itself = false;
  for (auto other = history.rbegin(); other != history.rend(); ++other) {
    if (!other->PlayedOut() || !SameSettings(*other, game)) continue;
    if (!itself && *other == game) {
      itself = true;
      continue;
    }
    ++games;
    if (other->score >= game.score) ++better;
  }
  const std::string by = SettingsText(game), end = by.empty() ? "" : " " + by;
  if (games == 1) return "Your first game" + end;
  return "Your " + (better == 0 ? "" : Ordinal(better + 1) + " ") + "best of " + std::to_string(games) + end;
}
