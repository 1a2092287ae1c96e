#include "window/border.h"

#include <algorithm>
#include <chrono>

#include "window/controls.h"
#include "window/system/leaving.h"

DateTime Later(const DateTime& from, long long passed) {
  using namespace std::chrono;
  const sys_days day = year_month_day{year{from.year}, month(from.month), std::chrono::day(from.day)};
  const sys_seconds moment = day + hours(from.hour) + minutes(from.minute) + seconds(from.second) +
                             floor<seconds>(milliseconds(passed));
  const sys_days today = floor<days>(moment);
  const year_month_day date(today);
  const hh_mm_ss clock(moment - today);
  return {int(date.year()),
          int(unsigned(date.month())),
          int(unsigned(date.day())),
          int(clock.hours().count()),
          int(clock.minutes().count()),
          int(clock.seconds().count()),
          from.offset};
}

Extent PlainExtent(const Label& label) {
  int lines = 1, letters = 0, longest = 0;
  for (unsigned char byte : label.Caption.get()) {
    if (byte == '\n') {
      ++lines;
      letters = 0;
    } else if (byte != '\r' && (byte & 0xC0) != 0x80) {
      longest = std::max(longest, ++letters);
    }
  }
  return {longest * label.FontSize * 10, lines * label.FontSize * 30};
}

uint64_t Border::Chance() {
  return static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

bool Border::MustLeave() { return leaving::IsWanted(); }
