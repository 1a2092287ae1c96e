#include "games/duopick/custom.h"

namespace {

constexpr int kLargest = 32767;

constexpr ScoringField kFields[] = {
    {"txtPairsBonus",
     "lblPairsBonus",
     "Pairs Bonus Value:",
     modDuopick::kPairsBonus,
     0,
     kLargest,
     {"Sorry, you cannot set the pairs bonus value to less than 0 points.", 0, 0},
     {"Sorry, you cannot set the pairs bonus value to more than 32767 points", kLargest, kLargest}},
    {"txtRunsBonus",
     "lblRunsBonus",
     "Runs Bonus Value",
     modDuopick::kRunsBonus,
     0,
     kLargest,
     {"Sorry, you cannot set the runs bonus value to less than 0 points.", 0, 0},
     {"Sorry, you cannot set the runs bonus value to more than 32767 points", kLargest, kLargest}},
    {"txtBonusRound",
     "lblBonusRound",
     "Score required for Bonus Round:",
     modDuopick::kBonusScore,
     0,
     200000,
     {"Sorry, you cannot set the value required for a bonus round to less than 0 points.", 0, 0},
     {"Sorry, you cannot set the value required for a bonus round to more than 200000 points.", 200000,
      200000}},
    {"txtCompletionBonus",
     "lblCompletionBonus",
     "Bonus for completing upper cards: ",
     modDuopick::kCompletionBonus,
     0,
     kLargest,
     {"Sorry, you cannot set the value of the completion bonus to less than 0 points.", 0, 0},
     {"Sorry, you cannot set the value of the completion bonus to more than 32767 points.", kLargest,
      kLargest}},
    {"txtTimeBonus",
     "lblTimeBonus",
     "Time Bonus (points per second)",
     modDuopick::kTimeBonus,
     0,
     kLargest,
     {"Sorry, you cannot set the Time Bonus value to less than 0 points.", 0, 0},
     {"Sorry, you cannot set the Time Bonus value to greater than 32767 points", kLargest, kLargest}},
};

constexpr ScoringNames kNames{.window = "frmDuopickCustomScoring", .frameCaption = "Scoring Options"};

}  // namespace

frmDuopickCustomScoring::frmDuopickCustomScoring(frmDuopick& game)
    : ScoringDialog(game, kNames, kFields), game_(game) {}

ScoringDialog::Number frmDuopickCustomScoring::Setting(size_t field) {
  const Number settings[] = {&game_.PairsBonus, &game_.RunsBonus, &game_.BonusScore, &game_.CompletionBonus,
                             &game_.common.TimeBonus};
  return settings[field];
}
