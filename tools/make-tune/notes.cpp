// The words of the score: numbers and notes.
#include <charconv>
#include <cmath>

#include "score.h"

namespace make_tune {
namespace {

double LengthOf(char letter) {
  switch (letter) {
    case 'w':
      return 4;
    case 'h':
      return 2;
    case 'q':
      return 1;
    case 'e':
      return 0.5;
    case 's':
      return 0.25;
    default:
      return 0;
  }
}

int TakePitch(std::string_view& text, const std::string& word) {
  const std::optional<int> name = TakeNoteName(text);
  if (!name || text.empty() || text.front() < '0' || text.front() > '8')
    throw std::invalid_argument("'" + word + "' isn't a note");
  const int octave = text.front() - '0';
  text.remove_prefix(1);
  return 12 * (octave + 1) + *name;
}

Note ParseNote(const std::string& word, double last_length) {
  Note note;
  note.length = last_length;
  std::string_view text = word;
  if (text.front() == '>') {
    note.accent = true;
    text.remove_prefix(1);
  }
  if (!text.empty() && text.front() == 'r') {
    text.remove_prefix(1);
  } else {
    note.pitches.push_back(TakePitch(text, word));
    while (!text.empty() && text.front() == '+') {
      text.remove_prefix(1);
      note.pitches.push_back(TakePitch(text, word));
    }
  }
  if (!text.empty() && text.front() == 'g') {
    note.grace = true;
    note.length = 0;
    text.remove_prefix(1);
  } else if (!text.empty() && LengthOf(text.front()) > 0) {
    note.length = LengthOf(text.front());
    text.remove_prefix(1);
    if (!text.empty() && text.front() == '.') {
      note.length *= 1.5;
      text.remove_prefix(1);
    }
  }
  for (char sign : text) {
    if (sign == '~') {
      note.tied = true;
    } else if (sign == '\'') {
      note.staccato = true;
    } else {
      throw std::invalid_argument("'" + word + "' isn't a note");
    }
  }
  if (note.length == 0 && !note.grace)
    throw std::invalid_argument("'" + word + "' has no length and none stands before it");
  return note;
}

}  // namespace

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  for (char c : text) {
    if (c != ' ' && c != '\t' && c != '\r') {
      word.push_back(c);
    } else if (!word.empty()) {
      words.push_back(std::move(word));
      word.clear();
    }
  }
  if (!word.empty()) words.push_back(std::move(word));
  return words;
}

std::optional<int> ParseInt(std::string_view word) {
  int value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return value;
}

Bar ParseBar(std::string_view text, int line) {
  Bar bar;
  double at = 0;
  double length = 0;
  for (const std::string& word : Words(text)) {
    Note note = ParseNote(word, length);
    note.start = at;
    note.line = line;
    if (!note.grace) {
      length = note.length;
      at += length;
    }
    bar.push_back(std::move(note));
  }
  if (std::abs(at - kBeatsPerBar) > 1e-9)
    throw std::invalid_argument("the bar '" + std::string(text) + "' has " + std::to_string(at) + " beats");
  return bar;
}

}  // namespace make_tune
