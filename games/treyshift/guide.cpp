#include "games/treyshift/guide.h"

using namespace modTreyshift;

namespace {

class TreyshiftGuide : public GameGuide {
 public:
  explicit TreyshiftGuide(frmTreyshift& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    for (int i = 0; i < kTempSlots; ++i)
      Add(spots, window_.TempCard(i), TakesStored(i), window_.TempCardSelection(i).Visible,
          "storage " + std::to_string(i + 1));
    for (int slot = 0; slot < kFieldSlots; ++slot)
      Add(spots, window_.PlayCard(slot), TakesColumn(slot % kColumns),
          window_.PlayCardSelection(slot).Visible, "column " + std::to_string(slot % kColumns + 1));
    Add(spots, window_.CardStackPicture, false, false, "stock");
    for (int i = 0; i < kUpSlots; ++i)
      Add(spots, window_.UpCard(i), i == kInPlay && (!window_.Selected || window_.UpCardSelection.Visible),
          i == kInPlay && window_.UpCardSelection.Visible, i == kInPlay ? "deck" : "deck, later");
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
    return std::to_string(window_.TripCount) + " trips, " + std::to_string(window_.RunCount) + " runs, " +
           std::to_string(CardsRemaining(window_.DeckPosition)) + " cards remaining.";
  }

 private:
  bool CanMove() const { return window_.DeckPosition < kBeyondDeck; }
  bool IsEmpty(const Image& slot) const { return slot.Picture == kEmptyPlace; }

  bool TakesStored(int index) const {
    if (IsEmpty(window_.TempCard(index))) return window_.Selected && CanMove();
    return !window_.Selected || window_.TempCardSelection(index).Visible;
  }

  // Wherever a column is clicked, its lowest slot is meant.
  bool TakesColumn(int column) const {
    int slot = column;
    for (int below = slot + kColumns; below < kFieldSlots; below += kColumns)
      if (window_.PlayCard(below).Visible) slot = below;
    const Image& lowest = window_.PlayCard(slot);
    if (!window_.Selected) return !IsEmpty(lowest);
    if (window_.PlayCardSelection(slot).Visible) return true;
    return CanMove() && (slot < kThirdRow || lowest.Picture == 0);
  }

  frmTreyshift& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(frmTreyshift& window) { return std::make_unique<TreyshiftGuide>(window); }
