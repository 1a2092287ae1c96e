#include "window/desktop/view.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>

namespace fs = std::filesystem;

namespace {

constexpr qint64 kLargestFile = 64 * 1024;

QString Name(const fs::path& file) { return QString::fromStdString(file.string()); }

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
  const auto flag = [&](const char* key, bool& value) { value = settings.value(key, value).toBool(); };
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

void WriteView(const fs::path& file, const View& view) {
  if (file.empty()) return;
  QSettings settings(Name(file), QSettings::IniFormat);
  settings.setValue("view/zoom", view.zoom);
  settings.setValue("view/fitMaximised", view.fitMaximised);
  settings.setValue("view/fitNormal", view.fitNormal);
  settings.setValue("view/fullScreen", view.fullScreen);
  settings.setValue("view/fourColours", view.fourColours);
  settings.setValue("view/highContrast", view.highContrast);
  settings.setValue("view/lessMotion", view.lessMotion);
  settings.setValue("sound/waves", view.waveVolume);
  settings.setValue("sound/music", view.musicVolume);
  if (view.selector) settings.setValue("last/selector", *view.selector);
  if (!view.lastGame.isEmpty()) settings.setValue("last/game", view.lastGame);
  if (!view.seen.isEmpty()) settings.setValue("last/seen", view.seen);
  if (!view.lastName.isEmpty()) settings.setValue("last/name", view.lastName);
}
