#include "window/desktop/view/form_window.h"

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QTimer>
#include <QUrl>
#include <QWindow>
#include <cmath>
#include <utility>

#include "window/desktop/input/deeds.h"
#include "window/desktop/input/drag.h"
#include "window/desktop/input/keyboard.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/results/statistics_window.h"
#include "window/desktop/speech/access.h"
#include "window/desktop/view/aside.h"
#include "window/desktop/view/choice_menu.h"
#include "window/desktop/view/comfort.h"
#include "window/desktop/view/deals.h"
#include "window/desktop/view/looks.h"
#include "window/desktop/view/managed.h"
#include "window/desktop/view/menus.h"
#include "window/desktop/view/native.h"
#include "window/desktop/view/proofs.h"
#include "window/desktop/view/view_menu.h"

namespace {

constexpr int kWaiting = 11;
constexpr int kStatusHeight = 24;

QString Name(const Control& control) { return QString::fromStdString(control.NameInForm()); }

}  // namespace

FormWindow::FormWindow(Form& form, std::unique_ptr<Guide> guide, const Desk& desk)
    : form(form), desk_(desk), guide_(std::move(guide)) {
  setObjectName(QString::fromUtf8(form.name.data(), static_cast<qsizetype>(form.name.size())));
  MakeCanvas();
  canvas_->Prepare(WantedZoom());
  menus_ = new Menus(form, guide_.get(), desk.deeds, *this);
  if (desk.hasPlayer) MakeViewMenu();
  if (desk.hasPlayer && !desk.showsRecording && guide_)
    new DealEntries(form, *guide_, desk.deeds, *menus_, desk.games, *this);
  for (Control* control : form.Controls()) {
    if (control->kind == Control::Kind::StatusBar) MakeStatusBar(static_cast<StatusBar&>(*control));
    if (!IsNative(control->kind)) continue;
    QWidget* widget = MakeNative(static_cast<Visual&>(*control), desk.deeds, canvas_);
    widget->setObjectName(Name(*control));
    widget->installEventFilter(this);
    canvas_->widgets[control] = widget;
  }
  if (guide_) {
    comfort_ = std::make_unique<Comfort>(*canvas_, desk.deeds, desk.looks, *guide_, desk.history);
    if (ChoiceMenu* menu = comfort_->GetMenu()) menu->statistics = [this] { ShowStatistics(); };
    if (!guide_->Keys().empty()) {
      keyboard_ = new Keyboard(*canvas_, desk.deeds, *guide_);
      drag_ = new Drag(*canvas_, desk.deeds, *guide_);
      keyboard_->moved = [this] { desk_.ears.CursorMoved(*canvas_); };
    }
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { desk_.ears.TellState(*canvas_); });
  }
  if (desk.records) OfferRecords();
  desk.ears.Opened(*canvas_);
  ShowTitle();
  zoomKept_.setSingleShot(true);
  zoomKept_.setInterval(500);
  connect(&zoomKept_, &QTimer::timeout, this, [this] {
    if (left_ || IsFilled() || !desk_.looks.Now().fitNormal) return;
    desk_.looks.Alter(
        [&](View& view) { view.zoom = std::clamp(static_cast<int>(std::lround(zoom_ * 100)), 100, 300); });
  });
  // A window that comes back from the full screen gets its frame and size a moment later, and its place is
  // that of the frame.
  framed_.setSingleShot(true);
  framed_.setInterval(200);
  connect(&framed_, &QTimer::timeout, this, [this] {
    if (left_ || !isVisible() || IsFilled() || isMinimized()) return;
    if (WindowsAreManaged() && windowHandle()->frameMargins().isNull() && --frameAwaited_ > 0)
      return framed_.start();
    ApplyPlace();
    if (size() != ShownSize()) FollowFrame();
    TellSizeSoon();
  });
  fits_ = desk.looks.Now().fitNormal;
  ApplySize();
}

FormWindow::~FormWindow() { delete menus_; }

void FormWindow::ShowTitle() {
  const QString title = QString::fromStdString(form.Caption);
  setWindowTitle(desk_.showsRecording ? title + " (recording)" : title);
}

void FormWindow::MakeCanvas() {
  canvas_ = new Canvas(form, guide_.get(), desk_.paintbox, this);
  canvas_->painted = desk_.painted;
  canvas_->pressed = [this](Visual& control) { desk_.deeds.Click(control); };
  canvas_->pressedTwice = [this](Visual& control) {
    desk_.deeds.Do(control, [&control] { player::DblClick(control); });
  };
  canvas_->passed = [this](Visual& control, bool byPlayer) {
    if (byPlayer && !desk_.hasPlayer) return;
    desk_.deeds.Do(control, [&control] { player::MouseMove(control); });
  };
}

void FormWindow::MakeViewMenu() {
  const auto size = [this] {
    FormWindow& leader = Leader();
    const auto fit = leader.IsFilled() ? &View::fitMaximised : &View::fitNormal;
    return ViewMenu::Size{zoom_, leader.zoom_, leader.form.Sizable ? fit : nullptr, leader.IsFilled()};
  };
  viewMenu_ = new ViewMenu(*this, desk_.looks, size, menus_->Bar());
  QMenu* const menu =
      guide_ && guide_->Game() && !desk_.showsRecording ? findChild<QMenu*>("viewMenu") : nullptr;
  if (!menu) return;
  menu->addSeparator();
  QAction* const statistics = menu->addAction("S&tatistics...");
  statistics->setObjectName("statistics");
  connect(statistics, &QAction::triggered, this,
          [this] { desk_.deeds.Do(form, [this] { ShowStatistics(); }); });
}

