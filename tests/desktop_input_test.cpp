// What a player does while handlers run, and what becomes of it.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QImage>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>

#include "games/games.h"
#include "games/sumfall/sumfall.h"
#include "suite/catalogue.h"
#include "suite/suite.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/painting/pictures.h"
#include "window/desktop/painting/screening.h"
#include "window/desktop/sound/media.h"
#include "window/desktop/sound/wave.h"

#ifdef __SANITIZE_ADDRESS__
// The font library keeps a block of its own till the end, which is no leak of ours.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }
#endif

namespace {

class frmTable : public Form {
 public:
  explicit frmTable(Platform& platform, const char* name = "frmTable") : Form(platform, name) {
    Sizable = true;
    Visual* const row[] = {&cmdA, &cmdB, &imgCard, &imgPair};
    for (int i = 0; i < 4; ++i) row[i]->Move(1500 * i, 300, 1065, 1440);
    Move(1500, 1500, 7500, 3000);
    imgCard.Picture = imgPair.Picture = 20;
    cmdA.Caption = "&Alpha";
    cmdB.Caption = "&Beta";
    mnuGame.Caption = "&Game";
    mnuEntry.Caption = "&Entry";
    Clock.Interval = 1;
    cmdA.OnClick = [this] { Runs("A", onA); };
    cmdB.OnClick = [this] { Runs("B", onB); };
    imgCard.OnClick = [this] { Runs("card", nullptr); };
    imgPair.OnClick = [this] { Runs("pair", nullptr); };
    imgPair.OnDblClick = [this] { Runs("twice", nullptr); };
    mnuEntry.OnClick = [this] { Runs("entry", nullptr); };
    Clock.OnTimer = [this] {
      if (!ticksOn) Clock.Enabled = false;
      Runs("tick", onTick);
    };
  }
  void Form_Unload() override { log += "gone "; }
  void Runs(const std::string& name, std::function<void()> handler) {
    log += name + (handler ? "( " : " ");
    if (handler) handler();
    if (handler) log += ") ";
  }

  CommandButton cmdA{*this, "cmdA"}, cmdB{*this, "cmdB"};
  Image imgCard{*this, "imgCard"}, imgPair{*this, "imgPair"};
  Timer Clock{*this, "Clock"};
  Menu mnuGame{*this, "mnuGame"}, mnuEntry{mnuGame, "mnuEntry"};
  std::function<void()> onA, onB, onTick;
  std::string log;
  bool ticksOn = false;
};

class Input : public testing::Test {
 protected:
  void SetUp() override {
    table.Show();
    input::Settle();
  }
  // What a handler leads to in which the screen does `meanwhile` while it sleeps.
  std::string LogOf(const std::function<void()>& meanwhile, bool lets,
                    const std::function<void()>& later = nullptr) {
    table.log.clear();
    front.onSleep = meanwhile;
    table.onA = [this, lets, later] {
      front.platform.Sleep(10);
      table.log += "slept ";
      if (lets) front.platform.DoEvents();
      if (later) later();
    };
    input::Click(front, table.cmdA);
    input::Settle();
    input::Await([this] { return table.log.find(')') != std::string::npos && !table.Clock.Enabled; });
    input::Settle();
    table.onA = nullptr;
    return table.log;
  }
  static QMessageBox* Box() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return box && box->isVisible() ? box : nullptr;
  }
  static void AtNextBox(const std::function<void(QMessageBox&)>& deed) {
    input::When([] { return Box() != nullptr; }, [deed] { deed(*Box()); });
  }
  void PressAtNextBox(QMessageBox::StandardButton button) {
    AtNextBox([button](QMessageBox& box) { input::Press(*box.button(button), QPoint(5, 5)); });
  }

  const bool open = OpenScreen();
  TestFolder folder;
  QuickDesktop front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  frmTable table{front.platform};
};

}  // namespace

