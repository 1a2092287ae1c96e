// Keys and words for Sumfall's board.
#pragma once

#include "games/sumfall/sumfall.h"
#include "suite/guide.h"

std::unique_ptr<Guide> GuideTo(frmSumfall& window);
