#include "games/sumfall/guide.h"

namespace {

class SumfallGuide : public GameGuide {
 public:
  explicit SumfallGuide(frmSumfall& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    for (int place = 0; place < modSumfall::kPlaces; ++place)
      Add(spots, window_.FieldCardPicture(place), window_.CheckLegalFieldCardMove(place),
          window_.FieldSelectionRectangle(place).Visible);
    Add(spots, window_.PlayCardPicture, window_.PlayCardPicture.Picture != kEmptyPlace);
    Add(spots, window_.UpCardPicture, window_.UpCardIndex != 0, window_.UpCardSelectionRectangle.Visible);
    return spots;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Click cards that lie free and add up to the goal: they go.",
            "Below them lie the stock and the card turned up, which counts too.",
            "Clear the field before the time is up."};
  }

 protected:
  std::vector<KeyRow> BoardKeys() const override {
    return {{"A, 2 to 9, 0 or T, J, Q, K", "The next free card of that rank", {}},
            {"D", "Turn the next card of the stock", {{"D", "PlayCardPicture"}}},
            {"U", "The card turned up", {{"U", "UpCardPicture"}}},
            {"Backspace", "Take back the card selected last", {}}};
  }

  std::string BoardState() const override {
    return "Selected " + std::to_string(window_.CurrentTotal) + " of " + std::to_string(window_.CardGoal) +
           ".";
  }

 private:
  frmSumfall& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmSumfall& window) { return std::make_unique<SumfallGuide>(window); }
