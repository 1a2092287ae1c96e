#include "window/desktop/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTimer>
#include <QWindow>

#include "window/desktop/canvas.h"
#include "window/desktop/comfort.h"
#include "window/desktop/desktop.h"
#include "window/desktop/menus.h"
#include "window/desktop/native.h"
#include "window/player.h"

namespace {

constexpr int kWaiting = 11;
constexpr int kStatusHeight = 24;

QString Name(const Control& control) { return QString::fromStdString(control.NameInForm()); }

}  // namespace

FormWindow::FormWindow(Form& form, DesktopFrontEnd& front) : form(form), front_(front) {
  setObjectName(QString::fromUtf8(form.name.data(), static_cast<qsizetype>(form.name.size())));
  canvas_ = new Canvas(form, front, this);
  menus_ = new Menus(form, front, *this);
  for (Control* control : form.Controls()) {
    if (control->kind == Control::Kind::StatusBar) MakeStatusBar(static_cast<StatusBar&>(*control));
    if (!IsNative(control->kind)) continue;
    QWidget* widget = MakeNative(static_cast<Visual&>(*control), front, canvas_);
    widget->setObjectName(Name(*control));
    widget->installEventFilter(this);
    widgets_[control] = widget;
  }
  if (Guide* guide = front.GuideOf(form)) comfort_ = std::make_unique<Comfort>(*this, front, *guide);
  setWindowTitle(QString::fromStdString(form.Caption));
  ApplySize();
}

FormWindow::~FormWindow() { delete menus_; }

void FormWindow::MakeStatusBar(StatusBar& bar) {
  statusBar_ = new QWidget(this);
  statusBar_->setObjectName(Name(bar));
  statusBar_->setAutoFillBackground(true);
  for (int i = 1; i <= 3; ++i) {
    auto* panel = new QLabel(statusBar_);
    panel->setObjectName(Name(bar.Panels(i)));
    panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    panel->setIndent(4);
    panel->setTextFormat(Qt::PlainText);
    panels_.push_back(panel);
  }
  widgets_[&bar] = statusBar_;
  ApplyPanels();
}

void FormWindow::LayOutParts() {
  const int top = menus_->Height();
  const int bottom = statusBar_ && !statusBar_->isHidden() ? kStatusHeight : 0;
  menus_->Place(width());
  canvas_->setGeometry(0, top, width(), std::max(0, height() - top - bottom));
  if (!statusBar_) return;
  statusBar_->setGeometry(0, height() - kStatusHeight, width(), kStatusHeight);
  ApplyPanels();
}

// The last panel takes what the others leave.
void FormWindow::ApplyPanels() {
  auto bar = std::ranges::find(form.Controls(), Control::Kind::StatusBar, &Control::kind);
  if (bar == form.Controls().end()) return;
  int left = 2;
  for (int i = 1; i <= 3; ++i) {
    const Panel& panel = static_cast<StatusBar*>(*bar)->Panels(i);
    int breadth = panel.Width > 0 ? panel.Width / 15 : (width() - 4) / 3;
    if (i == 3) breadth = std::max(40, width() - left - 2);
    QLabel* label = panels_[i - 1];
    label->setGeometry(left, 2, breadth - 2, kStatusHeight - 4);
    label->setText(QString::fromStdString(comfort_ ? comfort_->PanelText(panel) : panel.Text.get()));
    left += breadth;
  }
}

// --- What the model tells ------------------------------------------------------------------------

void FormWindow::ShowForm(QWidget* behind) {
  if (!isVisible()) {
    const Qt::WindowFlags buttons = form.Sizable ? Qt::WindowMinMaxButtonsHint : Qt::WindowMinimizeButtonHint;
    setWindowFlags(form.Modal() ? Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                      Qt::WindowCloseButtonHint
                                : Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                      Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint | buttons);
    setWindowModality(form.Modal() ? Qt::ApplicationModal : Qt::NonModal);
    ApplySize();
    if (comfort_) comfort_->BeforeShow();
    create();
    if (form.Modal() && behind) windowHandle()->setTransientParent(behind->windowHandle());
    if (form.Left != 0 || form.Top != 0) move(Pixels(form.Left), Pixels(form.Top));
    if (form.WindowState != window_state::kNormal) ApplyForm(Prop::WindowState);
  }
  show();
  raise();
  activateWindow();
  Settle();
}

