// Where the columns of a game of columns up to 21 stand.
#pragma once

#include <array>

#include "suite/column21.h"

// Of the first column, and the distance from one to the next.
struct ColumnPlaces {
  int left, pitch, totalTop, softTop;
  std::array<int, kCardsOfColumn> slotTops;
  int hitLeft, hitTop;
};

inline constexpr int kCardWidth = 1035, kCardHeight = 1455;

// What all columns are at first, and on which heights.
template <class Window>
void SetUpColumns(Window& window, const ColumnPlaces& places) {
  for (int i = 0; i < window.cmdHit.size(); ++i) {
    for (int slot = 0; slot < kCardsOfColumn; ++slot)
      window.ColumnImages(i)(slot).Visual::Move(0, places.slotTops[slot], kCardWidth, kCardHeight);
    window.ColumnTotal(i).Visual::Move(0, places.totalTop, 495, 360);
    window.cmdHit(i).Visual::Move(0, places.hitTop, kCardWidth, 570);
  }
  window.ColumnTotal.Set(&Label::Caption, "0");
  window.ColumnTotal.Set(&Label::Alignment, 2);
  window.ColumnSoft.Set(&Label::Visible, false);
  window.ColumnSoft.Set(&Label::Remark, true);
  window.cmdHit.Set(&CommandButton::Caption, "Hit");
}

// Places cards and buttons in the middle of the present window, column by column. `heads(column, left)`
// places what stands above the cards of that column.
template <class Window, class Heads>
void PlaceColumns(Window& window, const ColumnPlaces& places, Heads heads) {
  const int right = (window.Width - window.plan.width) / 2, down = (window.Height - window.plan.height) / 2;
  for (int i = 0; i < window.cmdHit.size(); ++i) {
    const int shift = i * places.pitch + right;
    for (int slot = 0; slot < kCardsOfColumn; ++slot) {
      window.ColumnImages(i)(slot).Left = places.left + shift;
      window.ColumnImages(i)(slot).Top = places.slotTops[slot] + down;
    }
    heads(i, places.left + shift);
    window.cmdHit(i).Left = places.hitLeft + shift;
    window.cmdHit(i).Top = places.hitTop + down;
  }
}
