// What the desktop tells of games that have ended, and the entries for deals.
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "history/deal_number.h"
#include "tests/desktop_start.h"

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
