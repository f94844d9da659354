#pragma once

#include <algorithm>

#include "plotter/PixelPoint.h"

namespace vexa {

/// True for a line along a row or a column.
constexpr bool IsStraight(PixelPoint from, PixelPoint to) {
  return from.x == to.x || from.y == to.y;
}

/// The pixels of a straight line, which has its first pixel and not its last, as a box.
constexpr PixelBox BoxOfStraight(PixelPoint from, PixelPoint to) {
  // The pixel at the lower end is the last one when the line runs backwards.
  const int right = from.x == to.x ? from.x + 1 : std::max(from.x + 1, to.x);
  const int bottom = from.y == to.y ? from.y + 1 : std::max(from.y + 1, to.y);
  return {std::min(from.x, to.x + (to.x < from.x)), std::min(from.y, to.y + (to.y < from.y)), right,
          bottom};
}

}  // namespace vexa
