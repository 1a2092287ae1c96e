// How large, in which colours and how calmly windows are drawn; and that the games see nothing of it.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyleOptionMenuItem>

#include "games/games.h"
#include "games/sumfall/sumfall.h"
#include "suite/catalogue.h"
#include "suite/dialogs.h"
#include "suite/select.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/painting/contrast.h"
#include "window/player.h"

namespace {

class ViewTest : public testing::Test {
 protected:
  void SetUp() override {
    front.guides = MakeGuide;
    suite.Start();
    input::Settle();
  }
  void TearDown() override { front.looks.Set({}); }

  frmSelect& Selector() { return static_cast<frmSelect&>(*front.platform.FindForm("frmSelect")); }
  GameWindow& OpenGame() {
    input::Click(front, *Selector().gameButtons.front());
    input::Settle();
    return *suite.common.window;
  }
  FormWindow& WindowOf(const Form& form) { return *front.WindowOf(form); }
  void Set(const std::function<void(View&)>& change) {
    View view = front.looks.Now();
    change(view);
    front.looks.Set(view);
    input::Settle();
  }
  void Choose(const Form& form, const char* entry) {
    WindowOf(form).findChild<QAction*>(entry)->trigger();
    input::Settle();
  }

  const bool open = OpenScreen();
  TestFolder folder;
  QuickDesktop front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  Suite suite{front.platform, {folder.Path()}, AllGames()};
};

QSize TwipsOf(const Form& form) { return {form.Width, form.Height}; }

// A compositor that lets no window take the whole screen when it asks.
bool NobodyMaximises(const QWidget& window) { return !WindowsHavePlaces() && !window.isMaximized(); }

QRgb Commonest(const QImage& picture, const std::function<bool(QRgb)>& counted) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (counted(picture.pixel(x, y))) ++counts[picture.pixel(x, y)];
  return std::ranges::max_element(counts, {}, [](const auto& each) { return each.second; })->first;
}

}  // namespace

TEST_F(ViewTest, ZoomEnlargesWindowsAndTheModelKeepsItsTwips) {
  const QSize natural = WindowOf(Selector()).size();
  const QPoint middle = WindowOf(Selector()).geometry().center();
  input::Key(WindowOf(Selector()), Qt::Key_Equal, Qt::ControlModifier);
  input::Settle();
  EXPECT_EQ(front.looks.Now().zoom, 125);
  Set([](View& view) { view.zoom = 150; });
  EXPECT_EQ(WindowOf(Selector()).size(), (QSizeF(natural) * 1.5).toSize());
  if (WindowsHavePlaces()) {
    EXPECT_LE((WindowOf(Selector()).geometry().center() - middle).manhattanLength(), 4);
  }
  EXPECT_EQ(TwipsOf(Selector()), QSize(6735, 5490));
  const QWidget& button = *WindowOf(Selector()).WidgetOf(Selector().cmdClose);
  EXPECT_EQ(button.font().pixelSize(), 18);
  EXPECT_EQ(button.width(), 2040 / 15 * 3 / 2);

  Set([](View& view) { view.zoom = 125; });
  GameWindow& game = OpenGame();
  EXPECT_EQ(WindowOf(game).size(), QSize(795, 600));
  input::Click(front, game.cmdPlay);  // where it stands now
  ASSERT_TRUE(input::Await([&] { return game.standing.InGame(); }));
  auto& sumfall = static_cast<frmSumfall&>(game);
  const int before = sumfall.UpCardPicture.Picture;
  input::Press(WindowOf(game).Board(), QRectF(ModelRect(sumfall.PlayCardPicture)).center().toPoint() * 1.25);
  EXPECT_TRUE(input::Await([&] { return sumfall.UpCardPicture.Picture != before; }));
  EXPECT_EQ(TwipsOf(game), QSize(9540, 7200));

  // What wouldn't fit the screen is drawn as large as does, and a dialog like the window behind it.
  Set([](View& view) { view.zoom = 300; });
  const QRect room = WindowOf(game).screen()->availableGeometry();
  EXPECT_TRUE(room.contains(WindowOf(game).geometry()));
  EXPECT_GE(WindowOf(game).width(), room.width() - 10);
  EXPECT_EQ(TwipsOf(game), QSize(9540, 7200));
  frmAbout about(suite.common);
  double zoom = 0;
  input::WhenModal([&] {
    zoom = WindowOf(about).Zoom();
    player::Close(about);
  });
  front.platform.Dispatch([&] { about.Show(true); });
  EXPECT_EQ(zoom, WindowOf(game).Zoom());
  input::Settle();
  Choose(game, "viewNatural");
  EXPECT_EQ(WindowOf(game).size(), QSize(636, 480));
}

