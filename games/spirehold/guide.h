// Keys and words for Spirehold's board.
#pragma once

#include "games/spirehold/spirehold.h"
#include "suite/guide.h"

std::unique_ptr<Guide> GuideTo(frmSpirehold& window);
