#include "window/desktop/sound/media.h"

#include <cmath>
#include <iterator>

#include "window/desktop/sound/sound.h"
#include "window/desktop/sound/wave.h"
#include "window/system/folders.h"
#include "window/system/foreign_files.h"

namespace fs = std::filesystem;

Media::Media(fs::path own, fs::path installed)
    : own_(std::move(own)), installed_(std::move(installed)), player_(std::make_unique<SoundPlayer>()) {}

Media::~Media() = default;

void Media::Start() { player_->Start(); }

fs::path Media::Find(const std::string& name, const char* folder) const {
  const fs::path file = fs::path(name.substr(name.find_last_of("\\/") + 1));
  if (const fs::path mine = own_ / file; folders::Exists(mine)) {
    const bool wave = std::string_view(folder) != "music";
    std::string why = WhyNotUse(mine, wave ? kLargestWave : kLargestTune);
    if (wave && why.empty()) why = WhyNotPlay(mine);
    if (why.empty()) return mine;
    TellRefused(mine, why);
  }
  return installed_ / folder / file;
}

Touch TouchOf(int step) {
  // Uneven as a hand is, and never twice the same within a second.
  static constexpr int kWavers[] = {0, -24, 16, -8, 28, -16, 6, -28, 20, -12, 24, -20, 10};
  static constexpr int kLevels[] = {100, 90, 96, 86, 94, 100, 88, 92, 97, 87, 95};
  constexpr double kHeight = 700, kSlope = 30;  // a fifth at last; half of it within twenty steps
  if (step <= 0) return {};
  const double rise = kHeight * (1 - std::exp(-step / kSlope));
  return {static_cast<int>(std::lround(rise)) + kWavers[step % std::size(kWavers)],
          kLevels[step % std::size(kLevels)]};
}

void Media::PlayWave(const std::string& path, long long handler, long long now) {
  constexpr int kCount = 500;  // milliseconds between the steps of a count at most
  const bool goesOn = last_.path == path && last_.handler == handler && now - last_.at <= kCount;
  last_ = {path, handler, now, goesOn ? last_.step + 1 : 0};
  Strike(path, last_.step);
}

void Media::Strike(const std::string& path, int step) {
  const fs::path file = Find(path, "sounds");
  const Touch touch = file.parent_path() == own_ ? Touch() : TouchOf(step);
  player_->PlayWave(file, touch.cents, touch.level);
}

void Media::SetVolumes(int waves, int music) { player_->SetVolumes(waves, music); }

void Media::Command(const std::string& command) {
  if (command.starts_with("open ")) {
    const size_t start = command.find('"'), end = command.rfind('"');
    if (start < end) player_->OpenMusic(Find(command.substr(start + 1, end - start - 1), "music"));
  } else if (command.starts_with("play ")) {
    player_->PlayMusic();
  } else if (command.starts_with("close ")) {
    player_->CloseMusic();
  }
}
