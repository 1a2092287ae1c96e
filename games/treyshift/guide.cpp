// Keys and words for the board.
#include "suite/guide.h"

#include "games/treyshift/treyshift.h"

using namespace modTreyshift;

namespace {

class TreyshiftGuide : public GameGuide {
 public:
  explicit TreyshiftGuide(frmTreyshift& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Places() const override {
    std::vector<Spot> spots;
    const Board& board = window_.board;
    const auto add = [&](Zone zone, Image& image, const std::string& place) {
      Add(spots, image, board.Takes(zone, image.index), board.IsSelected(zone, image.index), place);
    };
    for (int i = 0; i < kTempSlots; ++i)
      add(Zone::Temp, window_.TempCard(i), "storage " + std::to_string(i + 1));
    for (int slot = 0; slot < kFieldSlots; ++slot)
      add(Zone::Field, window_.PlayCard(slot), "column " + std::to_string(slot % kColumns + 1));
    AddStock(spots, window_.CardStackPicture);
    for (int i = 0; i < kUpSlots; ++i)
      add(Zone::Deck, window_.UpCard(i), i == kInPlay ? "deck" : "deck, later");
    return spots;
  }

  std::vector<std::string> FirstSteps() const override {
    return {"Click a card, then a column or a place of the storage.",
            "Three of a rank, or three in sequence, are paid and go.",
            "Use up the deck before the time is up."};
  }

 protected:
  std::vector<KeyRow> BoardKeys() const override {
    KeyRow columns{"1 to 4", "A column: take its last card, or lay one there", {}};
    for (int i = 0; i < kColumns; ++i)
      columns.clicks.push_back({std::to_string(i + 1), window_.PlayCard(i).NameInForm()});
    KeyRow storage{"Q, W, E", "A place of the storage", {}};
    for (int i = 0; i < kTempSlots; ++i)
      storage.clicks.push_back({{"QWE"[i]}, window_.TempCard(i).NameInForm()});
    return {{"D", "The card of the deck", {{"D", window_.UpCard(kInPlay).NameInForm()}}},
            columns,
            storage,
            BackKey(),
            {"Escape",
             "Let the card go that was taken; else pause",
             {{"Escape", kLastSelected}, {"Escape", "cmdPause"}}}};
  }

  std::string BoardState() const override {
    return std::to_string(window_.board.TripCount) + " trips, " + std::to_string(window_.board.RunCount) +
           " runs, " + std::to_string(window_.board.CardsRemaining()) + " cards remaining.";
  }

 private:
  frmTreyshift& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmTreyshift& window) { return std::make_unique<TreyshiftGuide>(window); }