TEST_F(ViewTest, MaximisedWindowsFitAndComeBackAsTheyWere) {
  GameWindow& game = OpenGame();
  FormWindow& window = WindowOf(game);
  const auto show = [&](Qt::WindowStates state) {
    window.setWindowState(state);
    input::Settle();
  };
  const QRect before = window.geometry();
  show(Qt::WindowMaximized);
  if (NobodyMaximises(window)) GTEST_SKIP();
  const QSize room = window.size();
  ASSERT_GT(room.width(), before.width());
  EXPECT_EQ(game.WindowState, window_state::kMaximised);
  EXPECT_EQ(window.Zoom(), room.width() / 636.0);
  EXPECT_EQ(game.Width, 9540);
  EXPECT_EQ(game.Height, static_cast<int>(std::lround(room.height() * 15 / window.Zoom())));
  Choose(game, "viewFit");
  EXPECT_EQ(window.Zoom(), 1);
  EXPECT_EQ(TwipsOf(game), room * 15);
  EXPECT_FALSE(front.looks.Now().fitMaximised);
  Choose(game, "viewFit");
  Choose(game, "viewLarger");  // there is no room for more
  EXPECT_TRUE(front.looks.Now().fitMaximised);
  Choose(game, "viewFullScreen");
  EXPECT_TRUE(window.isFullScreen());
  Choose(game, "viewFullScreen");
  show({});
  EXPECT_EQ(TwipsOf(game), QSize(9540, 7200));
  EXPECT_EQ(window.geometry(), before);
  Choose(game, "viewFullScreen");
  EXPECT_EQ(game.WindowState, window_state::kMaximised);  // so that the usual size is what the file keeps
  Choose(game, "viewFullScreen");
  EXPECT_EQ(game.WindowState, window_state::kNormal);
  EXPECT_EQ(window.size(), before.size());

  // In a window that fits to its frame the frame changes the zoom; it is kept.
  Choose(game, "viewFit");
  EXPECT_TRUE(front.looks.Now().fitNormal);
  window.resize(763, 640);
  EXPECT_TRUE(input::Await([&] { return front.looks.Now().zoom == 120; }));
  EXPECT_EQ(game.Width, 9540);
  EXPECT_NEAR(game.Height, 8000, 2);
  EXPECT_EQ(window.size(), QSize(763, 640));
}

TEST_F(ViewTest, WindowsFitTheScreenAndOpenAsTheOthersWereLeft) {
  GameWindow& game = OpenGame();
  const QSize room = WindowOf(game).screen()->availableSize();
  WindowOf(game).resize(760, 480);
  input::Settle();
  Set([](View& view) { view.zoom = 200; });
  EXPECT_LE(WindowOf(game).width(), room.width()) << "a wide window is zoomed as a whole";
  EXPECT_EQ(game.Width, 11400);
  Set([](View& view) { view.zoom = 100; });
  WindowOf(game).setWindowState(Qt::WindowMaximized);
  input::Settle();
  if (NobodyMaximises(WindowOf(game))) GTEST_SKIP();
  EXPECT_EQ(front.looks.Now().maximised, true);
  game.Discard();
  suite.common.selector->Show();

  const auto spirehold = [&]() -> GameWindow& {
    input::Click(front, *static_cast<Visual*>(Selector().find("cmdSpirehold")));
    input::Settle();
    return *suite.common.window;
  };
  GameWindow& other = spirehold();
  FormWindow& window = WindowOf(other);
  EXPECT_TRUE(window.isMaximized());
  for (const Qt::WindowStates state : {Qt::WindowStates(), Qt::WindowStates(Qt::WindowMaximized)}) {
    window.setWindowState(state);
    ASSERT_TRUE(
        input::Await([&] { return std::abs(other.Width - window.width() * 15 / window.Zoom()) < 15; }));
    for (int card = 0; card < 28; ++card) {
      const auto& image = static_cast<const Visual&>(*other.find("UpCardImage", card));
      EXPECT_GE(image.Left, 0) << card;
      EXPECT_LE(image.Left + image.Width, other.Width) << card;
    }
  }
}

