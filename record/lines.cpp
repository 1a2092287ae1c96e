#include "record/lines.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace record {

namespace {

int HexDigit(char letter) {
  if (letter >= '0' && letter <= '9') return letter - '0';
  return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    if (letter == '"' || letter == '\\') {
      quoted += '\\';
      quoted += letter;
    } else if (letter == '\n') {
      quoted += "\\n";
    } else if (letter == '\r') {
      quoted += "\\r";
    } else if (byte < 0x20 || byte == 0x7F) {
      char code[8];
      std::snprintf(code, sizeof code, "\\x%02x", byte);
      quoted += code;
    } else {
      quoted += letter;
    }
  }
  return quoted + '"';
}

std::string Numbers(std::initializer_list<long long> numbers) {
  std::string text;
  for (long long number : numbers) text += " " + std::to_string(number);
  return text;
}

std::string Line::Word() {
  if (AtEnd()) Wrong("a word is missing");
  return words_[next_++];
}

long long Line::NumberIn(std::string_view word, long long lowest, long long highest) const {
  long long number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size() || number < lowest || number > highest)
    Wrong("the number " + std::string(word) + " doesn't fit");
  return number;
}

long long Line::Number(long long lowest, long long highest) { return NumberIn(Word(), lowest, highest); }

long long Line::NumberBehind(char letter, long long lowest, long long highest) {
  const std::string word = Word();
  return NumberIn(std::string_view(word).substr(word.starts_with(letter)), lowest, highest);
}

void Line::End() const {
  if (!AtEnd()) Wrong("there is a word too many");
}

void Line::Wrong(const std::string& why) const {
  throw NoRecord{"line " + std::to_string(number) + ": " + why};
}

bool LineReader::Read(Line& line) {
  if (rest_.empty()) return false;
  line.number = ++number_;
  line.words_.clear();
  line.next_ = 0;
  const size_t end = rest_.find('\n');
  if (end == std::string_view::npos) line.Wrong("it is cut off");
  std::string_view left = rest_.substr(0, end);
  rest_.remove_prefix(end + 1);
  line.depth = std::min(left.find_first_not_of(' '), left.size());
  if (line.depth > kDeepest) line.Wrong("it stands too deep");
  left.remove_prefix(line.depth);
  while (!left.empty()) {
    std::string word;
    if (left[0] != '"') {
      const size_t blank = std::min(left.find(' '), left.size());
      if (blank == 0) line.Wrong("the blanks are wrong");
      word = left.substr(0, blank);
      left.remove_prefix(blank);
    } else {
      size_t at = 1;
      for (; at < left.size() && left[at] != '"'; ++at) {
        if (left[at] != '\\') {
          word += left[at];
          continue;
        }
        const char code = ++at < left.size() ? left[at] : '\0';
        if (code == 'n' || code == 'r') {
          word += code == 'n' ? '\n' : '\r';
        } else if (code == '"' || code == '\\') {
          word += code;
        } else if (code == 'x' && at + 2 < left.size() && HexDigit(left[at + 1]) >= 0 &&
                   HexDigit(left[at + 2]) >= 0) {
          word += static_cast<char>(16 * HexDigit(left[at + 1]) + HexDigit(left[at + 2]));
          at += 2;
        } else {
          line.Wrong("there is a letter that means nothing");
        }
      }
      if (at >= left.size()) line.Wrong("a text doesn't end");
      left.remove_prefix(at + 1);
    }
    line.words_.push_back(std::move(word));
    if (left.empty()) break;
    if (left[0] != ' ' || left.size() == 1) line.Wrong("the blanks are wrong");
    left.remove_prefix(1);
  }
  if (line.words_.empty()) line.Wrong("it is empty");
  return true;
}

}  // namespace record
