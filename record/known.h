// What goes over the border without being told of: the answers that follow from what was told before. Whoever
// records and whoever plays again reckon with the same ones.
#pragma once

#include <algorithm>

#include "record/head.h"

namespace record {

struct Known {
  explicit Known(const std::filesystem::path& folder) : shelf(folder) {}

  Shelf shelf;
  Extent screen;
  std::map<std::string, Extent> texts;
  DateTime moment;           // by the calendar, at
  long long momentAt = 0;    // on the clock
  long long clock = 0;       // milliseconds; stands still while a handler runs
  int waits = 0, asked = 0;  // since the last line: waits that serve no ticks, and questions

  DateTime Now() const { return Later(moment, clock - momentAt); }
  Extent TextExtent(const Label& label) const {
    const auto found = texts.empty() ? texts.end() : texts.find(KeyOf(label));
    return found == texts.end() ? PlainExtent(label) : found->second;
  }
  void SetMoment(const DateTime& now) {
    moment = now;
    momentAt = clock;
  }
  // A wait that serves no ticks is over.
  void Passed(const Wait& wait) {
    ++waits;
    if (wait.serving == Wait::Serving::Nothing) clock = std::max(clock, wait.until);
  }
  void LineDone() { waits = asked = 0; }
};

}  // namespace record
