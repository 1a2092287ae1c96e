// A picture as plain shapes, which any front end can paint.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace results {

struct Point {
  double x = 0, y = 0;
};

struct Area {
  double left = 0, top = 0, width = 0, height = 0;
  double Right() const { return left + width; }
  double Bottom() const { return top + height; }
  double Middle() const { return left + width / 2; }
};

enum class Font { Small, Strong, Large };
enum class Colour { None, Title, Ink, Faint, Hollow, Body, Line, Mark, Edge };

struct Tint {
  Colour colour = Colour::None;
  int alpha = 255;  // of the colour as it is
};

struct Shape {
  enum class Kind {
    Plate,    // paper that the rest lies on
    Line,     // from the first point to the second
    Curve,    // through all points
    Polygon,  // of these points
    Dot,      // around the first point
    Box,      // the area
    Text      // in the area; or on a line from its corner, where it is to lie on that
  };
  enum class Across { Left, Middle, Right };
  enum class Down { Top, Middle, OnLine };

  Kind kind;
  Area area = {};
  std::vector<Point> points = {};
  Tint fill = {}, pen = {};
  double breadth = 1;  // of the pen
  double round = 0;    // radius of a dot, or of a box's corners
  std::string text = {};
  Font font = Font::Small;
  Across across = Across::Left;
  Down down = Down::Top;
};

// How a front end writes.
class Letters {
 public:
  virtual ~Letters() = default;
  virtual double Breadth(Font font, const std::string& text) const = 0;
  virtual double Height(Font font) const = 0;  // of a line
  virtual double Ascent(Font font) const = 0;
};

struct Drawing {
  const Letters& letters;
  bool strong;  // in high contrast
  std::vector<Shape> shapes = {};

  void Line(Point from, Point to, Tint pen, double breadth) {
    shapes.push_back({.kind = Shape::Kind::Line, .points = {from, to}, .pen = pen, .breadth = breadth});
  }
  void Box(const Area& area, Tint fill, Tint pen, double breadth, double round) {
    shapes.push_back({.kind = Shape::Kind::Box,
                      .area = area,
                      .fill = fill,
                      .pen = pen,
                      .breadth = breadth,
                      .round = round});
  }
  void Write(const Area& area, std::string text, Shape::Across across, Shape::Down down,
             Colour colour = Colour::Ink, Font font = Font::Small) {
    shapes.push_back({.kind = Shape::Kind::Text,
                      .area = area,
                      .pen = {colour},
                      .text = std::move(text),
                      .font = font,
                      .across = across,
                      .down = down});
  }
  // On a line that begins there.
  void Write(Point at, std::string text) {
    Write({at.x, at.y, 0, 0}, std::move(text), Shape::Across::Left, Shape::Down::OnLine);
  }
};

}  // namespace results
