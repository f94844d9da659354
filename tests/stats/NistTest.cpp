// The statistics on reference data with certified values: the doubles are the expected ones, and as
// many digits are right as users are told.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>
#include <cmath>
#include <limits>

#include "display/FormatResult.h"
#include "engine/NumberText.h"
#include "stats/JsonVectors.h"
#include "stats/NistFiles.h"
#include "stats/Regression.h"
#include "stats/SummaryStatistics.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Double;
using test::ListOf;
using test::OneVarRows;
using test::Rows;
using test::TwoVarRows;
using test::UlpDistance;

Rows NistRows(const std::string& name, bool twoVar) {
  if (name == "PiDigits") return OneVarRows(name + ".txt");
  return twoVar ? TwoVarRows(name + ".dat") : OneVarRows(name + ".dat");
}

/// The digits of `value` that agree with a certified one; certified values have fifteen.
double CorrectDigits(double value, std::string_view certified) {
  const double exact = TextToDouble(certified);
  if (std::isnan(value)) return 0.0;
  const double error = std::fabs(value - exact) / std::fabs(exact);
  return std::min(15.0, -std::log10(std::max(error, std::numeric_limits<double>::min())));
}

TEST(Nist, DoublesAreTheExpectedOnes) {
  const auto cases = test::ReadCases("nist.jsonl");
  ASSERT_EQ(cases.size(), 16u);
  for (const QJsonObject& testCase : cases) {
    const std::string name = testCase["name"].toString().toStdString();
    SCOPED_TRACE(name);
    const Rows rows = NistRows(name, testCase["kind"] == "regression");
    if (testCase["rows"].isArray()) {
      EXPECT_EQ(rows, test::RowsIn(testCase["rows"]));
    }
    const DataList list = ListOf(rows);
    const auto check = [&](const char* key, double value) {
      ASSERT_TRUE(testCase.contains(key)) << key;
      EXPECT_LE(UlpDistance(value, Double(testCase[key])), 4u) << key;
    };
    if (testCase["kind"] == "univariate") {
      EXPECT_EQ(list.Total(), testCase["n"].toInt());
      check("sum", Sum(list, 0));
      check("sum2", SumOfSquares(list, 0));
      check("mean", Mean(list, 0));
      check("sigma_n1", SampleDeviation(list, 0));
      check("sigma_n", PopulationDeviation(list, 0));
      continue;
    }
    Regression regression(list);
    regression.ChooseModel(static_cast<RegressionModel>(testCase["model"].toInt()));
    check("A", regression.Fitted().a);
    check("B", regression.Fitted().b);
    if (regression.Model() == RegressionModel::Quadratic) {
      check("C", regression.Fitted().c);
    } else {
      check("r", regression.Correlation());
    }
  }
}

// The certified values of the parameters and of mean and s(n-1), and the digits that are told.

TEST(Nist, CorrectDigitsOfDeviations) {
  const struct {
    const char* name;
    const char* mean;
    const char* deviation;
    double deviationDigits;
  } cases[] = {
      {"PiDigits", "4.53480000000000", "2.86733906028871", 15.0},
      {"Lottery", "518.958715596330", "291.699727470969", 15.0},
      {"Lew", "-177.435000000000", "277.332168044316", 15.0},
      {"Mavro", "2.00185600000000", "0.000429123454003053", 8.5},
      {"Michelso", "299.852400000000", "0.0790105478190518", 8.4},
      {"NumAcc1", "10000002", "1", 15.0},
      {"NumAcc2", "1.2", "0.1", 11.6},
      {"NumAcc3", "1000000.2", "0.1", 1.1},
      {"NumAcc4", "10000000.2", "0.1", 0.0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const DataList list = ListOf(NistRows(c.name, false));
    EXPECT_GE(CorrectDigits(Mean(list, 0), c.mean), 13.0);
    EXPECT_NEAR(CorrectDigits(SampleDeviation(list, 0), c.deviation), c.deviationDigits, 0.06);
  }
}

TEST(Nist, DeviationOfWhatHasAllDigitsInCommonIsRefused) {
  const DataList list = ListOf(NistRows("NumAcc4", false));
  std::wstring lastError;
  EXPECT_EQ(
      FormatResult(SampleDeviation(list, 0), DisplayType::Currency, 5, BaseType::Dec, lastError),
      L"Out of range(overflow or underflow)");
}

TEST(Nist, CorrectDigitsOfFits) {
  const DataList norris = ListOf(NistRows("Norris", true));
  Regression line(norris);
  EXPECT_NEAR(CorrectDigits(line.Fitted().a, "1.00211681802045"), 14.4, 0.06);
  EXPECT_NEAR(CorrectDigits(line.Fitted().b, "-0.262323073774029"), 12.2, 0.06);

  const DataList pontius = ListOf(NistRows("Pontius", true));
  Regression parabola(pontius);
  parabola.ChooseModel(RegressionModel::Quadratic);
  EXPECT_NEAR(CorrectDigits(parabola.Fitted().a, "-0.316081871345029E-14"), 12.1, 0.06);
  EXPECT_NEAR(CorrectDigits(parabola.Fitted().b, "0.732059160401003E-06"), 14.0, 0.06);
  EXPECT_NEAR(CorrectDigits(parabola.Fitted().c, "0.673565789473684E-03"), 11.2, 0.06);
}

}  // namespace
}  // namespace vexa
