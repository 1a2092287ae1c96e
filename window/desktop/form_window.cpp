#include "window/desktop/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <cmath>
#include <utility>

#include "window/desktop/canvas.h"
#include "window/desktop/comfort.h"
#include "window/desktop/desktop.h"
#include "window/desktop/keyboard.h"
#include "window/desktop/menus.h"
#include "window/desktop/native.h"
#include "window/desktop/style.h"
#include "window/desktop/view_menu.h"
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
  if (front.HeedsWindowManager()) viewMenu_ = new ViewMenu(*this, front, menus_->Bar());
  for (Control* control : form.Controls()) {
    if (control->kind == Control::Kind::StatusBar) MakeStatusBar(static_cast<StatusBar&>(*control));
    if (!IsNative(control->kind)) continue;
    QWidget* widget = MakeNative(static_cast<Visual&>(*control), front, canvas_);
    widget->setObjectName(Name(*control));
    widget->installEventFilter(this);
    widgets_[control] = widget;
  }
  if (Guide* guide = front.GuideOf(form)) comfort_ = std::make_unique<Comfort>(*this, front, *guide);
  if (Guide* guide = front.GuideOf(form); guide && !guide->Keys().empty())
    keyboard_ = new Keyboard(*this, front, *guide);
  setWindowTitle(QString::fromStdString(form.Caption));
  zoomKept_.setSingleShot(true);
  zoomKept_.setInterval(500);
  connect(&zoomKept_, &QTimer::timeout, this, [this] {
    if (left_ || IsFilled() || !front_.GetView().fitNormal) return;
    View view = front_.GetView();
    view.zoom = std::clamp(static_cast<int>(std::lround(zoom_ * 100)), 100, 300);
    front_.SetView(view);
  });
  fits_ = front.GetView().fitNormal;
  ApplySize();
  if (front.GuideOf(form))
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { front_.Ears().TellState(*this); });
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
  const int tall = static_cast<int>(std::lround(kStatusHeight * zoom_));
  const int bottom = statusBar_ && !statusBar_->isHidden() ? tall : 0;
  menus_->Place(width());
  canvas_->setGeometry(0, top, width(), std::max(0, height() - top - bottom));
  if (!statusBar_) return;
  statusBar_->setGeometry(0, height() - tall, width(), tall);
  ApplyPanels();
}

// The last panel takes what the others leave.
void FormWindow::ApplyPanels() {
  auto bar = std::ranges::find(form.Controls(), Control::Kind::StatusBar, &Control::kind);
  if (bar == form.Controls().end()) return;
  const int margin = static_cast<int>(std::lround(2 * zoom_));
  int left = margin;
  for (int i = 1; i <= 3; ++i) {
    const Panel& panel = static_cast<StatusBar*>(*bar)->Panels(i);
    int breadth = panel.Width > 0 ? Shown(panel.Width / 15 * 15) : (width() - 2 * margin) / 3;
    if (i == 3) breadth = std::max(40, width() - left - margin);
    QLabel* label = panels_[i - 1];
    label->setIndent(2 * margin);
    label->setGeometry(left, margin, breadth - margin, statusBar_->height() - 2 * margin);
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
    behind_ = form.Modal() ? behind : nullptr;
    Rezoom();
    ApplySize();
    if (comfort_) comfort_->BeforeShow();
    create();
    if (form.Modal() && behind) windowHandle()->setTransientParent(behind->windowHandle());
    if (form.Left != 0 || form.Top != 0) ApplyPlace();
    if (form.WindowState != window_state::kNormal) ApplyForm(Prop::WindowState);
    if (form.Sizable && front_.GetView().fullScreen && front_.HeedsWindowManager())
      FillScreen(Qt::WindowFullScreen);
    if (IsFilled()) {
      Rezoom();
      TellSizeSoon();
    }
  }
  show();
  raise();
  activateWindow();
  if (keyboard_) keyboard_->Shown();
  Settle();
  front_.Ears().Shown(*this);
}

