// Every picture of the suite as the text of an SVG file.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "glyphs.h"

namespace pictures {

/// How high the pile under a back lies.
enum class Pile { kSingle, kHalf, kFull };

/// A back design, 1 to 4, alone or on top of a pile.
std::string DrawBack(int design, Pile pile);

/// An ace or a number card, or a court card from 11 to 13.
std::string DrawFace(Suit suit, int rank, Colours colours = Colours::kTwo);

/// Appends the figure of a court card: the panel in the middle of the face with both halves.
void DrawCourt(std::string& out, Suit suit, int rank, Colours colours);

/// The place of a card where no card lies.
std::string DrawEmptyPlace();

/// The wider place under a pile of which no card is left.
std::string DrawEmptyWidePlace();

/// The mouse pointer over a card that can be played.
std::string DrawPointer();

/// The title card of the game Sumfall.
std::string DrawSumfall();

/// Names and texts of the games' signs.
std::vector<std::pair<std::string, std::string>> DrawGames();

/// The application's icon; and the one for 16, 22, 24 or 32 pixels.
std::string DrawIcon();
std::string DrawSmallIcon(int size);

/// The icon of a saved game in a file manager.
std::string DrawGameFileIcon();

}  // namespace pictures
