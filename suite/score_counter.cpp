#include "suite/score_counter.h"

#include "suite/game_window.h"

void ShowAmount(GameWindow& window, const std::string& message, long long amount, int milliseconds) {
  window.ShowMessage(message);
  window.lblCurrentScore.ForeColor = kCyan;
  window.lblScoring.Caption = FormatNumber(amount);
  window.lblScoring.ForeColor = kRed;
  window.PlaceScoring();
  window.lblScoring.Visible = true;
  window.common.platform.Sleep(milliseconds);
}

void HideAmount(GameWindow& window) {
  window.lblCurrentScore.ForeColor = kBlue;
  window.lblScoring.Visible = false;
}

void CountStep(GameWindow& window, long long amount, long long& left) {
  window.AddToScore(amount);
  left -= amount;
  window.lblScoring.ForeColor = kBlack;
  window.lblScoring.Caption = FormatNumber(left);
  window.PlaySound("\\Snap.wav");
  window.common.platform.Sleep(75);
}

void CountInSteps(long long total, long long step, const std::function<void(long long)>& pay) {
  if (step == 0) return pay(total);
  for (long long i = 1; step > 0 ? i <= total : i >= total; i += step) pay(step);
}

void CountAmount(GameWindow& window, long long total) {
  const long long step = RoundHalfEven(static_cast<double>(total) / 20);
  if (step == 0) return window.AddToScore(total);
  long long left = total;
  CountInSteps(total, step, [&](long long amount) { CountStep(window, amount, left); });
}

void CountTimeBonus(GameWindow& window, long long perSecond, const std::string& message) {
  modCommon& common = window.common;
  RoundClock& clock = window.clock;
  if (clock.Left() <= 0) return;
  const Long total = Long(clock.Left()) * perSecond;
  long long left = total;
  ShowAmount(window, message, left, 2000);
  if (common.CountDownScore) {
    while (clock.Left() > 0) {
      clock.PaySecond();
      CountStep(window, perSecond, left);
    }
  }
  window.AddToScore(left);
  HideAmount(window);
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
