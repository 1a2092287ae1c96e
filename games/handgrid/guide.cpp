// Keys and words for the board.
#include "suite/guide.h"

#include "games/handgrid/handgrid.h"

using namespace modHandgrid;

namespace {

class HandgridGuide : public GameGuide {
 public:
  explicit HandgridGuide(frmHandgrid& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    for (int cell = 0; cell < kCells; ++cell)
      Add(spots, window_.PlayCards(cell), window_.board.Takes(cell), false,
          "row " + std::to_string(cell / kSide + 1) + ", column " + std::to_string(cell % kSide + 1));
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
    const Board& board = window_.board;
    std::string hands;
    for (int line = 0; line < kLines; ++line)
      hands += (line < kSide ? " Row " : " Column ") + std::to_string(line % kSide + 1) + " " +
               HandName(board.hands[line]) + ".";
    const int next = window_.common.ImageList2(board.hole.empty() ? "EMPTY" : CardKey(board.hole));
    return "Next card " + SpokenPicture(next) + ". " + std::to_string(board.OverWritesLeft()) +
           " overwrites left." + hands;
  }

 private:
  frmHandgrid& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmHandgrid& window) { return std::make_unique<HandgridGuide>(window); }
