#include "games/handgrid/custom.h"

using namespace modHandgrid;

namespace {

// What is out of bounds on either side is put right in the same way.
constexpr ScoringField Field(const char* box, const char* label, const char* caption, long long standard,
                             double highest, long long putBack, const char* message) {
  const OutOfBounds wrong{message, putBack, putBack};
  return {box, label, caption, standard, 0, highest, wrong, wrong};
}

constexpr HandScores kStandard{};
constexpr size_t kBonusScoreField = 9;

// The values put back are no defaults: a hand that was out of bounds becomes a costly one.
constexpr ScoringField kFields[] = {
    Field("txtPairScore", "lblPairScore", "Pair Score Value:", kStandard.PairScore, 50000, 6000,
          "Sorry, the Pair Score Value: must be between 0 and 50,000 points."),
    Field("txt2PairScore", "lbl2PairScore", "2 Pair Score Value:", kStandard.TwoPairScore, 50000, 7000,
          "Sorry, the 2 Pair Score Value: must be between 0 and 50,000 points."),
    Field("txt3ofakindScore", "lbl3ofakindScore", "3 of a Kind Score Value:", kStandard.TripsScore, 50000,
          8000, "Sorry, the 3 of a Kind Score Value: must be between 0 and 50,000 points."),
    Field("txtStraightScore", "lblStraightScore", "Straight Score Value:", kStandard.StraightScore, 50000,
          9000, "Sorry, the Straight Score Value: must be between 0 and 50,000 points."),
    Field("txtFlushScore", "lblFlushScore", "Flush Score Value:", kStandard.FlushScore, 50000, 10000,
          "Sorry, the Flush Score Value: must be between 0 and 50,000 points."),
    Field("txtFullHouseScore", "lblFullHouseScore", "Full House Score Value:", kStandard.FullHouseScore,
          50000, 20000, "Sorry, the Full House Score Value: must be between 0 and 50,000 points."),
    Field("txt4ofakindScore", "lbl4ofakindScore", "4 of a Kind Score Value:", kStandard.FourScore, 50000,
          30000, "Sorry, the 4 of a Kind Score Value: must be between 0 and 50,000 points."),
    Field("txtStFlushScore", "lblStFlushScore", "Straight Flush Score Value:", kStandard.StraightFlushScore,
          50000, 40000, "Sorry, the Straight Flush Score Value: must be between 0 and 50,000 points."),
    Field("txtRoyalFlushScore", "lblRoyalFlushScore", "Royal Flush Score Value:", kStandard.RoyalFlushScore,
          100000, 50000, "Sorry, the Royal Flush Score Value: must be between 0 and 100,000 points."),
    Field("txtBonusScore", "lblBonusScore", "Score required for bonus round:", kBonusScore, 1000000, 100000,
          "Sorry, the Score required for bonus round: must be between 0 and 1,000,000 points."),
    Field("txtOverWrites", "lblOverWrites", "Number of overwrites allowed", kOverWrites, 26, 1,
          "Sorry, the Number of overwrites allowed must be between 0 and 26 points."),
    Field("txtTimeBonus", "lblTimeBonus", "Time Bonus (per second multipler)", kTimeBonus, 10, 1,
          "Sorry, the Time Bonus value must be between 0 and 10 points."),
};

constexpr ScoringNames kNames{.window = "frmHandgridCustom"};

}  // namespace

frmHandgridCustom::frmHandgridCustom(frmHandgrid& game) : ScoringDialog(game, kNames, kFields), game_(game) {}

ScoringDialog::Number frmHandgridCustom::Setting(size_t field) {
  HandScores& scores = game_.Scores;
  const Number settings[] = {&scores.PairScore,     &scores.TwoPairScore,       &scores.TripsScore,
                             &scores.StraightScore, &scores.FlushScore,         &scores.FullHouseScore,
                             &scores.FourScore,     &scores.StraightFlushScore, &scores.RoyalFlushScore,
                             &game_.BonusScore,     &game_.OverWritesAllowed,   &game_.common.TimeBonus};
  return settings[field];
}

void frmHandgridCustom::FieldPassed(size_t field) {
  if (field == kBonusScoreField) game_.ShowGoal();
}

void frmHandgridCustom::FieldsChecked(bool lastPassed) {
  if (!lastPassed) return;
  game_.common.CountDownScore = chkCountDown.Value == 1;
  game_.CheckForCustom();
}
