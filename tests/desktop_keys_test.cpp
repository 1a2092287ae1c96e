// The games by keys alone: the cursor, and which key is which click.
#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <set>

#include "games/duopick/duopick.h"
#include "games/fivestack/fivestack.h"
#include "games/games.h"
#include "games/handgrid/handgrid.h"
#include "games/sumfall/sumfall.h"
#include "games/treyshift/treyshift.h"
#include "suite/dialogs.h"
#include "suite/suite.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/input/keyboard.h"
#include "window/desktop/painting/contrast.h"
#include "window/player.h"

namespace {

class Keys : public testing::Test {
 protected:
  void SetUp() override {
    front.guides = MakeGuide;
    front.platform.random.Seed(7);
    suite.Start();
    input::Settle();
  }
  // A key at the window that a player would mean.
  void Press(int key, Qt::KeyboardModifiers held = {}, const QString& text = {}) {
    QWidget* window = QApplication::activeModalWidget();
    if (!window) window = front.WindowOf(Front());
    input::Key(*window, key, held, text.isEmpty() && key < 0x80 ? QString(QChar(key)) : text);
    input::Settle();
  }
  void Type(const QString& keys) {
    for (const QChar& key : keys) Press(key.toUpper().unicode(), {}, key);
  }
  // Does something that opens a box or a dialog, and `meanwhile` when that stands.
  void Amid(const std::function<void()>& opens, const std::function<void()>& meanwhile) {
    input::WhenModal([meanwhile] {
      meanwhile();
      while (QWidget* left = QApplication::activeModalWidget()) left->close();
    });
    opens();
    input::Settle();
  }
  Form& Front() { return *front.platform.forms.front(); }
  GameWindow& Game() { return *suite.common.window; }
  template <class Window>
  Window& Open(const char* digit) {
    Type(digit);
    Press(Qt::Key_F2);
    EXPECT_TRUE(Game().standing.IsPlaying()) << digit;
    return static_cast<Window&>(Game());
  }
  const Visual* Cursor() { return front.WindowOf(Game())->Keys()->Cursor(); }
  std::vector<Spot> Spots() { return front.WindowOf(Game())->GetGuide()->Spots(); }
  std::string Focus() { return front.WindowOf(Front())->focusWidget()->objectName().toStdString(); }

  const bool open = OpenScreen();
  TestFolder folder;
  QuickDesktop front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  Suite suite{front.platform, {folder.Path()}, AllGames()};
};

}  // namespace

TEST_F(Keys, OpenAGameFromTheSelectorWhichRemembersIt) {
  EXPECT_EQ(Focus(), "cmdSumfall");
  std::vector<std::string> order;
  const size_t games = AllGames().size();
  for (size_t i = 0; i < games + 2; ++i, Press(Qt::Key_Tab)) order.push_back(Focus());
  EXPECT_EQ(order[games], "cmdLaunchBrowser");
  EXPECT_EQ(order[games + 1], "cmdClose");
  for (const auto& [digit, title] : {std::pair{"5", "Spirehold!"}, std::pair{"7", "Treyshift!"}}) {
    Type(digit);
    EXPECT_EQ(suite.common.AppTitle, title);
    const auto close = [this] { front.WindowOf(Game())->close(); };
    // "Giving up so soon?": the answer with which nothing ends comes first.
    Amid(close, [this] { Press(Qt::Key_Return); });
    ASSERT_TRUE(suite.common.window);
    Amid(close, [this] { Press(Qt::Key_Left), Press(Qt::Key_Return); });
    EXPECT_EQ(Focus(), digit[0] == '5' ? "cmdSpirehold" : "cmdTreyshift");
  }
  Press(Qt::Key_S, Qt::AltModifier);  // three buttons have it
  EXPECT_TRUE(input::Await([this] { return suite.common.AppTitle == "Sumfall!"; }));
}

