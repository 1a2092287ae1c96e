// Which colours can be told from which.
#pragma once

#include <QColor>

// 0xBBGGRR, as controls hold it; with the highest bit set one that the system chooses.
QColor ToColour(int value);
// 1 for equal colours to 21 for black on white.
double Contrast(const QColor& a, const QColor& b);
// Letters are easy to read on a ground from here on.
inline constexpr double kReadable = 4.5;
// Where high contrast is asked for: the colour of letters and lines on a black ground that stands for this
// one.
QColor Strong(const QColor& told);
// Neither one colour nor another: that of letters that mean nothing beside what they say.
bool IsNeutral(const QColor& colour);
// The colour of letters that means the same and is easy to read on that ground: the told one, or darker or
// lighter.
QColor LettersOn(const QColor& ground, const QColor& told);
