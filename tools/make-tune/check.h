// A critical ear for what is written out.
#pragma once

#include <string>
#include <vector>

#include "score.h"

namespace make_tune {

/// Notes that rub: outside the chord on a strong beat, or held long outside it, or a half step from the
/// note of another written part. One line for each, with the line of the score.
std::vector<std::string> FindClashes(const Score& score, const std::string& name);

}  // namespace make_tune
