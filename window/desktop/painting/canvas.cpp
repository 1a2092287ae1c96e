#include "window/desktop/painting/canvas.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "window/desktop/painting/baize.h"
#include "window/desktop/painting/labels.h"
#include "window/desktop/painting/notes.h"
#include "window/desktop/painting/paint.h"
#include "window/desktop/painting/plates.h"
#include "window/desktop/painting/style.h"

namespace {

constexpr int kWaiting = 11, kCustom = 99;

// The tip of the pointing hand, in pixels from its picture's top left.
constexpr QPoint kFingertip(5, 1);

}  // namespace

Canvas::Canvas(Form& form, const Guide* guide, Paintbox& paintbox, QWidget* parent)
    : QWidget(parent),
      form(form),
      guide_(guide),
      paintbox_(paintbox),
      board_(IsBoard(form)),
      motion_(form, paintbox, [this](const QRect& area) { Repaint(area); }),
      celebration_([this](const QRect& area) { Repaint(area); }) {
  setObjectName("canvas");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
}

void Canvas::SetZoom(double zoom) {
  if (zoom == zoom_) return;
  zoom_ = zoom;
  if (pointer_ > kCustom) setCursor(PointerOf(pointer_ - kCustom));
  update();
}

QRect Canvas::ToWindow(const QRectF& area) const {
  return QRectF(area.topLeft() * zoom_, area.size() * zoom_).toAlignedRect();
}

void Canvas::Prepare(double zoom) {
  std::vector<Pictures::Which> wanted;
  for (const Placed& placed : Arrange(form, paintbox_.pictures))
    if (placed.picture != 0) wanted.emplace_back(placed.picture, placed.framed);
  paintbox_.pictures.Prepare(std::move(wanted), devicePixelRatioF() * zoom);
}

void Canvas::Refresh(const Visual& control) {
  motion_.Changed(control);
  const auto known = drawn_.find(&control);
  if (known != drawn_.end()) {
    Repaint(known->second.reach);
    if (!IsShown(control)) drawn_.erase(known);
  }
  if (!IsShown(control)) return;
  const Drawn now{PlaceOf(control), ReachOf(control)};
  drawn_[&control] = now;
  Repaint(now.reach);
}

void Canvas::SetNotes(std::vector<Note> notes) {
  if (notes == notes_) return;
  for (const Note& note : notes_) Repaint(NoteRect(note) + plates::kShadow);
  notes_ = std::move(notes);
  for (const Note& note : notes_) Repaint(NoteRect(note) + plates::kShadow);
}

void Canvas::Settle() {
  // What is called for may be done while the handler is still under way.
  const auto calls = [](const Note& note) { return note.look == Note::Look::Call; };
  if (guide_ && std::ranges::any_of(notes_, calls) && !guide_->WayOut()) {
    std::vector<Note> others = notes_;
    std::erase_if(others, calls);
    SetNotes(std::move(others));
  }
  const std::optional<long long> score = guide_ ? guide_->Score() : std::nullopt;
  motion_.Settle({size(), zoom_, zoom_ * devicePixelRatioF(), isVisible(), score.value_or(0)});
}

void Canvas::Celebrate(const Visual& where) {
  if (!paintbox_.manner.glides) return;
  const QRectF board(QPointF(0, 0), QSizeF(size()) / zoom_);
  const bool whole = where.kind == Control::Kind::Form || !IsShown(where);
  const QRectF area =
      whole ? board.adjusted(board.width() / 4, board.height() / 3, -board.width() / 4, -board.height() / 2)
            : QRectF(PlaceOf(where));
  celebration_.Begin(area, paintbox_.manner.strong);
}

void Canvas::Leave() {
  guide_ = nullptr;
  paintOver = nullptr;
  lives_ = false;
}

QWidget* Canvas::WidgetOf(const Control& control) const {
  const auto found = widgets.find(&control);
  return found == widgets.end() ? nullptr : found->second;
}

QRect Canvas::PlaceOf(const Visual& control) const {
  return IsDrawn(control.kind) ? DrawnRect(control, paintbox_.pictures) : ModelRect(control);
}

bool Canvas::ShowsBack(const Visual& control) const {
  return control.kind == Control::Kind::Image &&
         paintbox_.pictures.KindOf(static_cast<const Image&>(control).Picture) == PictureKind::Back;
}

QRect Canvas::ReachOf(const Visual& control) const {
  return IsDrawn(control.kind) ? Reach(control, paintbox_.pictures) : ModelRect(control);
}

