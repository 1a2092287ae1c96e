#include "suite/settings.h"

#include <utility>

#include "window/text.h"

namespace {

template <class Rep>
void ApplyNumber(std::string_view text, Checked<Rep>& number) {
  int read = 0;
  if (ParseLong(text, read) && std::in_range<Rep>(read)) number = read;
}
void ApplyNumber(std::string_view text, bool& flag) { ApplyFlag(text, flag); }

}  // namespace

bool GameSetting::IsStandard() const { return Number() == standard; }

long long GameSetting::Number() const {
  return std::visit([](const auto* number) { return static_cast<long long>(*number); }, value);
}

void GameSetting::SetNumber(long long number) const {
  std::visit([&](auto* kept) { *kept = number; }, value);
}

std::string GameSetting::Text() const {
  return std::holds_alternative<bool*>(value) ? FlagText(Number() != 0) : std::to_string(Number());
}

void GameSetting::Apply(std::string_view text) const {
  if (reads == Reads::Yes) std::visit([&](auto* kept) { ApplyNumber(text, *kept); }, value);
}

std::vector<const GameSetting*> WithField(const std::vector<GameSetting>& settings) {
  std::vector<const GameSetting*> with;
  for (const GameSetting& setting : settings)
    if (setting.field) with.push_back(&setting);
  return with;
}

std::string FlagText(bool flag) { return flag ? "True" : "False"; }

void ApplyFlag(std::string_view text, bool& flag) {
  if (text == "True") flag = true;
  if (text == "False") flag = false;
}
