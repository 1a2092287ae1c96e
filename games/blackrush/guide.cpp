#include "games/blackrush/guide.h"

#include "suite/column_guide.h"
#include "window/text.h"

namespace {

class BlackrushGuide : public ColumnGuide<frmBlackrush, modBlackrush::kColumns> {
 public:
  explicit BlackrushGuide(frmBlackrush& window)
      : ColumnGuide(window, {&window.Column1, &window.Column2, &window.Column3, &window.Column4}) {}

  std::vector<std::string> FirstSteps() const override {
    return {"Hit lays the card that shows on its column. A column of 21 goes, and counts.",
            "Each 21 raises the bonus; be quick, or the 21 Counter takes it back.",
            "A card too many costs points. Use up the deck before the time is up."};
  }

 protected:
  std::string BoardState() const override {
    return NextCard() + " " + std::to_string(window_.TwentyOnes) + " times 21, bonus " +
           FormatNumber(window_.Bonus) + ".";
  }
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmBlackrush& window) { return std::make_unique<BlackrushGuide>(window); }