void FormWindow::Leave() {
  if (comfort_) comfort_->Leave();
  comfort_.reset();
  left_ = true;
  for (auto& [control, widget] : widgets_) {
    widget->removeEventFilter(this);
    widget->disconnect();
  }
  canvas_->setEnabled(false);
  hide();
}

void FormWindow::Apply(Control& control, Prop prop) {
  switch (control.kind) {
    case Control::Kind::Form:
      return ApplyForm(prop);
    case Control::Kind::Timer:
      return;
    case Control::Kind::Menu:
      return menus_->Apply(static_cast<Menu&>(control));
    case Control::Kind::Panel:
      return ApplyPanels();
    case Control::Kind::StatusBar:
      statusBar_->setVisible(static_cast<Visual&>(control).Visible);
      return LayOutParts();
    default:
      break;
  }
  auto& visual = static_cast<Visual&>(control);
  if (QWidget* widget = WidgetOf(control)) return ApplyNative(*widget, visual, prop);
  switch (prop) {
    case Prop::Enabled:
    case Prop::ToolTipText:
      return;
    case Prop::MousePointer:
    case Prop::MouseIcon:
      return canvas_->UpdatePointer();
    default:
      break;
  }
  canvas_->Refresh(visual);
  if (control.kind == Control::Kind::Frame) RefreshWithin(control);
}

// A frame carries what it holds along.
void FormWindow::RefreshWithin(const Control& container) {
  for (Control* each : form.Controls()) {
    if (each->parent != &container || each->kind == Control::Kind::Timer) continue;
    if (QWidget* widget = WidgetOf(*each))
      ApplyNative(*widget, static_cast<Visual&>(*each), Prop::Visible);
    else if (IsDrawn(each->kind))
      canvas_->Refresh(static_cast<Visual&>(*each));
    if (each->kind == Control::Kind::Frame) RefreshWithin(*each);
  }
}

void FormWindow::ApplyForm(Prop prop) {
  switch (prop) {
    case Prop::Caption:
      return setWindowTitle(QString::fromStdString(form.Caption));
    case Prop::Left:
    case Prop::Top:
      if (isVisible() && !isMaximized() && !tellsPlace_ &&
          pos() != QPoint(Pixels(form.Left), Pixels(form.Top)))
        move(Pixels(form.Left), Pixels(form.Top));
      return;
    case Prop::Width:
    case Prop::Height:
      return ApplySize();
    case Prop::MousePointer:
      form.MousePointer == kWaiting ? setCursor(Qt::WaitCursor) : unsetCursor();
      return canvas_->UpdatePointer();
    case Prop::WindowState: {
      const bool maximise = form.WindowState == window_state::kMaximised && !isMaximized();
      // Where nobody manages windows the size must be asked for as well.
      if (maximise) {
        const Extent screen = front_.ScreenExtent();
        setGeometry(0, 0, Pixels(screen.width), Pixels(screen.height));
      }
      Qt::WindowStates state = windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized);
      if (form.WindowState == window_state::kMaximised) state |= Qt::WindowMaximized;
      if (form.WindowState == window_state::kMinimised) state |= Qt::WindowMinimized;
      if (state != windowState()) setWindowState(state);
      return;
    }
    default:
      return;
  }
}

void FormWindow::ApplySize() {
  const QSize wanted(Pixels(form.Width), Pixels(form.Height));
  if (!form.Sizable) {
    if (minimumSize() != wanted || maximumSize() != wanted) setFixedSize(wanted);
  } else {
    setMinimumSize(Pixels(form.MinWidth), Pixels(form.MinHeight));
    if (size() != wanted && !isMaximized() && !isMinimized()) resize(wanted);
  }
  if (!isVisible()) LayOutParts();
}

void FormWindow::Reordered(Visual& control) { canvas_->Refresh(control); }

void FormWindow::FocusMoved() { Settle(); }

void FormWindow::SelectText(TextBox& box) {
  if (auto* line = qobject_cast<QLineEdit*>(WidgetOf(box))) line->selectAll();
  if (auto* page = qobject_cast<QPlainTextEdit*>(WidgetOf(box))) page->selectAll();
}

void FormWindow::SurfaceChanged(PictureBox& surface) { canvas_->Refresh(surface); }

