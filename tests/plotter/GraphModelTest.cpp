#include "plotter/GraphModel.h"

#include <gtest/gtest.h>

#include <cmath>

#include "plotter/Graphs.h"

namespace vexa {
namespace {

using test::Graph;
using test::Opened;

/// A command and what it makes of -10 to 10.
struct Change {
  std::wstring (GraphModel::*run)();
  PlotRanges after;
};

constexpr PlotRanges kHome{-10, 10, -10, 10};

TEST(GraphModel, OpensAtHome) {
  const GraphModel graph = Opened(Graph({L"x+1", L"sqrt(x-1)", L"2*x"}));
  EXPECT_EQ(graph.Ranges(), kHome);
  EXPECT_TRUE(graph.IsAtHome());
  EXPECT_TRUE(graph.IsTracing());
  EXPECT_FALSE(graph.Drag().IsShown());
  EXPECT_EQ(graph.xBox, L"0");
  EXPECT_EQ(graph.SelectedFunction(), 0);
  EXPECT_EQ(graph.SelectedReadOut(), 0);
  EXPECT_EQ(graph.LastError(), L"");
  ASSERT_EQ(graph.ReadOuts().size(), 3u);
  EXPECT_EQ(graph.ReadOutLine(0), L"R:F1(X) = 1");
  EXPECT_EQ(graph.ReadOutLine(1), L"G:F2(X) = Out of range");
  EXPECT_EQ(graph.ReadOutLine(2), L"B:F3(X) = 0");
  EXPECT_EQ(graph.Labels(),
            (std::vector<std::wstring>{L"x min=-10", L"x max=10", L"y min=-10", L"y max=10"}));
}

TEST(GraphModel, OpensWithoutFunctionsAndWithTooMany) {
  EXPECT_TRUE(Opened(Graph({})).ReadOuts().empty());
  GraphData four = Graph({L"x", L"x+1", L"x+2"});
  four.functions.push_back(four.functions.front());
  EXPECT_EQ(Opened(four).Functions().size(), 3u);
}

TEST(GraphModel, CommandsMoveTheBounds) {
  const Change changes[] = {
      {&GraphModel::ZoomIn, {-6, 6, -6, 6}},      {&GraphModel::ZoomOut, {-14, 14, -14, 14}},
      {&GraphModel::MoveLeft, {-14, 6, -10, 10}}, {&GraphModel::MoveRight, {-6, 14, -10, 10}},
      {&GraphModel::MoveUp, {-10, 10, -6, 14}},   {&GraphModel::MoveDown, {-10, 10, -14, 6}},
  };
  for (const Change& change : changes) {
    GraphModel graph = Opened(Graph({L"x"}));
    EXPECT_EQ((graph.*change.run)(), L"");
    EXPECT_EQ(graph.Ranges(), change.after);
    EXPECT_FALSE(graph.IsAtHome());
    EXPECT_EQ(graph.Undo(), L"");
    EXPECT_EQ(graph.Ranges(), kHome);
    EXPECT_FALSE(graph.IsAtHome());
  }
}

TEST(GraphModel, ZoomOutDoesNotUndoZoomIn) {
  GraphModel graph = Opened(Graph({L"x"}));
  graph.ZoomIn();
  graph.ZoomOut();
  EXPECT_EQ(graph.Ranges().xMin, -8.4);
  EXPECT_EQ(graph.Ranges().xMax, 8.4);
}

TEST(GraphModel, EveryChangeSamplesAndLabels) {
  GraphModel graph = Opened(Graph({L"x"}));
  const PixelPoint before = graph.Samples().curves[0][0].pixel;
  graph.MoveUp();
  EXPECT_NE(graph.Samples().curves[0][0].pixel, before);
  EXPECT_EQ(graph.Labels()[3], L"y max=14");
}

TEST(GraphModel, ResetAtHomeDoesNothing) {
  GraphModel graph = Opened(Graph({L"x"}));
  EXPECT_EQ(graph.Reset(), L"");
  EXPECT_TRUE(graph.IsAtHome());
  graph.ZoomIn();
  graph.ZoomIn();
  EXPECT_EQ(graph.Reset(), L"");
  EXPECT_EQ(graph.Ranges(), kHome);
  EXPECT_TRUE(graph.IsAtHome());
  EXPECT_EQ(graph.Labels()[0], L"x min=-10");
}

TEST(GraphModel, UndoAfterResetDoesNothing) {
  GraphModel graph = Opened(Graph({L"x"}));
  EXPECT_EQ(graph.Undo(), L"");
  EXPECT_EQ(graph.Ranges(), kHome);
  // Twice, so that the ranges before the last command are not the home ranges.
  graph.ZoomIn();
  graph.ZoomIn();
  graph.Reset();
  EXPECT_EQ(graph.Undo(), L"");
  EXPECT_EQ(graph.Ranges(), kHome);
}

TEST(GraphModel, ASecondUndoChangesNothing) {
  GraphModel graph = Opened(Graph({L"x"}));
  graph.ZoomIn();
  graph.MoveRight();
  graph.Undo();
  const PlotRanges first = graph.Ranges();
  EXPECT_EQ(first, (PlotRanges{-6, 6, -6, 6}));
  graph.Undo();
  EXPECT_EQ(graph.Ranges(), first);
}

TEST(GraphModel, EqualBoundsAreRefused) {
  // Two columns of a range that is hardly one have the same value.
  const double next = std::nextafter(1.0, 2.0);
  const auto zoomToBox = [](GraphModel& graph) {
    graph.PenDown({10, 100});
    graph.PenMove({30, 120});
    return graph.PenUp({30, 120});
  };
  GraphModel x = Opened(Graph({L"x"}, {1, next, -1, 1}));
  EXPECT_EQ(zoomToBox(x), L"Can not draw graph(X min = X max)");
  EXPECT_EQ(x.Ranges(), (PlotRanges{1, next, -1, 1}));
  GraphModel y = Opened(Graph({L"x"}, {-1, 1, 1, next}));
  EXPECT_EQ(zoomToBox(y), L"Can not draw graph(Y min = Y max)");
}

TEST(GraphModel, BoundsThatAreNotFiniteAreRefused) {
  constexpr std::wstring_view kSentence = L"Out of range(overflow or underflow)";
  for (const bool coordinates : {true, false}) {
    for (const PlotRanges& ranges :
         {PlotRanges{-1e308, 1e308, -1, 1}, PlotRanges{-1, 1, -1e308, 1e308}}) {
      GraphData data = Graph({L"x"}, ranges);
      data.options.coordinates = coordinates;
      GraphModel graph = Opened(data);
      EXPECT_EQ(graph.ZoomOut(), kSentence);
      EXPECT_EQ(graph.LastError(), kSentence);
      EXPECT_EQ(graph.ZoomAt({119, 175}, 1), kSentence);
      EXPECT_EQ(graph.ZoomAt({119, 175}, -1), kSentence);
      graph.PenDown({50, 100});
      EXPECT_NE(graph.PenUp({150, 200}), L"");
      EXPECT_EQ(graph.Ranges(), ranges);
      EXPECT_TRUE(graph.IsAtHome());
    }
    GraphData edge = Graph({L"x"}, {1e308, 1.7e308, -1, 1});
    edge.options.coordinates = coordinates;
    GraphModel graph = Opened(edge);
    EXPECT_EQ(graph.MoveRight(), kSentence);
    EXPECT_EQ(graph.Ranges(), edge.ranges);
  }
}

TEST(GraphModel, ZoomAtRefusesRangesThatZoomInMadeInfinite) {
  GraphData data = Graph({L"x"}, {-1.7e308, 1.7e308, -1, 1});
  data.options.coordinates = false;
  GraphModel graph = Opened(data);
  EXPECT_EQ(graph.ZoomIn(), L"");
  const PlotRanges infinite = graph.Ranges();
  EXPECT_FALSE(std::isfinite(infinite.xMin));
  for (const int steps : {1, -1}) {
    EXPECT_EQ(graph.ZoomAt({119, 175}, steps), L"Out of range(overflow or underflow)");
    EXPECT_EQ(graph.Ranges(), infinite);
  }
}

TEST(GraphModel, ZoomAtKeepsTheValuesAtThePoint) {
  GraphModel graph = Opened(Graph({L"x"}));
  EXPECT_EQ(graph.ZoomAt({165, 260}, 1), L"");
  // Column 165 is 4, row 260 the lowest of 171.
  const double low = 20.0 / 171 - 10;
  EXPECT_DOUBLE_EQ(graph.Ranges().xMin, 4 - 14 * 0.6);
  EXPECT_DOUBLE_EQ(graph.Ranges().xMax, 4 + 6 * 0.6);
  EXPECT_DOUBLE_EQ(graph.Ranges().yMin, low - (low + 10) * 0.6);
  EXPECT_DOUBLE_EQ(graph.Ranges().yMax, low + (10 - low) * 0.6);
  EXPECT_FALSE(graph.IsAtHome());
  graph.Reset();
  EXPECT_EQ(graph.ZoomAt({165, 175}, -2), L"");
  EXPECT_DOUBLE_EQ(graph.Ranges().xMin, 4 - 14 * 1.4 * 1.4);
  EXPECT_DOUBLE_EQ(graph.Ranges().xMax, 4 + 6 * 1.4 * 1.4);
  // Outside of the area it is the nearest point of it.
  graph.Reset();
  EXPECT_EQ(graph.ZoomAt({-1000, 5000}, 1), L"");
  EXPECT_EQ(graph.Ranges(), (PlotRanges{-10, 2, -10, 2}));
}

TEST(GraphModel, ZoomsAtThatFollowEachOtherAreUndoneTogether) {
  GraphModel graph = Opened(Graph({L"x"}));
  graph.MoveUp();
  const PlotRanges before = graph.Ranges();
  for (const int steps : {1, 2, -1, 3}) graph.ZoomAt({50, 120}, steps);
  graph.Undo();
  EXPECT_EQ(graph.Ranges(), before);
  // Another command between them ends it.
  graph.ZoomAt({50, 120}, 1);
  const PlotRanges zoomed = graph.Ranges();
  graph.ToggleTrace();
  graph.ZoomAt({50, 120}, 1);
  graph.Undo();
  EXPECT_EQ(graph.Ranges(), zoomed);
  graph.Undo();
  EXPECT_EQ(graph.Ranges(), zoomed);
}

TEST(GraphModel, NeighbouringBoundsStayApart) {
  GraphModel graph = Opened(Graph({L"x"}, {1.0, std::nextafter(1.0, 2.0), -1, 1}));
  for (int n = 0; n < 100; ++n) EXPECT_EQ(graph.ZoomIn(), L"");
  EXPECT_LT(graph.Ranges().xMin, graph.Ranges().xMax);
}

TEST(GraphModel, ARefusedCommandLeavesThePreviousRanges) {
  GraphModel graph = Opened(Graph({L"x"}, {-1, 1, -1.2e308, 1.2e308}));
  EXPECT_EQ(graph.MoveRight(), L"");
  const PlotRanges before = graph.Ranges();
  EXPECT_EQ(graph.ZoomOut(), L"Out of range(overflow or underflow)");
  EXPECT_EQ(graph.LastError(), L"Out of range(overflow or underflow)");
  EXPECT_EQ(graph.Ranges(), before);
  EXPECT_EQ(graph.Labels()[0], L"x min=-0.6");
  EXPECT_EQ(graph.Undo(), L"");
  EXPECT_EQ(graph.LastError(), L"");
  EXPECT_EQ(graph.Ranges().xMin, -1);
}

TEST(GraphModel, ARefusalAtHomeStaysAtHome) {
  GraphModel graph = Opened(Graph({L"x"}, {-1, 1, -1.7e308, 1.7e308}));
  EXPECT_EQ(graph.ZoomOut(), L"Out of range(overflow or underflow)");
  EXPECT_TRUE(graph.IsAtHome());
  EXPECT_EQ(graph.Ranges().yMax, 1.7e308);
}

TEST(GraphModel, TwoThousandZoomsAreHarmless) {
  for (const bool coordinates : {true, false}) {
    for (const auto command :
         {&GraphModel::ZoomIn, &GraphModel::ZoomOut, &GraphModel::MoveLeft, &GraphModel::MoveUp}) {
      GraphData data = Graph({L"x^3-x", L"1/x", L"x!"});
      data.options.coordinates = coordinates;
      GraphModel graph = Opened(data);
      for (int n = 0; n < 2000; ++n) (graph.*command)();
      EXPECT_EQ(graph.Reset(), L"");
      EXPECT_EQ(graph.Ranges(), kHome);
      EXPECT_EQ(graph.Samples().axisRow, 175);
    }
  }
}

TEST(GraphModel, AMoveLeavesTheOtherRangeAloneHoweverWide) {
  GraphData data = Graph({L"x"});
  data.options.coordinates = false;
  GraphModel graph = Opened(data);
  for (int n = 0; n < 3000; ++n) graph.ZoomOut();
  const PlotRanges wide = graph.Ranges();
  graph.MoveLeft();
  EXPECT_EQ(graph.Ranges().yMin, wide.yMin);
  EXPECT_EQ(graph.Ranges().yMax, wide.yMax);
}

TEST(GraphModel, ATapWithTraceEvaluatesTheFunctions) {
  GraphModel graph = Opened(Graph({L"2*x", L"sqrt(x)"}));
  EXPECT_EQ(graph.PenDown({61, 100}), L"");
  EXPECT_EQ(graph.xBox, L"-5.04347826087");
  EXPECT_EQ(graph.ReadOutLine(0), L"R:F1(X) = -10.08695652174");
  EXPECT_EQ(graph.ReadOutLine(1), L"G:F2(X) = Out of range");
}

TEST(GraphModel, ATapWithoutTraceReadsThePoint) {
  GraphModel graph = Opened(Graph({L"2*x", L"x"}));
  graph.SelectFunction(1);
  graph.ToggleTrace();
  EXPECT_EQ(graph.PenDown({119, 175}), L"");
  EXPECT_EQ(graph.xBox, L"0");
  ASSERT_EQ(graph.ReadOuts().size(), 1u);
  EXPECT_EQ(graph.ReadOutLine(0), L"y = 0.058479532164");
  EXPECT_EQ(graph.SelectedReadOut(), 0);
  EXPECT_EQ(graph.SelectedFunction(), 1);
}

TEST(GraphModel, ATapOutsideReadsNothing) {
  GraphModel graph = Opened(Graph({L"2*x"}));
  for (const PixelPoint outside : {PixelPoint{3, 100}, {235, 100}, {100, 88}, {100, 262}}) {
    EXPECT_EQ(graph.PenDown(outside), L"");
    EXPECT_EQ(graph.PenUp(outside), L"");
  }
  EXPECT_EQ(graph.xBox, L"0");
  EXPECT_EQ(graph.Ranges(), kHome);
}

TEST(GraphModel, ATapOnInfiniteRangesSaysThatThereIsNoNumber) {
  GraphData data = Graph({L"x"});
  data.options.coordinates = false;
  GraphModel graph = Opened(data);
  for (int n = 0; n < 3000; ++n) graph.ZoomOut();
  EXPECT_EQ(graph.PenDown({61, 100}), L"Please enter a number.");
  EXPECT_EQ(graph.xBox, L"Out of range(overflow or underflow)");
}

TEST(GraphModel, ADragShowsItsBox) {
  GraphModel graph = Opened(Graph({L"x"}));
  graph.PenDown({50, 100});
  EXPECT_FALSE(graph.Drag().IsShown());
  graph.PenMove({80, 140});
  EXPECT_TRUE(graph.Drag().IsShown());
  EXPECT_EQ(graph.PenUp({165, 200}), L"");
  EXPECT_FALSE(graph.Drag().IsShown());
  EXPECT_EQ(graph.Ranges().xMin, 20.0 / 230 * 46 - 10);
  EXPECT_EQ(graph.Ranges().xMax, 20.0 / 230 * 161 - 10);
  EXPECT_EQ(graph.Ranges().yMin, 20.0 / 171 * 61 - 10);
  EXPECT_EQ(graph.Ranges().yMax, 20.0 / 171 * 161 - 10);
  EXPECT_FALSE(graph.IsAtHome());
  EXPECT_EQ(graph.Labels()[0], L"x min=-6");
  graph.Undo();
  EXPECT_EQ(graph.Ranges(), kHome);
}

TEST(GraphModel, ADragBackwardsShowsTheSameBox) {
  GraphModel forwards = Opened(Graph({L"x"}));
  forwards.PenDown({50, 100});
  forwards.PenUp({165, 200});
  GraphModel backwards = Opened(Graph({L"x"}));
  backwards.PenDown({165, 200});
  backwards.PenUp({50, 100});
  EXPECT_EQ(backwards.Ranges(), forwards.Ranges());
}

TEST(GraphModel, SmallDragsAndDragsThatEndOutsideAreNoZoom) {
  const std::pair<PixelPoint, PixelPoint> drags[] = {
      {{50, 100}, {50, 100}},          {{50, 100}, {59, 200}},  {{50, 100}, {150, 109}},
      {{50, 100}, {235, 200}},         {{50, 100}, {150, 262}}, {{50, 100}, {3, 200}},
      {{50, 100}, {1000000, -1000000}}};
  for (const auto& [from, to] : drags) {
    GraphModel graph = Opened(Graph({L"x"}));
    graph.PenDown(from);
    graph.PenMove(to);
    EXPECT_EQ(graph.PenUp(to), L"");
    EXPECT_EQ(graph.Ranges(), kHome);
    EXPECT_TRUE(graph.IsAtHome());
  }
}

TEST(GraphModel, ADragMayStartOutside) {
  GraphModel graph = Opened(Graph({L"x"}));
  graph.PenDown({2, 88});
  graph.PenUp({119, 200});
  EXPECT_EQ(graph.Ranges().xMin, 20.0 / 230 * -2 - 10);
  EXPECT_EQ(graph.Ranges().xMax, 0);
}

TEST(GraphModel, ABoxOfEqualBoundsIsRefused) {
  const double next = std::nextafter(1.0, 2.0);
  GraphModel x = Opened(Graph({L"x"}, {1, next, -1, 1}));
  x.PenDown({20, 100});
  EXPECT_EQ(x.PenUp({30, 200}), L"Can not draw graph(X min = X max)");
  EXPECT_EQ(x.Ranges().xMax, next);
  GraphModel y = Opened(Graph({L"x"}, {-1, 1, 1, next}));
  y.PenDown({20, 100});
  EXPECT_EQ(y.PenUp({130, 110}), L"Can not draw graph(Y min = Y max)");
}

TEST(GraphModel, EveryCommandRemovesTheRubberBand) {
  for (const GraphCommand& command : kGraphCommands) {
    GraphModel graph = Opened(Graph({L"x"}));
    graph.PenDown({50, 100});
    graph.PenMove({80, 140});
    (graph.*command.run)();
    EXPECT_FALSE(graph.Drag().IsShown());
  }
}

TEST(GraphModel, TheMenusCommandsHaveTheirCaptions) {
  const wchar_t* const captions[] = {L"Zoom In",    L"Zoom Out", L"Reset",     L"Move Left",
                                     L"Move Right", L"Move Up",  L"Move Down", L"Undo"};
  ASSERT_EQ(std::size(kGraphCommands), std::size(captions));
  for (std::size_t i = 0; i < std::size(captions); ++i) {
    EXPECT_EQ(kGraphCommands[i].caption, captions[i]);
  }
}

TEST(GraphModel, CalReadsTheBox) {
  GraphModel graph = Opened(Graph({L"x^2", L"1/x"}));
  graph.xBox = L"-2";
  EXPECT_EQ(graph.Cal(), L"");
  EXPECT_EQ(graph.ReadOutLine(0), L"R:F1(X) = 4");
  EXPECT_EQ(graph.ReadOutLine(1), L"G:F2(X) = -0.5");
  graph.xBox = L"1,234";
  graph.Cal();
  EXPECT_EQ(graph.ReadOutLine(0), L"R:F1(X) = 1,522,756");
}

TEST(GraphModel, CalMakesMinusZeroZero) {
  GraphModel graph = Opened(Graph({L"x"}));
  graph.xBox = L"-0";
  graph.Cal();
  EXPECT_EQ(graph.xBox, L"0");
  graph.xBox = L"-0.0";
  graph.Cal();
  EXPECT_EQ(graph.xBox, L"-0.0");
}

TEST(GraphModel, CalStopsWithoutANumber) {
  GraphModel graph = Opened(Graph({L"x"}));
  for (const wchar_t* text : {L"", L"abc", L"1,5", L"inf", L"1e999"}) {
    graph.xBox = text;
    EXPECT_EQ(graph.Cal(), L"Please enter a number.");
    EXPECT_EQ(graph.xBox, text);
    EXPECT_EQ(graph.ReadOutLine(0), L"R:F1(X) = 0");
  }
}

TEST(GraphModel, CalUsesTheViewsAngleTypeAndFormat) {
  GraphData data = Graph({L"sin(x)"});
  data.angleType = AngleType::Degrees;
  GraphModel graph(data, DisplayType::FixedPoint, 3);
  graph.xBox = L"30";
  graph.Cal();
  EXPECT_EQ(graph.ReadOutLine(0), L"R:F1(X) = 0.500");
  graph.SetDisplay(DisplayType::Scientific, 1);
  EXPECT_EQ(graph.ReadOutLine(0), L"R:F1(X) = 5.0e-001");
  EXPECT_EQ(graph.Labels()[1], L"x max=1.0e+001");
}

TEST(GraphModel, CalSelectsTheReadOutOfTheSelectedFunction) {
  GraphModel graph = Opened(Graph({L"x", L"x+1", L"x+2"}));
  graph.ToggleTrace();
  graph.SelectFunction(2);
  EXPECT_EQ(graph.SelectedReadOut(), 0);
  graph.Cal();
  EXPECT_EQ(graph.SelectedReadOut(), 2);
}

TEST(GraphModel, TheListsAreLinkedWhileTraceIsOn) {
  GraphModel graph = Opened(Graph({L"x", L"x+1", L"x+2"}));
  graph.SelectFunction(1);
  EXPECT_EQ(graph.SelectedReadOut(), 1);
  graph.SelectReadOut(2);
  EXPECT_EQ(graph.SelectedFunction(), 2);
  graph.ToggleTrace();
  graph.SelectFunction(0);
  EXPECT_EQ(graph.SelectedReadOut(), 2);
  graph.SelectReadOut(1);
  EXPECT_EQ(graph.SelectedFunction(), 0);
}

TEST(GraphModel, ASelectionWithoutAPartnerLeavesTheOtherList) {
  GraphModel graph = Opened(Graph({L"x", L"x+1"}));
  graph.ToggleTrace();
  graph.PenDown({100, 100});
  graph.ToggleTrace();
  graph.SelectFunction(1);
  EXPECT_EQ(graph.SelectedFunction(), 1);
  EXPECT_EQ(graph.SelectedReadOut(), 0);
}

TEST(GraphModel, OptionsTakeRangesAndFlags) {
  GraphModel graph = Opened(Graph({L"x"}));
  graph.ApplyOptions({1, 2, 3, 4}, {.grid = false, .line = false, .coordinates = false});
  EXPECT_EQ(graph.Ranges(), (PlotRanges{1, 2, 3, 4}));
  EXPECT_TRUE(graph.Samples().curves[0][0].IsEmpty()) << "sampled anew: 1 lies below the area";
  EXPECT_EQ(graph.Options(), (PlotOptions{false, false, false}));
  EXPECT_TRUE(graph.Labels().empty());
  EXPECT_FALSE(graph.IsAtHome());
  graph.Undo();
  EXPECT_EQ(graph.Ranges(), kHome);
  graph.ApplyOptions({1, 2, 3, 4}, {});
  EXPECT_EQ(graph.Labels()[2], L"y min=3");
  graph.Reset();
  EXPECT_EQ(graph.Ranges(), kHome);
  EXPECT_EQ(graph.Options(), PlotOptions());
}

TEST(GraphModel, MarksLieOnTheCurves) {
  GraphModel graph = Opened(Graph({L"x", L"sqrt(x)", L"x+100"}));
  graph.PenDown({165, 120});
  // 4 on both axes: of 230 columns the last sample stands in the 229th.
  std::vector<TraceMark> marks = graph.TraceMarks();
  ASSERT_EQ(marks.size(), 2u) << "the third is not shown";
  EXPECT_EQ(marks[0].function, 0u);
  EXPECT_DOUBLE_EQ(marks[0].column, 4 + 14 / 20.0 * 229);
  EXPECT_DOUBLE_EQ(marks[0].row, 260 - 170 / 20.0 * 14);
  EXPECT_EQ(marks[1].function, 1u);
  EXPECT_DOUBLE_EQ(marks[1].row, 260 - 170 / 20.0 * 12);
  // They stay at their values, whatever is shown.
  graph.MoveUp();
  EXPECT_DOUBLE_EQ(graph.TraceMarks().at(0).row, 260 - 170 / 20.0 * 10);
  for (int n = 0; n < 5; ++n) graph.MoveLeft();
  EXPECT_TRUE(graph.TraceMarks().empty());
  graph.Reset();
  // Where a function has no value, there is none.
  graph.xBox = L"-1";
  graph.Cal();
  EXPECT_EQ(graph.TraceMarks().size(), 1u);
  // A box that holds no number changes nothing.
  graph.xBox = L"one";
  graph.Cal();
  EXPECT_EQ(graph.TraceMarks().size(), 1u);
}

TEST(GraphModel, WithoutTraceNothingIsMarked) {
  GraphModel graph = Opened(Graph({L"x"}));
  EXPECT_EQ(graph.TraceMarks().size(), 1u);
  graph.ToggleTrace();
  EXPECT_TRUE(graph.TraceMarks().empty());
  graph.PenDown({165, 120});
  EXPECT_TRUE(graph.TraceMarks().empty());
  graph.ToggleTrace();
  EXPECT_TRUE(graph.TraceMarks().empty()) << "what was read is a point, not a value";
}

TEST(GraphModel, AFunctionWithoutAPointSaysSo) {
  GraphModel graph = Opened(Graph({L"x", L"sqrt(0-1-x^2)", L"x+15"}));
  EXPECT_EQ(graph.FunctionLine(0), L"R:F1(X)=x");
  EXPECT_EQ(graph.FunctionLine(1), L"G:F2(x)=sqrt(0-1-x^2) (no value in this range)");
  EXPECT_EQ(graph.FunctionLine(2), L"B:F3(X)=x+15");
  for (int n = 0; n < 3; ++n) graph.MoveDown();
  EXPECT_EQ(graph.FunctionLine(2), L"B:F3(X)=x+15 (no value in this range)");
  graph.Reset();
  EXPECT_EQ(graph.FunctionLine(2), L"B:F3(X)=x+15");
}

}  // namespace
}  // namespace vexa
