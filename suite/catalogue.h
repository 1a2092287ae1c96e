// The 68 pictures of the suite, and the image list through which windows ask for them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "window/pictures.h"

inline constexpr int kPictureCount = 68;
inline constexpr int kFirstFace = 14, kLastFace = 65;  // ace of spades, king of diamonds
inline constexpr int kEmptyPlace = 13, kEmptyWide = 67;

// The files of the pictures, in catalogue order.
PictureFiles Catalogue();

// An ordered list of pictures, each with an index from 1 and an optional key. Capitals and small letters
// differ.
class ImageList {
 public:
  ImageList();

  // The index of the picture with this key. Raises "Element not found" if there is none.
  int operator()(std::string_view key) const;
  // Whether a picture has this key.
  bool Has(std::string_view key) const;
  // Gives the picture of that index a key; "" takes its key away.
  void SetKey(int index, std::string_view key);
  const std::string& Key(int index) const;

 private:
  int Find(std::string_view key) const;
  std::array<std::string, kPictureCount + 1> keys_;
};

// The pictures of one card back design.
struct BackDesign {
  const char* menu;
  const char* caption;
  int full, back, half;  // catalogue indices
};
inline constexpr BackDesign kPalmTree{"mnuPalm", "&Palm Tree", 1, 2, 3};
inline constexpr BackDesign kMagicHands{"mnuMagic", "&Magic Hands", 4, 5, 6};
inline constexpr BackDesign kNightCastle{"mnuNight", "&Night Castle", 7, 8, 9};
inline constexpr BackDesign kHotCards{"mnuHot", "&Hot Cards", 10, 11, 12};

// Moves the keys "FULL", "BACK" and "HALF" to the pictures of a design.
void UseBackDesign(ImageList& images, const BackDesign& design);

// The key of a stock's picture by the number of its cards: it is full from `full` cards on, half from `half`.
const char* StockKey(long long cards, int full, int half);
