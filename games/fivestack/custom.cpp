// The values of Fivestack's own: defaults, settings file, scoring dialog.
#include "games/fivestack/custom.h"

using namespace modFivestack;

namespace {

enum Field : size_t { kPasses, kWait, kBonus, kMaximum, kMinimum };

}  // namespace

void frmFivestack::NameSettings() {
  constexpr int kLargestScore = 2147483647, kLargestTimeBonus = 10000;
  settings = {
      {"passes", &CardsToPass, kCardsToPass, "[Cards To Pass]", Customises::No, At(5, kPassesField)},
      // The label says 10, and 30 is what is allowed.
      {"waitPeriod", &WaitPeriod, kWaitPeriod, "[WaitPeriod]", Customises::No,
       ScoringField{
           "txtWaitPeriod",
           "lblWaitPeriod",
           "Seconds to wait between Rounds (0 - 10):",
           0,
           30,
           {"Sorry, a minimum of 0 seconds is required for the waiting period between rounds.", 0, 0},
           {"Sorry, a maximum of 30 seconds is allowed for the waiting period between rounds.", 30, 30000},
           1000,
           4}},
      {"bonusScore", &BonusScore, kBonusScore, "[BonusScore]", Customises::Yes,
       At(1, BoundedField("txtBonus", "lblBonus", "Score required for Bonus:", 0, kLargestScore,
                          "Sorry, a minimum of 0 is required for the bonus round score.",
                          "Sorry, the maximum value for achieving a bonus round is 2147483647."))},
      // The bounds of these two depend on each other, see `Judge`; the table tells those that stand fast.
      {"bonusMax", &TimeBonusMax, kTimeBonusMax, "[TimeBonusMax]", Customises::Yes,
       At(2, BoundedField("txtTimeBonusMax", "lblTimeBonusMax", "Maximum Time Bonus value:", 0,
                          kLargestTimeBonus, "Sorry, the maximum time bonus value must be greater than 0.",
                          "Sorry, the maximum time bonus value must not exceed 10000."))},
      {"bonusMin", &TimeBonusMin, kTimeBonusMin, "[TimeBonusMin]", Customises::Yes,
       At(3, BoundedField("txtTimeBonusMin", "lblTimeBonusMin", "Minimum Time Bonus value:", 0,
                          kLargestTimeBonus, "Sorry, the minimum time bonus value must be greater than 0.",
                          "Sorry, the minimum time bonus value must not exceed 10000."))},
      {"passesLeft", &board.passesLeft, kCardsToPass, "[Cards To Pass]"},  // read with the other
      {"countDown", &common.CountDownScore, true, "[CountDownScore]", Customises::No},
  };
}

// Both time bonuses are first held against what stands in the other's field by now. One that is refused isn't
// taken.
std::optional<ScoringDialog::Refusal> frmFivestackCustomScoring::Judge(size_t field, double value) {
  if (field != kMaximum && field != kMinimum) return ScoringDialog::Judge(field, value);
  TextBox& box = rows[field]->box;
  const double maximum = NumberIn(kMaximum), minimum = NumberIn(kMinimum);
  if (maximum <= minimum && field == kMaximum)
    return Refusal{"Sorry, the maximum time bonus value must be greater than the minimum time bonus value.",
                   &box, Plain(minimum + 1), std::nullopt};
  if (maximum <= minimum)
    return Refusal{"Sorry, the minimum time bonus value must be less than the maximum time bonus value.",
                   &box, Plain(maximum - 1), std::nullopt};
  if (value > 0 && value <= Rule(field).highest) return std::nullopt;
  const OutOfBounds& wrong = value <= 0 ? Rule(field).below : Rule(field).above;
  return Refusal{wrong.message, &box, std::to_string(wrong.text), std::nullopt};
}

void frmFivestackCustomScoring::Take(size_t field, double value) {
  ScoringDialog::Take(field, value);
  if (field == kPasses) game_.board.passesLeft = game_.CardsToPass;
}

// A number of passes that is refused holds until the next game only.
void frmFivestackCustomScoring::TakeRefused(size_t field, long long setting) {
  if (field == kPasses)
    game_.board.passesLeft = setting;
  else
    ScoringDialog::TakeRefused(field, setting);
}

void frmFivestack::ShowCustomScoring() { frmFivestackCustomScoring(*this).Show(true); }
