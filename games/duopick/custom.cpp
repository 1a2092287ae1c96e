// The values of Duopick's own: defaults, settings file, scoring dialog.
#include "games/duopick/duopick.h"

using namespace modDuopick;

void frmDuopick::NameSettings() {
  constexpr int kLargest = 32767;
  settings = {
      {"pairsBonus", &PairsBonus, kPairsBonus, "[Pairs Bonus]", Customises::Yes,
       BoundedField("txtPairsBonus", "lblPairsBonus", "Pairs Bonus Value:", 0, kLargest,
                    "Sorry, you cannot set the pairs bonus value to less than 0 points.",
                    "Sorry, you cannot set the pairs bonus value to more than 32767 points")},
      {"runsBonus", &RunsBonus, kRunsBonus, "[Runs Bonus]", Customises::Yes,
       BoundedField("txtRunsBonus", "lblRunsBonus", "Runs Bonus Value", 0, kLargest,
                    "Sorry, you cannot set the runs bonus value to less than 0 points.",
                    "Sorry, you cannot set the runs bonus value to more than 32767 points")},
      {"bonusScore", &BonusScore, kBonusScore, "[Bonus Score]", Customises::Yes,
       BoundedField(
           "txtBonusRound", "lblBonusRound", "Score required for Bonus Round:", 0, 200000,
           "Sorry, you cannot set the value required for a bonus round to less than 0 points.",
           "Sorry, you cannot set the value required for a bonus round to more than 200000 points.")},
      {"completionBonus", &CompletionBonus, kCompletionBonus, "[Completion Bonus]", Customises::Yes,
       BoundedField("txtCompletionBonus", "lblCompletionBonus", "Bonus for completing upper cards: ", 0,
                    kLargest,
                    "Sorry, you cannot set the value of the completion bonus to less than 0 points.",
                    "Sorry, you cannot set the value of the completion bonus to more than 32767 points.")},
      {"timeBonus", &common.TimeBonus, kTimeBonus, "[Time Bonus]", Customises::Yes,
       BoundedField("txtTimeBonus", "lblTimeBonus", "Time Bonus (points per second)", 0, kLargest,
                    "Sorry, you cannot set the Time Bonus value to less than 0 points.",
                    "Sorry, you cannot set the Time Bonus value to greater than 32767 points")},
      {"countDown", &common.CountDownScore, true, "[Count Down Score]", Customises::No},
  };
}
