#include "suite/catalogue.h"

#include <algorithm>

#include "window/number.h"

namespace {

constexpr char kSuits[] = {'S', 'H', 'C', 'D'};

}  // namespace

PictureFiles Catalogue() {
  PictureFiles files;
  for (int design = 1; design <= 4; ++design) {
    const std::string name = "back" + std::to_string(design);
    files.push_back({name + "-full.svg", 76, 98, PictureKind::Pile});
    files.push_back({name + ".svg", 71, 96, PictureKind::Back});
    files.push_back({name + "-half.svg", 74, 97, PictureKind::Pile});
  }
  files.push_back({"empty.svg", 71, 96, PictureKind::Place});
  for (char suit : kSuits)
    for (int rank = 1; rank <= 13; ++rank) files.push_back({std::to_string(rank) + suit + ".svg", 69, 94});
  files.push_back({"pointer.svg", 32, 32});
  files.push_back({"empty-wide.svg", 76, 100, PictureKind::Place});
  files.push_back({"sumfall.svg", 71, 96});
  return files;
}

ImageList::ImageList() {
  keys_[1] = "FULL";
  keys_[2] = "BACK";
  keys_[3] = "HALF";
  keys_[13] = "EMPTY";
  int index = kFirstFace;
  for (char suit : kSuits)
    for (int rank = 1; rank <= 13; ++rank) keys_[index++] = std::to_string(rank) + suit;
  keys_[66] = "POINTER";
  keys_[67] = "Empty";
  keys_[68] = "SFUP";
}

int ImageList::Find(std::string_view key) const {
  if (key.empty()) return 0;
  // Asked at every card that is shown: the first sign settles most.
  const auto found = std::ranges::find_if(
      keys_, [&](const std::string& other) { return other[0] == key[0] && other == key; });
  return found == keys_.end() ? 0 : static_cast<int>(found - keys_.begin());
}

int ImageList::operator()(std::string_view key) const {
  const int index = Find(key);
  if (index == 0) RaiseElementNotFound();
  return index;
}

bool ImageList::Has(std::string_view key) const { return Find(key) != 0; }

void ImageList::SetKey(int index, std::string_view key) {
  if (index < 1 || index > kPictureCount) RaiseSubscript();
  keys_[index] = key;
}

const std::string& ImageList::Key(int index) const {
  if (index < 1 || index > kPictureCount) RaiseSubscript();
  return keys_[index];
}

void UseBackDesign(ImageList& images, const BackDesign& design) {
  for (int index = 1; index <= 12; ++index) images.SetKey(index, "");
  images.SetKey(design.full, "FULL");
  images.SetKey(design.back, "BACK");
  images.SetKey(design.half, "HALF");
}

const char* StockKey(long long cards, int full, int half) {
  if (cards <= 0) return "EMPTY";
  return cards >= full ? "FULL" : cards >= half ? "HALF" : "BACK";
}
