#include "window/desktop/painting/paint.h"

#include <algorithm>
#include <cmath>

#include "window/desktop/painting/contrast.h"
#include "window/desktop/painting/labels.h"
#include "window/desktop/painting/lettering.h"
#include "window/desktop/painting/plates.h"
#include "window/desktop/painting/style.h"

namespace {

void PaintImage(const Easel& easel, const Placed& placed) {
  if (placed.picture != 0) PaintPicture(easel, placed.picture, placed.framed, placed.rect);
}

// Where a label stands on the upper line of that rectangle.
QRectF GapFor(const Easel& easel, const QRectF& rect) {
  for (const Placed& each : easel.scene) {
    if (each.control->kind != Control::Kind::Label) continue;
    const QRectF letters = LayOut(static_cast<const Label&>(*each.control), each.rect).bounds;
    if (letters.top() < rect.top() && letters.bottom() > rect.top() && letters.left() > rect.left() &&
        letters.right() < rect.right())
      return letters.adjusted(-5, 0, 5, 0);
  }
  return {};
}

// A line along the right or lower edge of a box that is let into the board: the box has an edge of its own.
bool IsBevel(const Easel& easel, const QRectF& line) {
  constexpr double kBeside = 2;
  return std::ranges::any_of(easel.scene, [&](const Placed& each) {
    if (each.control->kind != Control::Kind::Shape || !static_cast<const Shape&>(*each.control).Sunken)
      return false;
    const QRectF box(each.rect), around = box + QMarginsF(kBeside, kBeside, kBeside, kBeside);
    return around.contains(line.topLeft()) && around.contains(line.bottomRight()) &&
           (line.width() == 0 ? line.left() > box.center().x() : line.top() > box.center().y());
  });
}

void PaintShape(const Easel& easel, const Placed& placed) {
  const auto& shape = static_cast<const Shape&>(*placed.control);
  QPainter& painter = easel.painter;
  const QColor told = ToColour(shape.BorderColor), border = easel.strong ? Strong(told) : told;
  if (shape.Width == 0 || shape.Height == 0) {
    if (IsBevel(easel, placed.rect)) return;
    painter.setPen(QPen(border, shape.BorderWidth));
    const QPointF half(0.5, 0.5), start = placed.rect.topLeft() + half;
    painter.drawLine(start, start + QPointF(placed.rect.width(), placed.rect.height()));
    return;
  }
  if (shape.Sunken) return plates::Box(painter, placed.rect, easel.strong);
  if (shape.Raised) return plates::Plate(painter, placed.rect, easel.strong);
  const double inset = shape.BorderWidth / 2.0;
  const QRectF rect = QRectF(placed.rect).adjusted(inset, inset, -inset, -inset);
  if (shape.BorderWidth > 1) {
    // The mark of a selection: a thin light line on either side lets every colour show on every card.
    painter.setBrush(Qt::NoBrush);
    const QColor edge = easel.strong ? QColor(Qt::black) : QColor(255, 255, 255, 150);
    painter.setPen(QPen(edge, shape.BorderWidth + (easel.strong ? 4 : 2)));
    painter.drawRoundedRect(rect, 4, 4);
  }
  if (shape.BorderWidth == 1) return plates::Inlay(painter, rect, GapFor(easel, rect), true, easel.strong);
  painter.setPen(QPen(border, shape.BorderWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(rect, 4, 4);
}

// A groove with its filling, which reads well on baize and paper.
void PaintProgress(const Easel& easel, const Placed& placed) {
  const auto& bar = static_cast<const ProgressBar&>(*placed.control);
  const double range = std::max(1, bar.Max - bar.Min);
  const double part = std::clamp((bar.Value - bar.Min) / range, 0.0, 1.0);
  QPainter& painter = easel.painter;
  const QRectF groove = QRectF(placed.rect).adjusted(1, 1, -1, -1);
  plates::Box(painter, groove, easel.strong);
  QRectF filling = groove.adjusted(2, 2, -2, -2);
  filling.setWidth(filling.width() * part);
  if (filling.width() < 1) return;
  QLinearGradient shine(filling.topLeft(), filling.bottomLeft());
  shine.setColorAt(0, style::kBaize);
  shine.setColorAt(1, style::kBaize.darker(140));
  painter.setPen(Qt::NoPen);
  painter.setBrush(easel.strong ? QBrush(style::kStrongMark) : QBrush(shine));
  painter.drawRoundedRect(filling, 1.5, 1.5);
}

// Cards and buttons alone lie on the baize itself.
bool HoldsTexts(const Frame& frame) {
  return std::ranges::any_of(frame.form.Controls(), [&](const Control* control) {
    return control->parent == &frame && control->kind != Control::Kind::CommandButton &&
           control->kind != Control::Kind::Image;
  });
}

// A group with its caption. On a board its labels stand on paper.
void PaintGroup(const Easel& easel, const QRectF& rect, const Frame& frame) {
  QPainter& painter = easel.painter;
  const QString text = QString::fromStdString(frame.Caption);
  QFont font = style::Letters(9, easel.board);
  if (QFontMetricsF(font).horizontalAdvance(text) + 28 > rect.width()) font = style::Letters(9);
  const QFontMetricsF metrics(font);
  const double top = text.isEmpty() ? 0.5 : std::round(metrics.height() / 2) + 0.5;
  const QRectF outline = rect.adjusted(0.5, top, -0.5, -0.5);
  const QRectF title(outline.left() + 12, rect.top(),
                     text.isEmpty() ? 0 : metrics.horizontalAdvance(text) + 10, metrics.height());
  plates::Inlay(painter, outline, title, easel.board, easel.strong);
  if (easel.board && HoldsTexts(frame)) plates::Box(painter, rect.adjusted(10, 19, -10, -5), easel.strong);
  painter.setFont(font);
  painter.setPen(easel.strong ? QColor(Qt::white) : easel.board ? style::kIvory : style::kInk);
  painter.drawText(title, Qt::AlignCenter, text);
}

void PaintSurface(const Easel& easel, const Placed& placed) {
  const auto& surface = static_cast<const PictureBox&>(*placed.control);
  QPainter& painter = easel.painter;
  const QRectF rect(placed.rect);
  const QPointF corner = rect.topLeft();
  QPointF centre = rect.center();
  double radius = std::min(rect.width(), rect.height()) / 2 - 1;
  for (const Stroke& stroke : surface.strokes) {
    if (stroke.kind != Stroke::Kind::Circle) continue;
    centre = corner + QPointF(stroke.x, stroke.y) / 15;
    radius = stroke.radius / 15;
  }
  const Stroke* last = nullptr;
  for (const Stroke& stroke : surface.strokes)
    if (stroke.kind == Stroke::Kind::Pie) last = &stroke;
  painter.setClipRect(placed.rect, Qt::IntersectClip);
  QRadialGradient disc(centre - QPointF(radius, radius) * 0.3, radius * 1.5);
  disc.setColorAt(0, QColor(0xff, 0xff, 0xfb));
  disc.setColorAt(1, QColor(0xd9, 0xd2, 0xbe));
  painter.setPen(Qt::NoPen);
  painter.setBrush(disc);
  painter.drawEllipse(centre, radius, radius);
  for (const Stroke& stroke : surface.strokes) {
    int told = stroke.colour;
    // Of a pie in slices it is the last one that blinks.
    if (stroke.kind == Stroke::Kind::Pie && &stroke == last && easel.calm)
      told = easel.calm->Colour(surface, std::to_string(stroke.start), told);
    const QColor colour = ToColour(told);
    const QPointF middle = corner + QPointF(stroke.x, stroke.y) / 15;
    const double reach = stroke.radius / 15;
    switch (stroke.kind) {
      case Stroke::Kind::Pie: {
        painter.setPen(Qt::NoPen);
        QRadialGradient shine(middle, reach);
        shine.setColorAt(0, colour.lighter(104));
        shine.setColorAt(1, colour.darker(122));
        painter.setBrush(shine);
        const int start = static_cast<int>(std::lround((90 - stroke.start) * 16));
        const int span = static_cast<int>(std::lround((stroke.start - stroke.end) * 16));
        painter.drawPie(QRectF(middle - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach)), start, span);
        break;
      }
      case Stroke::Kind::Line:
        painter.setPen(QPen(colour, 1));
        painter.drawLine(corner + QPointF(stroke.x1, stroke.y1) / 15,
                         corner + QPointF(stroke.x2, stroke.y2) / 15);
        break;
      case Stroke::Kind::Circle:
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colour.darker(160), 1.5));
        painter.drawEllipse(middle, reach - 0.5, reach - 0.5);
        break;
    }
  }
}

}  // namespace

