// What the desktop tells of games that have ended, and the entries for deals.
#include <QClipboard>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSvgRenderer>
#include <QTableWidget>
#include <set>

#include "history/deal_number.h"
#include "tests/desktop_start.h"
#include "window/desktop/results/statistics_window.h"

namespace {

class Outcomes : public ::testing::Test {
 protected:
  // Two rounds that pay nothing.
  void PlayOut(Start& start) {
    start.Click("frmSpirehold", "cmdPlay");
    FinishGame(start);
  }
  void FinishGame(Start& start) {
    for (int round = 0; round < 2; ++round) start.Click("frmSpirehold", "cmdTakeScore");
  }
  std::string Notes(Start& start, const char* window) {
    std::string all;
    for (const Note& note : start.Shown(window).Board().Notes()) all += "[" + note.text + "]";
    return all;
  }
  QAction& Entry(Start& start, const char* name) {
    auto* entry = start.Shown("frmSpirehold").findChild<QAction*>(name);
    emit static_cast<QMenu*>(entry->parent())->aboutToShow();
    return *entry;
  }
  int Deal(Start& start) { return start.GuideTo("frmSpirehold").Game()->deal; }

  const bool open = OpenScreen();
  TestFolder folder;
};

constexpr char kLine[] = "2026-11-21T12:00:00+01:00,Spirehold,45,,0,2,0,0,9,5,played,\r\n";

}  // namespace

TEST_F(Outcomes, ALineByTheSplashComparesTheGameAndTellsItsDeal) {
  folder.Write("History.csv", kLine + std::string(kLine));
  folder.Write("desktop.ini", "[last]\nseen=frmSpirehold\n");
  Start start(folder);
  start.Click("frmSelect", "cmdSpirehold");
  EXPECT_EQ(Notes(start, "frmSpirehold"), "");
  EXPECT_FALSE(Entry(start, "dealAgain").isEnabled());
  PlayOut(start);
  const int deal = Deal(start);
  ASSERT_GT(deal, 0);
  EXPECT_EQ(Notes(start, "frmSpirehold"),
            "[Your third best of 3 at 45 seconds\nDeal " + std::to_string(deal) + "]");
  // The same again, also in the middle of a game.
  ASSERT_TRUE(input::Await([&] { return !start.suite->common.window->standing.InputIsDead(); }));
  Entry(start, "dealAgain").trigger();
  input::Settle();
  EXPECT_EQ(Deal(start), deal);
  EXPECT_EQ(Notes(start, "frmSpirehold"), "");
  input::WhenModal([] { QApplication::activeModalWidget()->findChild<QPushButton*>()->click(); });
  Entry(start, "dealAgain").trigger();
  EXPECT_TRUE(input::Await([&] { return start.GuideTo("frmSpirehold").Game()->inProgress; }));
  EXPECT_EQ(Deal(start), deal);
  FinishGame(start);
  EXPECT_NE(Notes(start, "frmSpirehold").find("repeated: in no table"), std::string::npos);
}

TEST_F(Outcomes, ADealIsPlayedByItsNumber) {
  Start start(folder);
  start.Click("frmSelect", "cmdSpirehold");
  bool asked = false;
  input::WhenModal([&] {
    QWidget* dialog = QApplication::activeModalWidget();
    auto* field = dialog->findChild<QLineEdit*>("number");
    auto* play = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    for (const char* wrong : {"", "0", "1000000000"}) {
      field->setText(wrong);
      EXPECT_FALSE(play->isEnabled()) << wrong;
    }
    field->setText("4711");
    asked = true;
    play->click();
  });
  Entry(start, "dealNumber").trigger();
  EXPECT_TRUE(input::Await([&] { return asked && start.GuideTo("frmSpirehold").Game()->inProgress; }));
  EXPECT_EQ(Deal(start), 4711);
  start.front.Deliver(start.Window("frmSpirehold"), [&] {
    input::WhenModal([&] {
      EXPECT_EQ(Notes(start, "frmAbout"), "[Deal 4711]");
      input::Click(start.front, start.Control("frmAbout", "cmdCoolDude"));
    });
    static_cast<GameWindow&>(start.Window("frmSpirehold")).mnuAbout.OnClick();
  });
  input::Settle();
}