void FormWindow::ApplyView() { canvas_->update(); }

// Qt moves the focus on when a widget is disabled or hidden; the model has a rule of its own.
void FormWindow::Settle() {
  if (left_) return;
  const Visual* active = form.ActiveControl();
  QWidget* widget = active ? WidgetOf(*active) : nullptr;
  if (widget && focusWidget() != widget) widget->setFocus(Qt::OtherFocusReason);
  if (comfort_) comfort_->Settle();
}

// --- What the player does ------------------------------------------------------------------------

QWidget* FormWindow::WidgetOf(const Control& control) const {
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second;
}

Visual* FormWindow::ControlOf(const QObject* widget) const {
  for (const auto& [control, each] : widgets_)
    if (each == widget) return const_cast<Visual*>(static_cast<const Visual*>(control));
  return nullptr;
}

bool FormWindow::TakeKey(int key) {
  if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Escape) return false;
  const Key pressed = key == Qt::Key_Escape ? Key::Escape : Key::Return;
  front_.Deliver(form, [this, pressed] {
    if (player::WhyNot(form).empty()) player::Press(form, pressed);
  });
  return true;
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (left_ || !TakeKey(event->key())) QWidget::keyPressEvent(event);
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  Visual* control = left_ ? nullptr : ControlOf(watched);
  if (!control) return false;
  if (event->type() == QEvent::KeyPress) {
    const bool writes = control->kind == Control::Kind::TextBox &&
                        static_cast<TextBox*>(control)->MultiLine && !static_cast<TextBox*>(control)->Locked;
    const int key = static_cast<QKeyEvent*>(event)->key();
    return !(writes && key != Qt::Key_Escape) && TakeKey(key);
  }
  // Only what the player does counts: in a handler the focus follows the model.
  if (event->type() == QEvent::FocusIn && !front_.Busy() &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason &&
      form.ActiveControl() != control)
    front_.Deliver(form, [this, control] {
      if (player::WhyNot(*control).empty()) form.platform.Dispatch([&] { control->SetFocus(); });
    });
  if (event->type() == QEvent::MouseMove && control->OnMouseMove)
    front_.Deliver(form, [control] {
      if (player::WhyNot(*control).empty()) player::MouseMove(*control);
    });
  return false;
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (left_) return;
  event->ignore();
  front_.Deliver(form, [this] {
    if (player::WhyNot(form).empty()) player::Close(form);
  });
}

void FormWindow::resizeEvent(QResizeEvent*) {
  LayOutParts();
  if (left_ || !isVisible() || sizeWaits_) return;
  // Asked once the state is known too: a window that is maximised gets its size first, then the news of its
  // state.
  sizeWaits_ = true;
  QTimer::singleShot(0, this, [this] {
    sizeWaits_ = false;
    TellSize();
  });
}

void FormWindow::TellSize() {
  if (left_ || !isVisible() || isMinimized()) return;
  TellState();
  if (size() == QSize(Pixels(form.Width), Pixels(form.Height))) return;
  if (!form.Sizable || !front_.HeedsWindowManager()) return;
  front_.Deliver(form, [this] {
    if (player::WhyNot(form).empty()) player::Resize(form, width() * 15, height() * 15);
  });
}

void FormWindow::moveEvent(QMoveEvent*) {
  if (left_ || !isVisible() || isMaximized() || isMinimized() || !front_.HeedsWindowManager()) return;
  const auto differs = [this] { return pos() != QPoint(Pixels(form.Left), Pixels(form.Top)); };
  if (!differs()) return;
  front_.Deliver(form, [this, differs] {
    if (!differs() || isMaximized() || isMinimized()) return;
    tellsPlace_ = true;
    if (x() != Pixels(form.Left)) form.Left = x() * 15;
    if (y() != Pixels(form.Top)) form.Top = y() * 15;
    tellsPlace_ = false;
  });
}

void FormWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) TellState();
}

void FormWindow::TellState() {
  if (left_ || !isVisible() || !front_.HeedsWindowManager()) return;
  const int state = isMinimized()   ? window_state::kMinimised
                    : isMaximized() ? window_state::kMaximised
                                    : window_state::kNormal;
  if (state == form.WindowState) return;
  front_.Deliver(form, [this, state] {
    if (player::WhyNot(form).empty()) player::SetState(form, state);
  });
}
