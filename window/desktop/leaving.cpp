#include "window/desktop/leaving.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <thread>

#include "window/platform.h"

namespace leaving {
namespace {

using namespace std::chrono_literals;

// A signal finds nothing but these.
int signalEnds[2], watchEnds[2];
std::atomic<bool> wanted = false;
std::atomic<int> drawing = 0;
std::atomic<Platform*> whose = nullptr;
std::atomic_flag begun;

void OnSignal(int) {
  wanted = true;
  const char byte = 0;
  for (int end : {signalEnds[1], watchEnds[1]}) [[maybe_unused]] const ssize_t written = write(end, &byte, 1);
}

// A picture that is drawn without end would make the program deaf. What is kept doesn't change meanwhile, and
// so can be written by this thread. A disk that is slow is waited for, but not for ever.
void Watch() {
  char byte;
  if (read(watchEnds[0], &byte, 1) != 1) return;
  std::this_thread::sleep_for(100ms);
  if (!begun.test() && drawing > 0) Now(EXIT_SUCCESS);
  std::this_thread::sleep_for(2s);
  std::_Exit(EXIT_SUCCESS);
}

// The session manager's word comes as an event.
class SessionEnd : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Quit) Now(EXIT_SUCCESS);
    return false;
  }
};

}  // namespace

void SetPlatform(Platform* platform) { whose = platform; }
bool IsWanted() { return wanted; }

void Now(int status) {
  // The other thread is at it, and will end this one.
  if (begun.test_and_set())
    while (true) pause();
  if (Platform* platform = whose; platform && platform->OnLeave) platform->OnLeave();
  std::_Exit(status);
}

void Heed(QApplication& application) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalEnds) != 0 ||
      socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, watchEnds) != 0)
    return;
  // The windows are served between handlers only, so that a signal never comes while a file is being written.
  auto* notifier = new QSocketNotifier(signalEnds[0], QSocketNotifier::Read, &application);
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] { Now(EXIT_SUCCESS); });
  application.installEventFilter(new SessionEnd(&application));
  // Where the display is lost, the libraries below end the program.
  std::atexit([] {
    if (whose) Now(EXIT_FAILURE);
  });
  try {
    std::thread(Watch).detach();
  } catch (const std::system_error&) {
    // Without it only a picture without end is deaf.
  }
  struct sigaction action = {};
  action.sa_handler = OnSignal;
  action.sa_flags = SA_RESTART;
  for (int number : {SIGTERM, SIGINT, SIGHUP}) sigaction(number, &action, nullptr);
}

Drawing::Drawing() { ++drawing; }
Drawing::~Drawing() { --drawing; }

}  // namespace leaving
