// Keys and words for Handgrid's board.
#pragma once

#include "games/handgrid/handgrid.h"
#include "suite/guide.h"

std::unique_ptr<Guide> GuideTo(frmHandgrid& window);
