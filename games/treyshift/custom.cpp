#include "games/treyshift/custom.h"

#include <cmath>

using namespace modTreyshift;

namespace {

constexpr size_t kPenalty = 5;  // its field in the table

constexpr ScoringField kFields[] = {
    {"txtTripValue",
     "lblTripValue",
     "Three of a kind bonus:",
     kTripValue,
     0,
     20000,
     {"Sorry, the minimum value for a Triple is 0.", 0, 0},
     {"Sorry, the maximum value for a Triple is 20000", 20000, 20000}},
    {"txtRunValue",
     "lblRunValue",
     "Run Bonus:",
     kRunValue,
     0,
     20000,
     {"Sorry, the minimum value for a Run is 0.", 0, 0},
     {"Sorry, the maximum value for a Run is 20000", 20000, 20000}},
    {"txtDeckValue",
     "lblDeckValue",
     "Deck Completion Bonus:",
     kDeckValue,
     0,
     100000,
     {"Sorry, the minimum value for for completing the Deck is 0.", 0, 0},
     {"Sorry, the maximum value for completing the Deck is 100000", 100000, 100000}},
    {"txtFlushValue",
     "lblFlushValue",
     "Flush Bonus:",
     kFlushValue,
     0,
     20000,
     {"Sorry, the minimum value for the Flush Bonus is 0.", 0, 0},
     {"Sorry, the maximum value for the Flush Bonus is 20000", 20000, 20000}},
    {"txtBonusRound",
     "lblBonusRound",
     "Score Required for Bonus Round:",
     kBonusScore,
     0,
     1000000,
     {"Sorry, the minimum value for obtaining the Bonus Round is 0.", 0, 0},
     {"Sorry, the maximum value for obtaining the Bonus Round is 1000000", 1000000, 1000000}},
    // Shown with a minus and kept without one; but a penalty that is too high is taken as it stands in the
    // field, and a card that is left over then earns points.
    {"txtPenaltyValue",
     "lblPenaltyValue",
     "Penalty for left-over cards:",
     -kPenaltyValue,
     -20000,
     0,
     {"Sorry, the minimum penalty for left over cards is -20000", -20000, -20000},
     {"Sorry, the maximum penalty for left over cards is 0.", 0, 0}},
    {"txtTimeBonus",
     "lblTimeBonus",
     "Time Bonus (points per second)",
     kTimeBonus,
     0,
     5000,
     {"Sorry, you cannot set the Time Bonus value to less than 0 points.", 0, 0},
     {"Sorry, you cannot set the Time Bonus value to greater than 5000 points", 5000, 5000}},
};

constexpr ScoringNames kNames{.window = "frmTreyshiftCustom"};

}  // namespace

frmTreyshiftCustom::frmTreyshiftCustom(frmTreyshift& game)
    : ScoringDialog(game, kNames, kFields), game_(game) {
  rows[kPenalty]->box.ForeColor = kRed;
}

ScoringDialog::Number frmTreyshiftCustom::Setting(size_t field) {
  const Number settings[] = {&game_.TripValue,       &game_.RunValue,   &game_.DeckValue,
                             &game_.FlushValue,      &game_.BonusScore, &game_.PenaltyValue,
                             &game_.common.TimeBonus};
  return settings[field];
}

std::string frmTreyshiftCustom::Shown(size_t field) {
  return (field == kPenalty ? "-" : "") + ScoringDialog::Shown(field);
}

void frmTreyshiftCustom::Take(size_t field, double value) {
  ScoringDialog::Take(field, field == kPenalty ? std::abs(value) : value);
}

// The field is right already while the message stands.
void frmTreyshiftCustom::TellRefusal(const Refusal& refusal) {
  refusal.box->Text = refusal.text;
  ScoringDialog::TellRefusal(refusal);
}
