#include "suite/settings.h"

#include <algorithm>
#include <utility>

#include "window/text.h"

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
  if (reads == Reads::No) return;
  if (bool* const* flag = std::get_if<bool*>(&value)) return ApplyFlag(text, **flag);
  int number = 0;
  if (!ParseLong(text, number) || (!only.empty() && !std::ranges::count(only, number))) return;
  if (!std::holds_alternative<Integer*>(value) || std::in_range<std::int16_t>(number)) SetNumber(number);
}

const GameSetting* GameSettings::Find(std::string_view section) const {
  const auto setting = std::ranges::find(*this, section, &GameSetting::section);
  return section.empty() || setting == end() ? nullptr : &*setting;
}

bool GameSettings::Apply(std::string_view section, std::string_view text) const {
  if (!Find(section)) return false;
  for (const GameSetting& setting : *this)
    if (setting.section == section) setting.Apply(text);
  return true;
}

void GameSettings::SetStandard() const {
  for (const GameSetting& setting : *this) setting.SetNumber(setting.standard);
}

bool GameSettings::AreCustomised() const {
  return std::ranges::any_of(*this, [](const GameSetting& setting) {
    return setting.customises == Customises::Yes && !setting.IsStandard();
  });
}

std::vector<const GameSetting*> GameSettings::WithField() const {
  std::vector<const GameSetting*> with;
  for (const GameSetting& setting : *this)
    if (setting.field) with.push_back(&setting);
  return with;
}

std::string FlagText(bool flag) { return flag ? "True" : "False"; }

void ApplyFlag(std::string_view text, bool& flag) {
  if (text == "True") flag = true;
  if (text == "False") flag = false;
}
