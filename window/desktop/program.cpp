#include "window/desktop/program.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "window/desktop/style.h"

namespace {

bool screenIsOpen = false;
int signalEnds[2];

// Until the screen is open the toolkit's messages are about nothing else: one line says it all. Later ones go
// their way.
void Message(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (screenIsOpen) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
  } else if (type == QtFatalMsg) {
    std::fputs("cardhaven: there is no screen to open windows on (is DISPLAY or WAYLAND_DISPLAY set?)\n",
               stderr);
    std::_Exit(EXIT_FAILURE);
  }
}

void OnSignal(int) {
  const char byte = 0;
  [[maybe_unused]] const ssize_t written = write(signalEnds[1], &byte, 1);
}

// The windows are served between handlers only, so that a signal never comes while a file is being written.
void EndOnSignals(QObject& context) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalEnds) != 0) return;
  auto* notifier = new QSocketNotifier(signalEnds[0], QSocketNotifier::Read, &context);
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] {
    std::cout.flush();
    std::_Exit(EXIT_SUCCESS);
  });
  struct sigaction action = {};
  action.sa_handler = OnSignal;
  action.sa_flags = SA_RESTART;
  for (int number : {SIGTERM, SIGINT, SIGHUP}) sigaction(number, &action, nullptr);
}

// The desktop's own theme would bring a second toolkit along, and the windows look the same everywhere
// without it.
class NoTheme {
 public:
  NoTheme() : was_(qgetenv("QT_QPA_PLATFORMTHEME")) { qputenv("QT_QPA_PLATFORMTHEME", "generic"); }
  ~NoTheme() { was_.isNull() ? qunsetenv("QT_QPA_PLATFORMTHEME") : qputenv("QT_QPA_PLATFORMTHEME", was_); }

 private:
  QByteArray was_;
};

}  // namespace

int RunDesktop(int argc, char** argv, const DesktopOptions& options, const PictureFiles& pictures,
               const std::function<std::shared_ptr<void>(Platform&)>& start) {
  qInstallMessageHandler(Message);
  QCoreApplication::setApplicationName("cardhaven");
  QGuiApplication::setApplicationDisplayName("");
  QGuiApplication::setDesktopFileName("card-haven");
  std::optional<NoTheme> noTheme(std::in_place);
  QApplication application(argc, argv);
  noTheme.reset();
  screenIsOpen = true;
  style::Apply(application);
  EndOnSignals(application);

  std::unique_ptr<DesktopFrontEnd> front;
  if (options.script)
    front = std::make_unique<ScriptedDesktop>(options.folders, pictures, *options.script, std::cout);
  else
    front = std::make_unique<DesktopFrontEnd>(options.folders, pictures);
  std::shared_ptr<void> kept;  // goes before the front end does
  return front->Run([&] { kept = start(front->platform); });
}
