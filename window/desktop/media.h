// Waves and music by the names that the suite uses for them.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

class SoundPlayer;

class Media {
 public:
  // Files are looked for in the first folder, then in "sounds" and "music" of the second.
  Media(std::filesystem::path own, std::filesystem::path installed);
  ~Media();

  void Start();
  // "\Chord.wav"
  void PlayWave(const std::string& path);
  // "open "\Quillmark.MID" type sequencer alias HarbekMidi", "play HarbekMidi", "close HarbekMidi"
  void Command(const std::string& command);
  // The file of that name: the player's own one, else the one installed in that folder.
  std::filesystem::path Find(const std::string& name, const char* folder) const;

 private:
  std::filesystem::path own_, installed_;
  std::unique_ptr<SoundPlayer> player_;
};
