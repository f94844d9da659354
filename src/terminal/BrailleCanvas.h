#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plotter/Canvas.h"

namespace vexa::terminal {

/// A canvas of Braille characters, each two dots wide and four high, for a terminal. A character
/// has one colour, the one that was drawn last in it. The grid's and the background's colours are
/// not drawn.
class BrailleCanvas : public Canvas {
 public:
  /// Shows `area` of the view in at most `columns` characters a line; never larger than the view.
  BrailleCanvas(const PixelBox& area, int columns);

  /// The lines of the picture, each with its end; with terminal colours where `coloured`.
  std::wstring Picture(bool coloured) const;

  void Fill(const PixelBox&, Colour) override {}
  void Line(PixelPoint from, PixelPoint to, const LineStyle& style) override;
  void Dot(const CurvePoint& point, Colour colour) override;
  void Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) override;
  void Circle(const PixelBox& box, Colour colour) override;
  void Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text, Colour colour) override;

 private:
  struct Cell {
    std::uint8_t dots = 0;
    wchar_t letter = 0;
    const wchar_t* colour = nullptr;
  };
  void Draw(double fromX, double fromY, double toX, double toY, Colour colour);
  void Set(int x, int y, Colour colour);

  PixelBox area;
  double scale;
  int columns;
  int rows;
  std::vector<Cell> cells;
};

}  // namespace vexa::terminal
