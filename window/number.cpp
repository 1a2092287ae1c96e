#include "window/number.h"

#include <cmath>

void RaiseOverflow() { throw RuntimeError("Overflow"); }
void RaiseSubscript() { throw RuntimeError("Subscript out of range"); }
void RaiseDivisionByZero() { throw RuntimeError("Division by zero"); }
void RaiseElementNotFound() { throw RuntimeError("Element not found"); }

long long RoundHalfEven(double value) {
  if (!(std::fabs(value) < 9e18)) RaiseOverflow();
  // The default rounding mode of nearbyint is "to nearest, ties to even"; nothing in the program changes it.
  return static_cast<long long>(std::nearbyint(value));
}
