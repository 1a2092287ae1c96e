// Customised scoring of Duopick, and what the rules say of it.
#include <gtest/gtest.h>

#include "tests/duopick_table.h"

namespace {

const std::string kOptions = "click frmDuopick.mnuCustom\n", kDialog = "frmDuopickCustomScoring.";
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
    return driver.Text("frmDuopick.lblPairs.Caption") + "|" + driver.Text("frmDuopick.lblRuns.Caption") +
           "|" + driver.Text("frmDuopick.StatusBar1.Panels(1).Text");
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(DuopickCustom, EachFieldHasItsBoundsAndWords) {
  const struct {
    const char* box;
    Long& setting;
    long long standard, highest;
    const char* caption;
    const char *low, *high;
  } fields[] = {
      {"txtPairsBonus", Game().PairsBonus, 3000, 32767,
       "Pairs Bonus Value:", "Sorry, you cannot set the pairs bonus value to less than 0 points.",
       "Sorry, you cannot set the pairs bonus value to more than 32767 points"},
      {"txtRunsBonus", Game().RunsBonus, 500, 32767, "Runs Bonus Value",
       "Sorry, you cannot set the runs bonus value to less than 0 points.",
       "Sorry, you cannot set the runs bonus value to more than 32767 points"},
      {"txtBonusRound", Game().BonusScore, 80000, 200000, "Score required for Bonus Round:",
       "Sorry, you cannot set the value required for a bonus round to less than 0 points.",
       "Sorry, you cannot set the value required for a bonus round to more than 200000 points."},
      {"txtCompletionBonus", Game().CompletionBonus, 10000, 32767, "Bonus for completing upper cards: ",
       "Sorry, you cannot set the value of the completion bonus to less than 0 points.",
       "Sorry, you cannot set the value of the completion bonus to more than 32767 points."},
      {"txtTimeBonus", driver.common().TimeBonus, 100, 32767, "Time Bonus (points per second)",
       "Sorry, you cannot set the Time Bonus value to less than 0 points.",
       "Sorry, you cannot set the Time Bonus value to greater than 32767 points"},
  };
  for (const auto& field : fields) {
    const std::string read = "get " + kDialog + field.box + ".Text\n";
    const auto fails = [&](long long typed) {
      return driver.Do(kOptions + read + TypeInto(field.box, std::to_string(typed)) + kOk + kAnswer + read +
                       kCancel);
    };
    const std::string label = "lbl" + std::string(field.box).substr(3);
    EXPECT_EQ(Asked(kOptions + "get " + kDialog + label + ".Caption\n" + kCancel),
              "\"" + std::string(field.caption) + "\"");
    std::string told = fails(field.highest + 1);
    EXPECT_EQ(Joined(BoxesOf(told)), field.high);
    EXPECT_TRUE(Contains(told, R"("title":"Duopick!","icon":"information")"));
    EXPECT_EQ(Joined(LinesOf(told, "ok ")),
              "\"" + std::to_string(field.standard) + "\"|\"" + std::to_string(field.highest) + "\"");
    EXPECT_EQ(field.setting, field.highest) << "in force though OK failed and Cancel followed";
    told = fails(-1);
    EXPECT_EQ(Joined(BoxesOf(told)), field.low);
    EXPECT_TRUE(Contains(told, "ok \"0\""));
    EXPECT_EQ(field.setting, 0);
    // What passes closes the dialog.
    const std::pair<std::string, long long> passing[] = {
        {std::to_string(field.highest), field.highest}, {"12abc", 12}, {"", 0}, {"2.5", 2}, {"3.5", 4}};
    for (const auto& [typed, taken] : passing) {
      EXPECT_FALSE(Contains(driver.Do(kOptions + TypeInto(field.box, typed) + kOk), "msgbox")) << typed;
      EXPECT_EQ(field.setting, taken) << typed;
    }
    EXPECT_TRUE(driver.common().CustomScoringInUse);
    driver.Do(kOptions + "click frmDuopickCustomScoring.cmdDefault\n" + kOk);
    EXPECT_FALSE(driver.common().CustomScoringInUse);
  }
}

TEST_F(DuopickCustom, TheLastFieldDecidesTheRest) {
  EXPECT_EQ(Asked(kOptions + "get frmDuopickCustomScoring.Caption\n" +
                  "get frmDuopickCustomScoring.frmScoringOptions.Caption\n" + kCancel),
            "\"Duopick! User Options\"|\"Scoring Options\"");
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
  EXPECT_TRUE(Contains(driver.Do(kOptions), "error")) << "not during a game";
}

TEST_F(DuopickCustom, ValuesAreKeptMarkTheTableAndStandInTheRules) {
  driver.Do(kOptions + TypeInto("txtPairsBonus", "20000") + TypeInto("txtTimeBonus", "1234") + kOk);
  const std::string rules = nlohmann::json::parse(
      Asked("click frmDuopick.mnuRules\nget frmRules.lblRules.Text\nclick frmRules.cmdOK\n"));
  EXPECT_TRUE(
      rules.starts_with("\r\n" + std::string(33, ' ') + "Duopick! Rules, Notes and Strategy\r\n\r\nReq"));
  for (const char* part :
       {"each lasting 45 seconds. If you earn more than 80,000 points",
        "You are awarded 20,000 points for each pair you create and 500 points for each run you create. ",
        "awarded and additional 10,000 points at the end", "round and award you 1,234 points",
        "remaining on the clock. \r\n\r\nGood luck and have fun!"})
    EXPECT_TRUE(Contains(rules, part)) << part;
  driver.Do(LayTwelvePairs() + kPlayDuopick + ClickTwoByTwo(0, 4) + kTakeScoreDuopick +
            "advance 45000\nadvance 45000\n" + kEnterName);
  EXPECT_TRUE(folder.Read("DuopickHighScores45.Txt").starts_with("Ann*, 95530\r\n")) << "marked";
  driver.Do("close frmDuopick\nanswer \"Yes\"\n" + kOpenDuopick);
  EXPECT_EQ(Game().PairsBonus, 20000);
  EXPECT_EQ(Board(), "Pairs x 20000|Runs x 500|Welcome to Duopick!  ");
  EXPECT_TRUE(driver.common().CustomScoringInUse);
}

}  // namespace
