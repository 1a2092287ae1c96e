// The sound module: everything that touches the sound libraries.
#include <SDL.h>
#include <SDL_mixer.h>
#include <dlfcn.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdarg>
#include <cstdint>
#include <cstring>
#include <list>
#include <string>
#include <vector>

#include "window/desktop/sound/sound_module.h"

namespace {

constexpr int kRate = 44100;
constexpr int kBufferFrames = 512;
constexpr int kWaveVolume = 104;
constexpr int kMusicVolume = 56;  // of 128: the waves stay in front
constexpr size_t kMostChunks = 32, kMostBytes = 64 << 20;
constexpr int kCutFrames = 176;  // 4 ms, so that a wave cut in the middle doesn't crack

// Waves take turns on two channels: while one begins, the other dies away.
struct Voice {
  std::atomic<bool> cut = false;
  int framesLeft = 0;
  std::vector<std::int16_t> varied;  // what it plays where that isn't the wave as it is
  Mix_Chunk chunk = {};              // around `varied`
};
Voice voices[2];
int lastVoice = 0;

struct CachedChunk {
  std::string path;
  Mix_Chunk* chunk;
};

// The one used last in front. Never destroyed: a device that hung may come back while the program ends.
std::list<CachedChunk>& Chunks() {
  static auto* const chunks = new std::list<CachedChunk>;
  return *chunks;
}

void Hush(void*, int, SDL_LogPriority, const char*) {}
void HushAlsa(const char*, int, const char*, int, const char*, ...) {}
void HushFluid(int, const char*, void*) {}

void* LibraryFunction(const char* library, const char* function) {
  void* handle = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
  return !handle ? nullptr : dlsym(handle, function);
}

// Two libraries below report a missing device or a bad file on the terminal by themselves.
void HushLibraries() {
  SDL_LogSetOutputFunction(Hush, nullptr);
  using AlsaHandler = void (*)(const char*, int, const char*, int, const char*, ...);
  if (void* function = LibraryFunction("libasound.so.2", "snd_lib_error_set_handler"))
    reinterpret_cast<int (*)(AlsaHandler)>(function)(HushAlsa);
  using FluidLog = void (*)(int, const char*, void*);
  if (void* function = LibraryFunction("libfluidsynth.so.3", "fluid_set_log_function")) {
    constexpr int kFluidLevels = 5;
    for (int level = 0; level < kFluidLevels; ++level)
      reinterpret_cast<FluidLog (*)(int, FluidLog, void*)>(function)(level, HushFluid, nullptr);
  }
}

// Runs in the device's thread over what a channel is about to play.
void FadeWhenCut(int, void* stream, int length, void* user) {
  Voice& voice = *static_cast<Voice*>(user);
  if (!voice.cut) return;
  auto* samples = static_cast<std::int16_t*>(stream);
  const int frames = length / 4;
  for (int i = 0; i < frames; ++i) {
    for (int side = 0; side < 2; ++side)
      samples[2 * i + side] =
          static_cast<std::int16_t>(samples[2 * i + side] * voice.framesLeft / kCutFrames);
    voice.framesLeft = std::max(0, voice.framesLeft - 1);
  }
}

// Gives back what the library keeps for the program and for the calling thread.
void Quit() {
  SDL_Quit();
  SDL_TLSCleanup();
}

bool Open() {
  // The program's own handling of signals stays as it is.
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Card Haven");
  SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "game");
  SDL_SetMainReady();
  HushLibraries();
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
    Quit();
    return false;
  }
  HushLibraries();  // a driver may have brought in more of them
  if (Mix_OpenAudioDevice(kRate, AUDIO_S16SYS, 2, kBufferFrames, nullptr, 0) != 0) {
    Quit();
    return false;
  }
  Mix_AllocateChannels(2);
  Mix_Volume(-1, kWaveVolume);
  Mix_VolumeMusic(kMusicVolume);
  return true;
}

void Close() {
  Mix_HaltMusic();
  Mix_HaltChannel(-1);
  for (const CachedChunk& cached : Chunks()) Mix_FreeChunk(cached.chunk);
  Chunks().clear();
  Mix_CloseAudio();
  Quit();
}

// The decoded wave; null when the file is missing or rubbish, which is asked again the next time.
Mix_Chunk* Chunk(const std::string& path) {
  std::list<CachedChunk>& chunks = Chunks();
  const auto found = std::find_if(chunks.begin(), chunks.end(),
                                  [&](const CachedChunk& cached) { return cached.path == path; });
  if (found != chunks.end()) {
    chunks.splice(chunks.begin(), chunks, found);
    return chunks.front().chunk;
  }
  Mix_Chunk* chunk = Mix_LoadWAV(path.c_str());
  if (!chunk) return nullptr;
  if (chunk->alen == 0) {
    Mix_FreeChunk(chunk);
    return nullptr;
  }
  chunks.push_front({path, chunk});
  size_t bytes = 0;
  for (const CachedChunk& cached : chunks) bytes += cached.chunk->alen;
  while (chunks.size() > kMostChunks || (chunks.size() > 1 && bytes > kMostBytes)) {
    bytes -= chunks.back().chunk->alen;
    Mix_FreeChunk(chunks.back().chunk);
    chunks.pop_back();
  }
  return chunk;
}

