#include "window/moments.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

std::string IsoText(const DateTime& moment) {
  const int offset = std::abs(moment.offset);
  char text[96];
  std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d%c%02d:%02d", moment.year, moment.month,
                moment.day, moment.hour, moment.minute, moment.second, moment.offset < 0 ? '-' : '+',
                offset / 60, offset % 60);
  return text;
}

std::string UtcDay(const DateTime& moment) {
  using namespace std::chrono;
  const sys_days local =
      year_month_day{year(moment.year), month(unsigned(moment.month)), day(unsigned(moment.day))};
  const auto utc = local + hours(moment.hour) + minutes(moment.minute - moment.offset);
  const year_month_day date(floor<days>(utc));
  char text[48];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u", int(date.year()), unsigned(date.month()),
                unsigned(date.day()));
  return text;
}
