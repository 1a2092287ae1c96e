#include "window/desktop/scripted.h"

#include <unistd.h>

#include <QAbstractButton>
#include <QDateTime>
#include <QMessageBox>
#include <QSocketNotifier>
#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "window/desktop/view/boxes.h"

namespace {

constexpr int kPatience = 2000;  // milliseconds for the first window to be painted

bool Always() { return true; }

}  // namespace

ScriptedDesktop::ScriptedDesktop(const DesktopFolders& folders, PictureFiles files,
                                 const ScriptOptions& options, std::ostream& out)
    : DesktopFrontEnd(folders, std::move(files)),
      DesktopHands(static_cast<DesktopFrontEnd&>(*this)),
      options_(options),
      out_(out),
      script_(platform, *this, out) {
  platform.trace = &script_;
}

// The end of the input and `quit` leave everything as it stands, wherever the program is.
void ScriptedDesktop::Leave() {
  out_.flush();
  std::_Exit(EXIT_SUCCESS);
}

void ScriptedDesktop::Serve() {
  QTimer::singleShot(kPatience, &Context(), [this] { Painted(); });
  Wait([this] { return !HasPainted(); });
  script_.AnswerNow();
  while (!platform.HasEnded()) {
    ObeyOne(Always);
    script_.AnswerNow();
  }
}

void ScriptedDesktop::ReadInput() {
  char chunk[4096];
  const ssize_t got = read(STDIN_FILENO, chunk, sizeof chunk);
  if (got > 0) input_.append(chunk, static_cast<size_t>(got));
  if (got == 0 || (got < 0 && errno != EAGAIN && errno != EINTR)) {
    inputEnded_ = true;
    if (!input_.empty() && input_.back() != '\n') input_ += '\n';
  }
  Wake();
}

bool ScriptedDesktop::ObeyOne(const std::function<bool()>& waiting) {
  Pause(0);  // what the last command has changed is shown
  if (input_.find('\n') == std::string::npos && !inputEnded_) {
    QSocketNotifier notifier(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [this] { ReadInput(); });
    Wait([&] { return input_.find('\n') == std::string::npos && !inputEnded_ && waiting(); });
  }
  const size_t end = input_.find('\n');
  if (end == std::string::npos) {
    if (inputEnded_) Leave();
    return false;
  }
  const std::string line = input_.substr(0, end);
  input_.erase(0, end + 1);
  script_.Execute(line);
  if (script_.Quit()) Leave();
  return true;
}

void ScriptedDesktop::WaitFor(const std::function<bool()>& waiting) {
  const Idle idle(*this);
  script_.AnswerNow();
  const long long entered = now_;
  const size_t outer = shifted_;
  shifted_ = targets_.size();
  while (!platform.HasEnded() && waiting()) {
    ObeyOne(waiting);
    if (!waiting()) break;
    script_.AnswerNow();
  }
  for (size_t i = outer; i < shifted_; ++i) targets_[i] += now_ - entered;
  shifted_ = outer;
}

void ScriptedDesktop::Advance(int milliseconds) {
  targets_.push_back(now_ + milliseconds);
  const size_t mine = targets_.size() - 1;
  while (!platform.HasEnded()) {
    const auto due = platform.timers.NextDue();
    if (!due || *due > targets_[mine]) break;
    PassTo(std::max(now_, *due));
    DesktopFrontEnd::Run(nullptr, [this] { platform.ServeTimer(); });
  }
  if (!platform.HasEnded()) PassTo(std::max(now_, targets_[mine]));
  targets_.pop_back();
}

void ScriptedDesktop::Sleep(int milliseconds) { PassTo(now_ + milliseconds); }

void ScriptedDesktop::PassTo(long long moment) {
  owed_ += static_cast<double>(moment - now_) / options_.speed;
  const int whole = static_cast<int>(std::min(owed_, 1e9));
  Pause(whole);
  owed_ -= whole;
  now_ = moment;
}

DateTime ScriptedDesktop::Now() {
  const DateTime& start = options_.start;
  const QDateTime now = QDateTime(QDate(start.year, start.month, start.day),
                                  QTime(start.hour, start.minute, start.second), Qt::UTC)
                            .addMSecs(now_);
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

void ScriptedDesktop::PressAnswer(::Answer answer) {
  QMessageBox* box = StandingBox();
  QAbstractButton* button = box->button(ButtonOf(answer));
  ClickOn(*button, button->rect().center());
}
