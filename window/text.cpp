#include "window/text.h"

#include <charconv>
#include <cmath>

std::string FormatNumber(long long value) {
  std::string digits = std::to_string(value);
  const size_t first = digits[0] == '-' ? 1 : 0;
  for (size_t at = digits.size(); at > first + 3; at -= 3) digits.insert(at - 3, ",");
  return digits;
}

double Val(std::string_view text) {
  text = Trim(text);
  if (!text.empty() && text[0] == '+') text.remove_prefix(1);
  const size_t digit = text.find_first_not_of("-.");
  if (digit == std::string_view::npos || text[digit] < '0' || text[digit] > '9') return 0;
  double value = 0;
  const auto result =
      std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (result.ec == std::errc::result_out_of_range) return text[0] == '-' ? -HUGE_VAL : HUGE_VAL;
  return value;
}

std::string_view Trim(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

bool ParseLong(std::string_view text, int& value) {
  const char* end = text.data() + text.size();
  auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && stop == end;
}

std::string NameOnOneLine(std::string_view text) {
  constexpr int kMostLetters = 100;
  constexpr size_t kMostBytes = 4 * kMostLetters;  // where there are no letters at all
  std::string name;
  int letters = 0;
  for (char byte : text.substr(0, kMostBytes)) {
    if ((byte & 0xC0) != 0x80 && ++letters > kMostLetters) break;
    name += static_cast<unsigned char>(byte) < ' ' ? ' ' : byte;
  }
  return name;
}
