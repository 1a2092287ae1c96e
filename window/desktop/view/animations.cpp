#include "window/desktop/view/animations.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {

constexpr qint64 kLargestFile = 1024 * 1024;

QVariant ValueIn(const QString& file, const char* key) {
  const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/" + file;
  const QFileInfo info(path);
  if (!info.isFile() || info.size() > kLargestFile) return {};
  return QSettings(path, QSettings::IniFormat).value(key);
}

}  // namespace

namespace animations {

bool AreOffInFiles() {
  bool isNumber = false;
  if (ValueIn("kdeglobals", "KDE/AnimationDurationFactor").toDouble(&isNumber) == 0 && isNumber) return true;
  for (const char* file : {"gtk-4.0/settings.ini", "gtk-3.0/settings.ini"})
    if (const QVariant value = ValueIn(file, "Settings/gtk-enable-animations"); value.isValid())
      return !value.toBool();
  return false;
}

void AskPortal(QObject& context, const std::function<void(bool off)>& tell) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  QDBusMessage question =
      QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                     "org.freedesktop.portal.Settings", "Read");
  question << "org.gnome.desktop.interface"
           << "enable-animations";
  question.setAutoStartService(false);  // where no desktop has started it nobody has set anything
  auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), &context);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context, [watcher, tell] {
    watcher->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    if (reply.isError()) return;
    QVariant value = reply.value().variant();
    // Older portals wrap the value twice.
    if (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    if (value.typeId() == QMetaType::Bool) tell(!value.toBool());
  });
}

}  // namespace animations
