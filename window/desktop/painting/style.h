// The colours and letters of all windows.
#pragma once

#include <QColor>
#include <QFont>

class QApplication;
class QWidget;

namespace style {

inline constexpr QColor kInk(0x22, 0x1d, 0x24);
inline constexpr QColor kDeepInk(0x0d, 0x0b, 0x0e);
inline constexpr QColor kIvory(0xff, 0xfb, 0xee);
inline constexpr QColor kPaper(0xf6, 0xf0, 0xe0);
inline constexpr QColor kBox(0xfb, 0xf6, 0xe8);    // of boxes and plates
inline constexpr QColor kPanel(0xec, 0xe0, 0xc2);  // the darkest of a panel
inline constexpr QColor kGold(0xd9, 0xb4, 0x5b);
inline constexpr QColor kBaize(0x2b, 0x7c, 0x57);  // where it is lightest

inline constexpr QColor kStrongGround(0, 0, 0);  // of everything, where high contrast is asked for
inline constexpr QColor kStrongMark(0xff, 0xe0, 0x00);

// The font for what stands on a board or dialog. Sizes are told in points, and drawn in one of four: that of
// labels, of boxes and counts, of announcements, of a game's name.
QFont Letters(int points, bool bold = false);

// The font of widgets, so much larger than at 100 %.
QFont Letters(double zoom);

// What stands in this window is drawn so much larger: letters, ticks, scroll bars.
void SetZoom(QWidget& window, double zoom);
// The zoom of the window that holds the widget, or that its menu or list belongs to.
double ZoomOf(const QWidget* widget);

// Sets palette, style and font of the whole program.
void Apply(QApplication& application);
// White on black from now on, or the usual colours.
void SetHighContrast(bool high);

}  // namespace style
