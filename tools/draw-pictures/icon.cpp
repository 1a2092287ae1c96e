// The application's icon: two cards on a rounded tile of green cloth. Where there are few pixels the cards
// stand upright, with edges on whole pixels and one sign; and the icon of a saved game: such cards on a
// sheet.
#include <iterator>
#include <string>

#include "palette.h"
#include "pictures.h"
#include "svg.h"

namespace pictures {

std::string DrawIcon() {
  std::string out;
  BeginPicture(out, 256, 256);
  out.append("<defs>");
  Gradient(out, "a", 0, 8, 0, 248, "#3C9A63", "#14573A");
  out.append("</defs>\n");
  Box(out, "#0C3A26", 8, 8, 240, 240, 52);
  Box(out, "url(#a)", 14, 14, 228, 228, 46);
  Open(out, "transform=\"rotate(-14 96 120)\"");
  Box(out, "#062417", 44, 46, 104, 148, 14, .35);
  Box(out, kInk, 38, 38, 104, 148, 14);
  Box(out, kPaper, 44, 44, 92, 136, 9);
  DrawSuit(out, Suit::kHearts, 74, 80, 52);
  Close(out);
  Open(out, "transform=\"rotate(9 160 140)\"");
  Box(out, "#062417", 106, 72, 116, 156, 14, .35);
  Box(out, kInk, 100, 64, 116, 156, 14);
  Box(out, kPaper, 106, 70, 104, 144, 9);
  DrawSuit(out, Suit::kSpades, 158, 143, 92);
  Close(out);
  EndPicture(out);
  return out;
}

namespace {

// A card of `width` pixels, half as high again, with a line of ink around it.
void SmallCard(std::string& out, double x, double y, double width, double height) {
  Box(out, kInk, x, y, width, height, width / 6);
  Box(out, kPaper, x + 1, y + 1, width - 2, height - 2, width / 12);
}

}  // namespace

std::string DrawSmallIcon(int size) {
  // Places in whole pixels of each size.
  struct Layout {
    int size, edge, backX, backY, frontX, frontY, width, height;
    double sign;
  };
  constexpr Layout kLayouts[] = {{16, 0, 2, 2, 5, 3, 9, 12, 7},
                                 {22, 1, 3, 3, 7, 5, 12, 15, 9},
                                 {24, 1, 4, 3, 8, 5, 13, 16, 10},
                                 {32, 1, 5, 4, 10, 7, 17, 21, 13}};
  const Layout* layout = std::begin(kLayouts);
  while (layout->size != size) ++layout;
  std::string out;
  BeginPicture(out, size, size);
  const double tile = size - 2 * layout->edge;
  Box(out, "#1F6B45", layout->edge, layout->edge, tile, tile, tile / 5);
  SmallCard(out, layout->backX, layout->backY, layout->width, layout->height);
  SmallCard(out, layout->frontX, layout->frontY, layout->width, layout->height);
  DrawSuit(out, Suit::kSpades, layout->frontX + layout->width / 2.0, layout->frontY + layout->height / 2.0,
           layout->sign);
  EndPicture(out);
  return out;
}

std::string DrawGameFileIcon() {
  std::string out;
  BeginPicture(out, 64, 64);
  Flat(out, "#8D99AB", "M13 3h28l12 12v44a2 2 0 0 1 -2 2h-38a2 2 0 0 1 -2 -2v-54a2 2 0 0 1 2 -2z");
  Flat(out, "#FFFFFF", "M13 5h27v11h11v43h-38z");
  Flat(out, "#D5DBE4", "M42 5l9 9h-9z");
  Box(out, "#1F6B45", 17, 22, 30, 33, 4);
  SmallCard(out, 21, 26, 15, 20);
  SmallCard(out, 28, 31, 15, 20);
  DrawSuit(out, Suit::kSpades, 35.5, 41, 12);
  EndPicture(out);
  return out;
}

}  // namespace pictures
