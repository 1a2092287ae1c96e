// Customised scoring of Handgrid, and what the rules say of it.
#include <gtest/gtest.h>

#include "tests/handgrid_table.h"
#include "window/text.h"

namespace {

const std::string kOptions = "click frmHandgrid.mnuCustom\n", kDialog = "frmHandgridCustom.";
const std::string kOk = "click frmHandgridCustom.cmdOK\n", kCancel = "click frmHandgridCustom.cmdCancel\n";
const std::string kAnswer = "answer \"OK\"\n", kTick = "click frmHandgridCustom.chkCountDown\n",
                  kDefault = "click frmHandgridCustom.cmdDefault\n";

std::string TypeInto(const std::string& box, const std::string& text) {
  return "type frmHandgridCustom." + box + " \"" + text + "\"\n";
}

class HandgridCustom : public ::testing::Test {
 protected:
  HandgridCustom() { driver.Do(kOpenHandgrid); }
  frmHandgrid& Game() { return HandgridOf(driver); }
  std::string Asked(const std::string& commands) { return Joined(LinesOf(driver.Do(commands), "ok ")); }
  std::string Panel1() { return driver.Text("frmHandgrid.StatusBar1.Panels(1).Text"); }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(HandgridCustom, EachFieldHasItsBoundsAndWords) {
  frmHandgrid& game = Game();
  modHandgrid::HandScores& scores = game.Scores;
  const struct {
    const char *name, *caption;
    std::variant<Integer*, Long*> setting;
    long long standard, highest, putBack;
  } fields[] = {
      {"PairScore", "Pair Score Value:", &scores.PairScore, 50, 50000, 6000},
      {"2PairScore", "2 Pair Score Value:", &scores.TwoPairScore, 70, 50000, 7000},
      {"3ofakindScore", "3 of a Kind Score Value:", &scores.TripsScore, 80, 50000, 8000},
      {"StraightScore", "Straight Score Value:", &scores.StraightScore, 90, 50000, 9000},
      {"FlushScore", "Flush Score Value:", &scores.FlushScore, 100, 50000, 10000},
      {"FullHouseScore", "Full House Score Value:", &scores.FullHouseScore, 200, 50000, 20000},
      {"4ofakindScore", "4 of a Kind Score Value:", &scores.FourScore, 300, 50000, 30000},
      {"StFlushScore", "Straight Flush Score Value:", &scores.StraightFlushScore, 400, 50000, 40000},
      {"RoyalFlushScore", "Royal Flush Score Value:", &scores.RoyalFlushScore, 500, 100000, 50000},
      {"BonusScore", "Score required for bonus round:", &game.BonusScore, 100000, 1000000, 100000},
      {"OverWrites", "Number of overwrites allowed", &game.OverWritesAllowed, 3, 26, 1},
      {"TimeBonus", "Time Bonus (per second multipler)", &game.common.TimeBonus, 1, 10, 1},
  };
  for (const auto& field : fields) {
    const std::string name = field.name, box = "txt" + name, read = "get " + kDialog + box + ".Text\n";
    const auto setting = [&] {
      return std::visit([](auto* number) { return static_cast<long long>(*number); }, field.setting);
    };
    EXPECT_EQ(Asked(kOptions + read + "get " + kDialog + "lbl" + name + ".Caption\n" + kCancel),
              "\"" + std::to_string(field.standard) + "\"|\"" + field.caption + "\"");
    const std::string told = name == "TimeBonus" ? "Time Bonus value" : field.caption;
    for (const std::string& typed : {std::to_string(field.highest + 1), std::string("-0.4")}) {
      const std::string answers =
          driver.Do(kOptions + kDefault + TypeInto(box, typed) + kOk + kAnswer + read + kCancel);
      EXPECT_EQ(Joined(BoxesOf(answers)),
                "Sorry, the " + told + " must be between 0 and " + FormatNumber(field.highest) + " points.");
      EXPECT_EQ(Joined(LinesOf(answers, "ok ")), "\"" + std::to_string(field.putBack) + "\"");
      EXPECT_EQ(setting(), field.putBack) << typed;  // stays, although the player cancelled
    }
    const auto highest = std::pair(std::to_string(field.highest), field.highest);
    for (const auto& [typed, taken] : {highest, {"7abc", 7}, {"", 0}, {"0.5", 0}, {"2.5", 2}}) {
      EXPECT_FALSE(Contains(driver.Do(kOptions + TypeInto(box, typed) + kOk), "msgbox")) << typed;
      EXPECT_EQ(setting(), taken) << typed;
    }
    driver.Do(kOptions + kDefault + kOk);
    EXPECT_EQ(setting(), field.standard);
  }
}

TEST_F(HandgridCustom, EveryFieldIsLookedAtAndTheLastDecidesTheRest) {
  // The last field fails: neither the switch nor what is customised is looked at.
  std::string told =
      driver.Do(kOptions + TypeInto("txtPairScore", "50001") + TypeInto("txtBonusScore", "1000001") +
                TypeInto("txtTimeBonus", "11") + kTick + kOk + kAnswer + kAnswer + kAnswer + kCancel);
  EXPECT_EQ(BoxesOf(told).size(), 3u);
  EXPECT_EQ(Game().Scores.PairScore, 6000);
  EXPECT_TRUE(driver.common().CountDownScore);
  EXPECT_FALSE(driver.common().CustomScoringInUse);
  EXPECT_EQ(Panel1(), "Welcome to Handgrid!  ");
  // A bonus score that passes is told at once, whatever fails behind it.
  driver.Do(kOptions + TypeInto("txtBonusScore", "12345") + TypeInto("txtTimeBonus", "11") + kOk + kAnswer +
            kCancel);
  EXPECT_EQ(Panel1(), "Make 12,345 for bonus round.  ");
  EXPECT_FALSE(driver.common().CustomScoringInUse);
  // One that fails isn't, and the rest is taken all the same.
  driver.Do(kOptions + TypeInto("txtBonusScore", "-1") + kTick + kOk + kAnswer + kCancel);
  EXPECT_EQ(Panel1(), "Make 12,345 for bonus round.  ");
  EXPECT_EQ(Game().BonusScore, 100000);
  EXPECT_FALSE(driver.common().CountDownScore);
  EXPECT_TRUE(driver.common().CustomScoringInUse);
}

TEST_F(HandgridCustom, ValuesStandInTheRulesAndArePaid) {
  driver.Do(kOptions + TypeInto("txtPairScore", "12345") + TypeInto("txtBonusScore", "54321") +
            TypeInto("txtOverWrites", "26") + kOk + "click frmHandgrid.mnu120\n");
  const std::string rules = nlohmann::json::parse(
      Asked("click frmHandgrid.mnuRules\nget frmRules.lblRules.Text\nclick frmRules.cmdOK\n"));
  for (const char* part :
       {"three rounds, each lasting 120 seconds. If you earn more than 54,321 points",
        "overwrite 26 cards per round.",
        "following table:\r\n\r\n   One Pair = 12345\r\n   Two Pair = 70\r\n   Three of a kind = 80\r\n"
        "   Straight = 90\r\n   Flush = 100\r\n   Full House = 200\r\n   Four of a kind = 300\r\n"
        "   Straight Flush = 400\r\n   Royal Flush = 500\r\nAt the end of each round",
        "remaing in the round."})
    EXPECT_TRUE(Contains(rules, part)) << part;
  driver.Do(FirstDeck({"7S", "7C"}) + kPlayHandgrid + ClickCells(0, 1));
  EXPECT_EQ(driver.Text("frmHandgrid.lblPointsEarned.Caption"), "Points Earned: 12345");
}

}  // namespace
