#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "plotter/Canvas.h"

namespace vexa {

/// A canvas of exact pixels in the sixteen colours of a saved graph: the same on every machine, and
/// it needs no display. What lies outside of it is not drawn.
class RasterCanvas : public Canvas {
 public:
  /// Covers `area` of the view, white at first.
  explicit RasterCanvas(const PixelBox& area);

  int Width() const { return area.right - area.left; }
  int Height() const { return area.bottom - area.top; }
  /// The palette entry at a place counted from the canvas's own upper left corner.
  std::uint8_t EntryAt(int column, int row) const {
    return entries[static_cast<std::size_t>(row) * static_cast<std::size_t>(Width()) +
                   static_cast<std::size_t>(column)];
  }

  void Fill(const PixelBox& box, Colour colour) override;
  void Line(PixelPoint from, PixelPoint to, const LineStyle& style) override;
  void Dot(const CurvePoint& point, Colour colour) override;
  void Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) override;
  void Circle(const PixelBox& box, Colour colour) override;
  void Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text, Colour colour) override;

 private:
  void Join(PixelPoint from, PixelPoint to, Colour colour);
  void Set(int x, int y, std::uint8_t entry);

  PixelBox area;
  std::vector<std::uint8_t> entries;
};

}  // namespace vexa
