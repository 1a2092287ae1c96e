// The suit signs and the letterforms of the ranks.
#pragma once

#include <string>
#include <string_view>

namespace pictures {

enum class Suit { kSpades, kHearts, kClubs, kDiamonds };

/// The outline of a suit sign in a box of about 12 x 12 around the origin.
std::string_view SuitPath(Suit suit);

/// The outline of the small suit sign of a corner, 9 wide around the origin.
std::string_view SmallSuitPath(Suit suit);

/// Red and black, or a colour for each suit.
enum class Colours { kTwo, kFour };

/// The colour in which a suit is printed.
std::string_view SuitColour(Suit suit, Colours colours = Colours::kTwo);

/// The outline of a rank, 12 high; its left top corner is the origin.
std::string_view RankPath(int rank);

/// The width of the outline of a rank.
double RankWidth(int rank);

/// Draws a suit sign of the given height around (x, y).
void DrawSuit(std::string& out, Suit suit, double x, double y, double height,
              Colours colours = Colours::kTwo);

}  // namespace pictures
