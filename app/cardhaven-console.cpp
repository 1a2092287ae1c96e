// The program without a screen.
#include <cstdlib>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <streambuf>

#include "app/options.h"
#include "app/records.h"
#include "app/reports.h"
#include "games/games.h"
#include "suite/suite.h"
#include "window/console/console.h"
#include "window/system/leaving.h"
#include "window/system/program.h"

namespace {

// Remembers whether the program ended on a failure.
class Console : public ConsoleFrontEnd {
 public:
  using ConsoleFrontEnd::ConsoleFrontEnd;
  void Ended(const std::string& failure) override { failed = !failure.empty(); }
  bool failed = false;
};

// Standard input, until a signal comes.
class Input : public std::streambuf {
  int_type underflow() override {
    const size_t got = program::Read(chunk_, sizeof chunk_);
    if (got == 0) return traits_type::eof();
    setg(chunk_, chunk_, chunk_ + got);
    return traits_type::to_int_type(*chunk_);
  }
  char chunk_[4096];
};

// Standard output, whose reader may not read on.
class Output : public std::streambuf {
 public:
  Output() { setp(chunk_, chunk_ + sizeof chunk_); }

 private:
  int_type overflow(int_type letter) override {
    if (sync() != 0) return traits_type::eof();
    return traits_type::eq_int_type(letter, traits_type::eof()) ? traits_type::not_eof(letter)
                                                                : sputc(traits_type::to_char_type(letter));
  }
  int sync() override {
    if (!program::Write(pbase(), static_cast<size_t>(pptr() - pbase()))) return -1;
    setp(chunk_, chunk_ + sizeof chunk_);
    return 0;
  }
  char chunk_[8192];
};

}  // namespace

int main(int argc, char** argv) {
  program::OutliveReaders();
  Options options;
  if (const auto status = ReadCommandLine(Program::Console, argc, argv, options)) return *status;
  try {
    if (options.verify) return Verify(options.records);
    const std::filesystem::path folder = FindAppPath(options);
    if (options.verifyTables) return VerifyTables(folder);
    if (options.history) return PrintHistory(folder);
    if (options.statistics) return PrintStatistics(folder, options.game);
    Input input;
    Output output;
    std::istream in(&input);
    std::ostream out(&output);
    Console console({options.start, options.screen}, in, out);
    Platform& platform = console.platform;
    leaving::Heed();
    leaving::SetKeeper(&platform.OnLeave);
    if (options.seed) platform.random.Seed(*options.seed);
    platform.CommandLine = options.savedGame;
    RecordKeeper keeper(platform, options);
    std::unique_ptr<Suite> suite;
    try {
      suite = std::make_unique<Suite>(platform, SuiteFor(options, folder, Program::Console), AllGames());
      keeper.Attach(suite->common, SuiteFor(options, folder, Program::Console));
      suite->Start();
      console.Run();
    } catch (const std::exception& error) {
      platform.End(error.what());
    }
    leaving::SetKeeper(nullptr);
    if (!out.flush()) throw std::runtime_error("the output can't be written");
    return console.failed ? EXIT_FAILURE : EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::cerr << "cardhaven-console: " << error.what() << std::endl;
    return EXIT_FAILURE;
  }
}
