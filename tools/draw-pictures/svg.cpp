#include "svg.h"

#include <cmath>
#include <cstdio>

namespace pictures {
namespace {

void Attribute(std::string& out, std::string_view name, std::string_view value) {
  out.append(" ").append(name).append("=\"").append(value).append("\"");
}

void Attribute(std::string& out, std::string_view name, double value) { Attribute(out, name, Num(value)); }

void Opacity(std::string& out, std::string_view name, double value) {
  if (value < 1) Attribute(out, name, value);
}

}  // namespace

std::string Num(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", std::round(value * 100) / 100);
  std::string number = text;
  while (number.back() == '0') number.pop_back();
  if (number.back() == '.') number.pop_back();
  return number == "-0" ? "0" : number;
}

std::string Join(std::initializer_list<std::string_view> pieces) {
  std::string text;
  for (std::string_view piece : pieces) text.append(piece);
  return text;
}

void BeginPicture(std::string& out, double width, double height) {
  out.append("<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\"");
  Attribute(out, "version", "1.2");
  Attribute(out, "baseProfile", "tiny");
  Attribute(out, "width", width);
  Attribute(out, "height", height);
  Attribute(out, "viewBox", Join({"0 0 ", Num(width), " ", Num(height)}));
  out.append(">\n");
}

void EndPicture(std::string& out) { out.append("</svg>\n"); }

void Open(std::string& out, std::string_view attributes) {
  out.append("<g");
  if (!attributes.empty()) out.append(" ").append(attributes);
  out.append(">\n");
}

void Close(std::string& out) { out.append("</g>\n"); }

void Shape(std::string& out, std::string_view fill, std::string_view d) {
  out.append("<path");
  Attribute(out, "fill", fill);
  Attribute(out, "d", d);
  out.append("/>\n");
}

void Flat(std::string& out, std::string_view fill, std::string_view d, double opacity) {
  out.append("<path");
  Attribute(out, "fill", fill);
  Attribute(out, "stroke", "none");
  Opacity(out, "fill-opacity", opacity);
  Attribute(out, "d", d);
  out.append("/>\n");
}

void Line(std::string& out, std::string_view colour, double width, std::string_view d, double opacity) {
  out.append("<path");
  Attribute(out, "fill", "none");
  Attribute(out, "stroke", colour);
  Attribute(out, "stroke-width", width);
  Opacity(out, "stroke-opacity", opacity);
  Attribute(out, "d", d);
  out.append("/>\n");
}

void Dot(std::string& out, std::string_view fill, double x, double y, double radius, double opacity) {
  out.append("<circle");
  Attribute(out, "fill", fill);
  Attribute(out, "stroke", "none");
  Opacity(out, "fill-opacity", opacity);
  Attribute(out, "cx", x);
  Attribute(out, "cy", y);
  Attribute(out, "r", radius);
  out.append("/>\n");
}

void Bead(std::string& out, std::string_view fill, double x, double y, double radius) {
  out.append("<circle");
  Attribute(out, "fill", fill);
  Attribute(out, "cx", x);
  Attribute(out, "cy", y);
  Attribute(out, "r", radius);
  out.append("/>\n");
}

void Box(std::string& out, std::string_view fill, double x, double y, double width, double height,
         double radius, double opacity) {
  out.append("<rect");
  Attribute(out, "fill", fill);
  Attribute(out, "stroke", "none");
  Opacity(out, "fill-opacity", opacity);
  Attribute(out, "x", x);
  Attribute(out, "y", y);
  Attribute(out, "width", width);
  Attribute(out, "height", height);
  if (radius > 0) Attribute(out, "rx", radius);
  if (radius > 0) Attribute(out, "ry", radius);
  out.append("/>\n");
}

void Frame(std::string& out, std::string_view colour, double line, double x, double y, double width,
           double height, double radius, double opacity) {
  out.append("<rect");
  Attribute(out, "fill", "none");
  Attribute(out, "stroke", colour);
  Attribute(out, "stroke-width", line);
  Opacity(out, "stroke-opacity", opacity);
  Attribute(out, "x", x);
  Attribute(out, "y", y);
  Attribute(out, "width", width);
  Attribute(out, "height", height);
  if (radius > 0) Attribute(out, "rx", radius);
  if (radius > 0) Attribute(out, "ry", radius);
  out.append("/>\n");
}

void Use(std::string& out, std::string_view id, std::string_view transform) {
  out.append("<use");
  Attribute(out, "xlink:href", Join({"#", id}));
  if (!transform.empty()) Attribute(out, "transform", transform);
  out.append("/>\n");
}

void Gradient(std::string& out, std::string_view id, double x1, double y1, double x2, double y2,
              std::string_view from, std::string_view to) {
  out.append("<linearGradient gradientUnits=\"userSpaceOnUse\"");
  Attribute(out, "id", id);
  Attribute(out, "x1", x1);
  Attribute(out, "y1", y1);
  Attribute(out, "x2", x2);
  Attribute(out, "y2", y2);
  out.append("><stop offset=\"0\"");
  Attribute(out, "stop-color", from);
  out.append("/><stop offset=\"1\"");
  Attribute(out, "stop-color", to);
  out.append("/></linearGradient>\n");
}

void Glow(std::string& out, std::string_view id, double x, double y, double radius, std::string_view from,
          std::string_view to, double end_opacity) {
  out.append("<radialGradient gradientUnits=\"userSpaceOnUse\"");
  Attribute(out, "id", id);
  Attribute(out, "cx", x);
  Attribute(out, "cy", y);
  Attribute(out, "r", radius);
  out.append("><stop offset=\"0\"");
  Attribute(out, "stop-color", from);
  out.append("/><stop offset=\"1\"");
  Attribute(out, "stop-color", to);
  Opacity(out, "stop-opacity", end_opacity);
  out.append("/></radialGradient>\n");
}

}  // namespace pictures
