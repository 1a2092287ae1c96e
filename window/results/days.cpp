#include "window/results/days.h"

#include "window/text.h"

using std::chrono::sys_days;

namespace results {

namespace {

std::string Text(sys_days day, std::string_view month) {
  const std::chrono::year_month_day date(day);
  return std::to_string(unsigned(date.day())) + " " + std::string(month) + " " +
         std::to_string(int(date.year()));
}

}  // namespace

sys_days ReadDay(std::string_view text) {
  const auto number = [&](size_t from, size_t length) {
    int value = 0;
    ParseLong(text.substr(std::min(from, text.size()), length), value);
    return value;
  };
  using namespace std::chrono;
  return year_month_day{year(number(0, 4)), month(static_cast<unsigned>(number(5, 2))),
                        day(static_cast<unsigned>(number(8, 2)))};
}

const char* MonthName(sys_days day) {
  static constexpr const char* kMonths[] = {"January",   "February", "March",    "April",
                                            "May",       "June",     "July",     "August",
                                            "September", "October",  "November", "December"};
  return kMonths[unsigned(std::chrono::year_month_day(day).month()) - 1];
}

std::string LongDay(sys_days day) { return Text(day, MonthName(day)); }

std::string ShortDay(sys_days day) { return Text(day, std::string_view(MonthName(day)).substr(0, 3)); }

}  // namespace results
