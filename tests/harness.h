// Runs a whole suite inside a test: commands go in, the lines that the console writes come out.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <istream>
#include <iterator>
#include <optional>
#include <sstream>
#include <streambuf>
#include <string>

#include "games/games.h"
#include "suite/suite.h"
#include "window/console/console.h"

// A folder that is gone when the test is over.
class TestFolder {
 public:
  TestFolder() {
    std::string name = std::filesystem::temp_directory_path() / "cardhaven-test-XXXXXX";
    if (!mkdtemp(name.data())) throw std::runtime_error("no folder for a test can be made");
    path_ = name;
  }
  ~TestFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  const std::filesystem::path& Path() const { return path_; }
  std::string Read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
  }
  bool Has(const std::string& name) const { return std::filesystem::exists(path_ / name); }

 private:
  std::filesystem::path path_;
};

// Input whose next line is made when it is asked for, by someone who may look at the suite first.
class LiveInput : public std::streambuf {
 public:
  using Source = std::function<std::optional<std::string>()>;  // nothing ends the input
  explicit LiveInput(Source source) : source_(std::move(source)) {}

 protected:
  int_type underflow() override {
    const auto line = source_();
    if (!line) return traits_type::eof();
    line_ = *line + "\n";
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_[0]);
  }

 private:
  Source source_;
  std::string line_;
};

struct RunOptions {
  uint64_t seed = 1;
  ConsoleOptions console = {};
  std::string savedGame = {};  // the program's command line
  SuiteOptions suite = {};
};

// What a suite gets that keeps its files in that folder.
inline SuiteOptions In(const std::filesystem::path& folder, SuiteOptions options = {}) {
  options.AppPath = folder;
  return options;
}

// Plays `commands`, a line each, and returns all that the console writes.
inline std::string RunConsole(const TestFolder& folder, const std::string& commands,
                              const RunOptions& options = {}) {
  std::istringstream in(commands);
  std::ostringstream out;
  ConsoleFrontEnd console(options.console, in, out);
  console.platform.random.Seed(options.seed);
  console.platform.CommandLine = options.savedGame;
  Suite suite(console.platform, {folder.Path()}, AllGames());
  suite.Start();
  console.Run();
  return out.str();
}