TEST_F(Input, IsKeptInOrderAndServedAtPendingEvents) {
  const auto click = [this](const Visual& control) { input::Click(front, control); };
  const auto post = [this](const Visual& control) {  // what Qt doesn't hold back
    FormWindow& window = *front.WindowOf(table);
    const QPoint point = window.Board().SpotOf(control).value();
    QApplication::postEvent(&window.Board(), new QMouseEvent(QEvent::MouseButtonPress, point, point,
                                                             Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
  };
  struct Case {
    const char* what;
    std::function<void()> meanwhile;
    std::string after, pending;  // what follows the sleep without and with pending events
  };
  const Case cases[] = {
      {"nothing", [] {}, ") ", ") "},
      {"two clicks", [&] { click(table.cmdB), click(table.imgCard); }, ") B card ", "B card ) "},
      {"clicks and a tick, which comes last",
       [&] { table.Clock.Enabled = true, click(table.imgCard), click(table.cmdB); }, ") card B tick ",
       "card B tick ) "},
      {"kept by the front end, then by Qt", [&] { click(table.imgCard), post(table.imgPair); },
       ") pair card ", "pair card ) "},
      {"a key", [&] { input::Key(*front.WindowOf(table), Qt::Key_Return, {}, "\r"); }, ") A ", "A ) "},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(LogOf([&] { table.onA = nullptr, each.meanwhile(); }, false), "A( slept " + each.after)
        << each.what;
    EXPECT_EQ(LogOf([&] { table.onA = nullptr, each.meanwhile(); }, true), "A( slept " + each.pending)
        << each.what;
  }
  // What a handler has disabled by then answers no more.
  EXPECT_EQ(LogOf([&] { table.cmdB.Enabled = false, click(table.cmdB), click(table.imgCard); }, true),
            "A( slept card ) ");
  table.cmdB.Enabled = true;
}

TEST_F(Input, HandlersLetThroughMayWaitThemselves) {
  // A handler let through sleeps and lets through what came meanwhile; nothing runs inside a plain sleep.
  table.onB = [this] {
    front.onSleep = [this] { input::Click(front, table.imgCard); };
    front.platform.Sleep(10);
    table.log += "slept ";
    front.platform.DoEvents();
  };
  EXPECT_EQ(LogOf([&] { input::Click(front, table.cmdB), input::Click(front, table.imgPair); }, true),
            "A( slept B( slept pair card ) ) ");
  // Under its message box timers tick, though they wait while input is let through; other input is swallowed.
  table.onB = [this] {
    table.Clock.Enabled = true;
    table.onTick = [this] { PressAtNextBox(QMessageBox::Ok); };
    AtNextBox([this](QMessageBox&) { input::Click(front, table.imgCard); });
    front.platform.MsgBox("Wait", "Wait");
    table.onTick = nullptr;
  };
  EXPECT_EQ(LogOf([&] { input::Click(front, table.cmdB); }, true), "A( slept B( tick( ) ) ) ");
  // Ticks wait till no more input comes, and then each timer ticks once, due again or not.
  table.onB = [this] {
    table.Clock.Enabled = true;
    front.platform.Sleep(10);
    QTimer::singleShot(0, qApp, [this] { input::Click(front, table.imgCard); });
  };
  table.ticksOn = true;
  table.onTick = [this] { front.platform.Sleep(10); };
  EXPECT_EQ(LogOf([&] { input::Click(front, table.cmdB); }, true, [this] { table.Clock.Enabled = false; }),
            "A( slept B( ) card tick( ) ) ");
  // A tick's own input goes before the next tick, though that has fallen due first.
  table.log.clear();
  table.onTick = [this] {
    table.ticksOn = false;
    table.onTick = nullptr;
    front.onSleep = [this] { input::Click(front, table.imgCard); };
    for (int i = 0; i < 3; ++i) front.platform.Sleep(10);
  };
  table.ticksOn = true;
  front.Deliver(table, [this] { table.Clock.Enabled = true; });
  ASSERT_TRUE(input::Await([this] { return !table.Clock.Enabled; }));
  EXPECT_EQ(table.log, "tick( ) card tick ");
  // What follows the answer of a box waits for the handler that asked.
  table.onB = [this] {
    AtNextBox([this](QMessageBox& box) {
      input::Press(*box.button(QMessageBox::Ok), QPoint(5, 5));
      input::Click(front, table.imgCard);
      table.Clock.Enabled = true;
    });
    front.platform.MsgBox("Wait", "Wait");
    table.log += "asked ";
  };
  table.log.clear();
  input::Click(front, table.cmdB);
  ASSERT_TRUE(input::Await([this] { return table.log.ends_with("tick "); })) << table.log;
  EXPECT_EQ(table.log, "B( asked ) card tick ");
}

TEST_F(Input, AWindowMayGoWhileItsHandlerLetsEventsThrough) {
  auto other = std::make_unique<frmTable>(front.platform, "frmOther");
  other->Left = 9000;
  other->Show();
  input::Settle();
  const std::string log = LogOf(
      [&] {
        input::Click(front, table.imgCard);
        front.WindowOf(table)->close();
        front.WindowOf(table)->close();
        input::Click(front, table.cmdB);
        input::Click(front, other->imgCard);
        table.Clock.Enabled = true;
      },
      true, [&] { table.cmdB.Caption = table.Loaded() ? "there" : "not there"; });
  EXPECT_EQ(log, "A( slept gone ) ");
  EXPECT_EQ(other->log, "card ");
  EXPECT_EQ(table.cmdB.Caption.get(), "not there");
  EXPECT_EQ(front.WindowOf(table), nullptr);
}

TEST_F(Input, MovingTheWindowIsInputToo) {
  if (!WindowsHavePlaces()) GTEST_SKIP();
  const int left = table.Left;
  std::string seen;
  const auto look = [&] { seen += table.Left == left ? "old " : "new "; };
  for (const bool lets : {false, true}) {
    table.Left = left;
    seen.clear();
    LogOf(
        [&] {
          front.WindowOf(table)->move(300, 200);
          look();
        },
        lets, look);
    look();
    EXPECT_EQ(seen, lets ? "old new new " : "old old new ");
    EXPECT_EQ(table.Left, 300 * 15);
    EXPECT_EQ(table.Top, 200 * 15);
  }
}

TEST_F(Input, TheSecondClickOfADoubleClickCounts) {
  const struct {
    Visual& control;
    const char* log;
  } cases[] = {{table.imgCard, "card card "}, {table.imgPair, "pair twice "}, {table.cmdB, "B B "}};
  for (const auto& each : cases) {
    table.log.clear();
    input::Click(front, each.control);
    input::Click(front, each.control, 20);
    input::Settle();
    EXPECT_EQ(table.log, each.log);
  }
}

TEST_F(Input, AccessKeysPressButtonsAndOpenMenus) {
  table.log.clear();
  FormWindow& window = *front.WindowOf(table);
  input::Key(window, Qt::Key_B, Qt::AltModifier, "b");
  EXPECT_TRUE(input::Await([this] { return table.log == "B "; }));  // the button is seen to go down first
  input::Key(window, Qt::Key_G, Qt::AltModifier, "g");
  input::Settle();
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->objectName(), "mnuGame");
  input::Key(*menu, Qt::Key_E, {}, "e");
  input::Settle();
  EXPECT_EQ(table.log, "B entry ");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Input, EscapeAndTheCloseBoxAnswerBoxes) {
  const struct {
    Buttons buttons;
    Answer escape, enter;
  } cases[] = {{Buttons::OK, Answer::OK, Answer::OK},
               {Buttons::OKCancel, Answer::Cancel, Answer::OK},
               {Buttons::YesNo, Answer::No, Answer::Yes}};
  for (const auto& each : cases) {
    AtNextBox([](QMessageBox& box) { input::Key(box, Qt::Key_Escape); });
    EXPECT_EQ(front.platform.MsgBox("Sure?", "Ask", Icon::Question, each.buttons), each.escape);
    AtNextBox([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(front.platform.MsgBox("Sure?", "Ask", Icon::None, each.buttons), each.escape);
    AtNextBox([](QMessageBox& box) { input::Key(box, Qt::Key_Return, {}, "\r"); });
    EXPECT_EQ(front.platform.MsgBox("Sure?", "Ask", Icon::None, each.buttons), each.enter);
    for (const Answer answer : AnswersOf(each.buttons)) {
      PressAtNextBox(answer == Answer::OK       ? QMessageBox::Ok
                     : answer == Answer::Cancel ? QMessageBox::Cancel
                     : answer == Answer::Yes    ? QMessageBox::Yes
                                                : QMessageBox::No);
      EXPECT_EQ(front.platform.MsgBox("Sure?", "Ask", Icon::None, each.buttons), answer);
    }
  }
  // A dialog is answered by the button that is its Cancel button, if it has one and that is enabled.
  for (const bool enabled : {true, false}) {
    for (const bool cancel : {true, false}) {
      table.cmdB.Cancel = cancel;
      table.cmdB.Enabled = enabled;
      table.log.clear();
      input::Key(*front.WindowOf(table), Qt::Key_Escape);
      input::Settle();
      EXPECT_EQ(table.log, cancel && enabled ? "B " : "");
    }
  }
}

TEST_F(Input, ABoxStaysOnTheScreenWhateverItSays) {
  std::string lines;
  for (int i = 0; i < 500; ++i) lines += "one more line\n";
  for (const std::string& text : {lines, std::string(20000, 'x')}) {
    AtNextBox([&](QMessageBox& box) {
      const QRect screen = box.screen()->availableGeometry();
      EXPECT_TRUE(screen.contains(box.frameGeometry())) << box.width() << " by " << box.height();
      for (const QAbstractButton* button : box.buttons())
        EXPECT_TRUE(box.rect().contains(button->geometry()));
      const auto* shown = box.findChild<QPlainTextEdit*>();
      EXPECT_TRUE(shown && shown->verticalScrollBar()->isVisible()) << "the rest can be seen too";
      input::Key(box, Qt::Key_Return, {}, "\r");
    });
    EXPECT_EQ(front.platform.MsgBox(text, "Ask", Icon::Question, Buttons::YesNo), Answer::Yes);
  }
}

TEST_F(Input, ABoxOutlivesTheWindowBehindIt) {
  for (const bool hidden : {true, false}) {
    auto game = std::make_unique<frmTable>(front.platform, "frmGame");
    game->Show();
    EXPECT_TRUE(input::Await([&] { return QApplication::activeWindow() == front.WindowOf(*game); }));
    game->Clock.Enabled = true;
    const QPointer<QWidget> window = front.WindowOf(*game);
    game->onTick = [&] { hidden ? game->Hide() : game->Unload(); };
    const auto gone = [&] { return hidden ? !window->isVisible() : !window; };
    input::When([&] { return Box() && gone(); },
                [&] {
                  EXPECT_TRUE(input::Await([] { return Box()->isActiveWindow(); }));
                  EXPECT_EQ(Box()->windowHandle()->transientParent(), front.WindowOf(table)->windowHandle());
                  input::Key(*Box(), Qt::Key_Return, {}, "\r");
                });
    EXPECT_EQ(front.platform.MsgBox("Sure?", "Ask", Icon::Question, Buttons::YesNo), Answer::Yes);
    EXPECT_TRUE(input::Await([&] { return QApplication::activeWindow() == front.WindowOf(table); }));
    game->Discard();
    input::Settle();
  }
  // A box over a box hands the keyboard back to it.
  QPointer<QWidget> first;
  bool asked = false;
  AtNextBox([&](QMessageBox& box) {
    first = &box;
    input::When([&] { return Box() && Box() != first; },
                [&] { input::Key(*Box(), Qt::Key_Return, {}, "\r"); });
    input::When([&] { return asked && Box() == first && QApplication::activeWindow() == first; },
                [&] { input::Key(*first, Qt::Key_Escape); });
    front.platform.MsgBox("Second", "Ask");
    asked = true;
  });
  EXPECT_EQ(front.platform.MsgBox("First", "Ask", Icon::None, Buttons::OKCancel), Answer::Cancel);
}

// --- Whole games ---------------------------------------------------------------------------------

namespace {

class Playing : public testing::Test {
 protected:
  void SetUp() override {
    suite.Start();
    input::Settle();
    input::Click(front, *static_cast<Visual*>(front.platform.FindForm("frmSelect")->find("cmdSumfall")));
    input::Settle();
    input::Click(front, Game().cmdPlay);
    ASSERT_TRUE(input::Await([this] { return Game().standing.InGame(); }));
  }
  GameWindow& Game() { return *suite.common.window; }
  int Round() { return static_cast<frmSumfall&>(Game()).CurrentRound; }
  // Takes the score; the player does `meanwhile` at the first pause.
  void TakeScore(const std::function<void()>& meanwhile) {
    front.onSleep = meanwhile;
    input::Click(front, Game().cmdTakeScore);
    input::Settle();
    EXPECT_FALSE(front.onSleep) << "nothing was counted";
  }

  const bool open = OpenScreen();
  TestFolder folder;
  QuickDesktop front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  Suite suite{front.platform, {folder.Path()}, AllGames()};
};

}  // namespace

TEST_F(Playing, ASecondClickWhileTheRoundIsCountedPlaysNoRoundAway) {
  ASSERT_EQ(Round(), 1);
  TakeScore([this] {
    input::Click(front, Game().cmdTakeScore);
    input::Key(*front.WindowOf(Game()), Qt::Key_T, Qt::AltModifier, "t");
    input::Click(front, Game().cmdTakeScore, 20);
  });
  EXPECT_EQ(Round(), 2);
  EXPECT_TRUE(Game().standing.InGame());
  EXPECT_TRUE(Game().cmdTakeScore.Enabled);
}

TEST_F(Playing, TheCloseBoxWhileTheRoundIsCountedAsksOnce) {
  for (const bool yes : {false, true}) {
    int asked = 0;
    const std::function<void()> answer = [&] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
          box && box->isVisible()) {
        ++asked;
        box->button(yes ? QMessageBox::Yes : QMessageBox::No)->click();
      }
    };
    QTimer answering;
    QObject::connect(&answering, &QTimer::timeout, answer);
    answering.start(1);
    TakeScore([&] {
      front.WindowOf(Game())->close();
      front.WindowOf(Game())->close();
      front.WindowOf(Game())->setFocus();
    });
    input::Settle();
    EXPECT_EQ(asked, 1);  // the second press meets the question
    EXPECT_EQ(front.platform.FindForm("frmSumfall") == nullptr, yes);
    EXPECT_EQ(front.platform.FindForm("frmSelect")->Visible, yes);
    EXPECT_FALSE(front.platform.HasEnded());
    if (yes) continue;
    ASSERT_TRUE(Game().cmdTakeScore.Enabled);
  }
}

// A wave of so many bytes of samples; `kind` 1 are plain ones.
std::string Wave(int kind, int channels, int rate, int bits, size_t bytes) {
  const auto number = [](unsigned value, int size) {
    std::string text;
    for (int i = 0; i < size; ++i) text += static_cast<char>(value >> 8 * i);
    return text;
  };
  const int frame = channels * bits / 8;
  return "RIFF" + number(36 + bytes, 4) + "WAVEfmt " + number(16, 4) + number(kind, 2) + number(channels, 2) +
         number(rate, 4) + number(rate * frame, 4) + number(frame, 2) + number(bits, 2) + "data" +
         number(bytes, 4) + std::string(bytes, 'x');
}

TEST(OwnFiles, AreNoWavesThatGrowWhenTheyArePlayed) {
  TestFolder own;
  std::string chunks;
  for (int i = 0; i < 1000; ++i) chunks += std::string("junk\0\0\0\0", 8);
  const std::pair<const char*, std::string> cases[] = {
      {"", Wave(1, 1, 22050, 8, 100'000)},
      {"", Wave(1, 2, 44100, 16, 1'000'000)},
      {"", Wave(3, 2, 48000, 32, 1000)},
      {"it is no wave", Wave(1, 1, 1, 8, 100'000)},
      {"it is no wave", Wave(1, 1, 500'000, 8, 1000)},
      {"it is no wave", Wave(1, 200, 22050, 8, 1000)},
      {"it is no wave", Wave(2, 1, 22050, 8, 1000)},
      {"it is no wave", "OggS" + std::string(1000, 'x')},
      {"it is no wave", Wave(1, 1, 22050, 8, 0).insert(12, Wave(1, 1, 22050, 8, 0).substr(12, 24))},
      {"it is no wave", ""},
      {"it is no wave", Wave(1, 1, 22050, 8, 1000).insert(12, chunks)},
      {"it is too large", Wave(1, 1, 4000, 8, 400'000)},
  };
  for (const auto& [why, text] : cases) {
    own.Write("Chord.wav", text);
    EXPECT_EQ(WhyNotPlay(own.Path() / "Chord.wav"), why) << text.substr(20, 16);
  }
}

static std::string Square(const std::string& colour) {
  return "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'><rect width='10' height='10' fill='" +
         colour + "'/></svg>";
}

TEST(OwnFiles, GoBeforeTheSuites) {
  OpenScreen();
  TestFolder own, installed;
  std::filesystem::create_directories(installed.Path() / "pictures");
  own.Write("A.svg", Square("red"));
  for (const char* name : {"pictures/A.svg", "pictures/B.svg"}) installed.Write(name, Square("blue"));
  Pictures pictures({{"A.svg", 10, 10}, {"B.svg", 10, 10}}, own.Path(), installed.Path() / "pictures");
  EXPECT_EQ(pictures.Get(1, false, 1).toImage().pixelColor(5, 5), QColor(Qt::red));
  EXPECT_EQ(pictures.Get(2, false, 1).toImage().pixelColor(5, 5), QColor(Qt::blue));

  own.Write("Chord.wav", Wave(1, 2, 44100, 16, 100));
  const Media media(own.Path(), installed.Path());
  const auto largest = [&](const char* name, std::uintmax_t size) {
    own.Write(name, Wave(1, 2, 44100, 16, 100));
    std::filesystem::resize_file(own.Path() / name, size);
  };
  largest("Large.wav", kLargestWave);
  largest("Large.MID", kLargestTune);
  EXPECT_EQ(media.Find("\\Large.wav", "sounds"), own.Path() / "Large.wav");
  EXPECT_EQ(media.Find("\\Large.MID", "music"), own.Path() / "Large.MID");
  EXPECT_EQ(media.Find("\\Chord.wav", "sounds"), own.Path() / "Chord.wav");
  EXPECT_EQ(media.Find("\\Snap.wav", "sounds"), installed.Path() / "sounds/Snap.wav");
  EXPECT_EQ(media.Find("\\Tune.MID", "music"), installed.Path() / "music/Tune.MID");
}

TEST(OwnFiles, AreTheSameWhereTheRestIsDrawnAhead) {
  OpenScreen();
  TestFolder own, suite;
  std::filesystem::create_directories(suite.Path() / "four-colour");
  own.Write("Mine.svg", Square("red"));
  for (const char* name : {"Mine.svg", "Suite.svg"}) suite.Write(name, Square("blue"));
  suite.Write("four-colour/Suite.svg", Square("lime"));
  suite.Write("Broken.svg", "no picture");
  const PictureFiles files = {
      {"Mine.svg", 10, 10}, {"Suite.svg", 10, 10}, {"Broken.svg", 10, 10}, {"Missing.svg", 10, 10}};
  std::vector<Pictures::Which> all;
  for (int index = 1; index <= 5; ++index)  // the last one is in no catalogue
    for (const bool framed : {false, true}) all.emplace_back(index, framed);
  testing::internal::CaptureStderr();
  for (const double scale : {1.0, 2.5}) {
    Pictures ahead(files, own.Path(), suite.Path()), asked(files, own.Path(), suite.Path());
    ahead.Prepare(all, scale);
    for (const auto& [index, framed] : all)
      EXPECT_EQ(ahead.Get(index, framed, scale).toImage(), asked.Get(index, framed, scale).toImage())
          << index << (framed ? " framed" : "") << " at " << scale;
    ahead.Prepare(all, 3);
    ahead.SetFourColours(true);
    EXPECT_EQ(ahead.Get(2, false, 3).toImage().pixelColor(5, 5), QColor(Qt::green));
    ahead.Prepare(all, 4);  // and nobody asks
  }
  const std::string told = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::ranges::count(told, '\n'), 1) << told;
}

TEST(OwnFiles, AreRefusedWhereTheyMightDoHarm) {
  const struct {
    const char* why;
    std::function<void(const std::filesystem::path&)> make;
  } cases[] = {
      {"it is too large",
       [](const auto& path) {
         const bool wave = path.extension() == ".wav";
         std::ofstream(path) << "mine";
         std::filesystem::resize_file(path, (wave ? 16 << 20 : 1 << 20) + 1);
       }},
      {"it is no plain file", [](const auto& path) { mkfifo(path.c_str(), 0600); }},
      {"it is no plain file", [](const auto& path) { std::filesystem::create_directory(path); }},
      {"it is no plain file", [](const auto& path) { std::filesystem::create_symlink("/dev/zero", path); }},
  };
  const std::pair<const char*, const char*> files[] = {{"Chord.wav", "sounds"}, {"Tune.MID", "music"}};
  for (const auto& each : cases)
    for (const auto& [name, kind] : files) {
      TestFolder own;
      each.make(own.Path() / name);
      const Media media(own.Path(), "/installed");
      testing::internal::CaptureStderr();
      for (int i = 0; i < 2; ++i)
        EXPECT_EQ(media.Find(std::string("\\") + name, kind),
                  std::filesystem::path("/installed") / kind / name);
      EXPECT_EQ(testing::internal::GetCapturedStderr(),
                "cardhaven: " + (own.Path() / name).string() + " isn't used: " + each.why + "\n");
    }
}

TEST(OwnFiles, HoldPixelsOnlyAndNotTooManyOfThem) {
  OpenScreen();
  const auto image = [](int width, int height, const char* format) {
    QImage drawn(width, height, QImage::Format_Grayscale8);
    drawn.fill(200);
    QBuffer bytes;
    drawn.save(&bytes, format);
    return bytes.data();
  };
  const auto data = [](const QByteArray& bytes) { return "data:image/png;base64," + bytes.toBase64(); };
  const QByteArray inner = "<svg xmlns='http://www.w3.org/2000/svg'><image href='/etc/hostname'/></svg>";
  const QByteArray small = data(image(60, 90, "PNG")), large = data(image(1500, 1500, "PNG"));
  QByteArray folded = small;
  folded.insert(60, "\n  ");
  const std::tuple<const char*, QByteArray, QByteArray> cases[] = {
      {"", small, small},
      {"", folded, data(image(60, 90, "JPG"))},
      {"", large, "#a"},
      {"it holds what is no PNG or JPEG", small, data(inner)},
      {"it holds what is no PNG or JPEG", data(qCompress(inner).mid(4)), small},
      {"it holds what is no PNG or JPEG", "data:image/svg+xml;utf8,&lt;svg/>", small},
      {"it holds what is no PNG or JPEG", data(image(60, 90, "PNG").left(12)), small},
      {"it holds what is no PNG or JPEG", data(image(60, 90, "BMP")), small},
      {"it holds what is no PNG or JPEG", small + "/../picture.png", small},
      {"it holds too large a picture", large, large},
      {"it holds too large a picture", data(image(2100, 2100, "JPG")), small},
      {"it refers to another file", small, "picture.png"},
  };
  for (const auto& [why, first, second] : cases) {
    const auto draw = [&](const QByteArray& text) { return WhyNotDraw(std::string_view(text)); };
    EXPECT_EQ(draw("<svg><image href='" + first + "'/><image href='" + second + "'/></svg>"), why)
        << first.left(80).constData();
    EXPECT_EQ(draw("<svg><rect fill='url(" + first + ")'/><g style='a:url(\"" + second + "\")'/></svg>"),
              why);
  }
}