// Which cards a walk by arrows reaches.
TEST_F(Keys, WalkToWhateverCanBePlayed) {
  const int arrows[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};
  for (const char* digit : {"1", "2", "4", "5", "6", "7"}) {
    Open<GameWindow>(digit);
    EXPECT_EQ(Focus(), "canvas");
    for (const Qt::KeyboardModifiers held : {Qt::NoModifier, Qt::ControlModifier}) {
      std::set<const Visual*> wanted, seen;
      for (const Spot& spot : Spots())
        if (spot.playable || held) wanted.insert(spot.control);
      uint32_t chance = 1;
      for (int step = 0; step < 1200 && !std::ranges::includes(seen, wanted); ++step) {
        chance = chance * 1664525u + 1013904223u;
        Press(arrows[chance >> 30], held);
        if (Cursor()) seen.insert(Cursor());
      }
      for (const Visual* each : wanted) EXPECT_TRUE(seen.contains(each)) << digit << each->FullName();
      if (!held) {
        EXPECT_EQ(seen.size(), wanted.size()) << digit;
      }
    }
    Game().Discard();
    suite.common.selector->Show();
    Game().standing.End();
    input::Settle();
  }
}

TEST_F(Keys, TakeCardsByRankAndGiveThemBack) {
  auto& game = Open<frmSumfall>("1");
  const auto ranks = [this](bool playable) {
    std::map<char, std::vector<Visual*>> found;
    for (const Spot& spot : Spots())
      if (spot.rank && spot.playable == playable) found[spot.rank].push_back(spot.control);
    return found;
  };
  // A rank that comes twice: the second press means the other one.
  char twice = 0;
  for (const auto& [rank, cards] : ranks(true))
    if (cards.size() > 1 && rank < '6') twice = rank;
  ASSERT_NE(twice, 0);
  Type(QString(QChar(twice)));
  EXPECT_EQ(game.board.total, twice - '0');
  const Visual* first = Cursor();
  Press(twice, Qt::KeypadModifier, QString(QChar(twice)));
  EXPECT_EQ(game.board.total, 2 * (twice - '0'));
  EXPECT_NE(Cursor(), first);
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Backspace);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(game.board.total, 0);
  // A key that is held down clicks once.
  QWidget& window = *front.WindowOf(game);
  for (int i = 0; i < 5; ++i) {
    QKeyEvent held(QEvent::KeyPress, Qt::Key_D, Qt::NoModifier, "d", i > 0);
    QApplication::sendEvent(window.focusWidget(), &held);
  }
  EXPECT_EQ(game.lblCardCount.Caption, "Cards: 29");
  // Space on the cursor, which a mouse click takes along and hides.
  input::Click(front, game.UpCardPicture);
  input::Settle();
  EXPECT_TRUE(game.UpCardSelectionRectangle.Visible);
  EXPECT_EQ(Cursor(), nullptr);
  Press(Qt::Key_Space);
  EXPECT_FALSE(game.UpCardSelectionRectangle.Visible);
  EXPECT_EQ(Cursor(), &game.UpCardPicture);
  // What is pressed while a handler waits comes when it has ended, as clicks do.
  front.onSleep = [&] { input::Key(window, Qt::Key_D, {}, "d"); };
  game.ClockTimer.OnTimer = [&] {
    game.ClockTimer.Enabled = false;
    front.platform.Sleep(10);
    EXPECT_EQ(game.lblCardCount.Caption, "Cards: 29");
  };
  game.ClockTimer.Interval = 1;
  game.ClockTimer.Enabled = false;
  game.ClockTimer.Enabled = true;
  EXPECT_TRUE(input::Await([&] { return game.lblCardCount.Caption == "Cards: 28"; }));
  Press(Qt::Key_Escape);
  EXPECT_TRUE(game.standing.IsPaused());
  Press(Qt::Key_Escape);
  EXPECT_TRUE(game.standing.IsPaused());
  Type("p");
  EXPECT_FALSE(game.standing.IsPaused());
}

TEST_F(Keys, StandForPlacesWhereAGameHasDigits) {
  auto& grid = Open<frmHandgrid>("6");
  Type("3");
  EXPECT_EQ(Cursor(), &grid.PlayCards(10));
  Type("5");
  EXPECT_FALSE(grid.board.cells[14].empty());
  Type("4x44");  // another key between them, and it begins anew
  EXPECT_FALSE(grid.board.cells[18].empty());
  EXPECT_EQ(std::ranges::count_if(grid.board.cells, [](auto& card) { return !card.empty(); }), 2);
  grid.Discard();
  suite.common.selector->Show();
  input::Settle();
  auto& shift = Open<frmTreyshift>("7");
  Type("d");
  EXPECT_TRUE(shift.board.Selected());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(shift.board.Selected());
  EXPECT_FALSE(shift.standing.IsPaused());
  Type("d2dwd2");
  EXPECT_FALSE(shift.board.FieldCards[1].empty() || shift.board.FieldCards[5].empty() ||
               shift.board.TempCards[1].empty());
  Press(Qt::Key_Escape);
  EXPECT_TRUE(shift.standing.IsPaused());
  shift.Discard();
  suite.common.selector->Show();
  input::Settle();
  auto& duopick = Open<frmDuopick>("4");
  Press(Qt::Key_Space);
  EXPECT_NE(duopick.board.selected, modDuopick::kNone);
  Press(Qt::Key_Backspace);  // what is selected takes no click here
  EXPECT_EQ(duopick.board.selected, modDuopick::kNone);
  EXPECT_EQ(duopick.board.PairsCount + duopick.board.RunsCount, 0);
}

