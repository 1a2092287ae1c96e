// Days as texts.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace results {

// Of a text that begins with a day: "2026-11-22", "2026-11-22T12:00:00+01:00".
std::chrono::sys_days ReadDay(std::string_view text);
// "November"; its first three letters are its short name.
const char* MonthName(std::chrono::sys_days day);
// "22 November 2026", "22 Nov 2026"
std::string LongDay(std::chrono::sys_days day);
std::string ShortDay(std::chrono::sys_days day);

}  // namespace results
