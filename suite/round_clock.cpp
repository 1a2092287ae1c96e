#include "suite/round_clock.h"

#include <algorithm>

namespace {

constexpr int kFirstColour = 65280, kThirdColour = 65535, kLineColour = 0xC0C0C0;

}  // namespace

void RoundClock::Load() {
  TimeLimit = plan_.timeLimit;
  ElapsedSeconds = 0;
}

void RoundClock::ResetDial() {
  if (plan_.dialRuns == DialRuns::InLastQuarter) redraw_.Enabled = false;
  x_ = surface_.Width / 2;
  y_ = surface_.Height / 2;
  radius_ = std::min(surface_.Width, surface_.Height) / 2.0 - 30;  // keeps the rim on the surface
  lasting_.DialLastColor = kWhite;
  lasting_.DialSeconds = 0;
  Draw(0);
  if (plan_.dialRuns == DialRuns::FromEachRound) redraw_.Enabled = true;
}

void RoundClock::Tick() {
  ElapsedSeconds += 1;
  Draw(Angle(plan_.dialIsLate ? lasting_.DialSeconds : ElapsedSeconds));
  lasting_.DialSeconds = ElapsedSeconds;
}

void RoundClock::PaySecond() {
  Draw(Angle(ElapsedSeconds));
  ElapsedSeconds += 1;
  lasting_.DialSeconds = ElapsedSeconds;
}

void RoundClock::Draw(long long angle) {
  surface_.Cls();
  const bool pie = angle >= 1 && angle <= 360;
  if (pie) Slice(0, std::min(angle, 90ll), kFirstColour);
  if (pie && angle > 90) Slice(90, std::min(angle, 180ll), kFirstColour);
  if (pie && angle > 180) Slice(180, std::min(angle, 270ll), kThirdColour);
  if (pie && angle > 270) {
    const bool full = angle == 360;
    redraw_.Enabled = !full;
    lasting_.DialLastColor = full || lasting_.DialLastColor == kBlack ? kRed : kBlack;
    Slice(270, static_cast<double>(angle), lasting_.DialLastColor);
  }
  Face();
}

long long RoundClock::Angle(long long seconds) const {
  const long long limit = TimeLimit;
  if (limit == 0) RaiseDivisionByZero();
  return RoundHalfEven(360.0 / static_cast<double>(limit) * static_cast<double>(seconds));
}

// From `start` to `end` degrees.
void RoundClock::Slice(double start, double end, int colour) {
  Stroke stroke{Stroke::Kind::Pie};
  stroke.start = start;
  stroke.end = end;
  stroke.x = x_;
  stroke.y = y_;
  stroke.radius = radius_;
  stroke.colour = colour;
  surface_.Draw(stroke);
}

// The cross and the rim, over whatever pie there is.
void RoundClock::Face() {
  const int radius = static_cast<int>(radius_);
  Stroke line{Stroke::Kind::Line};
  line.colour = kLineColour;
  line.x1 = line.x2 = x_;
  line.y1 = y_ - radius;
  line.y2 = y_ + radius;
  surface_.Draw(line);
  line.x1 = x_ - radius;
  line.x2 = x_ + radius;
  line.y1 = line.y2 = y_;
  surface_.Draw(line);
  Stroke rim{Stroke::Kind::Circle};
  rim.x = x_;
  rim.y = y_;
  rim.radius = radius_;
  rim.colour = kLineColour;
  surface_.Draw(rim);
}