void PaintPicture(const Easel& easel, int index, bool framed, const QRectF& rect) {
  QPainter& painter = easel.painter;
  if (framed && !easel.strong) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 38));
    painter.drawRoundedRect(rect.adjusted(0, 1, 2, 3), 5, 5);
    painter.drawRoundedRect(rect.adjusted(0.5, 1, 1, 1.5), 4, 4);
  }
  const QPixmap picture = easel.pictures.Get(index, framed, easel.scale);
  // On whole device pixels, so that each pixel of the picture is one of the screen.
  const QTransform& transform = painter.deviceTransform();
  const QPointF corner = transform.map(rect.topLeft());
  const QPointF whole(std::round(corner.x()), std::round(corner.y()));
  painter.drawPixmap(transform.inverted().map(whole), picture);
  if (!easel.strong || easel.pictures.KindOf(index) != PictureKind::Place) return;
  painter.setPen(QPen(Qt::white, 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), 4, 4);
}

void PaintControl(const Easel& easel, size_t place) {
  const Placed& placed = easel.scene[place];
  QPainter& painter = easel.painter;
  painter.save();
  if (placed.control->parent->kind == Control::Kind::Frame)
    painter.setClipRect(placed.clip, Qt::IntersectClip);
  switch (placed.control->kind) {
    case Control::Kind::Image:
      PaintImage(easel, placed);
      break;
    case Control::Kind::Shape:
      PaintShape(easel, placed);
      break;
    case Control::Kind::PictureBox:
      PaintSurface(easel, placed);
      break;
    case Control::Kind::Label:
      PaintLabel(easel, place);
      break;
    case Control::Kind::ProgressBar:
      PaintProgress(easel, placed);
      break;
    case Control::Kind::Frame: {
      const auto& frame = static_cast<const Frame&>(*placed.control);
      frame.Panel ? plates::Panel(painter, placed.rect, easel.strong) : PaintGroup(easel, placed.rect, frame);
      break;
    }
    default:
      break;
  }
  painter.restore();
}

QRect Reach(const Visual& control, const Pictures& pictures) {
  const QRect rect = DrawnRect(control, pictures);
  switch (control.kind) {
    case Control::Kind::Image:
      return rect.adjusted(-2, -2, 4, 5);
    case Control::Kind::Frame:
      return rect.adjusted(-4, -2, 4, 8);
    case Control::Kind::Shape: {
      const int more = static_cast<const Shape&>(control).BorderWidth + 2;
      return rect.adjusted(-more, -more, more, more);
    }
    case Control::Kind::Label:
      return LabelReach(static_cast<const Label&>(control), rect);
    default:
      return rect.adjusted(-2, -2, 2, 2);
  }
}
