// Keys and words for Fivestack's board.
#pragma once

#include "games/fivestack/fivestack.h"
#include "suite/guide.h"

std::unique_ptr<Guide> GuideTo(frmFivestack& window);