TEST_F(ViewTest, AWindowThatWasMinimisedAndFetchedBackDuringACountStays) {
  GameWindow& game = OpenGame();
  FormWindow& window = WindowOf(game);
  front.Deliver(game, [&] {
    window.setWindowState(Qt::WindowMinimized);
    input::Settle();
    window.setWindowState({});
    input::Settle();
  });
  input::Settle();
  EXPECT_FALSE(window.isMinimized());
  EXPECT_EQ(game.WindowState, window_state::kNormal);
}

TEST_F(ViewTest, AWindowThatIsMaximisedBehindABoxTellsItLater) {
  GameWindow& game = OpenGame();
  FormWindow& window = WindowOf(game);
  const QRect before = window.geometry();
  const auto behindABox = [&](const std::vector<Qt::WindowStates>& states) {
    input::WhenModal([&] {
      for (const Qt::WindowStates state : states) {
        window.setWindowState(state);
        input::Settle();
      }
      qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->accept();
    });
    front.Deliver(game, [&] { suite.common.MsgBox("Wait."); });
    input::Settle();
  };
  behindABox({Qt::WindowMaximized, {}});
  EXPECT_EQ(window.geometry(), before);
  behindABox({Qt::WindowMaximized});
  if (NobodyMaximises(window)) GTEST_SKIP();
  EXPECT_EQ(game.WindowState, window_state::kMaximised);
  EXPECT_EQ(game.Height, static_cast<int>(std::lround(window.height() * 15 / window.Zoom())));
  window.setWindowState({});
  input::Settle();
  EXPECT_EQ(window.geometry(), before);
  EXPECT_EQ(TwipsOf(game), QSize(9540, 7200));
}

TEST_F(ViewTest, AGameThatOpenedMaximisedIsRestoredInTheMiddle) {
  folder.Write("Sumfall.Ini", "[State]\r\n2\r\n\r\n");
  GameWindow& game = OpenGame();
  FormWindow& window = WindowOf(game);
  if (NobodyMaximises(window)) GTEST_SKIP();
  ASSERT_EQ(game.WindowState, window_state::kMaximised);
  EXPECT_GT(window.Zoom(), 1.2);
  window.setWindowState({});
  input::Settle();
  EXPECT_EQ(window.size(), QSize(636, 480));
  EXPECT_LE((window.geometry().center() - window.screen()->geometry().center()).manhattanLength(), 4);
}

