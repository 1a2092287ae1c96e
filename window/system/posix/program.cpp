#include "window/system/program.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "window/system/leaving.h"

namespace program {

void OutliveReaders() { std::signal(SIGPIPE, SIG_IGN); }

int Input() { return STDIN_FILENO; }

size_t Read(char* chunk, size_t size) {
  while (true) {
    pollfd waits[] = {{leaving::Wire(), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    if (poll(waits, 2, -1) < 0 && errno == EINTR) continue;
    if (leaving::IsWanted()) leaving::Now(EXIT_SUCCESS);
    if (size_t got = 0; ReadNow(chunk, size, got)) return got;
  }
}

bool ReadNow(char* chunk, size_t size, size_t& got) {
  const ssize_t count = read(STDIN_FILENO, chunk, size);
  if (count < 0 && (errno == EINTR || errno == EAGAIN)) return false;
  got = count > 0 ? static_cast<size_t>(count) : 0;
  return true;
}

bool Write(const char* text, size_t size) {
  while (size > 0) {
    const leaving::Held writing;
    const ssize_t written = write(STDOUT_FILENO, text, size);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    text += written;
    size -= static_cast<size_t>(written);
  }
  return true;
}

}  // namespace program
