// Where the cursor goes: which place an arrow chooses, and which of several cards of a rank a key means.
#include <gtest/gtest.h>

#include "tests/desktop_screen.h"
#include "tests/harness.h"
#include "window/desktop/input/keyboard.h"

namespace {

// A board of places, each of which tells of its click.
class frmPlaces : public Form {
 public:
  explicit frmPlaces(Platform& platform) : Form(platform, "frmPlaces") {
    Width = 9000;
    Height = 6000;
    for (int i = 0; i < Place.size(); ++i) {
      Place(i).BorderStyle = 1;
      Place(i).Visible = false;
      Place(i).OnClick = [this, i] { clicked += "ABCDEFGHI"[i]; };
    }
  }
  ControlArray<Image, 9> Place{*this, "Place"};
  std::string clicked;
};

class PlacesGuide : public Guide {
 public:
  explicit PlacesGuide(std::vector<Spot>& spots) : spots_(spots) {}
  std::vector<KeyRow> Keys() const override {
    KeyRow row{"A to K", "The next card of that rank that can be played", {}};
    for (const char key : std::string("A234567890TJQK")) row.clicks.push_back({{key}, kNextOfRank});
    return {row};
  }
  bool InGame() const override { return true; }

 protected:
  std::vector<Spot> Places() const override { return spots_; }

 private:
  std::vector<Spot>& spots_;
};

class Cursor : public testing::Test {
 protected:
  void SetUp() override {
    front.guides = [this](Form&) { return std::make_unique<PlacesGuide>(spots); };
    form.Show();
    input::Settle();
  }
  // Lays places, named A, B ..., with their left and top edges in pixels.
  void Lay(const std::vector<std::pair<int, int>>& places) {
    front.Deliver(form, [&] {
      spots.clear();
      for (int i = 0; i < form.Place.size(); ++i) {
        const bool lies = i < std::ssize(places);
        form.Place(i).Visible = lies;
        if (!lies) continue;
        form.Place(i).Move(places[i].first * 15, places[i].second * 15, 30 * 15, 40 * 15);
        form.Place(i).Picture = 14 + i;
        spots.push_back({&form.Place(i), "", true});
      }
    });
    input::Settle();
  }
  void Press(int key, Qt::KeyboardModifiers held = {}, const QString& text = {}) {
    input::Key(*front.WindowOf(form), key, held, text);
    input::Settle();
  }
  void Strike(char key) { Press(key, {}, QString(QChar(key)).toLower()); }
  // Goes from a place by one arrow, and tells where it came to.
  char From(char place, int key, Qt::KeyboardModifiers held = {}) {
    front.WindowOf(form)->Keys()->GoTo(form.Place(place - 'A'));
    Press(key, held);
    const Visual* cursor = front.WindowOf(form)->Keys()->Cursor();
    return cursor ? static_cast<char>('A' + cursor->index) : '-';
  }
  // What each of left, up, right and down come to.
  std::string Around(char place, Qt::KeyboardModifiers held = {}) {
    std::string around;
    for (const int key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down})
      around += From(place, key, held);
    return around;
  }

  const bool open = OpenScreen();
  TestFolder folder;
  std::vector<Spot> spots;
  QuickDesktop front{{folder.Path(), CARDHAVEN_TEST_DATA}, Catalogue()};
  frmPlaces form{front.platform};
};

}  // namespace

TEST_F(Cursor, GoesToTheNeighbourOfAGridAndStaysAtItsEdges) {
  std::vector<std::pair<int, int>> grid;
  for (int i = 0; i < 9; ++i) grid.emplace_back(100 + i % 3 * 80, 50 + i / 3 * 90);
  Lay(grid);
  const char* around[] = {"AABD", "ABCE", "BCCF", "DAEG", "DBFH", "ECFI", "GDHG", "GEIH", "HFII"};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(Around(static_cast<char>('A' + i)), around[i]) << i;
}

