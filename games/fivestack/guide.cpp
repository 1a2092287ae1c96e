#include "games/fivestack/guide.h"

using namespace modFivestack;

namespace {

class FivestackGuide : public GameGuide {
 public:
  explicit FivestackGuide(frmFivestack& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    Add(spots, window_.PlayCardPicture, false, false, "stock");
    Add(spots, window_.NextCardPicture, false, false, "next card");
    ControlArray<Image, kCardsOfColumn>* const columns[] = {
        &window_.Column1, &window_.Column2, &window_.Column3, &window_.Column4, &window_.Column5};
    for (int i = 0; i < kColumns; ++i) {
      for (int slot = 0; slot < kCardsOfColumn; ++slot)
        Add(spots, (*columns[i])(slot), false, false, "column " + std::to_string(i + 1));
      AddHit(spots, window_.cmdHit(i), window_.ColumnTotal(i), window_.ColumnSoft(i));
    }
    return spots;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Hit lays the card that shows on its column; no column may go over 21.",
            "Five columns of 97 or more together pay; 105 is perfect.",
            "The time bonus falls: take the score before the time is up."};
  }

 protected:
  std::vector<KeyRow> BoardKeys() const override {
    return {HitKeys(kColumns),
            {"-", "Pass", {{"-", "cmdPass"}}},
            {"Arrows", "Go to the Hit button of another column; with Ctrl to any card", {}},
            {"Space, Return", "Click where the cursor is", {}}};
  }

  std::string BoardState() const override {
    return "Next card " + SpokenPicture(window_.NextCardPicture.Picture) + ". Card total " +
           std::to_string(window_.CardTotal) + ".";
  }

 private:
  frmFivestack& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmFivestack& window) { return std::make_unique<FivestackGuide>(window); }
