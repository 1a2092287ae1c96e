#include <cstdint>
#include <cstdlib>
#include <string>

#include "window/desktop/sound/sound.h"
#include "window/system/folders.h"

namespace fs = std::filesystem;

fs::path FindSoundfont() {
  constexpr const char* kPlaces[] = {
      "/usr/share/sounds/sf2/TimGM6mb.sf2",   "/usr/share/sounds/sf3/default-GM.sf3",
      "/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/sounds/sf2/FluidR3_GM.sf2",
      "/usr/share/sounds/sf3/FluidR3_GM.sf3", "/usr/share/sounds/sf2/FluidR3_GS.sf2",
      "/usr/share/soundfonts/default.sf2",    "/usr/share/soundfonts/default.sf3",
      "/usr/share/soundfonts/FluidR3_GM.sf2", "/usr/share/soundfonts/TimGM6mb.sf2",
  };
  // A list in the environment, as the libraries know it; its first file is the one wanted.
  if (const char* wish = std::getenv("SDL_SOUNDFONTS"); wish != nullptr && *wish != '\0') {
    const std::string list = wish;
    const fs::path first = list.substr(0, list.find_first_of(":;"));
    return folders::SizeOf(first) ? first : fs::path();
  }
  fs::path best;
  std::uintmax_t bestWeight = 0;
  for (const fs::path place : kPlaces) {
    std::uintmax_t weight = folders::SizeOf(place);
    if (weight == 0) continue;
    // A compressed one is several times its size once it is unpacked in memory.
    if (place.extension() == ".sf3") weight *= 6;
    if (!best.empty() && weight >= bestWeight) continue;
    best = place;
    bestWeight = weight;
  }
  return best;
}
