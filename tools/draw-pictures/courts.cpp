// The middle of a court card: a panel with a figure that is drawn once and turned for the lower half.
#include "courts.h"

#include <array>

#include "heads.h"
#include "palette.h"
#include "pictures.h"
#include "svg.h"

namespace pictures {
namespace {

struct Court {
  void (*draw)(std::string&);
  std::string_view sash;
  std::string_view edge;
  std::string_view gem;
};

constexpr std::array<std::array<Court, 3>, 4> kCourts = {{
    {{{JackOfSpades, kNavy, kSilver, kBlue},
      {QueenOfSpades, kNavy, kSilver, kViolet},
      {KingOfSpades, kViolet, kGold, kBlue}}},
    {{{JackOfHearts, kWine, kGold, kRed},
      {QueenOfHearts, kWine, kGold, kRed},
      {KingOfHearts, kNavy, kGold, kRed}}},
    {{{JackOfClubs, kBrown, kGold, kGreen},
      {QueenOfClubs, kMoss, kGold, kWine},
      {KingOfClubs, kMoss, kGold, kWine}}},
    {{{JackOfDiamonds, kPine, kGold, kOrange},
      {QueenOfDiamonds, kPine, kGold, kOrange},
      {KingOfDiamonds, kPine, kGold, kRed}}},
}};

}  // namespace

void DrawCourt(std::string& out, Suit suit, int rank, Colours colours) {
  const Court& court = kCourts[static_cast<int>(suit)][rank - 11];
  Box(out, kPanel, 15, 3, 39, 88);
  Open(out, Join({"transform=\"translate(34.5 47)\" stroke=\"", kInk,
                  "\" stroke-width=\".6\" stroke-linejoin=\"round\""}));
  Open(out, "id=\"h\"");
  DrawSuit(out, suit, -14.1, -38.2, 8.2, colours);
  court.draw(out);
  Close(out);
  Use(out, "h", "rotate(180)");
  DrawSash(out, court.sash, court.edge, court.gem);
  Frame(out, kCourtFrame, 1, -19, -43.5, 38, 87);
  Close(out);
}

}  // namespace pictures
