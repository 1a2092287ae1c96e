// Customised scoring of Duopick, and what the rules say of it.
#include <gtest/gtest.h>

#include "tests/duopick_table.h"

namespace {

const std::string kOptions = "click frmDuopick.mnuCustom\n";
const std::string kOk = "click frmDuopickCustomScoring.cmdOK\n",
                  kCancel = "click frmDuopickCustomScoring.cmdCancel\n";
const std::string kAnswer = "answer \"OK\"\n", kTick = "click frmDuopickCustomScoring.chkCountDown\n";

std::string TypeInto(const std::string& box, const std::string& text) {
  return "type frmDuopickCustomScoring." + box + " \"" + text + "\"\n";
}

class DuopickCustom : public ::testing::Test {
 protected:
  DuopickCustom() { driver.Do(kOpenDuopick); }
  frmDuopick& Game() { return DuopickOf(driver); }
  // What the `get` commands among these answer.
  std::string Asked(const std::string& commands) { return Joined(LinesOf(driver.Do(commands), "ok ")); }
  // What the board says of scoring.
  std::string Board() {
    return Joined({Game().lblPairs.Caption, Game().lblRuns.Caption, Game().StatusBar1.Panels(1).Text});
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(DuopickCustom, EachFieldHasItsBoundsAndWords) {
  const struct {
    const char* box;
    Long& setting;
    int highest;
    std::string what, tooHigh;
  } fields[] = {
      {"txtPairsBonus", Game().PairsBonus, 32767, "pairs bonus value", "more than 32767 points"},
      {"txtRunsBonus", Game().RunsBonus, 32767, "runs bonus value", "more than 32767 points"},
      {"txtBonusRound", Game().BonusScore, 200000, "value required for a bonus round",
       "more than 200000 points."},
      {"txtCompletionBonus", Game().CompletionBonus, 32767, "value of the completion bonus",
       "more than 32767 points."},
      {"txtTimeBonus", driver.common().TimeBonus, 32767, "Time Bonus value", "greater than 32767 points"},
  };
  for (const bool high : {true, false}) {
    std::string typed = kOptions, answers;
    std::vector<std::string> words;
    for (const auto& field : fields) {
      typed += TypeInto(field.box, std::to_string(high ? field.highest + 1 : -1));
      answers += kAnswer;
      words.push_back("Sorry, you cannot set the " + field.what + " to " +
                      (high ? field.tooHigh : "less than 0 points."));
    }
    EXPECT_EQ(BoxesOf(driver.Do(typed + kOk + answers + kCancel)), words);
    EXPECT_TRUE(BoxesOf(driver.Do(kOptions + kOk)).empty()) << "the bounds themselves pass";
    for (const auto& field : fields) EXPECT_EQ(field.setting, high ? field.highest : 0) << field.box;
  }
}

TEST_F(DuopickCustom, TheLastFieldDecidesTheRest) {
  // All fields are looked at; the last one fails, so the switch and the board stay.
  const std::string told =
      driver.Do(kOptions + TypeInto("txtPairsBonus", "32768") + TypeInto("txtRunsBonus", "7") +
                TypeInto("txtTimeBonus", "-5") + kTick + kOk + kAnswer + kAnswer + kCancel);
  EXPECT_EQ(BoxesOf(told).size(), 2u);
  EXPECT_EQ(Game().RunsBonus, 7);
  EXPECT_TRUE(driver.common().CountDownScore);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
  EXPECT_EQ(Board(), "Pairs x 3000|Runs x 500|Welcome to Duopick!  ");
  // The last one passes, another fails: the rest is done, and the dialog stays.
  EXPECT_EQ(Asked(kOptions + TypeInto("txtBonusRound", "200001") + kTick + kOk + kAnswer +
                  "get frmDuopickCustomScoring.txtBonusRound.Text\n" + kCancel),
            "\"200000\"");
  EXPECT_FALSE(driver.common().CountDownScore);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  EXPECT_EQ(Board(), "Pairs x 32767|Runs x 7|Make 200,000 for bonus round.  ");
  driver.Do(kPlayDuopick);
  EXPECT_EQ(Board(), "Pairs x 32767|Runs x 7|Make 200,000 for Bonus Round!   ");
}

TEST_F(DuopickCustom, ValuesAreKeptMarkTheTableAndStandInTheRules) {
  driver.Do(kOptions + TypeInto("txtPairsBonus", "505") + TypeInto("txtTimeBonus", "1234") + kOk);
  const std::string rules = nlohmann::json::parse(
      Asked("click frmDuopick.mnuRules\nget frmRules.lblRules.Text\nclick frmRules.cmdOK\n"));
  EXPECT_TRUE(
      rules.starts_with("\r\n" + std::string(33, ' ') + "Duopick! Rules, Notes and Strategy\r\n\r\nReq"));
  for (const char* part :
       {"each lasting 45 seconds. If you earn more than 80,000 points",
        "You are awarded 505 points for each pair you create and 500 points for each run you create. ",
        "awarded and additional 10,000 points at the end", "round and award you 1,234 points",
        "remaining on the clock. \r\n\r\nGood luck and have fun!"})
    EXPECT_TRUE(Contains(rules, part)) << part;
  driver.Do(LayTwelvePairs() + kPlayDuopick + ClickTwoByTwo(0, 4) + kTakeScoreDuopick +
            "advance 45000\nadvance 45000\n" + kEnterName);
  EXPECT_TRUE(folder.Read("DuopickHighScores45.Txt").starts_with("Ann*, 56580\r\n"))
      << "marked; twenty doesn't divide the two pairs, and 21 steps of 50 are paid";
  driver.Do("close frmDuopick\nanswer \"Yes\"\n" + kOpenDuopick);
  EXPECT_EQ(Board(), "Pairs x 505|Runs x 500|Welcome to Duopick!  ");
}

}  // namespace
