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

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(BlackrushCustom, EachFieldHasItsBoundsAndWords) {
  frmBlackrush& game = Game();
  const auto low = [](const std::string& what) {
    return "Sorry, a minimum of 0 is required for the " + what + ".";
  };
  const auto high = [](const std::string& what, const char* most) {
    return "Sorry, the maximum value for " + what + " is " + most + ".";
  };
  const struct {
    std::string box;
    std::variant<Integer*, Long*> setting;
    long long standard, highest;
    std::string low, high;
  } fields[] = {
      {"txtBonus", &game.BonusScore, 250000, 2147483647, low("bonus round score"),
       high("achieving a bonus round", "2147483647")},
      {"txt21BonusValue", &game.TwentyOneBonusValue, 1000, 5000, "",
       high("the Twenty One bonus score", "5000")},
      {"txtCardsUsedBonus", &game.CardsUsedBonusValue, 100, 5000, low("Cards Used bonus score"),
       high("the Cards Used bonus score", "5000")},
      {"txtDeckCompletionBonus", &game.DeckCompletionBonus, 100000, 1000000, low("Deck Completion Bonus"),
       high("the Deck Completion Bonus", "1000000")},
      {"txtFiveCardGimmeBonus", &game.FiveCardGimmeBonus, 750, 50000, low("Five Cards Gimme Bonus"),
       high("the Five Cards Gimme Bonus", "50000")},
      // Passes that were refused leave the number for the next games as it was.
      {"txtNumberOfCardsToPass", &game.CardsToPass, 3, 10, "Sorry, you cannot pass fewer than 0 cards.",
       "Sorry, you cannot pass more than 10 cards."},
  };
  for (const auto& field : fields) {
    const std::string read = Read(field.box + ".Text");
    const auto setting = [&] {
      return std::visit([](auto* number) { return static_cast<long long>(*number); }, field.setting);
    };
    const auto fails = [&](long long typed, const std::string& words, long long put, long long taken) {
      const std::string told = driver.Do(kOptions + read + TypeInto(field.box, std::to_string(typed)) + kOk +
                                         kAnswer + read + kCancel);
      EXPECT_EQ(Joined(BoxesOf(told)), words);
      EXPECT_EQ(LinesOf(told, "ok ").back(), "\"" + std::to_string(put) + "\"");
      EXPECT_EQ(setting(), field.highest == 10 ? field.standard : taken) << field.box;
    };
    EXPECT_EQ(Asked(kOptions + read + kCancel), "\"" + std::to_string(field.standard) + "\"");
    fails(field.highest + 1, field.high, field.highest, field.highest);
    if (!field.low.empty()) fails(-1, field.low, 0, 0);
    for (const auto& [typed, taken] : std::map<std::string, long long>{
             {std::to_string(field.highest), field.highest}, {"7abc", 7}, {"no number", 0}, {"2.5", 2}}) {
      EXPECT_FALSE(Contains(driver.Do(kOptions + TypeInto(field.box, typed) + kOk), "msgbox")) << typed;
      EXPECT_EQ(setting(), taken) << typed;
    }
  }
}

TEST_F(BlackrushCustom, ALongWaitOverflows) {
  const struct {
    const char *typed, *box;
    int wait, cardsUsed;
  } waits[] = {
      {"32.767", "", 32767, 200},
      {"33", "Overflow", 2000, 100},
      {"-1", "Sorry, a minimum of 0 seconds is required for the waiting period between rounds.", 0, 200}};
  for (const auto& each : waits) {
    const std::string rest = *each.box ? kAnswer + kCancel : "";
    const std::string told =
        driver.Do(kOptions + TypeInto("txtNumberOfCardsToPass", "5") + TypeInto("txtWaitPeriod", each.typed) +
                  TypeInto("txtCardsUsedBonus", "200") + kOk + rest);
    EXPECT_EQ(Joined(BoxesOf(told)), each.box) << each.typed;
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
  EXPECT_EQ(driver.Text("frmBlackrush.StatusBar1.Panels(1).Text"), "Make 0 for bonus round.  ");
}

TEST_F(BlackrushCustom, TheCounterHasThreeSpeeds) {
  const std::string options = Read("optDefault.Value") + Read("optSlow.Value") + Read("optSlowest.Value");
  const struct {
    const char *option, *shown;
    int interval;
  } speeds[] = {{"optSlow", "true|false|false", 180},
                {"optSlowest", "false|true|false", 360},
                {"optDefault", "false|false|true", 90}};
  for (const auto& speed : speeds) {
    EXPECT_EQ(Asked(kOptions + options + "click " + kDialog + speed.option + "\n" + kOk), speed.shown);
    EXPECT_EQ(driver.Get("frmBlackrush.Timer3.Interval"), speed.interval);
    EXPECT_EQ(driver.common().CustomScoringInUse, speed.interval != 90);
  }
  // The speed is taken before all fields.
  driver.Do(kOptions + "click " + kDialog + "optSlow\n" + TypeInto("txtWaitPeriod", "45") + kOk + kAnswer +
            kCancel);
  EXPECT_EQ(driver.Get("frmBlackrush.Timer3.Interval"), 180);
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
  for (const char* part : {"each lasting 120 seconds. If you earn more than 250,000 points",
                           "increases by 1,234 each time", "your 21 Bonus Value is reset to 1,234.\r\n\r\n",
                           "reduced by 100 points. \r\n\r\n", "awarded 4,321 points. ",
                           "additional 100,000 points. ", "awarded 1,001 points for each card you used"})
    EXPECT_TRUE(Contains(rules, part)) << part;
}

}  // namespace
