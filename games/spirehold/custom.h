// The window that belongs to Spirehold alone: customised scoring.
#pragma once

#include "games/spirehold/spirehold.h"
#include "suite/scoring_dialog.h"

class frmSpireholdCustom : public ScoringDialog {
 public:
  explicit frmSpireholdCustom(frmSpirehold& game);

 protected:
  long long Setting(size_t field) const override;
  void SetSetting(size_t field, long long value) override;
  void LastFieldPassed() override;

 private:
  frmSpirehold& game_;
};
