// Events as words of a record, and back.
#pragma once

#include "record/lines.h"
#include "window/platform.h"

namespace record {

// "click", "tick"; "" for what no record holds.
std::string_view NameOf(Event::Kind kind);
// The words behind the time: whom it happened to, and what is to be told of it.
std::string Told(const Event& event);

// An event that is to be made again.
struct Again {
  Event event;
  std::string text;  // that `event` needs
};

// What follows the time on the line of such an event. Throws `NoRecord` where it can't be an event at all;
// `whyNot` is why it can't happen as the windows stand, "" if it can.
Again ReadEvent(Line& line, Event::Kind kind, const Platform& platform, std::string& whyNot);
// The kind of that name; `None` if there is none.
Event::Kind KindOf(std::string_view name);

}  // namespace record
