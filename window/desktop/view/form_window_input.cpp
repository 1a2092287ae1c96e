// Keys and clicks on the widgets of a window.
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QToolTip>

#include "window/desktop/input/deeds.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/form_window.h"

// A page that can only be read scrolls, whatever button has the focus.
bool FormWindow::ScrollsPage(const QWidget* focus, QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
      break;
    default:
      return false;
  }
  auto* page = findChild<QPlainTextEdit*>();
  if (!page || page == focus || !page->isReadOnly()) return false;
  QApplication::sendEvent(page, &event);
  return true;
}

bool FormWindow::TakeKey(const QKeyEvent& event) {
  const int key = event.key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Escape) return false;
  if (event.isAutoRepeat()) return true;  // one press, one click
  const Key pressed = key == Qt::Key_Escape ? Key::Escape : Key::Return;
  desk_.deeds.Do(form, [this, pressed] { player::Press(form, pressed); });
  return true;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (left_ || !TakeKey(*event)) QWidget::keyPressEvent(event);
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  Visual* control = left_ ? nullptr : ControlOf(watched);
  if (!control) return false;
  if (event->type() == QEvent::KeyPress) {
    const bool writes = control->kind == Control::Kind::TextBox &&
                        static_cast<TextBox*>(control)->MultiLine && !static_cast<TextBox*>(control)->Locked;
    auto& key = static_cast<QKeyEvent&>(*event);
    if (ScrollsPage(qobject_cast<QWidget*>(watched), key)) return true;
    return !(writes && key.key() != Qt::Key_Escape) && TakeKey(key);
  }
  // A game that the first press of a double click has begun isn't ended by the second one.
  if (event->type() == QEvent::MouseButtonPress) pressedInGame_ = guide_ && guide_->InGame();
  if (event->type() == QEvent::MouseButtonDblClick && control->kind == Control::Kind::CommandButton &&
      guide_ && guide_->InGame() && !pressedInGame_)
    return true;
  if (event->type() == QEvent::ToolTip) QToolTip::setFont(style::Letters(zoom_));
  if (event->type() == QEvent::FocusIn && control->kind == Control::Kind::TextBox)
    lastField_ = static_cast<TextBox*>(control);
  // Only what the player does counts: in a handler the focus follows the model.
  if (event->type() == QEvent::FocusIn && !desk_.deeds.Busy() &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason &&
      form.ActiveControl() != control)
    desk_.deeds.Do(*control, [control] { player::Focus(*control); });
  if (event->type() == QEvent::MouseMove && control->OnMouseMove)
    desk_.deeds.Do(*control, [control] { player::MouseMove(*control); });
  return false;
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (left_) return;
  event->ignore();
  desk_.deeds.Do(form, [this] { player::Close(form); });
}

// The field that was refused has the focus by now; where a button has it, the field written in last.
void FormWindow::PutBackFocus() {
  Visual* active = form.ActiveControl();
  if (lastField_ && active && active->kind == Control::Kind::CommandButton) {
    player::Focus(*lastField_);
    active = lastField_;
  }
  if (active && active->kind == Control::Kind::TextBox) SelectText(static_cast<TextBox&>(*active));
}