void FormWindow::Leave() {
  if (comfort_) comfort_->Leave();
  comfort_.reset();
  left_ = true;
  if (keyboard_) keyboard_->Leave();
  for (auto& [control, widget] : widgets_) {
    widget->removeEventFilter(this);
    disconnect(widget, nullptr, widget, nullptr);  // not what Qt itself has tied to its end
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
      if (isVisible() && !IsFilled() && !tellsPlace_) ApplyPlace();
      return;
    case Prop::Width:
    case Prop::Height:
      ApplySize();
      if (zoom_ != 1 && isVisible() && !IsFilled() && !isMinimized() && !tellsPlace_) ApplyPlace();
      return;
    case Prop::MousePointer:
      form.MousePointer == kWaiting ? setCursor(Qt::WaitCursor) : unsetCursor();
      return canvas_->UpdatePointer();
    case Prop::WindowState:
      if (form.WindowState == window_state::kMaximised && !IsFilled()) return FillScreen(Qt::WindowMaximized);
      if (form.WindowState != window_state::kMaximised || isMinimized()) {
        Qt::WindowStates state = windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized);
        if (form.WindowState == window_state::kMaximised) state |= Qt::WindowMaximized;
        if (form.WindowState == window_state::kMinimised) state |= Qt::WindowMinimized;
        if (state != windowState()) setWindowState(state);
      }
      return;
    default:
      return;
  }
}

// Where nobody manages windows the size must be asked for as well.
void FormWindow::FillScreen(Qt::WindowStates how) {
  if (!IsFilled()) {
    const Extent screen = front_.ScreenExtent();
    zooming_ = true;
    setGeometry(0, 0, Pixels(screen.width), Pixels(screen.height));
    zooming_ = false;
  }
  setWindowState((windowState() & ~Qt::WindowMinimized) | how);
}

void FormWindow::ApplySize() {
  const QSize wanted = ShownSize();
  ApplyLimits();
  if (form.Sizable && size() != wanted && !IsFilled() && !isMinimized()) resize(wanted);
  if (!isVisible()) LayOutParts();
}

void FormWindow::ApplyLimits() {
  const QSize wanted = ShownSize();
  if (!form.Sizable) {
    if (minimumSize() != wanted || maximumSize() != wanted) setFixedSize(wanted);
    return;
  }
  const bool fits = (IsFilled() || front_.GetView().fitNormal) && front_.HeedsWindowManager();
  const double least = fits ? 1 : zoom_;
  setMinimumSize(static_cast<int>(std::lround(form.MinWidth / 15.0 * least)),
                 static_cast<int>(std::lround(form.MinHeight / 15.0 * least)));
}

void FormWindow::Reordered(Visual& control) { canvas_->Refresh(control); }

void FormWindow::FocusMoved() { Settle(); }

void FormWindow::SelectText(TextBox& box) {
  if (auto* line = qobject_cast<QLineEdit*>(WidgetOf(box))) line->selectAll();
  if (auto* page = qobject_cast<QPlainTextEdit*>(WidgetOf(box))) page->selectAll();
}

void FormWindow::SurfaceChanged(PictureBox& surface) { canvas_->Refresh(surface); }

void FormWindow::ApplyView() {
  if (isVisible() && form.Sizable && front_.HeedsWindowManager() && !isMinimized() &&
      isFullScreen() != front_.GetView().fullScreen) {
    if (front_.GetView().fullScreen)
      FillScreen(Qt::WindowFullScreen);
    else
      setWindowState(windowState() & ~Qt::WindowFullScreen);
  }
  const bool fits = front_.GetView().fitNormal;
  if (fits && !fits_ && isVisible()) FollowFrame();
  fits_ = fits;
  Rezoom();
  ApplyLimits();
  if (isVisible()) TellSizeSoon();
  if (viewMenu_) viewMenu_->Apply();
  for (const auto& [control, widget] : widgets_)
    if (control->kind != Control::Kind::StatusBar)
      RestyleNative(*widget, static_cast<const Visual&>(*control));
  canvas_->update();
}

// --- Zoom ----------------------------------------------------------------------------------------

