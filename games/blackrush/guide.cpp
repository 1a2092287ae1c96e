#include "games/blackrush/guide.h"

#include "window/text.h"

using namespace modBlackrush;

namespace {

class BlackrushGuide : public GameGuide {
 public:
  explicit BlackrushGuide(frmBlackrush& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    Add(spots, window_.PlayCardPicture, false, false, "stock");
    Add(spots, window_.NextCardPicture, false, false, "next card");
    ControlArray<Image, kCardsOfColumn>* const columns[] = {&window_.Column1, &window_.Column2,
                                                            &window_.Column3, &window_.Column4};
    for (int i = 0; i < kColumns; ++i) {
      for (int slot = 0; slot < kCardsOfColumn; ++slot)
        Add(spots, (*columns[i])(slot), false, false, "column " + std::to_string(i + 1));
      AddHit(spots, window_.cmdHit(i), window_.ColumnTotal(i), window_.ColumnSoft(i));
    }
    return spots;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Hit lays the card that shows on its column. A column of 21 goes, and counts.",
            "Each 21 raises the bonus; be quick, or the 21 Counter takes it back.",
            "Too much costs 100 points. Use up the deck before the time is up."};
  }

 protected:
  std::vector<KeyRow> BoardKeys() const override {
    return {HitKeys(kColumns),
            {"-", "Pass", {{"-", "cmdPass"}}},
            {"Arrows", "Go to the Hit button of another column; with Ctrl to any card", {}},
            {"Space, Return", "Click where the cursor is", {}}};
  }

  std::string BoardState() const override {
    return "Next card " + SpokenPicture(window_.NextCardPicture.Picture) + ". " +
           std::to_string(window_.TwentyOnes) + " times 21, bonus " + FormatNumber(window_.Bonus) + ".";
  }

 private:
  frmBlackrush& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmBlackrush& window) { return std::make_unique<BlackrushGuide>(window); }
