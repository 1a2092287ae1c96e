#include "suite/dial.h"

#include <algorithm>

#include "suite/game_window.h"

namespace {

// A slice from `start` to `end` degrees.
void Slice(GameWindow& window, double start, double end, int colour) {
  const TimeDial& dial = window.common.dial;
  Stroke stroke{Stroke::Kind::Pie};
  stroke.start = start;
  stroke.end = end;
  stroke.x = static_cast<int>(dial.DialCenterX);
  stroke.y = static_cast<int>(dial.DialCenterY);
  stroke.radius = dial.DialRadius;
  stroke.colour = colour;
  window.Surface.Draw(stroke);
}

// The cross and the rim, over whatever pie there is.
void Face(GameWindow& window) {
  const TimeDial& dial = window.common.dial;
  const int x = static_cast<int>(dial.DialCenterX), y = static_cast<int>(dial.DialCenterY);
  const int radius = static_cast<int>(dial.DialRadius);
  Stroke line{Stroke::Kind::Line};
  line.colour = dial.DialLineColor;
  line.x1 = line.x2 = x;
  line.y1 = y - radius;
  line.y2 = y + radius;
  window.Surface.Draw(line);
  line.x1 = x - radius;
  line.x2 = x + radius;
  line.y1 = line.y2 = y;
  window.Surface.Draw(line);
  Stroke rim{Stroke::Kind::Circle};
  rim.x = x;
  rim.y = y;
  rim.radius = dial.DialRadius;
  rim.colour = dial.DialLineColor;
  window.Surface.Draw(rim);
}

}  // namespace

void InitTimeDial(GameWindow& window) {
  TimeDial& dial = window.common.dial;
  dial.DialCenterX = window.Surface.Width / 2;
  dial.DialCenterY = window.Surface.Height / 2;
  dial.DialRadius =
      std::min(window.Surface.Width, window.Surface.Height) / 2.0 - 30;  // keeps the rim on the surface
  dial.DialLastColor = 0xFFFFFF;
  window.common.DialSeconds = 0;
  DrawTimeDial(0, window);
}

void DrawTimeDial(long long angle, GameWindow& window) {
  TimeDial& dial = window.common.dial;
  window.Surface.Cls();
  const bool pie = angle >= 1 && angle <= 360;
  if (pie) Slice(window, 0, std::min(angle, 90ll), dial.DialFirstColor);
  if (pie && angle > 90) Slice(window, 90, std::min(angle, 180ll), dial.DialFirstColor);
  if (pie && angle > 180) Slice(window, 180, std::min(angle, 270ll), dial.DialSecondColor);
  if (pie && angle > 270) {
    const bool full = angle == 360;
    window.Timer2.Enabled = !full;
    dial.DialLastColor = full || dial.DialLastColor == 0 ? kRed : kBlack;
    Slice(window, 270, static_cast<double>(angle), dial.DialLastColor);
  }
  Face(window);
}

long long DialAngle(const GameWindow& window, long long seconds) {
  const long long limit = window.common.TimeLimit;
  if (limit == 0) RaiseDivisionByZero();
  return RoundHalfEven(360.0 / static_cast<double>(limit) * static_cast<double>(seconds));
}
