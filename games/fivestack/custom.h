// The window that belongs to Fivestack alone: customised scoring.
#pragma once

#include "games/fivestack/fivestack.h"
#include "suite/scoring_dialog.h"

class frmFivestackCustomScoring : public ScoringDialog {
 public:
  explicit frmFivestackCustomScoring(frmFivestack& game) : ScoringDialog(game), game_(game) {}

 protected:
  std::optional<Refusal> Judge(size_t field, double value) override;
  void Take(size_t field, double value) override;
  void TakeRefused(size_t field, long long setting) override;
  // Whatever the fields were.
  void FieldsChecked(bool) override { TakeRest(); }

 private:
  frmFivestack& game_;
};
