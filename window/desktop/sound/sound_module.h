// What the sound module gives to its one user, the sound player. The module is loaded while the program
// runs, so that the sound libraries cost nothing at its start.
#pragma once

extern "C" {

// Every function may take its time; none is called before `open` has succeeded or after `close`.
struct CardHavenSoundModule {
  // Opens the audio device; false when there is none.
  bool (*open)();
  void (*close)();
  // Plays a wave instead of the one that plays, higher by so many cents and at so many percent of its
  // level; false, and nothing changes, when it can't be read.
  bool (*playWave)(const char* path, int cents, int level);
  // Percent, of this wave or tune and all that follow.
  void (*setVolumes)(int waves, int music);
  // Reads a tune and the soundfont that is to play it; null when one of them is no good. May run beside
  // `playWave`.
  void* (*loadMusic)(const char* path, const char* soundfont);
  // Plays a loaded tune once, from its beginning.
  void (*playMusic)(void* music);
  // Stops a tune if it plays, and forgets it.
  void (*freeMusic)(void* music);
};

// The module's only entry.
const CardHavenSoundModule* CardHavenSound();
}
