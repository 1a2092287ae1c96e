// A page drawn: scores one after the other, how often each came, and the days.
#pragma once

#include "window/results/drawing.h"
#include "window/results/page.h"

namespace results {

// The page over that area; pixels at 100 %. The ground is there already. Without a game there is nothing but
// a friendly word.
void DrawPage(Drawing& drawing, const Page& page, const Area& area);
// Its pictures alone, as wide as that, and as tall if they have room so; how tall they are. One below the
// other where they have no room side by side.
double DrawCharts(Drawing& drawing, const Page& page, double width, double height);

// The least area that holds everything.
inline constexpr int kLeastWidth = 480, kLeastHeight = 300;
// What a picture to save shows.
inline constexpr int kSavedWidth = 840, kSavedHeight = 540;

}  // namespace results
