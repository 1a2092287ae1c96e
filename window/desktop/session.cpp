#include "window/desktop/session.h"

#include <QApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <cstdlib>

#include "window/platform.h"
#include "window/system/leaving.h"

namespace {

class SessionEnd : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Quit) leaving::Now(EXIT_SUCCESS);
    return false;
  }
};

}  // namespace

void HeedSession(QApplication& application, const Platform& platform) {
  // The windows are served between handlers only, so that a signal never comes while a file is being written.
  auto* notifier = new QSocketNotifier(leaving::Wire(), QSocketNotifier::Read, &application);
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] { leaving::Now(EXIT_SUCCESS); });
  // The session asks first, and somebody may still call its end off.
  QObject::connect(&application, &QGuiApplication::commitDataRequest, notifier, [&platform] {
    if (platform.OnKeep) platform.OnKeep();
  });
  application.installEventFilter(new SessionEnd(&application));
}
