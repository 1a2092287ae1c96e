// Whether the player's desktop asks its programs not to move things for show.
#pragma once

#include <functional>

class QObject;

namespace animations {

// What the files of the desktop's settings say: KDE's, or GTK's.
bool AreOffInFiles();
// Asks the settings portal, which speaks for the desktops that keep no such file; `tell` may be called later,
// once, while `context` is there. Not called where there is no portal.
void AskPortal(QObject& context, const std::function<void(bool off)>& tell);

}  // namespace animations