TEST_F(Cursor, PrefersWhatLiesStraightAheadToWhatIsNear) {
  // B lies nearer, C straighter; D is behind.
  Lay({{100, 100}, {140, 160}, {240, 100}, {20, 100}});
  EXPECT_EQ(From('A', Qt::Key_Right), 'C');
  EXPECT_EQ(From('A', Qt::Key_Left), 'D');
  EXPECT_EQ(From('A', Qt::Key_Down), 'B');
  EXPECT_EQ(From('A', Qt::Key_Up), 'A');
  // Aside counts three times: 140 ahead is as far as 80 ahead and 20 aside.
  Lay({{100, 100}, {180, 119}, {240, 100}});
  EXPECT_EQ(From('A', Qt::Key_Right), 'B');
  Lay({{100, 100}, {180, 121}, {240, 100}});
  EXPECT_EQ(From('A', Qt::Key_Right), 'C');
  Lay({{100, 100}, {119, 180}, {100, 240}});
  EXPECT_EQ(From('A', Qt::Key_Down), 'B');
  Lay({{100, 100}, {79, 180}, {100, 240}});
  EXPECT_EQ(From('A', Qt::Key_Down), 'C');
  // What lies a hair to the side isn't that way.
  Lay({{100, 100}, {103, 200}});
  EXPECT_EQ(Around('A'), "AAAB");
  Lay({{100, 100}, {104, 200}});
  EXPECT_EQ(Around('A'), "AABB");
}

TEST_F(Cursor, PassesByWhatCantBePlayedUnlessCtrlIsHeld) {
  Lay({{50, 100}, {130, 100}, {210, 100}, {50, 200}});
  front.Deliver(form, [&] { spots[1].playable = spots[3].playable = false; });
  input::Settle();
  EXPECT_EQ(Around('A'), "AACA");
  EXPECT_EQ(Around('A', Qt::ControlModifier), "AABD");
  EXPECT_EQ(From('B', Qt::Key_Left), 'A');  // which may have become unplayable under the cursor
  EXPECT_EQ(From('C', Qt::Key_Left), 'A');
}

TEST_F(Cursor, GoesOnToTheNextCardOfARankWithEachStroke) {
  Lay({{20, 20}, {80, 20}, {140, 20}, {200, 20}, {260, 20}, {320, 20}});
  const auto ranks = [&](const std::string& all) {
    for (size_t i = 0; i < spots.size(); ++i) spots[i].rank = all[i] == '-' ? '\0' : all[i];
  };
  const auto play = [&](const std::string& all) {
    for (size_t i = 0; i < spots.size(); ++i) spots[i].playable = all[i] == '+', spots[i].selected = false;
  };
  const auto clicks = [&](const std::string& keys) {
    form.clicked.clear();
    for (const char key : keys) Strike(key);
    return form.clicked;
  };
  ranks("757-57");
  play("++++++");
  EXPECT_EQ(clicks("7777"), "ACFA");
  EXPECT_EQ(clicks("555"), "BEB");
  EXPECT_EQ(clicks("757"), "CEF");  // each rank remembers its own
  EXPECT_EQ(clicks("9"), "");
  // Those that can't be played are passed by, but where there is no other.
  play("-+++-+");
  EXPECT_EQ(clicks("77"), "CF");
  EXPECT_EQ(clicks("5"), "B");
  EXPECT_EQ(clicks("5"), "B");
  play("-+-++-");
  EXPECT_EQ(clicks("7777"), "ACFA");
  // Selected ones come last: the next stroke takes another, as long as there is one.
  play("++++++");
  EXPECT_EQ(clicks("7"), "C");
  spots[5].selected = true;
  EXPECT_EQ(clicks("77"), "AC");
  spots[0].selected = spots[2].selected = true;
  EXPECT_EQ(clicks("777"), "FAC");
  // Ten is 0 and T, and each of them goes on from its own.
  ranks("TTT-AK");
  EXPECT_EQ(clicks("0"), "B");
  spots[0].selected = spots[2].selected = spots[5].selected = false;
  EXPECT_EQ(clicks("00T"), "CAA");
  EXPECT_EQ(clicks("AAKKAK"), "EEFFEF");
}
