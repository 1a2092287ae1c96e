#include "heads.h"

#include "palette.h"
#include "svg.h"

namespace pictures {

void Both(std::string& out, std::string_view fill, std::string_view d) {
  Shape(out, fill, d);
  Open(out, "transform=\"scale(-1 1)\"");
  Shape(out, fill, d);
  Close(out);
}

void BothLines(std::string& out, std::string_view colour, double width, std::string_view d) {
  Line(out, colour, width, d);
  Open(out, "transform=\"scale(-1 1)\"");
  Line(out, colour, width, d);
  Close(out);
}

void DrawNeck(std::string& out, std::string_view skin) {
  Shape(out, skin,
        "M-2.9-23V-18.9C-4-18.4-5.4-18.1-6.6-17.9-5.6-14-3-11.6 0-10.9 3-11.6 5.6-14 6.6-17.9 "
        "5.4-18.1 4-18.4 2.9-18.9V-23Z");
}

void DrawFaceShape(std::string& out, std::string_view skin, std::string_view shade) {
  Shape(out, skin,
        "M-5.6-31C-5.6-36 5.6-36 5.6-31 5.8-26.5 5-22.6 2.6-20.3 1.3-19-1.3-19-2.6-20.3"
        "-5-22.6-5.8-26.5-5.6-31Z");
  Flat(out, shade, "M5.3-31C5.5-26.5 4.8-22.8 2.4-20.5 1.6-19.8.8-19.6 0-19.6 2.6-21.5 3.9-25.5 3.6-31Z",
       .75);
}

void DrawFeatures(std::string& out, const Look& look) {
  const double g = look.gaze;
  Dot(out, kBlush, -3.4 + g * .3, -24.4, 1.3, .55);
  Dot(out, kBlush, 3.4 + g * .3, -24.4, 1.3, .55);
  Open(out, Join({"transform=\"translate(", Num(g * .4), " 0)\" stroke-linecap=\"round\""}));
  for (int side : {-1, 1}) {
    Open(out, Join({"transform=\"translate(", Num(side * 2.7), " -27.4) scale(", Num(side), " 1)\""}));
    Flat(out, kWhite, "M-1.6.1C-.8-1.1.8-1.2 1.6 0 .8 1-.8 1-1.6.1Z");
    Dot(out, look.eye, side * g * .5, -.1, .95);
    Dot(out, kInk, side * g * .5, -.1, .5);
    Line(out, kInk, look.lashes ? .75 : .65,
         look.lashes ? "M-1.6.1C-.8-1.3 1-1.4 2-.4" : "M-1.6 0C-.8-1.2.8-1.3 1.6-.2");
    Line(out, look.brow, look.lashes ? .6 : .8,
         Join({"M-1.5 ", Num(-2.2 + look.frown), "C-.6-3.2 1-3.1 2-2.2"}));
    Close(out);
  }
  Open(out, g < 0 ? "transform=\"scale(-1 1)\"" : "");
  Line(out, kSkinLine, .5, "M.2-27.4C.5-26.2 1.3-25.2 1.2-24.6 1.1-24.1.2-24-.6-24.2");
  Close(out);
  const std::string corner = Num(-22.1 - look.smile * .6);
  Flat(out, look.lips,
       Join({"M-1.9 ", corner, "C-1-22.7-.4-22.7 0-22.4.4-22.7 1-22.7 1.9 ", corner, " 1-21.1-1-21.1-1.9 ",
             corner, "Z"}));
  Close(out);
}

void DrawProfile(std::string& out, std::string_view skin, std::string_view shade, const Look& look) {
  // Neck, then the line from the forehead over nose, mouth and chin to the nape.
  Shape(out, skin, "M-3.6-24V-17.4Q0-14.6 3-17.4V-20Z");
  Shape(out, skin,
        "M-5-32C-4-35.4 2.4-35.4 4-32.6 4.5-31.6 4.6-30.6 4.5-29.6 4.4-28.8 4.6-28.4 4.9-27.8"
        "L6.9-25.2C7.2-24.5 6.3-24.1 5.3-24.2L5.7-23.2 5-22.5 5.5-21.7 4.8-20.9"
        "C5.4-19.8 5-18.8 3.6-18.5 1-18.2-2.6-19.8-4-23Z");
  Flat(out, shade,
       "M3.6-18.8C1-18.4-2.4-20-3.7-23L-3-24.4C-1-21.4 1.4-19.8 4.4-19.6 4.3-19.2 4.1-18.9 3.6-18.8Z", .75);
  Dot(out, kBlush, 2, -24, 1.3, .55);
  Open(out, "stroke-linecap=\"round\"");
  Flat(out, kWhite,
       "M1.4-27.3C2.1-28.5 3.4-28.5 3.9-28 3.8-27.4 3.6-27 3.4-26.7 2.6-26.6 1.9-26.8 1.4-27.3Z");
  Dot(out, look.eye, 3.1, -27.4, .85);
  Dot(out, kInk, 3.2, -27.4, .5);
  Line(out, kInk, .65, "M1.2-27.3C2-28.6 3.3-28.6 4-28");
  Line(out, look.brow, .8, Join({"M.9-29.5C2-30.8 3.4-30.7 4.5 ", Num(-29.9 + look.frown)}));
  Line(out, kSkinLine, .45, "M5.2-24.3C4.7-24.2 4.5-24.6 4.7-25.1");
  Flat(out, look.lips, "M5.6-23.1 5-22.5 5.4-21.8C4.5-21.7 3.5-22.2 2.9-23 3.9-23 4.8-23.3 5.6-23.1Z");
  Close(out);
}

void DrawRestingHand(std::string& out, std::string_view sleeve, std::string_view cuff,
                     std::string_view skin) {
  Shape(out, sleeve, "M-19-9C-17-9.6-14-8.4-11.6-6.6L-13 .2H-19Z");
  Shape(out, cuff, "M-12.2-7.6-9.8-6.6-10.8-.6-13.4-.6Z");
  Shape(out, skin,
        "M-10-6.2C-8-7.6-5-8.8-2.6-9-1.4-9-1.2-7.9-2.2-7.6-1.1-7.4-1-6.3-2-6-1.1-5.7-1.2-4.6-2.2-4.5"
        "-1.6-4-1.9-3.1-2.8-3-5-2.4-7.6-1.4-10.6-1.4Z");
  Line(out, kSkinLine, .45, "M-2.2-7.6-5.2-6.8M-2-6-5.2-5.4M-2.2-4.5-5-4");
}

void DrawMantle(std::string& out, std::string_view colour) {
  Shape(out, colour, "M-19 2.6V-11.4C-16.6-14.4-11-16.8-4.5-18.5H4.5C11-16.8 16.6-14.4 19-11.4V-2.6Z");
}

void DrawFist(std::string& out, std::string_view sleeve, std::string_view cuff, std::string_view skin) {
  Shape(out, sleeve, "M8.4-.6C8.8-2.6 9.6-4.4 10.2-5.6H15.8C17-5 18.4-4 19-3V-2.6Z");
  Shape(out, cuff, "M9.4-5.2 10-7.8H16L16.6-5.2Z");
  Shape(out, skin,
        "M10.5-7.8C9.9-9.2 9.8-11.2 10.4-12.2 11.6-12.8 14.4-12.8 15.4-12.2 "
        "16.1-11.2 16.1-9.2 15.5-7.8Z");
  Line(out, kSkinLine, .45, "M10.6-11H14.2M10.3-9.9H14.2M10.5-8.8H14.2M14.3-12.2V-8");
}

void DrawSash(std::string& out, std::string_view band, std::string_view edge, std::string_view gem) {
  Shape(out, band, "M-19 .2 19-5V-.2L-19 5Z");
  Line(out, edge, .9, "M-19 1.3 19-3.9M-19 3.9 19-1.3");
  for (double x : {-12.0, -6.0, 6.0, 12.0}) Bead(out, edge, x, -x * 2.6 / 19, 1);
  Shape(out, edge, "M0-2.9 3.2 0 0 2.9-3.2 0Z");
  Shape(out, gem, "M0-1.6 1.8 0 0 1.6-1.8 0Z");
}

void DrawTails(std::string& out, std::initializer_list<double> places) {
  std::string d;
  for (auto it = places.begin(); it != places.end(); it += 2) {
    d += Join({"M", Num(it[0]), " ", Num(it[1]), "l.5 1.5h-1z"});
  }
  Flat(out, kInk, d);
}

}  // namespace pictures
