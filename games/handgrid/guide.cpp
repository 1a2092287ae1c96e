// Keys and words for the board.
#include "suite/guide.h"

#include "games/handgrid/handgrid.h"

using namespace modHandgrid;

namespace {

class HandgridGuide : public GameGuide {
 public:
  explicit HandgridGuide(frmHandgrid& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Places() const override {
    std::vector<Spot> spots;
    for (int cell = 0; cell < kCells; ++cell)
      Add(spots, window_.PlayCards(cell), window_.board.Takes(cell), false,
          "row " + std::to_string(cell / kSide + 1) + ", column " + std::to_string(cell % kSide + 1));
    AddStock(spots, window_.CardStackPicture);
    Add(spots, window_.HoleCard, false, false, "next card");
    return spots;
  }

  std::string Says(const Label& label) const override {
    const int line = LineOf(label);
    return line < 0 ? GameGuide::Says(label) : LineName(line) + ": " + Worth(line);
  }

  std::string ToolTip(const Control& control) const override {
    const int line = LineOf(control);
    return line < 0 || window_.board.hands[line] == Hand::Nothing ? "" : Worth(line);
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
    for (int line = 0; line < kLines; ++line) hands += " " + LineName(line) + " " + Worth(line) + ".";
    const int next = window_.common.ImageList2(board.hole.empty() ? "EMPTY" : CardKey(board.hole));
    return "Next card " + SpokenPicture(next) + ". " + std::to_string(board.OverWritesLeft()) +
           " overwrites left." + hands;
  }

 private:
  // The line whose hand stands on that label, or -1.
  int LineOf(const Control& label) const {
    for (int line = 0; line < kLines; ++line)
      if (&label == &window_.HandLabel(line)) return line;
    return -1;
  }
  static std::string LineName(int line) {
    return (line < kSide ? "Row " : "Column ") + std::to_string(line % kSide + 1);
  }
  // "Flush 100".
  std::string Worth(int line) const {
    const Hand hand = window_.board.hands[line];
    return HandName(hand) + (hand == Hand::Nothing ? "" : " " + std::to_string(window_.Scores.Of(hand)));
  }

  frmHandgrid& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmHandgrid& window) { return std::make_unique<HandgridGuide>(window); }
