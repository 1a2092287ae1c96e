#include "games/sumfall/guide.h"

using namespace modSumfall;

namespace {

class SumfallGuide : public GameGuide {
 public:
  explicit SumfallGuide(frmSumfall& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    bool hasGap = false;
    for (int place = 0; place < kPlaces; ++place) {
      const bool selected = window_.FieldSelectionRectangle(place).Visible;
      const bool fits = selected || Fits(window_.FieldCards[place]);
      Add(spots, window_.FieldCardPicture(place), fits && window_.CheckLegalFieldCardMove(place), selected);
      hasGap |= !window_.FieldCardPicture(place).Visible;
    }
    const bool pileIsFull = window_.UpCardIndex >= kUpCards - 1 && !hasGap;
    Add(spots, window_.PlayCardPicture, window_.StockIndex >= 0 && !pileIsFull, false, "stock");
    const bool selected = window_.UpCardSelectionRectangle.Visible;
    const bool fits = window_.UpCardIndex != 0 && (selected || Fits(window_.UpCards[window_.UpCardIndex]));
    Add(spots, window_.UpCardPicture, fits, selected, "up card");
    return spots;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Click cards that lie free and add up to the goal: they go.",
            "Below them lie the stock and the card turned up, which counts too.",
            "Clear the field before the time is up."};
  }

 protected:
  std::vector<KeyRow> BoardKeys() const override {
    return {RankKeys(),
            {"D", "Turn the next card of the stock", {{"D", "PlayCardPicture"}}},
            {"U", "The card turned up", {{"U", "UpCardPicture"}}},
            BackKey()};
  }

  std::string BoardState() const override {
    return "Selected " + std::to_string(window_.CurrentTotal) + " of " + std::to_string(window_.CardGoal) +
           ".";
  }

 private:
  bool Fits(const std::string& card) const {
    return CardValue(card) + window_.CurrentTotal <= window_.CardGoal;
  }

  frmSumfall& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmSumfall& window) { return std::make_unique<SumfallGuide>(window); }
