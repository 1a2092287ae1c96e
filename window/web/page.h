// The page in which the program runs: what `web/host.js` does for this front end.
#pragma once

#include "window/border.h"
#include "window/system/web/host.h"

namespace page {

// Changes of the tree of controls, sounds and the like, in the order in which they came.
HOST_CALL("tell") void Tell(const char* text, size_t length);
// The only call that blocks: for so many milliseconds, below 0 for ever. `serving` is a `Wait::Serving`. The
// length of the event that came, 0 for none; `host::Take` gives it.
HOST_CALL("wait") int Wait(double milliseconds, int serving);

// What the page has asked for (`WebFrontEnd::Ask`).
HOST_CALL("answer") void Answer(const char* text, size_t length);

HOST_CALL("now") double Now();                 // milliseconds since the start
HOST_CALL("date") void Date(int* date);        // year, month, day, hour, minute, second, minutes before UTC
HOST_CALL("keepsRecords") int KeepsRecords();  // whether the player wants them kept
HOST_CALL("chance") double Chance();           // up to 2^53
// How broad a line is in letters of so many pixels.
HOST_CALL("breadth") double Breadth(const char* text, size_t length, int pixels, int bold);

inline DateTime LocalTime() {
  int date[7] = {};
  Date(date);
  return {date[0], date[1], date[2], date[3], date[4], date[5], date[6]};
}

}  // namespace page
