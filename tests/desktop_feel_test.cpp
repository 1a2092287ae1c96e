// Counts that are hurried, cards that glide, refusals that flash: what a player sees and does while handlers
// run, by real events.
#include <gtest/gtest.h>

#include <QBackingStore>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStyleHints>
#include <QThread>

#include "games/games.h"
#include "suite/catalogue.h"
#include "suite/suite.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/sound/media.h"

namespace {

// A table whose count takes long enough to be hurried.
class frmCount : public Form {
 public:
  explicit frmCount(Platform& platform) : Form(platform, "frmCount") {
    Width = 6000;
    Sizable = true;
    Height = 4500;
    Card.Move(300, 300, 1065, 1455);
    Other.Move(1800, 300, 1065, 1455);
    Pile.Move(3300, 300, 1065, 1455);
    cmdCount.Move(300, 2400, 1500, 400);
    cmdNext.Move(2100, 2400, 1500, 400);
    cmdNext.Caption = "&Next";
    for (Image* image : {&Card, &Other}) image->BorderStyle = 1;
    Card.Picture = kFirstFace;
    Other.Picture = kFirstFace + 1;
    Pile.Picture = kPalmTree.full;
    Card.OnClick = [this] { log += "card "; };
    cmdNext.OnClick = [this] { log += "next "; };
    cmdCount.OnClick = [this] { Count(); };
  }

  void Count() {
    log += "( ";
    for (int i = 0; i < steps; ++i) {
      total += 100;
      if (onStep) onStep(i);
      this->platform.sndPlaySound("\\Snap.wav");
      this->platform.Sleep(wait);
    }
    if (then) then();
    log += ") ";
  }
  void Form_QueryUnload(bool& cancel) override {
    cancel = true;
    log += "close ";
  }

  int steps = 20, wait = 100, total = 0;
  std::function<void(int)> onStep;
  std::function<void()> then;
  std::string log;
  Image Card{*this, "Card"}, Other{*this, "Other"}, Pile{*this, "Pile"};
  ControlArray<Image, 9> Row{*this, "Row"};
  Label lblSum{*this, "lblSum"};
  long long sum = 0;
  CommandButton cmdCount{*this, "cmdCount"}, cmdNext{*this, "cmdNext"};
};

class CountGuide : public Guide {
 public:
  explicit CountGuide(frmCount& form) : form_(form) {}
  std::optional<long long> Score() const override { return form_.sum; }

 private:
  frmCount& form_;
};

class Feel : public testing::Test {
 protected:
  void SetUp() override {
    front.guides = [](Form& each) { return std::make_unique<CountGuide>(static_cast<frmCount&>(each)); };
    for (int i = 0; i < 9; ++i) {
      form.Row(i).Move(300 + 600 * i, 3000, 1065, 1455);
      form.Row(i).BorderStyle = 1;
    }
    Say(1000);
    form.Show();
    Do([] {});
    input::Settle();
    // Keys come with the time of Qt's own clock; several of them, so that one is sure to come at once.
    struct Clock : QObject {
      long long time = 0;
      bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress)
          time = static_cast<long long>(static_cast<QKeyEvent*>(event)->timestamp());
        return false;
      }
    } theirs;
    qApp->installEventFilter(&theirs);
    long long ahead = 0;
    for (int i = 0; i < 8; ++i) {
      const long long before = front.Milliseconds();
      input::Key(*front.WindowOf(form), Qt::Key_F35);
      input::Settle();
      ahead = i == 0 ? theirs.time - before : std::min(ahead, theirs.time - before);
    }
    input::clock = [this, ahead] { return static_cast<int>(front.Milliseconds() + ahead); };
  }
  void TearDown() override { input::clock = nullptr; }
  void Say(long long sum) {
    form.sum = sum;
    form.lblSum.Caption = std::to_string(sum);
  }
  Canvas& Board() { return front.WindowOf(form)->Board(); }
  QLabel* Word() { return Board().findChild<QLabel*>("hurry"); }
  // Does something as soon as the player is offered to skip the rest.
  void WhenOffered(const std::function<void()>& deed) {
    input::When([this] { return Word() && Word()->isVisible(); }, deed);
  }
  // So long that nobody waits for it: who does fails.
  void CountForAges() { form.steps = 600; }
  bool IsHurried(long long took) const { return took < form.steps * form.wait * 9 / 10; }
  // Counts, and lets all that follows happen. The milliseconds that the count took.
  long long Count() {
    form.log.clear();
    form.total = 0;
    long long took = 0;
    const auto begun = front.Milliseconds();
    front.Deliver(form, [&] {
      form.Count();
      took = front.Milliseconds() - begun;
    });
    input::Settle();
    return took;
  }

  // What has been painted, as it stands on the screen.
  QImage Screen() {
    FormWindow& window = *front.WindowOf(form);
    const QImage grabbed = window.screen()->grabWindow(window.winId()).toImage();
    // A compositor shows nobody the screen; then it is what was given to it.
    return grabbed.isNull() ? static_cast<QImage*>(window.backingStore()->paintDevice())->copy() : grabbed;
  }
  // Runs a handler, and shows its first frame.
  void Do(const std::function<void()>& deed) {
    front.Deliver(form, deed);
    QApplication::processEvents();
  }
  // Whether the screen shows what a board painted anew shows.
  bool LeavesNothing() {
    if (!input::Await([&] { return Board().AtRest(); })) return false;
    struct Paints : QObject {
      int count = 0;
      bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
      }
    } paints;
    Board().installEventFilter(&paints);
    input::Settle();  // a window that was resized or shown is told so by events
    // Whatever waits to be painted is painted with it.
    const auto paint = [&](const QRect& part) {
      const int before = paints.count;
      Board().update(part);
      return input::Await([&] { return paints.count > before; });
    };
    if (!paint(QRect(0, 0, 1, 1))) return false;
    const QImage left = Screen();
    return paint(Board().rect()) && left == Screen();
  }

  const bool open = OpenScreen();
  TestFolder folder;
  DesktopFrontEnd front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  frmCount form{front.platform};
};

}  // namespace

