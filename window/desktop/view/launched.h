// Windows that open since somebody has launched the program, and not since he has done something in it: the
// desktop must be told so, or it leaves them behind what is in front.
#pragma once

#include <string>

class QWidget;

// `launch` is what the desktop has called it. Before the first window is shown, and when it stands.
void PrepareLaunched(const std::string& launch);
void ShowLaunched(QWidget& window, const std::string& launch);
