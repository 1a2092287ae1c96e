#include "window/desktop/program.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "window/desktop/painting/style.h"
#include "window/desktop/session.h"
#include "window/system/leaving.h"

namespace {

bool screenIsOpen = false;

// Until the screen is open the toolkit's messages are about nothing else: one line says it all. Later on what
// it warns of (plugins, sizes of icons) is nothing that a player could mend.
void Message(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (screenIsOpen) {
    const bool lost = type == QtFatalMsg || text.contains("connection broke");
    if (lost || type == QtCriticalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
    if (lost) leaving::Now(EXIT_FAILURE);
  } else if (type == QtFatalMsg) {
    std::fputs("cardhaven: there is no screen to open windows on (is DISPLAY or WAYLAND_DISPLAY set?)\n",
               stderr);
    std::_Exit(EXIT_FAILURE);
  }
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
               const std::function<std::shared_ptr<void>(DesktopFrontEnd&)>& start) {
  qInstallMessageHandler(Message);
  QCoreApplication::setApplicationName("cardhaven");
  QGuiApplication::setApplicationDisplayName("");
  QGuiApplication::setDesktopFileName("card-haven");
  std::optional<NoTheme> noTheme(std::in_place);
  QApplication application(argc, argv);
  noTheme.reset();
  screenIsOpen = true;
  style::Apply(application);
  const bool heeds = leaving::Heed();

  std::unique_ptr<DesktopFrontEnd> front;
  if (options.script)
    front = std::make_unique<ScriptedDesktop>(options.folders, pictures, *options.script, std::cout);
  else
    front = std::make_unique<DesktopFrontEnd>(options.folders, pictures);
  if (!options.script) front->guides = options.guides;
  front->looks.mayKeepRecords = options.keepsRecords;
  std::shared_ptr<void> kept;  // goes before the front end does
  leaving::SetKeeper(&front->platform.OnLeave);
  if (heeds) HeedSession(application, front->platform);
  const int status = front->Run([&] { kept = start(*front); });
  leaving::SetKeeper(nullptr);
  return status;
}
