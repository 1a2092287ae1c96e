// The window that belongs to Treyshift alone: customised scoring.
#pragma once

#include "games/treyshift/treyshift.h"
#include "suite/scoring_dialog.h"

class frmTreyshiftCustom : public ScoringDialog {
 public:
  explicit frmTreyshiftCustom(frmTreyshift& game);

 protected:
  std::string Shown(size_t field, long long kept) const override;
  void TellRefusal(const Refusal& refusal) override;
  void Take(size_t field, double value) override;
};
