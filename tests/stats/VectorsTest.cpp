// Sorting, data files, statistics and regression against the tables of expected results.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

#include "display/FormatResult.h"
#include "stats/JsonVectors.h"
#include "stats/Regression.h"
#include "stats/RegressionPlot.h"
#include "stats/SummaryStatistics.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Bytes;
using test::Double;
using test::ListOf;
using test::Narrow;
using test::ReadCases;
using test::Rows;
using test::RowsIn;
using test::RowsOf;
using test::UlpDistance;

std::string Title(const QJsonObject& testCase) {
  return "case " + std::to_string(testCase["id"].toInt());
}

TEST(StatisticsVectors, Sort) {
  const auto cases = ReadCases("sort.jsonl");
  ASSERT_EQ(cases.size(), 160u);
  for (const QJsonObject& testCase : cases) {
    SCOPED_TRACE(Title(testCase));
    DataList list = ListOf(RowsIn(testCase["before"]));
    if (testCase["direction"].toInt() == 0) {
      // The direction changes with each sort, of an empty list too.
      list.Clear();
      list.Sort(0);
      list.Load(test::DataOf(list.Columns().size(), RowsIn(testCase["before"])));
    }
    ASSERT_TRUE(list.Sort(static_cast<std::size_t>(testCase["column"].toInt())));
    EXPECT_EQ(RowsOf(list), RowsIn(testCase["after"]));
  }
}

TEST(StatisticsVectors, DataFiles) {
  const auto cases = ReadCases("datafile.jsonl");
  ASSERT_EQ(cases.size(), 246u);
  for (const QJsonObject& testCase : cases) {
    const std::size_t columns = testCase["var"].toInt() == 1 ? 2 : 3;
    const std::string bytes = Bytes(testCase["bytes"]);
    for (const std::size_t pieceSize : {std::size_t{1}, std::size_t{7}, std::size_t{65536}}) {
      SCOPED_TRACE(Title(testCase) + " in pieces of " + std::to_string(pieceSize));
      const DataSet data = test::ReadBytes(columns, bytes, pieceSize);
      EXPECT_EQ(RowsOf(data.rows), RowsIn(testCase["rows"]));
      EXPECT_EQ(data.total, testCase["total"].toInt());
      EXPECT_EQ(data.completeRows, static_cast<std::size_t>(testCase["complete"].toInt()));
      EXPECT_EQ(test::BytesOf(data.rows), Bytes(testCase["saved"]));
    }
  }
}

const struct {
  const char* name;
  double (*compute)(const DataList&);
  unsigned tolerance;
} kStatistics[] = {
    {"sum_x", [](const DataList& list) { return Sum(list, 0); }, 0},
    {"sum_y", [](const DataList& list) { return Sum(list, 1); }, 0},
    {"sum2_x", [](const DataList& list) { return SumOfSquares(list, 0); }, 0},
    {"sum2_y", [](const DataList& list) { return SumOfSquares(list, 1); }, 0},
    {"mean_x", [](const DataList& list) { return Mean(list, 0); }, 0},
    {"mean_y", [](const DataList& list) { return Mean(list, 1); }, 0},
    // A power, which another C library may take differently in the last bits.
    {"sigma_n1_x", [](const DataList& list) { return SampleDeviation(list, 0); }, 4},
    {"sigma_n1_y", [](const DataList& list) { return SampleDeviation(list, 1); }, 4},
    {"sigma_n_x", [](const DataList& list) { return PopulationDeviation(list, 0); }, 4},
    {"sigma_n_y", [](const DataList& list) { return PopulationDeviation(list, 1); }, 4},
    {"sum_xy", [](const DataList& list) { return SumOfProducts(list); }, 0},
};

