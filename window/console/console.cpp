#include "window/console/console.h"

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
