#include "games/fivestack/guide.h"

#include "suite/column_guide.h"

namespace {

class FivestackGuide : public ColumnGuide<frmFivestack, modFivestack::kColumns> {
 public:
  explicit FivestackGuide(frmFivestack& window)
      : ColumnGuide(window,
                    {&window.Column1, &window.Column2, &window.Column3, &window.Column4, &window.Column5}) {}

  std::vector<std::string> FirstSteps() const override {
    return {"Hit lays the card that shows on its column; no column may go over 21.",
            "Five columns of 97 or more together pay; 105 is perfect.",
            "The time bonus falls: take the score before the time is up."};
  }

 protected:
  std::string BoardState() const override {
    return NextCard() + " Card total " + std::to_string(window_.CardTotal) + ".";
  }
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmFivestack& window) { return std::make_unique<FivestackGuide>(window); }
