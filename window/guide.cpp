#include "window/guide.h"

std::vector<Spot> Guide::Spots() const {
  std::vector<Spot> spots = Places();
  std::erase_if(spots, [](const Spot& spot) { return !spot.control->Visible; });
  for (Spot& spot : spots) spot.playable = spot.playable && spot.control->Enabled;
  return spots;
}
