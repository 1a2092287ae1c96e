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

const std::string kPassesLow = "Sorry, you cannot pass fewer than 0 cards.",
                  kPassesHigh = "Sorry, you cannot pass more than 10 cards.",
                  kWaitLow =
                      "Sorry, a minimum of 0 seconds is required for the waiting period between rounds.",
                  kWaitHigh =
                      "Sorry, a maximum of 30 seconds is allowed for the waiting period between rounds.",
                  kBonusLow = "Sorry, a minimum of 0 is required for the bonus round score.",
                  kBonusHigh = "Sorry, the maximum value for achieving a bonus round is 2147483647.",
                  kMax = "Sorry, the maximum time bonus value must ",
                  kMin = "Sorry, the minimum time bonus value must ",
                  kMaxMin = kMax + "be greater than the minimum time bonus value.",
                  kMinMax = kMin + "be less than the maximum time bonus value.",
                  kMaxNone = kMax + "be greater than 0.", kMinNone = kMin + "be greater than 0.",
                  kMaxHigh = kMax + "not exceed 10000.", kMinHigh = kMin + "not exceed 10000.";

class FivestackCustom : public ::testing::Test {
 protected:
  FivestackCustom() { driver.Do(kOpenFivestack); }
  frmFivestack& Game() { return FivestackOf(driver); }
  struct Outcome {
    std::string told, boxes;  // the message boxes; the text boxes from top to bottom, none once it has closed
  };
  // Opens the dialog, types a text into each box ("-" leaves one alone), presses OK and puts away what is
  // told; then `more`, and Cancel if the dialog is still there.
  Outcome Ok(const std::vector<std::string>& texts, const std::string& more = "") {
    std::string commands = kOptions;
    for (size_t i = 0; i < texts.size(); ++i)
      if (texts[i] != "-") commands += "type " + kDialog + kBoxes[i] + " \"" + texts[i] + "\"\n";
    commands += kOk;
    for (int i = 0; i < 5; ++i) commands += kAnswer;
    const std::string said = driver.Do(commands + kGetBoxes + more + kCancel);
    return {Joined(BoxesOf(said)), Unquoted(said)};
  }
  // What the `get` commands among these answer.
  std::string Asked(const std::string& commands) { return Unquoted(driver.Do(commands)); }
  static std::string Unquoted(const std::string& said) {
    std::vector<std::string> values;
    for (const std::string& value : LinesOf(said, "ok ")) values.push_back(nlohmann::json::parse(value));
    return Joined(values);
  }
  // "200000 300 100 2000 1": the five settings, and the passes left where they differ.
  std::string Settings() {
    const frmFivestack& game = Game();
    std::string all = std::to_string(game.BonusScore);
    for (const Integer& value : {game.TimeBonusMax, game.TimeBonusMin, game.WaitPeriod, game.CardsToPass})
      all += " " + std::to_string(value);
    return all + (game.board.passesLeft == game.CardsToPass
                      ? ""
                      : " left " + std::to_string(game.board.passesLeft));
  }

  TestFolder folder;
  Driver driver{folder.Path()};
};