int FormWindow::Shown(int twips) const { return static_cast<int>(std::lround(twips / 15.0 * zoom_)); }
int FormWindow::Told(int pixels) const { return static_cast<int>(std::lround(pixels * 15 / zoom_)); }

QPoint FormWindow::Aside() const {
  return {(Pixels(form.Width) - Shown(form.Width)) / 2, (Pixels(form.Height) - Shown(form.Height)) / 2};
}

FormWindow& FormWindow::Leader() {
  auto* before = dynamic_cast<FormWindow*>(behind_.data());
  return before ? before->Leader() : *this;
}

double FormWindow::FittingZoom() const {
  constexpr double kLargest = 10;
  if (form.MinWidth <= 0 || form.MinHeight <= 0) return 1;
  return std::clamp(std::min(width() * 15.0 / form.MinWidth, height() * 15.0 / form.MinHeight), 1.0,
                    kLargest);
}

double FormWindow::WantedZoom() const {
  const View& view = front_.GetView();
  const double wanted = view.zoom / 100.0;
  if (!front_.HeedsWindowManager()) return 1;
  if (form.Sizable && IsFilled()) return view.fitMaximised ? FittingZoom() : std::min(wanted, FittingZoom());
  // The one that the player has dragged the window to isn't a round number.
  if (form.Sizable && view.fitNormal && (zoomKept_.isActive() || std::abs(zoom_ - wanted) < 0.006))
    return zoom_;
  // A window that comes back from the full screen doesn't know its frame yet.
  const QSize frame = QSize(4, 30).expandedTo(isVisible() ? frameSize() - size() : QSize());
  const QSize room = screen()->availableGeometry().size() - frame;
  const double width = (form.Sizable && form.MinWidth > 0 ? form.MinWidth : form.Width) / 15.0;
  const double height = (form.Sizable && form.MinHeight > 0 ? form.MinHeight : form.Height) / 15.0;
  const double asked = behind_ ? style::ZoomOf(behind_) : wanted;
  return std::max(1.0, std::min({asked, room.width() / width, room.height() / height}));
}

void FormWindow::Rezoom() {
  const double wanted = WantedZoom();
  if (wanted != zoom_) SetZoom(wanted);
}

void FormWindow::SetZoom(double zoom) {
  zoom_ = zoom;
  style::SetZoom(*this, zoom);
  canvas_->SetZoom(zoom);
  menus_->SetZoom(zoom);
  for (const auto& [control, widget] : widgets_)
    if (control->kind != Control::Kind::StatusBar) ZoomNative(*widget, static_cast<const Visual&>(*control));
  if (!IsFilled() && !zooming_) {
    ApplySize();
    if (isVisible()) ApplyPlace();
  }
  LayOutParts();
}

// A window that fits what it shows to its frame: the frame is dragged, and the board grows with it.
void FormWindow::FollowFrame() {
  if (!form.Sizable || IsFilled() || isMinimized() || zooming_ || !front_.GetView().fitNormal ||
      !front_.HeedsWindowManager())
    return;
  zooming_ = true;
  SetZoom(std::min(FittingZoom(), 3.0));
  zooming_ = false;
  zoomKept_.start();
  TellSizeSoon();
}

// What is drawn larger than the model knows of is kept on the screen.
void FormWindow::ApplyPlace() {
  QPoint corner = QPoint(Pixels(form.Left), Pixels(form.Top)) + Aside();
  if (zoom_ != 1) {
    const QRect room = screen()->availableGeometry();
    const QSize whole = isVisible() ? frameSize() : size();
    corner.setX(std::max(room.left(), std::min(corner.x(), room.right() + 1 - whole.width())));
    corner.setY(std::max(room.top(), std::min(corner.y(), room.bottom() + 1 - whole.height())));
  }
  if (pos() != corner) move(corner);
}

