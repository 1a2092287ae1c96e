// The clock of a round: its seconds, and the dial, a pie that fills as they run out.
#pragma once

#include "suite/common.h"
#include "suite/game_plan.h"
#include "window/controls.h"

class RoundClock {
 public:
  // The dial's surface, and the timer that draws it anew in the last quarter.
  RoundClock(PictureBox& surface, Timer& redraw, const GamePlan& plan, Lasting& lasting)
      : surface_(surface), redraw_(redraw), plan_(plan), lasting_(lasting) {}

  Integer TimeLimit, ElapsedSeconds;

  long long Left() const { return TimeLimit - ElapsedSeconds; }

  // What a window begins with.
  void Load();
  // The dial of a round that begins, or of no round: measures the surface; nothing blinks.
  void ResetDial();
  // A second has passed.
  void Tick();
  // The same while seconds are paid: the dial stands at the one before.
  void PaySecond();
  // Draws the dial where it stands.
  void Redraw() { Draw(Angle(lasting_.DialSeconds)); }
  // Draws a pie that has grown clockwise from the top to `angle` degrees, 0 to 360; others draw no pie. In
  // the last quarter the colour flips at each call, and the timer runs.
  void Draw(long long angle);

 private:
  long long Angle(long long seconds) const;
  void Slice(double start, double end, int colour);
  void Face();

  PictureBox& surface_;
  Timer& redraw_;
  const GamePlan& plan_;
  Lasting& lasting_;
  int x_ = 0, y_ = 0;  // the dial's middle, twips on the surface
  double radius_ = 0;
};
