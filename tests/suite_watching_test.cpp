// How a recording passes before a viewer: its pace, and what he does to it. On a clock of its own.
#include <gtest/gtest.h>

#include <cmath>
#include <deque>

#include "window/watching.h"

namespace {

// Ten steps of a second each, every other one a deed; the second round begins with the sixth.
class WatchingTest : public testing::Test, public Screening {
 protected:
  Watching watching{{"A game", {{"Round 1", 1, 1000}, {"Round 2", 6, 6000}}, 10'000, true}, *this};
  long long clock = 0;
  std::string seen;                             // what was done: numbers of steps, "<" a new beginning
  std::map<int, std::string> comments;          // before steps
  std::deque<std::function<void()>> whenStops;  // what the viewer does each time that it stands still
  std::map<int, std::function<void()>> before;  // or before a step

  void Play() {
    watching.Play([this] {
      seen += "<";
      for (int step = 0; step < 10; ++step) {
        if (before.contains(step)) before.extract(step).mapped()();
        if (comments.contains(step)) watching.Say(comments[step]);
        watching.Comes({Event::Kind::Close});
        watching.Pass(1000, 1000 * step, step, step % 2 == 1);
        if (!watching.IsFast()) seen += std::to_string(step);
      }
      watching.AtEnd();
    });
  }

  void Rest(double milliseconds) override {
    if (milliseconds >= 0) {
      clock += std::llround(std::ceil(milliseconds));
    } else if (whenStops.empty()) {
      watching.Leave();
    } else {
      const auto deed = whenStops.front();
      whenStops.pop_front();
      deed();
    }
  }
  long long Clock() override { return clock; }
  void StepBegins(bool) override {}
  void HoldCards(bool held) override { held_ = held; }
  void Point(const Event& next) override {
    if (next.kind != Event::Kind::None && !std::exchange(points_, true)) pointed_ = clock;
    if (next.kind == Event::Kind::None) points_ = false;
  }
  void ShowBar() override {}
  void Speak(const std::string& comment) override { spoken_ += comment; }
  void ForgetWindows() override { ++forgotten_; }

  long long pointed_ = 0;
  std::string spoken_;
  int forgotten_ = 0;
  bool held_ = false, points_ = false;
};

}  // namespace

TEST_F(WatchingTest, PassesAtTheSpeedThatWasChosen) {
  for (const char* key : {"1", "4", "+", "-", "-"}) {
    EXPECT_TRUE(watching.Take(key));
    const long long begun = clock;
    for (int step = 0; step < 10; ++step) watching.Pass(1000, 1000 * step, step, false);
    EXPECT_NEAR(static_cast<double>(clock - begun), 10'000.0 / watching.Speed(), 40) << key;
  }
  EXPECT_EQ(watching.Speed(), 2);
  EXPECT_FALSE(watching.Take("3"));
  EXPECT_FALSE(watching.Take("F1"));
}

TEST_F(WatchingTest, WhoReadsLetsTheGameWait) {
  comments[3] = "Ten l\u00e9tters";
  whenStops = {[this] { watching.Leave(); }};
  Play();
  EXPECT_NEAR(static_cast<double>(clock), 10'000 + 1500 + 55 * 11, 40);
  EXPECT_EQ(spoken_, comments[3]);
  EXPECT_EQ(seen, "<0123456789");
  EXPECT_EQ(forgotten_, 1);
}

TEST_F(WatchingTest, GoesToRoundsAndBack) {
  before[3] = [this] { watching.Take("PageDown"); };
  comments[4] = "not read on the way";
  before[8] = [this] {
    EXPECT_LT(clock, 6000) << "three steps on the way took no time";
    EXPECT_EQ(watching.Place(7000), "Round 2, 0:07 of 0:10");
    watching.GoTo(1500);
  };
  whenStops = {[this] { watching.Take("Space"); }};  // going on at the end is beginning anew
  before[9] = [this] { before[0] = [this] { watching.Leave(); }; };
  Play();
  EXPECT_EQ(seen, "<01267<123456789<");
  EXPECT_EQ(forgotten_, 3);
}

TEST_F(WatchingTest, GoesDeedByDeed) {
  before[0] = [this] { watching.Take("Space"); };
  std::string stops;
  for (int i = 0; i < 3; ++i)
    whenStops.push_back([this, &stops] {
      stops += seen + " ";
      watching.NextDeed();
    });
  Play();
  EXPECT_EQ(stops, "< <01 <0123 ") << "each stop is behind a deed";
  EXPECT_LT(clock, 100) << "what lies between isn't waited for";
}

TEST_F(WatchingTest, PointsToWhatComesBeforeItComes) {
  before[1] = [this] { watching.Leave(); };
  Play();
  EXPECT_NEAR(static_cast<double>(pointed_), 300, 20);
}
