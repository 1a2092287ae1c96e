// A suite under test that is driven step by step: between two steps the model can be looked at.
#pragma once

#include <deque>
#include <nlohmann/json.hpp>
#include <vector>

#include "tests/harness.h"

class Driver {
 public:
  explicit Driver(const std::filesystem::path& folder, const RunOptions& options = {})
      : console_(options.console, in_, out_),
        suite_(console_.platform, In(folder, options.suite), AllGames()) {
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
  RoundClock& clock() { return common().window->clock; }
  // A game is in progress in a window that is open.
  bool InGame() { return common().window && common().window->standing.InGame(); }
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

// What a player hears, reads in a label ("frmSpirehold.lblMessage") and waits for, in the order in which it
// comes; "x20" for what comes twenty times in a row. A count's sound stands with the wait behind it.
inline std::string StoryOf(const std::string& trace, const std::string& label) {
  std::vector<std::string> told;
  std::istringstream lines(trace);
  for (std::string line; std::getline(lines, line);) {
    const std::string sound = "* sound \"\\\\", message = "* set " + label + ".Caption ";
    if (line.starts_with(sound))
      told.push_back(line.substr(sound.size(), line.find('.') - sound.size()));
    else if (line.starts_with("* sleep ") && !told.empty() && told.back() == "Snap")
      told.back() += " " + line.substr(8);
    else if (line.starts_with("* sleep "))
      told.push_back(line.substr(8));
    else if (line.starts_with(message))
      told.push_back(line.substr(message.size()));
    else if (line.starts_with("* mci "))
      told.push_back(Contains(line, "play") ? "music" : Contains(line, "close") ? "silence" : "open");
    else if (line.starts_with("* msgbox "))
      told.push_back("box");
  }
  std::string all;
  for (size_t i = 0, next; i < told.size(); i = next) {
    for (next = i + 1; next < told.size() && told[next] == told[i];) ++next;
    all += (all.empty() ? "" : ", ") + told[i];
    if (next - i > 1) all += " x" + std::to_string(next - i);
  }
  return all;
}
