#include "history/history.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "history/deal_number.h"

namespace {

constexpr const char* kEnds[] = {"played", "time", "given-up", "closed"};
constexpr size_t kFields = 12;

// A whole number from `least` to `most`, written as numbers are.
template <class Number>
bool Read(std::string_view text, Number least, Number most, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number >= least && number <= most;
}

// "2026-11-21T12:00:00+01:00"
bool IsMoment(std::string_view text) {
  constexpr std::string_view kShape = "0000-00-00T00:00:00+00:00";
  return std::ranges::equal(text, kShape, [](char letter, char shape) {
    if (shape == '0') return letter >= '0' && letter <= '9';
    return letter == shape || (shape == '+' && letter == '-');
  });
}

bool IsName(std::string_view text, std::string_view alsoAllowed) {
  return std::ranges::all_of(text, [&](char letter) {
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') ||
           alsoAllowed.find(letter) != std::string_view::npos;
  });
}

}  // namespace

std::string FormatGame(const PlayedGame& game) {
  std::string line = game.ended + "," + game.game;
  const auto add = [&](const std::string& field) { line += "," + field; };
  add(std::to_string(game.limit));
  add(game.goal ? std::to_string(*game.goal) : "");
  add(game.custom ? "1" : "0");
  add(std::to_string(game.rounds));
  add(std::to_string(game.score));
  add(std::to_string(game.place));
  add(std::to_string(game.seconds));
  add(std::to_string(game.deal));
  add(kEnds[static_cast<int>(game.end)]);
  add(game.record);
  return line;
}

std::optional<PlayedGame> ParseGame(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  std::array<std::string_view, kFields> fields;
  size_t count = 0;
  while (count < kFields) {
    const size_t comma = line.find(',');
    fields[count++] = line.substr(0, comma);
    if (comma == line.npos) break;
    line.remove_prefix(comma + 1);
    if (count == kFields) return std::nullopt;
  }
  if (count != kFields) return std::nullopt;
  const auto& [ended, name, limit, goal, custom, rounds, score, place, seconds, deal, end, record] = fields;
  PlayedGame game{.ended = std::string(ended), .game = std::string(name), .record = std::string(record)};
  constexpr int kMost = 2147483647;
  int marked = 0, points = 0;
  const auto* const known = std::ranges::find(kEnds, end);
  if (!IsMoment(ended) || name.empty() || !IsName(name, "") || !Read(limit, 0, kMost, game.limit) ||
      !Read(custom, 0, 1, marked) || !Read(rounds, 0, kMost, game.rounds) ||
      !Read(score, -kMost - 1, kMost, game.score) || !Read(place, 0, 10, game.place) ||
      !Read(seconds, 0ll, 1ll << 40, game.seconds) || !Read(deal, 0, kLastDeal, game.deal) ||
      known == std::end(kEnds) || !IsName(record, "0123456789.-_"))
    return std::nullopt;
  if (!goal.empty()) {
    if (!Read(goal, 0, kMost, points)) return std::nullopt;
    game.goal = points;
  }
  game.custom = marked != 0;
  game.end = static_cast<GameEnd>(known - kEnds);
  return game;
}

namespace {

// Calls with each line, without its end.
template <class Take>
void EachLine(std::string_view text, Take take) {
  while (!text.empty()) {
    const size_t length = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    take(line);
  }
}

}  // namespace

void EachGame(std::string_view text, const std::function<void(std::string_view, const PlayedGame&)>& take) {
  EachLine(text, [&](std::string_view line) {
    if (const auto game = ParseGame(line)) take(line, *game);
  });
}

std::vector<PlayedGame> ParseHistory(std::string_view text) {
  std::vector<PlayedGame> games;
  games.reserve(static_cast<size_t>(std::ranges::count(text, '\n')) + 1);
  EachLine(text, [&](std::string_view line) {
    if (auto game = ParseGame(line)) games.push_back(std::move(*game));
  });
  return games;
}
