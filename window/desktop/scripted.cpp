#include "window/desktop/scripted.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QSocketNotifier>
#include <algorithm>
#include <cstdlib>

#include "window/desktop/view/boxes.h"
#include "window/system/program.h"

namespace {

constexpr int kPatience = 2000;  // milliseconds for the first window to be painted

}  // namespace

ScriptedDesktop::ScriptedDesktop(const DesktopFolders& folders, PictureFiles files,
                                 const ScriptOptions& options, std::ostream& out)
    : DesktopFrontEnd(folders, std::move(files), Operator::Script),
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
  Await([this] { return !HasPainted(); });
  platform.Run();
}

void ScriptedDesktop::ReadInput() {
  char chunk[4096];
  size_t got = 0;
  if (!program::ReadNow(chunk, sizeof chunk, got)) return Wake();
  input_.append(chunk, got);
  if (got == 0) {
    inputEnded_ = true;
    if (!input_.empty() && input_.back() != '\n') input_ += '\n';
  }
  Wake();
}

// Obeys the next line, unless what the handler waits for comes first.
void ScriptedDesktop::ServeAll(const std::function<bool()>& waiting) {
  const Idle idle(*this);
  script_.AnswerNow();
  Pause(0);  // what the last command has changed is shown
  if (input_.find('\n') == std::string::npos && !inputEnded_) {
    QSocketNotifier notifier(program::Input(), QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [this] { ReadInput(); });
    Await([&] { return input_.find('\n') == std::string::npos && !inputEnded_ && waiting(); });
  }
  const size_t end = input_.find('\n');
  if (end == std::string::npos) {
    if (inputEnded_) Leave();
    return;
  }
  const std::string line = input_.substr(0, end);
  input_.erase(0, end + 1);
  script_.Execute(line);
  if (script_.Quit()) Leave();
}

void ScriptedDesktop::Advance(int milliseconds) {
  clock_.Advance(
      milliseconds, [this](long long moment) { PassTo(moment); },
      [this] { DesktopFrontEnd::Run(nullptr, [this] { platform.Enter({Event::Kind::Tick}); }); });
}

void ScriptedDesktop::PassTo(long long moment) {
  owed_ += static_cast<double>(std::max(0ll, moment - clock_.Now())) / options_.speed;
  const int whole = static_cast<int>(std::min(owed_, 1e9));
  Pause(whole);
  owed_ -= whole;
  clock_.PassTo(moment);
}

void ScriptedDesktop::PressAnswer(Platform&, Answer answer) {
  QMessageBox* box = StandingBox();
  QAbstractButton* button = box->button(ButtonOf(answer));
  ClickOn(*button, button->rect().center());
}
