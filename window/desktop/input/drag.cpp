#include "window/desktop/input/drag.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
#include <algorithm>

#include "window/desktop/input/deeds.h"
#include "window/desktop/painting/canvas.h"

namespace {

constexpr int kHeld = 120;  // milliseconds; a fast player's hand moves on while the button is still down

int Area(const QRect& rect) { return rect.isEmpty() ? 0 : rect.width() * rect.height(); }

}  // namespace

Drag::Drag(Canvas& canvas, Deeds& deeds, Guide& guide)
    : QObject(canvas.parentWidget()), canvas_(canvas), deeds_(deeds), guide_(&guide) {
  canvas_.installEventFilter(this);
}

bool Drag::eventFilter(QObject*, QEvent* event) {
  if (!guide_) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      Press(static_cast<QMouseEvent&>(*event));
      break;
    case QEvent::MouseMove:
      Move(static_cast<QMouseEvent&>(*event));
      break;
    case QEvent::MouseButtonRelease:
      if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) break;
      Move(static_cast<QMouseEvent&>(*event));
      if (held_) Drop(static_cast<QMouseEvent&>(*event));
      pressed_ = nullptr;
      break;
    case QEvent::WindowDeactivate:  // a box may stand before it: the release comes to somebody else
      canvas_.PutBack();
      held_ = pressed_ = nullptr;
      break;
    default:
      break;
  }
  return false;
}

void Drag::Settle() {
  if (!held_) return;
  const auto isHeld = [this](const Spot& spot) { return spot.control == held_ && spot.selected; };
  if (guide_ && canvas_.Carried() == held_ && std::ranges::any_of(guide_->Spots(), isHeld)) return;
  canvas_.PutBack();
  held_ = pressed_ = nullptr;
}

// Comes before the click that the press is.
void Drag::Press(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || held_ || deeds_.Busy()) return;
  pressed_ = canvas_.At(event.position().toPoint());
  from_ = event.position();
  since_ = event.timestamp();
  before_.clear();
  for (const Spot& spot : guide_->Spots())
    if (spot.selected) before_.push_back(spot.control);
}

// The card that the press has selected. A selected one that it has let go of is selected again: it was meant
// to be dragged.
Visual* Drag::Selected() {
  const auto wasSelected = [this](const Visual* control) {
    return std::ranges::find(before_, control) != before_.end();
  };
  if (wasSelected(pressed_)) {
    const std::vector<Spot> spots = guide_->Spots();
    const auto spot = std::ranges::find(spots, pressed_, &Spot::control);
    if (spot == spots.end() || spot->rank == 0) return nullptr;
    if (!spot->selected) deeds_.ClickSoftly(*pressed_);
  }
  for (const Spot& spot : guide_->Spots())
    if (spot.selected && spot.rank != 0 && (spot.control == pressed_ || !wasSelected(spot.control)))
      return spot.control;
  return nullptr;
}

void Drag::Move(const QMouseEvent& event) {
  const bool down = event.buttons() & Qt::LeftButton || event.type() == QEvent::MouseButtonRelease;
  if (!down) {
    canvas_.PutBack();
    held_ = pressed_ = nullptr;
  }
  if (!pressed_ || deeds_.Busy()) return;
  if (!held_) {
    const QPointF way = event.position() - from_;
    if (way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance()) return;
    if (event.timestamp() < since_ + kHeld) return;
    held_ = Selected();
    if (!held_) pressed_ = nullptr;
  }
  if (held_ && held_->kind == Control::Kind::Image)
    canvas_.Carry(static_cast<const Image&>(*held_), (event.position() - from_) / canvas_.Zoom(),
                  TargetAt(event.position()));
}

// What the pointer stands on; beside all places the one that the card covers most of, if that is a good part.
Visual* Drag::TargetAt(QPointF point) const {
  const QRect card = canvas_.PlaceOf(*held_);
  const QRect shown = card.translated(((point - from_) / canvas_.Zoom()).toPoint());
  if (!canvas_.rect().contains(point.toPoint())) return nullptr;
  const Visual* const at = canvas_.At(point.toPoint());
  Visual* target = nullptr;
  int most = Area(card) / 4;
  for (const Spot& spot : guide_->Spots()) {
    const bool takes = spot.playable && !spot.selected && !spot.draws;
    if (spot.control == at) return takes ? spot.control : nullptr;
    const int covered = Area(canvas_.PlaceOf(*spot.control) & shown);
    if (!takes || covered <= most) continue;
    most = covered;
    target = spot.control;
  }
  return target;
}

void Drag::Drop(const QMouseEvent& event) {
  Visual* const target = TargetAt(event.position());
  Visual& card = *std::exchange(held_, nullptr);
  if (target) {
    const QPointer<Drag> alive = this;
    deeds_.Click(*target);
    if (alive && guide_) canvas_.PutBack();
    return;
  }
  canvas_.PutBack();
  // A hand that shook a little has clicked.
  if (!canvas_.PlaceOf(card).contains(canvas_.ToBoard(event.position()))) LetGo(card);
}

void Drag::LetGo(Visual& card) {
  Visual* const control = guide_->LetsGo();
  deeds_.ClickSoftly(control ? *control : card);
}
