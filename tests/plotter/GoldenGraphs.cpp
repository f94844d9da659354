#include "plotter/GoldenGraphs.h"

#include <cmath>

namespace vexa::test {
namespace {

GraphModel With(GraphData data, PlotOptions options) {
  data.options = options;
  return Opened(data);
}

GraphModel InDegrees(GraphData data) {
  data.angleType = AngleType::Degrees;
  return Opened(data);
}

GraphModel After(const GraphData& data,
                 std::initializer_list<std::wstring (GraphModel::*)()> commands) {
  GraphModel graph = Opened(data);
  for (const auto command : commands) (graph.*command)();
  return graph;
}

GraphModel BoxZoomed(const GraphData& data, PixelPoint from, PixelPoint to) {
  GraphModel graph = Opened(data);
  graph.PenDown(from);
  graph.PenUp(to);
  return graph;
}

GraphModel Regression(GraphData data, std::vector<DataPoint> points) {
  data.options = {.grid = false, .line = true, .coordinates = false};
  data.dataPoints = std::move(points);
  return Opened(data);
}

constexpr PlotRanges kSquare{-10, 10, -10, 10};
constexpr PlotRanges kFirstQuadrant{0, 10, 0, 10};

}  // namespace

std::vector<GoldenGraph> GoldenGraphs() {
  return {
      {"straight_line", [] { return Opened(Graph({L"x"})); }},
      {"parabola_leaves_and_enters", [] { return Opened(Graph({L"x^2-5"})); }},
      {"three_colours",
       [] {
         return Opened(Graph({L"x", L"-x", L"5*sin(x)"}));
       }},
      {"tangent_poles",
       [] {
         return Opened(Graph({L"tan(x)"}, {-5, 5, -10, 10}));
       }},
      {"reciprocal_pole", [] { return Opened(Graph({L"1/x"})); }},
      {"fails_everywhere", [] { return Opened(Graph({L"sqrt(0-1-x^2)"})); }},
      {"half_domain",
       [] {
         return Opened(Graph({L"sqrt(x)", L"ln(x)", L"asin(x)"}));
       }},
      {"steps",
       [] {
         return Opened(Graph({L"int(x)", L"frac(x)*4"}, {-5, 5, -6, 6}));
       }},
      {"dots",
       [] {
         return With(Graph({L"5*sin(x)", L"x^3/20", L"8*cos(3*x)"}),
                     {.grid = true, .line = false, .coordinates = true});
       }},
      {"no_grid",
       [] {
         return With(Graph({L"x^2/4-6"}), {.grid = false, .line = true, .coordinates = true});
       }},
      {"bare",
       [] {
         return With(Graph({L"x^2/4-6"}), {.grid = false, .line = true, .coordinates = false});
       }},
      {"no_axes",
       [] {
         return Opened(Graph({L"x^2/10"}, {1, 9, 1, 9}));
       }},
      {"axes_on_the_edge", [] { return Opened(Graph({L"10-x"}, kFirstQuadrant)); }},
      {"axes_right_and_low",
       [] {
         return Opened(Graph({L"x/2"}, {-18, 2, -2, 18}));
       }},
      {"axes_left_and_high",
       [] {
         return Opened(Graph({L"x/2"}, {-2, 18, -18, 2}));
       }},
      {"edges_of_the_area",
       [] {
         return Opened(Graph({L"x*0+10", L"x*0-10"}, kSquare));
       }},
      {"degrees",
       [] {
         return InDegrees(Graph({L"sin(x)", L"cos(x)"}, {-360, 360, -2, 2}));
       }},
      {"tiny_ranges",
       [] {
         return Opened(Graph({L"x*x*1e300"}, {-1e-300, 1e-300, -1e-300, 1e-300}));
       }},
      {"huge_ranges",
       [] {
         return Opened(Graph({L"x/2"}, {-1e300, 1e300, -1e300, 1e300}));
       }},
      {"largest_ranges",
       [] {
         return Opened(Graph({L"x/2"}, {-1.7e308, 1.7e308, -1.7e308, 1.7e308}));
       }},
      {"neighbouring_bounds",
       [] {
         return Opened(Graph({L"x"}, {1, std::nextafter(1.0, 2.0), 0.5, 1.5}));
       }},
      {"zoomed_in",
       [] {
         return After(Graph({L"x^2-5"}), {&GraphModel::ZoomIn, &GraphModel::ZoomIn});
       }},
      {"moved",
       [] {
         return After(Graph({L"x^2-5"}), {&GraphModel::MoveLeft, &GraphModel::MoveUp});
       }},
      {"box_zoom",
       [] {
         return BoxZoomed(Graph({L"5*sin(x)"}), {60, 110}, {180, 230});
       }},
      {"regression",
       [] {
         return Regression(Graph({L"2*X+0"}, {0.4, 3.6, 0.8, 7.2}),
                           {{1, 2}, {3, 6}, {3, 6}, {2, 4.5}, {2.5, 4.5}});
       }},
      {"points_at_the_edges",
       [] {
         return Regression(Graph({L"x"}, kFirstQuadrant),
                           {{0, 0}, {10, 10}, {0, 10}, {10, 0}, {5, 5}, {11, 5}, {5, 11}});
       }},
      {"scientific_labels",
       [] {
         return GraphModel(Graph({L"x^2"}, {-12345.678, 0.00012345, -1e9, 98765432.1}),
                           DisplayType::Scientific, 9);
       }},
      {"engineering_labels",
       [] {
         return GraphModel(Graph({L"x^2"}, {-12345.678, 0.00012345, -1e9, 98765432.1}),
                           DisplayType::Engineering, 3);
       }},
  };
}

}  // namespace vexa::test