// Qt moves the focus on when a widget is disabled or hidden; the model has a rule of its own.
void FormWindow::Settle() {
  if (left_) return;
  if (comfort_) comfort_->Settle();
  if (qobject_cast<QMenuBar*>(focusWidget())) return;  // which gives the focus back by itself
  if (keyboard_) {
    keyboard_->Settle();
    if (keyboard_->HoldsFocus()) return;
  }
  if (std::exchange(refused_, false)) PutBackFocus();
  const Visual* active = form.ActiveControl();
  QWidget* widget = active ? WidgetOf(*active) : nullptr;
  if (widget && focusWidget() != widget) widget->setFocus(Qt::OtherFocusReason);
}

// The field that was refused has the focus by now; where a button has it, the field written in last.
void FormWindow::PutBackFocus() {
  Visual* active = form.ActiveControl();
  if (lastField_ && active && active->kind == Control::Kind::CommandButton) {
    lastField_->SetFocus();
    active = lastField_;
  }
  if (active && active->kind == Control::Kind::TextBox) SelectText(static_cast<TextBox&>(*active));
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
  front_.Deliver(form, [this, pressed] {
    if (player::WhyNot(form).empty()) player::Press(form, pressed);
  });
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
  if (event->type() == QEvent::ToolTip) QToolTip::setFont(style::Letters(zoom_));
  if (event->type() == QEvent::FocusIn && control->kind == Control::Kind::TextBox)
    lastField_ = static_cast<TextBox*>(control);
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
  if (IsFilled() && isVisible())
    Rezoom();
  else if (isVisible() && !left_ && size() != ShownSize())
    FollowFrame();
  LayOutParts();
  TellSizeSoon();
}

// Asked once the state is known too: a window that is maximised gets its size first, then the news of its
// state.
void FormWindow::TellSizeSoon() {
  if (left_ || sizeWaits_) return;
  sizeWaits_ = true;
  QTimer::singleShot(0, this, [this] {
    sizeWaits_ = false;
    TellSize();
  });
}

void FormWindow::TellSize() {
  if (left_ || !isVisible() || isMinimized()) return;
  Rezoom();
  TellState();
  if (size() == ShownSize()) return;
  if (!form.Sizable || !front_.HeedsWindowManager()) return;
  front_.Deliver(form, [this] {
    if (!player::WhyNot(form).empty()) return;
    tellsPlace_ = true;
    player::Resize(form, Told(width()), Told(height()));
    tellsPlace_ = false;
    TellPlace();
  });
}

void FormWindow::TellPlace() {
  if (left_ || !isVisible() || IsFilled() || isMinimized()) return;
  const QPoint place = pos() - Aside();
  tellsPlace_ = true;
  if (place.x() != Pixels(form.Left)) form.Left = place.x() * 15;
  if (place.y() != Pixels(form.Top)) form.Top = place.y() * 15;
  tellsPlace_ = false;
}

void FormWindow::moveEvent(QMoveEvent*) {
  if (left_ || !isVisible() || IsFilled() || isMinimized() || !front_.HeedsWindowManager() || zooming_)
    return;
  if (pos() - Aside() != QPoint(Pixels(form.Left), Pixels(form.Top)))
    front_.Deliver(form, [this] { TellPlace(); });
}

void FormWindow::changeEvent(QEvent* event) {
  if (event->type() != QEvent::WindowStateChange) return;
  TellState();
  TellSizeSoon();
}

// To the games a window that takes the whole screen is maximised: so it isn't their usual size that is kept.
void FormWindow::TellState() {
  if (left_ || !isVisible() || !front_.HeedsWindowManager()) return;
  const int state = isMinimized() ? window_state::kMinimised
                    : IsFilled()  ? window_state::kMaximised
                                  : window_state::kNormal;
  // A window that opened maximised has never had a place of its own.
  const bool placeless = state == window_state::kNormal && !hasStood_;
  if (state == window_state::kNormal) hasStood_ = true;
  if (state == form.WindowState) return;
  front_.Deliver(form, [this, state, placeless] {
    if (!player::WhyNot(form).empty()) return;
    zooming_ = true;
    Rezoom();
    zooming_ = false;
    player::SetState(form, state);
    ApplySize();
    if (placeless) form.platform.Dispatch([this] { form.CenterOnScreen(); });
  });
}
