// Empty places, the pointer and the title card of Sumfall.
#include <string>

#include "palette.h"
#include "pictures.h"
#include "svg.h"

namespace pictures {
namespace {

/// A shallow hollow in the cloth: dark above, light below, as the light comes from the top left.
void DrawHollow(std::string& out, double width, double height) {
  Box(out, "#00180C", 0, 0, width, height, 3, .16);
  Frame(out, "#00180C", 1, .5, .5, width - 1, height - 1, 2.5, .45);
  Frame(out, "#E8FFF0", 1, 1.5, 1.5, width - 3, height - 3, 2, .3);
}

}  // namespace

std::string DrawEmptyPlace() {
  std::string out;
  BeginPicture(out, 71, 96);
  DrawHollow(out, 71, 96);
  Open(out, "transform=\"translate(35.5 48)\" fill=\"#E8FFF0\" fill-opacity=\".22\"");
  const Suit suits[] = {Suit::kSpades, Suit::kHearts, Suit::kClubs, Suit::kDiamonds};
  const char* const places[] = {"translate(0 -14)", "translate(13 0)", "translate(0 14)", "translate(-13 0)"};
  for (int i = 0; i < 4; ++i) {
    Open(out, Join({"transform=\"", places[i], "\""}));
    out.append("<path d=\"").append(SuitPath(suits[i])).append("\"/>\n");
    Close(out);
  }
  Close(out);
  EndPicture(out);
  return out;
}

std::string DrawEmptyWidePlace() {
  std::string out;
  BeginPicture(out, 76, 100);
  DrawHollow(out, 76, 100);
  Frame(out, "#E8FFF0", 1, 5.5, 5.5, 65, 89, 1.5, .2);
  out.append(
      "<circle cx=\"38\" cy=\"50\" r=\"17\" fill=\"none\" stroke=\"#E8FFF0\" stroke-opacity=\".3\" "
      "stroke-width=\"4\"/>\n");
  EndPicture(out);
  return out;
}

std::string DrawPointer() {
  std::string out;
  BeginPicture(out, 32, 32);
  constexpr char kHand[] =
      "M9.6 18V4.4C9.6 1.6 13.8 1.6 13.8 4.4V12.2C14.4 10.4 17.8 10.6 17.8 12.8 "
      "18.6 11.2 21.6 11.6 21.6 13.8 22.6 12.6 25 13.2 25 15.6V20C25 23.2 24 25 23 26.6V29.4H12.6"
      "V27C10 24.6 7.4 21.4 5.6 18.2 4.2 15.6 7 14.2 8.6 16.4Z";
  Open(out, Join({"transform=\"rotate(-24 12 4) translate(-5.7 -3)\" stroke=\"", kInk,
                  "\" stroke-width=\"1.3\" stroke-linejoin=\"round\" stroke-linecap=\"round\""}));
  Shape(out, kWhite, kHand);
  Line(out, kInk, 1.1, "M13.8 12.2V17M17.8 13V17M21.6 14V17.4");
  Line(out, kSteel, 1, "M11.4 5.4V15.6", .6);
  Shape(out, kRed, "M11.6 30V26.8H24V30Z");
  Close(out);
  EndPicture(out);
  return out;
}

std::string DrawSumfall() {
  std::string out;
  BeginPicture(out, 71, 96);
  out.append("<defs>");
  Gradient(out, "a", 0, 0, 0, 96, "#1B5C86", "#0E2C4E");
  Gradient(out, "b", 0, 6, 0, 28, "#FFE9A0", "#E2A52F");
  out.append("</defs>\n");
  Box(out, kInk, 0, 0, 71, 96, 2);
  Box(out, kPaper, 1, 1, 69, 94, 1);
  Box(out, "url(#a)", 4, 4, 63, 88);
  Frame(out, "#E2B74E", 1, 6.5, 6.5, 58, 83);
  // The sum that clears two cards.
  Open(out, "transform=\"translate(35.5 10)\"");
  Flat(out, "#081B33", "M-6.5 1H-1.5V19.4H-6.1V6.6L-10.1 8.6V4.2ZM5.5 1H10.5V19.4H5.9V6.6L1.9 8.6V4.2Z", .5);
  Flat(out, "url(#b)", "M-7.5 0H-2.5V18.4H-7.1V5.6L-11.1 7.6V3.2ZM4.5 0H9.5V18.4H4.9V5.6L.9 7.6V3.2Z");
  Close(out);
  // Six tiers; each lower one covers the feet of the one above, like tiles on a roof.
  constexpr double kTileWidth = 8.4;
  constexpr double kTileHeight = 12;
  const Suit suits[] = {Suit::kSpades, Suit::kHearts, Suit::kClubs, Suit::kDiamonds};
  int count = 0;
  for (int tier = 0; tier < 6; ++tier) {
    const double y = 31 + tier * 8.6;
    for (int i = 0; i <= tier; ++i, ++count) {
      const double x = 35.5 + (i - tier / 2.0) * 9.2 - kTileWidth / 2;
      Box(out, "#061526", x - .7, y - .7, kTileWidth + 1.4, kTileHeight + 1.4, 1, .75);
      Box(out, kPaper, x, y, kTileWidth, kTileHeight, .7);
      DrawSuit(out, suits[(count * 3 + tier) % 4], x + kTileWidth / 2, y + 4.6, 5.4);
    }
  }
  EndPicture(out);
  return out;
}

}  // namespace pictures
