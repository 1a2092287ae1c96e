// Keys and words for Blackrush's board.
#pragma once

#include "games/blackrush/blackrush.h"
#include "suite/guide.h"

std::unique_ptr<Guide> GuideTo(frmBlackrush& window);
