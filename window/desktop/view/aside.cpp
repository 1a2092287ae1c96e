#include "window/desktop/view/aside.h"

#include <QDialog>

#include "window/desktop/input/deeds.h"
#include "window/desktop/painting/style.h"

void ShowAside(QDialog& dialog, Form& form, const Guide& guide, Deeds& deeds, QWidget& window) {
  // Presses Pause if the game stands on the other side of it; tells whether it has.
  const auto setPaused = [&guide](bool paused) {
    Control* const pause = guide.Pause();
    if (!pause || guide.Paused() == paused || !player::WhyNot(*pause).empty()) return false;
    player::Click(*pause);
    return true;
  };
  const bool pausedIt = setPaused(true);
  dialog.setAttribute(Qt::WA_DeleteOnClose);
  dialog.setWindowModality(Qt::ApplicationModal);
  QObject::connect(&dialog, &QDialog::finished, &window, [&deeds, &form, &window, pausedIt, setPaused] {
    if (!deeds.Knows(form)) return;
    window.activateWindow();
    if (pausedIt) deeds.Deliver(form, [setPaused] { setPaused(false); });
  });
  dialog.show();
  dialog.activateWindow();
}
