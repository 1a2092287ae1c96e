#include "window/desktop/view/view.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>

namespace fs = std::filesystem;

namespace {

constexpr qint64 kLargestFile = 64 * 1024;

QString Name(const fs::path& file) { return QString::fromStdString(file.string()); }

// What stands there under that name and is no plain file would be replaced by one.
bool MayBeWritten(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  return !file.empty() && (!fs::exists(status) || fs::is_regular_file(status));
}

}  // namespace

fs::path ViewFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return folder.isEmpty() ? fs::path() : fs::path(folder.toStdString()) / "card-haven" / "desktop.ini";
}

View ReadView(const fs::path& file) {
  View view;
  const QFileInfo info(Name(file));
  if (file.empty() || !info.isFile() || info.size() > kLargestFile) return view;
  const QSettings settings(Name(file), QSettings::IniFormat);
  const auto flag = [&](const char* key, bool& value) {
    const QString read = settings.value(key).toString();
    if (read == "true" || read == "false") value = read == "true";
  };
  const auto percent = [&](const char* key, int& value, int lowest, int highest) {
    bool good = false;
    const int read = settings.value(key).toInt(&good);
    if (good) value = std::clamp(read, lowest, highest);
  };
  percent("view/zoom", view.zoom, 100, 300);
  flag("view/fitMaximised", view.fitMaximised);
  flag("view/fitNormal", view.fitNormal);
  flag("view/fullScreen", view.fullScreen);
  flag("view/fourColours", view.fourColours);
  flag("view/highContrast", view.highContrast);
  flag("view/lessMotion", view.lessMotion);
  percent("sound/waves", view.waveVolume, 0, 100);
  percent("sound/music", view.musicVolume, 0, 100);
  if (const QVariant place = settings.value("last/selector"); place.canConvert<QPoint>())
    view.selector = place.toPoint();
  view.lastGame = settings.value("last/game").toString();
  view.seen = settings.value("last/seen").toStringList();
  view.lastName = settings.value("last/name").toString().left(100);
  return view;
}

void WriteView(const fs::path& file, const View& view, const View& before) {
  if (!MayBeWritten(file)) return;
  QSettings settings(Name(file), QSettings::IniFormat);
  const auto write = [&](const char* key, const auto& now, const auto& was) {
    if (now != was || !settings.contains(key)) settings.setValue(key, now);
  };
  write("view/zoom", view.zoom, before.zoom);
  write("view/fitMaximised", view.fitMaximised, before.fitMaximised);
  write("view/fitNormal", view.fitNormal, before.fitNormal);
  write("view/fullScreen", view.fullScreen, before.fullScreen);
  write("view/fourColours", view.fourColours, before.fourColours);
  write("view/highContrast", view.highContrast, before.highContrast);
  write("view/lessMotion", view.lessMotion, before.lessMotion);
  write("sound/waves", view.waveVolume, before.waveVolume);
  write("sound/music", view.musicVolume, before.musicVolume);
  if (view.selector && view.selector != before.selector) settings.setValue("last/selector", *view.selector);
  if (view.lastGame != before.lastGame) settings.setValue("last/game", view.lastGame);
  if (view.seen != before.seen) {
    QStringList seen = settings.value("last/seen").toStringList() + view.seen;
    seen.removeDuplicates();
    settings.setValue("last/seen", seen);
  }
  if (view.lastName != before.lastName) settings.setValue("last/name", view.lastName);
}
