// The games of the suite, in the order of their buttons.
#pragma once

#include <vector>

#include "suite/select.h"
#include "window/guide.h"

std::vector<GameEntry> AllGames();

// The guide to a window of the suite; null for one that needs none.
std::unique_ptr<Guide> MakeGuide(Form& form);
