// Keys and words for Sumfall's board.
#pragma once

#include "games/sumfall/dialogs.h"
#include "games/sumfall/sumfall.h"
#include "suite/guide.h"

std::unique_ptr<Guide> GuideTo(frmSumfall& window);
// The windows for saved games say in which folder they are.
std::unique_ptr<Guide> GuideTo(SavedGameDialog& window);
