// The two devices that show how a round pays: the round dial, and the counters that add a bonus to the score.
#pragma once

#include <string>

class GameWindow;

// Measures the window's `Surface`, and shows the dial of a round that begins.
void InitTimeDial(GameWindow& window);

// Draws a pie that has grown clockwise from the top to `angle` degrees, 0 to 360; others draw no pie. In the
// last quarter the colour flips at each call and `Timer2` runs.
void DrawTimeDial(long long angle, GameWindow& window);

// The angle of the dial after that many seconds of the round.
long long DialAngle(const GameWindow& window, long long seconds);

// Pays `bonusPerSecond` for each second that is left, under "Speed Bonus!"; does nothing if none is.
void CountTimeBonus(GameWindow& window, long long bonusPerSecond);

// Pays `count` times `value` under the title and a "!".
void AwardBonus(GameWindow& window, const std::string& title, long long count, long long value);

// The three parts of a counter, for a game that pays in its own way: the amount stands under the message for
// a while; it goes to the score in steps of a twentieth, whole steps only; the amount is gone.
void ShowAmount(GameWindow& window, const std::string& message, long long amount, int milliseconds);
void CountAmount(GameWindow& window, long long total);
void HideAmount(GameWindow& window);
