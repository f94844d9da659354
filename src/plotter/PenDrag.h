#pragma once

#include <algorithm>
#include <cstdint>

#include "plotter/PixelPoint.h"

namespace vexa {

/// A drag with the pen, from where it touched to where it is, and the rubber-band box between.
class PenDrag {
 public:
  /// A box that is narrower or lower than this is no zoom.
  static constexpr std::int64_t kLeastSide = 10;

  void Begin(PixelPoint point) {
    start = end = point;
    shown = false;
  }
  void MoveTo(PixelPoint point) {
    end = point;
    shown = true;
  }
  void Hide() { shown = false; }

  bool IsShown() const { return shown; }
  PixelPoint Start() const { return start; }
  PixelPoint End() const { return end; }
  /// Positions may be any integers, hence 64 bits.
  bool IsBox() const {
    return std::min(Distance(start.x, end.x), Distance(start.y, end.y)) >= kLeastSide;
  }

 private:
  static std::int64_t Distance(int a, int b) {
    const std::int64_t difference = std::int64_t{a} - b;
    return difference < 0 ? -difference : difference;
  }

  PixelPoint start;
  PixelPoint end;
  bool shown = false;
};

}  // namespace vexa
