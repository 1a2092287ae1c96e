// The games of the suite, in the order of their buttons.
#pragma once

#include <vector>

#include "history/statistics.h"
#include "suite/select.h"
#include "window/guide.h"

std::vector<GameEntry> AllGames();
// The same as statistics know them.
std::vector<KnownGame> KnownGames();

// The guide to a window of the suite; null for one that needs none.
std::unique_ptr<Guide> MakeGuide(Form& form);
