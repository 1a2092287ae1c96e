// The desktop program.
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>

#include "app/options.h"
#include "app/records.h"
#include "app/reports.h"
#include "app/watch.h"
#include "games/games.h"
#include "suite/catalogue.h"
#include "suite/dialogs.h"
#include "suite/high_scores.h"
#include "suite/suite.h"
#include "window/desktop/program.h"
#include "window/desktop/second_start.h"
#include "window/system/folders.h"
#include "window/system/handover.h"

namespace {

// The game that plays what was saved.
constexpr char kSaves[] = "Sumfall";

// Whether a game is played here as anywhere: what else may be asked for belongs to this start alone.
bool IsPlain(const Options& options) {
  return !options.console && !options.today && options.deal == 0 && options.record.empty() &&
         !options.noRecords;
}

struct Running {
  RecordKeeper keeper;
  Suite suite;
  std::optional<SecondStarts> others;
  Running(DesktopFrontEnd& front, const Options& options, const SuiteOptions& asked)
      : keeper(front.platform, options, Keeps(front, options)), suite(front.platform, asked, AllGames()) {
    keeper.Attach(suite.common, asked);
    if (IsPlain(options)) others.emplace(front, asked.AppPath.string(), [this] { return Opener(); });
  }

 private:
  // In the selector, which goes when a game's window comes.
  Control* Opener() {
    Form& selector = *suite.common.selector;
    return selector.Visible ? selector.find(std::string("cmd") + kSaves) : nullptr;
  }

  static std::function<bool()> Keeps(DesktopFrontEnd& front, const Options& options) {
    if (options.console || options.noRecords) return nullptr;
    return [&front] { return front.looks.Now().keepsRecords; };
  }
};

ProvedTable TableOf(Form& form, const std::filesystem::path& folder) {
  auto* const fame = dynamic_cast<frmHighScores*>(&form);
  if (!fame) return {};
  ProvedTable table;
  for (int place = 0; place < static_cast<int>(kTablePlaces); ++place)
    table.rows.push_back(&fame->ScoreList(2 * place + 1));
  table.find = [folder, name = fame->Table()](const std::atomic<bool>& stop) {
    return FindProofs(folder, name, stop);
  };
  return table;
}

// A suite without its pictures can be played, but nobody should have to guess why it looks so bare.
void TellOfMissingData(Platform& platform, const DesktopOptions& options) {
  const std::filesystem::path& data = options.folders.installed;
  if (folders::IsFolder(data / "pictures") || folders::Exists(options.folders.own / Catalogue().front().file))
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
    TakeRecord(options);
    DesktopOptions desktop;
    desktop.folders = {FindAppPath(options), FindDataFolder()};
    desktop.guides = MakeGuide;
    desktop.games = KnownGames();
    if (options.console)
      desktop.script = ScriptOptions{options.start, options.speed};
    else
      desktop.folders.view = ViewFile();
    desktop.keepsRecords = !options.console && !options.noRecords && options.record.empty();
    const std::filesystem::path& own = desktop.folders.own;
    desktop.records = {own, desktop.folders.installed / "demonstrations",
                       [&own](Form& form) { return TableOf(form, own); }, VerdictOn};
    if (!options.watched.empty()) return Watch(argv, options, desktop);
    if (!options.savedGame.empty() && options.game == kSaves && IsPlain(options)) {
      handover::Request request = handover::Here();
      request.file = folders::Absolute(options.savedGame).string();
      request.folder = own.string();
      if (handover::Offer(request)) return EXIT_SUCCESS;
    }
    return RunDesktop(argv, desktop, Catalogue(), [&](DesktopFrontEnd& front) {
      Platform& platform = front.platform;
      if (options.seed) platform.random.Seed(*options.seed);
      platform.CommandLine = options.savedGame;
      auto running =
          std::make_shared<Running>(front, options, SuiteFor(options, desktop.folders.own, Program::Desktop));
      running->suite.Start();
      TellOfMissingData(platform, desktop);
      return running;
    });
  } catch (const std::exception& error) {
    std::cerr << "cardhaven: " << error.what() << std::endl;
    return EXIT_FAILURE;
  }
}
