// The values of Treyshift's own: defaults, settings file, scoring dialog.
#include "games/treyshift/custom.h"

#include <cmath>

using namespace modTreyshift;

namespace {

constexpr size_t kPenalty = 5;  // its field in the dialog

}  // namespace

void frmTreyshift::NameSettings() {
  settings = {
      // What a trip is worth is written to the file and never comes back.
      {"tripValue", &TripValue, kTripValue, "[Trips Score]", Customises::Yes,
       BoundedField("txtTripValue", "lblTripValue", "Three of a kind bonus:", 0, 20000,
                    "Sorry, the minimum value for a Triple is 0.",
                    "Sorry, the maximum value for a Triple is 20000"),
       Reads::No},
      {"runValue", &RunValue, kRunValue, "[Runs Score]", Customises::Yes,
       BoundedField("txtRunValue", "lblRunValue", "Run Bonus:", 0, 20000,
                    "Sorry, the minimum value for a Run is 0.",
                    "Sorry, the maximum value for a Run is 20000")},
      {"deckValue", &DeckValue, kDeckValue, "", Customises::Yes,
       BoundedField("txtDeckValue", "lblDeckValue", "Deck Completion Bonus:", 0, 100000,
                    "Sorry, the minimum value for for completing the Deck is 0.",
                    "Sorry, the maximum value for completing the Deck is 100000")},
      {"flushValue", &FlushValue, kFlushValue, "[Flush Score]", Customises::Yes,
       BoundedField("txtFlushValue", "lblFlushValue", "Flush Bonus:", 0, 20000,
                    "Sorry, the minimum value for the Flush Bonus is 0.",
                    "Sorry, the maximum value for the Flush Bonus is 20000")},
      {"bonusScore", &BonusScore, kBonusScore, "[Bonus Score]", Customises::Yes,
       BoundedField("txtBonusRound", "lblBonusRound", "Score Required for Bonus Round:", 0, 1000000,
                    "Sorry, the minimum value for obtaining the Bonus Round is 0.",
                    "Sorry, the maximum value for obtaining the Bonus Round is 1000000")},
      // Shown with a minus and kept without one; but a penalty that is too high is taken as it stands in the
      // field, and a card that is left over then earns points.
      {"penaltyValue", &PenaltyValue, kPenaltyValue, "", Customises::Yes,
       BoundedField("txtPenaltyValue", "lblPenaltyValue", "Penalty for left-over cards:", -20000, 0,
                    "Sorry, the minimum penalty for left over cards is -20000",
                    "Sorry, the maximum penalty for left over cards is 0.")},
      {"timeBonus", &common.TimeBonus, kTimeBonus, "[Time Bonus]", Customises::Yes,
       BoundedField("txtTimeBonus", "lblTimeBonus", "Time Bonus (points per second)", 0, 5000,
                    "Sorry, you cannot set the Time Bonus value to less than 0 points.",
                    "Sorry, you cannot set the Time Bonus value to greater than 5000 points")},
      {"countDown", &common.CountDownScore, true, "[Count Down Score]", Customises::No},
  };
}

frmTreyshiftCustom::frmTreyshiftCustom(frmTreyshift& game) : ScoringDialog(game) {
  rows[kPenalty]->box.ForeColor = kRed;
}

std::string frmTreyshiftCustom::Shown(size_t field, long long kept) const {
  return (field == kPenalty ? "-" : "") + ScoringDialog::Shown(field, kept);
}

void frmTreyshiftCustom::Take(size_t field, double value) {
  ScoringDialog::Take(field, field == kPenalty ? std::abs(value) : value);
}

// The field is right already while the message stands.
void frmTreyshiftCustom::TellRefusal(const Refusal& refusal) {
  refusal.box->Text = refusal.text;
  ScoringDialog::TellRefusal(refusal);
}

void frmTreyshift::ShowCustomScoring() { frmTreyshiftCustom(*this).Show(true); }
