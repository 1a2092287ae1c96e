// What calls about open files have in common.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

// Goes on with a call that a signal has interrupted.
template <class Call>
auto Insist(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  operator int() const { return number_; }
  // False if what was written may not have reached the disk. An interrupted close has closed.
  bool Close() {
    const int number = std::exchange(number_, -1);
    return number < 0 || close(number) == 0 || errno == EINTR;
  }

 private:
  int number_;
};
