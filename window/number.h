// The two whole-number types that game values are kept in. A value that doesn't fit raises "Overflow".
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>

// A failure that a handler may catch; `what()` is the description that the player is shown.
class RuntimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

[[noreturn]] void RaiseOverflow();         // "Overflow"
[[noreturn]] void RaiseSubscript();        // "Subscript out of range"
[[noreturn]] void RaiseDivisionByZero();   // "Division by zero"
[[noreturn]] void RaiseElementNotFound();  // "Element not found"

// Does it, and says what failed, if something did: what is done about it then, a box or a wait, comes outside
// of the `catch`. A function of its own also for the compiler, which might draw what follows into the
// `catch`.
template <class Failure = RuntimeError, class Deed>
[[gnu::noinline]] std::optional<std::string> FailureOf(const Deed& deed) {
  try {
    deed();
    return std::nullopt;
  } catch (const Failure& failure) {
    return failure.what();
  }
}

// Rounds to the nearest whole number, a half to the even neighbour. Raises Overflow beyond 64 bits.
long long RoundHalfEven(double value);

// A whole number of `Rep`'s size. Reads as a 64-bit number, so that intermediate results can't wrap;
// what is stored is checked.
template <class Rep>
class Checked {
 public:
  constexpr Checked() = default;
  template <class Source, std::enable_if_t<std::is_integral_v<Source>, int> = 0>
  constexpr Checked(Source value) : value_(Fit(static_cast<long long>(value))) {}
  // A fraction is rounded, a half to the even neighbour.
  Checked(double value) : value_(Fit(RoundHalfEven(value))) {}

  constexpr operator long long() const { return value_; }
  static constexpr bool Fits(long long value) {
    return value >= std::numeric_limits<Rep>::min() && value <= std::numeric_limits<Rep>::max();
  }

  Checked& operator+=(long long amount) { return *this = Add(value_, amount); }
  Checked& operator-=(long long amount) {
    if (amount == std::numeric_limits<long long>::min()) RaiseOverflow();
    return *this = Add(value_, -amount);
  }
  Checked& operator++() { return *this += 1; }
  Checked& operator--() { return *this -= 1; }

 private:
  static constexpr Rep Fit(long long value) {
    if (!Fits(value)) RaiseOverflow();
    return static_cast<Rep>(value);
  }
  static Checked Add(long long a, long long b) {
    if (b > std::numeric_limits<int32_t>::max() ||
        b < -static_cast<long long>(std::numeric_limits<int32_t>::max()))
      RaiseOverflow();
    return Checked(a + b);
  }
  Rep value_ = 0;
};

using Integer = Checked<int16_t>;
using Long = Checked<int32_t>;