// The wave at another pitch and level, in the voice's own memory. The voice must be silent.
Mix_Chunk* Vary(Voice& voice, const Mix_Chunk& wave, int cents, int level) {
  const auto* from = reinterpret_cast<const std::int16_t*>(wave.abuf);
  const size_t frames = wave.alen / 4;
  const double step = std::pow(2, cents / 1200.0);
  const auto made = static_cast<size_t>(static_cast<double>(frames - 1) / step) + 1;
  voice.varied.resize(2 * made);
  for (size_t i = 0; i < made; ++i) {
    const double place = static_cast<double>(i) * step;
    const auto left = std::min(static_cast<size_t>(place), frames - 1);
    const size_t right = std::min(left + 1, frames - 1);
    const double share = place - static_cast<double>(left);
    for (int side = 0; side < 2; ++side) {
      const double sample = from[2 * left + side] * (1 - share) + from[2 * right + side] * share;
      voice.varied[2 * i + side] = static_cast<std::int16_t>(std::lround(sample * level / 100));
    }
  }
  voice.chunk.abuf = reinterpret_cast<Uint8*>(voice.varied.data());
  voice.chunk.alen = static_cast<Uint32>(4 * made);
  voice.chunk.volume = MIX_MAX_VOLUME;
  return &voice.chunk;
}

bool PlayWave(const char* path, int cents, int level) {
  Mix_Chunk* chunk = Chunk(path);
  if (!chunk) return false;
  const int channel = 1 - lastVoice;
  Voice& old = voices[lastVoice];
  Voice& next = voices[channel];
  // Halting takes the channel's effect away, so that the next wave's fade can be set up unseen.
  Mix_HaltChannel(channel);
  next.cut = false;
  next.framesLeft = kCutFrames;
  if ((cents != 0 || level != 100) && chunk->alen >= 4) chunk = Vary(next, *chunk, cents, level);
  Mix_RegisterEffect(channel, FadeWhenCut, nullptr, &next);
  Mix_PlayChannel(channel, chunk, 0);
  old.cut = true;
  lastVoice = channel;
  return true;
}

void SetVolumes(int waves, int music) {
  Mix_Volume(-1, kWaveVolume * waves / 100);
  Mix_VolumeMusic(kMusicVolume * music / 100);
}

bool BeginsLikeMidi(const char* path) {
  SDL_RWops* file = SDL_RWFromFile(path, "rb");
  if (!file) return false;
  char mark[4] = {};
  const bool read = SDL_RWread(file, mark, 1, 4) == 4;
  SDL_RWclose(file);
  return read && std::memcmp(mark, "MThd", 4) == 0;
}

void* LoadMusic(const char* path, const char* soundfont) {
  Mix_Music* music = nullptr;
  // Rubbish isn't worth reading a soundfont for.
  if (BeginsLikeMidi(path)) {
    Mix_SetSoundFonts(soundfont);
    if (SDL_RWops* file = SDL_RWFromFile(path, "rb")) music = Mix_LoadMUSType_RW(file, MUS_MID, 1);
  }
  SDL_TLSCleanup();  // the tune's thread has no other end to do it at
  return music;
}

void PlayMusic(void* music) { Mix_PlayMusic(static_cast<Mix_Music*>(music), 0); }

void FreeMusic(void* music) {
  // A tune dies away within a blink; a device that doesn't take any more samples mustn't hold that up.
  constexpr int kFadeMilliseconds = 40;
  constexpr int kSlice = 5;
  if (Mix_PlayingMusic()) Mix_FadeOutMusic(kFadeMilliseconds);
  for (int waited = 0; Mix_PlayingMusic() && waited < 2 * kFadeMilliseconds; waited += kSlice)
    SDL_Delay(kSlice);
  Mix_HaltMusic();
  Mix_FreeMusic(static_cast<Mix_Music*>(music));
  SDL_TLSCleanup();
}

}  // namespace

extern "C" __attribute__((visibility("default"))) const CardHavenSoundModule* CardHavenSound() {
  static const CardHavenSoundModule module = {Open,      Close,     PlayWave, SetVolumes,
                                              LoadMusic, PlayMusic, FreeMusic};
  return &module;
}
