// The court cards of the spades.
#include "courts.h"
#include "heads.h"
#include "palette.h"
#include "svg.h"

namespace pictures {

void KingOfSpades(std::string& out) {
  DrawMantle(out, kNavy);
  Shape(out, kViolet, "M-5-18 -7.5 1H7.5L5-18Z");
  Flat(out, kSilver,
       "M0-10.4l1.6 2.2-1.6 2.2-1.6-2.2zM-3.6-6l1.6 2.2-1.6 2.2-1.6-2.2zM3.6-6l1.6 2.2-1.6 2.2"
       "-1.6-2.2z");
  Both(out, kWhite, "M-4.5-18.6C-8.5-16.6-9.6-9-10.6 1.2L-6.6.8C-6.4-7-5-12-2.4-15.4Z");
  DrawTails(out, {-8.6, -7.5, -7, -11.5, -9, -3, -7.4, -5, 8.6, -7.5, 7, -11.5, 9, -3, 7.4, -5});
  BothLines(out, kSky, .45, "M-13.5-13.4C-14-8-13.5-4-13 .2M-17-11C-16.6-6-16.8-3-17 .2");
  // Hair, face and beard.
  Shape(out, kGrey,
        "M-6-34C-9.4-30-8.4-24-8.8-20.5-9-18-10.4-16.6-11.6-16.2-8.4-14.4-5-15.4-4-17H4"
        "C5-15.4 8.4-14.4 11.6-16.2 10.4-16.6 9-18 8.8-20.5 8.4-24 9.4-30 6-34Z");
  DrawFaceShape(out, kSkin, kSkinShade);
  Shape(out, kGrey,
        "M-5.7-27C-5.2-24-3.4-23.2-1.8-23.6-.8-23.9.8-23.9 1.8-23.6 3.4-23.2 5.2-24 5.7-27 "
        "6.8-20 5.2-13.6 0-8.6-5.2-13.6-6.8-20-5.7-27Z");
  BothLines(out, kAsh, .45,
            "M-4.6-21.4C-4.2-17.4-3-14.4-1-11.6M-2-19.8C-1.8-17.4-1.2-15-.3-12.8M-7.6-27"
            "C-7.2-23-7.6-19.6-8.6-17.4");
  DrawFeatures(out, {kAsh, -.6, kLips, .5, false, kNavy});
  Both(out, kWhite, "M0-23.4C-1.4-24.4-4-23.6-5-20.6-3.2-21-1-21.4 0-22.3Z");
  // Crown.
  Shape(out, kNavy, "M-5.8-34.6C-5.6-38.6-2-40.4 0-40.6 2-40.4 5.6-38.6 5.8-34.6Z");
  Shape(out, kGold, "M-6.6-32.2-8.6-40.6-4.5-37.4 0-42.2 4.5-37.4 8.6-40.6 6.6-32.2Q0-30.2-6.6-32.2Z");
  Line(out, kBronze, .5, "M-7.1-34.6Q0-32.6 7.1-34.6");
  Flat(out, kBlue, "M0-39.4l1.5 2-1.5 2.4-1.5-2.4z");
  Dot(out, kRed, -4.6, -35.6, .8);
  Dot(out, kRed, 4.6, -35.6, .8);
  for (double x : {-8.6, 8.6}) Bead(out, kPaleGold, x, -40.8, .9);
  Bead(out, kPaleGold, 0, -42, .9);
  // Sword.
  Shape(out, kSilver, "M11.6-14V-37L13-41.6 14.4-37V-14Z");
  Line(out, kSteel, .7, "M13.3-38.5V-14");
  DrawFist(out, kViolet, kSilver, kSkin);
  Shape(out, kGold, "M8.8-15.2C8.8-13.4 9.8-13 11-13H15C16.2-13 17.2-13.4 17.2-15.2L15-14.4H11Z");
}

void QueenOfSpades(std::string& out) {
  // Veil.
  Shape(out, kNavy, "M-6-36C-12-30-9.5-22-12.5-12H12.5C9.5-22 12-30 6-36Z");
  DrawMantle(out, kViolet);
  Shape(out, kNavy, "M-6.5-18.2C-5-8-7.5-4-8.5 1H8.5C7.5-4 5-8 6.5-18.2L0-11Z");
  DrawNeck(out, kSkin);
  BothLines(out, kSilver, 1, "M-6.5-18C-4.8-13.6-2.4-12 0-11.4");
  Flat(out, kSilver,
       "M0-8.4l.7 1.5 1.5.6-1.5.6-.7 1.5-.7-1.5-1.5-.6 1.5-.6zM-4-4.6l.4 1 1 .4-1 .4-.4 1-.4-1-1-.4 "
       "1-.4zM4-4.6l.4 1 1 .4-1 .4-.4 1-.4-1-1-.4 1-.4z");
  BothLines(out, kNavy, .5, "M-12.6-12.4C-13-8-13.4-4-13 .2M-16.6-11C-16.2-6-16.6-3-16.6.2");
  // Hair and face.
  Shape(out, kRaven,
        "M-5.4-36C-9-32-7.4-24.5-7-20 -5.6-19-4.4-20-4-22H4C4.4-20 5.6-19 7-20 7.4-24.5 9-32 5.4-36Z");
  DrawFaceShape(out, kSkin, kSkinShade);
  DrawFeatures(out, {kRaven, .7, kRed, 0, true, kBlue});
  Shape(out, kRaven,
        "M0-34.6C-2.4-33-4.6-30.6-5.4-26.4-7-29-6.8-34-3.6-36.4L0-37 3.6-36.4C6.8-34 7-29 5.4-26.4 "
        "4.6-30.6 2.4-33 0-34.6Z");
  Dot(out, kSilver, -6, -23.4, .8);
  Dot(out, kSilver, 6, -23.4, .8);
  // Tiara with the moon.
  Shape(out, kSilver,
        "M-6.8-33.6C-4-36-2-36.4 0-36.4 2-36.4 4-36 6.8-33.6L7.2-36C4.6-38.4 2-39 0-39"
        "-2-39-4.6-38.4-7.2-36Z");
  Shape(out, kPaleGold,
        "M2.3-42.8C4.2-40.4 3-36.6 0-36.6-3-36.6-4.2-40.4-2.3-42.8-2.2-40.4-1.2-39.4 0-39.4 "
        "1.2-39.4 2.2-40.4 2.3-42.8Z");
  for (double x : {-5.0, 5.0}) Bead(out, kWhite, x, -38.6, .9);
  // Lily.
  Line(out, kMoss, 1.1, "M13-12V-31");
  Shape(out, kGreen,
        "M13-19C15-20 17-22.4 17.6-25.4 14.6-25 13-22.4 13-19ZM13-15.4C11-16.4 9.2-18.6 8.8-21.4 "
        "11.4-21 13-18.6 13-15.4Z");
  Shape(out, kWhite,
        "M13-29.4C10.6-31 9-34 8.6-38 10-37.4 10.8-36.6 11.4-35.6 11.6-37.8 12.2-39.6 13-41 "
        "13.8-39.6 14.4-37.8 14.6-35.6 15.2-36.6 16-37.4 17.4-38 17-34 15.4-31 13-29.4Z");
  Line(out, kOrange, .7, "M13-31.4V-36.4M12-32.4 11.4-34.6M14-32.4 14.6-34.6");
  DrawFist(out, kViolet, kSilver, kSkin);
}

void JackOfSpades(std::string& out) {
  DrawMantle(out, kBlue);
  Both(out, kPaleGold, "M-19-11.4C-16.6-14.4-11-16.8-7-17.8L-10.4.2H-19Z");
  BothLines(out, kBlue, 1.3, "M-9.2-16.8-11.6.2M-12-15.8-13.8.2M-14.6-14.4-15.9.2M-17-12.6-17.8.2");
  Shape(out, kNavy, "M-5-18.4-8 1H8L5-18.4Z");
  BothLines(out, kSilver, .6, "M-3.6-14-4.6 0");
  for (double y : {-11.6, -8.2, -4.8}) Bead(out, kSilver, 0, y, .8);
  // Collar.
  Shape(out, kWhite, "M-6.6-18.6C-5-21 5-21 6.6-18.6L4.4-13.8 0-16.4-4.4-13.8Z");
  // Hair and face.
  Shape(out, kRaven,
        "M-5.6-34C-9-31-8.6-25-8-21.6-6.4-20.6-4.8-21-4-22.4H4C4.8-21 6.4-20.6 8-21.6 "
        "8.6-25 9-31 5.6-34Z");
  DrawFaceShape(out, kSkin, kSkinShade);
  DrawFeatures(out, {kRaven, -.9, kLips, .4, false, kBrown});
  Shape(out, kRaven,
        "M-.8-23.5C-2.4-23.9-4-23-5-23.8-4.4-22-2.2-22-.6-22.8 1-22 3.2-22 3.8-23.8 "
        "2.8-23 .8-23.9-.8-23.5Z");
  Shape(out, kRaven, "M-1.8-20.8C-1.2-21.2 0-21.2.6-20.8L-.4-17.8Z");
  // Hat with a plume.
  Shape(out, kRaven,
        "M-10.4-32C-6-30.4 6-30.6 9.6-33.4 7.4-34.4 6-35 5.6-37.6 5-41-4.6-41.4-5.8-36.6"
        "-6.2-34.6-8.4-33.4-10.4-32Z");
  Line(out, kSilver, 1.2, "M-6-34.2C-2-33.2 3-33.6 5.8-35.2");
  Shape(out, kWhite,
        "M4-35.6C3.6-40 .6-42.6-3.6-42.4-2.8-41.8-2.6-41.4-2.6-41-4.4-41.2-5.8-40.6-6.8-39.4"
        "-5-39.6-4-39-3.4-38.4-4.6-38-5.2-37.2-5.4-36.4-2-37.4 1.6-37.4 4-35.6Z");
  Line(out, kAsh, .45, "M3.4-36.4C1.4-38.8-1-39.8-4-40");
  // Halberd.
  Line(out, kInk, 2.2, "M13-4V-42");
  Line(out, kBrown, 1.3, "M13-4V-42");
  Shape(out, kSilver, "M13-43 14.2-38.6 13.8-30.6H12.2L11.8-38.6Z");
  Shape(out, kSilver,
        "M13.8-36.8C15.4-37 17-38 17.9-39.6 18.6-36 18.6-32 17.9-28.6 17-30.4 15.4-31.4 13.8-31.6Z");
  Shape(out, kSilver, "M12.2-35.6 8.6-34.2 12.2-32.8Z");
  DrawFist(out, kBlue, kWhite, kSkin);
}

}  // namespace pictures
