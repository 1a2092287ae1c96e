// Waves and music by the names that the suite uses for them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

class SoundPlayer;

inline constexpr std::uintmax_t kLargestTune = 1 << 20;

// How a wave sounds at that step of a count.
struct Touch {
  int cents = 0;    // higher than at the first step
  int level = 100;  // percent
};
Touch TouchOf(int step);

class Media {
 public:
  // Files are looked for in the first folder, then in "sounds" and "music" of the second.
  Media(std::filesystem::path own, std::filesystem::path installed);
  ~Media();

  void Start();
  // "\Chord.wav", in the handler of that number, at that moment. The same wave is played again and again in a
  // count: it rises a little at each step, and no two in a row are quite alike. A wave of the player's own is
  // played as it is.
  void PlayWave(const std::string& path, long long handler, long long now);
  // One by itself.
  void PlayWave(const std::string& path) { Strike(path, 0); }
  // Percent; heard at once.
  void SetVolumes(int waves, int music);
  // "open "\Quillmark.MID" type sequencer alias HarbekMidi", "play HarbekMidi", "close HarbekMidi"
  void Command(const std::string& command);
  // The file of that name: the player's own one, else the one installed in that folder.
  std::filesystem::path Find(const std::string& name, const char* folder) const;

 private:
  void Strike(const std::string& path, int step);

  std::filesystem::path own_, installed_;
  struct {
    std::string path;
    long long handler = -1, at = 0;
    int step = 0;
  } last_;  // wave
  std::unique_ptr<SoundPlayer> player_;
};
