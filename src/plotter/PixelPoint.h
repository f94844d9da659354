#pragma once

namespace vexa {

/// A pixel of the graph view.
struct PixelPoint {
  int x = 0;
  int y = 0;

  bool operator==(const PixelPoint&) const = default;
};

/// A sampled point of a curve: its pixel, and the exact row, of which the pixel's is the integer
/// part. A point whose pixel has row 0 is empty.
struct CurvePoint {
  PixelPoint pixel;
  double row = 0.0;
  /// A point on an edge, where the curve leaves the area: how many rows beyond the edge its value
  /// lies, below 0 upwards. A fine canvas draws the curve on to there and cuts it off.
  double beyond = 0.0;

  constexpr bool IsEmpty() const { return pixel.y == 0; }
};

/// The pixels from column `left` to `right` - 1 and from row `top` to `bottom` - 1.
struct PixelBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

}  // namespace vexa
