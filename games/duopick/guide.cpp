#include "games/duopick/guide.h"

using namespace modDuopick;

namespace {

class DuopickGuide : public GameGuide {
 public:
  explicit DuopickGuide(frmDuopick& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    for (int card = 0; card < kCards; ++card) {
      const bool pileIsEmpty = card == kUpCard && window_.cards.WastePos == 0;
      Image& image = window_.PlayCard(card);
      if (card == kUpCard)
        Add(spots, window_.CardStackPicture, StackStage(window_.cards.StackIndex + 1) != nullptr, false,
            "stock");
      Add(spots, image, !pileIsEmpty && window_.CheckForLegalMove(card) && Matches(card),
          window_.FieldSelectionRectangle(card).Visible, card == kUpCard ? "up card" : "");
    }
    return spots;
  }

  // A selected card takes no click: a free one that doesn't go with it makes the player let go of both.
  Visual* LetsGo() const override {
    if (window_.CardsSelected == 0) return nullptr;
    for (int card = kCards; card-- > 0;) {
      const bool lies = window_.PlayCard(card).Visible && (card != kUpCard || window_.cards.WastePos > 0);
      if (lies && window_.CheckForLegalMove(card) && !Matches(card)) return &window_.PlayCard(card);
    }
    return nullptr;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Click two free cards: a pair, or neighbours in rank.",
            "The card turned up beside the stock counts, too.", "Clear the top row before the time is up."};
  }

 protected:
  std::vector<KeyRow> BoardKeys() const override {
    return {RankKeys(),
            {"D", "Turn the next card of the stock; a selected card is let go", {{"D", "CardStackPicture"}}},
            {"U", "The card turned up", {{"U", "PlayCard(23)"}}},
            BackKey()};
  }

  std::string BoardState() const override {
    return std::to_string(window_.PairsCount) + " pairs, " + std::to_string(window_.RunsCount) + " runs, " +
           std::to_string(window_.CardsRemaining) + " cards in the stock.";
  }

 private:
  // Goes with the card selected, if there is one.
  bool Matches(int card) const {
    return window_.CardsSelected == 0 || window_.FieldSelectionRectangle(card).Visible ||
           MatchOf(window_.FirstCardValue, CardValue(window_.cards.DeckCards[card])) != Match::None;
  }

  frmDuopick& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmDuopick& window) { return std::make_unique<DuopickGuide>(window); }
