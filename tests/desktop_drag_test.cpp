// Cards that the mouse drags, and what is celebrated.
#include "games/duopick/duopick.h"
#include "games/fivestack/fivestack.h"
#include "games/games.h"
#include "games/treyshift/treyshift.h"
#include "suite/catalogue.h"
#include "suite/suite.h"
#include "tests/desktop_screen.h"
#include "tests/harness.h"

namespace {

class Hand : public ::testing::Test {
 protected:
  template <class Game>
  Game& Open(const char* button) {
    front.guides = MakeGuide;
    suite = std::make_unique<Suite>(front.platform, SuiteOptions{folder.Path()}, AllGames());
    suite->Start();
    input::Settle();
    input::Click(front, static_cast<Visual&>(*suite->common.selector->find(button)));
    input::Settle();
    auto& game = static_cast<Game&>(*suite->common.window);
    input::Click(front, game.cmdPlay);
    input::Settle();
    return game;
  }
  Canvas& Board() { return front.WindowOf(*suite->common.window)->Board(); }
  QPoint Middle(const Visual& control) { return Board().SpotOf(control).value(); }
  void Send(QEvent::Type type, QPoint point, int pause) {
    QWidget& window = *Board().window();
    time += pause;
    input::SendMouse(*window.windowHandle(), type, Board().mapTo(&window, point),
                     type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, time);
    input::Settle();
  }
  // Drags from there to there; `meanwhile` happens before the release.
  void Drag(
      QPoint from, QPoint to, int pause = 200, const std::function<void()>& meanwhile = [] {}) {
    Send(QEvent::MouseButtonPress, from, 2000);
    Send(QEvent::MouseMove, (from + to) / 2, pause);
    Send(QEvent::MouseMove, to, 20);
    meanwhile();
    input::Settle();
    Send(QEvent::MouseButtonRelease, to, 20);
    EXPECT_EQ(Board().Carried(), nullptr);
  }

  const bool open = OpenScreen();
  TestFolder folder;
  QuickDesktop front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  std::unique_ptr<Suite> suite;
  int time = 0;
};

}  // namespace

TEST_F(Hand, DragsACardToWhereASecondClickWouldBringIt) {
  auto& game = Open<frmTreyshift>("cmdTreyshift");
  const auto& board = game.board;
  const QPoint deck = Middle(game.UpCard(modTreyshift::kInPlay)), first = Middle(game.PlayCard(0)),
               second = Middle(game.PlayCard(1)), nowhere(Board().width() - 20, Board().height() / 2);
  const std::string card = board.UpCards[modTreyshift::kInPlay];
  const auto stays = [&](bool selected) {
    EXPECT_EQ(board.UpCards[modTreyshift::kInPlay], card);
    EXPECT_EQ(board.Selected(), selected);
  };
  Drag(deck, nowhere), stays(false);
  Drag(deck, QPoint(-50, 50)), stays(false);
  Drag(deck, deck + QPoint(12, 12)), stays(true);  // a hand that shook has clicked
  Drag(deck, nowhere), stays(false);               // it is dragged all the same
  Drag(deck, second, 30), stays(true);             // so quickly only who goes on to the next click
  Drag(deck, second, 200, [&] { input::Key(*Board().window(), Qt::Key_Escape); }), stays(false);
  Drag(deck, second, 200, [&] { front.Deliver(game, [&] { game.PauseGame(); }); }), stays(true);
  front.Deliver(game, [&] { game.ResumeGame(); });
  Drag(deck, second);
  EXPECT_EQ(board.FieldCards[1], card);
  EXPECT_FALSE(board.Selected());
  Drag(second, first);  // and on to another column
  EXPECT_EQ(board.FieldCards[0], card);
  // Below a column's last card nothing is to be seen, and yet it is meant.
  Drag(deck, first + QPoint(0, Board().PlaceOf(game.PlayCard(0)).height() / 2 + 8));
  EXPECT_FALSE(board.FieldCards[modTreyshift::kSecondRow].empty());
}

TEST_F(Hand, LetsGoOfACardThatFindsNoPartner) {
  auto& game = Open<frmDuopick>("cmdDuopick");
  front.Deliver(game, [&] {
    int rank = 3;
    for (const int card : {18, 19, 20}) game.board.field[card] = std::to_string(rank++) + "S";
  });
  const QPoint three = Middle(game.PlayCard(18)), four = Middle(game.PlayCard(19)),
               five = Middle(game.PlayCard(20));
  const size_t stock = game.board.stack.size();
  Drag(three, five);
  Drag(three, Middle(game.CardStackPicture));
  EXPECT_EQ(game.board.stack.size(), stock);
  EXPECT_TRUE(game.board.taken.empty());
  EXPECT_EQ(game.board.selected, modDuopick::kNone);
  Drag(three, four);
  EXPECT_EQ(game.board.RunsCount, 1);
}

TEST_F(Hand, IsShownAPerfectTotalBeforeItGoesAndAMomentOfPaper) {
  auto& game = Open<frmFivestack>("cmdFivestack");
  for (const bool calm : {false, true}) {
    View view;
    view.lessMotion = calm;
    front.looks.Set(view);
    front.looks.HoldCards(false);
    front.Deliver(game, [&] {
      for (Column21& column : game.board.columns) column.total = modFivestack::kColumns * 4 + 1;
      game.board.columns[4].total = 11;
      game.board.deck[game.board.position] = "10S";
    });
    bool seen = false, celebrates = false;
    front.onSleep = [&] {
      seen = game.ColumnImages(4)(0).Visible && game.ColumnTotal(4).Caption == "21";
      celebrates = !Board().AtRest();
    };
    input::Click(front, game.cmdHit(4));
    input::Settle();
    EXPECT_TRUE(seen);
    EXPECT_EQ(celebrates, !calm);
    EXPECT_TRUE(input::Await([&] { return game.standing.IsPlaying() && Board().AtRest(); }));
  }
}
