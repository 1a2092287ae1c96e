// The seven games as small signs, for buttons: few shapes, to be told apart at twenty pixels.
#include "palette.h"
#include "pictures.h"
#include "svg.h"

namespace pictures {
namespace {

void Card(std::string& out, double x, double y, double width, double height,
          std::string_view paper = kPaper) {
  Box(out, kInk, x, y, width, height, 1.2);
  Box(out, paper, x + .7, y + .7, width - 1.4, height - 1.4, .7);
}

// Cards that add up: one above two, a golden plus between those.
void Sumfall(std::string& out) {
  Card(out, 7.5, .5, 9, 12.5);
  DrawSuit(out, Suit::kSpades, 12, 5, 5);
  Card(out, 1.5, 9.5, 9, 13.5);
  DrawSuit(out, Suit::kHearts, 6, 16.3, 6.5);
  Card(out, 13.5, 9.5, 9, 13.5);
  DrawSuit(out, Suit::kClubs, 18, 16.3, 6.5);
  Dot(out, kInk, 12, 17, 4);
  Dot(out, kGold, 12, 17, 3.3);
  Line(out, kInk, 1.3, "M10 17H14M12 15V19");
}

// Five columns under the line of 21.
void Fivestack(std::string& out) {
  constexpr double kHeights[] = {10, 15, 18.5, 13, 7};
  for (int i = 0; i < 5; ++i) {
    const double x = 1 + i * 4.5, top = 23.5 - kHeights[i];
    Card(out, x, top, 4, kHeights[i], i == 2 ? kPaleGold : kPaper);
    for (double y = top + 3.4; y < 22; y += 3.4) Box(out, kSteel, x + .7, y, 2.6, .6);
  }
  Box(out, kInk, .5, 1.5, 23, 2.6, 1);
  Box(out, kGold, 1, 2, 22, 1.6, .6);
}

// A card of 21 in a hurry.
void Blackrush(std::string& out) {
  Line(out, kBronze, 1.4, "M.8 6.5H6M.8 12H4.5M.8 17.5H3.2");
  Open(out, "transform=\"rotate(9 14 12)\"");
  Box(out, kInk, 6, 1.5, 16, 21, 2);
  Box(out, kGold, 6.8, 2.3, 14.4, 19.4, 1.4);
  Box(out, kBlack, 7.7, 3.2, 12.6, 17.6, .9);
  Line(out, kPaleGold, 1.7,
       "M9.6 9.8C9.8 7.2 13.2 7.4 13.2 9.7C13.2 11.6 9.8 13.6 9.6 16H13.6M15.4 9.4L17.4 8V16.4");
  Close(out);
}

// Three towers of cards that lie face down.
void Spirehold(std::string& out) {
  for (int tower = 0; tower < 3; ++tower) {
    const double left = .4 + tower * 7.8;
    Card(out, left + 1.7, 1.5, 4.2, 8, kSky);
    for (int i = 0; i < 2; ++i) Card(out, left + i * 3.6, 7.5, 4, 8, kBlue);
  }
  for (int i = 0; i < 4; ++i) {
    Card(out, .4 + i * 5.9, 14, 5.5, 9);
    DrawSuit(out, i % 2 ? Suit::kHearts : Suit::kSpades, 3.15 + i * 5.9, 18.4, 3.6);
  }
}

// Two of a kind that go together.
void Duopick(std::string& out) {
  Open(out, "transform=\"rotate(-11 8 20)\"");
  Card(out, 1.5, 3.5, 10.5, 16);
  DrawSuit(out, Suit::kDiamonds, 6.75, 11.5, 9);
  Close(out);
  Open(out, "transform=\"rotate(11 16 20)\"");
  Card(out, 12, 3.5, 10.5, 16);
  DrawSuit(out, Suit::kHearts, 17.25, 11.5, 8.5);
  Close(out);
}

// Five by five, and a hand in one row.
void Handgrid(std::string& out) {
  Box(out, kInk, .5, .5, 23, 23, 2);
  Box(out, kGreen, 1.2, 1.2, 21.6, 21.6, 1.4);
  Box(out, kGold, 1.2, 9.8, 21.6, 4.6);
  for (int row = 0; row < 5; ++row)
    for (int column = 0; column < 5; ++column) {
      const bool lies = row <= 2 || (row == 3 && column < 2);
      Box(out, lies ? kPaper : kMoss, 2.2 + column * 4.15, 2 + row * 4.25, 3, 3.4, .5);
      if (lies && (row + column) % 2 == 0)
        Dot(out, (row + 2 * column) % 4 ? kRed : kBlack, 3.7 + column * 4.15, 3.7 + row * 4.25, .8);
    }
}

// Three in a column, and the fourth on its way.
void Treyshift(std::string& out) {
  const Suit suits[] = {Suit::kClubs, Suit::kHearts, Suit::kSpades};
  for (int i = 0; i < 3; ++i) {
    Card(out, 1.5, .5 + i * 5, 11, 13);
    DrawSuit(out, suits[i], i == 2 ? 7 : 4.2, i == 2 ? 17.2 : 3.2 + i * 5, i == 2 ? 8 : 3.6);
  }
  Line(out, kInk, 3.6, "M20 22V13C20 9.6 18.6 8 16 8");
  Line(out, kGold, 2, "M20 22V13C20 9.6 18.6 8 16 8");
  Flat(out, kInk, "M17.2 2.6V13.4L11.4 8Z");
  Flat(out, kGold, "M16.4 4.8V11.2L13 8Z");
}

}  // namespace

std::vector<std::pair<std::string, std::string>> DrawGames() {
  constexpr std::pair<const char*, void (*)(std::string&)> kGames[] = {
      {"Sumfall", Sumfall},     {"Fivestack", Fivestack}, {"Blackrush", Blackrush}, {"Duopick", Duopick},
      {"Spirehold", Spirehold}, {"Handgrid", Handgrid},   {"Treyshift", Treyshift}};
  std::vector<std::pair<std::string, std::string>> pictures;
  for (const auto& [name, draw] : kGames) {
    std::string out;
    BeginPicture(out, 24, 24);
    draw(out);
    EndPicture(out);
    pictures.emplace_back(std::string(name) + ".svg", std::move(out));
  }
  return pictures;
}

}  // namespace pictures
