// Keys and words for the board.
#include "games/fivestack/fivestack.h"
#include "suite/column_guide.h"

namespace {

class FivestackGuide : public ColumnGuide<frmFivestack> {
 public:
  using ColumnGuide::ColumnGuide;

  std::vector<std::string> FirstSteps() const override {
    return {"Hit lays the card that shows on its column; no column may go over 21.",
            "Five columns of 97 or more together pay; 105 is perfect.",
            "The time bonus falls: take the score before the time is up."};
  }

 protected:
  bool IsOpen(int column) const override { return window_.board.Takes(column); }
  bool SaysSoft(int column) const override { return window_.board.columns[column].softAces > 0; }
  std::string BoardState() const override {
    return NextCard() + " Card total " + std::to_string(window_.board.cardTotal) + ".";
  }
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmFivestack& window) { return std::make_unique<FivestackGuide>(window); }
