#include "plotter/GraphMapping.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

namespace vexa {
namespace {

using namespace graph_mapping;

constexpr PlotRanges kSquare{-10, 10, -10, 10};
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNoNumber = std::nan("");

TEST(GraphMapping, TheBoundsOfYAreTheEdges) {
  EXPECT_EQ(ExactRow(-10, kSquare), 260);
  EXPECT_EQ(ExactRow(10, kSquare), 90);
  EXPECT_EQ(ExactRow(0, kSquare), 175);
}

TEST(GraphMapping, AxesLieInsideTheRangesOnly) {
  EXPECT_EQ(AxisRow(kSquare), 175);
  EXPECT_EQ(AxisColumn(kSquare), 118);
  EXPECT_EQ(AxisColumn({0, 10, -1, 1}), 0);
  EXPECT_EQ(AxisColumn({-10, 0, -1, 1}), 0);
  EXPECT_EQ(AxisRow({-1, 1, 0, 10}), 0);
  EXPECT_EQ(AxisRow({-1, 1, -10, 0}), 0);
  // Truncation may put the horizontal axis on the frame.
  EXPECT_EQ(AxisRow({-1, 1, -84.8, 1e-15}), 89);
  // A vertical axis on the left edge is one.
  EXPECT_EQ(AxisColumn({-DBL_MIN, 10, -1, 1}), 4);
  EXPECT_EQ(AxisColumn({-10, DBL_MIN, -1, 1}), 233);
}

TEST(GraphMapping, AxesOfRangesThatAreNoRangesAreNotShown) {
  const PlotRanges infinite{-kInfinity, kInfinity, -kInfinity, kInfinity};
  const PlotRanges none{kNoNumber, kNoNumber, kNoNumber, kNoNumber};
  EXPECT_EQ(AxisRow(infinite), 0);
  EXPECT_EQ(AxisColumn(infinite), 0);
  EXPECT_EQ(AxisRow(none), 0);
  EXPECT_EQ(AxisColumn(none), 0);
}

TEST(GraphMapping, DataPointsLieInThePlotAreaOrNowhere) {
  EXPECT_EQ(DataPixel({-10, -10}, kSquare), (PixelPoint{4, 260}));
  EXPECT_EQ(DataPixel({10, 10}, kSquare), (PixelPoint{234, 90}));
  EXPECT_EQ(DataPixel({0, 0}, kSquare), (PixelPoint{119, 175}));
  for (const double outside : {-10.2, 10.2, 1e300, -1e300, kInfinity, -kInfinity, kNoNumber}) {
    EXPECT_FALSE(DataPixel({outside, 0}, kSquare)) << outside;
    EXPECT_FALSE(DataPixel({0, outside}, kSquare)) << outside;
  }
  // Truncated toward zero before it is compared: less than a pixel beyond the right and the lower
  // edge still counts.
  EXPECT_EQ(DataPixel({10.05, -10.05}, kSquare), (PixelPoint{234, 260}));
}

TEST(GraphMapping, TapsCountOnTheFrameToo) {
  const std::pair<PixelPoint, bool> cases[] = {
      {{4, 89}, true},    {{234, 261}, true},  {{3, 100}, false}, {{235, 100}, false},
      {{100, 88}, false}, {{100, 262}, false}, {{100, 100}, true}};
  for (const auto& [point, inside] : cases) {
    EXPECT_EQ(IsInside(point), inside) << point.x << "," << point.y;
  }
}

TEST(GraphMapping, ValuesAtPixels) {
  EXPECT_EQ(XAt(4, kSquare), -10);
  EXPECT_EQ(XAt(234, kSquare), 10);
  EXPECT_EQ(XAt(119, kSquare), 0);
  EXPECT_EQ(YAt(261, kSquare), -10);
  EXPECT_NEAR(YAt(90, kSquare), 10, 1e-12);
  EXPECT_EQ(YAt(260, kSquare), 20.0 / 171 - 10);
}

}  // namespace
}  // namespace vexa
