// The guides to all windows of the suite.
#pragma once

#include "window/guide.h"

// The guide to a game's window, dialog or the selector; null for a window that needs none.
std::unique_ptr<Guide> MakeGuide(Form& form);
