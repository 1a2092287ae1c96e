// A record is watched: in real windows, steered by the bar, and by nothing else.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>

#include "games/games.h"
#include "record/recorder.h"
#include "record/replay.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/view/proofs.h"
#include "window/desktop/watching.h"
#include "window/player.h"

namespace {

constexpr char kProgram[] = "1.2.3";

// Three rounds and the beginning of another game.
class WatchTest : public testing::Test, public record::Viewer {
 protected:
  WatchTest() {
    std::ifstream script(CARDHAVEN_SOURCE "/tests/scripts/sumfall_whole_game.console");
    std::ostringstream out;
    ConsoleFrontEnd console({}, script, out);
    console.platform.random.Seed(4);
    Recorder recorder(console.platform, kProgram);
    recorder.onGameEnd = [this](const std::string& text, const GameResult&) { record_ = text; };
    Suite suite(console.platform, {folder_.Path()}, AllGames());
    recorder.Attach(suite.common);
    suite.Start();
    console.Run();
    record_.insert(record_.find("begin\n") + 6, "say \"Watch this.\"\n");
    const auto verdict = LookThrough(record_, kProgram, AllGames(), contents_);
    EXPECT_EQ(verdict.kind, record::Verdict::Kind::Holds) << verdict.Text();
    Recording recording{"A game", {}, contents_.length, true};
    for (const record::Round& round : contents_.rounds)
      recording.rounds.push_back({"Round " + std::to_string(round.number), round.step, round.at});
    desktop_ = std::make_unique<WatchingDesktop>(DesktopFolders{folder_.Path(), CARDHAVEN_TEST_DATA},
                                                 Catalogue(), recording);
    desktop_->guides = MakeGuide;
  }

  void Passes(const record::Moment& moment) override {
    desktop_->watching.Pass(moment.passes, moment.at, moment.step, moment.isDeed);
    last_ = moment;
  }
  void Says(const std::string& comment) override { desktop_->watching.Say(comment); }
  void Comes(const Event& event) override { desktop_->watching.Comes(event); }
  void Ended() override {
    ended_ = true;
    desktop_->watching.AtEnd();
  }

  void Watch() {
    desktop_->Play([this] {
      ++begun_;
      ReplayBefore(*this, record_, kProgram, AllGames(), &desktop_->platform);
    });
  }
  FormWindow* Game() {
    Form* const form = desktop_->platform.FindForm("frmSumfall");
    FormWindow* const window = form ? desktop_->WindowOf(*form) : nullptr;
    return window && window->isVisible() ? window : nullptr;
  }
  template <class Widget>
  Widget* Of(const char* name) {
    for (QWidget* each : QApplication::topLevelWidgets())
      if (each->objectName() == "watchBar" && each->isVisible()) return each->findChild<Widget*>(name);
    return nullptr;
  }
  bool IsAt(const char* round) { return Game() && Of<QLabel>("where")->text().startsWith(round); }
  void Press(int key) { input::Key(*Game(), key); }

  const bool open_ = OpenScreen();
  TestFolder folder_;
  std::string record_;
  record::Contents contents_;
  std::unique_ptr<WatchingDesktop> desktop_;
  record::Moment last_;
  int begun_ = 0;
  bool ended_ = false;
};

}  // namespace

TEST_F(WatchTest, GoesToAnyRoundAndTheViewerDoesNothingToTheGame) {
  std::string rounds;
  for (const record::Round& round : contents_.rounds)
    rounds += std::to_string(round.game) + "." + std::to_string(round.number) + " ";
  ASSERT_EQ(rounds, "1.1 1.2 1.3 2.1 2.2 ");
  EXPECT_EQ(contents_.comments, 1);
  std::vector<std::string> seen;
  input::When([&] { return Game(); },
              [&] {
                EXPECT_EQ(Of<QLabel>("comment")->text(), "Watch this.");
                Press(Qt::Key_8);
                Press(Qt::Key_PageDown);
                input::When([&] { return IsAt("Round 2"); },
                            [&] {
                              seen.push_back(Game()->windowTitle().toStdString());
                              // What the viewer does to the game's windows.
                              Press(Qt::Key_F3);
                              input::Press(Game()->Board(), Game()->Board().rect().center());
                              Game()->resize(900, 700);
                              input::Settle();
                              Press(Qt::Key_Home);
                              input::When([&] { return begun_ == 2 && IsAt("Round 1"); },
                                          [&] {
                                            for (int round = 1; round < 5; ++round) Press(Qt::Key_PageDown);
                                            input::When([&] { return ended_; },
                                                        [&] {
                                                          seen.push_back(Game()->windowTitle().toStdString());
                                                          Press(Qt::Key_Escape);
                                                        });
                                          });
                            });
              });
  Watch();
  EXPECT_EQ(seen, (std::vector<std::string>{"Sumfall! (recording)", "Sumfall! (recording)"}));
  EXPECT_EQ(begun_, 2) << "only going back plays it anew";
  EXPECT_TRUE(desktop_->platform.HasEnded());
}

