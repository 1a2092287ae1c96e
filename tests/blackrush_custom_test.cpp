// Customised scoring of Blackrush, and what the rules say of it.
#include <gtest/gtest.h>

#include <map>

#include "tests/blackrush_table.h"

namespace {

const std::string kOptions = "click frmBlackrush.mnuUserOptions\n", kDialog = "frmBlackrushCustomScoring.";
const std::string kOk = "click " + kDialog + "cmdOK\n", kCancel = "click " + kDialog + "cmdCancel\n";
const std::string kAnswer = "answer \"OK\"\n";

std::string TypeInto(const std::string& box, const std::string& text) {
  return "type " + kDialog + box + " \"" + text + "\"\n";
}
std::string Read(const std::string& property) { return "get " + kDialog + property + "\n"; }

class BlackrushCustom : public ::testing::Test {
 protected:
  BlackrushCustom() { driver.Do(kOpenBlackrush); }
  frmBlackrush& Game() { return BlackrushOf(driver); }
  // What the `get` commands among these answer.
  std::string Asked(const std::string& commands) { return Joined(LinesOf(driver.Do(commands), "ok ")); }
  std::string Panel1() { return driver.Text("frmBlackrush.StatusBar1.Panels(1).Text"); }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(BlackrushCustom, EachFieldHasItsBoundsAndWords) {
  const struct {
    std::string box;
    std::function<long long()> setting;
    long long standard, highest;
    const char *low, *high;
  } fields[] = {
      {"txtBonus", [&] { return Game().BonusScore; }, 250000, 2147483647,
       "Sorry, a minimum of 0 is required for the bonus round score.",
       "Sorry, the maximum value for achieving a bonus round is 2147483647."},
      {"txt21BonusValue", [&] { return Game().TwentyOneBonusValue; }, 1000, 5000,
       "Sorry, a minimum of 0 is required for the Twenty One bonus score.",
       "Sorry, the maximum value for the Twenty One bonus score is 5000."},
      {"txtCardsUsedBonus", [&] { return Game().CardsUsedBonusValue; }, 100, 5000,
       "Sorry, a minimum of 0 is required for the Cards Used bonus score.",
       "Sorry, the maximum value for the Cards Used bonus score is 5000."},
      {"txtDeckCompletionBonus", [&] { return Game().DeckCompletionBonus; }, 100000, 1000000,
       "Sorry, a minimum of 0 is required for the Deck Completion Bonus.",
       "Sorry, the maximum value for the Deck Completion Bonus is 1000000."},
      {"txtFiveCardGimmeBonus", [&] { return Game().FiveCardGimmeBonus; }, 750, 50000,
       "Sorry, a minimum of 0 is required for the Five Cards Gimme Bonus.",
       "Sorry, the maximum value for the Five Cards Gimme Bonus is 50000."},
      {"txtNumberOfCardsToPass", [&] { return Game().CardsToPass; }, 3, 10,
       "Sorry, you cannot pass fewer than 0 cards.", "Sorry, you cannot pass more than 10 cards."},
  };
  for (const auto& field : fields) {
    // Passes that were refused leave the number for the next games as it was.
    const bool passes = field.box == "txtNumberOfCardsToPass";
    const std::string read = Read(field.box + ".Text");
    const auto fails = [&](long long typed, const char* words, long long put, long long taken) {
      const std::string told = driver.Do(kOptions + read + TypeInto(field.box, std::to_string(typed)) + kOk +
                                         kAnswer + read + kCancel);
      EXPECT_EQ(Joined(BoxesOf(told)), words);
      EXPECT_TRUE(Contains(told, R"("title":"Blackrush!","icon":"information")"));
      EXPECT_EQ(LinesOf(told, "ok ").back(), "\"" + std::to_string(put) + "\"");
      EXPECT_EQ(field.setting(), passes ? field.standard : taken) << field.box;
    };
    EXPECT_EQ(Asked(kOptions + read + kCancel), "\"" + std::to_string(field.standard) + "\"");
    fails(field.highest + 1, field.high, field.highest, field.highest);
    if (field.box != "txt21BonusValue") fails(-1, field.low, 0, 0);
    for (const auto& [typed, taken] : std::map<std::string, long long>{
             {std::to_string(field.highest), field.highest}, {"7abc", 7}, {"no number", 0}, {"2.5", 2}}) {
      EXPECT_FALSE(Contains(driver.Do(kOptions + TypeInto(field.box, typed) + kOk), "msgbox")) << typed;
      EXPECT_EQ(field.setting(), taken) << typed;
    }
  }
}

TEST_F(BlackrushCustom, ALongWaitOverflows) {
  const struct {
    const char *typed, *box, *left;
    int wait, cardsUsed;
  } waits[] = {{"32.767", "", "", 32767, 200},
               {"33", "Overflow", "33", 2000, 100},
               {"61", "Overflow", "61", 2000, 100},
               {"-1", "Sorry, a minimum of 0 seconds is required for the waiting period between rounds.", "0",
                0, 200}};
  for (const auto& each : waits) {
    const std::string rest = *each.box ? kAnswer + Read("txtWaitPeriod.Text") + kCancel : "";
    const std::string told =
        driver.Do(kOptions + TypeInto("txtNumberOfCardsToPass", "5") + TypeInto("txtWaitPeriod", each.typed) +
                  TypeInto("txtCardsUsedBonus", "200") + kOk + rest);
    EXPECT_EQ(Joined(BoxesOf(told)), each.box) << each.typed;
    EXPECT_EQ(Contains(told, "exclamation"), std::string(each.box) == "Overflow") << told;
    EXPECT_TRUE(rest.empty() || Contains(told, std::string("ok \"") + each.left + "\"")) << told;
    EXPECT_EQ(Game().WaitPeriod, each.wait) << each.typed;
    EXPECT_EQ(Game().CardsToPass, 5) << "what came before was taken";
    EXPECT_EQ(Game().CardsUsedBonusValue, each.cardsUsed) << "and nothing after it";
    driver.Do(kOptions + "click " + kDialog + "cmdDefault\n" + kOk);
  }
}

TEST_F(BlackrushCustom, ABonusBelowNothingIsPutRightInAnotherField) {
  const std::string told = driver.Do(kOptions + TypeInto("txt21BonusValue", "-1") + kOk + kAnswer +
                                     Read("txt21BonusValue.Text") + Read("txtBonus.Text") + kCancel);
  EXPECT_EQ(Joined(BoxesOf(told)), "Sorry, a minimum of 0 is required for the Twenty One bonus score.");
  EXPECT_EQ(Joined(LinesOf(told, "ok ")), "\"-1\"|\"0\"");
  EXPECT_EQ(Game().TwentyOneBonusValue, 0);
  EXPECT_EQ(Game().BonusScore, 0);
  EXPECT_EQ(Panel1(), "Make 0 for bonus round.  ");
}

TEST_F(BlackrushCustom, TheCounterHasThreeSpeeds) {
  const auto options = [&] {
    return Read("optDefault.Value") + Read("optSlow.Value") + Read("optSlowest.Value");
  };
  const struct {
    const char *option, *shown;
    int interval;
  } speeds[] = {{"optSlow", "true|false|false", 180},
                {"optSlowest", "false|true|false", 360},
                {"optDefault", "false|false|true", 90}};
  for (const auto& speed : speeds) {
    EXPECT_EQ(Asked(kOptions + options() + "click " + kDialog + speed.option + "\n" + kOk), speed.shown);
    EXPECT_EQ(driver.Get("frmBlackrush.Timer3.Interval"), speed.interval);
    EXPECT_EQ(driver.common().CustomScoringInUse, speed.interval != 90);
  }
  // The speed is taken before all fields; Default shows, and takes nothing.
  driver.Do(kOptions + "click " + kDialog + "optSlow\n" + TypeInto("txtWaitPeriod", "45") + kOk + kAnswer +
            kCancel);
  EXPECT_EQ(driver.Get("frmBlackrush.Timer3.Interval"), 180);
  EXPECT_EQ(Asked(kOptions + "click " + kDialog + "chkCountScore\nclick " + kDialog + "cmdDefault\n" +
                  options() + Read("chkCountScore.Value") + "key frmBlackrushCustomScoring \"Escape\"\n"),
            "true|false|false|1");
  EXPECT_EQ(Game().CounterSpeed, 180);
}

TEST_F(BlackrushCustom, TheDialogReadsAsItShould) {
  EXPECT_EQ(Asked(kOptions + "get frmBlackrushCustomScoring.Caption\n" + Read("frmCustomScoring.Caption") +
                  Read("chkCountScore.Caption") + Read("lblCounterSpeed.Caption") +
                  Read("optSlowest.Caption") + Read("txtWaitPeriod.Text")),
            "\"Blackrush! User Options\"|\"Apptitle Scoring options\"|\"Count down &when taking score\"|"
            "\"21 Counter Speed:\"|\"&Any slower and it would be going backwards\"|\"2\"");
  std::string asked;
  for (const char* form : {"frmBlackrushCustomScoring", "frmBlackrush"})
    for (const char* property : {".Left", ".Width", ".Top", ".Height"})
      asked += std::string("get ") + form + property + "\n";
  std::vector<int> places;
  for (const std::string& place : LinesOf(driver.Do(kOptions + asked + kCancel), "ok "))
    places.push_back(std::stoi(place));
  ASSERT_EQ(places.size(), 8u);
  for (const int at : {0, 2})  // over the middle of the game's window
    EXPECT_EQ(places[at] + places[at + 1] / 2, places[at + 4] + places[at + 5] / 2);
  // A failed OK takes the rest all the same.
  driver.Do(kOptions + "click " + kDialog + "chkCountScore\n" + TypeInto("txtBonus", "-5") + kOk + kAnswer +
            kCancel);
  EXPECT_FALSE(driver.common().CountDownScore);
}

TEST_F(BlackrushCustom, TheRulesTellTheValues) {
  driver.Do(kOptions + TypeInto("txt21BonusValue", "1234") + TypeInto("txtFiveCardGimmeBonus", "4321") +
            TypeInto("txtCardsUsedBonus", "1001") + kOk + "click frmBlackrush.mnu120\n");
  const std::string rules = nlohmann::json::parse(
      Asked("click frmBlackrush.mnuRules\nget frmRules.lblRules.Text\nclick frmRules.cmdOK\n"));
  EXPECT_TRUE(
      rules.starts_with("\r\n" + std::string(33, ' ') + "Blackrush! Rules, Notes and Strategy\r\n\r\nReq"));
  for (const char* part : {"each lasting 120 seconds. If you earn more than 250,000 points",
                           "increases by 1,234 each time", "your 21 Bonus Value is reset to 1,234.\r\n\r\n",
                           "reduced by 100 points. \r\n\r\n", "awarded 4,321 points. ",
                           "additional 100,000 points. ", "awarded 1,001 points for each card you used",
                           "\r\n\r\n you may modify all", "\r\n\r\nGood luck and have fun!"})
    EXPECT_TRUE(Contains(rules, part)) << part;
}

}  // namespace
