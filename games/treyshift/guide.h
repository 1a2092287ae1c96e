// Keys and words for Treyshift's board.
#pragma once

#include "games/treyshift/treyshift.h"
#include "suite/guide.h"

std::unique_ptr<Guide> GuideTo(frmTreyshift& window);