void FormWindow::ShowStatistics() {
  const auto game = guide_->Game();
  ShowAside(*new StatisticsWindow(desk_.history, desk_.games, game ? game->name : "", this), form, *guide_,
            desk_.deeds, *this);
}

// What there is to watch, and what may be dropped: a record, on the window from which games are opened.
void FormWindow::OfferRecords() {
  if (!desk_.records->table(form).rows.empty())
    proofs_ = std::make_unique<ProofMarks>(*canvas_, *desk_.records);
  if (!guide_) return;
  setAcceptDrops(guide_->IsChoice());
  const Menu* const help = guide_->KeysMenu();
  const auto facts = guide_->Game();
  if (QAction* action = help ? menus_->ActionOf(*help) : nullptr; action && action->menu() && facts)
    AddDemonstration(*desk_.records, facts->name, *action->menu());
}

void FormWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void FormWindow::dropEvent(QDropEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (left_ || urls.isEmpty() || !urls.front().isLocalFile()) return;
  event->acceptProposedAction();
  OfferRecord(*this, *desk_.records, urls.front().toLocalFile().toStdString());
}

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
    setWindowModality(form.Modal() && !desk_.showsRecording ? Qt::ApplicationModal : Qt::NonModal);
    behind_ = form.Modal() ? behind : nullptr;
    FollowOthers();
    ShowWholeBoard();
    Rezoom();
    ApplySize();
    KeepOnScreen();
    if (comfort_) comfort_->BeforeShow();
    // Before the window is there: the place is that of its frame, whose size isn't known yet.
    if (form.Left != 0 || form.Top != 0) ApplyPlace();
    create();
    if (form.Modal() && behind) windowHandle()->setTransientParent(behind->windowHandle());
    if (form.WindowState != window_state::kNormal) ApplyForm(Prop::WindowState);
    if (form.Sizable && desk_.looks.Now().fullScreen && desk_.hasPlayer) FillScreen(Qt::WindowFullScreen);
    if (IsFilled()) {
      Rezoom();
      TellSizeSoon();
    }
  }
  show();
  raise();
  activateWindow();
  if (comfort_ && keyboard_) comfort_->Shown(*keyboard_);
  Settle();
  desk_.ears.Shown(form);
}

void FormWindow::hideEvent(QHideEvent*) {
  if (comfort_ && keyboard_) comfort_->Hidden(*keyboard_);
}

void FormWindow::Forget() {
  desk_.ears.Gone(form);
  canvas_->Leave();
}

void FormWindow::Leave() {
  Forget();
  if (comfort_) comfort_->Leave();
  comfort_.reset();
  proofs_.reset();
  left_ = true;
  if (keyboard_) keyboard_->Leave();
  if (drag_) drag_->Leave();
  for (auto& [control, widget] : canvas_->widgets) {
    widget->removeEventFilter(this);
    disconnect(widget, nullptr, widget, nullptr);  // not what Qt itself has tied to its end
  }
  canvas_->setEnabled(false);
  hide();
  guide_.reset();
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
      return ShowTitle();
    case Prop::Left:
    case Prop::Top:
      if (isVisible() && !IsFilled() && !tellsPlace_) ApplyPlace();
      return;
    case Prop::Width:
    case Prop::Height:
      if (form.WindowState == window_state::kNormal) normal_ = {form.Width, form.Height};
      if (tellsPlace_) return;  // the window's own size
      ApplySize();
      if (zoom_ != 1 && isVisible() && !IsFilled() && !isMinimized()) ApplyPlace();
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

void FormWindow::Reordered(Visual& control) { canvas_->Refresh(control); }

void FormWindow::FocusMoved() { Settle(); }

void FormWindow::SelectText(TextBox& box) {
  if (auto* line = qobject_cast<QLineEdit*>(WidgetOf(box))) line->selectAll();
  if (auto* page = qobject_cast<QPlainTextEdit*>(WidgetOf(box))) page->selectAll();
}

void FormWindow::SurfaceChanged(PictureBox& surface) { canvas_->Refresh(surface); }

void FormWindow::ApplyView() {
  if (isVisible() && form.Sizable && desk_.hasPlayer && !isMinimized() &&
      isFullScreen() != desk_.looks.Now().fullScreen) {
    if (desk_.looks.Now().fullScreen)
      FillScreen(Qt::WindowFullScreen);
    else
      setWindowState(windowState() & ~Qt::WindowFullScreen);
  }
  const bool fits = desk_.looks.Now().fitNormal;
  if (fits && !fits_ && isVisible()) FollowFrame();
  fits_ = fits;
  Rezoom();
  ApplyLimits();
  if (isVisible()) TellSizeSoon();
  if (viewMenu_) viewMenu_->Apply();
  for (const auto& [control, widget] : canvas_->widgets)
    RestyleNative(*widget, static_cast<const Visual&>(*control));
  canvas_->update();
}

// Qt moves the focus on when a widget is disabled or hidden; the model has a rule of its own.
void FormWindow::Settle() {
  if (left_) return;
  if (untold_ && player::WhyNot(form).empty()) TellSizeSoon();
  if (comfort_) comfort_->Settle();
  if (proofs_) proofs_->Settle();
  if (drag_) drag_->Settle();
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

QWidget* FormWindow::WidgetOf(const Control& control) const {
  return control.kind == Control::Kind::StatusBar ? statusBar_ : canvas_->WidgetOf(control);
}

Visual* FormWindow::ControlOf(const QObject* widget) const {
  for (const auto& [control, each] : canvas_->widgets)
    if (each == widget) return const_cast<Visual*>(static_cast<const Visual*>(control));
  return nullptr;
}
