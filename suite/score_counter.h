// Adding to the score before the player's eyes: an amount stands under a message, then goes over step by
// step.
#pragma once

#include <functional>
#include <string>

class GameWindow;

// Shows a message and, as placed by `PlaceScoring`, the amount that is about to be paid, for that time.
void ShowAmount(GameWindow& window, const std::string& message, long long amount, int milliseconds);
// The amount is gone, the score is blue again.
void HideAmount(GameWindow& window);

// One step: `amount` goes from what is left, which is shown, to the score; "\Snap.wav"; 75 ms.
void CountStep(GameWindow& window, long long amount, long long& left);

// Calls `pay(step)` as often as a loop from 1 to `total` in steps of `step` runs; both may be negative. A
// step of nothing would never end: then the whole is paid at once, by `pay(total)`.
void CountInSteps(long long total, long long step, const std::function<void(long long)>& pay);

// Pays a total in steps of a twentieth, whole steps only.
void CountAmount(GameWindow& window, long long total);

// Pays `perSecond` for each second of the round that is left, under `message`, and runs the dial on; does
// nothing if no second is left.
void CountTimeBonus(GameWindow& window, long long perSecond, const std::string& message = "Speed Bonus!");

// Pays `count` times `value` under the title and a "!".
void AwardBonus(GameWindow& window, const std::string& title, long long count, long long value);
