#include "window/console/console.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <istream>
#include <ostream>

#include "window/leaving.h"

namespace {

// The input has ended while a handler was waiting: everything is left as it stands.
struct InputEnded {};

}  // namespace

ConsoleFrontEnd::ConsoleFrontEnd(const ConsoleOptions& options, std::istream& in, std::ostream& out)
    : options_(options), in_(in), out_(out), script_(platform, *this, out) {
  platform.trace = &script_;
}

void ConsoleFrontEnd::Run() {
  script_.AnswerNow();
  try {
    while (!platform.HasEnded() && ObeyOne()) script_.AnswerNow();
  } catch (const InputEnded&) {
  }
}

bool ConsoleFrontEnd::ObeyOne() {
  std::string line;
  if (!out_ || !std::getline(in_, line)) return false;
  script_.Execute(line);
  return !script_.Quit();
}

template <class Waiting>
void ConsoleFrontEnd::Wait(Waiting waiting) {
  script_.AnswerNow();
  const long long entered = now_;
  const size_t outer = shifted_;
  shifted_ = targets_.size();
  while (true) {
    if (!ObeyOne()) throw InputEnded{};
    if (!waiting()) break;
    script_.AnswerNow();
  }
  for (size_t i = outer; i < shifted_; ++i) targets_[i] += now_ - entered;
  shifted_ = outer;
}

::Answer ConsoleFrontEnd::RunBox(const MessageBox&) {
  answer_.reset();
  Wait([this] { return !answer_; });
  const ::Answer answer = *answer_;
  answer_.reset();
  return answer;
}

void ConsoleFrontEnd::RunModal(Form& form) {
  Wait([&form] { return form.Visible.get(); });
}

void ConsoleFrontEnd::Advance(int milliseconds) {
  targets_.push_back(now_ + milliseconds);
  const size_t mine = targets_.size() - 1;
  while (!platform.HasEnded()) {
    if (leaving::IsWanted()) leaving::Now(EXIT_SUCCESS);
    const auto due = platform.timers.NextDue();
    if (!due || *due > targets_[mine]) break;
    now_ = std::max(now_, *due);
    platform.ServeTimer();
  }
  now_ = std::max(now_, targets_[mine]);
  targets_.pop_back();
}

bool ConsoleFrontEnd::MustLeave() const { return leaving::IsWanted(); }

DateTime ConsoleFrontEnd::Now() {
  using namespace std::chrono;
  const sys_days day = year_month_day{year{options_.start.year}, month(options_.start.month),
                                      std::chrono::day(options_.start.day)};
  const sys_seconds moment = day + hours(options_.start.hour) + minutes(options_.start.minute) +
                             seconds(options_.start.second) + floor<seconds>(milliseconds(now_));
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
