#pragma once

#include <algorithm>

#include "plotter/PixelPoint.h"

namespace vexa {

/// The pixels of a line along a row or a column, which has its first pixel and not its last.
constexpr PixelBox BoxOfLine(PixelPoint from, PixelPoint to) {
  // A line that runs backwards has its last pixel at the lower end.
  const int skippedColumn = to.x < from.x ? 1 : 0;
  const int skippedRow = to.y < from.y ? 1 : 0;
  return {std::min(from.x, to.x + skippedColumn), std::min(from.y, to.y + skippedRow),
          std::max(from.x + 1, to.x), std::max(from.y + 1, to.y)};
}

}  // namespace vexa
