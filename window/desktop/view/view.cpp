#include "window/desktop/view/view.h"

#include <QStandardPaths>
#include <algorithm>
#include <map>
#include <string_view>

#include "window/files.h"
#include "window/system/folders.h"

namespace fs = std::filesystem;

namespace {

constexpr size_t kLargestFile = 64 * 1024;

// What stands behind "section/key" in a file of sections, as it is written there.
using Entries = std::map<std::string, std::string>;

QString Trimmed(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).trimmed();
}

Entries Parse(const std::string& text) {
  Entries entries;
  if (text.size() > kLargestFile) return entries;
  std::string section;
  for (size_t at = 0; at < text.size();) {
    const size_t end = std::min(text.find('\n', at), text.size());
    const QString line = Trimmed(std::string_view(text).substr(at, end - at));
    at = end + 1;
    if (line.startsWith('[') && line.endsWith(']')) section = line.sliced(1).chopped(1).toStdString();
    const qsizetype equals = line.indexOf('=');
    if (equals > 0 && !line.startsWith('[') && !line.startsWith(';'))
      entries[section + "/" + line.first(equals).trimmed().toStdString()] =
          line.sliced(equals + 1).trimmed().toStdString();
  }
  return entries;
}

std::string Compose(const Entries& entries) {
  std::string text, section;
  for (const auto& [key, value] : entries) {
    const size_t slash = key.find('/');
    if (const std::string own = key.substr(0, slash); own != section || text.empty())
      text += (text.empty() ? "[" : "\n[") + (section = own) + "]\n";
    text += key.substr(slash + 1) + "=" + value + "\n";
  }
  return text;
}

std::string Written(bool value) { return value ? "true" : "false"; }
std::string Written(const std::optional<bool>& value) { return value ? Written(*value) : ""; }
std::string Written(int value) { return std::to_string(value); }
std::string Written(QPoint point) { return "@Point(" + Written(point.x()) + " " + Written(point.y()) + ")"; }
std::string Written(const QStringList& list) { return list.join(", ").toStdString(); }
std::string Written(QString text) {
  text.replace('\\', "\\\\").replace('"', "\\\"");
  return "\"" + text.toStdString() + "\"";
}

std::optional<int> Number(const std::string& value) {
  bool good = false;
  const int number = QString::fromStdString(value).toInt(&good);
  return good ? std::optional(number) : std::nullopt;
}

std::optional<QPoint> Point(const std::string& value) {
  const QStringList parts =
      value.starts_with("@Point(") && value.ends_with(')')
          ? QString::fromStdString(value).sliced(7).chopped(1).split(' ', Qt::SkipEmptyParts)
          : QStringList();
  if (parts.size() != 2) return std::nullopt;
  const auto x = Number(parts[0].toStdString()), y = Number(parts[1].toStdString());
  return x && y ? std::optional(QPoint(*x, *y)) : std::nullopt;
}

QStringList List(const std::string& value) {
  QStringList list;
  for (const QString& each : QString::fromStdString(value).split(',', Qt::SkipEmptyParts))
    if (const QString name = each.trimmed(); !name.isEmpty() && !name.startsWith('@')) list << name;
  list.removeDuplicates();
  return list;
}

QString Text(const std::string& value) {
  QString written = QString::fromStdString(value), text;
  if (written.size() > 1 && written.startsWith('"') && written.endsWith('"'))
    written = written.sliced(1).chopped(1);
  for (qsizetype i = 0; i < written.size(); ++i) {
    if (written[i] == '\\' && i + 1 < written.size()) ++i;
    text += written[i];
  }
  return text;
}

// Calls `visit(key, member, lowest, highest)` for each switch and number.
template <class Visit>
void VisitMembers(Visit visit) {
  visit("view/zoom", &View::zoom, 100, 300);
  visit("view/fitMaximised", &View::fitMaximised, 0, 0);
  visit("view/fitNormal", &View::fitNormal, 0, 0);
  visit("view/fullScreen", &View::fullScreen, 0, 0);
  visit("view/maximised", &View::maximised, 0, 0);
  visit("view/fourColours", &View::fourColours, 0, 0);
  visit("view/highContrast", &View::highContrast, 0, 0);
  visit("view/lessMotion", &View::lessMotion, 0, 0);
  visit("records/keep", &View::keepsRecords, 0, 0);
  visit("sound/waves", &View::waveVolume, 0, 100);
  visit("sound/music", &View::musicVolume, 0, 100);
}

template <class Flag>
void Read(const std::string& value, Flag& flag, int, int) {
  if (value == "true" || value == "false") flag = value == "true";
}

void Read(const std::string& value, int& number, int lowest, int highest) {
  if (const auto read = Number(value)) number = std::clamp(*read, lowest, highest);
}

// What the file holds with the changes that were made since `before`.
std::string Changed(const std::string& old, const View& view, const View& before) {
  Entries entries = Parse(old);
  VisitMembers([&](const char* key, auto member, int, int) {
    const std::string now = Written(view.*member);
    if ((view.*member != before.*member || !entries.contains(key)) && !now.empty()) entries[key] = now;
  });
  if (view.selector && view.selector != before.selector) entries["last/selector"] = Written(*view.selector);
  if (view.lastGame != before.lastGame) entries["last/game"] = Written(view.lastGame);
  if (view.seen != before.seen) {
    QStringList seen = List(entries["last/seen"]) + view.seen;
    seen.removeDuplicates();
    entries["last/seen"] = Written(seen);
  }
  if (view.lastName != before.lastName) entries["last/name"] = Written(view.lastName);
  return Compose(entries);
}

}  // namespace

fs::path ViewFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return folder.isEmpty() ? fs::path() : fs::path(folder.toStdString()) / "card-haven" / "desktop.ini";
}

View ReadView(const fs::path& file, int firstZoom) {
  View view;
  view.zoom = firstZoom;
  std::string text;
  if (file.empty() || Disk().Read(file, text) != ReadOutcome::Read) return view;
  const Entries entries = Parse(text);
  const auto read = [&](const char* key, const auto& take) {
    if (const auto entry = entries.find(key); entry != entries.end()) take(entry->second);
  };
  VisitMembers([&](const char* key, auto member, int lowest, int highest) {
    read(key, [&](const std::string& value) { Read(value, view.*member, lowest, highest); });
  });
  read("last/selector", [&](const std::string& value) { view.selector = Point(value); });
  read("last/game", [&](const std::string& value) { view.lastGame = Text(value); });
  read("last/seen", [&](const std::string& value) { view.seen = List(value); });
  read("last/name", [&](const std::string& value) { view.lastName = Text(value).left(100); });
  return view;
}

bool WriteView(const fs::path& file, const View& view, const View& before, bool last) {
  if (file.empty()) return true;
  constexpr int kPatience = 100;  // milliseconds; nobody is to notice
  Disk disk;
  Files files(file.parent_path(), disk);
  files.patience = kPatience;
  if (last) files.mustHurry = [] { return true; };
  folders::Make(file.parent_path());
  const auto change = [&](const std::string& old) { return Changed(old, view, before); };
  const auto makesSense = [](const std::string& old) { return old.empty() || !Parse(old).empty(); };
  files.Keep(file, {.apply = change, .makesSense = makesSense, .mayGoWithoutLock = true});
  return files.TakeRefusals().empty();
}
