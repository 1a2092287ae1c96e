#include "suite/suite.h"

#include <algorithm>

Suite::Suite(Platform& platform, const SuiteOptions& options, std::vector<GameEntry> games)
    : common(platform, options.AppPath), games_(std::move(games)), selector_(common, games_) {
  platform.OnFailure = [this](const std::string& description) { Fail(description); };
}

Suite::~Suite() { common.platform.OnFailure = nullptr; }

void Suite::Start() {
  common.platform.Dispatch([this] { selector_.Show(); });
}

// The player is told, the game in progress is over, and the suite goes on: with a window to go on in.
void Suite::Fail(const std::string& description) {
  common.MsgBox(description, Icon::Critical);
  if (common.window) {
    common.TakingScore = false;
    common.window->MousePointer = kDefaultPointer;
    try {
      if (common.GameInProgress) common.window->GameFailed();
    } catch (const RuntimeError& again) {
      common.MsgBox(again.what(), Icon::Critical);
    }
  }
  if (common.window && !common.window->Visible)
    common.window->Discard();  // it failed before it could be shown
  selector_.MousePointer = kDefaultPointer;
  const bool anyShown =
      std::ranges::any_of(common.platform.forms, [](const Form* form) { return form->Visible.get(); });
  if (!anyShown) selector_.Show();
}
