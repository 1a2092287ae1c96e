// Keys and words for the board.
#include "suite/guide.h"

#include "games/sumfall/sumfall.h"

using namespace modSumfall;

namespace {

class SumfallGuide : public GameGuide {
 public:
  explicit SumfallGuide(frmSumfall& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Places() const override {
    std::vector<Spot> spots;
    const Board& board = window_.board;
    for (int place = 0; place < kPlaces; ++place)
      Add(spots, window_.FieldCardPicture(place), board.Takes(place), board.selected[place]);
    AddStock(spots, window_.PlayCardPicture, board.CanTurn());
    Add(spots, window_.UpCardPicture, board.Takes(kUpCard), board.selected[kUpCard], "up card");
    return spots;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Click cards that lie free and add up to the goal: they go.",
            "Below them lie the stock and the card turned up, which counts too.",
            "Clear the field before the time is up."};
  }

 protected:
  bool IsStuck() const override { return window_.board.IsStuck(); }

  std::vector<KeyRow> BoardKeys() const override {
    return {RankKeys(),
            {"D", "Turn the next card of the stock", {{"D", "PlayCardPicture"}}},
            {"U", "The card turned up", {{"U", "UpCardPicture"}}},
            BackKey()};
  }

  std::string BoardState() const override {
    return "Selected " + std::to_string(window_.board.total) + " of " + std::to_string(window_.CardGoal) +
           ".";
  }

 private:
  frmSumfall& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmSumfall& window) { return std::make_unique<SumfallGuide>(window); }
