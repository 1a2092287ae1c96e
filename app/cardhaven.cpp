// The desktop program.
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>

#include "app/options.h"
#include "games/games.h"
#include "suite/catalogue.h"
#include "suite/suite.h"
#include "window/desktop/program.h"

namespace {

// A suite without its pictures can be played, but nobody should have to guess why it looks so bare.
void TellOfMissingData(Platform& platform, const DesktopOptions& options) {
  std::error_code error;
  const std::filesystem::path& data = options.folders.installed;
  if (std::filesystem::is_directory(data / "pictures", error) ||
      std::filesystem::exists(options.folders.own / Catalogue().front().file, error))
    return;
  const std::string text = "The pictures and sounds are missing: they should be in " + data.string() + ".";
  std::cerr << "cardhaven: " << text << std::endl;
  if (!options.script)
    platform.MsgBox(text + " Please install Card Haven again.", "Card Haven", Icon::Exclamation);
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (const auto status = ReadCommandLine(Program::Desktop, argc, argv, options)) return *status;
  try {
    DesktopOptions desktop{{FindAppPath(options), FindDataFolder(), {}}, {}, MakeGuide};
    if (options.console)
      desktop.script = ScriptOptions{options.start, options.speed};
    else
      desktop.folders.view = ViewFile();
    int programAlone = 1;  // the toolkit gets no options of ours
    return RunDesktop(programAlone, argv, desktop, Catalogue(), [&](Platform& platform) {
      if (options.seed) platform.random.Seed(*options.seed);
      platform.CommandLine = options.savedGame;
      auto suite = std::make_shared<Suite>(platform, SuiteOptions{desktop.folders.own}, AllGames());
      suite->Start();
      TellOfMissingData(platform, desktop);
      return suite;
    });
  } catch (const std::exception& error) {
    std::cerr << "cardhaven: " << error.what() << std::endl;
    return EXIT_FAILURE;
  }
}