TEST_F(FivestackCustom, EachFieldHasItsBoundsAndWords) {
  const std::string kStandard = "200000 300 100 2000 1";
  const struct {
    std::vector<std::string> typed;
    std::string told, boxes, settings;  // afterwards; no boxes if the dialog has closed
  } cases[] = {
      {{"0", "10000", "9999", "30", "10"}, "", "", "0 10000 9999 30000 10"},
      {{"2147483647", "2", "1", "0", "0"}, "", "", "2147483647 2 1 0 0"},
      {{"12abc", "300.5", "99.5", "2.5", "2.5"}, "", "", "12 300 100 2500 2"},
      {{"-1", "-1", "-2", "-0.5", "-1"},
       kPassesLow + "|" + kWaitLow + "|" + kBonusLow + "|" + kMaxNone + "|" + kMinNone,
       "0|0|0|0|0",
       "0 300 100 0 1 left 0"},
      {{"2147483648", "10001", "-", "31", "11"},
       kPassesHigh + "|" + kWaitHigh + "|" + kBonusHigh + "|" + kMaxHigh,
       "2147483647|10000|100|30|10",
       "2147483647 300 100 30000 1 left 10"},
      // The second look at the two bonuses reads the text that the first has put right.
      {{"-", "100", "100", "-", "-"}, kMaxMin, "200000|101|100|2|1", kStandard},
      {{"-", "50", "99.5", "-", "-"}, kMaxMin, "200000|100.5|99.5|2|1", kStandard},
      {{"-", "20000", "15000", "-", "-"}, kMaxHigh + "|" + kMinMax, "200000|10000|9999|2|1", kStandard},
      {{"-", "-", "15000", "-", "-"}, kMaxMin + "|" + kMinHigh, "200000|15001|10000|2|1", kStandard},
      {{"-", "-", "no number", "-", "-"}, kMinNone, "200000|300|0|2|1", kStandard},
      // A maximum beyond all bounds is written as such numbers are, and read as 1.
      {{"-", "-", "999999999999999999999", "-", "-"},
       kMaxMin + "|" + kMinMax,
       "200000|1e+21|0|2|1",
       kStandard},
  };
  for (const auto& each : cases) {
    const std::string typed = Joined(each.typed);
    const Outcome outcome = Ok(each.typed);
    EXPECT_EQ(outcome.told, each.told) << typed;
    EXPECT_EQ(outcome.boxes, each.boxes) << typed;
    EXPECT_EQ(Settings(), each.settings) << typed;
    driver.Do(kOptions + "click " + kDialog + "cmdDefault\n" + kOk);
    EXPECT_EQ(Settings(), kStandard) << typed;
    EXPECT_FALSE(driver.common().CustomScoringInUse) << typed;
  }
}

TEST_F(FivestackCustom, AFailedOkKeepsWhatItTook) {
  // The rest is done whatever the fields were.
  const std::string again = "click " + kDialog + "chkCountScore\n" + kOk + kAnswer;
  EXPECT_EQ(Ok({"5000", "400", "0", "-", "-"}, again).told, kMinNone + "|" + kMinNone);
  EXPECT_EQ(driver.Text("frmFivestack.StatusBar1.Panels(1).Text"), "Make 5,000 for bonus round.  ");
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  EXPECT_FALSE(driver.common().CountDownScore);
  EXPECT_FLOAT_EQ(Game().TimeBonusDecay(), 5);
  EXPECT_EQ(Settings(), "5000 400 100 2000 1");
}

// A refused number of passes marks the table, and is forgotten by the next game.
TEST_F(FivestackCustom, RefusedPassesHoldUntilPlay) {
  Ok({"-", "-", "-", "-", "99"});
  EXPECT_TRUE(driver.common().CustomScoringInUse);
  driver.Do(kPlayFivestack);
  EXPECT_EQ(Game().board.passesLeft, 1);
}

TEST_F(FivestackCustom, DefaultChangesNothingBeforeOk) {
  Ok({"1", "400", "-", "2.5", "3"});
  EXPECT_EQ(
      Asked(kOptions + "get " + kDialog + "lblWaitPeriod.Caption\nget " + kDialog +
            "frmCustomScoring.Caption\n" + kGetBoxes + "click " + kDialog + "cmdDefault\n" + kGetBoxes +
            kCancel),
      "Seconds to wait between Rounds (0 - 10):|Apptitle Scoring options|1|400|100|2.5|3|200000|300|100|2|1");
  EXPECT_EQ(Settings(), "1 400 100 2500 3");
}

TEST_F(FivestackCustom, ValuesMarkTheTableAndStandInTheRules) {
  Ok({"1000", "1000", "500", "0", "5"});
  const std::string rules = Asked(
      "click frmFivestack.mnu45\nclick frmFivestack.mnuRules\nget frmRules.lblRules.Text\n"
      "click frmRules.cmdOK\n");
  for (const char* part : {"each lasting 45 seconds. If you earn more than 1,000 points",
                           "begins at 1000. It decreases by 11 for each", "Time Bonus is worth 500.",
                           "allowed to pass 5 card(s) per round.\r\n\r\nGood luck and have fun!"})
    EXPECT_TRUE(Contains(rules, part)) << part;
  driver.Do(LayRound(CardsFor(104)) + kPlayFivestack + "advance 1000\n" + PlayRound(104) + kGiveUp + kGiveUp +
            kGiveUp + kGiveUp + kEnterName);
  EXPECT_EQ(folder.Read("HiScores45.Txt").substr(0, 14), "Ann*, 494500\r\n");
}

}  // namespace
