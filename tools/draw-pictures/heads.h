// What the figures of the court cards share: faces, hands, garments and the things they wear.
//
// A figure is drawn as its upper half around the middle of the card: x runs from -18.5 to 18.5, y from -43 at
// the top to 0 at the waist. Outlines come from the group that holds the figure.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace pictures {

/// How a face looks at the world.
struct Look {
  std::string_view brow;  // The colour of the eyebrows.
  double gaze = 0;        // Where the eyes turn, -1 (left) to 1 (right).
  std::string_view lips;  // The colour of the mouth.
  double frown = 0;       // How far the inner ends of the brows come down.
  bool lashes = false;    // Longer lids, for the queens.
  std::string_view eye;   // The colour of the iris.
  double smile = 0;       // How far the corners of the mouth go up.
};

/// Draws the path and its mirror image.
void Both(std::string& out, std::string_view fill, std::string_view d);

/// Draws the line and its mirror image.
void BothLines(std::string& out, std::string_view colour, double width, std::string_view d);

/// The neck and the bare part of the chest.
void DrawNeck(std::string& out, std::string_view skin);

/// The face without hair: its outline and the shade on its right side.
void DrawFaceShape(std::string& out, std::string_view skin, std::string_view shade);

/// Eyes, brows, nose, mouth and cheeks.
void DrawFeatures(std::string& out, const Look& look);

/// A head that looks to the right, without hair; gaze and lashes of `look` don't matter.
void DrawProfile(std::string& out, std::string_view skin, std::string_view shade, const Look& look);

/// The outer garment from the shoulders to the waist, over the whole width.
void DrawMantle(std::string& out, std::string_view colour);

/// The raised right forearm with cuff and fist; the fist closes around a staff at x = 13.
void DrawFist(std::string& out, std::string_view sleeve, std::string_view cuff, std::string_view skin);

/// The other arm, bent, with its open hand on the chest.
void DrawRestingHand(std::string& out, std::string_view sleeve, std::string_view cuff, std::string_view skin);

/// The band across the waist that joins both halves.
void DrawSash(std::string& out, std::string_view band, std::string_view edge, std::string_view gem);

/// The small tails on a strip of ermine, each at (x, y) of the list "x y x y ...".
void DrawTails(std::string& out, std::initializer_list<double> places);

}  // namespace pictures
