// Throws in every way that a program may, and tells what came of it: what window/system/web/exceptions.cpp
// does is compared with what the native library does. Reads its input in between, where the second build
// leaves and comes back.
#include <cstdio>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>

#include "window/number.h"
#include "window/system/program.h"

namespace {

void Tell(const std::string& text) {
  const std::string line = text + "\n";
  program::Write(line.data(), line.size());
}

// The next letter of the input.
std::string Wait() {
  char letter = '-';
  program::Read(&letter, 1);
  return {letter};
}

struct Witness {
  explicit Witness(std::string name) : name(std::move(name)) { Tell("made " + this->name); }
  Witness(const Witness& other) : name(other.name + "'") { Tell("made " + name); }
  ~Witness() { Tell("gone " + name); }
  std::string name;
};

struct Left {
  virtual ~Left() = default;
  int left = 1;
};
struct Right {
  virtual ~Right() = default;
  int right = 2;
};
struct Both : Left, Right {
  int both = 3;
};
struct Hidden : private Right {};
struct Twice : Both, virtual std::exception {
  const char* what() const noexcept override { return "twice"; }
};
struct alignas(16) Large {
  double values[40] = {1.5};
};

// A function of its own, as FailureOf is: else all that follows may come to lie within its `catch`.
template <class Deed>
[[gnu::noinline]] std::string Caught(const Deed& deed) {
  try {
    deed();
    return "nothing";
  } catch (const Both& both) {
    return "both " + std::to_string(both.left + both.right + both.both);
  } catch (const Right& right) {
    return "right " + std::to_string(right.right);
  } catch (const std::logic_error& error) {
    return std::string("logic ") + error.what();
  } catch (const std::exception& error) {
    return std::string("exception ") + error.what();
  } catch (const Witness& witness) {
    return "witness " + witness.name;
  } catch (Large large) {
    return "large " + std::to_string(large.values[0]);
  } catch (const Right* right) {
    return "pointer " + std::to_string(right->right);
  } catch (int number) {
    return "int " + std::to_string(number);
  } catch (...) {
    return "other";
  }
}

template <class Thrown>
[[noreturn]] void Throw(const Thrown& thrown) {
  throw thrown;
}

void Kinds() {
  Both both;
  Tell(Caught([] {}));
  Tell(Caught([&] { Throw(both); }));
  Tell(Caught([&] { Throw(static_cast<Right&>(both)); }));
  Tell(Caught([&] { Throw(&both); }));
  Tell(Caught([] { Throw(Hidden()); }));
  Tell(Caught([] { Throw(Twice()); }));
  Tell(Caught([] { Throw(Large()); }));
  Tell(Caught([] { Throw(7); }));
  Tell(Caught([] { Throw(7u); }));
  Tell(Caught([] { std::string().at(3); }).substr(0, 5));
  Tell(Caught([] { throw std::bad_alloc(); }).substr(0, 9));
  Tell(Caught([] { Throw(Witness("thrown")); }));
}

// What stands between the throw and its handler goes, from within outwards.
void Ways() {
  struct Holder {
    Witness member{"member"};
    Holder() { Throw(std::runtime_error("while it is made")); }
  };
  Tell(Caught([] {
    const Witness outer("outer");
    const auto middle = std::make_unique<Witness>("middle");
    const Holder holder;
  }));
}

void Again(int depth) {
  const Witness here("depth " + std::to_string(depth));
  try {
    if (depth == 0) Throw(std::out_of_range("deepest"));
    Again(depth - 1);
  } catch (const std::logic_error& error) {
    Tell("at " + std::to_string(depth) + " " + error.what());
    if (depth % 2 == 0) throw;
    throw std::runtime_error(std::string("for ") + error.what());
  } catch (const std::runtime_error& error) {
    Tell("at " + std::to_string(depth) + " also " + error.what());
    try {
      throw;
    } catch (const std::exception& same) {
      Tell(same.what() == error.what() ? "the same" : "another");
    }
    throw std::logic_error(error.what());
  }
}

// One within the handler of another, thrown on by either, and by a function that knows of none.
void ThrowOn() { throw; }
void Nested() {
  Tell(Caught([] {
    try {
      Throw(Witness("first"));
    } catch (const Witness& first) {
      try {
        Throw(Witness("second"));
      } catch (Witness& second) {
        second.name += " changed";
        Tell(Caught(ThrowOn));
        Tell(Caught([] { Throw(3); }));
        Tell(second.name + " within " + first.name);
      }
      Tell(Caught(ThrowOn) + " is here still");
      try {
        ThrowOn();
      } catch (...) {
        Tell("once more");
        ThrowOn();
      }
    }
  }));
}

// Waits within what may fail, and after it has failed.
void Waiting(int depth) {
  const Witness here("waiting " + std::to_string(depth) + Wait());
  const auto failure = FailureOf<std::runtime_error>([&] {
    if (depth > 0) Waiting(depth - 1);
    Tell("read " + Wait());
    throw std::runtime_error(Wait());
  });
  Tell("goes on with " + Wait() + " after " + failure.value_or("nothing"));
  if (depth == 1) throw std::runtime_error("from 1 " + Wait());
}

}  // namespace

int main() {
  Kinds();
  Ways();
  Tell(Caught([] { Again(5); }));
  Nested();
  Tell(Caught([] { Waiting(3); }));
  for (int i = 0; i < 100000; ++i)  // nothing is left behind
    if (Caught([] { Throw(Large()); }).empty()) return 1;
  Tell("end");
}
