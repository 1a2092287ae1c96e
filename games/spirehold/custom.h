// The window that belongs to Spirehold alone: customised scoring.
#pragma once

#include "games/spirehold/spirehold.h"
#include "suite/scoring_dialog.h"

class frmSpireholdCustom : public ScoringDialog {
 public:
  explicit frmSpireholdCustom(frmSpirehold& game);

 protected:
  Number Setting(size_t field) override;

 private:
  frmSpirehold& game_;
};
