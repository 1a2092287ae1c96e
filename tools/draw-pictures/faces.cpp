// Aces and number cards, and what all faces share: the ground and the four corner indices.
#include <string>
#include <vector>

#include "palette.h"
#include "pictures.h"
#include "svg.h"

namespace pictures {
namespace {

constexpr double kWidth = 69;
constexpr double kHeight = 94;
constexpr double kMiddleX = kWidth / 2;
constexpr double kMiddleY = kHeight / 2;

constexpr double kIndexX = 8;   // The middle of the index column.
constexpr double kRankTop = 1;  // Where the rank begins.
constexpr double kSignScale = .93;
constexpr double kSignY = 18.4;  // The middle of the small suit sign.

constexpr double kLeft = kMiddleX - 11;
constexpr double kRight = kMiddleX + 11;
constexpr double kTop = 15;
constexpr double kPipHeight = 13;

struct Spot {
  double x = 0;
  double y = 0;
};

std::string Place(double x, double y, double scale = 1) {
  std::string text = Join({"translate(", Num(x), " ", Num(y), ")"});
  if (scale != 1) text += Join({" scale(", Num(scale), ")"});
  return text;
}

/// The pips of the upper half; `middle` collects those on the middle line, which stand upright.
void PipSpots(int rank, std::vector<Spot>& upper, std::vector<Spot>& middle) {
  const double bottom = kHeight - kTop;
  const double step = (bottom - kTop) / 3;
  const bool two_columns = rank >= 4;
  const bool four_rows = rank >= 9;
  if (two_columns) {
    upper = {{kLeft, kTop}, {kRight, kTop}};
    if (four_rows) {
      upper.push_back({kLeft, kTop + step});
      upper.push_back({kRight, kTop + step});
    }
    if (rank >= 6 && !four_rows) middle = {{kLeft, kMiddleY}, {kRight, kMiddleY}};
  } else {
    upper = {{kMiddleX, kTop}};
  }
  if (rank == 3 || rank == 5 || rank == 9) middle.push_back({kMiddleX, kMiddleY});
  if (rank == 7 || rank == 8) upper.push_back({kMiddleX, (kTop + kMiddleY) / 2});
  if (rank == 10) upper.push_back({kMiddleX, kTop + step / 2});
}

void DrawPips(std::string& out, int rank) {
  std::vector<Spot> upper;
  std::vector<Spot> middle;
  PipSpots(rank, upper, middle);
  const double scale = kPipHeight / 12.3;
  for (const Spot& spot : upper) Use(out, "s", Place(spot.x, spot.y, scale));
  for (const Spot& spot : middle) Use(out, "s", Place(spot.x, spot.y, scale));
  for (const Spot& spot : upper) {
    // The seven has its single pip in the upper half only.
    if (rank == 7 && spot.x == kMiddleX) continue;
    Use(out, "s", Place(kWidth - spot.x, kHeight - spot.y, -scale));
  }
}

/// A star with four points and a dot in its middle, cut out of the sign of an ace.
void DrawStar(std::string& out, std::string_view colour, double y, double size) {
  Open(out, Join({"transform=\"", Place(0, y, size / 6), "\""}));
  Flat(out, kPaper, "M0-6C1.2-3 3-1.2 6 0 3 1.2 1.2 3 0 6-1.2 3-3 1.2-6 0-3-1.2-1.2-3 0-6Z");
  Dot(out, colour, 0, 0, 1.3);
  Close(out);
}

/// The ace: one large sign, engraved with an inner line and a star, the spade richest of all.
void DrawAce(std::string& out, Suit suit, std::string_view colour) {
  const bool spade = suit == Suit::kSpades;
  const double scale = spade ? 1.12 : 1.1;
  Open(out, Join({"transform=\"", Place(kMiddleX, kMiddleY, scale),
                  "\" stroke-linecap=\"round\" stroke-linejoin=\"round\""}));
  Use(out, "s", Join({"scale(", Num(spade ? 3.2 : 2.8), ")"}));
  switch (suit) {
    case Suit::kSpades:
      Line(out, kPaper, .7,
           "M0-15.2C4.7-9 15.2-3.8 15.2 5.3 15.2 9.4 12.6 12 9.4 12 6.4 12 3.8 10.4 2.4 7.2M0-15.2"
           "C-4.7-9-15.2-3.8-15.2 5.3-15.2 9.4-12.6 12-9.4 12-6.4 12-3.8 10.4-2.4 7.2");
      Flat(out, kPaper,
           "M0 4.2C1.2 6 1.2 8.6 0 11.6-1.2 8.6-1.2 6 0 4.2ZM1.2 3.2C3.6 3 6.4 4.2 8 7.2 "
           "5 7 2.4 5.8 1.2 3.2ZM-1.2 3.2C-3.6 3-6.4 4.2-8 7.2-5 7-2.4 5.8-1.2 3.2Z");
      Dot(out, kPaper, 9.2, 3.4, 1.2);
      Dot(out, kPaper, -9.2, 3.4, 1.2);
      DrawStar(out, colour, -3.4, 6.2);
      break;
    case Suit::kHearts:
      Line(out, kPaper, .6,
           "M0 13.4C-4.1 7.7-14.3 1-14.3-6.8-14.3-11.4-11.8-14.1-8.3-14.1-4.6-14.1-1.7-11.6 0-6.6 "
           "1.7-11.6 4.6-14.1 8.3-14.1 11.8-14.1 14.3-11.4 14.3-6.8 14.3 1 4.1 7.7 0 13.4Z");
      DrawStar(out, colour, .6, 5.4);
      break;
    case Suit::kClubs:
      Line(out, kPaper, .6,
           "M-2.5-4A5.8 5.8 0 1 1 2.5-4M3.7 1.9A5.8 5.8 0 1 1 3.7 6.8M-3.7 1.9A5.8 5.8 0 1 0-3.7 6.8");
      DrawStar(out, colour, 2.2, 4.6);
      break;
    case Suit::kDiamonds:
      Line(out, kPaper, .6,
           "M0-14.8C3.1-9.6 6.7-4.3 11.6 0 6.7 4.3 3.1 9.6 0 14.8-3.1 9.6-6.7 4.3-11.6 0"
           "-6.7-4.3-3.1-9.6 0-14.8Z");
      DrawStar(out, colour, 0, 5.4);
      break;
  }
  Close(out);
}

/// Rank and suit sign in all four corners, the lower two turned.
void DrawIndices(std::string& out, int rank) {
  const double rank_x = kIndexX - RankWidth(rank) / 2;
  Open(out, "id=\"r\"");
  Open(out, "id=\"l\"");
  Open(out, Join({"transform=\"", Place(rank_x, kRankTop), "\""}));
  out.append("<path d=\"").append(RankPath(rank)).append("\"/>\n");
  Close(out);
  Use(out, "t", Place(kIndexX, kSignY, kSignScale));
  Close(out);
  Use(out, "l", Join({"translate(", Num(kWidth - 2 * kIndexX), " 0)"}));
  Close(out);
  Use(out, "r", Join({"rotate(180 ", Num(kMiddleX), " ", Num(kMiddleY), ")"}));
}

}  // namespace

std::string DrawFace(Suit suit, int rank, Colours colours) {
  std::string out;
  BeginPicture(out, kWidth, kHeight);
  out.append("<defs><path id=\"s\" d=\"").append(SuitPath(suit)).append("\"/>");
  out.append("<path id=\"t\" d=\"").append(SmallSuitPath(suit)).append("\"/></defs>\n");
  Box(out, kPaper, 0, 0, kWidth, kHeight);
  if (rank > 10) DrawCourt(out, suit, rank, colours);
  Open(out, Join({"fill=\"", SuitColour(suit, colours), "\""}));
  DrawIndices(out, rank);
  if (rank == 1) DrawAce(out, suit, SuitColour(suit, colours));
  if (rank > 1 && rank <= 10) DrawPips(out, rank);
  Close(out);
  EndPicture(out);
  return out;
}

}  // namespace pictures
