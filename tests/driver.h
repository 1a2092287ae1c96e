// A suite under test that is driven step by step: between two steps the model can be looked at.
#pragma once

#include <deque>
#include <nlohmann/json.hpp>
#include <vector>

#include "tests/harness.h"

class Driver {
 public:
  explicit Driver(const std::filesystem::path& folder, const RunOptions& options = {})
      : console_(options.console, in_, out_), suite_(console_.platform, {folder}, AllGames()) {
    console_.platform.random.Seed(options.seed);
    console_.platform.CommandLine = options.savedGame;
    suite_.Start();
    Do("");
  }

  // Carries out commands, a line each, and returns what the console writes. The answers to message boxes must
  // be among the commands. A line "@" calls `meanwhile`.
  std::string Do(const std::string& commands) {
    std::istringstream split(commands);
    for (std::string line; std::getline(split, line);) lines_.push_back(line);
    in_.clear();
    out_.str("");
    console_.Run();
    return out_.str();
  }
  // The same, with sounds, property changes and the like.
  std::string Trace(const std::string& commands) {
    const std::string on = "trace on\n", ok = "ok\n";
    const std::string written = Do(on + commands + "\ntrace off\n");
    return written.substr(ok.size(), written.size() - 2 * ok.size());
  }
  // A property's value; a refusal gives null.
  nlohmann::json Get(const std::string& property) {
    const std::string answer = Do("get " + property);
    return answer.rfind("ok ", 0) == 0 ? nlohmann::json::parse(answer.substr(3)) : nlohmann::json();
  }
  std::string Text(const std::string& property) {
    const nlohmann::json value = Get(property);
    return value.is_string() ? value.get<std::string>() : value.dump();
  }

  std::function<void()> meanwhile;

  modCommon& common() { return suite_.common; }
  Platform& platform() { return console_.platform; }

 private:
  std::optional<std::string> Next() {
    while (!lines_.empty()) {
      const std::string line = lines_.front();
      lines_.pop_front();
      if (line != "@") return line;
      meanwhile();
    }
    return std::nullopt;
  }

  std::deque<std::string> lines_;
  LiveInput input_{[this] { return Next(); }};
  std::istream in_{&input_};
  std::ostringstream out_;
  ConsoleFrontEnd console_;
  Suite suite_;
};

// The lines of a console's output that begin with `prefix`, without it.
inline std::vector<std::string> LinesOf(const std::string& output, const std::string& prefix) {
  std::vector<std::string> found;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);)
    if (line.rfind(prefix, 0) == 0) found.push_back(line.substr(prefix.size()));
  return found;
}

// The texts of the message boxes that came up.
inline std::vector<std::string> BoxesOf(const std::string& output) {
  std::vector<std::string> texts;
  for (const std::string& box : LinesOf(output, "* msgbox "))
    texts.push_back(nlohmann::json::parse(box).at("text").get<std::string>());
  return texts;
}

inline bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

inline std::string Joined(const std::vector<std::string>& parts, const std::string& between = "|") {
  std::string all;
  for (const std::string& part : parts) all += (all.empty() ? "" : between) + part;
  return all;
}
