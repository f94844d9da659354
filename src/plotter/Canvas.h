#pragma once

#include <cstdint>
#include <string_view>

#include "plotter/PixelPoint.h"

namespace vexa {

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  bool operator==(const Colour&) const = default;
};

/// How a straight line is drawn: a pixel of the view thick, and on a screen at most `widest` of its
/// own logical pixels.
struct LineStyle {
  Colour colour;
  double widest;
};

/// What a graph is drawn on. Places are pixels of the graph view, whatever the resolution; a canvas
/// finer than these pixels may use a curve's exact rows.
class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual void Fill(const PixelBox& box, Colour colour) = 0;
  /// A line along a row or a column, one pixel wide; it draws its first pixel and not its last.
  virtual void Line(PixelPoint from, PixelPoint to, const LineStyle& style) = 0;
  /// A point of a curve.
  virtual void Dot(const CurvePoint& point, Colour colour) = 0;
  /// The line between two points of a curve, with its first pixel and without its last.
  virtual void Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) = 0;
  /// A filled circle that touches the sides of `box`.
  virtual void Circle(const PixelBox& box, Colour colour) = 0;
  /// `text` in the view's font, right of and below the place that lies by `offset` from `anchor`,
  /// which it belongs to.
  virtual void Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text,
                    Colour colour) = 0;
};

}  // namespace vexa
