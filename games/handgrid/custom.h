// The window that belongs to Handgrid alone: customised scoring.
#pragma once

#include "games/handgrid/handgrid.h"
#include "suite/scoring_dialog.h"

class frmHandgridCustom : public ScoringDialog {
 public:
  explicit frmHandgridCustom(frmHandgrid& game) : ScoringDialog(game), game_(game) {}

 protected:
  void FieldPassed(size_t field) override;
  void FieldsChecked(bool lastPassed) override;

 private:
  frmHandgrid& game_;
};
