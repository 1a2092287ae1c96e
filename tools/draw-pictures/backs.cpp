// The four back designs, alone and on top of a pile.
//
// The scene of a back may reach a little over its panel; the paper border is drawn last and covers that.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include "palette.h"
#include "pictures.h"
#include "svg.h"

namespace pictures {
namespace {

constexpr double kCardWidth = 71;
constexpr double kCardHeight = 96;
constexpr double kCorner = 2;

struct Point {
  double x = 0;
  double y = 0;
};

std::string Text(Point point) { return Join({Num(point.x), " ", Num(point.y)}); }

/// A point on the curve from `a` to `c` that bends towards `b`.
Point OnCurve(Point a, Point b, Point c, double t) {
  const double u = 1 - t;
  return {u * u * a.x + 2 * u * t * b.x + t * t * c.x, u * u * a.y + 2 * u * t * b.y + t * t * c.y};
}

// ------------------------------------------------------------------------------------------- Palm Tree

/// The outline of a palm frond along a curve: leaflets hang from both sides of the rib and droop.
std::string FrondPath(Point root, Point bend, Point tip) {
  constexpr int kLeaflets = 9;
  std::string d = Join({"M", Text(root)});
  // Out along the upper side, which is nearly smooth, and back along the ragged lower side.
  for (int i = 1; i <= kLeaflets; ++i) {
    const double t = static_cast<double>(i) / kLeaflets;
    const Point rib = OnCurve(root, bend, tip, t);
    const double rise = 1.5 * std::sin(std::numbers::pi * std::min(1.0, t * .95));
    d += Join({"L", Num(rib.x), " ", Num(rib.y - rise)});
  }
  for (int i = kLeaflets; i >= 1; --i) {
    const double t = (i - .35) / kLeaflets;
    const Point rib = OnCurve(root, bend, tip, t);
    const Point inner = OnCurve(root, bend, tip, std::max(0.0, t - .1));
    const double length = 5.4 * std::sin(std::numbers::pi * (.12 + .8 * t));
    const double outward = tip.x < root.x ? -1.6 : 1.6;
    d += Join({"L", Num(rib.x + outward), " ", Num(rib.y + length)});
    d += Join({"L", Num(inner.x), " ", Num(inner.y + .5)});
  }
  return Join({d, "Z"});
}

void DrawPalmTree(std::string& out) {
  out.append("<defs>");
  Gradient(out, "a", 0, 5, 0, 62, "#2C8C9E", "#FBE3B0");
  Gradient(out, "b", 0, 60, 0, 80, "#1A6E80", "#4FB0AC");
  out.append("</defs>\n");
  Box(out, "url(#a)", 4, 4, 63, 60);
  Dot(out, "#FFF4CF", 48, 50, 15, .35);
  Dot(out, "#FFEFB8", 48, 50, 10.5, .6);
  Dot(out, "#F9D36C", 48, 50, 7.5);
  // Clouds and gulls.
  Flat(out, kWhite,
       "M40 22C40 20 43 19.6 44 20.4 44.6 17.6 49 17.6 50 20 53 19.2 54.6 20.6 54.4 22ZM50 30"
       "C50 28.8 52.6 28.4 53.6 29 54.6 27.2 58 27.6 58.6 29 60.4 28.6 61.6 29 61.6 30Z",
       .75);
  Line(out, "#1D5566", .8,
       "M12 42C13.4 40.6 14.6 41 15.4 42.4 16 41 17.4 40.6 18.8 41.6M18 48"
       "C19 47 19.8 47.2 20.4 48.2 20.8 47.2 21.8 47 22.8 47.6");
  // Sea with the way of the sun, and a sail.
  Box(out, "url(#b)", 4, 62, 63, 18);
  Line(out, "#FCE9B4", .9, "M42 64H54M44 66.5H56M41 69H52M45 71.5H53", .85);
  Line(out, "#8ED0CB", .7, "M8 66H20M12 70H26M28 67.5H37M58 69.5H64", .8);
  Flat(out, kWhite, "M18 52.4V61.4H11.4C14.6 59.4 17 56.4 18 52.4ZM19 54.4C19.4 57.4 20.6 60 22.8 61.4H19Z");
  Flat(out, "#7A3B22", "M10.4 62.2H24C23.4 64 22.4 64.8 21 64.8H13.4C11.8 64.8 11 64 10.4 62.2Z");
  // Island.
  Flat(out, "#F2DCA4", "M3 80C10 77.6 17 75.6 26 74.6 40 73.4 54 76.4 68 81.4V93H3Z");
  Flat(out, "#DDBD7C", "M3 86C16 80.6 34 79.6 44 81.4 54 83 62 86 68 89V93H3Z");
  Flat(out, "#C9A55F", "M20 84C26 81.6 40 81.8 48 84 40 85.4 27 85.6 20 84Z", .8);
  // Trunk with rings.
  Flat(out, "#6A3F22", "M27 84C28.4 70 29.4 54 36.6 35L39.6 36C34.6 52 33.8 68 34.6 84Z");
  Flat(out, "#94602F", "M27 84C28.4 70 29.4 54 36.6 35L38 35.4C31.6 53 30.6 70 30.2 84Z");
  Line(out, "#4C2B16", .6,
       "M27.4 80 34.4 79.2M27.8 75.6 34.2 74.8M28.2 71 34 70.4M28.8 66.4 34 66M29.6 61.8 34.4 61.6"
       "M30.4 57.2 34.8 57.4M31.6 52.6 35.6 53.2M33 48 36.6 48.8M34.4 43.6 37.6 44.4M36 39.4 "
       "38.8 40.2");
  // Crown: the far fronds darker than the near ones.
  const Point root = {37.6, 34.4};
  struct Frond {
    Point bend, tip;
    const char* colour;
  };
  const std::array<Frond, 9> fronds = {{
      {{46, 22}, {57, 26}, "#1E5C3B"},
      {{27, 20}, {16, 25}, "#1E5C3B"},
      {{36, 18}, {43, 12.5}, "#236B43"},
      {{36, 17}, {26, 12}, "#236B43"},
      {{50, 27}, {61.5, 38}, "#2C8250"},
      {{24, 26}, {10.5, 36}, "#2C8250"},
      {{45, 33}, {53, 47}, "#3B9A5C"},
      {{28, 32}, {20, 46}, "#3B9A5C"},
      {{41, 36}, {43.6, 49}, "#51AD66"},
  }};
  for (const Frond& frond : fronds) {
    Flat(out, frond.colour, FrondPath(root, frond.bend, frond.tip));
    Line(out, "#A9D37C", .5, Join({"M", Text(root), "Q", Text(frond.bend), " ", Text(frond.tip)}), .7);
  }
  for (Point nut : {Point{36, 37}, Point{39.6, 37.2}, Point{37.8, 38.8}}) {
    Dot(out, "#4C2B16", nut.x, nut.y, 1.9);
    Dot(out, "#A8703C", nut.x - .6, nut.y - .6, .7);
  }
  // Grass and a starfish.
  Flat(out, "#2C8250",
       "M24 85 22 79.4 25.4 83 25.6 77.6 27.6 82.6 30 78.6 29.4 85ZM35 85 36 80.4 37 83.6 39.4 79.4 "
       "38.8 83.8 41.4 82.2 39.8 85Z");
  Flat(out, "#D9603A", "M53 82.4l.9 1.9 2 .2-1.5 1.4.5 2-1.9-1-1.8 1.1.4-2.1-1.6-1.3 2.1-.3z");
}

// ----------------------------------------------------------------------------------------- Magic Hands

/// A gloved hand that comes out of a sleeve; its wrist lies at the origin and the fingers point up.
void DrawGlove(std::string& out) {
  constexpr char kFingers[] =
      "M-3.8-9C-5-13-6.6-16-8.4-19M-1.2-10C-1.6-15-2-19-2.6-22.4M1.6-10C2.2-14 2.8-18 3.6-21.4"
      "M4-8.6C5.4-11.6 7-14.4 9-16.6";
  constexpr char kThumb[] = "M-3.6-3.6C-6.6-5-9-7.4-11.4-10.4";
  constexpr char kPalm[] = "M-4.8 1C-5.4-3-6-7-5.4-10.4-2-13 2.6-12.8 5.4-9.4 5.8-6 5.2-2 4.6 1Z";
  Open(out, "stroke-linecap=\"round\" stroke-linejoin=\"round\"");
  Line(out, "#1B1030", 5, kFingers);
  Line(out, "#1B1030", 5.2, kThumb);
  Line(out, "#1B1030", 1.2, kPalm);
  Line(out, kWhite, 3.8, kFingers);
  Line(out, kWhite, 4, kThumb);
  Flat(out, kWhite, kPalm);
  Line(out, "#B9B2D2", .7, "M-2.4-9.4V-5.4M.4-10V-5.6M3-9.2V-5.4");
  Line(out, "#D8D2EA", 1.3, "M4.4-8.4C4.8-5 4.4-2 4 .4");
  Close(out);
  Flat(out, "#E9C65A", "M-6-.6H6L6.4 3.4H-6.4Z");
  Flat(out, "#1B1030", "M-7 3H7L9 12H-9Z");
  Line(out, "#8D74C4", .8, "M-6.6 4.6H6.6");
  Dot(out, "#E9C65A", -4.8, 8, .9);
}

std::string SparkPath(double x, double y, double size) {
  const double waist = size * .16;
  std::string d = Join({"M", Num(x), " ", Num(y - size)});
  const std::array<Point, 7> points = {{{waist, -waist},
                                        {size * .7, 0},
                                        {waist, waist},
                                        {0, size},
                                        {-waist, waist},
                                        {-size * .7, 0},
                                        {-waist, -waist}}};
  for (Point point : points) d += Join({"L", Num(x + point.x), " ", Num(y + point.y)});
  return Join({d, "Z"});
}

void DrawMagicHands(std::string& out) {
  out.append("<defs>");
  Glow(out, "a", 35.5, 48, 52, "#7D5BB5", "#2A1749");
  Glow(out, "c", 35.5, 48, 35, "#E7D2FF", "#8E6CC8", 0);
  Glow(out, "b", 35.5, 48, 24, "#FFF1B8", "#FFE48A", 0);
  out.append("</defs>\n");
  Box(out, "url(#a)", 4, 4, 63, 88);
  // Rays from the middle.
  std::string rays;
  for (int i = 0; i < 12; ++i) {
    const double angle = i * std::numbers::pi / 6 + .13;
    const auto ray = [&](double turn, double length) {
      return Join(
          {Num(35.5 + length * std::sin(angle + turn)), " ", Num(48 - length * std::cos(angle + turn))});
    };
    rays += Join({"M35.5 48L", ray(-.1, 42), "L", ray(.1, 42), "Z"});
  }
  Flat(out, "url(#c)", rays);
  Box(out, "url(#b)", 11.5, 24, 48, 48);
  // The hands come from two opposite corners.
  Open(out, "id=\"h\"");
  Open(out, "transform=\"translate(19.4 81) rotate(14) scale(1.08)\"");
  DrawGlove(out);
  Close(out);
  Flat(out, "#F6DE8C",
       SparkPath(54, 62, 4.4) + SparkPath(59.4, 72, 2.4) + SparkPath(44, 73.6, 2.6) + SparkPath(50, 83, 3.4) +
           SparkPath(60.4, 51, 1.8) + SparkPath(11, 48, 1.6));
  Dot(out, "#E4D3FF", 47.4, 66.6, .7);
  Dot(out, "#E4D3FF", 57, 79.4, .8);
  Dot(out, "#E4D3FF", 40, 82.6, .7);
  Close(out);
  Use(out, "h", "rotate(180 35.5 48)");
  // The star they conjure up.
  Flat(out, "#FFFFFF", SparkPath(35.5, 48, 9));
  Flat(out, "#F9D86A",
       "M35.5 42.6 37 46.2 40.8 46.5 37.9 49 38.8 52.8 35.5 50.8 32.2 52.8 33.1 49 30.2 46.5 34 46.2Z");
}

// ---------------------------------------------------------------------------------------- Night Castle

void DrawNightCastle(std::string& out) {
  out.append("<defs>");
  Gradient(out, "a", 0, 4, 0, 72, "#0D1A44", "#5673B5");
  Gradient(out, "b", 0, 74, 0, 92, "#2B4480", "#0E1B45");
  Glow(out, "c", 47, 27, 22, "#FFF7D0", "#CFE0FF", 0);
  out.append("</defs>\n");
  Box(out, "url(#a)", 4, 4, 63, 72);
  Box(out, "url(#c)", 25, 5, 42, 44);
  Dot(out, "#FFF4C4", 47, 27, 10.5);
  Dot(out, "#EFDDA2", 43.6, 24.4, 2.2, .8);
  Dot(out, "#EFDDA2", 50.4, 30.6, 2.8, .7);
  Dot(out, "#EFDDA2", 49.6, 21.6, 1.4, .7);
  std::string stars;
  for (Point star :
       {Point{10, 10}, Point{24, 11}, Point{14, 30}, Point{62, 10}, Point{30, 20}, Point{62, 44}}) {
    stars += SparkPath(star.x, star.y, 1.8);
  }
  Flat(out, "#FFFFFF", stars);
  for (Point star : {Point{17, 16}, Point{9, 22}, Point{32, 9}, Point{22, 25}, Point{8, 40}, Point{40, 8},
                     Point{60, 20}, Point{13, 47}, Point{30, 31}, Point{58, 52}, Point{52, 8}}) {
    Dot(out, "#DCE6FF", star.x, star.y, .55);
  }
  // Bats in front of the moon.
  Flat(out, "#141B3E",
       "M47 24C46 22.6 44.6 22.6 43 23.4 44.4 23.6 45 24.4 45.2 25.4 45.8 24.8 46.4 25 47 26 "
       "47.6 25 48.2 24.8 48.8 25.4 49 24.4 49.6 23.6 51 23.4 49.4 22.6 48 22.6 47 24ZM54.4 17.4"
       "C53.8 16.6 53 16.6 52 17 52.8 17.2 53.2 17.6 53.4 18.2 53.8 17.8 54 18 54.4 18.6 "
       "54.8 18 55 17.8 55.4 18.2 55.6 17.6 56 17.2 56.8 17 55.8 16.6 55 16.6 54.4 17.4Z");
  // Far hills and mist.
  Flat(out, "#3A568F", "M3 66C12 56 18 60 24 63 34 54 46 52 56 60 60 58 64 57 68 58V78H3Z");
  Flat(out, "#C6D6F5",
       "M3 67C16 64 28 66.4 38 65.4 50 64 60 66 68 64.6V68C56 69 48 67.6 36 69 24 70 14 68 3 70Z", .3);
  // Rock, lit on the side of the moon.
  Flat(out, "#131A3C",
       "M3 80C5 77.4 8 76.6 10 74 12 71.4 15 70.6 17 69.4H54C57 70.4 58 72 60 74.4 "
       "62 76.4 65 77.4 68 80Z");
  Flat(out, "#26305F",
       "M54 69.4C57 70.4 58 72 60 74.4 62 76.4 65 77.4 68 80H61C60 77 57.4 75.6 56.4 73.6 "
       "55.6 72 55.2 70.6 54 69.4Z");
  Line(out, "#26305F", .7,
       "M12 78C14 76.6 15 75 15.4 73M20 79C21.4 77 24 76.6 25 74.4M46 78.6C47 76.4 49.6 76 50 73.4");
  // Castle. The walls that face the moon are a shade lighter.
  constexpr char kWall[] = "#232C5C";
  constexpr char kLit[] = "#34407A";
  constexpr char kRoof[] = "#5A2A4A";
  constexpr char kRoofLit[] = "#7A3A5C";
  Flat(out, kWall,
       "M20 70V54H21.6V52H23.4V54H25.2V52H27V54H28.8V46H33V44H35V46H37V44H39V46H42V55H43.6V53H45.4"
       "V55H47.2V53H49V55H51V70Z");
  struct Tower {
    double x, width, top, foot, roof;
  };
  const std::array<Tower, 5> towers = {{{14.6, 7, 52, 71, 10},
                                        {50, 7, 53, 71, 11},
                                        {25.6, 6, 43, 62, 10},
                                        {40.4, 6, 45, 62, 9},
                                        {31.6, 8, 34, 60, 15}}};
  for (const Tower& tower : towers) {
    const double right = tower.x + tower.width;
    const double middle = tower.x + tower.width / 2;
    Box(out, kWall, tower.x, tower.top, tower.width, tower.foot - tower.top);
    Box(out, kLit, right - 2, tower.top, 2, tower.foot - tower.top);
    const std::string eaves = Join({" ", Num(tower.top)});
    const std::string tip = Join({Num(middle), " ", Num(tower.top - tower.roof)});
    Flat(out, kRoof, Join({"M", Num(tower.x - 1), eaves, "L", tip, "L", Num(right + 1), eaves, "Z"}));
    Flat(out, kRoofLit, Join({"M", Num(middle + .6), eaves, "L", tip, "L", Num(right + 1), eaves, "Z"}));
    // A flag at the top.
    const double top = tower.top - tower.roof;
    Line(out, "#0D1330", .6, Join({"M", tip, "V", Num(top - 4)}));
    Flat(out, "#D8504A", Join({"M", Num(middle), " ", Num(top - 4), "l-4 1 4 1.2z"}));
  }
  // The way to the gate.
  Flat(out, "#4A5688",
       "M32.6 69.6H38.4C39.4 72.4 43.4 73.4 42.4 76 41.8 77.4 40.4 78 40.4 79H31.6"
       "C31.8 77 36 76.4 36.4 74.8 36.8 73 33 72.4 32.6 69.6Z");
  // Gate and lit windows.
  Flat(out, "#0B1029", "M32 70V63C32 58.6 39 58.6 39 63V70Z");
  Line(out, "#566499", .6,
       "M32 70V63C32 58.6 39 58.6 39 63V70M35.5 60V70M33.8 61V70M37.2 61V70M32.2 64H38.8M32.2 67H38.8");
  constexpr char kWindow[] = "#FFD76A";
  for (Point window : {Point{17.2, 57}, Point{52.6, 58}, Point{27.8, 48}, Point{42.6, 50}, Point{34.7, 39},
                       Point{34.7, 47}, Point{24, 60}, Point{46, 60}}) {
    const std::string left = Num(window.x);
    Flat(out, kWindow, Join({"M", left, " ", Num(window.y + 3.4), "v-2.2c0-1.6 1.8-1.6 1.8 0v2.2z"}));
  }
  Dot(out, kWindow, 31, 54.6, .9);
  Dot(out, kWindow, 39.6, 54.6, .9);
  // Trees at the shore and the lake with the light of the moon.
  Flat(out, "#0E1533",
       "M6 79 9.6 66 13 79ZM10.6 80 13.6 70 16.4 80ZM57 80 60 68.6 63 80ZM62 80 65 71 68 80Z");
  Box(out, "url(#b)", 3, 78, 65, 14);
  Line(out, "#FFF0B8", .9, "M42 80.5H53M40 83H50M44 85.5H55M43 88H51", .7);
  Line(out, "#6E8AC8", .7, "M8 81.5H20M12 85H27M24 88.6H34M58 83.6H65M57 88.4H64", .6);
}

// ------------------------------------------------------------------------------------------- Hot Cards

void DrawHotCards(std::string& out) {
  out.append("<defs>");
  Glow(out, "a", 35.5, 70, 66, "#B5241C", "#2A0711");
  Gradient(out, "e", 0, 80, 0, 8, "#E2461F", "#7E1018");
  Gradient(out, "b", 0, 84, 0, 20, "#FF9A2B", "#E0401E");
  Gradient(out, "c", 0, 92, 0, 50, "#FFD54A", "#F47B20");
  Gradient(out, "d", 0, 92, 0, 66, "#FFF6B8", "#FFC53A");
  out.append("</defs>\n");
  Box(out, "url(#a)", 4, 4, 63, 88);
  // The fire behind the cards.
  Flat(out, "url(#e)",
       "M4 92V52C6 46 6 40 5 34 10 38 12 42 12 47 14 38 15 30 11 20 19 26 22 33 22 40 "
       "25 32 25 24 29 8 32 16 37 20 38 30 41 26 43 20 42 13 49 20 51 28 50 36 53 33 55 28 54 22 "
       "61 30 61 38 60 46 63 43 65 39 65 34 67 40 67 46 67 52V92Z");
  Flat(out, "url(#b)",
       "M4 92V66C7 62 8 57 8 53 11 56 13 59 14 62 15 54 16 46 20 38 22 44 24 48 26 50 "
       "26 40 29 30 35 20 37 28 39 36 43 42 45 38 46 35 47 31 51 38 53 46 53 54 55 51 57 47 57 43 "
       "61 50 62 56 62 61 64 59 66 57 67 54V92Z");
  // A fan of four cards.
  const std::array<Suit, 4> suits = {Suit::kSpades, Suit::kHearts, Suit::kClubs, Suit::kDiamonds};
  for (int i = 0; i < 4; ++i) {
    const double angle = -26.4 + 17.6 * i;
    Open(out, Join({"transform=\"translate(35.5 86) rotate(", Num(angle), ")\""}));
    Box(out, "#4A0A12", -8.5, -48, 18, 27, 2, .45);
    Box(out, kPaper, -9, -48.5, 18, 27, 1.6);
    Frame(out, "#4A1A1C", .8, -9, -48.5, 18, 27, 1.6);
    DrawSuit(out, suits[i], -5.9, -44.8, 4.8);
    DrawSuit(out, suits[i], .6, -36.4, 10);
    Close(out);
  }
  // The fire in front of them.
  Flat(out, "url(#c)",
       "M4 92C4 85 6 80 9 76 10 79 11 80 13 80 12 73 14 67 18 62 18 67 19 70 22 72 "
       "23 66 25 61 30 57 29 63 31 67 34 69 36 64 39 60 43 58 42 63 44 67 47 70 49 67 50 64 50 61 "
       "54 66 56 71 55 77 58 77 59 75 60 72 65 79 67 85 67 92Z");
  Flat(out, "url(#d)",
       "M11 92C11 87 13 84 16 81 17 84 18 85 20 85 20 80 23 76 27 73 27 78 29 81 32 82 "
       "34 78 36 76 40 74 39 78 41 81 44 83 46 81 47 79 47 77 51 81 52 84 52 87 54 87 55 85 56 84 "
       "59 87 60 90 60 92Z");
  // Sparks.
  for (Point spark : {Point{11, 34}, Point{15, 22}, Point{58, 26}, Point{63, 38}, Point{27, 12},
                      Point{49, 14}, Point{9, 50}}) {
    Dot(out, "#FFC24A", spark.x, spark.y, .9);
  }
  for (Point spark :
       {Point{20, 14}, Point{54, 18}, Point{9, 26}, Point{62, 14}, Point{43, 9}, Point{64, 52}}) {
    Dot(out, "#FF7F2E", spark.x, spark.y, .7);
  }
}

// ------------------------------------------------------------------------------------------------ Card

/// The paper border with its fine inner line; `line` is the colour of that line.
void DrawBorder(std::string& out, const char* line) {
  out.append("<path fill-rule=\"evenodd\"");
  out.append(" fill=\"")
      .append(kInk)
      .append("\" d=\"M2 0H69A2 2 0 0 1 71 2V94A2 2 0 0 1 69 96H2A2 2 0 0 1 0 94V2A2 2 0 0 1 2 0Z");
  out.append("M5 5V91H66V5Z\"/>\n");
  out.append("<path fill-rule=\"evenodd\" fill=\"").append(kPaper);
  out.append(
      "\" d=\"M2 1H69A1 1 0 0 1 70 2V94A1 1 0 0 1 69 95H2A1 1 0 0 1 1 94V2A1 1 0 0 1 2 1ZM5 "
      "5V91H66V5Z\"/>\n");
  Frame(out, line, 1, 5.5, 5.5, 60, 85);
  Frame(out, kWhite, 1, 6.5, 6.5, 58, 83, 0, .22);
}

void DrawScene(std::string& out, int design) {
  switch (design) {
    case 1:
      DrawPalmTree(out);
      DrawBorder(out, "#1D5566");
      break;
    case 2:
      DrawMagicHands(out);
      DrawBorder(out, "#4A2F7A");
      break;
    case 3:
      DrawNightCastle(out);
      DrawBorder(out, "#16224F");
      break;
    default:
      DrawHotCards(out);
      DrawBorder(out, "#7A1418");
      break;
  }
}

/// The edges of the cards below the top one, seen at the right and at the bottom where no light falls.
void DrawEdges(std::string& out, int steps, double drop) {
  constexpr char kEdge[] = "#F3EBD8";
  constexpr char kGap[] = "#7D7361";
  for (int i = steps; i >= 1; --i) {
    const double y = std::floor(drop * i / steps + .01);
    const char* colour = i == steps ? kInk : i % 2 == 1 ? kEdge : kGap;
    Box(out, colour, i, y, kCardWidth, kCardHeight, kCorner);
    // Finer gaps appear as soon as the picture is enlarged.
    if (i != steps) Frame(out, kGap, .15, i - .5, y - .3, kCardWidth, kCardHeight, kCorner);
  }
}

}  // namespace

std::string DrawBack(int design, Pile pile) {
  std::string out;
  const int steps = pile == Pile::kFull ? 5 : pile == Pile::kHalf ? 3 : 0;
  const int drop = pile == Pile::kFull ? 2 : pile == Pile::kHalf ? 1 : 0;
  BeginPicture(out, kCardWidth + steps, kCardHeight + drop);
  DrawEdges(out, steps, drop);
  DrawScene(out, design);
  EndPicture(out);
  return out;
}

}  // namespace pictures
