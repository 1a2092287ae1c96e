// The round dial: a pie that fills as the round runs out.
#pragma once

class GameWindow;

// Measures the window's `Surface`, and shows the dial at second 0.
void InitTimeDial(GameWindow& window);

// Draws a pie that has grown clockwise from the top to `angle` degrees, 0 to 360; others draw no pie. In the
// last quarter the colour flips at each call and `Timer2` runs.
void DrawTimeDial(long long angle, GameWindow& window);

// The angle of the dial after that many seconds of the round.
long long DialAngle(const GameWindow& window, long long seconds);
