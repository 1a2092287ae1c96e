// A saved game that is opened in a file manager while the suite runs: a real second start of the program
// meets the windows of a first one.
#include <unistd.h>

#include <QElapsedTimer>
#include <QMessageBox>
#include <QProcess>
#include <QThread>
#include <QUrl>
#include <thread>

#include "games/sumfall/board.h"
#include "games/sumfall/saved_game.h"
#include "tests/desktop_start.h"
#include "window/desktop/second_start.h"

namespace {

namespace fs = std::filesystem;

// The folder for sockets, for as long as the test runs.
struct Runtime {
  Runtime() {
    fs::permissions(folder.Path(), fs::perms::owner_all);
    setenv("XDG_RUNTIME_DIR", folder.Path().c_str(), 1);
  }
  ~Runtime() { had ? setenv("XDG_RUNTIME_DIR", before.c_str(), 1) : unsetenv("XDG_RUNTIME_DIR"); }
  std::vector<fs::path> Sockets() const {
    std::error_code none;
    const fs::directory_iterator each(folder.Path() / "card-haven", none);
    return none ? std::vector<fs::path>() : std::vector<fs::path>(fs::begin(each), fs::end(each));
  }
  // Who was killed leaves its own behind.
  void Forget(const std::vector<fs::path>& living) const {
    for (const fs::path& each : Sockets())
      if (std::ranges::find(living, each) == living.end()) fs::remove(each);
  }

  TestFolder folder;
  const bool had = std::getenv("XDG_RUNTIME_DIR") != nullptr;
  const std::string before = had ? std::getenv("XDG_RUNTIME_DIR") : "";
};

class SecondStart : public testing::Test {
 protected:
  SecondStart() {
    modSumfall::SavedGame game;
    game.userName = "Ann";
    game.decks[0] = modSumfall::DeckForGoal(11);
    text_ = FormatSavedGame(game);
  }
  Control* Opener() {
    Form& selector = first.Window("frmSelect");
    return selector.Visible ? selector.find("cmdSumfall") : nullptr;
  }
  std::string Save(const std::string& name) {
    folder.Write(name, text_);
    return (folder.Path() / name).string();
  }
  // Opens it as a file manager would, in the folder of the first start.
  void Open(const std::string& file, const QStringList& options = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("SDL_AUDIODRIVER", "dummy");
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    second.setProcessEnvironment(environment);
    second.setWorkingDirectory(QString::fromStdString(folder.Path().string()));
    QStringList all = options;
    if (all.isEmpty()) all << "--folder" << QString::fromStdString(folder.Path().string());
    second.start(CARDHAVEN_DESKTOP, all << QString::fromStdString(file));
  }
  // It stands in windows of its own, and listens there.
  bool StandsAlone() {
    const bool alone = input::Await([this] { return runtime.Sockets().size() == 2; });
    second.kill();
    second.waitForFinished();
    runtime.Forget(mine);
    return alone;
  }

  const bool open = OpenScreen();
  Runtime runtime;
  TestFolder folder;
  Start first{folder};
  SecondStarts others{first.front, folder.Path().string(), [this] { return Opener(); }};
  const std::vector<fs::path> mine = runtime.Sockets();
  QProcess second;

 private:
  std::string text_;
};

}  // namespace

TEST_F(SecondStart, HandsASavedGameToTheSelectorWhateverItIsCalled) {
  const std::string odd = "Ann's 100% gr\xC3\xB6\xC3\x9Ftes %41 \"Spiel\".sfl";
  const std::string whole = Save(odd);
  for (const std::string& name :
       {odd, whole, QUrl::fromLocalFile(QString::fromStdString(whole)).toEncoded().toStdString()}) {
    QString said;
    input::WhenModal([&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      said = box->text();
      EXPECT_EQ(first.front.Foremost(), box);
      box->accept();
    });
    Open(name);
    ASSERT_TRUE(input::Await([&] {
      return first.Sees("frmSumfall") && first.suite->common.window->standing.InGame();
    })) << name;
    EXPECT_TRUE(said.startsWith("This game was saved by Ann.")) << said.toStdString();
    EXPECT_EQ(first.suite->common.Deck[17], "2S") << "as it was saved";
    EXPECT_TRUE(input::Await([this] { return second.state() == QProcess::NotRunning; }));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.front.platform.CommandLine, "") << "for this once";
    first.suite->common.window->Discard();
    first.suite->common.selector->Show();
    input::Settle();
  }
}

