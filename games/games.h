// The games of the suite, in the order of their buttons.
#pragma once

#include <vector>

#include "suite/select.h"

std::vector<GameEntry> AllGames();
