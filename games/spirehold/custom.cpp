#include "games/spirehold/custom.h"

namespace {

constexpr int kLargest = 32767;

constexpr ScoringField kFields[] = {
    {"txtCardValue",
     "lblCardValue",
     "When creating runs, each additional card increments card value by:",
     modSpirehold::kCardValue,
     0,
     1000,
     {"Sorry, you cannot increment the card value by less than 0 points.", 0, 0},
     {"Sorry, you cannot increment the card value by greater than 1000 points", 1000, 1000}},
    // A score that is too high leaves 0 in force, whatever stands in the field.
    {"txtBonusScore",
     "lblBonusScore",
     "Score required for bonus round:",
     modSpirehold::kBonusScore,
     0,
     900000,
     {"Sorry, a minimum of 0 points is required to make the bonus round.", 0, 0},
     {"Sorry, a maximum of 900000 points is required to make the bonus round.", 900000, 0}},
    {"txtRunBonus",
     "lblRunBonus",
     "High Run bonus (per card):",
     modSpirehold::kHighRunBonus,
     0,
     kLargest,
     {"Sorry, a minimum of 0 points is required when achieving the high run bonus.", 0, 0},
     {"Sorry, a maximum of 32767 points is required when achieving the high run bonus.", kLargest, kLargest}},
    {"txtCompletedTower",
     "lblCompletedTower",
     "Bonus for completing each tower",
     modSpirehold::kTowerBonus,
     0,
     kLargest,
     {"Sorry, a minimum of 0 points is required when achieving when completing each tower.", 0, 0},
     {"Sorry, a maximum of 32767 points is required when completing each tower.", kLargest, kLargest}},
    {"txtTimeBonus",
     "lblTimeBonus",
     "Time Bonus (points per second)",
     modSpirehold::kTimeBonus,
     0,
     kLargest,
     {"Sorry, you cannot set the Time Bonus value to less than 0 points.", 0, 0},
     {"Sorry, you cannot set the Time Bonus value to greater than 32767 points", kLargest, kLargest}},
};

constexpr ScoringNames kNames{.window = "frmSpireholdCustom"};

}  // namespace

frmSpireholdCustom::frmSpireholdCustom(frmSpirehold& game)
    : ScoringDialog(game, kNames, kFields), game_(game) {}

ScoringDialog::Number frmSpireholdCustom::Setting(size_t field) {
  const Number settings[] = {&game_.CardValue, &game_.BonusScore, &game_.HighRunBonus, &game_.TowerBonus,
                             &game_.common.TimeBonus};
  return settings[field];
}
