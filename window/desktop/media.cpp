#include "window/desktop/media.h"

#include "window/desktop/screening.h"
#include "window/desktop/sound.h"

namespace fs = std::filesystem;

Media::Media(fs::path own, fs::path installed)
    : own_(std::move(own)), installed_(std::move(installed)), player_(std::make_unique<SoundPlayer>()) {}

Media::~Media() = default;

void Media::Start() { player_->Start(); }

fs::path Media::Find(const std::string& name, const char* folder) const {
  const fs::path file = fs::path(name.substr(name.find_last_of("\\/") + 1));
  std::error_code error;
  const fs::path mine = own_ / file;
  if (fs::exists(mine, error)) {
    const std::string why =
        WhyNotUse(mine, std::string_view(folder) == "music" ? kLargestTune : kLargestWave);
    if (why.empty()) return mine;
    TellRefused(mine, why);
  }
  return installed_ / folder / file;
}

void Media::PlayWave(const std::string& path) { player_->PlayWave(Find(path, "sounds")); }

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
