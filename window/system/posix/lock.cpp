#include "window/system/lock.h"

#include <sys/file.h>

#include <algorithm>
#include <chrono>

#include "window/system/posix/descriptor.h"

FolderLock::FolderLock(const std::filesystem::path& folder, int patience,
                       const std::function<bool()>& mustHurry)
    : descriptor_(Insist([&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); })),
      folderIsThere_(descriptor_ >= 0) {
  if (!folderIsThere_) return;
  using namespace std::chrono;
  const auto start = steady_clock::now();
  while (true) {
    if (Insist([&] { return flock(descriptor_, LOCK_EX | LOCK_NB); }) == 0) {
      held_ = true;
      return;
    }
    if (errno != EWOULDBLOCK) {
      held_ = errno == ENOLCK || errno == EOPNOTSUPP || errno == ENOSYS || errno == EINVAL || errno == EBADF;
      return;
    }
    const auto waited = duration_cast<milliseconds>(steady_clock::now() - start).count();
    if (waited >= patience || (mustHurry && mustHurry())) return;
    constexpr int kLongestPause = 64;  // milliseconds, halved for each second waited
    usleep(1000 * std::max<useconds_t>(1, kLongestPause >> std::min<long long>(waited / 1000, 6)));
  }
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) close(descriptor_);
}