TEST_F(Outcomes, TheDealOfTheDayIsOpenedFromTheSelectorAndItsResultCopied) {
  folder.Write("desktop.ini", "[last]\nseen=frmSpirehold\n");
  Start start(folder);
  auto* days = start.Shown("frmSelect").findChild<QMenu*>("dealOfTheDay");
  ASSERT_TRUE(days);
  emit days->aboutToShow();
  days->findChild<QAction*>("todaySpirehold")->trigger();
  input::Settle();
  EXPECT_NE(Notes(start, "frmSpirehold").find("the first game counts"), std::string::npos);
  EXPECT_FALSE(Entry(start, "dealNumber").isEnabled());
  EXPECT_FALSE(Entry(start, "copyResult").isEnabled());
  PlayOut(start);
  const std::string day = start.GuideTo("frmSpirehold").Game()->day;
  EXPECT_EQ(Deal(start), DealOfTheDay(day, "Spirehold"));
  EXPECT_EQ(Notes(start, "frmSpirehold").find("practice"), std::string::npos);
  Entry(start, "copyResult").trigger();
  input::Settle();
  const QString copied = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(copied.startsWith("Card Haven, Spirehold, deal of the day, ")) << copied.toStdString();
  EXPECT_TRUE(copied.endsWith("\n0 points  \u00b7\u00b7\n")) << copied.toStdString();
  PlayOut(start);
  EXPECT_NE(Notes(start, "frmSpirehold").find("practice"), std::string::npos);
  emit days->aboutToShow();
  EXPECT_EQ(days->actions().at(4)->text(), "Spirehold\t0");
}

TEST_F(Outcomes, StatisticsAreATableWithPictures) {
  {
    Start start(folder);
    StatisticsWindow none(folder.Path() / "History.csv", start.front.games, "", &start.Shown("frmSelect"));
    EXPECT_FALSE(none.findChild<QPushButton*>("saveTable")->isEnabled());
    EXPECT_TRUE(none.findChild<QWidget*>("page")->accessibleName().startsWith("Nothing has been played"));
  }
  std::string text = kLine;
  for (int i = 0; i < 40; ++i)
    text +=
        "2026-11-21T12:00:00+01:00,Duopick,45,,0,2," + std::to_string(i % 7 * 100) + ",0,60,5,played,\r\n";
  folder.Write("History.csv", text + "rubbish\r\n" + kLine);
  Start start(folder);
  start.Shown("frmSelect").findChild<QAction*>("statistics")->trigger();
  ASSERT_TRUE(input::Await([] { return QApplication::activeModalWidget(); }));
  auto& window = static_cast<StatisticsWindow&>(*QApplication::activeModalWidget());
  auto& table = *window.findChild<QTableWidget*>("table");
  ASSERT_EQ(table.rowCount(), 2);
  EXPECT_EQ(table.item(0, 0)->text() + table.item(0, 2)->text() + table.item(0, 4)->text(), "Duopick40600");
  EXPECT_EQ(table.currentRow(), 1) << "the newest game's";
  auto& page = *window.findChild<QWidget*>("page");
  input::Key(table, Qt::Key_Up);
  input::Settle();
  EXPECT_TRUE(page.accessibleName().startsWith("Duopick, 45 seconds. 40 games"))
      << page.accessibleName().toStdString();
  for (const bool strong : {false, true}) {
    start.front.looks.Alter([&](View& view) { view.highContrast = strong; });
    for (const QSize size : {window.minimumSize(), QSize(1200, 900)}) {
      window.resize(size);
      std::set<QRgb> colours;
      const QImage picture = page.grab().toImage();
      for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
      EXPECT_GT(colours.size(), 20u);
      EXPECT_EQ(colours.contains(style::kStrongMark.rgb()), strong);
    }
  }
  start.front.looks.Alter([](View& view) { view.highContrast = false; });
  EXPECT_TRUE(window.SavePicture(folder.Path() / "a.png") && window.SavePicture(folder.Path() / "a.svg") &&
              window.SaveTable(folder.Path() / "a.csv"));
  EXPECT_FALSE(window.SaveTable(folder.Path() / "none" / "a.csv"));
  EXPECT_FALSE(QImage(QString::fromStdString((folder.Path() / "a.png").string())).isNull());
  EXPECT_TRUE(QSvgRenderer(QString::fromStdString((folder.Path() / "a.svg").string())).isValid());
  EXPECT_NE(folder.Read("a.csv").find("\r\nDuopick,45,,0,0,40,40,600,"), std::string::npos);
  window.close();
  input::Settle();
}
