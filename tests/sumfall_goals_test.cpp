// A saved game holds the goal that fits its cards, however the game came to be and whatever was chosen since.
#include <gtest/gtest.h>

#include "tests/sumfall_cards.h"

using namespace modSumfall;

namespace {

std::string Cards(int goal) {
  std::string cards;
  const CardCodes deck = DeckForGoal(goal);
  for (int i = 1; i <= UpperBound(deck); ++i) cards += std::string(CardKey(deck[i])) + "\r\n";
  return cards;
}

std::string GoalEntry(int goal) { return "click frmSumfall.mnu" + std::to_string(goal) + "\n"; }

class Goals : public testing::Test {
 protected:
  Goals() { driver.Do(kOpenSumfall); }

  // Ends the game, which has been dealt with `played`, chooses another goal and saves. The file's goal and
  // cards must go together, and it must open again.
  void Save(int played, int chosen, const std::string& how) {
    const std::string what = how + std::to_string(played) + ", saved with " + std::to_string(chosen);
    driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"\n" + GoalEntry(chosen) +
              "click frmSumfall.mnuSave\ntype frmSave.txtGameName \"kept.sfl\"\nclick frmSave.cmdOK\n");
    const std::string text = folder.Read("kept.sfl");
    const int goal = DeckSize(chosen) == DeckSize(played) ? chosen : played;
    EXPECT_TRUE(text.starts_with("[Card Goal]\r\n" + std::to_string(goal) + "\r\n"))
        << what << text.substr(0, 20);
    EXPECT_TRUE(text.ends_with("[Round 1 Deck]\r\n" + Cards(played))) << what;
    const std::string told = driver.Do(Open("kept.sfl"));
    ASSERT_EQ(BoxesOf(told).size(), 1u) << what;
    EXPECT_TRUE(BoxesOf(told)[0].starts_with("This game was saved by")) << what << BoxesOf(told)[0];
    EXPECT_EQ(driver.Get("frmSumfall.frmSplash.Visible"), false) << what;
    driver.Do("click frmSumfall.cmdPlay\nanswer \"Yes\"\n");
  }
  static std::string Open(const std::string& file) {
    return "click frmSumfall.mnuOpen\ntype frmOpen.txtGameName \"" + file +
           "\"\nclick frmOpen.cmdOK\nanswer \"OK\"\n";
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

}  // namespace

TEST_F(Goals, OfGamesThatWerePlayedOpenedAndReplayedFitTheCards) {
  for (int goal = kLowestGoal; goal <= kHighestGoal; ++goal)
    folder.Write(std::to_string(goal) + ".sfl",
                 "[Card Goal]\r\n" + std::to_string(goal) +
                     "\r\n[Time Limit]\r\n90\r\n[Score]\r\n5\r\n[Custom]\r\nFalse\r\n"
                     "[UserName]\r\nAnn\r\n[Round 1 Deck]\r\n" +
                     Cards(goal));
  for (int played = kLowestGoal; played <= kHighestGoal; ++played)
    for (int chosen = kLowestGoal; chosen <= kHighestGoal; ++chosen) {
      driver.Do(GoalEntry(played) + DrawsFor(DeckForGoal(played), {}) + kPlay);
      Save(played, chosen, "played with ");
      // What was played before, with another deck, is forgotten when a file is opened.
      const int other = DeckSize(played) == DeckSize(13) ? 10 : 13;
      driver.Do(GoalEntry(other) + kPlay + "click frmSumfall.cmdPlay\nanswer \"Yes\"\n");
      driver.Do(Open(std::to_string(played) + ".sfl"));
      Save(played, chosen, "opened with ");
      driver.Do(Open(std::to_string(played) + ".sfl") + "click frmSumfall.cmdPlay\nanswer \"Yes\"\n" +
                kTakeScore);
      Save(played, chosen, "opened and replayed with ");
    }
}
