#include "record/keeper.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

#include "suite/settings_file.h"
#include "window/system/folders.h"
#include "window/text.h"

namespace record {

namespace {

constexpr char kEntries[] = "Entries.csv";
constexpr char kHeader[] = "table,record,score,name\r\n";
constexpr char kEnding[] = ".record";
constexpr int kPatience = 3000;  // milliseconds for another copy of the program

// What names a file in the folder where it is looked for, and nothing elsewhere.
bool IsPlainName(std::string_view name, std::string_view ending) {
  return name.size() > ending.size() && name.ends_with(ending) && name[0] != '.' &&
         name.find('/') == name.npos;
}

// The name goes last: it may hold anything but a line's end.
std::string LineOf(const KeptEntry& entry) {
  return entry.table + "," + entry.record + "," + std::to_string(entry.entry.score) + "," + entry.entry.name +
         "\r\n";
}

bool ReadLine(std::string_view line, KeptEntry& entry) {
  const size_t one = line.find(','), two = line.find(',', one + 1), three = line.find(',', two + 1);
  if (one == line.npos || two == line.npos || three == line.npos) return false;
  entry.table = line.substr(0, one);
  entry.record = line.substr(one + 1, two - one - 1);
  entry.entry.name = line.substr(three + 1);
  int score = 0;
  if (!ParseLong(line.substr(two + 1, three - two - 1), score)) return false;
  entry.entry.score = score;
  return IsPlainName(entry.table, ".Txt") && IsPlainName(entry.record, kEnding);
}

}  // namespace

bool Proves(const Verdict& verdict, const KeptEntry& entry) {
  const GameResult& result = verdict.result;
  return verdict.kind == Verdict::Kind::Holds && result.table == "\\" + entry.table &&
         result.score == entry.entry.score && result.custom == entry.entry.name.ends_with('*');
}

std::string Keeper::NameFor(const std::string& game, const DateTime& now) {
  char stamp[80];
  std::snprintf(stamp, sizeof stamp, "%04d%02d%02d-%02d%02d%02d-", now.year, now.month, now.day, now.hour,
                now.minute, now.second);
  return stamp + game + "-" + disk_.Suffix().substr(0, 8) + kEnding;
}

// A record is lost by a failing power at most, as long as nobody waits for the disk.
bool Keeper::Keep(const std::string& name, const std::string& text) {
  folders::Make(folder_);
  if (disk_.Replace(PathOf(name), text, true) != WriteOutcome::Written) return false;
  Prune(name);
  return true;
}

// Lines whose record is gone go with it.
bool Keeper::Enter(const KeptEntry& entry) {
  const FolderLock lock = disk_.Lock(folder_, kPatience, nullptr);
  if (!lock.Held()) return false;
  std::string text = kHeader;
  for (const KeptEntry& each : Written())
    if (folders::Exists(PathOf(each.record))) text += LineOf(each);
  return disk_.Replace(folder_ / kEntries, text + LineOf(entry), true) == WriteOutcome::Written;
}

std::vector<KeptEntry> Keeper::Written() {
  std::vector<KeptEntry> entries;
  std::string text;
  disk_.Read(folder_ / kEntries, text);
  for (const std::string_view line : Lines(text))
    if (KeptEntry entry; ReadLine(line, entry)) entries.push_back(std::move(entry));
  return entries;
}

// Of equal entries of a table the one made last stands last; a record stands for one entry.
std::vector<KeptEntry> Keeper::Entries(const std::string& table) {
  struct Table {
    HighScores scores;
    std::set<size_t> taken;
  };
  std::map<std::string, Table> tables;
  std::set<std::string> used;
  std::vector<KeptEntry> entries = Written();
  std::ranges::reverse(entries);
  std::erase_if(entries, [&](KeptEntry& entry) {
    if (!table.empty() && entry.table != table) return true;
    const auto [found, isNew] = tables.try_emplace(entry.table);
    auto& [scores, taken] = found->second;
    if (isNew) {
      std::string text;
      bool damaged = false;
      disk_.Read(tables_ / entry.table, text);
      scores = ParseHighScores(text, damaged);
    }
    for (entry.place = scores.size(); entry.place-- > 0;)
      if (scores[entry.place] == entry.entry && !taken.contains(entry.place)) break;
    if (entry.place >= scores.size() || !used.insert(entry.record).second) return true;
    taken.insert(entry.place);
    return false;
  });
  return entries;
}

Verdict Keeper::Check(const KeptEntry& entry, const std::string& program,
                      const std::vector<GameEntry>& games) {
  Verdict verdict = ReplayFile(PathOf(entry.record), program, games);
  if (verdict.kind == Verdict::Kind::Holds && !Proves(verdict, entry))
    verdict = {Verdict::Kind::Fails, "it is of another game: " + verdict.Text(), {}};
  return verdict;
}

// Where there is no more room those of table entries go as well, last of all.
void Keeper::Prune(const std::string& newest) {
  disk_.Sweep(folder_);
  std::set<std::string> entered;
  for (const KeptEntry& entry : Entries()) entered.insert(entry.record);
  std::vector<std::string> names = disk_.Names(folder_, Disk::Entries::Files);
  std::erase_if(names, [](const std::string& name) { return !IsPlainName(name, kEnding); });
  std::ranges::sort(names);
  std::ranges::reverse(names);
  std::stable_partition(names.begin(), names.end(),
                        [&](const std::string& name) { return entered.contains(name); });
  size_t games = 0;
  uintmax_t bytes = folders::SizeOf(PathOf(newest));
  for (const std::string& name : names) {
    const bool isEntered = entered.contains(name), isNewest = name == newest;
    if (!isNewest) bytes += folders::SizeOf(PathOf(name));
    const bool goes = bytes > room_.mostBytes || (!isEntered && ++games > room_.lastGames);
    if (goes && !isNewest) disk_.Remove(PathOf(name));
  }
}

}  // namespace record
