// The desktop program around the windows: the screen, the style, the signals.
#pragma once

#include <functional>
#include <optional>

#include "window/desktop/scripted.h"
#include "window/desktop/view/proofs.h"

struct DesktopOptions {
  DesktopFolders folders;
  std::optional<ScriptOptions> script;  // commands come from standard input
  Guides guides;                        // for a player; a script needs none
  RecordDesk records;                   // for a player
  bool keepsRecords = false;            // unless the player's view says otherwise
  std::vector<KnownGame> games = {};    // for statistics
};

// Opens the screen, lets `start` show the first window on its platform, and runs until the program ends. What
// `start` returns is kept till then. The exit status; 1 with a line on standard error if there is no screen.
int RunDesktop(char** argv, const DesktopOptions& options, const PictureFiles& pictures,
               const std::function<std::shared_ptr<void>(DesktopFrontEnd&)>& start);

class WatchingDesktop;
struct Recording;
// The same for a recording, which `once` plays from its beginning.
int RunWatching(char** argv, const DesktopOptions& options, const PictureFiles& pictures,
                const Recording& recording, const std::function<void(WatchingDesktop&)>& once);
// Tells whoever wanted to watch why that can't be.
void TellOfRecord(char** argv, const std::string& verdict);
