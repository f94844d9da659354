// What the graph of a fit is drawn from, and what is refused.

#include "stats/RegressionPlot.h"

#include <gtest/gtest.h>

#include <cmath>

#include "plotter/GraphModel.h"
#include "stats/Lists.h"
#include "support/FormulaValue.h"

namespace vexa {
namespace {

using test::ListOf;
using test::Rows;

struct Prepared {
  std::wstring message;
  std::wstring lastError;
  GraphData graph;
};

Prepared Prepare(const Rows& rows, RegressionModel model = RegressionModel::Linear) {
  const DataList list = ListOf(rows);
  Regression regression(list);
  regression.ChooseModel(model);
  Prepared prepared;
  prepared.lastError = L"of an earlier number";
  prepared.message =
      PrepareRegressionPlot(list, regression, 5, Unwatched, prepared.lastError, prepared.graph)
          .value();
  return prepared;
}

TEST(RegressionPlot, LabelTokensRangesAndFlags) {
  const Prepared prepared = Prepare({{"1", "2", "1"}, {"3", "6", "1"}});
  EXPECT_EQ(prepared.message, L"");
  EXPECT_EQ(prepared.lastError, L"");
  const GraphData& graph = prepared.graph;
  ASSERT_EQ(graph.functions.size(), 1u);
  EXPECT_EQ(graph.functions[0].label, L"R:F1(X)=2*X+0");
  EXPECT_EQ(test::ValueAt(graph.functions[0].program, 0), 0.0);
  EXPECT_EQ(test::ValueAt(graph.functions[0].program, 3.5), 7.0);
  EXPECT_DOUBLE_EQ(graph.ranges.xMin, 0.4);
  EXPECT_DOUBLE_EQ(graph.ranges.xMax, 3.6);
  EXPECT_DOUBLE_EQ(graph.ranges.yMin, 0.8);
  EXPECT_DOUBLE_EQ(graph.ranges.yMax, 7.2);
  EXPECT_EQ(graph.angleType, AngleType::Degrees);
  EXPECT_FALSE(graph.options.grid);
  EXPECT_TRUE(graph.options.line);
  EXPECT_FALSE(graph.options.coordinates);
  ASSERT_EQ(graph.dataPoints.size(), 2u);
  EXPECT_EQ(graph.dataPoints[1].x, 3.0);
  EXPECT_EQ(graph.dataPoints[1].y, 6.0);
}

TEST(RegressionPlot, CurveTexts) {
  const Coefficients coefficients{2.0, -1.0, 0.5};
  const struct {
    RegressionModel model;
    std::wstring_view text;
  } cases[] = {
      {RegressionModel::Linear, L"2*X+-1"},
      {RegressionModel::Power, L"2*X^-1"},
      {RegressionModel::Inverse, L"2/X+-1"},
      {RegressionModel::Logarithmic, L"2*ln(X)+-1"},
      {RegressionModel::Exponential, L"2*exp(-1*X)"},
      {RegressionModel::Quadratic, L"2*X^2+-1*X+0.5"},
      {static_cast<RegressionModel>(9), L""},
  };
  for (const auto& c : cases) {
    std::wstring lastError;
    EXPECT_EQ(CurveText(c.model, coefficients, 5, lastError), c.text);
    EXPECT_EQ(lastError, L"");
  }
}

TEST(RegressionPlot, EveryModelWithSignsOfAllKindsCanBeDrawn) {
  const Rows rising{{"1", "2", "1"}, {"2", "3", "1"}, {"5", "9", "1"}};
  const Rows falling{{"1", "9", "1"}, {"2", "3", "1"}, {"5", "2", "1"}};
  for (const RegressionCurve& name : kRegressionModels) {
    EXPECT_EQ(Prepare(rising, name.model).message, L"");
    EXPECT_EQ(Prepare(falling, name.model).message, L"");
  }
}

TEST(RegressionPlot, RowsOfCountZeroAreDrawnAndWidenTheRanges) {
  const Prepared prepared = Prepare({{"1", "2", "1"}, {"3", "6", "1"}, {"5", "-4", "0"}});
  EXPECT_EQ(prepared.graph.dataPoints.size(), 3u);
  EXPECT_DOUBLE_EQ(prepared.graph.ranges.xMax, 5 + 4 * 0.3);
  EXPECT_DOUBLE_EQ(prepared.graph.ranges.yMin, -4 - 10 * 0.3);
}

TEST(RegressionPlot, RefusesAnEmptyRange) {
  const std::wstring_view emptyX =
      L"The maximum value of X should be bigger than the minimum value of X.";
  const std::wstring_view emptyY =
      L"The maximum value of Y should be bigger than the minimum value of Y.";
  EXPECT_EQ(Prepare({{"1", "1", "1"}, {"1", "5", "1"}}).message, emptyX);
  EXPECT_EQ(Prepare({{"1", "1", "1"}, {"1", "1", "1"}}).message, emptyX);
  EXPECT_EQ(Prepare({{"1", "5", "1"}, {"2", "5", "1"}}).message, emptyY);
  EXPECT_EQ(Prepare({{"1", "5", "1"}, {"2", "5", "1"}}).lastError, emptyY);
  const DataList empty(kTwoVarColumns);
  Regression regression(empty);
  std::wstring lastError;
  GraphData graph;
  EXPECT_EQ(PrepareRegressionPlot(empty, regression, 5, Unwatched, lastError, graph), emptyX);
}

TEST(RegressionPlot, AStoppedPlotChangesNothing) {
  const DataList list = ListOf({{"1", "2", "1"}, {"3", "6", "1"}});
  std::wstring lastError = L"of an earlier number";
  GraphData graph;
  graph.dataPoints = {{7.0, 8.0}};
  int reports = 0;
  const auto count = [&](double) { return ++reports > 0; };
  Regression watched(list);
  ASSERT_TRUE(PrepareRegressionPlot(list, watched, 5, count, lastError, graph));
  for (int stopAt = 1; stopAt <= reports; ++stopAt) {
    const DataList again = ListOf({{"1", "2", "1"}, {"3", "6", "1"}});
    Regression regression(again);
    lastError = L"of an earlier number";
    graph = GraphData();
    int heard = 0;
    const auto stop = [&](double) { return ++heard < stopAt; };
    EXPECT_FALSE(PrepareRegressionPlot(again, regression, 5, stop, lastError, graph)) << stopAt;
    EXPECT_EQ(lastError, L"of an earlier number");
    EXPECT_TRUE(graph.functions.empty() && graph.dataPoints.empty());
  }
}

TEST(RegressionPlot, RefusesCoefficientsThatCannotBeShown) {
  const Prepared prepared =
      Prepare({{"0", "2", "1"}, {"3", "6", "1"}}, RegressionModel::Logarithmic);
  EXPECT_EQ(prepared.message, L"Out of range(overflow or underflow)");
  EXPECT_EQ(prepared.lastError, L"Out of range(overflow or underflow)");
}

TEST(RegressionPlot, EqualValuesComeBeforeTheOverflowThatTheyCause) {
  EXPECT_EQ(Prepare({{"1", "-1", "1"}, {"1", "-2", "1"}}, RegressionModel::Power).message,
            L"The maximum value of X should be bigger than the minimum value of X.");
  EXPECT_EQ(Prepare({{"1", "-1", "1"}, {"2", "-1", "1"}}, RegressionModel::Power).message,
            L"The maximum value of Y should be bigger than the minimum value of Y.");
}

TEST(RegressionPlot, CoefficientsWithExponentsCanBeDrawn) {
  const Prepared prepared = Prepare({{"1", "1e13", "1"}, {"3", "3e14", "1"}});
  EXPECT_EQ(prepared.message, L"");
  ASSERT_EQ(prepared.graph.functions.size(), 1u);
  EXPECT_EQ(prepared.graph.functions[0].label, L"R:F1(X)=1.45000e+014*X+-1.35000e+014");
  EXPECT_EQ(test::ValueAt(prepared.graph.functions[0].program, 0), -1.35e14);
  EXPECT_EQ(test::ValueAt(prepared.graph.functions[0].program, 2), 1.55e14);
}

TEST(RegressionPlot, AnExtentBeyondAllNumbersIsHandedOn) {
  const Prepared prepared = Prepare({{"-0.7", "-1e308", "1"}, {"0.7", "1e308", "1"}});
  EXPECT_EQ(prepared.message, L"");
  EXPECT_TRUE(std::isinf(prepared.graph.ranges.yMin));
  EXPECT_TRUE(std::isinf(prepared.graph.ranges.yMax));
  GraphModel graph(prepared.graph, DisplayType::Currency, 5);
  for (const GraphCommand& command : kGraphCommands) (graph.*command.run)();
  EXPECT_EQ(graph.Samples().axisRow, 0);
}

TEST(RegressionPlot, ReportsAnErrorOfTheEngineWithTheCurve) {
  const Prepared prepared =
      Prepare({{"1", "2", "1"}, {"3", "6", "1"}}, static_cast<RegressionModel>(7));
  EXPECT_EQ(prepared.lastError, L"Expression is null.");
  EXPECT_EQ(prepared.message, L" : Expression is null.");
}

}  // namespace
}  // namespace vexa
