#include "window/desktop/hands.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>

#include "window/desktop/desktop.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/view/form_window.h"
#include "window/desktop/view/menus.h"
#include "window/lists.h"
#include "window/player.h"

namespace {

void SendMouse(QWidget& widget, QEvent::Type type, QPoint point, Qt::MouseButton button,
               Qt::MouseButtons held) {
  QMouseEvent event(type, point, widget.mapToGlobal(point), button, held, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

// Where a click makes a widget of this kind act: the text of a tick box doesn't fill it.
QPoint SpotOn(const QWidget& widget, Control::Kind kind) {
  const bool tick = kind == Control::Kind::CheckBox || kind == Control::Kind::OptionButton;
  return {tick ? std::min(8, widget.width() / 2) : widget.width() / 2, widget.height() / 2};
}

}  // namespace

void DesktopHands::ClickOn(QWidget& widget, QPoint point) {
  const QPointer<QWidget> alive = &widget;
  SendMouse(widget, QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton);
  if (alive) SendMouse(widget, QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton);
}

void DesktopHands::Tell(Control& control, void (*deed)(Control&)) {
  front_.Deliver(control.form, [&control, deed] { deed(control); });
}

void DesktopHands::Click(Control& control) {
  FormWindow& window = *front_.WindowOf(control.form);
  switch (control.kind) {
    case Control::Kind::Menu:
      if (QAction* action = window.MenuBar().ActionOf(static_cast<Menu&>(control)); action && !action->menu())
        return action->trigger();
      break;
    case Control::Kind::CommandButton:
    case Control::Kind::CheckBox:
    case Control::Kind::OptionButton: {
      QWidget* widget = window.WidgetOf(control);
      return ClickOn(*widget, SpotOn(*widget, control.kind));
    }
    case Control::Kind::TextBox: {
      QWidget* widget = window.WidgetOf(control);
      auto* page = qobject_cast<QPlainTextEdit*>(widget);
      return ClickOn(page ? *page->viewport() : *widget, SpotOn(*widget, control.kind));
    }
    default:
      if (!IsDrawn(control.kind)) break;
      if (const auto spot = window.Board().SpotOf(static_cast<Visual&>(control)))
        return ClickOn(window.Board(), *spot);
      break;
  }
  Tell(control, player::Click);
}

void DesktopHands::DblClick(Control& control) {
  FormWindow& window = *front_.WindowOf(control.form);
  if (IsDrawn(control.kind) && static_cast<Visual&>(control).OnDblClick)
    if (const auto spot = window.Board().SpotOf(static_cast<Visual&>(control)))
      return SendMouse(window.Board(), QEvent::MouseButtonDblClick, *spot, Qt::LeftButton, Qt::LeftButton);
  Tell(control, player::DblClick);
}

void DesktopHands::MouseMove(Control& control) {
  FormWindow& window = *front_.WindowOf(control.form);
  if (QWidget* widget = window.WidgetOf(control))
    return SendMouse(*widget, QEvent::MouseMove, widget->rect().center(), Qt::NoButton, Qt::NoButton);
  if (IsDrawn(control.kind))
    if (const auto spot = window.Board().SpotOf(static_cast<Visual&>(control)))
      return SendMouse(window.Board(), QEvent::MouseMove, *spot, Qt::NoButton, Qt::NoButton);
  Tell(control, player::MouseMove);
}

void DesktopHands::Type(TextBox& box, const std::string& text) {
  QWidget* widget = front_.WindowOf(box.form)->WidgetOf(box);
  widget->setFocus();
  if (auto* line = qobject_cast<QLineEdit*>(widget)) {
    line->selectAll();
    QInputMethodEvent event;
    event.setCommitString(QString::fromStdString(text));
    QApplication::sendEvent(line, &event);
  } else if (auto* page = qobject_cast<QPlainTextEdit*>(widget)) {
    page->selectAll();
    page->insertPlainText(QString::fromStdString(text));
  }
  // What a line edit doesn't hold, a line end say, a script may still ask for.
  front_.Deliver(box.form, [&box, text] { player::Type(box, text); });
}

void DesktopHands::Select(Control& list, int entry) {
  auto* widget = qobject_cast<QListWidget*>(front_.WindowOf(list.form)->WidgetOf(list));
  if (widget && entry < widget->count()) {
    QListWidgetItem* item = widget->item(entry);
    widget->scrollToItem(item);
    const QRect rect = widget->visualItemRect(item);
    if (widget->viewport()->rect().contains(rect.center()))
      return ClickOn(*widget->viewport(), rect.center());
  }
  front_.Deliver(list.form, [&list, entry] { player::Select(list, entry); });
}

void DesktopHands::Press(Form& form, Key key) {
  FormWindow& window = *front_.WindowOf(form);
  window.Settle();
  const QPointer<QWidget> target = window.focusWidget() ? window.focusWidget() : &window;
  const int code = key == Key::Escape ? Qt::Key_Escape : Qt::Key_Return;
  for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, code, Qt::NoModifier, key == Key::Return ? "\r" : "\x1b");
    if (target) QApplication::sendEvent(target, &event);
  }
}

void DesktopHands::Close(Form& form) { front_.WindowOf(form)->close(); }

void DesktopHands::Resize(Form& form, int width, int height) {
  front_.Deliver(form, [&form, width, height] { player::Resize(form, width, height); });
}

void DesktopHands::SetState(Form& form, int state) {
  front_.Deliver(form, [&form, state] { player::SetState(form, state); });
}

std::string DesktopHands::Screenshot(Form& form, const std::string& file) {
  FormWindow* window = front_.WindowOf(form);
  if (!form.Visible || !window->isVisible()) return std::string(form.name) + " is not visible";
  return window->grab().save(QString::fromStdString(file), "PNG") ? "" : "can't write " + file;
}
