// The order and the places in which a graph is drawn.

#include "plotter/DrawGraph.h"

#include <gtest/gtest.h>

#include <sstream>

#include "plotter/Graphs.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Graph;
using test::Opened;

/// Writes down what is drawn.
class RecordingCanvas : public Canvas {
 public:
  void Fill(const PixelBox& box, Colour colour) override { Add("fill", colour) << At(box); }
  void Line(PixelPoint from, PixelPoint to, const LineStyle& style) override {
    Add("line", style.colour) << At(from) << At(to);
  }
  void Dot(const CurvePoint& point, Colour colour) override {
    Add("dot", colour) << At(point.pixel);
  }
  void Segment(const CurvePoint& from, const CurvePoint& to, Colour colour) override {
    Add("segment", colour) << At(from.pixel) << At(to.pixel);
  }
  void Circle(const PixelBox& box, Colour colour) override { Add("circle", colour) << At(box); }
  void Text(PixelPoint anchor, PixelPoint offset, std::wstring_view text, Colour colour) override {
    Add("text", colour) << At(PixelPoint{anchor.x + offset.x, anchor.y + offset.y}) << " "
                        << test::Narrow(text);
  }

  /// The drawing steps whose text begins with `start`.
  std::vector<std::string> Steps(std::string_view start = {}) const {
    std::vector<std::string> steps;
    for (const std::ostringstream& step : all) {
      if (step.str().starts_with(start)) steps.push_back(step.str());
    }
    return steps;
  }
  /// The place of the first step that is `step`; past the end: none.
  std::size_t Find(std::string_view step) const {
    std::size_t i = 0;
    while (i < all.size() && all[i].str() != step) ++i;
    return i;
  }
  std::size_t Count() const { return all.size(); }

 private:
  std::ostringstream& Add(const char* what, Colour colour) {
    std::ostringstream& step = all.emplace_back();
    step << what << " " << int{colour.red} << "," << int{colour.green} << "," << int{colour.blue};
    return step;
  }
  static std::string At(PixelPoint point) {
    std::ostringstream text;
    text << ' ' << point.x << ',' << point.y;
    return text.str();
  }
  static std::string At(const PixelBox& box) {
    return At(PixelPoint{box.left, box.top}) + At(PixelPoint{box.right, box.bottom});
  }

  std::vector<std::ostringstream> all;
};

RecordingCanvas Drawn(const GraphModel& graph) {
  RecordingCanvas canvas;
  DrawGraph(graph, canvas);
  return canvas;
}

GraphModel WithOptions(GraphData data, PlotOptions options) {
  data.options = options;
  return Opened(data);
}

TEST(DrawGraph, StepsStandInTheirOrder) {
  GraphData data = Graph({L"x", L"-x", L"x/2"});
  data.dataPoints = {{1, 2}};
  const RecordingCanvas canvas = Drawn(Opened(data));
  const char* const order[] = {
      "fill 255,255,255 4,89 234,261",
      "line 192,192,192 4,107 234,107",
      "line 192,192,192 4,243 234,243",
      "line 192,192,192 27,89 27,260",
      "line 192,192,192 211,89 211,260",
      "line 0,130,132 118,89 118,260",
      "text 0,0,0 93,90 x=0",
      "line 0,130,132 4,175 234,175",
      "text 0,0,0 6,160 y=0",
      "circle 0,0,255 128,156 132,160",
      "dot 255,0,0 4,260",
      "dot 0,255,0 4,90",
      "dot 0,0,255 4,217",
      "line 0,0,0 4,89 233,89",
      "line 0,0,0 233,89 233,260",
      "line 0,0,0 233,260 4,260",
      "line 0,0,0 4,260 4,89",
      "text 0,0,0 9,105 x min=-10",
      "text 0,0,0 9,120 x max=10",
      "text 0,0,0 9,135 y min=-10",
      "text 0,0,0 9,150 y max=10",
  };
  std::size_t last = 0;
  for (const char* step : order) {
    const std::size_t place = canvas.Find(step);
    EXPECT_LT(place, canvas.Count()) << step;
    EXPECT_TRUE(place > last || last == 0) << step;
    last = place;
  }
  EXPECT_EQ(canvas.Steps("line 192").size(), 18u);
}