TEST(StatisticsVectors, SummaryStatistics) {
  const auto cases = ReadCases("stats.jsonl");
  ASSERT_EQ(cases.size(), 126u);
  int compared = 0;
  for (const QJsonObject& testCase : cases) {
    const DataList list = ListOf(RowsIn(testCase["rows"]));
    EXPECT_EQ(list.Total(), testCase["n"].toInt()) << Title(testCase);
    const QJsonObject expected = testCase["statistics"].toObject();
    for (const auto& statistic : kStatistics) {
      if (!expected.contains(statistic.name)) continue;
      SCOPED_TRACE(Title(testCase) + " " + statistic.name);
      const double value = statistic.compute(list);
      EXPECT_LE(UlpDistance(value, Double(expected[statistic.name][0])), statistic.tolerance);
      std::wstring lastError;
      EXPECT_EQ(
          Narrow(FormatResult(value, static_cast<DisplayType>(testCase["display_type"].toInt()),
                              testCase["precision"].toInt(), BaseType::Dec, lastError)),
          expected[statistic.name][1].toString().toStdString());
      ++compared;
    }
    EXPECT_EQ(expected.size(), testCase["var"].toInt() == 1 ? 5 : 11) << Title(testCase);
  }
  EXPECT_GT(compared, 126 * 5);
}

class RegressionVectors : public testing::Test {
 protected:
  void CheckModel(const QJsonObject& testCase, RegressionModel model) {
    const QJsonObject expected =
        testCase["models"][QString::number(static_cast<int>(model))].toObject();
    DataList list = ListOf(RowsIn(testCase["rows"]));
    Regression regression(list);
    regression.ChooseModel(model);
    const double x = Double(testCase["x"]);
    const double y = Double(testCase["y"]);
    Check(expected, "A", regression.Fitted().a);
    Check(expected, "B", regression.Fitted().b);
    Check(expected, "Y'", regression.PredictY(x));
    if (model == RegressionModel::Linear) Check(expected, "r", regression.Correlation());
    if (model == RegressionModel::Quadratic) {
      Check(expected, "C", regression.Fitted().c);
      Check(expected, "X1'", regression.FirstRoot(y));
      Check(expected, "X2'", regression.SecondRoot(y));
    } else {
      Check(expected, "X'", regression.PredictX(y));
    }
    CheckPlot(testCase, expected, list, regression);
  }

  void Check(const QJsonObject& expected, const char* name, double value) {
    ASSERT_TRUE(expected.contains(name)) << name;
    EXPECT_LE(UlpDistance(value, Double(expected[name])), 4u)
        << name << ": " << value << " instead of " << Double(expected[name]);
    ++compared;
  }

  void CheckPlot(const QJsonObject& testCase, const QJsonObject& expected, const DataList& list,
                 Regression& regression) {
    std::wstring lastError;
    GraphData graph;
    const std::wstring message = *PrepareRegressionPlot(
        list, regression, testCase["precision"].toInt(), Unwatched, lastError, graph);
    EXPECT_EQ(message, expected["message"].toString().toStdWString());
    EXPECT_EQ(lastError, message);
    std::wstring ignored;
    EXPECT_EQ(Narrow(CurveText(regression.Model(), regression.Fitted(),
                               testCase["precision"].toInt(), ignored)),
              expected["curve"].toString().toStdString());
    if (!message.empty()) return;
    const QJsonValue ranges = expected["ranges"];
    EXPECT_EQ(graph.ranges.xMin, Double(ranges[0]));
    EXPECT_EQ(graph.ranges.xMax, Double(ranges[1]));
    EXPECT_EQ(graph.ranges.yMin, Double(ranges[2]));
    EXPECT_EQ(graph.ranges.yMax, Double(ranges[3]));
    ASSERT_EQ(graph.functions.size(), 1u);
    EXPECT_EQ(Narrow(graph.functions[0].label),
              "R:F1(X)=" + expected["curve"].toString().toStdString());
    FormulaValues outcome;
    graph.functions[0].program.Evaluate(std::array{1.5}, graph.angleType, outcome);
    EXPECT_NE(outcome.Sentence(0), L"Expression error.");
    EXPECT_EQ(graph.dataPoints.size(), list.RowCount());
    ++plotted;
  }

  int compared = 0;
  int plotted = 0;
};

TEST_F(RegressionVectors, AllModels) {
  const auto cases = ReadCases("regress.jsonl");
  ASSERT_EQ(cases.size(), 141u);
  for (const QJsonObject& testCase : cases) {
    for (const RegressionCurve& name : kRegressionModels) {
      SCOPED_TRACE(Title(testCase) + " " + Narrow(name.menuText));
      CheckModel(testCase, name.model);
    }
  }
  EXPECT_EQ(compared, 846 * 3 + 705 + 4 * 141);
  EXPECT_EQ(plotted, 527);
}

}  // namespace
}  // namespace vexa
