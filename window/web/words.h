// Lines of text from the page, word by word.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

// What stands before the next blank; the rest stays.
inline std::string_view WordOf(std::string_view& rest) {
  const size_t end = std::min(rest.find(' '), rest.size());
  const std::string_view word = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return word;
}

inline int NumberOf(std::string_view& rest) { return std::atoi(std::string(WordOf(rest)).c_str()); }