TEST_F(Feel, ALongCountIsHurriedByAClickSpaceOrEscapeWhichGoNoFurther) {
  const struct {
    const char* what;
    std::function<void()> meanwhile;  // when the player is offered to skip
    bool hurries;
    std::string then;
  } cases[] = {
      {"a click on a card", [&] { input::Click(front, form.Card); }, true, ""},
      {"two clicks", [&] { input::Click(front, form.Card), input::Click(front, form.Card, 20); }, true, ""},
      {"a click, and another one while the rest runs through",
       [&] {
         input::Click(front, form.Card);
         form.then = [&] { input::Click(front, form.Card); };
       },
       true, ""},
      {"a button", [&] { input::Click(front, form.cmdNext); }, true, ""},
      {"Space", [&] { input::Key(*front.WindowOf(form), Qt::Key_Space, {}, " "); }, true, ""},
      {"Escape", [&] { input::Key(*front.WindowOf(form), Qt::Key_Escape); }, true, ""},
      {"another key, which is kept",
       [&] { input::Key(*front.WindowOf(form), Qt::Key_N, Qt::AltModifier, "n"); }, false, "next "},
      {"a key, then a click",
       [&] {
         input::Key(*front.WindowOf(form), Qt::Key_N, Qt::AltModifier, "n");
         input::Click(front, form.Card);
       },
       true, "next "},
      {"nothing", [] {}, false, ""},
  };
  for (const auto& each : cases) {
    bool offered = false;
    WhenOffered([&] {
      offered = true;
      each.meanwhile();
    });
    form.steps = 20;
    if (each.hurries) CountForAges();
    const long long took = Count();
    form.then = nullptr;
    EXPECT_TRUE(offered) << each.what;
    EXPECT_EQ(IsHurried(took), each.hurries) << each.what << ": " << took;
    EXPECT_EQ(form.total, 100 * form.steps) << each.what;
    const std::string expected = "( ) " + each.then;
    EXPECT_TRUE(input::Await([&] { return form.log == expected; })) << each.what << ": " << form.log;
    input::Settle();
    EXPECT_EQ(form.log, expected) << each.what;
    EXPECT_EQ(Word(), nullptr) << each.what;
    // What follows is answered as ever.
    input::Click(front, form.Card);
    input::Settle();
    EXPECT_EQ(form.log, expected + "card ") << each.what;
  }
}

TEST_F(Feel, AShortWaitKeepsEveryClick) {
  form.steps = 4;
  form.wait = 20;
  bool word = false;
  form.onStep = [&](int step) {
    word = word || Word();
    if (step != 1) return;
    input::Click(front, form.Card);
    input::Click(front, form.Card);
  };
  EXPECT_FALSE(IsHurried(Count()));
  EXPECT_FALSE(word);
  EXPECT_EQ(form.log, "( ) card card ");
}

