// The program without a screen.
#include <cstdlib>
#include <iostream>
#include <memory>
#include <stdexcept>

#include "app/options.h"
#include "games/games.h"
#include "suite/suite.h"
#include "window/console/console.h"

namespace {

// Remembers whether the program ended on a failure.
class Console : public ConsoleFrontEnd {
 public:
  using ConsoleFrontEnd::ConsoleFrontEnd;
  void Ended(const std::string& failure) override { failed = !failure.empty(); }
  bool failed = false;
};

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  Options options;
  if (const auto status = ReadCommandLine(Program::Console, argc, argv, options)) return *status;
  try {
    const std::filesystem::path folder = FindAppPath(options);
    Console console({options.start, options.screen}, std::cin, std::cout);
    Platform& platform = console.platform;
    if (options.seed) platform.random.Seed(*options.seed);
    platform.CommandLine = options.savedGame;
    std::unique_ptr<Suite> suite;
    try {
      suite = std::make_unique<Suite>(platform, SuiteOptions{folder}, AllGames());
      suite->Start();
      console.Run();
    } catch (const std::exception& error) {
      platform.End(error.what());
    }
    if (!std::cout.flush()) throw std::runtime_error("the output can't be written");
    return console.failed ? EXIT_FAILURE : EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::cerr << "cardhaven-console: " << error.what() << std::endl;
    return EXIT_FAILURE;
  }
}
