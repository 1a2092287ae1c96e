// Keys and words for the board.
#include "suite/guide.h"

#include "games/duopick/duopick.h"

using namespace modDuopick;

namespace {

class DuopickGuide : public GameGuide {
 public:
  explicit DuopickGuide(frmDuopick& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Places() const override {
    std::vector<Spot> spots;
    for (int card = 0; card < kCards; ++card) {
      if (card == kUpCard) AddStock(spots, window_.CardStackPicture, !window_.board.stack.empty());
      Add(spots, window_.PlayCard(card), window_.board.Takes(card), window_.board.selected == card,
          card == kUpCard ? "up card" : "");
    }
    return spots;
  }

  // A selected card takes no click: a free one that doesn't go with it makes the player let go of both.
  Visual* LetsGo() const override {
    const Board& board = window_.board;
    if (!Plays() || board.selected == kNone) return nullptr;
    for (int card = kCards; card-- > 0;)
      if (card != board.selected && board.CheckForLegalMove(card) && !board.Takes(card))
        return &window_.PlayCard(card);
    return nullptr;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Click two free cards: a pair, or neighbours in rank.",
            "The card turned up beside the stock counts, too.", "Clear the top row before the time is up."};
  }

 protected:
  bool IsStuck() const override { return window_.board.IsStuck(); }

  std::vector<KeyRow> BoardKeys() const override {
    return {RankKeys(),
            {"D", "Turn the next card of the stock; a selected card is let go", {{"D", "CardStackPicture"}}},
            {"U", "The card turned up", {{"U", "PlayCard(23)"}}},
            BackKey()};
  }

  std::string BoardState() const override {
    return std::to_string(window_.board.PairsCount) + " pairs, " + std::to_string(window_.board.RunsCount) +
           " runs, " + std::to_string(window_.board.stack.size()) + " cards in the stock.";
  }

 private:
  frmDuopick& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmDuopick& window) { return std::make_unique<DuopickGuide>(window); }
