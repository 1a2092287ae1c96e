#include "window/files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>

namespace fs = std::filesystem;

namespace {

constexpr uintmax_t kLargestFile = 1 << 20;

bool WriteAll(int descriptor, const std::string& text) {
  size_t written = 0;
  while (written < text.size()) {
    const ssize_t count = write(descriptor, text.data() + written, text.size() - written);
    if (count < 0) return false;
    written += static_cast<size_t>(count);
  }
  return fsync(descriptor) == 0;
}

void SyncFolder(const fs::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

}  // namespace

fs::path Files::PathOf(std::string_view name) const {
  std::string relative(name);
  std::ranges::replace(relative, '\\', '/');
  return folder_ / relative.substr(std::min(relative.find_first_not_of('/'), relative.size()));
}

ReadOutcome Files::Read(const fs::path& path, std::string& text) const {
  if (const auto kept = unwritten_.find(path); kept != unwritten_.end()) {
    text = kept->second;
    return ReadOutcome::Read;
  }
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) return ReadOutcome::Missing;
  // Nothing but a plain file is opened: a pipe would hang, a device would never end.
  if (error || status.type() != fs::file_type::regular) return ReadOutcome::Unusable;
  const uintmax_t size = fs::file_size(path, error);
  if (error || size > kLargestFile) return ReadOutcome::Unusable;
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return ReadOutcome::Unusable;
  text.resize(size);
  size_t got = 0;
  while (got < size) {
    const ssize_t count = read(descriptor, text.data() + got, size - got);
    if (count <= 0) break;
    got += static_cast<size_t>(count);
  }
  close(descriptor);
  text.resize(got);
  return ReadOutcome::Read;
}

bool Files::Write(const fs::path& path, const std::string& text) {
  const fs::path beside = path.string() + ".new-" + std::to_string(getpid());
  const int descriptor = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (descriptor < 0) return false;
  const bool written = WriteAll(descriptor, text);
  close(descriptor);
  std::error_code error;
  if (written) fs::rename(beside, path, error);
  if (!written || error) {
    fs::remove(beside, error);
    return false;
  }
  SyncFolder(path.parent_path());
  return true;
}

void Files::Keep(const fs::path& path, const std::string& text) {
  if (Write(path, text)) {
    unwritten_.erase(path);
    return;
  }
  unwritten_[path] = text;
  if (refusal_ == Refusal::None) refusal_ = Refusal::Fresh;
}

bool Files::TakeRefusal() {
  if (refusal_ != Refusal::Fresh) return false;
  refusal_ = Refusal::Told;
  return true;
}

void Files::PutAside(const fs::path& path) {
  std::error_code error;
  fs::rename(path, path.string() + ".bad", error);
}

Files::Lock::Lock(const Files& files)
    : descriptor_(open(files.Folder().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (descriptor_ < 0) return;
  for (int tries = 0; flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && tries < 200; ++tries) usleep(10'000);
}

Files::Lock::~Lock() {
  if (descriptor_ >= 0) close(descriptor_);
}
