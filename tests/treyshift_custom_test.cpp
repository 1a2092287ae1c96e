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
    const char *box, *label;
    std::function<long long(frmTreyshift&)> setting;
    long long standard, lowest, highest;
    const char *low, *high;
  } fields[] = {
      {"txtTripValue", "Three of a kind bonus:", [](frmTreyshift& game) { return game.TripValue; }, 6000, 0,
       20000, "Sorry, the minimum value for a Triple is 0.",
       "Sorry, the maximum value for a Triple is 20000"},
      {"txtRunValue", "Run Bonus:", [](frmTreyshift& game) { return game.RunValue; }, 300, 0, 20000,
       "Sorry, the minimum value for a Run is 0.", "Sorry, the maximum value for a Run is 20000"},
      {"txtDeckValue", "Deck Completion Bonus:", [](frmTreyshift& game) { return game.DeckValue; }, 15000, 0,
       100000, "Sorry, the minimum value for for completing the Deck is 0.",
       "Sorry, the maximum value for completing the Deck is 100000"},
      {"txtFlushValue", "Flush Bonus:", [](frmTreyshift& game) { return game.FlushValue; }, 5000, 0, 20000,
       "Sorry, the minimum value for the Flush Bonus is 0.",
       "Sorry, the maximum value for the Flush Bonus is 20000"},
      {"txtBonusRound", "Score Required for Bonus Round:", [](frmTreyshift& game) { return game.BonusScore; },
       100000, 0, 1000000, "Sorry, the minimum value for obtaining the Bonus Round is 0.",
       "Sorry, the maximum value for obtaining the Bonus Round is 1000000"},
      {"txtPenaltyValue",
       "Penalty for left-over cards:", [](frmTreyshift& game) { return game.PenaltyValue; }, -250, -20000, 0,
       "Sorry, the minimum penalty for left over cards is -20000",
       "Sorry, the maximum penalty for left over cards is 0."},
      {"txtTimeBonus", "Time Bonus (points per second)",
       [](frmTreyshift& game) { return game.common.TimeBonus; }, 200, 0, 5000,
       "Sorry, you cannot set the Time Bonus value to less than 0 points.",
       "Sorry, you cannot set the Time Bonus value to greater than 5000 points"},
  };
  for (const auto& field : fields) {
    const bool isPenalty = field.highest == 0;
    const std::string name = std::string(field.box).substr(3);
    const auto shown = [](long long number) { return "\"" + std::to_string(number) + "\""; };
    const auto fails = [&](const std::string& typed) {
      return driver.Do(kOptions + Read(field.box) + TypeInto(field.box, typed) + kOk + kAnswer +
                       Read(field.box) + kCancel);
    };
    EXPECT_EQ(
        Asked(kOptions + "get frmTreyshiftCustom.lbl" + name + ".Caption\n" + Read(field.box) + kCancel),
        "\"" + std::string(field.label) + "\"|" + shown(field.standard));

    std::string told = fails(std::to_string(field.highest + 1));
    EXPECT_EQ(Joined(BoxesOf(told)), field.high);
    EXPECT_TRUE(Contains(told, R"("title":"Treyshift!","icon":"information")"));
    EXPECT_TRUE(Joined(LinesOf(told, "ok ")).ends_with("|" + shown(field.highest)));
    EXPECT_EQ(field.setting(Game()), field.highest);
    // The bounds come before the rounding.
    told = fails(std::to_string(field.lowest) + (field.lowest < 0 ? ".25" : ""));
    EXPECT_EQ(BoxesOf(told).size(), field.lowest < 0 ? 1u : 0u);
    told = fails(std::to_string(field.lowest - 1));
    EXPECT_EQ(Joined(BoxesOf(told)), field.low);
    EXPECT_TRUE(Joined(LinesOf(told, "ok ")).ends_with("|" + shown(field.lowest)));
    EXPECT_EQ(field.setting(Game()), field.lowest);

    // What passes closes the dialog; the penalty is kept without its sign.
    const std::string sign = isPenalty ? "-" : "";
    const std::pair<std::string, long long> passing[] = {
        {std::to_string(isPenalty ? field.lowest : field.highest), isPenalty ? 20000 : field.highest},
        {sign + "12abc", 12},
        {"no number", 0},
        {"", 0},
        {sign + "2.5", 2},
        {sign + "3.5", 4}};
    for (const auto& [typed, taken] : passing) {
      EXPECT_FALSE(Contains(driver.Do(kOptions + TypeInto(field.box, typed) + kOk), "msgbox")) << typed;
      EXPECT_EQ(field.setting(Game()), taken) << typed;
    }
    EXPECT_TRUE(driver.common().CustomScoringInUse) << field.box;
    driver.Do(kOptions + "click frmTreyshiftCustom.cmdDefault\n" + kOk);
    EXPECT_EQ(field.setting(Game()), isPenalty ? 250 : field.standard);
    EXPECT_FALSE(driver.common().CustomScoringInUse);
  }
}

