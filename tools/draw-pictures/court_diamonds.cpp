// The court cards of the diamonds.
#include "courts.h"
#include "heads.h"
#include "palette.h"
#include "svg.h"

namespace pictures {
namespace {

constexpr char kFreckles[] =
    "M-3.8-25.2h.5v.5h-.5zM-2.6-24.6h.5v.5h-.5zM-3.4-23.9h.5v.5h-.5zM3.2-25.2h.5v.5h-.5zM4-24.4"
    "h.5v.5h-.5zM2.9-23.9h.5v.5h-.5z";

}  // namespace

void KingOfDiamonds(std::string& out) {
  DrawMantle(out, kOrange);
  Both(out, kTeal, "M-19-11.4C-17-13.9-14-15.4-11-16.5L-12.6.2H-19Z");
  BothLines(out, kPaleGold, .7, "M-13.4-15-14.8.2M-16.6-13-17.2.2");
  Shape(out, kPaper, "M-4-18-5.4 1H5.4L4-18Z");
  Line(out, kOrange, .7, "M-2.4-9 0-6.6 2.4-9M-2.8-5.4 0-2.6 2.8-5.4");
  Both(out, kGold, "M-4.5-18.6C-7-16-7.6-8-8.2 1L-5 .8C-5-6-4.4-11-2-14.6Z");
  for (double y : {-11.0, -7.4, -3.8}) {
    Dot(out, kRed, -6, y, .7);
    Dot(out, kRed, 6, y, .7);
  }
  // Face and beard.
  Shape(out, kRaven,
        "M-5.6-33C-8.4-31-8-25.6-7.4-22.6-6.4-21.4-5-21.4-4-22.4H4C5-21.4 6.4-21.4 7.4-22.6 "
        "8-25.6 8.4-31 5.6-33Z");
  DrawFaceShape(out, kTan, kTanShade);
  Shape(out, kRaven,
        "M-5.7-28C-5.4-24.4-4.4-23-2.6-23.6L-2.4-20.8H2.4L2.6-23.6C4.4-23 5.4-24.4 5.7-28 "
        "6.4-22.6 4.6-18 0-15.2-4.6-18-6.4-22.6-5.7-28Z");
  DrawFeatures(out, {kRaven, .7, kLips, .6, false, kRaven});
  Both(out, kRaven,
       "M.4-23.2C-1.4-24.4-3.8-23.8-4.6-22.8-5.4-22-6.6-22.4-6.8-23.6-7.4-21.4-5.4-20.4-3.8-21.2"
       "-2.4-21.8-1-22.4.4-22.4Z");
  // Turban in a crown.
  Shape(out, kPaper,
        "M-7.2-32C-10-35-8.6-40-3.6-41.2-1.4-42 1.4-42 3.6-41.2 8.6-40 10-35 7.2-32 "
        "3-34.4-3-34.4-7.2-32Z");
  Line(out, kSteel, .5,
       "M-7.4-34.6C-4.6-38-1-40-3-41.2M7.4-34.6C4.6-38-1-40.4-1-41.6M-7.8-37C-6-39-4.4-40-4-41"
       "M8.2-37.4C6-39.4 3.6-40.6 2.6-41.6");
  Shape(out, kGold,
        "M-7.4-31.4-8.6-35.4-5.4-34.2-3.6-37-1.8-34.8 0-38.4 1.8-34.8 3.6-37 5.4-34.2 8.6-35.4 "
        "7.4-31.4C3-33.6-3-33.6-7.4-31.4Z");
  Shape(out, kTeal, "M0-36.4 1.5-34.2 0-32 -1.5-34.2Z");
  Bead(out, kRed, 0, -41.8, 1);
  // Battle axe.
  Line(out, kInk, 2.4, "M13-4V-41");
  Line(out, kBrown, 1.5, "M13-4V-41");
  Shape(out, kSilver,
        "M13.8-37C15.6-37.6 17-39 17.6-41 18.8-36.8 18.8-32 17.6-28 17-30 15.6-31.4 13.8-32ZM12.2-37"
        "C10.4-37.6 9-39 8.4-41 7.2-36.8 7.2-32 8.4-28 9-30 10.4-31.4 12.2-32Z");
  Line(out, kSteel, .6, "M16.8-37.6C17.3-35 17.3-33 16.8-31M9.2-37.6C8.7-35 8.7-33 9.2-31");
  Shape(out, kGold, "M11.6-37.8H14.4V-31.2H11.6Z");
  Shape(out, kGold, "M13-43 14-40.6 13-39.4 12-40.6Z");
  DrawFist(out, kTeal, kGold, kTan);
}

void QueenOfDiamonds(std::string& out) {
  DrawMantle(out, kTeal);
  Both(out, kPine, "M-19-11.4C-17-13.9-14-15.4-10.6-16.6L-12.4.2H-19Z");
  BothLines(out, kGold, .7, "M-10.6-16.4-12.4.2");
  Shape(out, kGold, "M-6.4-18C-5-9-6.4-4-7.4 1H7.4C6.4-4 5-9 6.4-18L0-10.6Z");
  Line(out, kBronze, .5, "M-5-9 0-4 5-9M-5.6-5 -.6 0M5.6-5 .6 0M-5.6-13-3-10.6M5.6-13 3-10.6");
  DrawNeck(out, kSkin);
  for (double x : {-3.6, -2.4, -1.2, 0.0, 1.2, 2.4, 3.6}) Bead(out, kWhite, x, -15.2 - x * x * .16 + .4, .7);
  Shape(out, kOrange, "M0-14.2 1.3-12.6 0-11 -1.3-12.6Z");
  // Hair in two golden nets.
  DrawFaceShape(out, kSkin, kSkinShade);
  DrawFeatures(out, {kBrown, -.6, kLips, -.1, true, kTeal, .3});
  Shape(out, kChestnut,
        "M0-33.6C-2.6-32.8-4.8-30.4-5.2-25.4-7.2-29-6.6-34.4-3.6-36.6H3.6C6.6-34.4 7.2-29 5.2-25.4 "
        "4.8-30.4 2.6-32.8 0-33.6Z");
  Both(out, kGold,
       "M-4.8-33.4C-9.4-34.4-11.8-31.4-11.2-28.4-10.8-25.8-8-24.6-5.6-26-5.4-29-5.4-31-4.8-33.4Z");
  BothLines(out, kBronze, .5, "M-10.8-31 -6-26.8M-8.6-33.2-5.4-30M-10.8-28.2-5.6-33.2M-9.4-26-5.4-29.6");
  // Split headdress.
  Shape(out, kTeal,
        "M-6.6-33C-9.4-36-9.2-40.4-6.4-42-3.6-42.8-1-40.6 0-37.6 1-40.6 3.6-42.8 6.4-42 "
        "9.2-40.4 9.4-36 6.6-33 3-35-3-35-6.6-33Z");
  Line(out, kPaleGold, .6,
       "M-7.6-38.6C-6.4-36.6-5-35.6-3.4-35.2M7.6-38.6C6.4-36.6 5-35.6 3.4-35.2M-5-41.4"
       "C-4-39-2.6-37-1-35.6M5-41.4C4-39 2.6-37 1-35.6");
  Shape(out, kGold, "M-7.2-33.6C-3-36.2 3-36.2 7.2-33.6L6.8-31.8C3-34.2-3-34.2-6.8-31.8Z");
  Shape(out, kOrange, "M0-36.6 1.5-34.8 0-33 -1.5-34.8Z");
  // Mirror.
  Shape(out, kGold, "M12-12V-24.4H14V-12Z");
  Shape(out, kGold,
        "M13-42C16.4-42 18.2-38.4 18-33.6 17.8-28 15.6-24.4 13-24.4 10.4-24.4 8.2-28 8-33.6 "
        "7.8-38.4 9.6-42 13-42Z");
  Shape(out, kSky,
        "M13-40.2C15.4-40.2 16.4-37.4 16.3-33.6 16.2-29 14.8-26.2 13-26.2 11.2-26.2 9.8-29 9.7-33.6 "
        "9.6-37.4 10.6-40.2 13-40.2Z");
  Line(out, kWhite, .9, "M11.2-33 14.4-38M11.6-29.4 15-34.6");
  DrawRestingHand(out, kPine, kGold, kSkin);
  DrawFist(out, kTeal, kGold, kSkin);
}

void JackOfDiamonds(std::string& out) {
  DrawMantle(out, kOrange);
  Shape(out, kTeal, "M0-18.5H4.5C11-16.8 16.6-14.4 19-11.4V-2.6L0 0Z");
  Line(out, kPaleGold, .8, "M0-14V0");
  Flat(out, kPaleGold,
       "M-16.4-11l1.4 2-1.4 2-1.4-2zM-15.2-5.4l1.4 2-1.4 2-1.4-2zM-10.8-14.4l1.4 2-1.4 2-1.4-2z"
       "M-4-10.6l1.4 2-1.4 2-1.4-2zM-8.6-9.6l1.4 2-1.4 2-1.4-2zM-6.3-5.4l1.4 2-1.4 2-1.4-2zM-12.6-8"
       "l1.4 2-1.4 2-1.4-2zM-10.8-3.6l1.4 2-1.4 2-1.4-2zM4-10.6l1.4 2-1.4 2-1.4-2zM6.3-5.4l1.4 2"
       "-1.4 2-1.4-2zM8.6-9.6l1.4 2-1.4 2-1.4-2z");
  // Ruff.
  Shape(out, kWhite,
        "M-7.4-17.4C-8-19.6-6.4-20.6-5-20.2-3.6-21.6-1.6-21.2 0-21 1.6-21.2 3.6-21.6 5-20.2 "
        "6.4-20.6 8-19.6 7.4-17.4 8-15.6 6.4-14.6 5-15.2 3.8-13.8 2-14 1.2-14.8"
        ".4-13.8-1.6-13.8-2.2-14.8-3.4-13.8-4.8-14.2-5.2-15.2-6.8-14.6-8-15.8-7.4-17.4Z");
  Line(out, kAsh, .45, "M-5-15.4-3.8-18M-2-15-1.6-17.6M1.4-15 1.2-17.6M5-15.4 3.8-18");
  // Pageboy hair and face.
  Shape(out, kBlond,
        "M-5.4-34C-10-32-9.4-24-9-20.6-7.6-19.4-5-19.4-4-21.4H4C5-19.4 7.6-19.4 9-20.6 "
        "9.4-24 10-32 5.4-34Z");
  BothLines(out, kBronze, .45, "M-7.6-29C-7.8-26-7.8-23.4-7.4-20.6M-6.2-26C-6.2-24-6.2-22.4-5.8-20.8");
  DrawFaceShape(out, kSkin, kSkinShade);
  DrawFeatures(out, {kBronze, .6, kLips, -.2, false, kTeal, .9});
  Flat(out, kSkinLine, kFreckles, .6);
  Shape(out, kBlond,
        "M-5.6-27.2C-5.8-29.6-5.6-30.8-5-31.4H5C5.6-30.8 5.8-29.6 5.6-27.2 7.2-30 6.8-34.4 4-35.4H-4"
        "C-6.8-34.4-7.2-30-5.6-27.2Z");
  Line(out, kBronze, .45, "M-2.6-31.6V-34M0-31.6V-34M2.6-31.6V-34");
  // Cap with a striped feather.
  Shape(out, kTeal, "M-7-32.4C-7.6-38-4.6-40.6 0-40.6 4.6-40.6 7.6-38 7-32.4 3-34-3-34-7-32.4Z");
  Shape(out, kOrange, "M-7.6-32.4C-3-34.6 3-34.6 7.6-32.4L8.2-35.4C3-37.6-3-37.6-8.2-35.4Z");
  Shape(out, kPaleGold, "M-4-36.4C-8.4-36-9-40-6.4-42.8-3.4-41.6-2-39.4-2.8-36.4Z");
  Line(out, kOrange, .6, "M-3.6-36.6C-4.4-39-5.2-40.8-6.2-42M-7.6-39.4-5-39.2M-7-37.6-4.4-37.8");
  // Torch.
  Shape(out, kBrown, "M11.8-4 11.4-29H14.6L14.2-4Z");
  Shape(out, kBronze, "M10.2-32H15.8L14.8-28.4H11.2Z");
  Shape(out, kOrange,
        "M10.4-32C8.6-34.4 9-36.6 10.6-38.6 10.8-37.4 11.2-36.8 11.8-36.6 11.4-39 12-41.2 14-42.8 "
        "14-40.6 14.8-39.4 15.8-38.2 17.4-36.2 17.2-33.8 15.6-32Z");
  Flat(out, kPaleGold, "M11.6-32C10.6-34 11.6-35.4 12.6-37 13.4-35.4 15-34.4 14.4-32Z");
  DrawFist(out, kTeal, kPaleGold, kSkin);
}

}  // namespace pictures
