#include "window/system/disk.h"

#include <dirent.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "window/system/posix/descriptor.h"

namespace fs = std::filesystem;

namespace {

constexpr off_t kLargestFile = 1 << 20;
constexpr size_t kLongestLine = 1 << 16;
constexpr char kTemporary[] = ".new-";

bool WriteAll(int descriptor, const std::string& text, bool hurries) {
  size_t written = 0;
  while (written < text.size()) {
    const ssize_t count =
        Insist([&] { return write(descriptor, text.data() + written, text.size() - written); });
    if (count < 0) return false;
    written += static_cast<size_t>(count);
  }
  return hurries || Insist([&] { return fsync(descriptor); }) == 0;
}

// The name of a temporary file of this suite, whose writer is gone.
bool IsLeftover(const fs::path& folder, const std::string& name) {
  const size_t at = name.rfind(kTemporary);
  if (at == std::string::npos || at < 4) return false;
  const std::string_view whole = std::string_view(name).substr(0, at);
  const std::string suffix = name.substr(at + sizeof kTemporary - 1);
  constexpr std::string_view kKinds[] = {".Ini", ".Txt", ".sfl", ".ini", ".record", ".csv"};
  if (std::ranges::none_of(kKinds, [&](std::string_view kind) { return whole.ends_with(kind); }))
    return false;
  if (suffix.empty() || suffix.find_first_not_of("0123456789abcdef") != std::string::npos) return false;
  if (suffix.size() == Disk::kSuffixLetters) {
    const Descriptor descriptor(
        open((folder / name).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0;
  }
  // Older versions wrote the number of their process there.
  pid_t writer = 0;
  const auto [end, error] = std::from_chars(suffix.data(), suffix.data() + suffix.size(), writer);
  return error == std::errc() && *end == '\0' && writer > 0 && kill(writer, 0) != 0 && errno == ESRCH;
}

// Whether a name in a folder is that of a folder, or of a plain file; links are followed.
bool Is(Disk::Entries which, const fs::path& folder, const dirent& entry) {
  if (which == Disk::Entries::All) return true;
  const bool wantsFolders = which == Disk::Entries::Folders;
  std::error_code error;
  if (entry.d_type == DT_DIR || entry.d_type == DT_REG) return (entry.d_type == DT_DIR) == wantsFolders;
  const fs::file_status status = fs::status(folder / entry.d_name, error);
  return wantsFolders ? fs::is_directory(status) : fs::is_regular_file(status);
}

}  // namespace

ReadOutcome Disk::Read(const fs::path& path, std::string& text) {
  text.clear();
  // Nothing but a plain file is opened: a pipe would hang, a device would never end.
  struct stat status = {};
  if (Insist([&] { return stat(path.c_str(), &status); }) != 0)
    return errno == ENOENT || errno == ENOTDIR ? ReadOutcome::Missing : ReadOutcome::Refused;
  if (!S_ISREG(status.st_mode) || status.st_size > kLargestFile) return ReadOutcome::Unusable;
  const Descriptor descriptor(
      Insist([&] { return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
  if (descriptor < 0) return errno == ENOENT ? ReadOutcome::Missing : ReadOutcome::Refused;
  if (fstat(descriptor, &status) != 0) return ReadOutcome::Refused;
  if (!S_ISREG(status.st_mode) || status.st_size > kLargestFile) return ReadOutcome::Unusable;
  std::string read_so_far;
  char chunk[16384];
  while (true) {
    const ssize_t count = Insist([&] { return read(descriptor, chunk, sizeof chunk); });
    if (count < 0) return ReadOutcome::Refused;
    if (count == 0) break;
    read_so_far.append(chunk, static_cast<size_t>(count));
    if (read_so_far.size() > static_cast<size_t>(kLargestFile)) return ReadOutcome::Unusable;
  }
  if (read_so_far.size() < static_cast<size_t>(status.st_size)) return ReadOutcome::Refused;
  text = std::move(read_so_far);
  return ReadOutcome::Read;
}

std::vector<std::string> Disk::Names(const fs::path& folder, Entries which) {
  std::vector<std::string> names;
  DIR* const entries = opendir(folder.c_str());
  if (!entries) return names;
  while (const dirent* entry = readdir(entries))
    if (Is(which, folder, *entry)) names.emplace_back(entry->d_name);
  closedir(entries);
  return names;
}

std::vector<std::string> Disk::Places() {
  std::vector<std::string> places = {"/"};
  if (const char* home = std::getenv("HOME"); home && *home) places.push_back(home);
  for (const fs::path mounts : {"/media", "/mnt"}) {
    std::vector<std::string> names = Names(mounts, Entries::Folders);
    std::erase_if(names, [](const std::string& name) { return name == "." || name == ".."; });
    std::ranges::sort(names);
    for (const std::string& mount : names) places.push_back((mounts / mount).string());
  }
  return places;
}

fs::path Disk::TargetOf(fs::path path) {
  constexpr int kMostLinks = 40;
  for (int i = 0; i < kMostLinks; ++i) {
    std::error_code error;
    const fs::path next = fs::read_symlink(path, error);
    if (error) return path;
    path = next.is_absolute() ? next : path.parent_path() / next;
  }
  return path;
}

WriteOutcome Disk::Replace(const fs::path& path, const std::string& text, bool hurries) {
  const fs::path target = TargetOf(path);
  struct stat old = {};
  const bool exists = lstat(target.c_str(), &old) == 0;
  if (exists && !S_ISREG(old.st_mode)) return WriteOutcome::NotOver;
  constexpr int kTries = 3;
  for (int i = 0; i < kTries; ++i) {
    const fs::path beside = target.string() + kTemporary + Suffix();
    Descriptor descriptor(Insist(
        [&] { return open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644); }));
    if (descriptor < 0 && errno == EEXIST) continue;
    if (descriptor < 0) return WriteOutcome::NotBeside;
    flock(descriptor, LOCK_EX | LOCK_NB);  // tells those who sweep that its writer lives
    if (exists) fchmod(descriptor, old.st_mode & 0777);
    const bool written = WriteAll(descriptor, text, hurries);
    bool renamed = false;
    // Closed behind the renaming, so that the lock lasts; what the disk refuses it has told by then.
    if (written) renamed = Insist([&] { return rename(beside.c_str(), target.c_str()); }) == 0;
    const int why = errno;
    if (renamed) {
      if (!hurries) Sync(target.parent_path());
      return WriteOutcome::Written;
    }
    unlink(beside.c_str());
    if (!written) return WriteOutcome::NotBeside;
    if (why != ENOENT) return WriteOutcome::NotOver;  // else somebody has swept it away
  }
  return WriteOutcome::NotBeside;
}

bool Disk::Append(const fs::path& path, const std::string& line, const Ledger& ledger, bool hurries) {
  const Descriptor descriptor(Insist([&] {
    return open(TargetOf(path).c_str(), O_RDWR | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                0644);
  }));
  struct stat status = {};
  if (descriptor < 0 || fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return false;
  std::string text = line;
  if (status.st_size == 0) {
    text = ledger.head + line;
  } else {
    char last = 0;
    if (Insist([&] { return pread(descriptor, &last, 1, status.st_size - 1); }) != 1) return false;
    if (last != '\n') text = "\r\n" + line;
  }
  if (static_cast<size_t>(status.st_size) + text.size() > ledger.largest) return false;
  if (WriteAll(descriptor, text, hurries)) return true;
  Insist([&] { return ftruncate(descriptor, status.st_size); });
  return false;
}

std::vector<std::string> Disk::LinesWith(const fs::path& path, std::string_view text) {
  std::vector<std::string> lines;
  const Descriptor descriptor(
      Insist([&] { return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
  struct stat status = {};
  if (descriptor < 0 || fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return lines;
  std::string line;
  char chunk[1 << 16];
  ssize_t count = 0;
  while ((count = Insist([&] { return read(descriptor, chunk, sizeof chunk); })) > 0) {
    std::string_view rest(chunk, static_cast<size_t>(count));
    for (size_t end = 0; (end = rest.find('\n')) != rest.npos; rest.remove_prefix(end + 1)) {
      line.append(rest.substr(0, end));
      if (line.find(text) != line.npos) lines.push_back(line);
      line.clear();
    }
    if (line.size() < kLongestLine) line.append(rest);
  }
  return lines;
}

bool Disk::PutAside(const fs::path& path) {
  const fs::path target = TargetOf(path);
  struct stat bad = {};
  if (lstat(target.c_str(), &bad) != 0) return errno == ENOENT;
  // What a link names outside our folder is ours only if it is a file.
  if (target != path && !S_ISREG(bad.st_mode)) return false;
  constexpr int kMostAside = 1000;
  for (int number = 1; number <= kMostAside; ++number) {
    const fs::path aside = target.string() + ".bad" + (number == 1 ? "" : "-" + std::to_string(number));
    struct stat other = {};
    if (lstat(aside.c_str(), &other) == 0) {
      // Put aside by an earlier try, which didn't come to the new file.
      if (other.st_ino == bad.st_ino && other.st_dev == bad.st_dev) return true;
      continue;
    }
    if (S_ISREG(bad.st_mode)) {
      if (Insist([&] { return link(target.c_str(), aside.c_str()); }) == 0) return true;
      if (errno == EEXIST) continue;
      const bool knowsNoLinks =
          errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS || errno == EMLINK || errno == EXDEV;
      if (!knowsNoLinks) return false;
    }
    if (Insist([&] {
          return renameat2(AT_FDCWD, target.c_str(), AT_FDCWD, aside.c_str(), RENAME_NOREPLACE);
        }) == 0)
      return true;
    if (errno != EEXIST) return false;
  }
  return false;
}

bool Disk::Rename(const fs::path& from, const fs::path& to) {
  return Insist([&] { return rename(from.c_str(), to.c_str()); }) == 0;
}

void Disk::Remove(const fs::path& path) {
  std::error_code error;
  if (Insist([&] { return unlink(path.c_str()); }) != 0) fs::resize_file(path, 0, error);
}

void Disk::Sync(const fs::path& folder) {
  const Descriptor descriptor(
      Insist([&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  if (descriptor >= 0) Insist([&] { return fsync(descriptor); });
}

void Disk::Sweep(const fs::path& folder) {
  for (const std::string& name : Names(folder))
    if (IsLeftover(folder, name)) unlink((folder / name).c_str());
}

std::string Disk::Suffix() {
  unsigned char bytes[kSuffixLetters / 2] = {};
  if (getrandom(bytes, sizeof bytes, 0) != sizeof bytes) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count() ^ (long(getpid()) << 40);
    for (size_t i = 0; i < sizeof bytes; ++i) bytes[i] = static_cast<unsigned char>(now >> (8 * i));
  }
  std::string suffix;
  for (unsigned char byte : bytes) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", byte);
    suffix += digits;
  }
  return suffix;
}

FolderLock Disk::Lock(const fs::path& folder, int patience, const std::function<bool()>& mustHurry) {
  return FolderLock(folder, patience, mustHurry);
}
