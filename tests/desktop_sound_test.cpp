// Listens to what the sound player really sends to a device: the disk driver's raw file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "window/desktop/sound/sound.h"

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

namespace {

constexpr double kRate = 44100;
constexpr int kBlock = 441;  // frames, 10 ms
constexpr double kLowTone = 600;
constexpr double kHighTone = 1900;

std::string Little(std::uint32_t number, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<char>(number >> (8 * i) & 0xff));
  return bytes;
}

void WriteFile(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// A mono wave of one sine.
void WriteTone(const fs::path& path, double hertz, double seconds) {
  std::string data;
  const int count = static_cast<int>(seconds * kRate);
  for (int i = 0; i < count; ++i) {
    const double sample = 12000 * std::sin(2 * M_PI * hertz * i / kRate);
    data += Little(static_cast<std::uint32_t>(std::lround(sample)), 2);
  }
  const auto size = static_cast<std::uint32_t>(data.size());
  WriteFile(path, "RIFF" + Little(36 + size, 4) + "WAVEfmt " + Little(16, 4) + Little(1, 2) + Little(1, 2) +
                      Little(44100, 4) + Little(88200, 4) + Little(2, 2) + Little(16, 2) + "data" +
                      Little(size, 4) + data);
}

/// An organ that holds a note for ten seconds.
void WriteMidi(const fs::path& path) {
  const std::string track("\x00\xc0\x10\x00\x90\x45\x7f\xa5\x00\x80\x45\x40\x00\xff\x2f\x00", 16);
  WriteFile(path, std::string("MThd\0\0\0\6\0\0\0\1\1\xe0", 14) + std::string("MTrk\0\0\0\x10", 8) + track);
}

/// How long anything may take on a busy machine: only a test that fails waits so long.
constexpr std::chrono::seconds kForGood(60);

bool WaitUntil(const std::function<bool()>& happened) {
  const Clock::time_point end = Clock::now() + kForGood;
  while (!happened()) {
    if (Clock::now() > end) return false;
    std::this_thread::sleep_for(milliseconds(5));
  }
  return true;
}

/// How strongly a tone sounds in a block; some thousand when it is there.
double Strength(const std::vector<std::int16_t>& left, std::size_t begin, double hertz) {
  double re = 0;
  double im = 0;
  for (int i = 0; i < kBlock; ++i) {
    re += left[begin + i] * std::cos(2 * M_PI * hertz * i / kRate);
    im += left[begin + i] * std::sin(2 * M_PI * hertz * i / kRate);
  }
  return 2 * std::hypot(re, im) / kBlock;
}

class SoundTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "sound-test-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", Raw().c_str(), 1);
    unsetenv("SDL_SOUNDFONTS");
    WriteTone(Low(), kLowTone, 1.5);
    WriteTone(High(), kHighTone, 0.2);
    WriteMidi(Midi());
    WriteFile(Rubbish(), std::string(5000, 'x'));
  }

  void TearDown() override { fs::remove_all(folder_); }

  fs::path Raw() const { return folder_ / "out.raw"; }
  fs::path Low() const { return folder_ / "low.wav"; }
  fs::path High() const { return folder_ / "high.wav"; }
  fs::path Midi() const { return folder_ / "organ.MID"; }
  fs::path Rubbish() const { return folder_ / "rubbish.wav"; }
  fs::path Missing() const { return folder_ / "missing.wav"; }

  /// The left side of what has been sent to the device so far.
  std::vector<std::int16_t> Heard() const {
    std::ifstream file(Raw(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::vector<std::int16_t> left;
    for (std::size_t i = 0; i + 3 < bytes.size(); i += 4)
      left.push_back(static_cast<std::int16_t>(static_cast<unsigned char>(bytes[i]) |
                                               static_cast<unsigned char>(bytes[i + 1]) << 8));
    return left;
  }

  /// For each block of 10 ms whether the tone is in it.
  std::vector<bool> BlocksWith(double hertz) const {
    const std::vector<std::int16_t> left = Heard();
    std::vector<bool> result;
    for (std::size_t at = 0; at + kBlock <= left.size(); at += kBlock)
      result.push_back(Strength(left, at, hertz) > 1500);
    return result;
  }

  int CountWith(double hertz) const {
    const std::vector<bool> blocks = BlocksWith(hertz);
    return static_cast<int>(std::count(blocks.begin(), blocks.end(), true));
  }

  /// The loudest sample from that frame on.
  static int Loudest(const std::vector<std::int16_t>& left, std::size_t from = 0) {
    int loudest = 0;
    for (std::size_t i = from; i < left.size(); ++i) loudest = std::max(loudest, std::abs(int{left[i]}));
    return loudest;
  }

  bool WaitForSilence() const {
    return WaitUntil([&] {
      const std::vector<std::int16_t> left = Heard();
      return left.size() >= 4410 && Loudest(left, left.size() - 4410) <= 8;
    });
  }

  bool WaitForFrames(std::size_t more) const {
    const std::size_t goal = Heard().size() + more;
    return WaitUntil([&] { return Heard().size() >= goal; });
  }

  fs::path folder_;
  const fs::path module_ = CARDHAVEN_TEST_SOUND_MODULE;
};

TEST_F(SoundTest, ANewWaveCutsTheOldOne) {
  {
    SoundPlayer player(module_);
    player.Start();
    player.PlayWave(Low());
    ASSERT_TRUE(WaitUntil([&] { return CountWith(kLowTone) >= 5; }));
    player.PlayWave(High());
    ASSERT_TRUE(WaitUntil([&] { return CountWith(kHighTone) >= 18; }));
    ASSERT_TRUE(WaitForFrames(4410));
  }
  const std::vector<bool> low = BlocksWith(kLowTone);
  const std::vector<bool> high = BlocksWith(kHighTone);
  const auto first_high = static_cast<std::size_t>(std::find(high.begin(), high.end(), true) - high.begin());
  EXPECT_EQ(std::count(low.begin() + static_cast<long>(first_high) + 2, low.end(), true), 0);
  EXPECT_NEAR(CountWith(kHighTone), 20, 2);
  EXPECT_LE(Loudest(Heard(), (first_high + 23) * kBlock), 8);
  // The cut is a short fade: no step from one sample to the next beyond what both tones can do.
  const std::vector<std::int16_t> left = Heard();
  int step = 0;
  for (std::size_t i = 1; i < left.size(); ++i) step = std::max(step, std::abs(left[i] - left[i - 1]));
  EXPECT_LT(step, 12000 * 2 * M_PI * (kLowTone + kHighTone) / kRate + 100);
}

TEST_F(SoundTest, AFileThatCannotBePlayedLeavesTheOldWaveAlone) {
  WriteTone(Low(), kLowTone, 0.4);
  testing::internal::CaptureStderr();
  {
    SoundPlayer player(module_);
    player.Start();
    player.PlayWave(Low());
    ASSERT_TRUE(WaitUntil([&] { return CountWith(kLowTone) >= 3; }));
    player.PlayWave(Missing());
    player.PlayWave(Rubbish());
    player.PlayWave({});
    ASSERT_TRUE(WaitForFrames(22050));
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_NEAR(CountWith(kLowTone), 40, 2);
}

TEST_F(SoundTest, BeforeTheStartOnlyTheLastWaveCounts) {
  {
    SoundPlayer player(module_);
    player.PlayWave(Low());
    player.PlayWave(High());
    std::this_thread::sleep_for(milliseconds(50));  // nothing is to happen meanwhile
    EXPECT_FALSE(fs::exists(Raw()));
    player.Start();
    ASSERT_TRUE(WaitUntil([&] { return CountWith(kHighTone) >= 15; }));
  }
  EXPECT_EQ(CountWith(kLowTone), 0);
}

TEST_F(SoundTest, MusicPlaysUntilItIsClosed) {
  const bool can_play = !FindSoundfont().empty();
  testing::internal::CaptureStderr();
  {
    SoundPlayer player(module_);
    player.Start();
    player.OpenMusic(Midi());
    player.PlayMusic();
    if (can_play) {
      ASSERT_TRUE(WaitUntil([&] { return Loudest(Heard()) > 300; }));
      // A wave goes over the music and doesn't stop it.
      player.PlayWave(High());
      ASSERT_TRUE(WaitUntil([&] { return CountWith(kHighTone) >= 15; }));
      ASSERT_TRUE(WaitForFrames(8820));
      const std::vector<std::int16_t> left = Heard();
      EXPECT_GT(Loudest(left, left.size() - 4410), 300);
    } else {
      ASSERT_TRUE(WaitForFrames(8820));
    }
    player.CloseMusic();
    player.CloseMusic();
    ASSERT_TRUE(WaitForSilence());
    // A play after the close has nothing to play.
    player.PlayMusic();
    ASSERT_TRUE(WaitForFrames(13230));
    const std::vector<std::int16_t> left = Heard();
    EXPECT_LE(Loudest(left, left.size() - 4410), 8);
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SoundTest, MusicThatIsClosedWhileItLoadsOrCannotBeReadIsSilent) {
  testing::internal::CaptureStderr();
  {
    SoundPlayer player(module_);
    player.Start();
    player.PlayWave(High());
    ASSERT_TRUE(WaitUntil([&] { return CountWith(kHighTone) >= 15; }));
    ASSERT_TRUE(WaitForFrames(4410));
    const std::size_t before = Heard().size();
    player.OpenMusic(Midi());
    player.PlayMusic();
    player.CloseMusic();
    ASSERT_TRUE(WaitForFrames(6615));
    // Nor is a wish to play the old tune one to play the new one.
    player.OpenMusic(Midi());
    player.PlayMusic();
    player.OpenMusic(Midi());
    ASSERT_TRUE(WaitForFrames(11025));
    for (const fs::path& path : {Rubbish(), Missing()}) {
      player.OpenMusic(path);
      player.PlayMusic();
    }
    // A head like a tune's, and nothing behind it.
    WriteFile(folder_ / "short.MID", "MThd");
    player.OpenMusic(folder_ / "short.MID");
    player.PlayMusic();
    ASSERT_TRUE(WaitForFrames(8820));
    EXPECT_LE(Loudest(Heard(), before), 8);
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SoundTest, WithoutASoundfontTheWavesStillPlay) {
  setenv("SDL_SOUNDFONTS", Missing().c_str(), 1);
  SoundPlayer player(module_);
  player.OpenMusic(Midi());
  player.PlayMusic();
  player.Start();
  ASSERT_TRUE(WaitForFrames(8820));
  EXPECT_EQ(Loudest(Heard()), 0);
  player.PlayWave(High());
  EXPECT_TRUE(WaitUntil([&] { return CountWith(kHighTone) >= 5; }));
}

TEST_F(SoundTest, WithoutADeviceOrAModuleNothingHappens) {
  testing::internal::CaptureStderr();
  setenv("SDL_DISKAUDIOFILE", (folder_ / "no" / "such" / "folder").c_str(), 1);
  for (const fs::path& module : {module_, Rubbish(), Missing()}) {
    SoundPlayer player(module);
    player.Start();
    player.Start();
    player.PlayWave(Low());
    player.OpenMusic(Midi());
    player.PlayMusic();
    std::this_thread::sleep_for(milliseconds(50));  // it may have found out, or not yet
    player.PlayWave(Low());
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SoundTest, ADeviceThatHangsHoldsNobodyUp) {
  // Opening a pipe to write waits until somebody reads.
  ASSERT_EQ(mkfifo(Raw().c_str(), 0600), 0);
  const Clock::time_point begin = Clock::now();
  {
    SoundPlayer player(module_);
    player.Start();
    player.PlayWave(Low());
    player.OpenMusic(Midi());
    player.CloseMusic();
    std::this_thread::sleep_for(milliseconds(50));
  }
  EXPECT_LT(Clock::now() - begin, kForGood);  // nobody reads as yet: who waits for the device waits for ever
  // Let the forgotten thread go on: it has to close the device it gets so late.
  const int pipe = open(Raw().c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(pipe, 0);
  char buffer[4096];
  bool opened = false;
  EXPECT_TRUE(WaitUntil([&] {
    pollfd waiting = {pipe, POLLIN, 0};
    poll(&waiting, 1, 20);
    const ssize_t count = read(pipe, buffer, sizeof buffer);
    opened = opened || count > 0 || (waiting.revents & POLLHUP) != 0;
    return opened && count == 0;
  }));
  close(pipe);
}

}  // namespace
