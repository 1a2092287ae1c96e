// The size of a window, its place and its zoom: what the model tells, and what the player does to them.
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <cmath>

#include "window/desktop/input/deeds.h"
#include "window/desktop/painting/canvas.h"
#include "window/desktop/painting/style.h"
#include "window/desktop/view/comfort.h"
#include "window/desktop/view/form_window.h"
#include "window/desktop/view/looks.h"
#include "window/desktop/view/managed.h"
#include "window/desktop/view/menus.h"
#include "window/desktop/view/native.h"
#include "window/desktop/view/proofs.h"

namespace {

constexpr double kSmallest = 0.25, kLargest = 10;
constexpr int kMostAwaited = 10;  // times; a window may have no frame at all

// How much larger it may be and still have room there.
double Fits(QSizeF what, QSizeF room) {
  return std::min(room.width() / what.width(), room.height() / what.height());
}

}  // namespace

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

QSize FormWindow::Frame() const {
  // A window that isn't there or comes back from the full screen doesn't know its frame yet.
  return QSize(4, 30).expandedTo(isVisible() ? frameSize() - size() : QSize());
}

QSize FormWindow::Room() const { return screen()->availableGeometry().size() - Frame(); }

QSizeF FormWindow::LeastSize() const {
  if (!form.Sizable || form.MinWidth <= 0 || form.MinHeight <= 0) return NormalSize();
  return QSizeF(std::max(form.MinWidth, guide_ ? guide_->Breadth() : 0), form.MinHeight) / 15;
}

QSizeF FormWindow::NormalSize() const {
  const bool known = form.Sizable && !normal_.isEmpty();
  return QSizeF(known ? normal_ : QSize(form.Width, form.Height)) / 15;
}

double FormWindow::FittingZoom() const { return std::clamp(Fits(LeastSize(), size()), kSmallest, kLargest); }

double FormWindow::WantedZoom() const {
  const View& view = desk_.looks.Now();
  const double wanted = view.zoom / 100.0;
  if (!desk_.hasPlayer) return 1;
  if (form.Sizable && IsFilled()) return view.fitMaximised ? FittingZoom() : std::min(wanted, FittingZoom());
  // A window that was made large is made smaller before its cards get smaller than they are.
  const double most = std::max(Fits(NormalSize(), Room()), std::min(1.0, Fits(LeastSize(), Room())));
  // The one that the player has dragged the window to isn't a round number.
  if (form.Sizable && view.fitNormal && zoomKept_.isActive()) return zoom_;
  const bool dragged = form.Sizable && view.fitNormal && std::abs(zoom_ - wanted) < 0.006;
  const double asked = behind_ ? style::ZoomOf(behind_) : dragged ? zoom_ : wanted;
  return std::max(kSmallest, std::min(asked, most));
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
  for (const auto& [control, widget] : canvas_->widgets)
    ZoomNative(*widget, static_cast<const Visual&>(*control));
  if (comfort_) comfort_->Zoom();
  if (proofs_) proofs_->Zoom();
  if (!IsFilled() && !zooming_) {
    ApplySize();
    KeepOnScreen();
    if (isVisible()) ApplyPlace();
  }
  LayOutParts();
}

// A window that fits what it shows to its frame: the frame is dragged, and the board grows with it.
void FormWindow::FollowFrame() {
  if (!form.Sizable || IsFilled() || isMinimized() || zooming_ || framed_.isActive() ||
      !desk_.looks.Now().fitNormal || !desk_.hasPlayer)
    return;
  zooming_ = true;
  SetZoom(std::min(FittingZoom(), 3.0));
  zooming_ = false;
  zoomKept_.start();
  TellSizeSoon();
}

// --- What the model tells ------------------------------------------------------------------------

// Where nobody manages windows the size must be asked for as well. Elsewhere it mustn't: it would be taken
// for the one to come back to.
void FormWindow::FillScreen(Qt::WindowStates how) {
  if (!WindowsAreManaged()) {
    const Extent screen = form.platform.front.ScreenExtent();
    zooming_ = true;
    setGeometry(0, 0, Pixels(screen.width), Pixels(screen.height));
    zooming_ = false;
  }
  setWindowState((windowState() & ~Qt::WindowMinimized) | how);
}

// A window opens as all games were left last, whatever its own file tells.
void FormWindow::FollowOthers() {
  const bool maximised = form.WindowState == window_state::kMaximised;
  if (!form.Sizable || !desk_.hasPlayer || form.WindowState == window_state::kMinimised ||
      desk_.looks.Now().maximised.value_or(maximised) == maximised)
    return;
  player::SetState(form, maximised ? window_state::kNormal : window_state::kMaximised);
  if (maximised) PutInMiddle();
}

// As long as the player has chosen no size all of the board is to be seen.
void FormWindow::ShowWholeBoard() {
  const int breadth = guide_ && desk_.hasPlayer ? guide_->Breadth() : 0;
  if (breadth <= form.Width || form.Width != form.MinWidth || form.Height != form.MinHeight) return;
  const int left = form.Left - (breadth - form.Width) / 2;
  player::Resize(form, breadth, form.Height);
  player::Place(form, left, form.Top);
}

void FormWindow::PutInMiddle() {
  const Extent screen = form.platform.front.ScreenExtent();
  player::Place(form, (screen.width - form.Width) / 2, (screen.height - form.Height) / 2);
}