TEST_F(Feel, WhatWasPressedWithinADoubleClickOfTheBeginningIsKept) {
  const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
  ASSERT_LT(interval, 800);
  // A click that bears the time so long after the beginning, and that nobody looks at yet.
  const auto pressAfter = [&](int milliseconds) {
    form.onStep = [this, milliseconds, began = 0](int step) mutable {
      if (step == 0) began = input::clock();
      if (step != 1) return;
      const auto usual = std::exchange(input::clock, [&] { return began + milliseconds; });
      input::Click(front, form.Card);
      input::clock = usual;
    };
  };
  // A fast player's last click comes to the round that follows, as ever.
  pressAfter(interval / 2);
  EXPECT_FALSE(IsHurried(Count()));
  EXPECT_TRUE(input::Await([&] { return form.log == "( ) card "; })) << form.log;
  // A later one was meant for the count.
  pressAfter(interval + 100);
  CountForAges();
  EXPECT_TRUE(IsHurried(Count()));
  EXPECT_EQ(form.log, "( ) ");
}

TEST_F(Feel, ABoxInACountIsNotAnsweredByTheClickThatHurried) {
  form.then = [&] {
    form.log += "box ";
    form.platform.MsgBox("Well done", "Count");
    form.log += "closed ";
    for (int i = 0; i < 5; ++i) form.platform.Sleep(100);  // anew: too short to be hurried
  };
  WhenOffered([&] {
    input::Key(*front.WindowOf(form), Qt::Key_Space, {}, " ");
    input::Key(*front.WindowOf(form), Qt::Key_Escape);
    input::Click(front, form.Card);
  });
  std::string before;
  long long answered = 0;
  const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
  input::When([=] { return box() && box()->isVisible(); },
              [&] {
                input::Settle();  // whatever was pressed has come by now
                before = box() && box()->isVisible() ? form.log : "gone";
                answered = front.Milliseconds();
                if (box()) box()->button(QMessageBox::Ok)->click();
              });
  CountForAges();
  Count();
  EXPECT_EQ(before, "( box ");
  EXPECT_GE(front.Milliseconds() - answered, 450);
  EXPECT_EQ(form.log, "( box closed ) ");
}

TEST_F(Feel, ClosingInAHurryAsksOnceAndAtTheEnd) {
  CountForAges();
  WhenOffered([&] {
    QWindow& window = *front.WindowOf(form)->windowHandle();
    input::Click(front, form.Card);
    QCloseEvent close;
    QCoreApplication::sendEvent(&window, &close);
  });
  EXPECT_TRUE(IsHurried(Count()));
  EXPECT_TRUE(input::Await([&] { return form.log == "( ) close "; })) << form.log;
}

