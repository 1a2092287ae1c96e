// Saved games that were opened in a file manager while this program runs: it takes them where nothing is lost
// by it.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <optional>
#include <string>

#include "window/system/handover.h"

class Control;
class DesktopFrontEnd;

class SecondStarts {
 public:
  // Listens for saved games of that folder. `button` is what a player presses to open them, null while there
  // is none to press.
  SecondStarts(DesktopFrontEnd& front, const std::string& folder, std::function<Control*()> button);

 private:
  bool MayTake(const handover::Request& request) const;
  void Hear();
  void Open(const handover::Request& request);

  DesktopFrontEnd& front_;
  const handover::Request here_;
  const std::function<Control*()> button_;
  handover::Listener listener_;
  std::optional<QSocketNotifier> notifier_;
};
