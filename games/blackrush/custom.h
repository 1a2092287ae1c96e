// The window that belongs to Blackrush alone: customised scoring, and the speed of the 21 Counter.
#pragma once

#include "games/blackrush/blackrush.h"
#include "suite/scoring_dialog.h"

class frmBlackrushCustomScoring : public ScoringDialog {
 public:
  explicit frmBlackrushCustomScoring(frmBlackrush& game);
  void Form_Load() override;

  Label lblCounterSpeed{frmScoringOptions, "lblCounterSpeed"};
  OptionButton optDefault{frmScoringOptions, "optDefault"}, optSlow{frmScoringOptions, "optSlow"},
      optSlowest{frmScoringOptions, "optSlowest"};

 protected:
  std::optional<Refusal> Judge(size_t field, double value) override;
  void TakeRefused(size_t field, long long setting) override;
  void BeforeFields() override;
  // The rest is taken whatever the fields were.
  void FieldsChecked(bool) override { TakeRest(); }
  void DefaultsShown() override { Choose(modBlackrush::kNormalSpeed); }

 private:
  void Choose(long long speed);

  frmBlackrush& game_;
};
