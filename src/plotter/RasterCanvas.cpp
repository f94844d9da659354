#include "plotter/RasterCanvas.h"

#include <algorithm>
#include <cstdlib>

#include "plotter/BitmapFont.h"
#include "plotter/Palette16.h"

namespace vexa {

RasterCanvas::RasterCanvas(const PixelBox& covered)
    : area(covered),
      entries(static_cast<std::size_t>(Width()) * static_cast<std::size_t>(Height()),
              NearestEntry({255, 255, 255})) {}

void RasterCanvas::Set(int x, int y, std::uint8_t entry) {
  if (x < area.left || x >= area.right || y < area.top || y >= area.bottom) return;
  entries[static_cast<std::size_t>(y - area.top) * static_cast<std::size_t>(Width()) +
          static_cast<std::size_t>(x - area.left)] = entry;
}

void RasterCanvas::Fill(const PixelBox& box, Colour colour) {
  const std::uint8_t entry = NearestEntry(colour);
  for (int y = std::max(box.top, area.top); y < std::min(box.bottom, area.bottom); ++y) {
    for (int x = std::max(box.left, area.left); x < std::min(box.right, area.right); ++x) {
      Set(x, y, entry);
    }
  }
}

void RasterCanvas::Line(PixelPoint from, PixelPoint to, const LineStyle& style) {
  Join(from, to, style.colour);
}

void RasterCanvas::Join(PixelPoint from, PixelPoint to, Colour colour) {
  // One pixel for each step along the longer side; the other side takes its step when it is half a
  // pixel behind the ideal line.
  const std::uint8_t entry = NearestEntry(colour);
  const int dx = std::abs(to.x - from.x);
  const int dy = std::abs(to.y - from.y);
  const int xStep = to.x < from.x ? -1 : 1;
  const int yStep = to.y < from.y ? -1 : 1;
  const int length = std::max(dx, dy);
  int behindX = length / 2;
  int behindY = length / 2;
  PixelPoint at = from;
  for (int n = 0; n < length; ++n) {
    Set(at.x, at.y, entry);
    behindX += dx;
    behindY += dy;
    if (behindX >= length) {
      behindX -= length;
      at.x += xStep;
    }
    if (behindY >= length) {
      behindY -= length;
      at.y += yStep;
    }
  }
}

void RasterCanvas::Dot(const CurvePoint& point, Colour colour) {
  Set(point.pixel.x, point.pixel.y, NearestEntry(colour));
}

void RasterCanvas::Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) {
  Join(from.pixel, to.pixel, colour);
}

void RasterCanvas::Circle(const PixelBox& box, Colour colour) {
  const std::uint8_t entry = NearestEntry(colour);
  // Twice the distances, so that pixel centres and the circle's centre are whole numbers.
  const int width = box.right - box.left;
  const int height = box.bottom - box.top;
  for (int y = box.top; y < box.bottom; ++y) {
    for (int x = box.left; x < box.right; ++x) {
      const int dx = (2 * x + 1 - box.left - box.right) * height;
      const int dy = (2 * y + 1 - box.top - box.bottom) * width;
      if (dx * dx + dy * dy <= width * width * height * height) Set(x, y, entry);
    }
  }
}

void RasterCanvas::Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text,
                        Colour colour) {
  PixelPoint corner{anchor.x + offset.x, anchor.y + offset.y};
  const std::uint8_t entry = NearestEntry(colour);
  for (const wchar_t character : text) {
    const bitmap_font::Glyph& glyph = bitmap_font::GlyphOf(character);
    for (int row = 0; row < bitmap_font::kGlyphHeight; ++row) {
      for (int column = 0; column < bitmap_font::kGlyphWidth; ++column) {
        if (glyph.HasPixel(column, row)) {
          Set(corner.x + column, corner.y + bitmap_font::kSpaceAbove + row, entry);
        }
      }
    }
    corner.x += bitmap_font::kAdvance;
  }
}

}  // namespace vexa
