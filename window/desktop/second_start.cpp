#include "window/desktop/second_start.h"

#include <QApplication>
#include <QTimer>
#include <utility>

#include "window/desktop/desktop.h"
#include "window/desktop/view/form_window.h"
#include "window/desktop/view/launched.h"

SecondStarts::SecondStarts(DesktopFrontEnd& front, const std::string& folder,
                           std::function<Control*()> button)
    : front_(front), here_{"", folder, handover::Here().screen, ""}, button_(std::move(button)) {
  if (listener_.Wire() < 0) return;
  notifier_.emplace(listener_.Wire(), QSocketNotifier::Read);
  QObject::connect(&*notifier_, &QSocketNotifier::activated, &*notifier_, [this] { Hear(); });
}

// Not while anything is under way: a game mustn't end by it, and no question come up in the middle of one.
bool SecondStarts::MayTake(const handover::Request& request) const {
  Control* const button = button_();
  return button && request.folder == here_.folder && request.screen == here_.screen &&
         !front_.platform.HasEnded() && !front_.Busy() && player::WhyNot(*button).empty() &&
         !QApplication::activeModalWidget() && !QApplication::activePopupWidget();
}

void SecondStarts::Hear() {
  if (const auto request = listener_.Hear([this](const auto& offer) { return MayTake(offer); }))
    Open(*request);
}

// As if the game had been named at the start, but for this once.
void SecondStarts::Open(const handover::Request& request) {
  PrepareLaunched(request.launch);
  // Its handler doesn't end before the player has answered what he is told of the game.
  QTimer::singleShot(0, &*notifier_, [this, launch = request.launch] {
    if (QWidget* window = front_.Foremost()) ShowLaunched(*window, launch);
  });
  Control& button = *button_();
  front_.Do(button, [this, &button, file = request.file] {
    const std::string before = std::exchange(front_.platform.CommandLine, file);
    player::Click(button);
    front_.platform.CommandLine = before;
  });
}
