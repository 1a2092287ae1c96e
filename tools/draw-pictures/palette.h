// The colours of all pictures. One small set keeps faces, backs and places in tune.
#pragma once

namespace pictures {

inline constexpr char kPaper[] = "#FFFDF5";
inline constexpr char kPanel[] = "#F8EFD8";
inline constexpr char kInk[] = "#221D24";
inline constexpr char kBlack[] = "#17161B";
inline constexpr char kRed[] = "#C8102E";
// Of the clubs and diamonds where each suit has a colour of its own. With the black and the red they stay
// apart for eyes that don't tell red from green, and read well on the paper.
inline constexpr char kClubGreen[] = "#00805A";
inline constexpr char kDiamondBlue[] = "#1550E0";
inline constexpr char kWine[] = "#86122A";
inline constexpr char kRose[] = "#EC9A94";
inline constexpr char kGold[] = "#EFBE45";
inline constexpr char kPaleGold[] = "#FBE39A";
inline constexpr char kBronze[] = "#B57A22";
inline constexpr char kOrange[] = "#E5792B";
inline constexpr char kBlue[] = "#2E56A0";
inline constexpr char kNavy[] = "#1D2F63";
inline constexpr char kSky[] = "#A6C6E8";
inline constexpr char kViolet[] = "#6B4C93";
inline constexpr char kGreen[] = "#2F7F4F";
inline constexpr char kMoss[] = "#1B4E35";
inline constexpr char kLeaf[] = "#86B85A";
inline constexpr char kTeal[] = "#1C7C82";
inline constexpr char kPine[] = "#114F58";
inline constexpr char kSilver[] = "#D5DBE4";
inline constexpr char kSteel[] = "#8D99AB";
inline constexpr char kWhite[] = "#FFFFFF";
inline constexpr char kSkin[] = "#F8D9B8";
inline constexpr char kSkinShade[] = "#E6B48C";
inline constexpr char kSkinLine[] = "#9C5B3C";
inline constexpr char kBlush[] = "#EE9C84";

// Hair and complexions of the court cards, and the line around their panel.
inline constexpr char kGrey[] = "#C9CBD3";
inline constexpr char kAsh[] = "#9799A6";
inline constexpr char kRaven[] = "#2C2630";
inline constexpr char kBrown[] = "#6E4427";
inline constexpr char kChestnut[] = "#8E4A26";
inline constexpr char kCopper[] = "#BE5A2B";
inline constexpr char kBlond[] = "#E9BC52";
inline constexpr char kTan[] = "#E2B183";
inline constexpr char kTanShade[] = "#C48C5E";
inline constexpr char kLips[] = "#B4453F";
inline constexpr char kCourtFrame[] = "#6B4E1E";

}  // namespace pictures
