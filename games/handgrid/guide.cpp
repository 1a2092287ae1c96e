#include "games/handgrid/guide.h"

using namespace modHandgrid;

namespace {

class HandgridGuide : public GameGuide {
 public:
  explicit HandgridGuide(frmHandgrid& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    for (int cell = 0; cell < kCells; ++cell) {
      const bool filled = !window_.PlayedCards[cell].empty();
      const bool takes = filled ? window_.OverWritesUsed < window_.OverWritesAllowed : window_.HoleCount > 0;
      Add(spots, window_.PlayCards(cell), takes, false,
          "row " + std::to_string(cell / kSide + 1) + ", column " + std::to_string(cell % kSide + 1));
    }
    Add(spots, window_.CardStackPicture, false, false, "stock");
    Add(spots, window_.HoleCard, false, false, "next card");
    return spots;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Click where the card that shows shall lie: each row and each column is a poker hand.",
            "A few cards may be laid over others.",
            "Fill the grid before the time is up: its points are multiplied by the seconds left."};
  }

 protected:
  std::vector<KeyRow> BoardKeys() const override {
    KeyRow cells{"1 to 5, then 1 to 5", "Lay the card there: the row, then the column", {}};
    for (int cell = 0; cell < kCells; ++cell)
      cells.clicks.push_back({std::to_string(cell / kSide + 1) + std::to_string(cell % kSide + 1),
                              window_.PlayCards(cell).NameInForm()});
    return {cells, {"Arrows", "Walk the grid", {}}, {"Space, Return", "Lay the card under the cursor", {}}};
  }

  std::string BoardState() const override {
    std::string hands;
    for (int line = 1; line <= kSide; ++line) {
      hands += " Row " + std::to_string(line) + " " + window_.lblRow(line).Caption.get() + ".";
    }
    for (int line = 1; line <= kSide; ++line)
      hands += " Column " + std::to_string(line) + " " + window_.lblCol(line).Caption.get() + ".";
    return "Next card " + SpokenPicture(window_.HoleCard.Picture) + ". " +
           std::to_string(window_.OverWritesAllowed - window_.OverWritesUsed) + " overwrites left." + hands;
  }

 private:
  frmHandgrid& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmHandgrid& window) { return std::make_unique<HandgridGuide>(window); }
