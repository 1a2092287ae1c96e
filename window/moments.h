// Moments of the calendar as texts.
#pragma once

#include <string>

#include "window/border.h"

// "2026-11-21T12:00:00+01:00"
std::string IsoText(const DateTime& moment);
// The day in UTC: "2026-11-21".
std::string UtcDay(const DateTime& moment);
