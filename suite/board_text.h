// A board as one line of text, and back: "field=(1S,12H,-,_3C) position=3 selected=1". The line serves tests,
// reports of faults, and whoever wants to set up a position by hand.
//
// A board names once what it consists of, in a member that serves reading as well as writing:
//
//   template <class Self, class Visit>
//   static void VisitFields(Self& board, Visit&& visit) {
//     visit("field", board.field, "position", board.deckPosition);
//   }
//
// A field is a whole number, a flag, an enumeration, a card code, or an array or vector of fields.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "window/number.h"

// One place in a line that is being read. Once something didn't fit, nothing fits any more.
class BoardReader {
 public:
  explicit BoardReader(std::string_view line) : rest_(line) {}

  template <class Field, class... More>
  void operator()(std::string_view name, Field& field, More&... more) {
    if (!first_) Skip(' ');
    first_ = false;
    for (const char letter : name) Skip(letter);
    Skip('=');
    Read(field);
    if constexpr (sizeof...(more) > 0) (*this)(more...);
  }
  // All has been read, and all of it fitted.
  bool Ended() const { return fits_ && rest_.empty(); }

 private:
  template <class Field>
  void Read(Field& field) {
    if constexpr (std::is_same_v<Field, std::string>) {
      field = Word();
      if (field.empty()) fits_ = false;
      if (field == "-") field.clear();
      if (field.starts_with('_')) field[0] = ' ';
    } else if constexpr (requires { field.begin(); }) {
      ReadList(field);
    } else {
      const long long number = Number();
      if constexpr (requires { Field::Fits(number); }) {
        if (Field::Fits(number))
          field = number;
        else
          fits_ = false;
      } else {
        field = static_cast<Field>(number);
        if (static_cast<long long>(field) != number) fits_ = false;
      }
    }
  }
  // An array has its length; a vector takes what comes.
  template <class List>
  void ReadList(List& list) {
    Skip('(');
    if constexpr (requires { list.emplace_back(); }) {
      list.clear();
      while (fits_ && !rest_.starts_with(')')) {
        if (!list.empty()) Skip(',');
        Read(list.emplace_back());
      }
    } else {
      for (auto& each : list) {
        if (&each != &*list.begin()) Skip(',');
        Read(each);
      }
    }
    Skip(')');
  }
  void Skip(char letter);
  std::string_view Word();  // up to the next mark
  long long Number();

  std::string_view rest_;
  bool fits_ = true, first_ = true;
};

class BoardWriter {
 public:
  template <class Field, class... More>
  void operator()(std::string_view name, const Field& field, const More&... more) {
    if (!line.empty()) line += ' ';
    line.append(name) += '=';
    Write(field);
    if constexpr (sizeof...(more) > 0) (*this)(more...);
  }
  std::string line;

 private:
  template <class Field>
  void Write(const Field& field) {
    if constexpr (std::is_same_v<Field, std::string>) {
      const size_t start = line.size();
      line += field.empty() ? "-" : field;
      if (field.starts_with(' ')) line[start] = '_';
    } else if constexpr (requires { field.begin(); }) {
      line += '(';
      for (const auto& each : field) {
        if (&each != &*field.begin()) line += ',';
        Write(each);
      }
      line += ')';
    } else {
      line += std::to_string(static_cast<long long>(field));
    }
  }
};

template <class Board>
std::string PrintBoard(const Board& board) {
  BoardWriter writer;
  Board::VisitFields(board, writer);
  return writer.line;
}

// The board of a line that `PrintBoard` has written; nothing for any other text.
template <class Board>
std::optional<Board> ReadBoard(std::string_view line) {
  Board board;
  BoardReader reader(line);
  Board::VisitFields(board, reader);
  if (!reader.Ended()) return std::nullopt;
  return board;
}