TEST_F(Feel, CardsAreSeenToMoveButAreThereAtOnce) {
  const int first = kFirstFace + 20;
  const struct {
    const char* what;
    std::function<void()> deed;
    bool moves;
  } cases[] = {
      {"laid on another place", [&] { form.Other.Picture = form.Card.Picture, form.Card.Picture = 0; }, true},
      {"moved", [&] { form.Other.Top += 900; }, true},
      {"drawn from the pile", [&] { form.Card.Picture = first; }, true},
      {"turned over", [&] { form.Card.BorderStyle = 0, form.Card.Picture = kPalmTree.back; }, true},
      {"turned up", [&] { form.Card.BorderStyle = 1, form.Card.Picture = first + 1; }, true},
      {"cleared away", [&] { form.Card.Visible = false; }, true},
      {"there again", [&] { form.Card.Visible = true; }, true},
      {"covered with the whole board",
       [&] {
         SetVisible({&form.Card, &form.Pile}, false);
       },
       false},
      {"laid out with the whole board",
       [&] {
         SetVisible({&form.Card, &form.Pile}, true);
       },
       false},
      {"dealt",
       [&] {
         for (int i = 0; i < 9; ++i) form.Row(i).Picture = first + i;
       },
       false},
      {"nothing", [&] { Say(900); }, false},
  };
  for (const auto& each : cases) {
    front.Deliver(form, each.deed);
    EXPECT_EQ(Board().AtRest(), !each.moves) << each.what;
    QApplication::processEvents();
    const QImage shown = Screen();
    const bool moving = !Board().AtRest();
    EXPECT_TRUE(LeavesNothing()) << each.what;
    EXPECT_EQ(Screen() != shown, moving) << each.what;
  }
  // A card on its way is clicked where it will lie.
  Do([&] { form.Other.Picture = first + 30, form.Card.Move(3000, 1900, 1065, 1455); });
  form.log.clear();
  input::Click(front, form.Card);
  input::Settle();
  EXPECT_EQ(form.log, "card ");
  // What sets out while others are on their way leaves nothing of them either.
  for (int wait = 5; wait <= 50; wait += 5) {
    SetVisible({&form.Card, &form.Pile}, true);
    Do([&] { form.Card.Move(3600, 1100, 1065, 1455), form.Other.Move(900, 300, 1065, 1455); });
    EXPECT_TRUE(LeavesNothing());
    Do([&] { form.Other.Move(4200, 1500, 1065, 1455); });
    QThread::msleep(static_cast<unsigned long>(wait));  // no frame is painted meanwhile
    Do([&] { form.Card.Move(300, 1500, 1065, 1455); });
    EXPECT_TRUE(LeavesNothing()) << wait;
  }
  // Nothing goes on behind what stops it, and nothing is left of it.
  const std::function<void()> stops[] = {
      [&] { Do([&] {
              SetVisible({&form.Card, &form.Pile}, false);
            }); },
      [&] { form.Hide(), form.Show(); },
      [&] { front.WindowOf(form)->resize(500, 400); },
      [&] {
        View view = front.looks.Now();
        view.lessMotion = true;
        front.looks.Set(view);
        Do([&] { form.Card.Left += 300; });
      },
  };
  for (const auto& stop : stops) {
    SetVisible({&form.Card, &form.Pile}, true);
    Do([&] { form.Card.Left += 300; });
    EXPECT_TRUE(LeavesNothing());
    front.Deliver(form, [&] { form.Card.Left += 300; });
    EXPECT_FALSE(Board().AtRest());
    QApplication::processEvents();
    stop();
    EXPECT_TRUE(Board().AtRest());
    EXPECT_TRUE(LeavesNothing());
  }
}

TEST_F(Feel, SumsFloatAndRefusalsFlashForAMomentOnly) {
  const auto red = [&] {
    const QRect rect = DrawnRect(form.Card, front.paintbox.pictures);
    const QColor edge = Screen().pixelColor(Board().mapTo(Board().window(), rect.center()).x(),
                                            Board().mapTo(Board().window(), rect.topLeft()).y() + 1);
    return edge.red() > 180 && edge.green() < 110;
  };
  form.Card.OnClick = [&] { front.Refused(); };
  EXPECT_FALSE(red());
  bool flashed = false;  // a flash is short, and the machine may be busy meanwhile
  for (int i = 0; i < 20 && !flashed; ++i) {
    input::Click(front, form.Card);
    input::Settle();
    flashed = red();
  }
  EXPECT_TRUE(flashed);
  EXPECT_TRUE(LeavesNothing());
  EXPECT_FALSE(red());
  // What a card brought floats up where it went; a fall doesn't, nor what is paid without one.
  const auto lasts = [&](const std::function<void()>& deed) {
    const auto begun = front.Milliseconds();
    Do(deed);
    EXPECT_TRUE(LeavesNothing());
    return front.Milliseconds() - begun > 600;
  };
  EXPECT_TRUE(lasts([&] { form.Card.Visible = false, Say(1700); }));
  front.Deliver(form, [&] { Say(2000); });
  EXPECT_TRUE(Board().AtRest());
  bool floats = true;
  for (int i = 0; i < 10 && floats; ++i) {
    lasts([&] { form.Other.Visible = true, Say(2000); });
    floats = lasts([&] { form.Other.Visible = false, Say(1500); });
  }
  EXPECT_FALSE(floats);
}

TEST(Touch, RisesAlongACountAndIsNeverTwiceTheSame) {
  EXPECT_EQ(TouchOf(0).cents, 0);
  EXPECT_EQ(TouchOf(0).level, 100);
  for (int step = 1; step < 90; ++step) {
    const Touch strike = TouchOf(step), next = TouchOf(step + 1);
    EXPECT_TRUE(strike.cents != next.cents || strike.level != next.level) << step;
    EXPECT_LE(strike.cents, 730);
    EXPECT_GE(strike.level, 80);
    EXPECT_GT(TouchOf(step + 20).cents, strike.cents - 56) << step;
  }
  EXPECT_GT(TouchOf(45).cents, 400);
}
