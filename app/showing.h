// Shows a record to somebody who watches it, in whichever windows.
#pragma once

#include "record/replay.h"
#include "window/watching.h"

// What whoever watches is told of a record that holds.
Recording Describe(const record::Contents& contents, const GameResult& result);

// Plays it on that platform until the viewer leaves.
void Show(Watching& watching, std::string_view text, Platform& platform);