TEST_F(ViewTest, WindowsOfAScriptHaveNoViewMenu) {
  QuickDesktop scripted({folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue(), QuickDesktop::Operator::Script);
  Suite other(scripted.platform, {folder.Path()}, AllGames());
  other.Start();
  Form& selector = *scripted.platform.FindForm("frmSelect");
  player::Click(*selector.find("cmdSumfall"));
  GameWindow& game = *other.common.window;
  EXPECT_EQ(scripted.WindowOf(game)->findChild<QMenu*>("viewMenu"), nullptr);
  player::SetState(game, window_state::kMaximised);
  input::Settle();
  EXPECT_EQ(scripted.WindowOf(game)->Zoom(), 1);
  EXPECT_EQ(TwipsOf(game), QSize(scripted.ScreenExtent().width, scripted.ScreenExtent().height));
}

TEST_F(ViewTest, LessMotionStandsStillWhileTheModelGoesOn) {
  const auto ring = [this] { return WindowOf(Selector()).grab().toImage(); };
  const auto tick = [this] {
    for (int i = 0; i < 3; ++i) front.platform.Dispatch(Selector().Timer1.OnTimer);
    input::Settle();
  };
  QImage before = ring();
  tick();
  EXPECT_NE(ring(), before);
  Set([](View& view) { view.lessMotion = true; });
  before = ring();
  const int picture = Selector().imgSplashImage(5).Picture;
  tick(), tick();
  EXPECT_NE(Selector().imgSplashImage(5).Picture, picture);
  EXPECT_EQ(ring(), before);

  GameWindow& game = OpenGame();
  player::Click(game.cmdPlay);
  const auto says = [&](int colour) {
    game.lblMessage.ForeColor = colour;
    return WindowOf(game).Board().grab(DrawnRect(game.lblMessage, front.paintbox.pictures)).toImage();
  };
  game.lblMessage.Visible = true;
  game.lblMessage.Caption = "Times running out!";
  says(0x0000FF);
  const QImage black = says(0);
  EXPECT_EQ(says(0x0000FF), black);
  EXPECT_EQ(says(0), black);
  game.lblMessage.Caption = "Game over";
  EXPECT_NE(says(0), says(0x0000FF));  // a new text comes in its own colour
}

TEST_F(ViewTest, SuitsHaveColoursOfTheirOwnAndThePlayersCardsGoFirst) {
  GameWindow& game = OpenGame();
  const auto ink = [this](const char* key) {
    const QImage picture = front.paintbox.pictures.Get(suite.common.ImageList2(key), false, 4).toImage();
    return QColor(Commonest(picture, [](QRgb pixel) { return Contrast(QColor(pixel), Qt::white) > 1.2; }));
  };
  const auto inks = [&] {
    std::vector<QRgb> colours;
    for (const char* key : {"1S", "1H", "1C", "1D"}) colours.push_back(ink(key).rgb());
    std::ranges::sort(colours);
    return std::unique(colours.begin(), colours.end()) - colours.begin();
  };
  EXPECT_EQ(inks(), 2);
  Choose(game, "viewFourColours");
  EXPECT_EQ(inks(), 4);
  folder.Write("1D.svg",
               "<svg xmlns='http://www.w3.org/2000/svg'><rect width='99' height='99' fill='lime'/></svg>");
  Choose(game, "viewFourColours");
  EXPECT_EQ(ink("1D"), QColor(Qt::green));
  Choose(game, "viewFourColours");
  EXPECT_EQ(ink("1D"), QColor(Qt::green));
}

namespace {

// The contrast of the strongest ink to the ground within a widget's caption, in the picture itself.
double ContrastOf(const QImage& picture) {
  const QRgb ground = Commonest(picture, [](QRgb) { return true; });
  double best = 1;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      best = std::max(best, Contrast(picture.pixelColor(x, y), QColor(ground)));
  return best;
}

}  // namespace

TEST_F(ViewTest, CaptionsReadWellWhetherDisabledOrUnderTheMouse) {
  for (const bool high : {false, true}) {
    Set([&](View& view) { view.highContrast = high, view.zoom = 200; });
    QPushButton button("HHHH");
    button.resize(200, 60);
    QMenu menu;
    QAction* const entry = menu.addAction("HHHH");
    for (const bool enabled : {true, false})
      for (const bool hovered : {true, false}) {
        const double least = enabled || !high ? 4.5 : 7;
        const std::string which =
            std::string(high ? "high " : "") + (enabled ? "" : "disabled ") + (hovered ? "hovered" : "");
        button.setEnabled(enabled);
        button.setAttribute(Qt::WA_UnderMouse, hovered);
        EXPECT_GE(ContrastOf(button.grab(button.rect().adjusted(30, 12, -30, -12)).toImage()), least)
            << which << " button";
        entry->setEnabled(enabled);
        menu.setActiveAction(hovered ? entry : nullptr);
        EXPECT_GE(ContrastOf(menu.grab(menu.actionGeometry(entry).adjusted(4, 3, -4, -3)).toImage()), least)
            << which << " entry";
      }
    QLineEdit line("HHHH");
    line.setFont(style::Letters(2.0));
    line.setEnabled(false);
    EXPECT_GE(ContrastOf(line.grab(line.rect().adjusted(4, 4, -4, -4)).toImage()), 4.5) << high;
  }
  // On the board every label is light on black or dark on white.
  GameWindow& game = OpenGame();
  const QImage board = WindowOf(game).Board().grab().toImage();
  EXPECT_EQ(board.pixelColor(3, board.height() - 3), QColor(Qt::black));
}
