// The values of Spirehold's own: defaults, settings file, scoring dialog.
#include "games/spirehold/spirehold.h"

using namespace modSpirehold;

void frmSpirehold::NameSettings() {
  constexpr int kLargest = 32767;
  settings = {
      {"cardValue", &CardValue, kCardValue, "[Card Bonus]", Customises::Yes,
       BoundedField("txtCardValue", "lblCardValue",
                    "When creating runs, each additional card increments card value by:", 0, 1000,
                    "Sorry, you cannot increment the card value by less than 0 points.",
                    "Sorry, you cannot increment the card value by greater than 1000 points")},
      // A score that is too high leaves 0 in force, whatever stands in the field.
      {"bonusScore", &BonusScore, kBonusScore, "[Bonus Score]", Customises::Yes,
       ScoringField{"txtBonusScore",
                    "lblBonusScore",
                    "Score required for bonus round:",
                    0,
                    900000,
                    {"Sorry, a minimum of 0 points is required to make the bonus round.", 0, 0},
                    {"Sorry, a maximum of 900000 points is required to make the bonus round.", 900000, 0}}},
      {"highRunBonus", &HighRunBonus, kHighRunBonus, "[High Run Bonus]", Customises::Yes,
       BoundedField("txtRunBonus", "lblRunBonus", "High Run bonus (per card):", 0, kLargest,
                    "Sorry, a minimum of 0 points is required when achieving the high run bonus.",
                    "Sorry, a maximum of 32767 points is required when achieving the high run bonus.")},
      {"towerBonus", &TowerBonus, kTowerBonus, "[Tower Bonus]", Customises::Yes,
       BoundedField("txtCompletedTower", "lblCompletedTower", "Bonus for completing each tower", 0, kLargest,
                    "Sorry, a minimum of 0 points is required when achieving when completing each tower.",
                    "Sorry, a maximum of 32767 points is required when completing each tower.")},
      {"timeBonus", &common.TimeBonus, kTimeBonus, "[Time Bonus]", Customises::Yes,
       BoundedField("txtTimeBonus", "lblTimeBonus", "Time Bonus (points per second)", 0, kLargest,
                    "Sorry, you cannot set the Time Bonus value to less than 0 points.",
                    "Sorry, you cannot set the Time Bonus value to greater than 32767 points")},
      {"highestRun", &board.HighestRun, 0, "[Hi Run]", Customises::No},
      {"countDown", &common.CountDownScore, true, "[Count Down Score]", Customises::No},
  };
}
