#include "suite/settings_file.h"

#include "window/text.h"

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

int ReadSettings(std::string_view text,
                 const std::function<bool(std::string_view section, std::string_view value)>& apply) {
  int known = 0;
  const auto lines = Lines(text);
  for (size_t i = 0; i + 1 < lines.size(); ++i) {
    if (!apply(Trim(lines[i]), Trim(lines[i + 1]))) continue;
    ++known;
    ++i;
  }
  return known;
}

void SettingsWriter::Add(std::string_view section, std::string_view value) {
  text_.append(section).append("\r\n").append(value).append("\r\n\r\n");
}

void SettingsWriter::Add(std::string_view section, long long value) { Add(section, std::to_string(value)); }

void SettingsWriter::AddFlag(std::string_view section, bool value) { Add(section, value ? "True" : "False"); }
