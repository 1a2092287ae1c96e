// Keys and words for Duopick's board.
#pragma once

#include "games/duopick/duopick.h"
#include "suite/guide.h"

std::unique_ptr<Guide> GuideTo(frmDuopick& window);
