// Customised scoring of Fivestack, and what the rules say of it.
#include <gtest/gtest.h>

#include "tests/fivestack_table.h"

namespace {

const std::string kDialog = "frmFivestackCustomScoring.", kOptions = "click frmFivestack.mnuCustom\n";
const std::string kOk = "click " + kDialog + "cmdOK\n", kCancel = "click " + kDialog + "cmdCancel\n";
const std::string kAnswer = "answer \"OK\"\n";
const char* const kBoxes[] = {"txtBonus", "txtTimeBonusMax", "txtTimeBonusMin", "txtWaitPeriod",
                              "txtNumberOfCardsToPass"};
const std::string kGetBoxes = [] {
  std::string commands;
  for (const char* box : kBoxes) commands += "get " + kDialog + box + ".Text\n";
  return commands;
}();

const char kMaxMin[] =
    "Sorry, the maximum time bonus value must be greater than the minimum time bonus value.";
const char kMinMax[] = "Sorry, the minimum time bonus value must be less than the maximum time bonus value.";
const char kMinNone[] = "Sorry, the minimum time bonus value must be greater than 0.";

class FivestackCustom : public ::testing::Test {
 protected:
  FivestackCustom() { driver.Do(kOpenFivestack); }
  frmFivestack& Game() { return FivestackOf(driver); }
  std::string Panel1() { return driver.Text("frmFivestack.StatusBar1.Panels(1).Text"); }
  // Opens the dialog, types a text into each box ("-" leaves one alone), presses OK and puts away what is
  // told; then `more`, and Cancel if the dialog is still there.
  struct Outcome {
    std::string told;  // by message boxes
    std::string
        boxes;  // what stands in them afterwards, from top to bottom; nothing if the dialog has closed
  };
  Outcome Ok(const std::vector<std::string>& texts, const std::string& more = "") {
    std::string commands = kOptions;
    for (size_t i = 0; i < texts.size(); ++i)
      if (texts[i] != "-") commands += "type " + kDialog + kBoxes[i] + " \"" + texts[i] + "\"\n";
    commands += kOk;
    for (int i = 0; i < 5; ++i) commands += kAnswer;
    const std::string said = driver.Do(commands + kGetBoxes + more + kCancel);
    for (const std::string& box : LinesOf(said, "* msgbox "))
      EXPECT_TRUE(Contains(box, R"("title":"Fivestack!","icon":"information","buttons":["OK"])"));
    return {Joined(BoxesOf(said)), Unquoted(said)};
  }
  // What the `get` commands among these answer.
  std::string Asked(const std::string& commands) { return Unquoted(driver.Do(commands)); }
  static std::string Unquoted(const std::string& said) {
    std::vector<std::string> values;
    for (const std::string& value : LinesOf(said, "ok "))
      values.push_back(value[0] == '"' ? nlohmann::json::parse(value).get<std::string>() : value);
    return Joined(values);
  }
  // "200000 300 100 2000 1": the five settings, and the passes left where they differ.
  std::string Settings() {
    std::string all;
    for (const long long value :
         {static_cast<long long>(Game().BonusScore), static_cast<long long>(Game().TimeBonusMax),
          static_cast<long long>(Game().TimeBonusMin), static_cast<long long>(Game().WaitPeriod),
          static_cast<long long>(Game().CardsToPass)})
      all += (all.empty() ? "" : " ") + std::to_string(value);
    if (Game().PassesLeft != Game().CardsToPass) all += " left " + std::to_string(Game().PassesLeft);
    return all;
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(FivestackCustom, ShowsWhatIsInForce) {
  driver.Do("resize frmFivestack 12000 9000");
  const std::pair<const char*, const char*> texts[] = {
      {"Caption", "Fivestack! User Options"},
      {"frmCustomScoring.Caption", "Apptitle Scoring options"},
      {"lblBonus.Caption", "Score required for Bonus:"},
      {"lblTimeBonusMax.Caption", "Maximum Time Bonus value:"},
      {"lblTimeBonusMin.Caption", "Minimum Time Bonus value:"},
      {"lblWaitPeriod.Caption", "Seconds to wait between Rounds (0 - 10):"},
      {"lblNumberOfCardsToPass.Caption", "Number of cards user may pass (0 - 10):"},
      {"chkCountScore.Caption", "Count down &when taking score"},
      {"chkCountScore.Value", "1"},
      {"lblInfo.Caption",
       "Note: Changing any of the Scoring Options or the number of cards a user may pass will cause "
       "your high scores to be marked with an * indicating custom scoring was in use."}};
  std::string gets, expected;
  for (const auto& [name, text] : texts) {
    gets += "get " + kDialog + name + "\n";
    expected += text + std::string("|");
  }
  const std::string escape = "key frmFivestackCustomScoring \"Escape\"\n";
  EXPECT_EQ(Asked(kOptions + gets + kGetBoxes + escape), expected + "200000|300|100|2|1");
  EXPECT_FALSE(driver.platform().FindForm("frmFivestackCustomScoring"));
  // The boxes stand in this order, and the dialog in the middle of the window.
  driver.meanwhile = [&] {
    const Form& dialog = *driver.platform().ModalForm();
    int above = 0;
    for (const char* box : kBoxes) {
      const int top = static_cast<Visual&>(*dialog.find(box)).Top;
      EXPECT_GT(top, above);
      above = top;
    }
    EXPECT_EQ(dialog.Left, Game().Left + (12000 - dialog.Width) / 2);
    EXPECT_EQ(dialog.Top, Game().Top + (9000 - dialog.Height) / 2);
  };
  driver.Do(kOptions + "@\n" + escape);
}

TEST_F(FivestackCustom, EachFieldHasItsBoundsAndWords) {
  const struct {
    std::vector<std::string> typed;
    std::string told, boxes, settings;  // afterwards; no boxes if the dialog has closed
  } cases[] = {
      {{"0", "10000", "9999", "30", "10"}, "", "", "0 10000 9999 30000 10"},
      {{"2147483647", "2", "1", "0", "0"}, "", "", "2147483647 2 1 0 0"},
      {{"12abc", "300.5", "99.5", "2.5", "2.5"}, "", "", "12 300 100 2500 2"},
      {{"-", "-", "-", "-", "-1"},
       "Sorry, you cannot pass fewer than 0 cards.",
       "200000|300|100|2|0",
       "200000 300 100 2000 1 left 0"},
      {{"-", "-", "-", "-", "11"},
       "Sorry, you cannot pass more than 10 cards.",
       "200000|300|100|2|10",
       "200000 300 100 2000 1 left 10"},
      {{"-", "-", "-", "-0.5", "-"},
       "Sorry, a minimum of 0 seconds is required for the waiting period between rounds.",
       "200000|300|100|0|1",
       "200000 300 100 0 1"},
      {{"-", "-", "-", "31", "-"},
       "Sorry, a maximum of 30 seconds is allowed for the waiting period between rounds.",
       "200000|300|100|30|1",
       "200000 300 100 30000 1"},
      {{"-1", "-", "-", "-", "-"},
       "Sorry, a minimum of 0 is required for the bonus round score.",
       "0|300|100|2|1",
       "0 300 100 2000 1"},
      {{"2147483648", "-", "-", "-", "-"},
       "Sorry, the maximum value for achieving a bonus round is 2147483647.",
       "2147483647|300|100|2|1",
       "2147483647 300 100 2000 1"},
      // The second look at the two bonuses reads the text that the first has put right.
      {{"-", "100", "100", "-", "-"}, kMaxMin, "200000|101|100|2|1", "200000 300 100 2000 1"},
      {{"-", "50", "99.5", "-", "-"}, kMaxMin, "200000|100.5|99.5|2|1", "200000 300 100 2000 1"},
      {{"-", "-1", "-2", "-", "-"},
       std::string("Sorry, the maximum time bonus value must be greater than 0.|") + kMinNone,
       "200000|0|0|2|1",
       "200000 300 100 2000 1"},
      {{"-", "10001", "-", "-", "-"},
       "Sorry, the maximum time bonus value must not exceed 10000.",
       "200000|10000|100|2|1",
       "200000 300 100 2000 1"},
      {{"-", "20000", "15000", "-", "-"},
       std::string("Sorry, the maximum time bonus value must not exceed 10000.|") + kMinMax,
       "200000|10000|9999|2|1",
       "200000 300 100 2000 1"},
      {{"-", "-", "15000", "-", "-"},
       std::string(kMaxMin) + "|Sorry, the minimum time bonus value must not exceed 10000.",
       "200000|15001|10000|2|1",
       "200000 300 100 2000 1"},
      {{"-", "-", "", "-", "-"}, kMinNone, "200000|300|0|2|1", "200000 300 100 2000 1"},
      {{"-", "-", "no number", "-", "-"}, kMinNone, "200000|300|0|2|1", "200000 300 100 2000 1"},
      {{"-1", "1", "0", "40", "99"},
       std::string(
           "Sorry, you cannot pass more than 10 cards.|Sorry, a maximum of 30 seconds is allowed for the waiting "
           "period between rounds.|Sorry, a minimum of 0 is required for the bonus round score.|") +
           kMinNone,
       "0|1|0|30|10",
       "0 1 100 30000 1 left 10"},
      // A maximum beyond all bounds is written as such numbers are, and read as 1.
      {{"-", "-", "999999999999999999999", "-", "-"},
       std::string(kMaxMin) + "|" + kMinMax,
       "200000|1e+21|0|2|1",
       "200000 300 100 2000 1"},
  };
  for (const auto& each : cases) {
    const std::string typed = Joined(each.typed);
    const Outcome outcome = Ok(each.typed);
    EXPECT_EQ(outcome.told, each.told) << typed;
    EXPECT_EQ(outcome.boxes, each.boxes) << typed;
    EXPECT_EQ(Settings(), each.settings) << typed;
    driver.Do(kOptions + "click " + kDialog + "cmdDefault\n" + kOk);
    EXPECT_EQ(Settings(), "200000 300 100 2000 1") << typed;
    EXPECT_FALSE(driver.common().CustomScoringInUse) << typed;
  }
}

TEST_F(FivestackCustom, AFailedOkKeepsWhatItTook) {
  // The rest is done whatever the fields were.
  const std::string again = "click " + kDialog + "chkCountScore\n" + kOk + kAnswer;
  EXPECT_EQ(Ok({"5000", "400", "0", "-", "-"}, again).told, kMinNone + std::string("|") + kMinNone);
  EXPECT_EQ(Panel1(), "Make 5,000 for bonus round.  ");
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  EXPECT_FALSE(driver.common().CountDownScore);
  EXPECT_FLOAT_EQ(Game().TimeBonusDecay(), 5);
  EXPECT_EQ(Settings(), "5000 400 100 2000 1");
}

TEST_F(FivestackCustom, DefaultChangesNothingBeforeOk) {
  Ok({"1", "400", "-", "2.5", "3"});
  EXPECT_EQ(Asked(kOptions + kGetBoxes + "click " + kDialog + "chkCountScore\nclick " + kDialog +
                  "cmdDefault\n" + kGetBoxes + "get " + kDialog + "chkCountScore.Value\n" + kCancel),
            "1|400|100|2.5|3|200000|300|100|2|1|1");
  EXPECT_EQ(Settings(), "1 400 100 2500 3");
}

// A refused number of passes marks the table, and is forgotten by the next game.
TEST_F(FivestackCustom, RefusedPassesHoldUntilPlay) {
  Ok({"-", "-", "-", "-", "99"});
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  driver.Do(kPlayFivestack);
  EXPECT_EQ(Game().PassesLeft, 1);
  driver.Do(kPlayFivestack + "answer \"Yes\"");
  Ok({"-", "-", "-", "-", "0"});
  EXPECT_EQ(driver.Get("frmFivestack.cmdPass.Enabled"), false);
  driver.Do(kPlayFivestack);
  EXPECT_EQ(driver.Get("frmFivestack.cmdPass.Enabled"), false);
}

TEST_F(FivestackCustom, ValuesAreKeptMarkTheTableAndStandInTheRules) {
  Ok({"1000", "1000", "500", "0", "5"});
  const std::string rules = nlohmann::json::parse(Joined(
      LinesOf(driver.Do("click frmFivestack.mnu45\nclick frmFivestack.mnuRules\nget frmRules.lblRules.Text\n"
                        "click frmRules.cmdOK\n"),
              "ok ")));
  EXPECT_TRUE(
      rules.starts_with("\r\n" + std::string(33, ' ') + "Fivestack! Rules, Notes and Strategy\r\n\r\nReq"));
  for (const char* part : {"each lasting 45 seconds. If you earn more than 1,000 points",
                           "begins at 1000. It decreases by 11 for each", "Time Bonus is worth 500.",
                           "allowed to pass 5 card(s) per round.\r\n\r\nGood luck and have fun!",
                           "right side of the Fivestack! window"})
    EXPECT_TRUE(Contains(rules, part)) << part;
  driver.Do(LayRound(CardsFor(104)) + kPlayFivestack + "advance 1000\n" + PlayRound(104) + kGiveUp + kGiveUp +
            kGiveUp + kGiveUp + kEnterName);
  EXPECT_EQ(folder.Read("HiScores45.Txt").substr(0, 14), "Ann*, 494500\r\n");
  driver.Do("close frmFivestack\nanswer \"Yes\"\n" + kOpenFivestack);
  EXPECT_EQ(Settings(), "1000 1000 500 0 5");
  EXPECT_TRUE(driver.common().CustomScoringInUse);
}

}  // namespace
