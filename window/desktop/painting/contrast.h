// Which colours can be told from which.
#pragma once

#include <QColor>

// 0xBBGGRR, as controls hold it; with the highest bit set one that the system chooses.
QColor ToColour(int value);
// 1 for equal colours to 21 for black on white.
double Contrast(const QColor& a, const QColor& b);
// Letters are easy to read on a ground from here on.
inline constexpr double kReadable = 4.5;
// On a ground whose colour was told letters may stand from here on.
inline constexpr double kLegible = 3;
// Where high contrast is asked for: the colour of letters and lines on a black ground that stands for this
// one.
QColor Strong(const QColor& told);
// Ivory or a deep ink, whichever lets letters of that colour stand out more.
QColor GroundFor(const QColor& letters);
