// Writes what the page is told. Only as much of JSON as that needs.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

class Json {
 public:
  Json& Open(char bracket) {
    Part();
    text_ += bracket;
    fresh_ = true;
    return *this;
  }
  Json& Close(char bracket) {
    text_ += bracket;
    fresh_ = false;
    return *this;
  }
  Json& Key(std::string_view key) {
    Write(key);
    text_ += ':';
    fresh_ = true;
    return *this;
  }
  Json& Write(std::string_view text);
  Json& Write(const char* text) { return Write(std::string_view(text)); }
  Json& Write(bool flag) { return Plain(flag ? "true" : "false"); }
  template <class Number>
  requires std::is_arithmetic_v<Number> Json& Write(Number number) { return Plain(std::to_string(number)); }
  // A member of an object.
  template <class Value>
  Json& Member(std::string_view key, const Value& value) {
    return Key(key).Write(value);
  }
  // What was written elsewhere, as it is.
  Json& Plain(std::string_view text) {
    Part();
    text_ += text;
    return *this;
  }

  const std::string& Text() const { return text_; }

 private:
  void Part() {
    if (!fresh_) text_ += ',';
    fresh_ = false;
  }

  std::string text_;
  bool fresh_ = true;  // nothing stands before what comes next
};