TEST_F(SecondStart, OpensWindowsOfItsOwnWhereAnythingIsUnderWay) {
  const std::string file = Save("a.sfl");
  // Something else was asked for: another folder, or a deal, for which nothing is taken from others either.
  Open(file, {"--folder", QString::fromStdString(runtime.folder.Path().string())});
  EXPECT_TRUE(StandsAlone());
  Open(file, {"--folder", QString::fromStdString(folder.Path().string()), "--deal", "7"});
  EXPECT_FALSE(second.waitForFinished(1500));
  EXPECT_EQ(runtime.Sockets(), mine);
  second.kill();
  second.waitForFinished();
  EXPECT_FALSE(first.Sees("frmSumfall"));
  // A question stands.
  input::WhenModal([&] {
    Open(file);
    EXPECT_TRUE(StandsAlone());
    qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->accept();
  });
  first.front.Deliver(first.Window("frmSelect"), [&] { first.suite->common.MsgBox("Wait."); });
  input::Settle();
  // The window of a game, before one and in it.
  first.Click("frmSelect", "cmdFivestack");
  GameWindow& game = *first.suite->common.window;
  for (const bool plays : {false, true}) {
    if (plays) first.front.Deliver(game, [&] { player::Click(game.cmdPlay); });
    ASSERT_TRUE(input::Await([&] { return game.standing.InGame() == plays; }));
    Open(file);
    EXPECT_TRUE(StandsAlone());
    EXPECT_EQ(game.standing.InGame(), plays);
    EXPECT_FALSE(first.Sees("frmSumfall"));
  }
}

TEST(Handover, IsTakenByOneWhoAnswersInTimeAndByNobodyLater) {
  const Runtime runtime;
  const handover::Request asked{"/a \"game\".sfl", "/folder", "screen", "launch"};
  EXPECT_FALSE(handover::Offer(asked)) << "nobody listens";
  handover::Listener slow;
  ASSERT_GE(slow.Wire(), 0);
  EXPECT_FALSE(handover::Offer(asked)) << "nobody answers";
  const auto takes = [](const handover::Request&) { return true; };
  EXPECT_FALSE(slow.Hear(takes)) << "who has waited long enough has gone on";

  const auto offered = [&](bool takes) {
    bool taken = false;
    std::thread other([&] { taken = handover::Offer(asked); });
    std::optional<handover::Request> heard;
    QElapsedTimer since;
    since.start();
    while (!heard && since.elapsed() < 1000) {
      heard = slow.Hear([&](const handover::Request& request) {
        EXPECT_EQ(request.file + request.folder + request.screen + request.launch,
                  asked.file + asked.folder + asked.screen + asked.launch);
        return takes;
      });
      QThread::msleep(1);
    }
    other.join();
    EXPECT_EQ(taken, heard.has_value());
    return taken;
  };
  EXPECT_TRUE(offered(true));
  EXPECT_FALSE(offered(false));

  // A copy that was killed leaves its socket; it stops nobody, and goes.
  const fs::path dead = runtime.folder.Path() / "card-haven/1.socket";
  fs::rename(*fs::directory_iterator(dead.parent_path()), dead);
  close(slow.Wire());
  EXPECT_FALSE(handover::Offer(asked));
  EXPECT_FALSE(fs::exists(dead));

  // A folder that others can write to is none of the player's.
  fs::permissions(dead.parent_path(), fs::perms::all);
  EXPECT_EQ(handover::Listener().Wire(), -1);
}
