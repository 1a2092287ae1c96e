#include "window/lists.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "window/platform.h"

namespace fs = std::filesystem;

namespace {

// The names in a folder for which `wanted` holds, sorted.
template <class Wanted>
std::vector<std::string> NamesIn(const Control& list, const std::string& folder, Disk::Entries which,
                                 Wanted wanted) {
  std::vector<std::string> names = list.form.platform.border->Names(folder, which);
  std::erase_if(names, [&](const std::string& name) { return !wanted(name); });
  std::ranges::sort(names);
  return names;
}

char Lower(char letter) { return static_cast<char>(std::tolower(static_cast<unsigned char>(letter))); }

bool FitsOne(std::string_view name, std::string_view pattern) {
  size_t n = 0, p = 0, star = std::string_view::npos, resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || Lower(pattern[p]) == Lower(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace

bool FitsPattern(std::string_view name, std::string_view pattern) {
  while (true) {
    const size_t end = pattern.find(';');
    if (FitsOne(name, pattern.substr(0, end))) return true;
    if (end == std::string_view::npos) return false;
    pattern.remove_prefix(end + 1);
  }
}

bool ListControl::Pick(int entry) {
  if (entry < 0 || entry >= static_cast<int>(List.get().size())) return false;
  ListIndex = entry;
  if (OnClick) OnClick();
  return true;
}

void ListControl::Visit(const PropertyVisitor& visit) const {
  Visual::Visit(visit);
  Tell(visit, List, ListIndex);
}

DriveListBox::DriveListBox(Control& parent, std::string_view name)
    : ListControl(Kind::DriveListBox, parent, name) {
  List = form.platform.border->Places();
}

bool DriveListBox::Pick(int entry) {
  if (!ListControl::Pick(entry)) return false;
  Drive = List.get()[entry];
  if (OnChange) OnChange();
  return true;
}

void DriveListBox::Visit(const PropertyVisitor& visit) const {
  ListControl::Visit(visit);
  Tell(visit, Drive);
}

DirListBox::DirListBox(Control& parent, std::string_view name) : ListControl(Kind::DirListBox, parent, name) {
  OnDblClick = [this] { Enter(); };
}

void DirListBox::Enter() {
  if (ListIndex < 0 || ListIndex >= static_cast<int>(List.get().size())) return;
  const std::string& entry = List.get()[ListIndex];
  const fs::path here(Path.get());
  Path = (entry == ".." ? here.parent_path() : here / entry).string();
}

void DirListBox::AfterChange(Prop prop) {
  if (prop != Prop::Path) return;
  std::vector<std::string> folders =
      NamesIn(*this, Path, Disk::Entries::Folders, [](const std::string& name) { return name[0] != '.'; });
  const fs::path here(Path.get());
  if (here.has_relative_path()) folders.insert(folders.begin(), "..");
  List = folders;
  ListIndex = -1;
  if (OnChange) OnChange();
}

void DirListBox::Visit(const PropertyVisitor& visit) const {
  ListControl::Visit(visit);
  Tell(visit, Path);
}

FileListBox::FileListBox(Control& parent, std::string_view name)
    : ListControl(Kind::FileListBox, parent, name) {}

std::string FileListBox::FileName() const {
  if (ListIndex < 0 || ListIndex >= static_cast<int>(List.get().size())) return "";
  return List.get()[ListIndex];
}

void FileListBox::AfterChange(Prop prop) {
  if (prop != Prop::Path && prop != Prop::Pattern) return;
  List = NamesIn(*this, Path, Disk::Entries::Files,
                 [this](const std::string& name) { return FitsPattern(name, Pattern.get()); });
  ListIndex = -1;
}

void FileListBox::Visit(const PropertyVisitor& visit) const {
  ListControl::Visit(visit);
  Tell(visit, Path, Pattern);
}
