// What the guides to the games with columns up to 21 have in common.
#pragma once

#include "suite/column21.h"
#include "suite/guide.h"

template <class Window>
class ColumnGuide : public GameGuide {
 public:
  explicit ColumnGuide(Window& window) : GameGuide(window), window_(window) {}

  std::vector<Spot> Places() const override {
    std::vector<Spot> spots;
    AddStock(spots, window_.PlayCardPicture);
    Add(spots, window_.NextCardPicture, false, false, "next card");
    for (int i = 0; i < window_.cmdHit.size(); ++i) {
      const std::string name = "olumn " + std::to_string(i + 1);
      for (int slot = 0; slot < kCardsOfColumn; ++slot)
        Add(spots, window_.ColumnImages(i)(slot), false, false, "c" + name);
      spots.push_back({&window_.cmdHit(i),
                       "C" + name + ": " + std::to_string(window_.board.columns[i].total) +
                           (SaysSoft(i) ? ", soft" : "") + (IsOpen(i) ? "" : ", closed"),
                       IsOpen(i) && Plays()});
    }
    return spots;
  }

  std::string Says(const Label& label) const override {
    for (int i = 0; i < window_.cmdHit.size(); ++i)
      if (&label == &window_.ColumnTotal(i) || &label == &window_.ColumnSoft(i))
        return "Column " + std::to_string(i + 1) + ": " + label.Caption.get();
    return GameGuide::Says(label);
  }

 protected:
  // Whether the column takes the next card, and whether the word "Soft" stands there.
  virtual bool IsOpen(int column) const = 0;
  virtual bool SaysSoft(int column) const = 0;

  std::vector<KeyRow> BoardKeys() const override {
    const int columns = window_.cmdHit.size();
    KeyRow hits{"1 to " + std::to_string(columns), "Hit on that column", {}};
    for (int i = 0; i < columns; ++i)
      hits.clicks.push_back({std::to_string(i + 1), window_.cmdHit(i).NameInForm()});
    return {hits,
            {"-", "Pass", {{"-", "cmdPass"}}},
            {"Arrows", "Go to the Hit button of another column; with Ctrl to any card", {}},
            {"Space, Return", "Click where the cursor is", {}}};
  }

  std::string NextCard() const {
    const auto& board = window_.board;
    if (!board.HasNext()) return "Next card Empty.";
    return "Next card " + SpokenPicture(window_.common.ImageList2(CardKey(board.Next()))) + ".";
  }

  Window& window_;
};
