#include "plotter/SampleGraph.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <limits>

#include "plotter/GraphMapping.h"
#include "plotter/Graphs.h"

namespace vexa {
namespace {

using test::Graph;

constexpr int kTop = 90;
constexpr int kBottom = 260;

SampledCurve Sampled(std::wstring_view function, const PlotRanges& ranges = {}) {
  const GraphData data = Graph({function}, ranges);
  return SampleGraph(data, data.ranges).curves.at(0);
}

long Points(const SampledCurve& curve) {
  return std::ranges::count_if(curve, [](const CurvePoint& point) { return !point.IsEmpty(); });
}

TEST(SampleGraph, SamplesAreOne229thApart) {
  EXPECT_EQ(SampleX(0, -10, 10), -10);
  EXPECT_EQ(SampleX(1, -10, 10), 20 * 0.004366812227074236 - 10);
  EXPECT_EQ(SampleX(229, -10, 10), 229 * (20 * 0.004366812227074236) - 10);
  EXPECT_NEAR(SampleX(229, -10, 10), 10, 1e-13);
}

TEST(SampleGraph, EveryColumnHasItsSample) {
  const SampledCurve curve = Sampled(L"x*0");
  for (int i = 0; i < 230; ++i) {
    EXPECT_EQ(curve[static_cast<std::size_t>(i)].pixel, (PixelPoint{4 + i, 175}));
  }
}

TEST(SampleGraph, TheBoundsOfYAreTheEdges) {
  EXPECT_EQ(Sampled(L"x*0-10")[7].pixel.y, kBottom);
  EXPECT_EQ(Sampled(L"x*0+10")[7].pixel.y, kTop);
  EXPECT_EQ(Points(Sampled(L"x*0+10.2")), 0);
  EXPECT_EQ(Points(Sampled(L"x*0-10.2")), 0);
}

TEST(SampleGraph, ExactRowsHaveTheirPixels) {
  for (const CurvePoint& point : Sampled(L"9*sin(x)")) {
    EXPECT_EQ(static_cast<int>(point.row), point.pixel.y);
  }
}

TEST(SampleGraph, ACurveEndsAndStartsAtTheEdges) {
  // A steep line: comes in from below, leaves above. The points at both ends lie outside by their
  // values and on the edges as they are drawn.
  const SampledCurve curve = Sampled(L"4*x");
  const auto value = [](std::size_t i) { return 4 * SampleX(i, -10, 10); };
  std::size_t first = 0;
  while (curve[first].IsEmpty()) ++first;
  std::size_t last = kSampleCount - 1;
  while (curve[last].IsEmpty()) --last;
  EXPECT_LT(value(first), -10.2);
  EXPECT_EQ(curve[first].pixel.y, kBottom);
  EXPECT_GT(value(first + 1), -10.2);
  EXPECT_GT(value(last), 10);
  EXPECT_EQ(curve[last].pixel.y, kTop);
  EXPECT_LT(value(last - 1), 10);
}

TEST(SampleGraph, EdgePointsKnowHowFarBeyondTheCurveIs) {
  for (const wchar_t* text : {L"4*x", L"0-4*x", L"x^2-20", L"99*sin(x)"}) {
    const GraphModel graph = test::Opened(Graph({text}));
    const SampledCurve& curve = graph.Samples().curves[0];
    int edges = 0;
    for (std::size_t i = 0; i < kSampleCount; ++i) {
      const CurvePoint& point = curve[i];
      if (point.IsEmpty() || point.beyond == 0.0) continue;
      ++edges;
      GraphModel reader = graph;
      std::array<char, 32> digits{};
      std::to_chars(digits.data(), digits.data() + digits.size(), SampleX(i, -10, 10));
      reader.xBox = std::wstring(digits.begin(), std::ranges::find(digits, '\0'));
      reader.Cal();
      const double row = graph_mapping::ExactRow(*reader.ReadOuts()[0].value, graph.Ranges());
      EXPECT_NEAR(point.row + point.beyond, row, 0.01) << i;
      EXPECT_EQ(point.row, point.beyond < 0 ? kTop : kBottom);
    }
    EXPECT_GE(edges, 2);
  }
  // However far: it stays a place.
  for (const CurvePoint& point : Sampled(L"10^(x*30)-10^(0-x*30)")) {
    EXPECT_LE(std::abs(point.beyond), 1e5);
  }
}

TEST(SampleGraph, ABranchThatLeavesAtTheTopIsFollowedByOneFromTheBottom) {
  const SampledCurve curve = Sampled(L"tan(x)", {1, 2, -10, 10});
  std::size_t i = 0;
  while (curve[i].pixel.y != kTop) ++i;
  // Both edge points stand, with samples outside between or side by side, never joined to points
  // inside the area on the other side.
  std::size_t next = i + 1;
  while (curve[next].IsEmpty()) ++next;
  EXPECT_EQ(curve[next].pixel.y, kBottom);
  EXPECT_GT(curve[next + 1].pixel.y, kTop + 85);
}

TEST(SampleGraph, AFailedSampleHasNoEdgePointBehindIt) {
  // Fails below 0; the first value that can be evaluated lies inside.
  const SampledCurve curve = Sampled(L"sqrt(x)+1");
  EXPECT_TRUE(curve[114].IsEmpty());
  EXPECT_FALSE(curve[115].IsEmpty());
}

TEST(SampleGraph, ACurveThatComesInOnTheMiddleRowHasNoEdgePoint) {
  // Far outside up to 0, exactly 0 from there on.
  const SampledCurve curve = Sampled(L"(1-int((x+10)/10))*1000");
  EXPECT_EQ(Points(curve), 115);
  EXPECT_TRUE(curve[114].IsEmpty());
  EXPECT_EQ(curve[115].pixel.y, 175);
}

TEST(SampleGraph, AFunctionThatAlwaysFailsHasNoPoints) {
  EXPECT_EQ(Points(Sampled(L"sqrt(0-1-x^2)")), 0);
  EXPECT_EQ(Points(Sampled(L"1/(x-x)")), 0);
  EXPECT_EQ(Points(Sampled(L"x*1e308*1e308")), 0);
}

TEST(SampleGraph, AFunctionWithoutRecordsHasNoPoints) {
  EXPECT_EQ(Points(Sampled(L"y")), 0);
}

TEST(SampleGraph, FunctionsDoNotTouchEachOther) {
  const GraphData data = Graph({L"x", L"x^2-5", L"tan(x)"});
  const SampledGraph together = SampleGraph(data, data.ranges);
  ASSERT_EQ(together.curves.size(), 3u);
  const wchar_t* const texts[] = {L"x", L"x^2-5", L"tan(x)"};
  for (std::size_t k = 0; k < 3; ++k) {
    const SampledCurve alone = Sampled(texts[k]);
    for (std::size_t i = 0; i < kSampleCount; ++i) {
      EXPECT_EQ(together.curves[k][i].pixel, alone[i].pixel) << k << " " << i;
    }
  }
}

TEST(SampleGraph, TheAngleTypeReachesTheFunctions) {
  GraphData data = Graph({L"9*sin(x)"}, {0, 90, -10, 10});
  data.angleType = AngleType::Degrees;
  EXPECT_EQ(SampleGraph(data, data.ranges).curves[0][229].pixel.y, 98);
}

TEST(SampleGraph, DataPixelsStandOnce) {
  GraphData data = Graph({L"x"});
  data.dataPoints = {{0, 0}, {1, 1}, {0, 0}, {0.001, 0}, {99, 0}, {1, 1}};
  EXPECT_EQ(SampleGraph(data, data.ranges).dataPixels,
            (std::vector<PixelPoint>{{119, 175}, {130, 166}}));
}

TEST(SampleGraph, HostileRangesAndFunctionsAreHarmless) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double bounds[] = {-kInfinity,
                           -DBL_MAX,
                           -1e308,
                           -1,
                           -1e-300,
                           -DBL_TRUE_MIN,
                           0.0,
                           DBL_TRUE_MIN,
                           1e-300,
                           1,
                           std::nextafter(1.0, 2.0),
                           1e308,
                           DBL_MAX,
                           kInfinity,
                           std::nan("")};
  const GraphData data = Graph({L"x!", L"200c100*x", L"x^x^x+1e308*x-(x<<31)"});
  for (const double low : bounds) {
    for (const double high : bounds) {
      const SampledGraph graph = SampleGraph(data, {low, high, low, high});
      for (const SampledCurve& curve : graph.curves) {
        for (const CurvePoint& point : curve) {
          if (point.IsEmpty()) continue;
          EXPECT_TRUE(point.pixel.x >= 4 && point.pixel.x <= 233);
          EXPECT_TRUE(point.pixel.y >= kTop && point.pixel.y <= kBottom);
        }
      }
    }
  }
}

}  // namespace
}  // namespace vexa
