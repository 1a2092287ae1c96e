#include "window/desktop/input/key_again.h"

#include <QKeyEvent>
#include <QWindow>

// The toolkit has no documented way in: an event that is sent or posted to a window passes its shortcuts by.
// This is the one that its own test library declares. It is named nowhere else.
void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
                       const QString& text, bool autoRepeat, ushort count);

void StrikeAgain(QWindow& window, const QKeyEvent& key) {
  qt_handleKeyEvent(&window, key.type(), key.key(), key.modifiers(), key.text(), key.isAutoRepeat(),
                    static_cast<ushort>(key.count()));
}