TEST_F(TreyshiftCustom, AFailedOkKeepsWhatItTookAndTheLastFieldDecidesTheRest) {
  EXPECT_EQ(Asked(kOptions + "get frmTreyshiftCustom.txtPenaltyValue.ForeColor\n" + kCancel), "255");
  EXPECT_EQ(
      Asked(kOptions + "get frmTreyshiftCustom.Caption\nget frmTreyshiftCustom.frmScoringOptions.Caption\n" +
            kCancel),
      "\"Treyshift! User Options\"|\"AppTitle Scoring Options\"");
  const std::string tick = "click frmTreyshiftCustom.chkCountDown\n";
  std::string told =
      driver.Do(kOptions + TypeInto("txtTripValue", "20001") + TypeInto("txtDeckValue", "-1") +
                TypeInto("txtTimeBonus", "-5") + tick + kOk + kAnswer + kAnswer + kAnswer + kCancel);
  EXPECT_EQ(BoxesOf(told).size(), 3u);
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
  std::string clicks = InOrder(WholeDeck()) + kPlayTreyshift;
  for (int card = 0; card < 51; card += 3) clicks += Lay(0, 3);
  driver.Do(clicks + Lay(1));
  const long long before = driver.common().CurrentScore;
  driver.common().TimeBonus = 0;
  EXPECT_TRUE(Contains(TreyshiftStory(driver.Trace(kTakeTreyshift)),
                       "\"Removing left over cards\", \"--20000\", 1000, Click, 500"));
  EXPECT_EQ(driver.common().CurrentScore - before, 15000 + 20000);
}

TEST_F(TreyshiftCustom, DefaultChangesNothingBeforeOk) {
  EXPECT_EQ(Asked(kOptions + TypeInto("txtPenaltyValue", "-7") + TypeInto("txtRunValue", "7") +
                  "click frmTreyshiftCustom.chkCountDown\nclick frmTreyshiftCustom.cmdDefault\n" +
                  Read("txtPenaltyValue") + "get frmTreyshiftCustom.chkCountDown.Value\n" +
                  "key frmTreyshiftCustom \"Escape\""),
            "\"-250\"|1");
  EXPECT_EQ(Game().RunValue, 300);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
}

TEST_F(TreyshiftCustom, ValuesStandInTheRulesAndSomeAreKept) {
  driver.Do(kOptions + TypeInto("txtTripValue", "6001") + TypeInto("txtRunValue", "1302") +
            TypeInto("txtDeckValue", "15003") + TypeInto("txtFlushValue", "5004") +
            TypeInto("txtPenaltyValue", "-1205") + TypeInto("txtTimeBonus", "1206") + kOk);
  const std::string rules = nlohmann::json::parse(
      Asked("click frmTreyshift.mnuRules\nget frmRules.lblRules.Text\nclick frmRules.cmdOK\n"));
  EXPECT_TRUE(
      rules.starts_with("\r\n" + std::string(31, ' ') +
                        "Treyshift! Rules, Notes and Strategy\r\n\r\nRequirements: To run Treyshift! you "
                        "need Windows 95 or above and a mouse. Recommended: Soundcard.\r\n\r\nAs"));
  for (const char* part :
       {"each lasting 120 seconds. If you earn more than 100,000 points",
        "awarded 6001 points while each  Run awards 1302 points. If", "an additional 5004 points. All",
        "a bonus of 15003 points at", "playing field, -1205 will be deducted",
        "awarded 1206 points for each unused", "pay off! \r\n\r\nGood luck and have fun!"})
    EXPECT_TRUE(Contains(rules, part)) << part;
  EXPECT_TRUE(rules.ends_with("have fun!"));

  driver.Do("close frmTreyshift\nanswer \"Yes\"\n");
  EXPECT_TRUE(Contains(folder.Read("Treyshift.Ini"),
                       "[Trips Score]\r\n6001\r\n\r\n[Runs Score]\r\n1302\r\n\r\n[Flush Score]\r\n5004\r\n"));
  driver.Do(kOpenTreyshift);
  EXPECT_EQ(Game().TripValue, 6000);
  EXPECT_EQ(Game().DeckValue, 15000);
  EXPECT_EQ(Game().PenaltyValue, 250);
  EXPECT_EQ(Game().RunValue, 1302);
  EXPECT_EQ(Game().FlushValue, 5004);
  EXPECT_EQ(driver.common().TimeBonus, 1206);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  driver.Do(kOptions + TypeInto("txtRunValue", "300") + TypeInto("txtFlushValue", "5000") +
            TypeInto("txtTimeBonus", "200") + kOk);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
}

}  // namespace
