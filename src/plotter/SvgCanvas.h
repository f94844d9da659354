#pragma once

#include <string>

#include "plotter/Canvas.h"

namespace vexa {

/// A canvas that writes what is drawn as an SVG picture, for any resolution.
class SvgCanvas : public Canvas {
 public:
  /// Covers `area` of the view, on white.
  explicit SvgCanvas(const PixelBox& area);

  /// The picture so far, in UTF-8.
  std::string Document();

  void Fill(const PixelBox& box, Colour colour) override;
  void Line(PixelPoint from, PixelPoint to, const LineStyle& style) override;
  void Dot(const CurvePoint& point, Colour colour) override;
  void Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) override;
  void Circle(const PixelBox& box, Colour colour) override;
  void Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text, Colour colour) override;

 private:
  /// Adds a piece to the path of a curve, which goes on while the colour stays.
  void AddToPath(const std::string& piece, Colour colour);
  /// Writes the curve that is being collected.
  void EndPath();

  std::string body;
  std::string path;
  Colour pathColour;
};

}  // namespace vexa
