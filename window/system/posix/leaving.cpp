#include "window/system/leaving.h"

#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <mutex>
#include <system_error>
#include <thread>

namespace leaving {
namespace {

using namespace std::chrono_literals;

// A signal finds nothing but these.
int signalEnds[2] = {-1, -1}, watchEnds[2] = {-1, -1};
std::atomic<bool> wanted = false;
std::atomic<const std::function<void()>*> keeper = nullptr;
std::atomic_flag begun;
// Who has it may touch what the suite keeps: the thread that heeds, but for the times when it is held.
std::mutex suite;
bool heeds = false;
int holds = 0;

void OnSignal(int) {
  const int before = errno;
  wanted = true;
  const char byte = 0;
  for (int end : {signalEnds[1], watchEnds[1]}) [[maybe_unused]] const ssize_t written = write(end, &byte, 1);
  errno = before;
}

// A thread that is held would make the program deaf: then this one writes what is kept. A disk that is slow
// is waited for, but not for ever.
void Watch() {
  char byte;
  if (read(watchEnds[0], &byte, 1) != 1) return;
  constexpr int kTries = 21;
  for (int i = 0; i < kTries; ++i) {
    std::this_thread::sleep_for(100ms);
    if (suite.try_lock()) Now(EXIT_SUCCESS);
  }
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace

void SetKeeper(const std::function<void()>* keep) { keeper = keep; }
bool IsWanted() { return wanted; }
int Wire() { return signalEnds[0]; }

void Now(int status) {
  // The other thread is at it, and will end this one.
  if (begun.test_and_set())
    while (true) pause();
  wanted = true;
  if (const auto* keep = keeper.load(); keep && *keep) (*keep)();
  std::_Exit(status);
}

bool Heed() {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalEnds) != 0 ||
      socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, watchEnds) != 0)
    return false;
  suite.lock();
  heeds = true;
  // Where the display is lost, the libraries below end the program.
  std::atexit([] {
    if (keeper) Now(EXIT_FAILURE);
  });
  try {
    std::thread(Watch).detach();
  } catch (const std::system_error&) {
    // Without it only a thread that is held is deaf.
  }
  struct sigaction action = {};
  action.sa_handler = OnSignal;
  action.sa_flags = SA_RESTART;
  for (int number : {SIGTERM, SIGINT, SIGHUP}) sigaction(number, &action, nullptr);
  return true;
}

Held::Held() {
  if (heeds && holds++ == 0) suite.unlock();
}
Held::~Held() {
  if (heeds && --holds == 0) suite.lock();  // for ever, if the program is leaving
}

}  // namespace leaving