// While a round is paid its board is empty, and no key falls through to a button that would end the game.
TEST_F(Keys, StayWithABoardThatIsEmptyForAWhile) {
  auto& game = Open<frmFivestack>("2");
  front.onSleep = [&] {
    for (const int key : {Qt::Key_Right, Qt::Key_Return}) input::Key(*front.WindowOf(game), key);
  };
  bool asked = false;
  QTimer guard;
  QObject::connect(&guard, &QTimer::timeout, [&] {
    if (QWidget* box = QApplication::activeModalWidget()) asked = box->close();
  });
  guard.start(20);
  front.Deliver(game, [&] { player::Click(game.cmdGiveUp); });
  EXPECT_TRUE(input::Await([&] { return game.standing.IsPlaying(); }));
  input::Settle();
  EXPECT_FALSE(asked);
  EXPECT_EQ(game.CurrentRound, 2);
  EXPECT_EQ(Focus(), "canvas");
}

// Who goes on pressing keys at a stuck board is told so once, and paid.
TEST_F(Keys, DontKeepAStuckBoardFromBeingPaid) {
  auto& game = Open<frmTreyshift>("7");
  for (std::string& code : game.board.TempCards) code = "1S";
  for (int slot = modTreyshift::kThirdRow; slot < modTreyshift::kFieldSlots; ++slot)
    game.board.FieldCards[slot] = "2S";
  int told = 0;
  const std::function<void()> meanwhile = [&] {
    if (game.lblScoring.Caption != "No more legal moves left!" || ++told > 20) return;
    input::Key(*front.WindowOf(game), Qt::Key_Q, {}, "q");
    front.onSleep = meanwhile;
  };
  front.onSleep = meanwhile;
  Type("q");
  EXPECT_TRUE(input::Await([&] { return game.CurrentRound == 2 && game.standing.IsPlaying(); }));
  EXPECT_EQ(told, 1);
}

TEST_F(Keys, AreShownInMenusAndInAWindowThatPauses) {
  Press(Qt::Key_F11);  // the selector is never larger than it is
  EXPECT_FALSE(front.looks.Now().fullScreen);
  auto& game = Open<frmSumfall>("1");
  FormWindow& window = *front.WindowOf(game);
  auto* help = window.findChild<QMenu*>("mnuHelp");
  QStringList entries;
  for (const QAction* entry : help->actions())
    entries.push_back(entry->text() + entry->shortcut().toString());
  EXPECT_EQ(entries.join("|"), "&Rules...F1|&Keys...|&About...");
  help->actions()[1]->trigger();
  input::Settle();
  EXPECT_TRUE(game.standing.IsPaused());
  auto* table = window.findChild<QTableWidget*>();
  ASSERT_TRUE(table);
  EXPECT_EQ(table->rowCount(), std::ssize(front.WindowOf(game)->GetGuide()->Keys()));
  Press(Qt::Key_Escape);
  EXPECT_FALSE(game.standing.IsPaused());
  EXPECT_EQ(Focus(), "canvas");

  Amid([this] { Press(Qt::Key_F1); },
       [this] {
         auto* rules = QApplication::activeModalWidget()->findChild<QPlainTextEdit*>();
         Press(Qt::Key_PageDown);
         EXPECT_GT(rules->verticalScrollBar()->value(), 0);
       });
  const auto* fullScreen = window.findChild<QAction*>("viewFullScreen");
  EXPECT_EQ(fullScreen->text() + fullScreen->shortcut().toString(), "Full &ScreenF11");
  Press(Qt::Key_F11);
  EXPECT_TRUE(front.looks.Now().fullScreen);
}

