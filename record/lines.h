// A record as text: lines of words. A line begins with a blank for each handler that was under way; a word
// that may hold blanks stands in quotes.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace record {

// Records hold no more than this, and nobody reads more.
inline constexpr size_t kLargest = 1 << 20;
inline constexpr size_t kDeepest = 200;                          // handlers, one within the other
inline constexpr long long kLongest = 366ll * 24 * 3600 * 1000;  // milliseconds between two events

// What was read is no record. None of the failures that handlers deal with: it may be found out within one.
struct NoRecord {
  std::string why;
};

std::string Quoted(std::string_view text);
// Each number with a blank before it.
std::string Numbers(std::initializer_list<long long> numbers);

// Its words one after the other. What isn't as asked for is a `NoRecord` that names the line.
class Line {
 public:
  int number = 0;  // in the text, from 1
  size_t depth = 0;

  bool AtEnd() const { return next_ == words_.size(); }
  // The next word, "" at the end; it stays the next one.
  std::string_view Peek() const { return AtEnd() ? "" : std::string_view(words_[next_]); }
  std::string Word();
  long long Number(long long lowest, long long highest);
  // The number that is left of the next word without that letter at its beginning.
  long long NumberBehind(char letter, long long lowest, long long highest);
  bool Flag() { return Number(0, 1) == 1; }
  // The line has no more words.
  void End() const;
  [[noreturn]] void Wrong(const std::string& why) const;

 private:
  friend class LineReader;
  long long NumberIn(std::string_view word, long long lowest, long long highest) const;

  std::vector<std::string> words_;
  size_t next_ = 0;
};

class LineReader {
 public:
  // `text` outlives the reader.
  explicit LineReader(std::string_view text) : rest_(text) {}
  // False at the end of the text.
  bool Read(Line& line);

 private:
  std::string_view rest_;
  int number_ = 0;
};

}  // namespace record
