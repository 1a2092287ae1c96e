// The end of the program from outside: a signal, the end of the session, a display that is lost.
#pragma once

#include <functional>

namespace leaving {

// From now on SIGTERM, SIGINT and SIGHUP are heeded, by the thread that calls this. False if they can't be.
bool Heed();
// Can be read once a signal has come; then, between handlers, `Now` is to be called. -1 without `Heed`.
int Wire();
// What writes that; null for nothing any more.
void SetKeeper(const std::function<void()>* keep);
// The program has been told to go.
bool IsWanted();
// What the suite keeps is written, then the program is gone.
[[noreturn]] void Now(int status);

// While one stands that thread waits for something that may take for ever: a library at a file from
// elsewhere, a reader of our output. What the suite keeps doesn't change meanwhile.
class Held {
 public:
  Held();
  ~Held();
  Held(const Held&) = delete;
};

}  // namespace leaving
