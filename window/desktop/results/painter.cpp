#include "window/desktop/results/painter.h"

#include "window/desktop/painting/plates.h"
#include "window/desktop/painting/style.h"

namespace results {

namespace {

QFont FontOf(Font font) {
  return font == Font::Large ? style::Letters(11, true) : style::Letters(8, font == Font::Strong);
}

class QtLetters : public Letters {
 public:
  double Breadth(Font font, const std::string& text) const override {
    return Of(font).horizontalAdvance(QString::fromStdString(text));
  }
  double Height(Font font) const override { return Of(font).height(); }
  double Ascent(Font font) const override { return Of(font).ascent(); }

 private:
  const QFontMetricsF& Of(Font font) const { return metrics_[static_cast<size_t>(font)]; }

  const QFontMetricsF metrics_[3] = {QFontMetricsF(FontOf(Font::Small)), QFontMetricsF(FontOf(Font::Strong)),
                                     QFontMetricsF(FontOf(Font::Large))};
};

QColor ColourOf(Colour colour, bool strong) {
  switch (colour) {
    case Colour::Title:
      return strong ? QColor(Qt::white) : style::kIvory;
    case Colour::Ink:
      return strong ? QColor(Qt::white) : style::kInk;
    case Colour::Faint:
      return strong ? QColor(0x80, 0x80, 0x80) : QColor(0, 0, 0, 38);
    case Colour::Hollow:
      return strong ? QColor(Qt::transparent) : QColor(0, 0, 0, 24);
    case Colour::Body:
      return strong ? QColor(0xc8, 0xc8, 0xc8) : QColor(0x1f, 0x6c, 0x4a);
    case Colour::Line:
      return strong ? style::kStrongMark : QColor(0xb0, 0x3a, 0x2e);
    case Colour::Mark:
      return strong ? style::kStrongMark : QColor(0xe8, 0xb9, 0x3a);
    case Colour::Edge:
      return strong ? QColor(Qt::black) : QColor(0x5c, 0x43, 0x0c);
    case Colour::None:
      break;
  }
  return Qt::transparent;
}

QColor ColourOf(const Tint& tint, bool strong) {
  QColor colour = ColourOf(tint.colour, strong);
  if (tint.alpha != 255) colour.setAlpha(tint.alpha);
  return colour;
}

QPen PenOf(const Shape& shape, bool strong) {
  if (shape.pen.colour == Colour::None) return Qt::NoPen;
  QPen pen(ColourOf(shape.pen, strong), shape.breadth);
  if (shape.kind == Shape::Kind::Curve) {
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
  }
  return pen;
}

void Write(QPainter& painter, const Shape& shape, const QRectF& area) {
  painter.setFont(FontOf(shape.font));
  const QString text = QString::fromStdString(shape.text);
  if (shape.down == Shape::Down::OnLine) return painter.drawText(area.topLeft(), text);
  const auto across = shape.across == Shape::Across::Left     ? Qt::AlignLeft
                      : shape.across == Shape::Across::Middle ? Qt::AlignHCenter
                                                              : Qt::AlignRight;
  painter.drawText(area, across | (shape.down == Shape::Down::Top ? Qt::AlignTop : Qt::AlignVCenter), text);
}

void Paint(QPainter& painter, const Shape& shape, bool strong) {
  const QRectF area(shape.area.left, shape.area.top, shape.area.width, shape.area.height);
  if (shape.kind == Shape::Kind::Plate) return plates::Plate(painter, area, strong);
  QPolygonF points;
  for (const Point& point : shape.points) points << QPointF(point.x, point.y);
  painter.setPen(PenOf(shape, strong));
  painter.setBrush(shape.fill.colour == Colour::None ? QBrush(Qt::NoBrush) : ColourOf(shape.fill, strong));
  switch (shape.kind) {
    case Shape::Kind::Line:
      return painter.drawLine(points[0], points[1]);
    case Shape::Kind::Curve:
      return painter.drawPolyline(points);
    case Shape::Kind::Polygon:
      return painter.drawPolygon(points);
    case Shape::Kind::Dot:
      return painter.drawEllipse(points[0], shape.round, shape.round);
    case Shape::Kind::Box:
      return shape.round > 0 ? painter.drawRoundedRect(area, shape.round, shape.round)
                             : painter.drawRect(area);
    case Shape::Kind::Text:
      return Write(painter, shape, area);
    case Shape::Kind::Plate:
      break;
  }
}

}  // namespace

void Paint(QPainter& painter, const Page& page, const QRectF& area, bool strong) {
  const QtLetters letters;
  Drawing drawing{letters, strong};
  DrawPage(drawing, page, {area.left(), area.top(), area.width(), area.height()});
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Shape& shape : drawing.shapes) Paint(painter, shape, strong);
  painter.restore();
}

}  // namespace results
