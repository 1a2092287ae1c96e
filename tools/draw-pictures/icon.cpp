// The application's icon: two cards on a rounded tile of green cloth, simple enough for 16 pixels.
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

}  // namespace pictures
