#pragma once

#include <optional>

#include "plotter/GraphData.h"
#include "plotter/PixelPoint.h"
#include "plotter/PlotArea.h"
#include "plotter/PlotRanges.h"

/// From values to pixels of the plot area, and back. The formulas are exact to the last bit, so
/// their operations stand in this order.
namespace vexa::graph_mapping {

/// The row of the value `y`, not truncated yet; any double, also one that is no number.
inline double ExactRow(double y, const PlotRanges& ranges) {
  using namespace plot_area;
  return kBottom - (kHeight / (ranges.yMax - ranges.yMin)) * (y - ranges.yMin);
}

/// The column of the value `x` on the curves, not truncated: samples stand at whole columns.
double ExactColumn(double x, const PlotRanges& ranges);

/// The pixel of a data point; none when it lies outside of the plot area.
std::optional<PixelPoint> DataPixel(const DataPoint& point, const PlotRanges& ranges);

/// The row of the horizontal axis, y = 0, and the column of the vertical one; 0 when the axis does
/// not lie inside the ranges. The two are computed differently; meant.
int AxisRow(const PlotRanges& ranges);
int AxisColumn(const PlotRanges& ranges);

/// Whether a tap at `point` counts: in the plot area or on its frame.
bool IsInside(PixelPoint point);
/// The values at a pixel.
double XAt(int column, const PlotRanges& ranges);
double YAt(int row, const PlotRanges& ranges);

}  // namespace vexa::graph_mapping
