// The end of the program from outside: a signal, the end of the session, a display that is lost.
#pragma once

class QApplication;
class Platform;

namespace leaving {

// From now on these ends are heeded. What the suite keeps is written, then the program is gone.
void Heed(QApplication& application);
// Whose `OnLeave` is called.
void SetPlatform(Platform* platform);
// A signal has come.
bool IsWanted();
[[noreturn]] void Now(int status);

// While one stands a library works on a file from elsewhere, and nobody knows for how long.
class Drawing {
 public:
  Drawing();
  ~Drawing();
  Drawing(const Drawing&) = delete;
};

}  // namespace leaving
