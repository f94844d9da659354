// Sampled pixels, axes and data points against expected results, pixel by pixel.

#include <gtest/gtest.h>

#include "plotter/GraphMapping.h"
#include "plotter/SampleGraph.h"
#include "plotter/VectorLines.h"

namespace vexa {
namespace {

using namespace test;

void CheckCurve(const SampledCurve& curve, const QJsonArray& expected) {
  std::array<PixelPoint, kSampleCount> points{};
  for (const QJsonValue point : expected) {
    points[static_cast<std::size_t>(point[0].toInt())] = {point[1].toInt(), point[2].toInt()};
  }
  for (std::size_t i = 0; i < kSampleCount; ++i) {
    EXPECT_EQ(curve[i].pixel, points[i]) << "sample " << i;
    EXPECT_EQ(curve[i].IsEmpty(), points[i].y == 0) << "sample " << i;
    EXPECT_EQ(static_cast<int>(curve[i].row), points[i].y) << "sample " << i;
  }
}

/// Every point's pixel in order; a graph keeps each once.
void CheckDataPixels(const GraphData& data, const SampledGraph& graph, const QJsonArray& expected) {
  std::vector<PixelPoint> all;
  for (const DataPoint& point : data.dataPoints) {
    if (const auto pixel = graph_mapping::DataPixel(point, data.ranges)) all.push_back(*pixel);
  }
  std::vector<PixelPoint> once;
  ASSERT_EQ(static_cast<qsizetype>(all.size()), expected.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    const QJsonValue pixel = expected[static_cast<qsizetype>(i)];
    EXPECT_EQ(all[i], (PixelPoint{pixel[0].toInt(), pixel[1].toInt()})) << "point " << i;
    if (std::ranges::find(once, all[i]) == once.end()) once.push_back(all[i]);
  }
  EXPECT_EQ(graph.dataPixels, once);
}

TEST(SampleVectors, Graphs) {
  const std::vector<QJsonObject> vectors = ReadJsonLines("sample.jsonl");
  ASSERT_EQ(vectors.size(), 156u);
  std::size_t curves = 0;
  qsizetype points = 0;
  for (const QJsonObject& vector : vectors) {
    SCOPED_TRACE("graph " + std::to_string(vector["id"].toInt()));
    const GraphData data = Graph(vector);
    const SampledGraph graph = SampleGraph(data, data.ranges);
    const PlotRanges& ranges = data.ranges;
    EXPECT_EQ(SampleX(0, ranges.xMin, ranges.xMax), Number(vector["x_first"]));
    EXPECT_EQ(SampleX(kSampleCount - 1, ranges.xMin, ranges.xMax), Number(vector["x_last"]));
    EXPECT_EQ(graph.axisRow, vector["axis_row"].toInt());
    EXPECT_EQ(graph.axisColumn, vector["axis_column"].toInt());
    const QJsonArray expected = vector["points"].toArray();
    ASSERT_EQ(static_cast<qsizetype>(graph.curves.size()), expected.size());
    for (std::size_t i = 0; i < graph.curves.size(); ++i) {
      SCOPED_TRACE("function " + std::to_string(i));
      CheckCurve(graph.curves[i], expected[static_cast<qsizetype>(i)].toArray());
      points += expected[static_cast<qsizetype>(i)].toArray().size();
      ++curves;
    }
    CheckDataPixels(data, graph, vector["data_pixels"].toArray());
  }
  EXPECT_EQ(curves, 210u);
  EXPECT_EQ(points, 22381);
}

}  // namespace
}  // namespace vexa
