// Small helpers that append SVG elements to a string.
//
// The pictures keep to what the tiny profile of SVG can do: paths, gradients, groups and transforms. No
// clipping, no masks, no style sheets and no text, so that every renderer draws them alike and fast.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace pictures {

/// Formats a number with at most two decimals and without trailing zeros.
std::string Num(double value);

/// Joins pieces of text.
std::string Join(std::initializer_list<std::string_view> pieces);

/// Opens the root element of a picture with the given natural size.
void BeginPicture(std::string& out, double width, double height);

/// Closes the root element.
void EndPicture(std::string& out);

/// Opens a group; `attributes` is copied into the tag.
void Open(std::string& out, std::string_view attributes);

/// Closes the innermost group.
void Close(std::string& out);

/// A filled path that takes its outline from the group around it.
void Shape(std::string& out, std::string_view fill, std::string_view d);

/// A filled path without an outline; `opacity` below 1 lets the ground show through.
void Flat(std::string& out, std::string_view fill, std::string_view d, double opacity = 1);

/// A stroked path without a filling.
void Line(std::string& out, std::string_view colour, double width, std::string_view d, double opacity = 1);

/// A filled circle without an outline.
void Dot(std::string& out, std::string_view fill, double x, double y, double radius, double opacity = 1);

/// A filled ring that takes its outline from the group around it.
void Bead(std::string& out, std::string_view fill, double x, double y, double radius);

/// A filled rectangle without an outline.
void Box(std::string& out, std::string_view fill, double x, double y, double width, double height,
         double radius = 0, double opacity = 1);

/// The outline of a rectangle.
void Frame(std::string& out, std::string_view colour, double line, double x, double y, double width,
           double height, double radius = 0, double opacity = 1);

/// Draws the element with the given id once more, transformed.
void Use(std::string& out, std::string_view id, std::string_view transform);

/// A straight gradient from (x1, y1) to (x2, y2) in the units of the picture.
void Gradient(std::string& out, std::string_view id, double x1, double y1, double x2, double y2,
              std::string_view from, std::string_view to);

/// A round gradient around (x, y) in the units of the picture.
void Glow(std::string& out, std::string_view id, double x, double y, double radius, std::string_view from,
          std::string_view to, double end_opacity = 1);

}  // namespace pictures
