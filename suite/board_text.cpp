#include "suite/board_text.h"

void BoardReader::Skip(char letter) {
  fits_ = fits_ && rest_.starts_with(letter);
  if (fits_) rest_.remove_prefix(1);
}

std::string_view BoardReader::Word() {
  const std::string_view word = rest_.substr(0, rest_.find_first_of(" =(),"));
  rest_.remove_prefix(word.size());
  return word;
}

long long BoardReader::Number() {
  long long number = 0;
  const std::string_view word = Word();
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) fits_ = false;
  return number;
}
