// Watching a record in real windows.
#pragma once

#include "app/options.h"
#include "window/desktop/program.h"

// A record that was opened as saved games are is watched.
void TakeRecord(Options& options);
// Plays the record that the options name before a viewer, until he leaves. The exit status: 1 if it doesn't
// hold, 2 if it is none.
int Watch(char** argv, const Options& options, const DesktopOptions& desktop);