void Canvas::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const double scale = devicePixelRatioF();
  const bool strong = paintbox_.manner.strong;
  if (board_ && strong) {
    painter.fillRect(event->rect(), style::kStrongGround);
  } else if (board_) {
    if (baize_.deviceIndependentSize().toSize() != size() || baize_.devicePixelRatio() != scale)
      baize_ = Baize(size(), scale);
    painter.drawPixmap(QPoint(0, 0), baize_);
  } else {
    painter.fillRect(event->rect(), palette().window());
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(zoom_, zoom_);
  if (!paintbox_.manner.calm) {
    calm_.reset();
  } else {
    if (!calm_) calm_ = std::make_unique<Calm>([this](const Visual& control) { Refresh(control); });
    if (guide_) calm_->Keep(form, *guide_);
  }
  const Scene scene = Arrange(form, paintbox_.pictures, calm_ ? calm_->Kept() : Stills());
  const Easel easel{painter, paintbox_.pictures, scene, board_, scale * zoom_, strong, calm_.get()};
  const auto paintNotes = [&](NoteLayer layer) {
    for (const Note& note : notes_)
      if (event->region().intersects(ToWindow(NoteRect(note) + plates::kShadow)))
        PaintNote(painter, note, layer, strong);
  };
  paintNotes(NoteLayer::Beneath);
  for (size_t i = 0; i < scene.size(); ++i) {
    // What a box holds moves with it; the plate of an announcement hangs on others beside it.
    Drawn& drawn = drawn_[scene[i].control];
    if (drawn.rect != scene[i].rect || IsAnnounced(*scene[i].control))
      drawn = {scene[i].rect, ReachOf(*scene[i].control)};
    if (event->region().intersects(ToWindow(drawn.reach)) && !motion_.PaintInstead(easel, scene[i]))
      PaintControl(easel, i);
  }
  paintNotes(NoteLayer::Above);
  // Cards that leave the board leave it beneath what is announced.
  QRegion open(QRectF(QPointF(0, 0), QSizeF(size()) / zoom_).toAlignedRect());
  for (const Placed& placed : scene)
    if (IsAnnounced(*placed.control))
      open -= PlateOf(static_cast<const Label&>(*placed.control)).toAlignedRect();
  painter.save();
  painter.setClipRegion(open);
  motion_.PaintAbove(easel);
  painter.restore();
  celebration_.Paint(painter);
  if (strong && form.Modal()) {  // else nothing tells where it ends
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(QPointF(1, 1), QSizeF(size()) / zoom_ - QSizeF(2, 2)));
  }
  if (paintOver) paintOver(painter);
  if (painted) painted();
}

Visual* Canvas::At(QPoint point) const { return HitTest(Arrange(form, paintbox_.pictures), ToBoard(point)); }

std::optional<QPoint> Canvas::SpotOf(const Visual& control) const {
  constexpr int kGrid = 15;
  const Scene scene = Arrange(form, paintbox_.pictures);
  const QRect area = PlaceOf(control);
  const auto inWindow = [&](QPoint point) { return (QPointF(point) * zoom_).toPoint(); };
  const auto fits = [&](QPoint point) {
    const QPoint there = inWindow(point);
    return rect().contains(there) && !childAt(there) && HitTest(scene, ToBoard(there)) == &control;
  };
  if (fits(area.center())) return inWindow(area.center());
  for (int y = 0; y < kGrid; ++y)
    for (int x = 0; x < kGrid; ++x) {
      const QPoint point(area.left() + (2 * x + 1) * area.width() / (2 * kGrid),
                         area.top() + (2 * y + 1) * area.height() / (2 * kGrid));
      if (fits(point)) return inWindow(point);
    }
  return std::nullopt;
}

// Cards answer to the press: waiting for the release would cost time that counts.
void Canvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (Visual* control = At(event->position().toPoint()); control && pressed) pressed(*control);
}

// For a fast player two clicks in a row are two clicks, unless the control knows what a double click is.
void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  Visual* control = At(event->position().toPoint());
  const auto& tell = control && control->OnDblClick ? pressedTwice : pressed;
  if (control && tell) tell(*control);
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  Visual* control = At(event->position().toPoint());
  if (control && control->OnMouseMove && passed) passed(*control, event->spontaneous());
  UpdatePointer();
}

void Canvas::UpdatePointer() {
  int wanted = form.MousePointer;
  if (wanted != kWaiting) {
    const QPoint point = mapFromGlobal(QCursor::pos());
    const Visual* control = rect().contains(point) ? At(point) : nullptr;
    wanted = control ? control->MousePointer.get() : 0;
    if (wanted == kCustom)
      wanted =
          control->kind == Control::Kind::Image ? kCustom + static_cast<const Image*>(control)->MouseIcon : 0;
  }
  if (wanted == pointer_) return;
  pointer_ = wanted;
  if (wanted == kWaiting)
    setCursor(Qt::WaitCursor);
  else if (wanted > kCustom)
    setCursor(PointerOf(wanted - kCustom));
  else
    unsetCursor();
}

QCursor Canvas::PointerOf(int picture) {
  constexpr double kLargest = 3;  // where larger ones are, screens may cut them off
  const double zoom = std::min(zoom_, kLargest), scale = devicePixelRatioF();
  QPixmap pixels = paintbox_.pictures.Get(picture, false, scale * zoom);
  pixels.setDevicePixelRatio(scale);
  const QPointF tip = QPointF(kFingertip) * zoom;
  return QCursor(pixels, tip.toPoint().x(), tip.toPoint().y());
}

void Canvas::ShowToolTip(QHelpEvent& event) {
  const Scene scene = Arrange(form, paintbox_.pictures);
  const QPoint point = ToBoard(event.pos());
  for (auto it = scene.rbegin(); it != scene.rend(); ++it) {
    if (!it->rect.contains(point) || !it->clip.contains(point)) continue;
    QString text = QString::fromStdString(it->control->ToolTipText);
    if (text.isEmpty() && guide_) text = QString::fromStdString(guide_->ToolTip(*it->control));
    if (!text.isEmpty()) QToolTip::setFont(style::Letters(zoom_));
    if (!text.isEmpty()) return QToolTip::showText(event.globalPos(), text, this, ToWindow(it->rect));
    if (it->control->kind == Control::Kind::Image) break;
  }
  QToolTip::hideText();
}

bool Canvas::event(QEvent* event) {
  if (event->type() == QEvent::Hide || event->type() == QEvent::Resize) motion_.Drop();
  if (event->type() == QEvent::Hide) celebration_.Drop();
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  ShowToolTip(static_cast<QHelpEvent&>(*event));
  return true;
}
