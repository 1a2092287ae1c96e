// Customised scoring of Treyshift, and what the rules say of it.
#include <gtest/gtest.h>

#include "tests/treyshift_table.h"

namespace {

const std::string kOptions = "click frmTreyshift.mnuCustom\n", kOk = "click frmTreyshiftCustom.cmdOK\n",
                  kCancel = "click frmTreyshiftCustom.cmdCancel\n", kAnswer = "answer \"OK\"\n";

std::string TypeInto(const std::string& box, const std::string& text) {
  return "type frmTreyshiftCustom." + box + " \"" + text + "\"\n";
}
std::string Read(const std::string& box) { return "get frmTreyshiftCustom." + box + ".Text\n"; }

class TreyshiftCustom : public ::testing::Test {
 protected:
  TreyshiftCustom() { driver.Do(kOpenTreyshift); }
  frmTreyshift& Game() { return TreyshiftOf(driver); }
  // What the `get` commands among these answer.
  std::string Asked(const std::string& commands) { return Joined(LinesOf(driver.Do(commands), "ok ")); }
  std::string Panel1() { return driver.Text("frmTreyshift.StatusBar1.Panels(1).Text"); }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(TreyshiftCustom, EachFieldHasItsBoundsAndWords) {
  const struct {
    const char* box;
    int lowest, highest;
    std::string low, high;
  } fields[] = {
      {"txtTripValue", 0, 20000, "minimum value for a Triple is 0.", "maximum value for a Triple is 20000"},
      {"txtRunValue", 0, 20000, "minimum value for a Run is 0.", "maximum value for a Run is 20000"},
      {"txtDeckValue", 0, 100000, "minimum value for for completing the Deck is 0.",
       "maximum value for completing the Deck is 100000"},
      {"txtFlushValue", 0, 20000, "minimum value for the Flush Bonus is 0.",
       "maximum value for the Flush Bonus is 20000"},
      {"txtBonusRound", 0, 1000000, "minimum value for obtaining the Bonus Round is 0.",
       "maximum value for obtaining the Bonus Round is 1000000"},
      {"txtPenaltyValue", -20000, 0, "minimum penalty for left over cards is -20000",
       "maximum penalty for left over cards is 0."},
      {"txtTimeBonus", 0, 5000, "Time Bonus value to less than 0 points.",
       "Time Bonus value to greater than 5000 points"},
  };
  for (const bool high : {true, false}) {
    std::string typed = kOptions, answers;
    std::vector<std::string> words;
    for (const auto& field : fields) {
      const bool isTime = field.highest == 5000;
      typed += TypeInto(field.box, std::to_string(high ? field.highest + 1 : field.lowest - 1));
      answers += kAnswer;
      words.push_back((isTime ? "Sorry, you cannot set the " : "Sorry, the ") +
                      (high ? field.high : field.low));
    }
    EXPECT_EQ(BoxesOf(driver.Do(typed + kOk + answers + kCancel)), words);
    const long long inForce[] = {Game().TripValue,         Game().RunValue,   Game().DeckValue,
                                 Game().FlushValue,        Game().BonusScore, Game().PenaltyValue,
                                 driver.common().TimeBonus};
    for (size_t i = 0; i < std::size(fields); ++i)
      EXPECT_EQ(inForce[i], high ? fields[i].highest : fields[i].lowest) << fields[i].box;
  }
}

// The bounds come before the rounding; the penalty is kept without its sign.
TEST_F(TreyshiftCustom, NumbersAreRounded) {
  const std::pair<const char*, int> cases[] = {{"-20000", 20000}, {"-20000.25", -20000}, {"-12abc", 12},
                                               {"no number", 0},  {"-2.5", 2},           {"-3.5", 4}};
  for (const auto& [typed, taken] : cases) {
    driver.Do(kOptions + TypeInto("txtPenaltyValue", typed) + kOk + kAnswer + kCancel);
    EXPECT_EQ(Game().PenaltyValue, taken) << typed;
  }
}

TEST_F(TreyshiftCustom, AFailedOkKeepsWhatItTookAndTheLastFieldDecidesTheRest) {
  EXPECT_EQ(Asked(kOptions + "get frmTreyshiftCustom.frmScoringOptions.Caption\n" + kCancel),
            "\"AppTitle Scoring Options\"");
  const std::string tick = "click frmTreyshiftCustom.chkCountDown\n";
  driver.Do(kOptions + TypeInto("txtTripValue", "20001") + TypeInto("txtTimeBonus", "-5") + tick + kOk +
            kAnswer + kAnswer + kCancel);
  EXPECT_EQ(Game().TripValue, 20000);
  EXPECT_TRUE(driver.common().CountDownScore);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
  EXPECT_EQ(Panel1(), "Welcome to Treyshift!  ");
  // The last one passes, another fails: the rest is done, and the dialog stays.
  EXPECT_EQ(Asked(kOptions + TypeInto("txtBonusRound", "1000001") + TypeInto("txtTimeBonus", "5") + tick +
                  kOk + kAnswer + Read("txtBonusRound") + kCancel),
            "\"1000000\"");
  EXPECT_FALSE(driver.common().CountDownScore);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  EXPECT_EQ(Panel1(), "Make 1,000,000 for bonus round.  ");
}

// A penalty that was too high is kept with its sign: each card that is left over then pays. A second OK takes
// it as what it is.
TEST_F(TreyshiftCustom, APenaltyThatWasTooHighPays) {
  const std::string tooHigh = kOptions + TypeInto("txtPenaltyValue", "-20001") + kOk + kAnswer;
  EXPECT_EQ(Asked(tooHigh + Read("txtPenaltyValue") + kOk), "\"-20000\"");
  EXPECT_EQ(Game().PenaltyValue, 20000);
  EXPECT_EQ(Asked(tooHigh + kCancel + kOptions + Read("txtPenaltyValue") + kCancel), "\"--20000\"");
  EXPECT_EQ(Game().PenaltyValue, -20000);
  driver.Do(kPlayTreyshift + Lay(1));
  Game().board.UpCards[modTreyshift::kInPlay].clear();
  driver.common().TimeBonus = 0;
  EXPECT_TRUE(Contains(TreyshiftStory(driver.Trace(kTakeTreyshift)),
                       "\"Removing left over cards\", \"--20000\", 1000, Click, 500"));
  EXPECT_EQ(driver.common().CurrentScore, 15000 + 20000);
}

TEST_F(TreyshiftCustom, ValuesStandInTheRulesAndSomeAreKept) {
  driver.Do(kOptions + TypeInto("txtTripValue", "6001") + TypeInto("txtRunValue", "1302") +
            TypeInto("txtDeckValue", "15003") + TypeInto("txtFlushValue", "5004") +
            TypeInto("txtPenaltyValue", "-1205") + TypeInto("txtTimeBonus", "1206") + kOk);
  const std::string rules = nlohmann::json::parse(
      Asked("click frmTreyshift.mnuRules\nget frmRules.lblRules.Text\nclick frmRules.cmdOK\n"));
  EXPECT_TRUE(
      rules.starts_with("\r\n" + std::string(31, ' ') + "Treyshift! Rules, Notes and Strategy\r\n\r\nReq"));
  for (const char* part :
       {"each lasting 120 seconds. If you earn more than 100,000 points",
        "awarded 6001 points while each  Run awards 1302 points. If", "an additional 5004 points. All",
        "a bonus of 15003 points at", "playing field, -1205 will be deducted",
        "awarded 1206 points for each unused", "pay off! \r\n\r\nGood luck and have fun!"})
    EXPECT_TRUE(Contains(rules, part)) << part;
  driver.Do("close frmTreyshift\nanswer \"Yes\"\n" + kOpenTreyshift);
  EXPECT_TRUE(Contains(folder.Read("Treyshift.Ini"), "[Trips Score]\r\n6001\r\n"));
  EXPECT_TRUE(Game().TripValue == 6000 && Game().DeckValue == 15000 && Game().PenaltyValue == 250);
  EXPECT_TRUE(Game().RunValue == 1302 && Game().FlushValue == 5004 && driver.common().TimeBonus == 1206);
}

}  // namespace
