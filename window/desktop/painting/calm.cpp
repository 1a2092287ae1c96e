#include "window/desktop/painting/calm.h"

namespace {

constexpr int kSteady = 1100;  // milliseconds; blinking is faster, or once a second

}  // namespace

Calm::Calm(std::function<void(const Visual&)> settled) : settled_(std::move(settled)) {
  clock_.start();
  timer_.setSingleShot(true);
  timer_.setInterval(kSteady + 20);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Settle(); });
}

void Calm::Keep(const Form& form, const Guide& guide) {
  for (const Control* control : form.Controls()) {
    if (control->kind != Control::Kind::Image || !guide.IsOrnament(*control)) continue;
    const auto& image = static_cast<const Image&>(*control);
    stills_.try_emplace(&image, Still{image.Picture, image.BorderStyle == 1, image.z});
  }
}

int Calm::Colour(const Visual& control, const std::string& text, int told) {
  const long long now = clock_.elapsed();
  const auto [found, fresh] = seen_.try_emplace(&control, Seen{text, told, told, now - kSteady});
  Seen& seen = found->second;
  if (seen.text != text) seen = {text, told, told, now - kSteady};
  const bool steady = now - seen.changed >= kSteady;
  if (told != seen.told) {
    seen.told = told;
    seen.changed = now;
  }
  if (steady) seen.shown = told;
  if (seen.shown != told) timer_.start();
  return seen.shown;
}

void Calm::Settle() {
  const long long now = clock_.elapsed();
  for (auto& [control, seen] : seen_)
    if (seen.shown != seen.told && now - seen.changed >= kSteady) settled_(*control);
}
