#include "window/console/console.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <istream>
#include <ostream>

#include "window/system/leaving.h"

ConsoleFrontEnd::ConsoleFrontEnd(const ConsoleOptions& options, std::istream& in, std::ostream& out)
    : options_(options), in_(in), out_(out), script_(platform, *this, out) {
  platform.trace = &script_;
}

// Each line is obeyed as it comes, with all that it leads to.
Event ConsoleFrontEnd::Next(const Wait& wait) {
  if (wait.serving == Wait::Serving::Nothing) clock_.PassTo(wait.until);
  if (wait.serving != Wait::Serving::All) return {};
  script_.AnswerNow();
  std::string line;
  if (!out_ || !std::getline(in_, line)) return {Event::Kind::Over};
  script_.Execute(line);
  return {script_.Quit() ? Event::Kind::Over : Event::Kind::None};
}

void ConsoleFrontEnd::Advance(int milliseconds) {
  clock_.Advance(
      milliseconds, [this](long long moment) { clock_.PassTo(moment); },
      [this] {
        if (leaving::IsWanted()) leaving::Now(EXIT_SUCCESS);
        platform.Enter({Event::Kind::Tick});
      });
}

DateTime ConsoleFrontEnd::Now() {
  using namespace std::chrono;
  const sys_days day = year_month_day{year{options_.start.year}, month(options_.start.month),
                                      std::chrono::day(options_.start.day)};
  const sys_seconds moment = day + hours(options_.start.hour) + minutes(options_.start.minute) +
                             seconds(options_.start.second) + floor<seconds>(milliseconds(clock_.Now()));
  const sys_days today = floor<days>(moment);
  const year_month_day date(today);
  const hh_mm_ss clock(moment - today);
  return {int(date.year()),           int(unsigned(date.month())),  int(unsigned(date.day())),
          int(clock.hours().count()), int(clock.minutes().count()), int(clock.seconds().count())};
}

Extent ConsoleFrontEnd::TextExtent(const Label& label) {
  // Letters of one breadth: a rule that needs no font and gives the same everywhere.
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
