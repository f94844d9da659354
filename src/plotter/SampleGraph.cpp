#include "plotter/SampleGraph.h"

#include <bitset>
#include <cmath>

#include "engine/CalcEngine.h"
#include "plotter/GraphMapping.h"
#include "plotter/XFormula.h"

namespace vexa {
namespace {

using namespace plot_area;

/// One 229th, so that the last of 230 samples falls on the range's end up to rounding.
constexpr double kStepShare = 0.004366812227074236;
constexpr int kMiddleRow = kTop + kHeight / 2;

/// Samples one function after the other with one engine.
class Sampler {
 public:
  Sampler(AngleType angle, const PlotRanges& shown) : ranges(shown) { engine.angleMode = angle; }

  SampledCurve Sample(const GraphFunction& function) {
    curve = {};
    const XFormula formula(function.tokens);
    for (std::size_t i = 0; i < kSampleCount; ++i) {
      const bool previousFailed = !engine.errorText.empty();
      formula.Evaluate(SampleX(i, ranges.xMin, ranges.xMax), engine);
      if (engine.errorText.empty()) Place(i, previousFailed);
    }
    return curve;
  }

 private:
  /// Stores the point of sample `i`, whose value `engine` holds, and the edge points.
  void Place(std::size_t i, bool previousFailed) {
    const double exactRow = graph_mapping::ExactRow(engine.result, ranges);
    const double row = std::trunc(exactRow);
    if (row >= kTop && row <= kBottom) {
      Store(i, static_cast<int>(row), exactRow);
      if (i > 0 && curve[i - 1].IsEmpty() && !previousFailed) StoreEntry(i);
      previousInside = true;
      return;
    }
    if (i > 0 && !curve[i - 1].IsEmpty() && previousInside) StoreExit(i, row);
    previousInside = false;
  }

  /// The curve comes back into the area at `i`: it starts at the edge, one column before. A curve
  /// that comes in on the middle row has no such point.
  void StoreEntry(std::size_t i) {
    if (curve[i].pixel.y < kMiddleRow) Store(i - 1, kTop, kTop);
    if (curve[i].pixel.y > kMiddleRow) Store(i - 1, kBottom, kBottom);
  }

  /// The curve leaves the area at `i`: it ends at the edge. A row that is no number has none.
  void StoreExit(std::size_t i, double row) {
    if (row < kTop) Store(i, kTop, kTop);
    if (row > kBottom) Store(i, kBottom, kBottom);
  }

  void Store(std::size_t i, int row, double exactRow) {
    curve[i] = {{kLeft + static_cast<int>(i), row}, exactRow};
  }

  PlotRanges ranges;
  CalcEngine engine;
  SampledCurve curve{};
  bool previousInside = false;
};

/// The pixels of the points that lie in the plot area, in order, each once.
std::vector<PixelPoint> DataPixels(const std::vector<DataPoint>& points, const PlotRanges& ranges) {
  std::bitset<(kWidth + 1) * (kHeight + 1)> taken;
  std::vector<PixelPoint> pixels;
  for (const DataPoint& point : points) {
    const std::optional<PixelPoint> pixel = graph_mapping::DataPixel(point, ranges);
    if (!pixel) continue;
    const auto place =
        static_cast<std::size_t>((pixel->y - kTop) * (kWidth + 1) + pixel->x - kLeft);
    if (taken[place]) continue;
    taken.set(place);
    pixels.push_back(*pixel);
  }
  return pixels;
}

}  // namespace

double SampleX(std::size_t index, double xMin, double xMax) {
  const double step = (xMax - xMin) * kStepShare;
  return static_cast<double>(index) * step + xMin;
}

SampledGraph SampleGraph(const GraphData& data, const PlotRanges& ranges) {
  SampledGraph graph;
  Sampler sampler(data.angleType, ranges);
  graph.curves.reserve(data.functions.size());
  for (const GraphFunction& function : data.functions) {
    graph.curves.push_back(sampler.Sample(function));
  }
  graph.axisRow = graph_mapping::AxisRow(ranges);
  graph.axisColumn = graph_mapping::AxisColumn(ranges);
  graph.dataPixels = DataPixels(data.dataPoints, ranges);
  return graph;
}

}  // namespace vexa
