#include "games/fivestack/custom.h"

namespace {

using namespace modFivestack;

enum Field : size_t { kPasses, kWait, kBonus, kMaximum, kMinimum };

constexpr int kLargestScore = 2147483647, kLargestTimeBonus = 10000;

// The bounds of the last two depend on each other, see `Judge`; the table tells those that stand fast.
constexpr ScoringField kFields[] = {
    PassesField(kCardsToPass),
    // The label says 10, and 30 is what is allowed.
    {"txtWaitPeriod",
     "lblWaitPeriod",
     "Seconds to wait between Rounds (0 - 10):",
     kWaitPeriod / 1000,
     0,
     30,
     {"Sorry, a minimum of 0 seconds is required for the waiting period between rounds.", 0, 0},
     {"Sorry, a maximum of 30 seconds is allowed for the waiting period between rounds.", 30, 30000},
     1000},
    {"txtBonus",
     "lblBonus",
     "Score required for Bonus:",
     kBonusScore,
     0,
     kLargestScore,
     {"Sorry, a minimum of 0 is required for the bonus round score.", 0, 0},
     {"Sorry, the maximum value for achieving a bonus round is 2147483647.", kLargestScore, kLargestScore}},
    {"txtTimeBonusMax",
     "lblTimeBonusMax",
     "Maximum Time Bonus value:",
     kTimeBonusMax,
     0,
     kLargestTimeBonus,
     {"Sorry, the maximum time bonus value must be greater than 0.", 0, 0},
     {"Sorry, the maximum time bonus value must not exceed 10000.", kLargestTimeBonus, 0}},
    {"txtTimeBonusMin",
     "lblTimeBonusMin",
     "Minimum Time Bonus value:",
     kTimeBonusMin,
     0,
     kLargestTimeBonus,
     {"Sorry, the minimum time bonus value must be greater than 0.", 0, 0},
     {"Sorry, the minimum time bonus value must not exceed 10000.", kLargestTimeBonus, 0}},
};
constexpr int kOrder[] = {kBonus, kMaximum, kMinimum, kWait, kPasses};

constexpr ScoringNames kNames{
    .window = "frmFivestackCustomScoring",
    .frame = "frmCustomScoring",
    .frameCaption = "Apptitle Scoring options",
    .countDown = "chkCountScore",
    .countDownCaption = "Count down &when taking score",
    .info =
        "Note: Changing any of the Scoring Options or the number of cards a user may pass will cause your "
        "high scores to be marked with an * indicating custom scoring was in use.",
    .order = kOrder,
};

}  // namespace

frmFivestackCustomScoring::frmFivestackCustomScoring(frmFivestack& game)
    : ScoringDialog(game, kNames, kFields), game_(game) {}

ScoringDialog::Number frmFivestackCustomScoring::Setting(size_t field) {
  const Number settings[] = {&game_.CardsToPass, &game_.WaitPeriod, &game_.BonusScore, &game_.TimeBonusMax,
                             &game_.TimeBonusMin};
  return settings[field];
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
  const ScoringField& rule = kFields[field];
  if (value > 0 && value <= rule.highest) return std::nullopt;
  const OutOfBounds& wrong = value <= 0 ? rule.below : rule.above;
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

// In the middle of the game's window.
void frmFivestackCustomScoring::PlaceDialog() {
  Left = window.Left + (window.Width - Width) / 2;
  Top = window.Top + (window.Height - Height) / 2;
}
