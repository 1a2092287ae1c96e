#include "window/files.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstdio>

namespace fs = std::filesystem;

namespace {

constexpr off_t kLargestFile = 1 << 20;
constexpr char kTemporary[] = ".new-", kNote[] = ".late-";
constexpr size_t kSuffixLetters = 16;

// Goes on with a call that a signal has interrupted.
template <class Call>
auto Insist(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  operator int() const { return number_; }
  // False if what was written may not have reached the disk. An interrupted close has closed.
  bool Close() {
    const int number = std::exchange(number_, -1);
    return number < 0 || close(number) == 0 || errno == EINTR;
  }

 private:
  int number_;
};

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

void SyncFolder(const fs::path& folder) {
  const Descriptor descriptor(
      Insist([&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  if (descriptor >= 0) Insist([&] { return fsync(descriptor); });
}

// The file that a path means: a symbolic link stays one, and what it names is replaced.
fs::path TargetOf(fs::path path) {
  constexpr int kMostLinks = 40;
  for (int i = 0; i < kMostLinks; ++i) {
    std::error_code error;
    const fs::path next = fs::read_symlink(path, error);
    if (error) return path;
    path = next.is_absolute() ? next : path.parent_path() / next;
  }
  return path;
}

// Unguessable, and so not the same on two machines that share a folder.
std::string RandomSuffix() {
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

enum class Written { Yes, NotBeside, NotOver };

Written Replace(const fs::path& path, const std::string& text, bool hurries = false) {
  const fs::path target = TargetOf(path);
  struct stat old = {};
  const bool exists = lstat(target.c_str(), &old) == 0;
  if (exists && !S_ISREG(old.st_mode)) return Written::NotOver;
  constexpr int kTries = 3;
  for (int i = 0; i < kTries; ++i) {
    const fs::path beside = target.string() + kTemporary + RandomSuffix();
    Descriptor descriptor(Insist(
        [&] { return open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644); }));
    if (descriptor < 0 && errno == EEXIST) continue;
    if (descriptor < 0) return Written::NotBeside;
    flock(descriptor, LOCK_EX | LOCK_NB);  // tells those who sweep that its writer lives
    if (exists) fchmod(descriptor, old.st_mode & 0777);
    const bool written = WriteAll(descriptor, text, hurries);
    bool renamed = false;
    // Closed behind the renaming, so that the lock lasts; what the disk refuses it has told by then.
    if (written) renamed = Insist([&] { return rename(beside.c_str(), target.c_str()); }) == 0;
    const int why = errno;
    if (renamed) {
      if (!hurries) SyncFolder(target.parent_path());
      return Written::Yes;
    }
    unlink(beside.c_str());
    if (!written) return Written::NotBeside;
    if (why != ENOENT) return Written::NotOver;  // else somebody has swept it away
  }
  return Written::NotBeside;
}

// Puts a file that nobody can make sense of aside: it has ".bad" behind its name, or ".bad-2" and so on where
// older ones lie. A plain file stays, under two names, until the new one is renamed over it.
bool PutAside(const fs::path& path) {
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

std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  DIR* const entries = opendir(folder.c_str());
  if (!entries) return names;
  while (const dirent* entry = readdir(entries)) names.emplace_back(entry->d_name);
  closedir(entries);
  return names;
}

// "Table.late-0123456789abcdef.Txt": what belongs into "Table.Txt". Before it is added it is moved to
// "Table.late-0123456789abcdef-2.Txt", where 2 is how often the table held the like then: whoever finds that
// sees whether it has been added.
struct Note {
  fs::path path;
  std::optional<int> heldBefore;
};

std::vector<Note> NotesFor(const fs::path& path) {
  const fs::path target = TargetOf(path);
  const std::string begin = target.stem().string() + kNote, end = target.extension().string();
  std::vector<Note> notes;
  for (const std::string& name : NamesIn(target.parent_path())) {
    if (name.size() < begin.size() + kSuffixLetters + end.size() || !name.starts_with(begin) ||
        !name.ends_with(end))
      continue;
    Note note{target.parent_path() / name, std::nullopt};
    const char* const behind = name.data() + begin.size() + kSuffixLetters;
    const char* const last = name.data() + name.size() - end.size();
    if (behind < last) {
      int held = 0;
      const auto [stopped, error] = std::from_chars(behind + 1, last, held);
      if (*behind != '-' || error != std::errc() || stopped != last) continue;
      note.heldBefore = held;
    }
    notes.push_back(std::move(note));
  }
  return notes;
}

void LeaveNotes(const fs::path& path, const std::vector<FileChange>& changes) {
  const fs::path target = TargetOf(path);
  for (const FileChange& change : changes)
    if (!change.note.empty())
      Replace(target.parent_path() /
                  (target.stem().string() + kNote + RandomSuffix() + target.extension().string()),
              change.note, true);
}

// The name of a temporary file of this suite, whose writer is gone.
bool IsLeftover(const fs::path& folder, const std::string& name) {
  const size_t at = name.rfind(kTemporary);
  if (at == std::string::npos || at < 4) return false;
  const std::string kind = name.substr(at - 4, 4), suffix = name.substr(at + sizeof kTemporary - 1);
  if (kind != ".Ini" && kind != ".Txt" && kind != ".sfl") return false;
  if (suffix.empty() || suffix.find_first_not_of("0123456789abcdef") != std::string::npos) return false;
  if (suffix.size() == kSuffixLetters) {
    const Descriptor descriptor(
        open((folder / name).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0;
  }
  // Older versions wrote the number of their process there.
  pid_t writer = 0;
  const auto [end, error] = std::from_chars(suffix.data(), suffix.data() + suffix.size(), writer);
  return error == std::errc() && *end == '\0' && writer > 0 && kill(writer, 0) != 0 && errno == ESRCH;
}

}  // namespace

fs::path Files::PathOf(std::string_view name) const {
  std::string relative(name);
  std::ranges::replace(relative, '\\', '/');
  return folder_ / relative.substr(std::min(relative.find_first_not_of('/'), relative.size()));
}

// Only what isn't there is missing, and only what was read can make no sense: everything else may be well
// again a moment later.
ReadOutcome Files::ReadDisk(const fs::path& path, std::string& text) {
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

ReadOutcome Files::Read(const fs::path& path, std::string& text) {
  const ReadOutcome outcome = ReadDisk(path, text);
  if (outcome == ReadOutcome::Refused) Refuse(FileRefusal::What::Read, path);
  const bool wasUnread = unread_.contains(path);
  if (outcome == ReadOutcome::Read) {
    known_[path] = text;
    unread_.erase(path);
  }
  if (const auto waits = waiting_.find(path); waits != waiting_.end()) {
    if (outcome == ReadOutcome::Read && wasUnread && waits->second.front().replaces) {
      waiting_.erase(waits);  // made without knowing what it would replace
      return outcome;
    }
    if (outcome == ReadOutcome::Refused) text = known_[path];
    if (outcome == ReadOutcome::Unusable) text.clear();
    for (const FileChange& change : waits->second) text = change.apply(text);
    return ReadOutcome::Read;
  }
  if (outcome != ReadOutcome::Refused) return outcome;
  if (const auto last = known_.find(path); last != known_.end()) {
    text = last->second;
    return ReadOutcome::Read;
  }
  unread_.insert(path);
  return outcome;
}

bool Files::Write(const fs::path& path, const std::string& text) {
  return Replace(path, text) == Written::Yes;
}

bool Files::HasNotes(const fs::path& path) { return !NotesFor(path).empty(); }

void Files::Keep(const fs::path& path, FileChange change) {
  auto& changes = waiting_[path];
  if (change.replaces) changes.clear();
  changes.push_back(std::move(change));
  Settle(path);
}

void Files::TryAgain() {
  std::vector<fs::path> paths;
  for (const auto& [path, changes] : waiting_) paths.push_back(path);
  for (const fs::path& path : paths) Settle(path);
}

void Files::Settle(const fs::path& path) {
  auto& changes = waiting_[path];
  if (unread_.contains(path) && changes.front().replaces) return;
  const auto refusal = Change(path, changes);
  if (refusal) Refuse(*refusal, path);
  if (refusal && Hurries()) LeaveNotes(path, changes);  // there is no later
  if (!refusal || Hurries()) waiting_.erase(path);
}

// Makes the changes to what the file holds now, or tells what stands against it.
std::optional<FileRefusal::What> Files::Change(const fs::path& path, std::vector<FileChange>& changes) {
  using What = FileRefusal::What;
  const fs::path folder = TargetOf(path).parent_path();
  constexpr int kShortWait = 100;
  const FolderLock lock(folder, stuck_ ? std::min(patience, kShortWait) : patience, mustHurry);
  if (!lock.FolderIsThere()) return What::WriteFolder;
  stuck_ = !lock.Held();
  if (stuck_ && !(Hurries() && changes.back().mayGoWithoutLock)) return What::Lock;
  if (!Hurries()) Sweep(folder);
  std::string old;
  const ReadOutcome outcome = ReadDisk(path, old);
  if (outcome == ReadOutcome::Refused) return What::Read;
  unread_.erase(path);
  const bool nonsense =
      outcome == ReadOutcome::Unusable || (outcome == ReadOutcome::Read && !changes.front().makesSense(old));
  if (nonsense && !PutAside(path)) return What::ReplaceFile;
  std::string text = old;
  std::vector<fs::path> notes;
  if (changes.front().addNote) notes = AddNotes(path, changes.front(), old, text);
  for (const FileChange& change : changes) text = change.apply(text);
  if (outcome != ReadOutcome::Read || text != old) {
    const Written written = Replace(path, text, Hurries());
    if (written == Written::NotBeside && folder == folder_) return What::WriteFolder;
    if (written != Written::Yes) return What::ReplaceFile;
  }
  std::error_code error;
  for (const fs::path& note : notes)  // one that doesn't go has nothing to say any more
    if (Insist([&] { return unlink(note.c_str()); }) != 0) fs::resize_file(note, 0, error);
  known_[path] = text;
  return std::nullopt;
}

// Adds to `text` what other copies have left and `old` doesn't hold yet; returns the notes that can go then.
std::vector<fs::path> Files::AddNotes(const fs::path& path, const FileChange& change, const std::string& old,
                                      std::string& text) {
  std::vector<fs::path> added;
  for (const Note& note : NotesFor(path)) {
    std::string left;
    if (ReadDisk(note.path, left) != ReadOutcome::Read) continue;
    if (!change.makesSense(left) && !PutAside(note.path)) continue;
    fs::path place = note.path;
    if (!note.heldBefore) {
      place.replace_filename(note.path.stem().string() + "-" + std::to_string(change.countNote(text, left)) +
                             note.path.extension().string());
      // What can't be moved can't be taken away either, and would be added at each start.
      if (Insist([&] { return rename(note.path.c_str(), place.c_str()); }) != 0) continue;
    }
    if (!note.heldBefore || change.countNote(old, left) <= *note.heldBefore)
      text = change.addNote(text, left);
    added.push_back(place);
  }
  if (!added.empty() && !Hurries()) SyncFolder(added.front().parent_path());
  return added;
}

// Takes away what copies of the program that were killed while they wrote have left; once a folder.
void Files::Sweep(const fs::path& folder) {
  if (!swept_.insert(folder).second) return;
  for (const std::string& name : NamesIn(folder))
    if (IsLeftover(folder, name)) unlink((folder / name).c_str());
}

void Files::Refuse(FileRefusal::What what, const fs::path& path) {
  const fs::path& about = what == FileRefusal::What::WriteFolder ? folder_ : path;
  if (told_.emplace(what, about).second) refusals_.push_back({what, about});
}

std::vector<FileRefusal> Files::TakeRefusals() { return std::exchange(refusals_, {}); }

FolderLock::FolderLock(const fs::path& folder, int patience, const std::function<bool()>& mustHurry)
    : descriptor_(Insist([&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); })) {
  if (descriptor_ < 0) return;
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
