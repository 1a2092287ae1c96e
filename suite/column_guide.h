// What the guides to the games with columns up to 21 have in common.
#pragma once

#include <array>

#include "suite/column21.h"
#include "suite/guide.h"

template <class Window, size_t Columns>
class ColumnGuide : public GameGuide {
 public:
  using Column = ControlArray<Image, kCardsOfColumn>;

  ColumnGuide(Window& window, const std::array<Column*, Columns>& columns)
      : GameGuide(window), window_(window), columns_(columns) {}

  std::vector<Spot> Spots() const override {
    std::vector<Spot> spots;
    Add(spots, window_.PlayCardPicture, false, false, "stock");
    Add(spots, window_.NextCardPicture, false, false, "next card");
    for (int i = 0; i < static_cast<int>(Columns); ++i) {
      for (int slot = 0; slot < kCardsOfColumn; ++slot)
        Add(spots, (*columns_[i])(slot), false, false, "column " + std::to_string(i + 1));
      AddHit(spots, window_.cmdHit(i), window_.ColumnTotal(i), window_.ColumnSoft(i));
    }
    return spots;
  }

 protected:
  std::vector<KeyRow> BoardKeys() const override {
    return {HitKeys(Columns),
            {"-", "Pass", {{"-", "cmdPass"}}},
            {"Arrows", "Go to the Hit button of another column; with Ctrl to any card", {}},
            {"Space, Return", "Click where the cursor is", {}}};
  }

  std::string NextCard() const { return "Next card " + SpokenPicture(window_.NextCardPicture.Picture) + "."; }

  Window& window_;

 private:
  const std::array<Column*, Columns> columns_;
};