TEST_F(WatchTest, StopsAndGoesDeedByDeed) {
  long long at = -1;
  input::When(
      [&] { return IsAt("Round 1"); },
      [&] {
        Press(Qt::Key_Space);
        input::When(
            [&] { return Of<QToolButton>("pause")->isChecked(); },
            [&] {
              at = last_.at;
              Press(Qt::Key_Right);
              input::When(
                  [&] { return last_.isDeed && Of<QToolButton>("pause")->isChecked() && last_.at > at; },
                  [&] {
                    at = last_.at;
                    input::Settle();
                    EXPECT_EQ(last_.at, at) << "waits";
                    Of<QToolButton>("deed")->click();
                    input::When([&] { return last_.at > at && Of<QToolButton>("pause")->isChecked(); },
                                [&] { Game()->close(), Press(Qt::Key_Escape); });
                  });
            });
      });
  Watch();
  EXPECT_EQ(begun_, 1);
  EXPECT_FALSE(ended_);
}

// The marks in the Hall of Fame, and a file that is dropped on the selector; what a record is is told.
TEST(Proofs, AreMarkedWhileTheTableStands) {
  OpenScreen();
  TestFolder folder;
  QuickDesktop front({folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue());
  RecordDesk desk;
  std::atomic<int> searches = 0;
  desk.table = [&](Form& form) -> ProvedTable {
    if (form.name != "frmHighScores") return {};
    ProvedTable table;
    for (int place = 0; place < 10; ++place)
      table.rows.push_back(static_cast<Label*>(form.find("ScoreList", 2 * place + 1)));
    table.find = [&](const std::atomic<bool>&) {
      return searches++ == 0 ? std::vector<std::string>{"", "", "a.record"} : std::vector<std::string>{};
    };
    return table;
  };
  desk.check = [](const std::string& file) { return "holds " + file; };
  front.guides = MakeGuide;
  front.records = &desk;
  folder.Write("HiScores90_11.Txt", "Ada, 500\r\nBob, 400\r\nCy, 300\r\n");
  Suite suite(front.platform, {folder.Path()}, AllGames());
  suite.Start();
  Form& selector = *front.platform.FindForm("frmSelect");
  front.Deliver(selector, [&] { player::Click(*selector.find("cmdSumfall")); });
  input::Settle();
  const auto mark = [&]() -> QPushButton* {
    Form* const fame = front.platform.FindForm("frmHighScores");
    return fame ? front.WindowOf(*fame)->findChild<QPushButton*>("proof3") : nullptr;
  };
  bool marked = false;
  input::When(mark, [&] {
    marked = true;
    EXPECT_TRUE(mark()->isVisible());
    EXPECT_EQ(front.WindowOf(*front.platform.FindForm("frmHighScores"))->findChildren<QPushButton*>().size(),
              3);
    Form& fame = *front.platform.FindForm("frmHighScores");
    input::When(
        [] {
          return QApplication::activeModalWidget() &&
                 qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        },
        [&] {
          static_cast<QMessageBox*>(QApplication::activeModalWidget())->button(QMessageBox::Yes)->click();
          input::When([&] { return searches == 2 && !mark(); },
                      [&] {
                        Form& there = *front.platform.FindForm("frmHighScores");
                        front.Deliver(there, [&] { player::Close(there); });
                      });
        });
    front.Deliver(fame, [&] { player::Click(*fame.find("cmdClear")); });
  });
  Form& game = *front.platform.FindForm("frmSumfall");
  front.Deliver(game, [&] { player::Click(*game.find("mnuViewHiScore")); });
  EXPECT_TRUE(marked);
}

TEST(Proofs, ADroppedFileIsChecked) {
  OpenScreen();
  QWidget window;
  window.show();
  RecordDesk desk;
  desk.check = [](const std::string& file) { return "holds " + file; };
  OfferRecord(window, desk, "/there/a.record");
  auto* box = window.findChild<QMessageBox*>("dropped");
  ASSERT_TRUE(box);
  EXPECT_EQ(box->text(), "a.record");
  for (QAbstractButton* button : box->buttons())
    if (button->text() == "Chec&k") button->click();
  auto* answer = window.findChild<QMessageBox*>("checked");
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->text(), "holds /there/a.record");
}
