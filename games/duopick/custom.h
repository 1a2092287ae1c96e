// The window that belongs to Duopick alone: customised scoring.
#pragma once

#include "games/duopick/duopick.h"
#include "suite/scoring_dialog.h"

class frmDuopickCustomScoring : public ScoringDialog {
 public:
  explicit frmDuopickCustomScoring(frmDuopick& game);

 protected:
  Number Setting(size_t field) override;

 private:
  frmDuopick& game_;
};
