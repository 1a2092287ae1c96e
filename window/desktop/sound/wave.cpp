#include "window/desktop/sound/wave.h"

#include <fstream>
#include <string_view>

#include "window/system/folders.h"

namespace {

unsigned Number(std::string_view bytes) {
  unsigned number = 0;
  for (size_t i = bytes.size(); i > 0; --i) number = number << 8 | static_cast<unsigned char>(bytes[i - 1]);
  return number;
}

}  // namespace

std::string WhyNotPlay(const std::filesystem::path& path) {
  constexpr const char* kNoWave = "it is no wave";
  const std::uintmax_t size = folders::SizeOf(path);
  std::ifstream file(path, std::ios::binary);
  char head[12] = {};
  file.read(head, sizeof head);
  if (std::string_view(head, 4) != "RIFF" || std::string_view(head + 8, 4) != "WAVE") return kNoWave;
  unsigned rate = 0, frame = 0;
  constexpr int kMostChunks = 1000;  // it is asked before each time the wave is played
  int chunks = 0;
  for (char chunk[8]; file.read(chunk, sizeof chunk);) {
    if (++chunks > kMostChunks) return kNoWave;
    const std::string_view name(chunk, 4);
    const unsigned length = Number({chunk + 4, 4});
    if (name == "data") break;
    char format[16] = {};
    if (name != "fmt ") {
      file.seekg(length + length % 2, std::ios::cur);
    } else if (frame || length < sizeof format || !file.read(format, sizeof format)) {
      return kNoWave;
    } else {
      const unsigned kind = Number({format, 2}), channels = Number({format + 2, 2}),
                     bits = Number({format + 14, 2});
      rate = Number({format + 4, 4});
      frame = Number({format + 12, 2});
      const bool plain = kind == 1 || kind == 3 || kind == 0xfffe;
      if (!plain || channels < 1 || channels > 8 || bits < 8 || frame != channels * bits / 8) return kNoWave;
      file.seekg(length + length % 2 - sizeof format, std::ios::cur);
    }
  }
  if (!frame || rate < 4000 || rate > 192'000) return kNoWave;
  constexpr std::uintmax_t kPlayed = 44100 * 4;  // bytes of a second
  return size / frame * kPlayed / rate > kLargestWave ? "it is too large" : "";
}
