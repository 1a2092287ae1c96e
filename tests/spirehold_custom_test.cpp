// Customised scoring of Spirehold, and what the rules say of it.
#include <gtest/gtest.h>

#include "tests/spirehold_table.h"

namespace {

const std::string kOptions = "click frmSpirehold.mnuCustom\n";
const std::string kOk = "click frmSpireholdCustom.cmdOK\n", kCancel = "click frmSpireholdCustom.cmdCancel\n";
const std::string kAnswer = "answer \"OK\"\n";

std::string TypeInto(const std::string& box, const std::string& text) {
  return "type frmSpireholdCustom." + box + " \"" + text + "\"\n";
}

class SpireholdCustom : public ::testing::Test {
 protected:
  SpireholdCustom() { driver.Do(kOpenSpirehold); }
  frmSpirehold& Game() { return SpireholdOf(driver); }
  // What the `get` commands among these answer.
  std::string Asked(const std::string& commands) { return Joined(LinesOf(driver.Do(commands), "ok ")); }
  std::string Panel1() { return driver.Text("frmSpirehold.StatusBar1.Panels(1).Text"); }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(SpireholdCustom, EachFieldHasItsBoundsAndWords) {
  const struct {
    const char* box;
    int highest, takenWhenTooHigh;
    std::string low, high;
  } fields[] = {
      {"txtCardValue", 1000, 1000, "you cannot increment the card value by less than 0 points.",
       "you cannot increment the card value by greater than 1000 points"},
      {"txtBonusScore", 900000, 0, "a minimum of 0 points is required to make the bonus round.",
       "a maximum of 900000 points is required to make the bonus round."},
      {"txtRunBonus", 32767, 32767, "a minimum of 0 points is required when achieving the high run bonus.",
       "a maximum of 32767 points is required when achieving the high run bonus."},
      {"txtCompletedTower", 32767, 32767,
       "a minimum of 0 points is required when achieving when completing each tower.",
       "a maximum of 32767 points is required when completing each tower."},
      {"txtTimeBonus", 32767, 32767, "you cannot set the Time Bonus value to less than 0 points.",
       "you cannot set the Time Bonus value to greater than 32767 points"},
  };
  for (const bool high : {true, false}) {
    std::string typed = kOptions, answers;
    std::vector<std::string> words;
    for (const auto& field : fields) {
      typed += TypeInto(field.box, std::to_string(high ? field.highest + 1 : -1));
      answers += kAnswer;
      words.push_back("Sorry, " + (high ? field.high : field.low));
    }
    EXPECT_EQ(BoxesOf(driver.Do(typed + kOk + answers + kCancel)), words);
    EXPECT_TRUE(BoxesOf(driver.Do(kOptions + kOk)).empty()) << "what was put there passes";
    const long long inForce[] = {Game().CardValue, Game().BonusScore, Game().HighRunBonus, Game().TowerBonus,
                                 driver.common().TimeBonus};
    for (size_t i = 0; i < std::size(fields); ++i)
      EXPECT_EQ(inForce[i], high ? fields[i].takenWhenTooHigh : 0) << fields[i].box;
  }
  const std::pair<const char*, int> rounded[] = {
      {"1000", 1000}, {"12abc", 12}, {"", 0}, {"2.5", 2}, {"3.5", 4}};
  for (const auto& [typed, taken] : rounded) {
    driver.Do(kOptions + TypeInto("txtCardValue", typed) + kOk);
    EXPECT_EQ(Game().CardValue, taken) << typed;
  }
}

TEST_F(SpireholdCustom, AFailedOkKeepsWhatItTookAndTheLastFieldDecidesTheRest) {
  EXPECT_EQ(Asked(kOptions + "get frmSpireholdCustom.frmScoringOptions.Caption\n" + kCancel),
            "\"AppTitle Scoring Options\"");
  // All fields are looked at; the last one fails, so the switch and the panel stay.
  const std::string tick = "click frmSpireholdCustom.chkCountDown\n";
  driver.Do(kOptions + TypeInto("txtCardValue", "1001") + TypeInto("txtTimeBonus", "-5") + tick + kOk +
            kAnswer + kAnswer + kCancel);
  EXPECT_EQ(Game().CardValue, 1000);
  EXPECT_TRUE(driver.common().CountDownScore);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
  EXPECT_EQ(Panel1(), "Welcome to Spirehold!  ");
  // The last one passes, another fails: the rest is done, and the dialog stays.
  EXPECT_EQ(Asked(kOptions + TypeInto("txtBonusScore", "900001") + tick + kOk + kAnswer +
                  "get frmSpireholdCustom.txtBonusScore.Text\n" + kCancel),
            "\"900000\"");
  EXPECT_FALSE(driver.common().CountDownScore);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  EXPECT_EQ(Panel1(), "Make 0 for bonus round.  ");
  // Cancel leaves 0 in force: every score reaches the bonus round.
  driver.Do(kPlaySpirehold + "advance 45000\nadvance 45000\n");
  EXPECT_EQ(driver.Text("frmSpirehold.lblCurrentRound.Caption"), "Bonus");
  EXPECT_EQ(Panel1(), "Make 0 for Bonus Round!   ");
}

TEST_F(SpireholdCustom, DefaultChangesNothingBeforeOk) {
  EXPECT_EQ(Asked(kOptions + TypeInto("txtBonusScore", "1234567") + TypeInto("txtRunBonus", "7") +
                  "click frmSpireholdCustom.chkCountDown\nclick frmSpireholdCustom.cmdDefault\n" +
                  "get frmSpireholdCustom.txtBonusScore.Text\nget frmSpireholdCustom.chkCountDown.Value\n" +
                  "key frmSpireholdCustom \"Escape\""),
            "\"40000\"|1");
  EXPECT_EQ(Game().HighRunBonus, 1000);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
}

TEST_F(SpireholdCustom, ValuesAreKeptMarkTheTableAndStandInTheRules) {
  driver.Do(kOptions + TypeInto("txtCardValue", "200") + TypeInto("txtTimeBonus", "1234") + kOk);
  const std::string rules = nlohmann::json::parse(
      Asked("click frmSpirehold.mnuRules\nget frmRules.lblRules.Text\nclick frmRules.cmdOK\n"));
  EXPECT_TRUE(
      rules.starts_with("\r\n" + std::string(33, ' ') + "Spirehold! Rules, Notes and Strategy\r\n\r\nReq"));
  for (const char* part :
       {"each lasting 45 seconds. If you earn more than 40,000 points", "increases by 200 points.",
        "additional 1,000 points for each", "multiplied by 5,000 points.", "round and award you 1,234 points",
        "\r\n\r\nGood luck and have fun!"})
    EXPECT_TRUE(Contains(rules, part)) << part;
  driver.Do(LayCards(Staircase()) + kPlaySpirehold + ClickCards(27, 0));
  driver.Do(kPlaySpirehold + "answer \"Yes\"\n" + kEnterName);
  EXPECT_TRUE(folder.Read("SpireholdHiScores45.Txt").starts_with("Ann*, ")) << "marked";
  driver.Do("close frmSpirehold\nanswer \"Yes\"\n" + kOpenSpirehold);
  EXPECT_EQ(Game().CardValue, 200);
  EXPECT_EQ(Game().board.HighestRun, 28);
}

// The label is told anew when the run changes, and no sooner.
TEST_F(SpireholdCustom, TheNextCardsLabelWaitsForTheRun) {
  driver.Do(kPlaySpirehold + kPlaySpirehold + "answer \"Yes\"\n" + kOptions +
            TypeInto("txtCardValue", "300") + kOk + LayCards(Staircase()) + kPlaySpirehold);
  EXPECT_EQ(driver.Text("frmSpirehold.lblNextCard.Caption"), "Next card worth: 100 points");
  driver.Do(ClickCard(27));
  EXPECT_EQ(driver.common().CurrentScore, 300);
  EXPECT_EQ(driver.Text("frmSpirehold.lblNextCard.Caption"), "Next card worth: 600 points");
}

}  // namespace
