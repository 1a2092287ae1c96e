#include "window/desktop/input/latin.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QWindow>
#include <string_view>

#include "window/desktop/input/key_again.h"

char LatinAt(const QKeyEvent& key) {
  // As the window systems number them, row by row.
  constexpr struct {
    quint32 first;
    std::string_view keys;
  } kRows[] = {{10, "1234567890-"}, {24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}};
  const quint32 place = key.nativeScanCode();
  for (const auto& [first, keys] : kRows)
    if (place >= first && place < first + keys.size()) return keys[place - first];
  return 0;
}

bool LatinKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWindowType() || !event->spontaneous()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool isLetter = key.key() > 0x7f && key.key() < Qt::Key_Escape;
  const char latin = isLetter ? LatinAt(key) : 0;
  const bool held = key.modifiers() & (Qt::AltModifier | Qt::ControlModifier);
  // Menus and boxes take plain letters, too.
  if (!latin || !(held || QApplication::activePopupWidget() ||
                  qobject_cast<QMessageBox*>(QApplication::activeModalWidget())))
    return false;
  const QString text = held ? QString() : QString(QChar(latin)).toLower();
  StrikeAgain(static_cast<QWindow&>(*watched),
              QKeyEvent(QEvent::KeyPress, latin, key.modifiers(), text, key.isAutoRepeat()));
  return true;
}
