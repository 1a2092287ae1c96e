// Customised scoring of Spirehold, and what the rules say of it.
#include <gtest/gtest.h>

#include "tests/spirehold_table.h"

namespace {

const std::string kOptions = "click frmSpirehold.mnuCustom\n", kDialog = "frmSpireholdCustom.";
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
    std::function<long long(frmSpirehold&)> setting;
    long long standard, highest, takenWhenTooHigh;
    const char *low, *high;
  } fields[] = {
      {"txtCardValue", [](frmSpirehold& game) { return game.CardValue; }, 100, 1000, 1000,
       "Sorry, you cannot increment the card value by less than 0 points.",
       "Sorry, you cannot increment the card value by greater than 1000 points"},
      {"txtBonusScore", [](frmSpirehold& game) { return game.BonusScore; }, 40000, 900000, 0,
       "Sorry, a minimum of 0 points is required to make the bonus round.",
       "Sorry, a maximum of 900000 points is required to make the bonus round."},
      {"txtRunBonus", [](frmSpirehold& game) { return game.HighRunBonus; }, 1000, 32767, 32767,
       "Sorry, a minimum of 0 points is required when achieving the high run bonus.",
       "Sorry, a maximum of 32767 points is required when achieving the high run bonus."},
      {"txtCompletedTower", [](frmSpirehold& game) { return game.TowerBonus; }, 5000, 32767, 32767,
       "Sorry, a minimum of 0 points is required when achieving when completing each tower.",
       "Sorry, a maximum of 32767 points is required when completing each tower."},
      {"txtTimeBonus", [](frmSpirehold& game) { return game.common.TimeBonus; }, 100, 32767, 32767,
       "Sorry, you cannot set the Time Bonus value to less than 0 points.",
       "Sorry, you cannot set the Time Bonus value to greater than 32767 points"},
  };
  for (const auto& field : fields) {
    const std::string read = "get " + kDialog + field.box + ".Text\n";
    const auto fails = [&](long long typed) {
      return driver.Do(kOptions + read + TypeInto(field.box, std::to_string(typed)) + kOk + kAnswer + read +
                       kCancel);
    };
    std::string told = fails(field.highest + 1);
    EXPECT_EQ(Joined(BoxesOf(told)), field.high);
    EXPECT_TRUE(Contains(told, R"("title":"Spirehold!","icon":"information")"));
    EXPECT_EQ(Joined(LinesOf(told, "ok ")),
              "\"" + std::to_string(field.standard) + "\"|\"" + std::to_string(field.highest) + "\"");
    EXPECT_EQ(field.setting(Game()), field.takenWhenTooHigh);
    told = fails(-1);
    EXPECT_EQ(Joined(BoxesOf(told)), field.low);
    EXPECT_TRUE(Contains(told, "ok \"0\""));
    EXPECT_EQ(field.setting(Game()), 0);
    // What passes closes the dialog.
    const std::pair<std::string, long long> passing[] = {{std::to_string(field.highest), field.highest},
                                                         {"12abc", 12},
                                                         {"no number", 0},
                                                         {"", 0},
                                                         {"2.5", 2},
                                                         {"3.5", 4}};
    for (const auto& [typed, taken] : passing) {
      EXPECT_FALSE(Contains(driver.Do(kOptions + TypeInto(field.box, typed) + kOk), "msgbox")) << typed;
      EXPECT_EQ(field.setting(Game()), taken) << typed;
    }
    driver.Do(kOptions + "click frmSpireholdCustom.cmdDefault\n" + kOk);
    EXPECT_FALSE(driver.common().CustomScoringInUse);
  }
}

TEST_F(SpireholdCustom, AFailedOkKeepsWhatItTookAndTheLastFieldDecidesTheRest) {
  EXPECT_EQ(
      Asked(kOptions + "get frmSpireholdCustom.Caption\nget frmSpireholdCustom.frmScoringOptions.Caption\n" +
            kCancel),
      "\"Spirehold! User Options\"|\"AppTitle Scoring Options\"");
  // All fields are looked at; the last one fails, so the switch and the panel stay.
  const std::string tick = "click frmSpireholdCustom.chkCountDown\n";
  std::string told =
      driver.Do(kOptions + TypeInto("txtCardValue", "1001") + TypeInto("txtBonusScore", "900001") +
                TypeInto("txtTimeBonus", "-5") + tick + kOk + kAnswer + kAnswer + kAnswer + kCancel);
  EXPECT_EQ(BoxesOf(told).size(), 3u);
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
  EXPECT_EQ(Game().HighestRun, 28);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
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
