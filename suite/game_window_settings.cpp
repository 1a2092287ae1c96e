// How a game window reads and writes its settings file.
#include <algorithm>

#include "suite/game_window.h"
#include "suite/settings_file.h"
#include "window/text.h"

void GameWindow::ReadSettingsINI() {
  const auto apply = [this](std::string_view section, std::string_view value) {
    return ApplySetting(section, value);
  };
  const auto path = common.files.PathOf(plan.names.settingsFile);
  std::string text;
  if (daily != 0) {
    ReadSettings(SettingsText(), apply);
    if (common.files.Read(path, text) == ReadOutcome::Read)
      ReadSettings(text, [&](std::string_view section, std::string_view value) {
        return (section == "[Play Sounds]" || section == "[Play Music]") && apply(section, value);
      });
    return;
  }
  const ReadOutcome outcome = common.files.Read(path, text);
  if (outcome == ReadOutcome::Read && ReadSettings(text, apply) > 0) return;
  // The defaults are written, and read like any other settings, so that ticks and labels follow.
  ReadSettings(SaveSettings(), apply);
}

bool GameWindow::ApplySetting(std::string_view section, std::string_view value) {
  if (ApplyGameSetting(section, value)) return true;
  if (settings.Apply(section, value)) return true;
  int number = 0;
  const bool isNumber = ParseLong(value, number);
  const auto applyFlag = [&](bool& flag, Menu& entry) {
    if (plan.otherTextIsOff) flag = false;
    ApplyFlag(value, flag);
    entry.Checked = flag;
  };
  if (section == plan.names.timeSection) {
    const auto limit = std::ranges::find(plan.limits, number, &TimeLimitEntry::seconds);
    if (isNumber && limit != plan.limits.end() && limit->comesBack) ChooseTimeLimit(number);
  } else if (section == "[Play Sounds]") {
    applyFlag(common.PlaySounds, mnuSounds);
  } else if (section == "[Play Music]") {
    applyFlag(common.PlayMusic, mnuMusic);
  } else if (section == "[Deck]") {
    if (isNumber && number >= 1 && number <= 4) ChooseDeck(number);
  } else if (section == "[State]") {
    if (isNumber && number >= window_state::kNormal && number <= window_state::kMaximised)
      WindowState = number;
  } else if (section == "[Width]" || section == "[Height]") {
    if (isNumber) ApplySize(section, number);
  } else {
    return false;
  }
  return true;
}

// A window larger than the screen couldn't be handled: it may have been kept on a larger one.
void GameWindow::ApplySize(std::string_view section, int value) {
  if (WindowState == window_state::kMaximised) return;
  // One that is too small is left to the resize event, which a minimised window doesn't have.
  const bool resizes = WindowState == window_state::kNormal;
  const Extent screen = platform.ScreenExtent();
  if (section == "[Width]")
    Width = std::clamp(value, resizes ? 1 : plan.width, std::max(plan.width, screen.width));
  else
    Height = std::clamp(value, resizes ? 1 : plan.height, std::max(plan.height, screen.height));
}

void GameWindow::CheckForCustom() { common.CustomScoringInUse = settings.AreCustomised(); }

std::string GameWindow::SettingText(std::string_view section) const {
  if (const GameSetting* own = settings.Find(section)) return own->Text();
  const bool maximised = WindowState == window_state::kMaximised;
  if (section == plan.names.timeSection) return std::to_string(clock.TimeLimit);
  if (section == "[Play Sounds]") return FlagText(common.PlaySounds);
  if (section == "[Play Music]") return FlagText(common.PlayMusic);
  if (section == "[Deck]") return std::to_string(common.DeckDesign);
  if (section == "[State]") return std::to_string(WindowState);
  if (section == "[Width]") return std::to_string(maximised ? plan.width : Width.get());
  if (section == "[Height]") return std::to_string(maximised ? plan.height : Height.get());
  throw std::logic_error("nobody knows what stands under " + std::string(section));
}

std::string GameWindow::SettingsText() const {
  SettingsWriter writer;
  for (const char* section : plan.sections) writer.Add(section, SettingText(section));
  return writer.Text();
}

std::string GameWindow::KeepSettings() {
  const std::string text = SettingsText();
  if (daily != 0) return text;
  const auto makesSense = [sections = plan.sections](const std::string& old) {
    return Trim(old).empty() || ReadSettings(old, [&](std::string_view line, std::string_view) {
                                  return std::ranges::count(sections, line) > 0;
                                }) > 0;
  };
  common.files.Keep(common.files.PathOf(plan.names.settingsFile),
                    {[text](const std::string&) { return text; }, makesSense, true, true});
  return text;
}

std::string GameWindow::SaveSettings() {
  const std::string text = KeepSettings();
  common.TellWhatCantBeKept();
  return text;
}

std::string GameWindow::TableFile(const std::string& tableName) const {
  const GameSetting* goal = settings.Find(plan.tables.goal.section);
  return "\\" + tableName + (plan.HasClock() ? std::to_string(clock.TimeLimit) : "") +
         (goal ? "_" + goal->Text() : "") + ".Txt";
}

std::string GameWindow::HighScoreInfo() const {
  const GameSetting* goal = settings.Find(plan.tables.goal.section);
  return (goal ? plan.tables.goal.info + goal->Text() + "\r\n" : "") +
         "* denotes customized scoring was used";
}

std::string GameWindow::RulesPage() const {
  RulesValues values = MoreRulesValues();
  values.emplace_back("title", common.AppTitle);
  values.emplace_back("limit", std::to_string(clock.TimeLimit));
  values.emplace_back("quarter", std::to_string(clock.TimeLimit / 4));
  values.emplace_back("takeScore", cmdTakeScore.Caption.get().substr(1));
  for (const GameSetting& setting : settings) values.emplace_back(setting.name, setting.Text());
  return ComposeRules(common.AppTitle, plan.rules, values);
}
