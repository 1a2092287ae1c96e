// Keys and words for the board.
#include "games/blackrush/blackrush.h"
#include "suite/column_guide.h"
#include "window/text.h"

namespace {

class BlackrushGuide : public ColumnGuide<frmBlackrush> {
 public:
  using ColumnGuide::ColumnGuide;

  std::vector<std::string> FirstSteps() const override {
    return {"Hit lays the card that shows on its column. A column of 21 goes, and counts.",
            "Each 21 raises the bonus; be quick, or the 21 Counter takes it back.",
            "A card too many costs points. Use up the deck before the time is up."};
  }

 protected:
  // All columns take cards; none while the round is paid.
  bool IsOpen(int) const override { return !window_.standing.InputIsDead(); }
  bool SaysSoft(int column) const override {
    return window_.board.words[column] == modBlackrush::Word::Shown;
  }
  std::string BoardState() const override {
    return NextCard() + " " + std::to_string(window_.board.twentyOnes) + " times 21, bonus " +
           FormatNumber(window_.board.bonus) + ".";
  }
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmBlackrush& window) { return std::make_unique<BlackrushGuide>(window); }
