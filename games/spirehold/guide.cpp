// Keys and words for the board.
#include "suite/guide.h"

#include "games/spirehold/spirehold.h"

using namespace modSpirehold;

namespace {

class SpireholdGuide : public GameGuide {
 public:
  explicit SpireholdGuide(frmSpirehold& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Places() const override {
    std::vector<Spot> spots;
    for (int card = 0; card < kCards; ++card)
      Add(spots, window_.UpCardImage(card), window_.board.CheckForLegalMove(card));
    AddStock(spots, window_.CardStackPicture, !window_.board.stack.empty());
    Add(spots, window_.UpCardPicture, false, false, "up card");
    return spots;
  }

  // The bottom row, and a finger's breadth at its ends.
  int Breadth() const override {
    constexpr int kMargin = 180;
    const Image &first = window_.UpCardImage(kCards - 10), &last = window_.UpCardImage(kCards - 1);
    return last.Left + last.Width - first.Left + 2 * kMargin;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Click free cards one rank above or below the card turned up.",
            "A run pays more with each card; the stock breaks it.",
            "Take down the three towers, then take the score."};
  }

 protected:
  bool IsStuck() const override { return window_.board.IsStuck(); }

  std::vector<KeyRow> BoardKeys() const override {
    return {RankKeys(), {"D", "Turn the next card of the stock", {{"D", "CardStackPicture"}}}};
  }

  std::string BoardState() const override {
    const std::string up = SpokenPicture(window_.UpCardPicture.Picture);
    return (up.empty() ? "" : "Up card " + up + ". ") + "Run of " + std::to_string(window_.board.CurrentRun) +
           ", " + std::to_string(window_.board.stack.size()) + " cards in the stock.";
  }

 private:
  frmSpirehold& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmSpirehold& window) { return std::make_unique<SpireholdGuide>(window); }
