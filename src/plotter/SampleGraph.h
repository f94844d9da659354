#pragma once

#include <array>
#include <vector>

#include "plotter/GraphData.h"
#include "plotter/PixelPoint.h"
#include "plotter/PlotArea.h"

namespace vexa {

/// Samples of a function: one for each column of the plot area.
inline constexpr std::size_t kSampleCount = plot_area::kWidth;

/// A function's sampled points.
using SampledCurve = std::array<CurvePoint, kSampleCount>;

/// A graph's pixels, ready for being drawn.
struct SampledGraph {
  /// One for each function.
  std::vector<SampledCurve> curves;
  /// The axes; 0: not inside the ranges.
  int axisRow = 0;
  int axisColumn = 0;
  /// Where data points are drawn, each pixel once.
  std::vector<PixelPoint> dataPixels;
};

/// One 229th, so that the last of 230 samples falls on the range's end up to rounding.
inline constexpr double kSampleStep = 0.004366812227074236;

/// The value of X at sample `index` of the range from `xMin` to `xMax`.
inline double SampleX(std::size_t index, double xMin, double xMax) {
  return static_cast<double>(static_cast<int>(index)) * ((xMax - xMin) * kSampleStep) + xMin;
}

/// Samples what `data` shows, over `ranges` instead of the home ranges. A sample that cannot be
/// evaluated is empty. A curve that leaves the plot area, or enters it, has a point on the edge
/// there.
SampledGraph SampleGraph(const GraphData& data, const PlotRanges& ranges);

}  // namespace vexa
