#include "window/desktop/program.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "window/desktop/painting/style.h"
#include "window/desktop/session.h"
#include "window/desktop/watching.h"
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

// The toolkit, with a screen open.
class Screen {
 public:
  // It gets no options of ours.
  explicit Screen(char** argv) : noTheme_(std::in_place), application_(one_, argv) {
    noTheme_.reset();
    screenIsOpen = true;
    style::Apply(application_);
  }

  // Runs what serves the windows, and heeds signals meanwhile.
  int Serve(DesktopFrontEnd& front, const std::function<void()>& start) {
    leaving::SetKeeper(&front.platform.OnLeave);
    if (heeds_) HeedSession(application_, front.platform);
    const int status = front.Run(start);
    leaving::SetKeeper(nullptr);
    return status;
  }

 private:
  struct Names {
    Names() {
      qInstallMessageHandler(Message);
      QCoreApplication::setApplicationName("cardhaven");
      QGuiApplication::setApplicationDisplayName("");
      QGuiApplication::setDesktopFileName("card-haven");
    }
  } names_;
  int one_ = 1;
  std::optional<NoTheme> noTheme_;
  QApplication application_;
  const bool heeds_ = leaving::Heed();
};

}  // namespace

int RunDesktop(char** argv, const DesktopOptions& options, const PictureFiles& pictures,
               const std::function<std::shared_ptr<void>(DesktopFrontEnd&)>& start) {
  Screen screen(argv);
  std::unique_ptr<DesktopFrontEnd> front;
  if (options.script)
    front = std::make_unique<ScriptedDesktop>(options.folders, pictures, *options.script, std::cout);
  else
    front = std::make_unique<DesktopFrontEnd>(options.folders, pictures);
  if (!options.script) {
    front->guides = options.guides;
    front->records = &options.records;
  }
  front->games = options.games;
  front->looks.mayKeepRecords = options.keepsRecords;
  std::shared_ptr<void> kept;  // goes before the front end does
  return screen.Serve(*front, [&] { kept = start(*front); });
}

int RunWatching(char** argv, const DesktopOptions& options, const PictureFiles& pictures,
                const Recording& recording, const std::function<void(WatchingDesktop&)>& once) {
  Screen screen(argv);
  WatchingDesktop front(options.folders, pictures, recording);
  front.guides = options.guides;
  return screen.Serve(front, [&] { front.Play([&] { once(front); }); });
}

void TellOfRecord(char** argv, const std::string& verdict) {
  Screen screen(argv);
  QMessageBox box(QMessageBox::Information, "Card Haven", "This can't be watched.");
  box.setInformativeText(QString::fromStdString(verdict));
  box.setTextFormat(Qt::PlainText);
  box.exec();
}
