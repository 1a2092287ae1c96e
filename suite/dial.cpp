#include "suite/dial.h"

#include <algorithm>

#include "suite/game_window.h"
#include "window/text.h"

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

// One step of a counter: `amount` goes from what is left to the score.
void CountStep(GameWindow& window, long long amount, long long& left) {
  window.AddToScore(amount);
  left -= amount;
  window.lblScoring.ForeColor = kBlack;
  window.lblScoring.Caption = FormatNumber(left);
  window.PlaySound("\\Snap.wav");
  window.common.platform.Sleep(75);
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
  window.Timer2.Enabled = false;
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

void CountTimeBonus(GameWindow& window, long long bonusPerSecond) {
  modCommon& common = window.common;
  if (common.ElapsedSeconds >= common.TimeLimit) return;
  const Long total = (common.TimeLimit - common.ElapsedSeconds) * bonusPerSecond;
  long long left = total;
  ShowAmount(window, "Speed Bonus!", left, 2000);
  if (common.CountDownScore) {
    const long long limit = common.TimeLimit;
    for (long long second = common.ElapsedSeconds + 1; second <= limit; ++second) {
      DrawTimeDial(DialAngle(window, common.ElapsedSeconds), window);
      common.DialSeconds = second;
      common.ElapsedSeconds += 1;
      CountStep(window, bonusPerSecond, left);
    }
  }
  window.AddToScore(left);
  window.lblScoring.Visible = false;
  window.lblCurrentScore.ForeColor = kBlue;
}

void AwardBonus(GameWindow& window, const std::string& title, long long count, long long value) {
  const Long total = count * value;
  ShowAmount(window, title + "!", total, 1000);
  if (window.common.CountDownScore)
    CountAmount(window, total);
  else
    window.AddToScore(total);
  HideAmount(window);
}

void ShowAmount(GameWindow& window, const std::string& message, long long amount, int milliseconds) {
  window.lblMessage.Caption = message;
  window.lblMessage.Visible = true;
  window.lblCurrentScore.ForeColor = kCyan;
  window.lblScoring.Caption = FormatNumber(amount);
  window.lblScoring.ForeColor = kRed;
  window.PlaceScoring();
  window.lblScoring.Visible = true;
  window.common.platform.Sleep(milliseconds);
}

void CountAmount(GameWindow& window, long long total) {
  const long long step = RoundHalfEven(static_cast<double>(total) / 20);
  // A step of nothing would never end: the whole is paid at once.
  if (step == 0) return window.AddToScore(total);
  long long left = total;
  for (long long i = 1; step > 0 ? i <= total : i >= total; i += step) CountStep(window, step, left);
}

void HideAmount(GameWindow& window) {
  window.lblCurrentScore.ForeColor = kBlue;
  window.lblScoring.Visible = false;
}
