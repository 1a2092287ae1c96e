// Files in the browser's storage. It knows no folders: they are what stands before the last slash of a path.
// Each call is whole in itself, so what another tab has written is seen at once, and nothing can be half
// written.
#include "window/system/disk.h"

#include <set>

#include "window/system/web/host.h"

namespace fs = std::filesystem;

extern "C" int getentropy(void* buffer, size_t length);  // of the C library

namespace {

constexpr size_t kLargestFile = 1 << 20;

int Ask(const fs::path& path) {
  const std::string& name = path.native();
  return host::Read(name.data(), name.size());
}

bool Put(const fs::path& path, const std::string& text) {
  const std::string& name = path.native();
  return host::Write(name.data(), name.size(), text.data(), text.size()) != 0;
}

void Drop(const fs::path& path) { host::Remove(path.native().data(), path.native().size()); }

template <class See>
void EachLine(std::string_view rest, const See& see) {
  while (!rest.empty()) {
    const size_t end = std::min(rest.find('\n'), rest.size());
    see(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

}  // namespace

ReadOutcome Disk::Read(const fs::path& path, std::string& text) {
  text.clear();
  const int length = Ask(path);
  if (length == host::kMissing) return ReadOutcome::Missing;
  if (length < 0) return ReadOutcome::Refused;
  if (static_cast<size_t>(length) > kLargestFile) return ReadOutcome::Unusable;
  text = host::Taken(length);
  return ReadOutcome::Read;
}

std::vector<std::string> Disk::Names(const fs::path& folder, Entries which) {
  std::string within = folder.native();
  if (!within.ends_with('/')) within += '/';
  std::set<std::string> names;
  EachLine(host::Taken(host::Names()), [&](std::string_view path) {
    if (!path.starts_with(within)) return;
    path.remove_prefix(within.size());
    const size_t slash = path.find('/');
    const bool isFile = slash == path.npos;
    if (which == Entries::All || (which == Entries::Files) == isFile) names.emplace(path.substr(0, slash));
  });
  return {names.begin(), names.end()};
}

std::vector<std::string> Disk::Places() { return {"/"}; }

fs::path Disk::TargetOf(fs::path path) { return path; }

WriteOutcome Disk::Replace(const fs::path& path, const std::string& text, bool) {
  return Put(path, text) ? WriteOutcome::Written : WriteOutcome::NotBeside;
}

bool Disk::Append(const fs::path& path, const std::string& line, const Ledger& ledger, bool) {
  std::string text;
  const int length = Ask(path);
  if (length == host::kRefused) return false;
  text = length > 0 ? host::Taken(length) : ledger.head;
  if (!text.ends_with('\n') && length > 0) text += "\r\n";
  text += line;
  return text.size() <= ledger.largest && Put(path, text);
}

std::vector<std::string> Disk::LinesWith(const fs::path& path, std::string_view text) {
  std::vector<std::string> lines;
  const int length = Ask(path);
  if (length <= 0) return lines;
  EachLine(host::Taken(length), [&](std::string_view line) {
    if (line.find(text) != line.npos) lines.emplace_back(line);
  });
  return lines;
}

bool Disk::PutAside(const fs::path& path) {
  if (Ask(path) == host::kMissing) return true;
  constexpr int kMostAside = 1000;
  for (int number = 1; number <= kMostAside; ++number) {
    const fs::path aside = path.native() + ".bad" + (number == 1 ? "" : "-" + std::to_string(number));
    if (Ask(aside) == host::kMissing) return Rename(path, aside);
  }
  return false;
}

bool Disk::Rename(const fs::path& from, const fs::path& to) {
  const int length = Ask(from);
  if (length < 0 || !Put(to, host::Taken(length))) return false;
  Drop(from);
  return true;
}

void Disk::Remove(const fs::path& path) { Drop(path); }

void Disk::Sync(const fs::path&) {}
void Disk::Sweep(const fs::path&) {}

std::string Disk::Suffix() {
  unsigned char chance[kSuffixLetters / 2] = {};
  getentropy(chance, sizeof chance);
  std::string suffix;
  for (const unsigned char byte : chance) {
    suffix += "0123456789abcdef"[byte >> 4];
    suffix += "0123456789abcdef"[byte & 15];
  }
  return suffix;
}

FolderLock Disk::Lock(const fs::path& folder, int patience, const std::function<bool()>& mustHurry) {
  return FolderLock(folder, patience, mustHurry);
}

// A read and the write behind it are one turn of the page, in which no other tab's comes between.
FolderLock::FolderLock(const fs::path&, int, const std::function<bool()>&)
    : held_(true), folderIsThere_(true) {}
FolderLock::~FolderLock() = default;
