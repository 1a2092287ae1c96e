// What the documents say, for tests that hold them to the program.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// What stands in a document between its two marks.
inline std::string Between(const std::filesystem::path& file, const std::string& begin,
                           const std::string& end) {
  const std::string text = ReadFile(file);
  const size_t from = text.find(begin), to = text.find(end);
  if (from == std::string::npos || to == std::string::npos) return "no marks in " + file.string();
  return text.substr(from + begin.size(), to - from - begin.size());
}

// A text as a manual page writes it.
inline std::string InManual(const std::string& words) {
  std::string text;
  for (const char letter : words)
    text += letter == '-' ? "\\-" : letter == '"' ? "\\(dq" : std::string(1, letter);
  return text;
}
