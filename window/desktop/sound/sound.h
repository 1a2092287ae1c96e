// The suite's sound: short waves and a tune, played behind the program's back.
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

struct SoundState;

// Plays waves and music without ever making its caller wait. What can't be played is silent: a missing
// device, library, soundfont or file is nobody's mistake in the middle of a game.
class SoundPlayer {
 public:
  // Opens nothing yet. `module` is the sound module's file; when empty it is looked for beside the
  // program and where it is installed.
  explicit SoundPlayer(std::filesystem::path module = {});
  // Falls silent; waits for a moment only, even for a device that hangs.
  ~SoundPlayer();

  SoundPlayer(const SoundPlayer&) = delete;
  SoundPlayer& operator=(const SoundPlayer&) = delete;

  // Opens the device in the background. Meant for the time when the first window is on the screen.
  void Start();

  // Plays a wave, higher by so many cents and at so many percent of its level; it cuts the one that plays.
  // A file that can't be played leaves the other alone.
  void PlayWave(const std::filesystem::path& path, int cents = 0, int level = 100);
  // Percent; heard at once.
  void SetVolumes(int waves, int music);

  // Makes a tune ready in place of the last one, which falls silent.
  void OpenMusic(const std::filesystem::path& path);
  // Plays the open tune once, from its beginning, as soon as it is ready.
  void PlayMusic();
  // Silences and forgets the tune, also one that is still being read.
  void CloseMusic();

 private:
  std::shared_ptr<SoundState> state_;  // outlives the player when a thread hangs
};

// The soundfont to use: the one that $SDL_SOUNDFONTS names when it is set, else the lightest that is
// installed; empty when there is none.
std::filesystem::path FindSoundfont();