TEST_F(Keys, GoByTheirPlaceWhereTheLayoutHasOtherLetters) {
  const auto strike = [&](QWidget& at, int key, int place, Qt::KeyboardModifiers held, const QString& text) {
    QKeyEvent event(QEvent::KeyPress, key, held, place, 0, 0, text);
    QApplication::sendEvent(&at, &event);
    input::Settle();
  };
  const auto letter = [&](int key, int place, const QString& text) {
    FormWindow& window = *front.WindowOf(Front());
    strike(window.focusWidget() ? *window.focusWidget() : window, key, place, {}, text);
  };
  letter(Qt::Key_Ampersand, 10, "&");  // French: 1 without Shift
  ASSERT_EQ(suite.common.AppTitle, "Sumfall!");
  Press(Qt::Key_F2);
  auto& game = static_cast<frmSumfall&>(Game());
  const int stock = static_cast<int>(game.board.stock.size());
  letter(0x0412, 40, "\u0412");  // Russian: where D is
  EXPECT_EQ(static_cast<int>(game.board.stock.size()), stock - 1);
  letter(Qt::Key_W, 40, "w");  // a Latin letter is meant as it is
  EXPECT_EQ(static_cast<int>(game.board.stock.size()), stock - 1);
}

TEST_F(Keys, ADoubleClickOnPlayPlays) {
  Type("1");
  input::Click(front, Game().cmdPlay);
  input::Click(front, Game().cmdPlay, 20);
  input::Settle();
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_TRUE(Game().standing.IsPlaying());
  Amid([this] { input::Click(front, Game().cmdPlay); }, [] {});  // a press of its own asks
}

TEST_F(Keys, GoBackToAFieldThatWasRefused) {
  Type("1");
  const auto refuse = [this](const char* name, const char* text) {
    auto* field = QApplication::activeModalWidget()->findChild<QLineEdit*>(name);
    field->setFocus(Qt::TabFocusReason);
    field->selectAll();
    Type(text);
    input::When([] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); },
                [this] { Press(Qt::Key_Return); });
    Press(Qt::Key_Return);
    EXPECT_TRUE(field->hasFocus()) << name;
    EXPECT_EQ(field->selectedText(), text);
  };
  Amid([this] { front.Deliver(Game(), [this] { player::Click(Game().mnuCustom); }); },
       [&] { refuse("txtCompletion", "0"); });
  Amid([this] { front.Deliver(Game(), [this] { frmHiScoreName(suite.common).Show(true); }); },
       [&] { refuse("lblPlayerName", "a,p5"); });
}

// The ring stands out from what it is painted on, in rendered pixels: on baize, cards and backs.
TEST_F(Keys, ShowWhereTheyAre) {
  const auto differs = [](const QImage& before, const QImage& after, int& strong, int& changed) {
    changed = strong = 0;
    for (int y = 0; y < before.height(); ++y)
      for (int x = 0; x < before.width(); ++x) {
        const QColor was = before.pixelColor(x, y), is = after.pixelColor(x, y);
        if (was == is) continue;
        ++changed;
        strong += Contrast(was, is) >= 3;
      }
  };
  for (const char* digit : {"1", "2", "3", "4", "5", "6", "7"}) {
    Open<GameWindow>(digit);
    Game().Timer1.Enabled = Game().Timer2.Enabled = false;
    Canvas& board = front.WindowOf(Game())->Board();
    const auto grab = [&] {
      QImage image(board.size(), QImage::Format_RGB32);
      board.render(&image, {}, {}, {});
      return image;
    };
    const auto hide = [&] {  // as the mouse does
      input::Press(board, QPoint(2, 2));
      input::Settle();
    };
    for (int stop = 0; stop < 4; ++stop) {  // the cursor, then the buttons
      hide();
      const QImage without = grab();
      stop == 0 ? Press(Qt::Key_Right) : Press(Qt::Key_Tab);
      for (int i = 1; i < stop; ++i) Press(Qt::Key_Tab);
      int strong = 0, changed = 0;
      differs(without, grab(), strong, changed);
      const QRect ring = front.WindowOf(Game())->Keys()->Ring();
      ASSERT_FALSE(ring.isNull()) << digit << stop;
      // A line goes around, also where the board cuts off a part of it.
      EXPECT_GT(strong, 2 * (ring.width() + ring.height())) << digit << " " << Focus() << " " << changed;
    }
    Game().Discard();
    suite.common.selector->Show();
    Game().standing.End();
    input::Settle();
  }
}
