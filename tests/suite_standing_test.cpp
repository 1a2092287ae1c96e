// Every place where a window can stand, what is so there, and where each transition leads from it.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "suite/standing.h"

namespace {

using Transition = void (Standing::*)();

const struct {
  const char* name;
  std::vector<Transition> way;  // to it
  const char* questions;        // that are answered with yes
} kStands[] = {
    {"idle", {}, "CanStart"},
    {"starting", {&Standing::Hold}, "IsBusy"},
    {"scoring", {&Standing::Begin}, "InGame IsBusy"},
    {"playing", {&Standing::Begin, &Standing::Open}, "InGame IsPlaying"},
    {"paused", {&Standing::Open, &Standing::Pause}, "InGame IsPaused BoardIsClosed"},
    {"halted", {&Standing::Pause}, "IsPaused BoardIsClosed"},  // there is nothing to pause
    {"over", {&Standing::Open, &Standing::GameOver}, "CanStart IsOver BoardIsClosed"},
};

std::string Questions(const Standing& standing) {
  std::string yes;
  const auto ask = [&](const char* question, bool answer) {
    if (answer) yes += (yes.empty() ? "" : " ") + std::string(question);
  };
  ask("InGame", standing.InGame());
  ask("CanStart", standing.CanStart());
  ask("IsPlaying", standing.IsPlaying());
  ask("IsPaused", standing.IsPaused());
  ask("IsOver", standing.IsOver());
  ask("IsBusy", standing.IsBusy());
  ask("BoardIsClosed", standing.BoardIsClosed());
  return yes;
}

std::string NameOf(const Standing& standing) {
  const std::string questions = Questions(standing);
  for (const auto& each : kStands)
    if (questions == each.questions) return each.name;
  return questions;
}

Standing Reached(const std::vector<Transition>& way) {
  Standing standing;
  for (const Transition step : way) (standing.*step)();
  return standing;
}

}  // namespace

TEST(Standing, AnswersAndMovesByTheTable) {
  // From each of `kStands`, in that order.
  const struct {
    const char* name;
    Transition transition;
    std::vector<std::string> to;
  } kTable[] = {
      {"Rest", &Standing::Rest, {"idle", "idle", "idle", "idle", "idle", "idle", "idle"}},
      {"Hold",
       &Standing::Hold,
       {"starting", "starting", "scoring", "scoring", "scoring", "starting", "starting"}},
      {"Begin",
       &Standing::Begin,
       {"scoring", "scoring", "scoring", "scoring", "scoring", "scoring", "scoring"}},
      {"Open",
       &Standing::Open,
       {"playing", "playing", "playing", "playing", "playing", "playing", "playing"}},
      {"Pause", &Standing::Pause, {"halted", "halted", "paused", "paused", "paused", "halted", "halted"}},
      {"Resume", &Standing::Resume, {"idle", "idle", "playing", "playing", "playing", "idle", "idle"}},
      {"Score",
       &Standing::Score,
       {"starting", "starting", "scoring", "scoring", "scoring", "starting", "starting"}},
      {"GiveUp", &Standing::GiveUp, {"idle", "starting", "scoring", "playing", "halted", "halted", "over"}},
      {"GameOver", &Standing::GameOver, {"over", "over", "over", "over", "over", "over", "over"}},
      {"End", &Standing::End, {"idle", "idle", "idle", "idle", "idle", "idle", "idle"}},
  };
  for (const auto& row : kTable) {
    ASSERT_EQ(row.to.size(), std::size(kStands));
    for (size_t i = 0; i < std::size(kStands); ++i) {
      Standing standing = Reached(kStands[i].way);
      EXPECT_EQ(NameOf(standing), kStands[i].name);
      (standing.*row.transition)();
      EXPECT_EQ(NameOf(standing), row.to[i]) << row.name << " from " << kStands[i].name;
    }
  }
}

// Only scoring kills input, and only a game or the selector brings it back to life, wherever the window
// stands.
TEST(Standing, InputDiesAndLivesBesideIt) {
  for (const auto& stand : kStands) {
    Standing standing = Reached(stand.way);
    EXPECT_FALSE(standing.InputIsDead()) << stand.name;
    standing.InputDies();
    for (const Transition step :
         {&Standing::Hold, &Standing::Begin, &Standing::Open, &Standing::Pause, &Standing::Resume,
          &Standing::GiveUp, &Standing::GameOver, &Standing::End}) {
      (standing.*step)();
      EXPECT_TRUE(standing.InputIsDead()) << stand.name;
    }
    standing.InputLives();
    EXPECT_FALSE(standing.InputIsDead()) << stand.name;
    standing.Score();
    EXPECT_TRUE(standing.InputIsDead()) << stand.name;
    standing.Rest();
    EXPECT_FALSE(standing.InputIsDead()) << stand.name;
  }
}
