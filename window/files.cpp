#include "window/files.h"

#include <algorithm>
#include <charconv>

namespace fs = std::filesystem;

namespace {

constexpr char kNote[] = ".late-";
constexpr size_t kSuffixLetters = Disk::kSuffixLetters;

// "Table.late-0123456789abcdef.Txt": what belongs into "Table.Txt". Before it is added it is moved to
// "Table.late-0123456789abcdef-2.Txt", where 2 is how often the table held the like then: whoever finds that
// sees whether it has been added.
struct Note {
  fs::path path;
  std::optional<int> heldBefore;
};

std::vector<Note> NotesFor(Disk& disk, const fs::path& path) {
  const fs::path target = disk.TargetOf(path);
  const std::string begin = target.stem().string() + kNote, end = target.extension().string();
  std::vector<Note> notes;
  for (const std::string& name : disk.Names(target.parent_path())) {
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

void LeaveNotes(Disk& disk, const fs::path& path, const std::vector<FileChange>& changes) {
  const fs::path target = disk.TargetOf(path);
  for (const FileChange& change : changes)
    if (!change.note.empty())
      disk.Replace(target.parent_path() /
                       (target.stem().string() + kNote + disk.Suffix() + target.extension().string()),
                   change.note, true);
}

// Who was waited for in vain isn't waited for that long again.
FolderLock LockFolder(Disk& disk, const fs::path& folder, int patience,
                      const std::function<bool()>& mustHurry, bool& stuck) {
  constexpr int kShortWait = 100;
  FolderLock lock = disk.Lock(folder, stuck ? std::min(patience, kShortWait) : patience, mustHurry);
  if (lock.FolderIsThere()) stuck = !lock.Held();
  return lock;
}

}  // namespace

fs::path Files::PathOf(std::string_view name) const {
  std::string relative(name);
  std::ranges::replace(relative, '\\', '/');
  return folder_ / relative.substr(std::min(relative.find_first_not_of('/'), relative.size()));
}

ReadOutcome Files::Read(const fs::path& path, std::string& text) {
  const ReadOutcome outcome = disk_.Read(path, text);
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
  return disk_.Replace(path, text) == WriteOutcome::Written;
}

bool Files::Append(const fs::path& path, const std::string& line, const Ledger& ledger) {
  const FolderLock lock = LockFolder(disk_, disk_.TargetOf(path).parent_path(), patience, mustHurry, stuck_);
  return (lock.Held() || Hurries()) && disk_.Append(path, line, ledger, Hurries());
}

bool Files::HasNotes(const fs::path& path) { return !NotesFor(disk_, path).empty(); }

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
  if (refusal && Hurries()) LeaveNotes(disk_, path, changes);  // there is no later
  if (!refusal || Hurries()) waiting_.erase(path);
}

// Makes the changes to what the file holds now, or tells what stands against it.
std::optional<FileRefusal::What> Files::Change(const fs::path& path, std::vector<FileChange>& changes) {
  using What = FileRefusal::What;
  const fs::path folder = disk_.TargetOf(path).parent_path();
  const FolderLock lock = LockFolder(disk_, folder, patience, mustHurry, stuck_);
  if (!lock.FolderIsThere()) return What::WriteFolder;
  if (stuck_ && !(Hurries() && changes.back().mayGoWithoutLock)) return What::Lock;
  if (!Hurries() && swept_.insert(folder).second) disk_.Sweep(folder);
  std::string old;
  const ReadOutcome outcome = disk_.Read(path, old);
  if (outcome == ReadOutcome::Refused) return What::Read;
  unread_.erase(path);
  const bool nonsense =
      outcome == ReadOutcome::Unusable || (outcome == ReadOutcome::Read && !changes.front().makesSense(old));
  if (nonsense && !disk_.PutAside(path)) return What::ReplaceFile;
  std::string text = old;
  std::vector<fs::path> notes;
  if (changes.front().addNote) notes = AddNotes(path, changes.front(), old, text);
  for (const FileChange& change : changes) text = change.apply(text);
  if (outcome != ReadOutcome::Read || text != old) {
    const WriteOutcome written = disk_.Replace(path, text, Hurries());
    if (written == WriteOutcome::NotBeside && folder == folder_) return What::WriteFolder;
    if (written != WriteOutcome::Written) return What::ReplaceFile;
  }
  for (const fs::path& note : notes) disk_.Remove(note);
  known_[path] = text;
  return std::nullopt;
}

// Adds to `text` what other copies have left and `old` doesn't hold yet; returns the notes that can go then.
std::vector<fs::path> Files::AddNotes(const fs::path& path, const FileChange& change, const std::string& old,
                                      std::string& text) {
  std::vector<fs::path> added;
  for (const Note& note : NotesFor(disk_, path)) {
    std::string left;
    if (disk_.Read(note.path, left) != ReadOutcome::Read) continue;
    if (!change.makesSense(left) && !disk_.PutAside(note.path)) continue;
    fs::path place = note.path;
    if (!note.heldBefore) {
      place.replace_filename(note.path.stem().string() + "-" + std::to_string(change.countNote(text, left)) +
                             note.path.extension().string());
      // What can't be moved can't be taken away either, and would be added at each start.
      if (!disk_.Rename(note.path, place)) continue;
    }
    if (!note.heldBefore || change.countNote(old, left) <= *note.heldBefore)
      text = change.addNote(text, left);
    added.push_back(place);
  }
  if (!added.empty() && !Hurries()) disk_.Sync(added.front().parent_path());
  return added;
}

void Files::Refuse(FileRefusal::What what, const fs::path& path) {
  const fs::path& about = what == FileRefusal::What::WriteFolder ? folder_ : path;
  if (told_.emplace(what, about).second) refusals_.push_back({what, about});
}

std::vector<FileRefusal> Files::TakeRefusals() { return std::exchange(refusals_, {}); }

Files::Memory Files::Remember() const {
  Memory memory{known_, {}, unread_, told_, stuck_};
  for (const auto& [path, changes] : waiting_) {
    const auto last = known_.find(path);
    std::string text = last == known_.end() ? "" : last->second;
    for (const FileChange& change : changes) text = change.apply(text);
    memory.waiting[path] = {text, changes.front().replaces};
  }
  return memory;
}

void Files::Recall(const Memory& memory) {
  known_ = memory.known;
  unread_ = memory.unread;
  told_ = memory.told;
  stuck_ = memory.stuck;
  for (const auto& [path, change] : memory.waiting) {
    FileChange waits;
    waits.apply = [text = change.text](const std::string&) { return text; };
    waits.makesSense = [](const std::string&) { return true; };
    waits.replaces = change.replaces;
    waiting_[path] = {std::move(waits)};
  }
}