TEST(DrawGraph, OptionsLeaveThingsOut) {
  const GraphData data = Graph({L"x"});
  EXPECT_TRUE(Drawn(WithOptions(data, {false, true, true})).Steps("line 192").empty());
  const RecordingCanvas dots = Drawn(WithOptions(data, {true, false, true}));
  EXPECT_TRUE(dots.Steps("segment").empty());
  EXPECT_EQ(dots.Steps("dot").size(), 230u);
  const RecordingCanvas lines = Drawn(WithOptions(data, {true, true, true}));
  EXPECT_EQ(lines.Steps("segment").size(), 229u);
  EXPECT_EQ(lines.Steps("dot").size(), 230u);
  EXPECT_EQ(Drawn(WithOptions(data, {true, true, false})).Steps("text").size(), 2u);
}

TEST(DrawGraph, AxesOutsideTheRangesHaveNoName) {
  EXPECT_TRUE(
      Drawn(WithOptions(Graph({L"x"}, {0, 10, 0, 10}), {true, true, false})).Steps("text").empty());
}

TEST(DrawGraph, AxisNamesChangeSidesAtHalfOfRightAndBottom) {
  // Column 118 is beyond 117, half of 234: to the left; one column less: to the right.
  EXPECT_EQ(Drawn(Opened(Graph({L"x"}, {-9.9, 10, -1, 1}))).Steps("text 0,0,0 120,90").size(), 1u);
  EXPECT_EQ(Drawn(Opened(Graph({L"x"}, {-10, 10, -1, 1}))).Steps("text 0,0,0 93,90").size(), 1u);
  // Row 130 is half of 260: below; the next one: above.
  const auto nameAt = [](double yMin, double yMax) {
    return Drawn(WithOptions(Graph({L"x"}, {1, 2, yMin, yMax}), {false, true, false}))
        .Steps("text")
        .at(0);
  };
  EXPECT_EQ(nameAt(-130, 40), "text 0,0,0 6,132 y=0");
  EXPECT_EQ(nameAt(-129, 41), "text 0,0,0 6,116 y=0");
}

TEST(DrawGraph, LabelsMoveDownWhenTheAxisRunsLow) {
  const auto firstLabel = [](double yMin, double yMax) {
    return Drawn(Opened(Graph({L"x"}, {1, 2, yMin, yMax}))).Steps("text 0,0,0 9,").at(0);
  };
  // Row 185 is the last one that leaves them at the top.
  EXPECT_EQ(firstLabel(-75, 95), "text 0,0,0 9,105 x min=1");
  EXPECT_EQ(firstLabel(-74, 96), "text 0,0,0 9,196 x min=1");
  const std::vector<std::string> low =
      Drawn(Opened(Graph({L"x"}, {1, 2, -1, 169}))).Steps("text 0,0,0 9,");
  EXPECT_EQ(low,
            (std::vector<std::string>{"text 0,0,0 9,196 x min=1", "text 0,0,0 9,211 x max=2",
                                      "text 0,0,0 9,226 y min=-1", "text 0,0,0 9,241 y max=169"}));
  EXPECT_EQ(firstLabel(1, 2), "text 0,0,0 9,105 x min=1");
}

TEST(DrawGraph, AFunctionThatFailsDrawsNothing) {
  const RecordingCanvas canvas = Drawn(Opened(Graph({L"sqrt(0-1-x^2)"})));
  EXPECT_TRUE(canvas.Steps("dot").empty());
  EXPECT_TRUE(canvas.Steps("segment").empty());
}

TEST(DrawGraph, SegmentsJoinNeighboursOnly) {
  const RecordingCanvas canvas = Drawn(Opened(Graph({L"1/x"})));
  for (const std::string& step : canvas.Steps("segment")) {
    std::istringstream text(step.substr(step.find(' ', 8)));
    int fromX = 0, fromY = 0, toX = 0, toY = 0;
    char comma = ' ';
    text >> fromX >> comma >> fromY >> toX >> comma >> toY;
    EXPECT_EQ(toX, fromX + 1) << step;
  }
  EXPECT_GT(canvas.Steps("segment").size(), 100u);
}

}  // namespace
}  // namespace vexa
