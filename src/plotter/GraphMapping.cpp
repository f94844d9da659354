#include "plotter/GraphMapping.h"

#include <cmath>

#include "plotter/PlotArea.h"

namespace vexa::graph_mapping {
namespace {

using namespace plot_area;

/// A position as a pixel when it lies from `low` to `high`. Compared before it becomes an integer:
/// it may be infinite or not a number.
std::optional<int> PixelWithin(double position, int low, int high) {
  if (!(position >= low && position <= high)) return std::nullopt;
  return static_cast<int>(position);
}

}  // namespace

double ExactColumn(double x, const PlotRanges& ranges) {
  return kLeft + (x - ranges.xMin) / (ranges.xMax - ranges.xMin) * (kWidth - 1);
}

std::optional<PixelPoint> DataPixel(const DataPoint& point, const PlotRanges& ranges) {
  const double position =
      std::trunc((kWidth / (ranges.xMax - ranges.xMin)) * (point.x - ranges.xMin) + kLeft);
  const std::optional<int> column = PixelWithin(position, kLeft, kRight);
  if (!column) return std::nullopt;
  const std::optional<int> row = PixelWithin(std::trunc(ExactRow(point.y, ranges)), kTop, kBottom);
  if (!row) return std::nullopt;
  return PixelPoint{*column, *row};
}

int AxisRow(const PlotRanges& ranges) {
  if (!(ranges.yMax > 0.0 && ranges.yMin < 0.0)) return 0;
  // Rounding may put it one row above the area, on the frame.
  return PixelWithin(std::trunc(ExactRow(0.0, ranges)), kTop - 1, kBottom).value_or(0);
}

int AxisColumn(const PlotRanges& ranges) {
  if (!(ranges.xMax > 0.0 && ranges.xMin < 0.0)) return 0;
  const double column =
      kLeft + std::trunc((-ranges.xMin / (ranges.xMax - ranges.xMin)) * (kWidth - 1));
  return PixelWithin(column, kLeft, kRight).value_or(0);
}

bool IsInside(PixelPoint point) {
  return point.x >= kLeft && point.x <= kRight && point.y >= kTop - 1 && point.y <= kBottom + 1;
}

double XAt(int column, const PlotRanges& ranges) {
  return ((ranges.xMax - ranges.xMin) / kWidth) * (column - kLeft) + ranges.xMin;
}

double YAt(int row, const PlotRanges& ranges) {
  return ((ranges.yMax - ranges.yMin) / (kHeight + 1)) * (kBottom - row + 1) + ranges.yMin;
}

}  // namespace vexa::graph_mapping
