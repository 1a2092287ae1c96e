// The desktop program.
#include <cstdlib>
#include <iostream>
#include <memory>

#include "app/options.h"
#include "games/games.h"
#include "suite/catalogue.h"
#include "suite/suite.h"
#include "window/desktop/program.h"

int main(int argc, char** argv) {
  Options options;
  if (const auto status = ReadCommandLine(Program::Desktop, argc, argv, options)) return *status;
  try {
    DesktopOptions desktop{{FindAppPath(options), FindDataFolder()}, {}};
    if (options.console) desktop.script = ScriptOptions{options.start, options.speed};
    int programAlone = 1;  // the toolkit gets no options of ours
    return RunDesktop(programAlone, argv, desktop, Catalogue(), [&](Platform& platform) {
      if (options.seed) platform.random.Seed(*options.seed);
      platform.CommandLine = options.savedGame;
      auto suite = std::make_shared<Suite>(platform, SuiteOptions{desktop.folders.own}, AllGames());
      suite->Start();
      return suite;
    });
  } catch (const std::exception& error) {
    std::cerr << "cardhaven: " << error.what() << std::endl;
    return EXIT_FAILURE;
  }
}
