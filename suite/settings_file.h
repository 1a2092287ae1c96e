// The form of the settings files: a section line in brackets, its value on the next line, an empty line.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Goes through a whole file. `apply(section, value)` is offered each line with the one behind it, and tells
// whether the line is a section that it knows; if so the value is not offered as a line. Returns how many
// sections were known.
int ReadSettings(std::string_view text,
                 const std::function<bool(std::string_view section, std::string_view value)>& apply);

// Builds a file, section by section.
class SettingsWriter {
 public:
  void Add(std::string_view section, std::string_view value);
  void Add(std::string_view section, long long value);
  void AddFlag(std::string_view section, bool value);  // "True" or "False"
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

// The lines of a text, whatever ends them; no line for what follows the last line end.
std::vector<std::string_view> Lines(std::string_view text);
