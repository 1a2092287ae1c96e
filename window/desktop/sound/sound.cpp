#include "window/desktop/sound/sound.h"

#include <dlfcn.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include "window/desktop/sound/sound_module.h"
#include "window/system/folders.h"

namespace fs = std::filesystem;

// A wave as it is to be heard.
struct AskedWave {
  fs::path path;
  int cents, level;
};

// What the caller wants and how far the two threads have come. All of it is guarded by `mutex`.
struct SoundState {
  std::mutex mutex;
  std::condition_variable changed;
  fs::path moduleFile;
  bool started = false;
  bool quit = false;

  std::vector<AskedWave> waves;  // asked for and not yet tried, the newest last
  int waveVolume = 100, musicVolume = 100;
  bool volumesChanged = false;

  // The newest wish for the tune: each open or close is a new edition, which nobody has asked to play yet.
  fs::path music;
  std::uint64_t musicEdition = 0;
  bool playMusic = false;

  const CardHavenSoundModule* module = nullptr;  // set while the device is open
  bool deviceSettled = false;                    // opened, or known to be out of reach
  bool musicDone = false;                        // the tune's thread has ended
  bool waveDone = false;                         // the device's thread has ended
  std::thread waveThread;
  std::thread musicThread;
};

namespace {

constexpr char kModuleName[] = "cardhaven-sound.so";
constexpr size_t kMostWaitingWaves = 16;
constexpr std::chrono::milliseconds kFarewell(150);

const CardHavenSoundModule* LoadModule(const fs::path& given) {
  std::vector<fs::path> places;
  if (!given.empty()) {
    places.push_back(given);
  } else {
    if (const fs::path own = folders::OfProgram(); !own.empty()) {
      places.push_back(own / kModuleName);
      // Installed, and moved as a whole to another prefix.
      places.push_back(own.parent_path() / "lib" / "card-haven" / kModuleName);
    }
    places.push_back(fs::path(CARDHAVEN_SOUND_MODULE_DIR) / kModuleName);
  }
  for (const fs::path& place : places) {
    // Never unloaded: the sound libraries leave threads and exit handlers behind.
    void* library = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) continue;
    const auto entry = reinterpret_cast<decltype(&CardHavenSound)>(dlsym(library, "CardHavenSound"));
    if (entry) return entry();
  }
  return nullptr;
}

// The device's thread: opens it, plays the waves, closes it when the tune's thread has let go.
void RunWaves(const std::shared_ptr<SoundState>& state) {
  std::unique_lock lock(state->mutex);
  const fs::path file = state->moduleFile;
  lock.unlock();
  const CardHavenSoundModule* module = LoadModule(file);
  if (module && !module->open()) module = nullptr;
  lock.lock();
  state->module = module;
  state->deviceSettled = true;
  state->changed.notify_all();
  while (module && !state->quit) {
    if (std::exchange(state->volumesChanged, false)) {
      const int waves = state->waveVolume, music = state->musicVolume;
      lock.unlock();
      module->setVolumes(waves, music);
      lock.lock();
      continue;
    }
    if (state->waves.empty()) {
      state->changed.wait(lock);
      continue;
    }
    const std::vector<AskedWave> waves = std::exchange(state->waves, {});
    lock.unlock();
    // Only the last one would be heard; those before it matter when it can't be played.
    for (auto wave = waves.rbegin(); wave != waves.rend(); ++wave)
      if (module->playWave(wave->path.c_str(), wave->cents, wave->level)) break;
    lock.lock();
  }
  state->changed.wait(lock, [&] { return state->musicDone; });
  lock.unlock();
  if (module) module->close();
  lock.lock();
  state->waveDone = true;
  state->changed.notify_all();
}

// The tune's thread: a soundfont takes long to read, and the waves must not wait for it.
void RunMusic(const std::shared_ptr<SoundState>& state) {
  std::unique_lock lock(state->mutex);
  state->changed.wait(lock, [&] { return state->deviceSettled; });
  const CardHavenSoundModule* module = state->module;
  void* music = nullptr;
  std::uint64_t edition = 0;
  while (module && !state->quit) {
    if (edition != state->musicEdition) {
      edition = state->musicEdition;
      const fs::path path = state->music;
      lock.unlock();
      if (music) module->freeMusic(std::exchange(music, nullptr));
      if (!path.empty()) {
        const fs::path soundfont = FindSoundfont();
        if (!soundfont.empty()) music = module->loadMusic(path.c_str(), soundfont.c_str());
      }
      lock.lock();
    } else if (std::exchange(state->playMusic, false)) {
      if (!music) continue;
      lock.unlock();
      module->playMusic(music);
      lock.lock();
    } else {
      state->changed.wait(lock);
    }
  }
  lock.unlock();
  if (music) module->freeMusic(music);
  lock.lock();
  state->musicDone = true;
  state->changed.notify_all();
}

}  // namespace

SoundPlayer::SoundPlayer(fs::path module) : state_(std::make_shared<SoundState>()) {
  state_->moduleFile = std::move(module);
}

SoundPlayer::~SoundPlayer() {
  std::unique_lock lock(state_->mutex);
  if (!state_->started) return;
  state_->quit = true;
  state_->changed.notify_all();
  const bool done = state_->changed.wait_for(lock, kFarewell, [&] { return state_->waveDone; });
  std::thread waveThread = std::move(state_->waveThread);
  std::thread musicThread = std::move(state_->musicThread);
  lock.unlock();
  for (std::thread* thread : {&waveThread, &musicThread}) {
    if (!thread->joinable()) continue;
    if (done) {
      thread->join();
    } else {
      thread->detach();
    }
  }
}

void SoundPlayer::Start() {
  const std::lock_guard lock(state_->mutex);
  if (state_->started) return;
  state_->started = true;
  try {
    // The tune's thread first: the device's thread waits for its end.
    state_->musicThread = std::thread(RunMusic, state_);
    state_->waveThread = std::thread(RunWaves, state_);
  } catch (const std::system_error&) {
    // No threads, no sound.
    state_->deviceSettled = true;
    state_->waveDone = true;
    state_->changed.notify_all();
  }
}

void SoundPlayer::PlayWave(const fs::path& path, int cents, int level) {
  const std::lock_guard lock(state_->mutex);
  if (state_->deviceSettled && state_->module == nullptr) return;
  if (!state_->started) state_->waves.clear();
  if (state_->waves.size() == kMostWaitingWaves) state_->waves.erase(state_->waves.begin());
  state_->waves.push_back({path, cents, level});
  state_->changed.notify_all();
}

void SoundPlayer::SetVolumes(int waves, int music) {
  const std::lock_guard lock(state_->mutex);
  if (state_->waveVolume == waves && state_->musicVolume == music) return;
  state_->waveVolume = waves;
  state_->musicVolume = music;
  state_->volumesChanged = true;
  state_->changed.notify_all();
}

void SoundPlayer::OpenMusic(const fs::path& path) {
  const std::lock_guard lock(state_->mutex);
  state_->music = path;
  ++state_->musicEdition;
  state_->playMusic = false;
  state_->changed.notify_all();
}

void SoundPlayer::PlayMusic() {
  const std::lock_guard lock(state_->mutex);
  if (state_->music.empty()) return;
  state_->playMusic = true;
  state_->changed.notify_all();
}

void SoundPlayer::CloseMusic() { OpenMusic({}); }
