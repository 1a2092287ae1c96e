#include "harmony.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <string>

namespace make_tune {
namespace {

const std::map<std::string, std::vector<int>, std::less<>>& Qualities() {
  static const std::map<std::string, std::vector<int>, std::less<>> qualities = {
      {"", {0, 4, 7}},       {"m", {0, 3, 7}},      {"6", {0, 4, 7, 9}},   {"m6", {0, 3, 7, 9}},
      {"7", {0, 4, 7, 10}},  {"m7", {0, 3, 7, 10}}, {"M7", {0, 4, 7, 11}}, {"m7b5", {0, 3, 6, 10}},
      {"dim", {0, 3, 6, 9}}, {"aug", {0, 4, 8}},    {"9", {0, 4, 10, 14}}, {"7sus", {0, 5, 7, 10}},
  };
  return qualities;
}

}  // namespace

std::optional<int> TakeNoteName(std::string_view& text) {
  constexpr int kClasses[] = {9, 11, 0, 2, 4, 5, 7};  // a to g
  if (text.empty()) return std::nullopt;
  const int letter = std::tolower(static_cast<unsigned char>(text.front()));
  if (letter < 'a' || letter > 'g') return std::nullopt;
  int result = kClasses[letter - 'a'];
  text.remove_prefix(1);
  if (!text.empty() && text.front() == '#') {
    ++result;
    text.remove_prefix(1);
  } else if (!text.empty() && text.front() == 'b') {
    --result;
    text.remove_prefix(1);
  }
  return result;
}

std::optional<Chord> ParseChord(std::string_view symbol) {
  if (symbol.empty() || !std::isupper(static_cast<unsigned char>(symbol.front()))) return std::nullopt;
  const std::optional<int> root = TakeNoteName(symbol);
  if (!root) return std::nullopt;
  const std::size_t slash = symbol.find('/');
  const auto quality = Qualities().find(symbol.substr(0, slash));
  if (quality == Qualities().end()) return std::nullopt;
  Chord chord;
  for (int step : quality->second) chord.classes.push_back((*root + step + 12) % 12);
  chord.bass = chord.classes.front();
  if (slash != std::string_view::npos) {
    std::string_view rest = symbol.substr(slash + 1);
    const std::optional<int> bass = TakeNoteName(rest);
    if (!bass || !rest.empty()) return std::nullopt;
    chord.bass = (*bass + 12) % 12;
  }
  return chord;
}

bool InChord(const Chord& chord, int pitch) {
  return std::find(chord.classes.begin(), chord.classes.end(), pitch % 12) != chord.classes.end();
}

std::vector<int> Voicing(const Chord& chord, const std::vector<int>& before) {
  constexpr int kLow = 53;
  constexpr int kMiddle = 61;
  std::vector<int> best;
  int best_cost = 0;
  for (std::size_t lowest = 0; lowest < chord.classes.size(); ++lowest) {
    std::vector<int> voices;
    int pitch = kLow - 1;
    // From the lowest voice up, each time the nearest chord note above the last.
    for (std::size_t i = 0; i < chord.classes.size(); ++i) {
      int next = pitch + 1;
      while (i == 0 ? next % 12 != chord.classes[lowest] : !InChord(chord, next)) ++next;
      voices.push_back(next);
      pitch = next;
    }
    int cost = 2 * std::abs((voices.front() + voices.back()) / 2 - kMiddle);
    if (!before.empty())
      cost += std::abs(voices.front() - before.front()) + 2 * std::abs(voices.back() - before.back());
    if (best.empty() || cost < best_cost) {
      best = voices;
      best_cost = cost;
    }
  }
  return best;
}

int NearestPitch(int pitch_class, int near, int low, int high) {
  int best = -1;
  for (int pitch = low; pitch <= high; ++pitch) {
    if (pitch % 12 != (pitch_class + 12) % 12) continue;
    if (best < 0 || std::abs(pitch - near) < std::abs(best - near)) best = pitch;
  }
  return best;
}

}  // namespace make_tune