void FormWindow::Refit() {
  if (left_ || !isVisible() || isMinimized() || !desk_.hasPlayer) return;
  if (IsFilled()) FillScreen(windowState());
  Rezoom();
  ApplyLimits();
  if (!IsFilled()) {
    ApplySize();
    KeepOnScreen();
    ApplyPlace();
  }
  TellSizeSoon();
}

// The model hears of it as of anything that the player does to the frame.
void FormWindow::KeepOnScreen() {
  const bool free = form.Sizable && desk_.hasPlayer && !IsFilled() && !isMinimized();
  if (const QSize room = size().boundedTo(Room()); free && size() != room) resize(room);
}

void FormWindow::ApplySize() {
  QSize wanted = ShownSize();
  if (form.WindowState == window_state::kMaximised) wanted = (NormalSize() * zoom_).toSize();
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
  const bool fits = (IsFilled() || desk_.looks.Now().fitNormal) && desk_.hasPlayer;
  const double least = fits ? std::min(1.0, Fits(LeastSize(), Room())) : zoom_;
  setMinimumSize(static_cast<int>(std::lround(form.MinWidth / 15.0 * least)),
                 static_cast<int>(std::lround(form.MinHeight / 15.0 * least)));
}

void FormWindow::ApplyPlace() {
  if (!WindowsHavePlaces()) return;
  QPoint corner = QPoint(Pixels(form.Left), Pixels(form.Top)) + Aside();
  if (desk_.hasPlayer) {
    const QSize whole = size() + Frame();
    const QScreen* const there = QGuiApplication::screenAt(corner + QPoint(whole.width() / 2, 0));
    const QRect room = (there ? there : screen())->availableGeometry();
    corner.setX(std::max(room.left(), std::min(corner.x(), room.right() + 1 - whole.width())));
    corner.setY(std::max(room.top(), std::min(corner.y(), room.bottom() + 1 - whole.height())));
  }
  if (pos() != corner) move(corner);
}

// --- What the player does ------------------------------------------------------------------------

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

// Behind a dialog or box the model takes no news; they are told when it has gone.
bool FormWindow::MustWait() { return untold_ = !player::WhyNot(form).empty(); }

void FormWindow::TellSize() {
  untold_ = false;
  if (left_ || !isVisible() || isMinimized()) return;
  if (IsFilled() || !form.Sizable) Rezoom();  // else the player drags its frame
  TellState();
  if (size() == ShownSize()) return;
  if (!form.Sizable || !desk_.hasPlayer) return;
  desk_.deeds.Deliver(form, [this] {
    if ((framed_.isActive() && !IsFilled()) || MustWait()) return;
    tellsPlace_ = true;
    player::Resize(form, Told(width()), Told(height()));
    tellsPlace_ = false;
    if (size() != ShownSize()) ApplySize();
    TellPlace();
  });
}

void FormWindow::TellPlace() {
  if (!WindowsHavePlaces() || left_ || !isVisible() || IsFilled() || isMinimized() || framed_.isActive())
    return;
  const QPoint place = pos() - Aside();
  tellsPlace_ = true;
  const QPoint told(Pixels(form.Left), Pixels(form.Top));
  player::Place(form, place.x() == told.x() ? form.Left : place.x() * 15,
                place.y() == told.y() ? form.Top : place.y() * 15);
  tellsPlace_ = false;
}

void FormWindow::moveEvent(QMoveEvent*) {
  if (!WindowsHavePlaces() || left_ || !isVisible() || IsFilled() || isMinimized() || !desk_.hasPlayer ||
      zooming_)
    return;
  if (pos() - Aside() != QPoint(Pixels(form.Left), Pixels(form.Top)))
    desk_.deeds.Deliver(form, [this] { TellPlace(); });
}

void FormWindow::changeEvent(QEvent* event) {
  if (event->type() != QEvent::WindowStateChange) return;
  if (!left_ && isVisible() && !isMinimized()) {  // before the place is told that comes with the new state
    zooming_ = true;
    Rezoom();
    zooming_ = false;
  }
  if (!left_ && isVisible() && !isMinimized() && !isFullScreen() && form.Sizable && desk_.hasPlayer)
    desk_.looks.Alter([this](View& view) { view.maximised = isMaximized(); });
  TellState();
  TellSizeSoon();
}

int FormWindow::StateNow() const {
  return isMinimized() ? window_state::kMinimised
         : IsFilled()  ? window_state::kMaximised
                       : window_state::kNormal;
}

// To the games a window that takes the whole screen is maximised: so it isn't their usual size that is kept.
void FormWindow::TellState() {
  if (left_ || !isVisible() || !desk_.hasPlayer) return;
  const int state = StateNow();
  // A window that opened maximised has never had a place of its own.
  const bool placeless = state == window_state::kNormal && !hasStood_;
  if (state == window_state::kNormal) hasStood_ = true;
  if (state == form.WindowState) return;
  desk_.deeds.Deliver(form, [this, placeless] {
    const int state = StateNow();  // it may have changed while the news waited
    if (state == form.WindowState || MustWait()) return;
    zooming_ = true;
    Rezoom();
    zooming_ = false;
    player::SetState(form, state);
    if (state == window_state::kNormal) ShowWholeBoard();
    ApplySize();
    if (placeless && state == window_state::kNormal) PutInMiddle();
    frameAwaited_ = kMostAwaited;
    if (state == window_state::kNormal) framed_.start();
  });
}
