// What the desktop adds to windows for their player, over two starts of the program.
#include <sys/stat.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <set>

#include "games/spirehold/spirehold.h"
#include "tests/desktop_start.h"

namespace {

class Comforts : public ::testing::Test {
 protected:
  const bool open = OpenScreen();
  TestFolder folder;
};

}  // namespace

TEST_F(Comforts, TheSelectorSaysWhatGamesAreAboutAndComesBackWhereItStood) {
  {
    Start first(folder);
    for (const GameEntry& game : AllGames())
      EXPECT_EQ(first.Find<QPushButton>("frmSelect", game.button).toolTip().toStdString(), game.what);
    first.Shown("frmSelect").move(37, 41);
    input::Settle();
  }
  Start second(folder);
  if (WindowsHavePlaces()) {
    EXPECT_EQ(second.Shown("frmSelect").pos(), QPoint(37, 41));
  }
  // Each button has its picture, and Help tells of all seven.
  std::set<qint64> pictures;
  for (const GameEntry& game : AllGames()) {
    const QImage picture = second.Find<QPushButton>("frmSelect", game.button).icon().pixmap(22, 22).toImage();
    pictures.insert(static_cast<qint64>(qHashBits(picture.constBits(), picture.sizeInBytes())));
  }
  EXPECT_EQ(pictures.size(), AllGames().size());
  for (const bool byKey : {false, true}) {
    bool told = false;
    input::WhenModal([&] {
      auto* table = QApplication::activeModalWidget()->findChild<QTableWidget*>("keys");
      ASSERT_TRUE(table);
      EXPECT_EQ(table->item(6, 0)->text() + table->item(6, 1)->text().left(10), "7Treyshift:");
      told = true;
      QApplication::activeModalWidget()->close();
    });
    if (byKey)
      input::Key(second.Shown("frmSelect"), Qt::Key_F1);
    else
      input::Press(second.Find<QPushButton>("frmSelect", "help"), QPoint(5, 5));
    EXPECT_TRUE(input::Await([&] { return told && !QApplication::activeModalWidget(); })) << byKey;
  }
  View view = second.front.looks.Now();
  view.selector = QPoint(100'000, 41);  // on a screen that is gone
  second.front.looks.Set(view);
  second.front.Deliver(second.Window("frmSelect"), [&] { second.Window("frmSelect").Hide(); });
  input::Settle();
  Start third(folder);
  EXPECT_LT(third.Shown("frmSelect").x(), 10'000);
}

TEST_F(Comforts, TwoCopiesKeepWhatEachHasChanged) {
  const auto begin = [&] {
    return std::make_unique<QuickDesktop>(
        DesktopFolders{folder.Path(), CARDHAVEN_TEST_DATA, folder.Path() / "desktop.ini"}, Catalogue());
  };
  auto one = begin(), other = begin();
  const auto set = [](DesktopFrontEnd& front, const std::function<void(View&)>& change) {
    View view = front.looks.Now();
    change(view);
    front.looks.Set(view);
  };
  set(*one, [](View& view) { view.waveVolume = 25, view.lastName = "Ann", view.seen << "frmSumfall"; });
  set(*other,
      [](View& view) { view.musicVolume = 50, view.lastGame = "cmdDuopick", view.seen << "frmDuopick"; });
  one.reset();
  other.reset();
  const View kept = begin()->looks.Now();
  EXPECT_EQ(std::tuple(kept.waveVolume, kept.musicVolume, kept.lastName, kept.lastGame, kept.seen.size()),
            std::tuple(25, 50, "Ann", "cmdDuopick", 2));
}

TEST_F(Comforts, TheFileOfTheViewIsAPlainOneOrNone) {
  const std::filesystem::path file = folder.Path() / "desktop.ini", pipe = folder.Path() / "pipe";
  folder.Write("desktop.ini", "[view]\nzoom=99999\nfullScreen=banana\nlessMotion=true\nfitMaximised=7\n");
  const View read = ReadView(file);
  EXPECT_EQ(std::tuple(read.zoom, read.fullScreen, read.lessMotion, read.fitMaximised),
            std::tuple(300, false, true, true));
  std::filesystem::remove(file);
  mkfifo(pipe.c_str(), 0600);
  std::filesystem::create_symlink(pipe, file);
  View other;
  other.zoom = 200;
  WriteView(file, other, View());
  EXPECT_TRUE(std::filesystem::is_fifo(pipe)) << "it was replaced";
  EXPECT_EQ(ReadView(file), View());
  // What makes no sense is put aside at once, and nobody's lock is in the way.
  std::filesystem::remove(file);
  std::filesystem::create_directory(folder.Path() / "desktop.ini.lock");
  const std::vector<std::function<void()>> harms{
      [&] { std::filesystem::create_directory(file); }, [&] { folder.Write("desktop.ini", "\x1\x2\n\n"); },
      [&] { folder.Write("desktop.ini", "[view]\nzoom=150\n" + std::string(100'000'000, 'x')); }};
  for (const auto& harm : harms) {
    harm();
    EXPECT_EQ(ReadView(file), View());
    EXPECT_TRUE(WriteView(file, other, View()));
    EXPECT_EQ(ReadView(file), other);
    std::filesystem::remove(file);
  }
  EXPECT_TRUE(folder.Has("desktop.ini.bad-3"));
  // As earlier versions wrote it.
  folder.Write("desktop.ini",
               "[last]\ngame=cmdSumfall\nname=\"Zo\u00eb, \\\"Z\\\"\"\nother=7\nseen=frmA, frmB\n"
               "selector=@Point(3 -4)\n\n[view]\nzoom=125\n");
  const View old = ReadView(file);
  EXPECT_EQ(std::tuple(old.lastName, old.seen.size(), old.selector, old.zoom),
            std::tuple("Zo\u00eb, \"Z\"", 2, QPoint(3, -4), 125));
  WriteView(file, other, View());
  EXPECT_NE(folder.Read("desktop.ini").find("other=7\n"), std::string::npos)
      << "what nobody knows here stays";
}

TEST_F(Comforts, FirstStepsAreShownUntilTheFirstGame) {
  const auto steps = [](Start& start) {
    start.Click("frmSelect", "cmdSumfall");
    return start.Shown("frmSumfall").Board().Notes().size();
  };
  {
    Start first(folder);
    EXPECT_EQ(steps(first), 1u);
  }
  {
    Start again(folder);
    EXPECT_EQ(steps(again), 1u) << "no game has been played";
    again.Click("frmSumfall", "cmdPlay");
    EXPECT_TRUE(again.Shown("frmSumfall").Board().Notes().empty());
  }
  Start later(folder);
  EXPECT_EQ(steps(later), 0u);
}

TEST_F(Comforts, ANameIsOfferedAgainAndItsRowIsMarked) {
  const char* const names[] = {"Zo\u00eb", "Bob"};
  for (int game = 0; game < 3; ++game) {
    folder.Write("HiScores90_11.Txt", "Ann, 5\r\nBob, 0\r\nCid, -1\r\n");
    Start start(folder);
    start.Click("frmSelect", "cmdSumfall");
    start.Click("frmSumfall", "cmdPlay");
    const auto atName = [&] {
      auto& box = start.Find<QLineEdit>("frmHiScoreName", "lblPlayerName");
      EXPECT_EQ(box.selectedText().toStdString(), game == 0 ? "" : names[game - 1]);
      const std::vector<Note> notes = start.GuideTo("frmHiScoreName").Notes();
      EXPECT_EQ(notes.at(0).text + "|" + notes.at(1).text, "Score 0|Place 3");
      if (game < 2)
        for (const char32_t letter : QString(names[game]).toStdU32String())
          input::Key(box, Qt::Key_unknown, {}, QString::fromUcs4(&letter, 1));
      input::Click(start.front, start.Control("frmHiScoreName", "cmdOK"));
    };
    const auto atTable = [&] {
      std::string ranks;
      for (const Note& note : start.Shown("frmHighScores").Board().Notes())
        ranks += note.look == Note::Look::Mark ? ">" : note.text + " ";
      EXPECT_EQ(ranks, "1 2 >3 4 ");
      input::Click(start.front, start.Control("frmHighScores", "cmdDone"));
    };
    int answered = 0;
    QTimer player;
    player.callOnTimeout([&] {
      if (answered == 0 && start.Sees("frmHiScoreName")) ++answered, atName();
      if (answered == 1 && start.Sees("frmHighScores")) ++answered, atTable();
    });
    player.start(20);
    start.front.Deliver(start.Window("frmSumfall"), [&] {
      auto& window = static_cast<GameWindow&>(start.Window("frmSumfall"));
      window.FinishGame();
    });
    EXPECT_EQ(answered, 2);
  }
}

TEST_F(Comforts, TheClockIsTheOneOfTheSystem) {
  Start start(folder);
  start.Click("frmSelect", "cmdSumfall");
  auto& window = static_cast<GameWindow&>(start.Window("frmSumfall"));
  window.StatusBar1.Panels(3).Text = "3:07 AM";  // an hour and a minute that have gone by
  EXPECT_EQ(start.Find<QLabel>("frmSumfall", "StatusBar1.Panels(3)").text().toStdString(),
            start.suite->common.TimeOfDay());
}

TEST_F(Comforts, AStuckBoardSaysSoUntilItIsPausedOrDealtAnew) {
  Start start(folder);
  start.Click("frmSelect", "cmdSpirehold");
  auto& game = static_cast<frmSpirehold&>(start.Window("frmSpirehold"));
  const auto calls = [&] {
    input::Settle();
    std::string said;
    for (const Note& note : start.Shown("frmSpirehold").Board().Notes())
      if (note.look == Note::Look::Call) said += "[" + note.text + "]";
    return said;
  };
  const std::string stuck = "[][No more moves.\nTake Score?]";
  start.Click("frmSpirehold", "cmdPlay");
  EXPECT_EQ(calls(), "");
  // Nothing goes with the up card; then with none of the stock either, which is still there.
  start.front.Deliver(game, [&] {
    game.board.table.fill("");
    game.board.table[27] = "9S";
    game.board.pile.back() = "2H";
  });
  EXPECT_EQ(calls(), "");
  start.front.Deliver(game, [&] { std::ranges::fill(game.board.stack, "2C"); });
  EXPECT_EQ(calls(), stuck);
  start.Click("frmSpirehold", "cmdPause");
  EXPECT_EQ(calls(), "");
  start.Click("frmSpirehold", "cmdPause");
  EXPECT_EQ(calls(), stuck);
  std::string meanwhile = stuck;  // while the round is paid
  start.front.onSleep = [&] { start.front.onSleep = [&] { meanwhile = calls(); }; };
  start.Click("frmSpirehold", "cmdTakeScore");
  EXPECT_EQ(meanwhile, "");
  EXPECT_TRUE(input::Await([&] { return game.standing.IsPlaying(); }));
  EXPECT_EQ(calls(), "");
}
