// How all windows look, and who is told when that changes: what the player has chosen, and what the desktop's
// own settings ask for.
#pragma once

#include <QTimer>
#include <filesystem>
#include <functional>

#include "window/desktop/painting/paintbox.h"
#include "window/desktop/view/view.h"

class Looks {
 public:
  // The view is read from that file, and kept there; where none is named nothing is kept.
  Looks(std::filesystem::path file, Paintbox& paintbox);
  ~Looks();
  Looks(const Looks&) = delete;

  // Called when windows are to be drawn in another way from now on.
  std::function<void()> changed;
  // Whether this program keeps records of games at all. Set before the first window is loaded.
  bool mayKeepRecords = false;
  // Whether the view is kept. Where a recording is shown nothing of that is the player's.
  bool keepsView = true;

  const View& Now() const { return view_; }
  // Shows all windows in this way from now on, and keeps it.
  void Set(const View& view);
  // The same for a view that is changed in one thing.
  template <class Change>
  void Alter(Change change) {
    View view = view_;
    change(view);
    Set(view);
  }

  // Whether nothing is to move or blink for show: asked for here or in the desktop's own settings.
  bool LessMotion() const { return view_.lessMotion || DesktopStopsMotion(); }
  // Whether the desktop asks for it, whatever the View menu says.
  bool DesktopStopsMotion() const { return filesStopMotion_ || portalStopsMotion_; }
  // Asks the desktop now, and whenever the player comes back, perhaps from its settings.
  void HeedDesktop();
  // Cards are never seen to move: nobody looks.
  void HoldCards(bool held);

 private:
  void Apply();
  void AskDesktop();
  void DesktopSays(bool& stopsMotion, bool now);
  void Keep();

  const std::filesystem::path file_;
  Paintbox& paintbox_;
  View view_, kept_;  // as it is, and as it was read or written last
  bool filesStopMotion_ = false, portalStopsMotion_ = false, held_ = false;
  QTimer timer_;
};
