#include "suite/suite.h"

#include <algorithm>

Suite::Suite(Platform& platform, const SuiteOptions& options, std::vector<GameEntry> games)
    : common(platform, options.AppPath),
      options_(options),
      games_(std::move(games)),
      selector_(common, games_) {
  common.askedDeal = {options.deal, options.deal != 0};
  common.complain = options.complain;
  platform.OnFailure = [this](const std::string& description) { Fail(description); };
  platform.OnKeep = [this] {
    if (common.window) common.window->KeepSettings();
  };
  platform.OnLeave = [this] { Leave(); };
  platform.AfterHandler = [this] { AfterHandler(); };
}

Suite::~Suite() {
  common.platform.OnFailure = nullptr;
  common.platform.OnKeep = nullptr;
  common.platform.OnLeave = nullptr;
  common.platform.AfterHandler = nullptr;
}

void Suite::Start() {
  common.chanceIsGiven = common.platform.random.Seeded();
  common.platform.Dispatch([this] { selector_.Show(); });
  const auto game = std::ranges::find(games_, options_.game, &GameEntry::Name);
  if (game == games_.end()) return;
  common.platform.Dispatch([&] { selector_.Open(*game, options_.today); });
}

// What closing the windows would have kept is kept; the round in progress is given up.
void Suite::Leave() {
  common.files.mustHurry = [] { return true; };
  if (common.EnterWaitingScore) common.EnterWaitingScore();
  if (common.window) {
    common.window->log.Close();
    common.window->KeepSettings();
  }
  common.files.TryAgain();
}

// The player is told, the game in progress is over, and the suite goes on.
void Suite::Fail(const std::string& description) {
  common.MsgBox(description, Icon::Critical);
  if (common.window) {
    Standing& standing = common.window->standing;
    standing.InputLives();
    common.window->MousePointer = kDefaultPointer;
    const auto again = FailureOf([&] {
      if (standing.InGame())
        common.window->GameFailed();
      else if (!standing.CanStart())
        common.window->BackToIdle();
    });
    if (again) {
      common.MsgBox(*again, Icon::Critical);
      common.window->BackToIdle();
    }
  }
  if (common.window && !common.window->Visible)
    common.window->Discard();  // it failed before it could be shown
  selector_.MousePointer = kDefaultPointer;
}

// A close box that was pressed meanwhile has its turn; and whatever a handler has led to, the player has a
// window to go on in.
void Suite::AfterHandler() {
  if (GameWindow* window = common.window; window && window->ClosesNow())
    common.platform.Dispatch([window] { window->CloseIfWanted(); });
  const bool anyShown =
      std::ranges::any_of(common.platform.forms, [](const Form* form) { return form->Visible.get(); });
  if (!anyShown) selector_.Show();
}
