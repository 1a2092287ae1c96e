#include "window/desktop/painting/paint.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "window/desktop/painting/contrast.h"
#include "window/desktop/painting/lettering.h"
#include "window/desktop/painting/style.h"

namespace {

constexpr int kBigLetters = 14;  // points from which letters get an outline instead of a plate
constexpr QColor kBox(0xfb, 0xf6, 0xe8);

void PaintImage(const Easel& easel, const Placed& placed) {
  if (placed.picture != 0) PaintPicture(easel, placed.picture, placed.framed, placed.rect);
}

// Black with a white edge.
void PaintStrongBox(QPainter& painter, const QRectF& rect) {
  painter.setPen(QPen(Qt::white, 1.5));
  painter.setBrush(style::kStrongGround);
  painter.drawRoundedRect(rect, 2, 2);
}

// A box let into the window: dark along the top and left, lit along the bottom and right.
void PaintSunken(const Easel& easel, const QRectF& rect, const QColor& fill) {
  QPainter& painter = easel.painter;
  if (easel.strong) return PaintStrongBox(painter, rect);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 90));
  painter.drawRoundedRect(rect.adjusted(0, 0, 1, 1), 1, 1);
  painter.setBrush(QColor(0, 0, 0, 130));
  painter.drawRoundedRect(rect.adjusted(-1, -1, 0, 0), 2, 2);
  painter.setBrush(fill);
  painter.drawRoundedRect(rect, 1, 1);
  QLinearGradient shade(rect.topLeft(), QPointF(rect.left(), rect.top() + std::min(7.0, rect.height() / 2)));
  shade.setColorAt(0, QColor(0, 0, 0, 60));
  shade.setColorAt(1, QColor(0, 0, 0, 0));
  painter.setBrush(shade);
  painter.drawRoundedRect(rect, 1, 1);
}

void PaintShape(const Easel& easel, const Placed& placed) {
  const auto& shape = static_cast<const Shape&>(*placed.control);
  QPainter& painter = easel.painter;
  const QColor told = ToColour(shape.BorderColor), border = easel.strong ? Strong(told) : told;
  if (shape.Width == 0 || shape.Height == 0) {
    painter.setPen(QPen(border, shape.BorderWidth));
    const QPointF half(0.5, 0.5), start = placed.rect.topLeft() + half;
    painter.drawLine(start, start + QPointF(placed.rect.width(), placed.rect.height()));
    return;
  }
  if (shape.Sunken) return PaintSunken(easel, placed.rect, shape.Filled ? ToColour(shape.FillColor) : kBox);
  const double inset = shape.BorderWidth / 2.0;
  const QRectF rect = QRectF(placed.rect).adjusted(inset, inset, -inset, -inset);
  if (!shape.Filled && shape.BorderWidth > 1) {
    // The mark of a selection: a thin light line on either side lets every colour show on every card.
    painter.setBrush(Qt::NoBrush);
    const QColor edge = easel.strong ? QColor(Qt::black) : QColor(255, 255, 255, 150);
    painter.setPen(QPen(edge, shape.BorderWidth + (easel.strong ? 4 : 2)));
    painter.drawRoundedRect(rect, 4, 4);
  }
  if (easel.strong && shape.Filled) return PaintStrongBox(painter, rect);
  painter.setPen(shape.BorderWidth > 0 ? QPen(border, shape.BorderWidth) : QPen(Qt::NoPen));
  painter.setBrush(shape.Filled ? QBrush(ToColour(shape.FillColor)) : QBrush(Qt::NoBrush));
  painter.drawRoundedRect(rect, 4, 4);
}

// A groove with its filling, which reads well on baize and paper.
void PaintProgress(const Easel& easel, const Placed& placed) {
  const auto& bar = static_cast<const ProgressBar&>(*placed.control);
  const double range = std::max(1, bar.Max - bar.Min);
  const double part = std::clamp((bar.Value - bar.Min) / range, 0.0, 1.0);
  QPainter& painter = easel.painter;
  const QRectF groove = QRectF(placed.rect).adjusted(1, 1, -1, -1);
  PaintSunken(easel, groove, kBox);
  QRectF filling = groove.adjusted(2, 2, -2, -2);
  filling.setWidth(filling.width() * part);
  if (filling.width() < 1) return;
  QLinearGradient shine(filling.topLeft(), filling.bottomLeft());
  shine.setColorAt(0, style::kBaize.lighter(135));
  shine.setColorAt(1, style::kBaize.darker(115));
  painter.setPen(Qt::NoPen);
  painter.setBrush(easel.strong ? QBrush(style::kStrongMark) : QBrush(shine));
  painter.drawRoundedRect(filling, 1.5, 1.5);
}

