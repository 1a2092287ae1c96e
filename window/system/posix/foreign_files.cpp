#include "window/system/foreign_files.h"

#include <sys/stat.h>

#include <cstdio>
#include <mutex>
#include <set>

#include "window/system/posix/descriptor.h"

namespace fs = std::filesystem;

std::string WhyNotUse(const fs::path& path, std::uintmax_t largest) {
  std::error_code error;
  if (!fs::is_regular_file(path, error)) return "it is no plain file";
  if (fs::file_size(path, error) > largest || error) return "it is too large";
  return "";
}

bool ReadForeignFile(const fs::path& path, std::uintmax_t largest, std::string& text, std::string& why) {
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0) return false;
  why = WhyNotUse(path, largest);
  if (!why.empty()) return true;
  const Descriptor descriptor(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (descriptor < 0 || fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    why = "it can't be read";
  } else {
    char chunk[65536];
    ssize_t count = 0;
    while (text.size() <= largest && (count = read(descriptor, chunk, sizeof chunk)) > 0)
      text.append(chunk, static_cast<size_t>(count));
    if (count < 0) why = "it can't be read";
    if (text.size() > largest) why = "it is too large";
  }
  return true;
}

void TellRefused(const fs::path& path, const std::string& why) {
  static std::mutex guard;
  static std::set<fs::path> told;
  const std::lock_guard lock(guard);
  if (told.insert(path).second)
    std::fprintf(stderr, "cardhaven: %s isn't used: %s\n", path.c_str(), why.c_str());
}
