// A screen that nobody sees, and what a player does at it: events that go the whole way through Qt's queue.
#pragma once

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <functional>

#include "window/desktop/desktop.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/form_window.h"
#include "window/desktop/view/managed.h"

inline bool OpenScreen() {
  static int count = 1;
  static char program[] = "desktop_tests";
  static char* arguments[] = {program, nullptr};
  static QApplication* application = nullptr;
  if (application) return true;
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  setenv("SDL_AUDIODRIVER", "dummy", 0);
  application = new QApplication(count, arguments);
  unsetenv("QT_QPA_PLATFORM");  // not for the programs that tests start
  style::Apply(*application);
  return true;
}

// What is to be deleted later goes with the last test: Qt's own end is too late for windows.
class LastWindows : public testing::Environment {
 public:
  void TearDown() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
};
inline testing::Environment* const kLastWindows = testing::AddGlobalTestEnvironment(new LastWindows);

// The real front end with short pauses.
class QuickDesktop : public DesktopFrontEnd {
 public:
  QuickDesktop(const DesktopFolders& folders, PictureFiles pictures, Operator by = Operator::Player)
      : DesktopFrontEnd(folders, std::move(pictures), by) {
    looks.HoldCards(true);
  }
  std::function<void()> onSleep;  // what happens at the screen while a handler sleeps, once

  void Sleep(int milliseconds) override {
    if (milliseconds > 0 && onSleep) std::exchange(onSleep, nullptr)();
    Pause(std::min(milliseconds, 3));
  }
  void PlayWave(const std::string&) override {}
  void MediaCommand(const std::string&) override {}
};

// Whether letters of that colour say what the told one says: its hue, or that none is meant.
inline bool Means(const QColor& letters, const QColor& told) {
  const auto hue = [](const QColor& colour) {
    const auto [least, most] = std::minmax({colour.red(), colour.green(), colour.blue()});
    return most - least < 48 ? -1 : colour.hsvHue();
  };
  const int apart = std::abs(hue(letters) - hue(told));
  return (hue(letters) < 0) == (hue(told) < 0) && std::min(apart, 360 - apart) < 12;
}

namespace input {

// Whether all windows are there, and the one that was opened last has the keyboard.
inline bool WindowsStand() {
  const QWidget* modal = QApplication::activeModalWidget();
  const QWidget* active = QApplication::activeWindow();
  if (modal && modal != active) return false;
  return std::ranges::all_of(QGuiApplication::topLevelWindows(), [&](const QWindow* window) {
    return !window->isVisible() || window->type() == Qt::Popup || (active && window->isExposed());
  });
}

// A compositor answers when it likes; elsewhere all that comes of a deed waits in the queue.
inline void Settle() {
  constexpr int kAnswered = 20, kGivenUp = 400;  // milliseconds
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
  if (!QGuiApplication::platformName().startsWith("wayland")) return;
  for (int waited = 0; waited < kAnswered || (!WindowsStand() && waited < kGivenUp); waited += kAnswered) {
    QEventLoop loop;
    QTimer::singleShot(kAnswered, &loop, &QEventLoop::quit);
    loop.exec();
  }
}

// Lets events come until `happened()`; false if it doesn't.
inline bool Await(const std::function<bool()>& happened) {
  constexpr int kPatience = 20'000;  // only a test that fails waits so long
  for (int i = 0; i < kPatience && !happened(); ++i) {
    QEventLoop loop;
    QTimer::singleShot(1, &loop, &QEventLoop::quit);
    loop.exec();
  }
  return happened();
}

// Does something from a timer as soon as `ready()`. What never becomes ready fails, and closes all boxes.
inline void When(const std::function<bool()>& ready, const std::function<void()>& deed,
                 int patience = 20'000) {
  QTimer::singleShot(1, qApp, [=] {
    if (ready()) return deed();
    if (patience > 0) return When(ready, deed, patience - 1);
    ADD_FAILURE() << "waited in vain";
    while (QWidget* box = QApplication::activeModalWidget()) box->close();
  });
}
// Does something when a box or a dialog stands.
inline void WhenModal(const std::function<void()>& deed) {
  When(
      [] {
        const QWidget* modal = QApplication::activeModalWidget();
        return modal && modal->isVisible();
      },
      deed);
}

// Qt's way in for input that waits in its queue is no public one: where it can't be found under that name the
// event is delivered at once.
template <class Function>
Function* Queued(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

inline void SendMouse(QWindow& window, QEvent::Type type, QPointF point, Qt::MouseButtons held, int time) {
  using Handle = bool(QWindow*, ulong, const QPointF&, const QPointF&, Qt::MouseButtons, Qt::MouseButton,
                      QEvent::Type, Qt::KeyboardModifiers, Qt::MouseEventSource);
  static const auto queued = Queued<Handle>(
      "_ZN22QWindowSystemInterface16handleMouseEventINS_20AsynchronousDeliveryEEEbP7QWindowmRK7QPointFS6_"
      "6QFlagsIN"
      "2Qt11MouseButtonEES9_N6QEvent4TypeES7_INS8_16KeyboardModifierEENS8_16MouseEventSourceE");
  const QPointF global = window.mapToGlobal(point);
  if (queued)
    queued(&window, time, point, global, held, Qt::LeftButton, type, {}, Qt::MouseEventNotSynthesized);
  else
    qt_handleMouseEvent(&window, point, global, held, Qt::LeftButton, type, {}, time);
}

// The time of presses, where it matters; else each comes `pause` after the last one.
inline std::function<int()> clock;

// Presses and releases the left button at that place of a window. `pause` is the time since the last event.
inline void Press(QWidget& widget, QPoint point, int pause = 1000) {
  static int time = 0;
  time = clock ? clock() : time + pause;
  QWindow& window = *widget.window()->windowHandle();
  const QPointF place = widget.mapTo(widget.window(), point);
  SendMouse(window, QEvent::MouseButtonPress, place, Qt::LeftButton, time);
  SendMouse(window, QEvent::MouseButtonRelease, place, Qt::NoButton, time);
}

inline void Key(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
  using Handle = bool(QWindow*, QEvent::Type, int, Qt::KeyboardModifiers, const QString&, bool, ushort);
  static const auto queued = Queued<Handle>(
      "_ZN22QWindowSystemInterface14handleKeyEventINS_"
      "20AsynchronousDeliveryEEEbP7QWindowN6QEvent4TypeEi6QFlagsIN2Qt"
      "16KeyboardModifierEERK7QStringbt");
  for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QWindow* window = widget.window()->windowHandle();
    queued ? void(queued(window, type, key, modifiers, text, false, 1))
           : qt_handleKeyEvent(window, type, key, modifiers, text);
  }
}

// Clicks a control in the middle.
inline void Click(DesktopFrontEnd& front, const Visual& control, int pause = 1000) {
  FormWindow& window = *front.WindowOf(control.form);
  if (QWidget* widget = window.WidgetOf(control))
    Press(*widget, widget->rect().center(), pause);
  else
    Press(window.Board(), window.Board().SpotOf(control).value(), pause);
}

}  // namespace input