void PaintPanel(const Easel& easel, const QRectF& rect) {
  QPainter& painter = easel.painter;
  if (easel.strong) return PaintStrongBox(painter, rect.adjusted(1, 1, -1, -1));
  painter.setPen(Qt::NoPen);
  for (int step = 4; step > 0; --step) {
    painter.setBrush(QColor(0, 0, 0, 18));
    painter.drawRoundedRect(rect.adjusted(-step / 2.0, 0, step / 2.0, step * 1.4), 10, 10);
  }
  QLinearGradient paper(rect.topLeft(), rect.bottomLeft());
  paper.setColorAt(0, QColor(0xff, 0xfc, 0xf1));
  paper.setColorAt(1, QColor(0xec, 0xe0, 0xc2));
  painter.setBrush(paper);
  painter.setPen(QPen(style::kGold.darker(125), 1));
  painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), 9, 9);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(style::kGold, 1));
  painter.drawRoundedRect(rect.adjusted(4.5, 4.5, -4.5, -4.5), 6, 6);
}

// A group with its caption: let into the baize of a board, outlined on the paper of a dialog.
void PaintGroup(const Easel& easel, const QRectF& rect, const std::string& caption) {
  QPainter& painter = easel.painter;
  const QString text = QString::fromStdString(caption);
  int size = easel.board ? 10 : 9;
  const auto needs = [&] { return QFontMetricsF(style::Letters(size, easel.board)).horizontalAdvance(text); };
  while (size > 7 && needs() + 28 > rect.width()) --size;  // a narrow group has a small caption
  const QFont font = style::Letters(size, easel.board);
  const QFontMetricsF metrics(font);
  const double top = text.isEmpty() ? 0.5 : metrics.height() / 2;
  const QRectF outline = rect.adjusted(0.5, top, -0.5, -0.5);
  const QRectF title(outline.left() + 12, rect.top(),
                     text.isEmpty() ? 0 : metrics.horizontalAdvance(text) + 10, metrics.height());
  painter.setPen(Qt::NoPen);
  painter.setBrush(easel.board ? QColor(0, 0, 0, 56) : QColor(255, 255, 255, easel.strong ? 0 : 70));
  painter.drawRoundedRect(outline, 8, 8);
  painter.save();
  if (!text.isEmpty())
    painter.setClipRegion(QRegion(rect.toAlignedRect()) - title.toAlignedRect(), Qt::IntersectClip);
  painter.setBrush(Qt::NoBrush);
  const QColor line = easel.board ? style::kGold : QColor(0xb5, 0xa8, 0x8a);
  painter.setPen(easel.strong ? QPen(Qt::white, 1.5) : QPen(line, 1));
  painter.drawRoundedRect(outline, 8, 8);
  painter.restore();
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

bool IsOpaque(const Visual& label) { return static_cast<const Label&>(label).BackStyle == 1; }

// The one colour on which a label's letters stand, if there is one.
const QColor* GroundBeneath(const Easel& easel, size_t place, const QPointF& point, QColor& colour) {
  colour = style::kPaper;
  const Placed& label = easel.scene[place];
  for (size_t i = place + 1; i-- > 0;) {
    const Placed& below = easel.scene[i];
    if (!below.rect.contains(point.toPoint())) continue;
    if (below.control->kind == Control::Kind::PictureBox) return nullptr;  // anything may be drawn there
    if (below.control->kind == Control::Kind::Frame)
      return static_cast<Frame*>(below.control)->Panel || !easel.board ? &colour : nullptr;
    if (below.control->kind == Control::Kind::Label && IsOpaque(*below.control)) {
      colour = ToColour(static_cast<const Label*>(below.control)->BackColor);
      return &colour;
    }
    if (below.control->kind != Control::Kind::Shape) continue;
    const auto& shape = static_cast<const Shape&>(*below.control);
    if (!shape.Filled && !shape.Sunken) continue;
    colour = shape.Filled ? ToColour(shape.FillColor) : kBox;
    return &colour;
  }
  return easel.board && label.control->parent->kind == Control::Kind::Form ? nullptr : &colour;
}

void PaintOutlined(QPainter& painter, const TextBlock& block, const QColor& colour) {
  QPainterPath letters;
  for (const TextLine& line : block.lines) letters.addText(line.baseline, block.font, line.text);
  letters.setFillRule(Qt::WindingFill);
  const QColor outline = GroundFor(colour);
  const double breadth = std::clamp(block.font.pixelSize() / 5.0, 6.0, 8.0);
  QColor halo = outline;
  halo.setAlpha(90);
  painter.strokePath(letters, QPen(halo, breadth + 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.strokePath(letters, QPen(outline, breadth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(letters, colour);
}

// On black, with an edge where it stands over a card.
void PaintStrongLabel(const Easel& easel, size_t place, const TextBlock& block, const QColor& colour) {
  if (block.lines.empty()) return;
  QPainter& painter = easel.painter;
  const bool opaque = IsOpaque(*easel.scene[place].control);
  const QRectF plate = opaque ? QRectF(easel.scene[place].rect) : block.bounds.adjusted(-5, -1, 5, 1);
  const bool overCards =
      std::any_of(easel.scene.begin(), easel.scene.begin() + place,
                  [&](const Placed& below) { return below.picture != 0 && plate.intersects(below.rect); });
  painter.setPen(overCards || opaque ? QPen(Qt::white, 1.5) : QPen(Qt::NoPen));
  painter.setBrush(style::kStrongGround);
  painter.drawRoundedRect(plate, 3, 3);
  painter.setFont(block.font);
  painter.setPen(colour);
  for (const TextLine& line : block.lines) painter.drawText(line.baseline, line.text);
}

void PaintLabel(const Easel& easel, size_t place) {
  const Placed& placed = easel.scene[place];
  const auto& label = static_cast<const Label&>(*placed.control);
  const TextBlock block = LayOut(label, placed.rect);
  QPainter& painter = easel.painter;
  const int told =
      easel.calm ? easel.calm->Colour(label, label.Caption, label.ForeColor) : label.ForeColor.get();
  if (easel.strong) return PaintStrongLabel(easel, place, block, Strong(ToColour(told)));
  if (IsOpaque(label)) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToColour(label.BackColor));
    painter.drawRoundedRect(QRectF(placed.rect), 2, 2);
  }
  if (block.lines.empty()) return;
  const QColor colour = ToColour(told);
  QColor known;
  const QColor* ground = GroundBeneath(easel, place, block.bounds.center(), known);
  const bool readable = ground && Contrast(colour, *ground) >= (IsOpaque(label) ? kLegible : kReadable);
  if (!readable && label.FontSize >= kBigLetters) return PaintOutlined(painter, block, colour);
  if (!readable) {
    QColor plate = GroundFor(colour);
    if (!ground) plate.setAlpha(238);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate);
    const double height = std::min(block.bounds.height() / 2 + 1, 7.0);
    painter.drawRoundedRect(block.bounds.adjusted(-5, -1, 5, 1), height, height);
  }
  painter.setFont(block.font);
  painter.setPen(colour);
  for (const TextLine& line : block.lines) painter.drawText(line.baseline, line.text);
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
      frame.Panel ? PaintPanel(easel, placed.rect) : PaintGroup(easel, placed.rect, frame.Caption);
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
    case Control::Kind::Label: {
      const QRectF bounds = LayOut(static_cast<const Label&>(control), rect).bounds;
      const QRect letters = bounds.isEmpty() ? QRect() : bounds.toAlignedRect().adjusted(-8, -8, 8, 8);
      return IsOpaque(control) ? letters | rect.adjusted(-1, -1, 1, 1) : letters;
    }
    default:
      return rect.adjusted(-2, -2, 2, 2);
  }
}
