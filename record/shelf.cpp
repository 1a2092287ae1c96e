#include "record/shelf.h"

namespace fs = std::filesystem;

namespace record {

bool Shelf::IsOutside(const fs::path& path) const {
  const std::string whole = path.string(), folder = folder_.string();
  return whole != folder && !(whole.starts_with(folder) && whole[folder.size()] == '/');
}

std::string Shelf::KeyOf(const fs::path& path) const {
  if (!IsOutside(path)) {
    const std::string key = path.string().substr(folder_.string().size());
    return key.empty() ? "." : key.substr(1);
  }
  return path.is_absolute() ? path.string() : "./" + path.string();
}

fs::path Shelf::PathOf(const std::string& key) const {
  if (key.starts_with("./")) return key.substr(2);
  return key.starts_with("/") ? fs::path(key) : folder_ / key;
}

ReadOutcome Shelf::Read(const fs::path& path, std::string& text) {
  text.clear();
  const auto found = files.find(KeyOf(path));
  if (found == files.end()) return ReadOutcome::Missing;
  text = found->second;
  return ReadOutcome::Read;
}

// Of all names in a folder the suite wants to know only what other copies of it have left.
std::vector<std::string> Shelf::Names(const fs::path& folder, Entries which) {
  std::vector<std::string> names;
  if (which == Entries::Folders) return names;
  for (const auto& [key, text] : files) {
    const fs::path path = PathOf(key);
    const std::string name = path.filename().string();
    if (path.parent_path() == folder && (which == Entries::Files || name.find(".late-") != std::string::npos))
      names.push_back(name);
  }
  return names;
}

WriteOutcome Shelf::Replace(const fs::path& path, const std::string& text, bool) {
  files[KeyOf(path)] = text;
  return WriteOutcome::Written;
}

// Stays, under two names, until the new one is put over it.
bool Shelf::PutAside(const fs::path& path) {
  const auto found = files.find(KeyOf(path));
  if (found != files.end()) files[found->first + ".bad"] = found->second;
  return true;
}

bool Shelf::Rename(const fs::path& from, const fs::path& to) {
  const auto found = files.extract(KeyOf(from));
  if (!found.empty()) files[KeyOf(to)] = std::move(found.mapped());
  return !found.empty();
}

}  // namespace record
