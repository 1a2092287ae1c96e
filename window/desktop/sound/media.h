// Waves and music by the names that the suite uses for them.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

class SoundPlayer;

// How a wave sounds at that step of a count.
struct Strike {
  int cents = 0;    // higher than at the first step
  int level = 100;  // percent
};
Strike StrikeOf(int step);

class Media {
 public:
  // Files are looked for in the first folder, then in "sounds" and "music" of the second.
  Media(std::filesystem::path own, std::filesystem::path installed);
  ~Media();

  void Start();
  // "\Chord.wav". The same wave is played again and again in a count: `step` 1, 2, 3... rises a little, and
  // no two in a row are quite alike. A wave of the player's own is played as it is.
  void PlayWave(const std::string& path, int step = 0);
  // Percent; heard at once.
  void SetVolumes(int waves, int music);
  // "open "\Quillmark.MID" type sequencer alias HarbekMidi", "play HarbekMidi", "close HarbekMidi"
  void Command(const std::string& command);
  // The file of that name: the player's own one, else the one installed in that folder.
  std::filesystem::path Find(const std::string& name, const char* folder) const;

 private:
  std::filesystem::path own_, installed_;
  std::unique_ptr<SoundPlayer> player_;
};
