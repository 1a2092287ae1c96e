#include "window/desktop/painting/contrast.h"

#include <algorithm>
#include <cmath>

#include "window/desktop/painting/style.h"

namespace {

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

}  // namespace

QColor ToColour(int value) {
  if (value < 0) return style::kInk;  // a colour of the system's: that of letters is the only one in use
  return QColor(value & 0xff, (value >> 8) & 0xff, (value >> 16) & 0xff);
}

double Contrast(const QColor& a, const QColor& b) {
  const auto [dark, light] = std::minmax({Luminance(a), Luminance(b)});
  return (light + 0.05) / (dark + 0.05);
}

QColor Strong(const QColor& told) {
  constexpr double kStrong = 7;
  if (Contrast(told, style::kStrongGround) >= kStrong) return told;
  const bool warns = told.red() > 120 && told.green() < 100 && told.blue() < 100;
  return warns ? style::kStrongMark : QColor(Qt::white);
}

bool IsNeutral(const QColor& colour) {
  const auto [least, most] = std::minmax({colour.red(), colour.green(), colour.blue()});
  return most - least < 32;
}

QColor LettersOn(const QColor& ground, const QColor& told) {
  const bool light = Contrast(ground, Qt::black) > Contrast(ground, Qt::white);
  if (IsNeutral(told)) return light ? style::kInk : style::kIvory;
  constexpr int kSteps = 20;
  const int end = light ? 0 : 255;
  QColor colour = told;
  const auto part = [&](int channel, int step) { return channel + (end - channel) * step / kSteps; };
  for (int step = 1; step <= kSteps && Contrast(colour, ground) < kReadable; ++step)
    colour = QColor(part(told.red(), step), part(told.green(), step), part(told.blue(), step));
  return colour;
}
