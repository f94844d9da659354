// The six models on small lists: coefficients, predictions, what is refitted when.

#include "stats/Regression.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "display/FormatResult.h"
#include "stats/LeastSquares.h"
#include "stats/Lists.h"
#include "stats/NormalEquations.h"

namespace vexa {
namespace {

using test::ListOf;

constexpr double kE = std::numbers::e;

/// A number as cells show it.
std::wstring Text(double value) {
  std::wstring lastError;
  return FormatResult(value, DisplayType::FloatingPoint, 12, BaseType::Dec, lastError);
}

TEST(RegressionModels, NamesAndCodes) {
  const struct {
    int code;
    std::wstring_view menuText;
    std::wstring_view caption;
  } expected[] = {
      {1, L"Linear : A*X+B", L"Lin"},           {2, L"Power : A*X^B", L"Pow"},
      {3, L"Inverse : A/X+B", L"Inv"},          {4, L"Logarithmic : A*ln(X)+B", L"Log"},
      {5, L"Exponential : A*exp(B*X)", L"Exp"}, {6, L"Quadratic : A*X^2+B*X+C", L"Quad"},
  };
  for (std::size_t n = 0; n < kRegressionModels.size(); ++n) {
    EXPECT_EQ(static_cast<int>(kRegressionModels[n].model), expected[n].code);
    EXPECT_EQ(kRegressionModels[n].menuText, expected[n].menuText);
    EXPECT_EQ(kRegressionModels[n].caption, expected[n].caption);
  }
}

TEST(Regression, StartsLinear) {
  const DataList list = ListOf({{"1", "2", "1"}, {"2", "4", "1"}, {"3", "6", "1"}});
  Regression regression(list);
  EXPECT_EQ(regression.Model(), RegressionModel::Linear);
  EXPECT_EQ(regression.Fitted().a, 2.0);
  EXPECT_EQ(regression.Fitted().b, 0.0);
  EXPECT_EQ(regression.Correlation(), 1.0);
  EXPECT_EQ(regression.PredictY(4.0), 8.0);
  EXPECT_EQ(regression.PredictX(10.0), 5.0);
}

TEST(Regression, TheCorrelationDividesByAPowerAndNoRoot) {
  // Of the squared deviations' product, 46 * 254, the power and the square root differ in the last
  // bit.
  const DataList list = ListOf({{"1", "1", "3"},
                                {"-1", "-1", "3"},
                                {"1", "0", "20"},
                                {"-1", "0", "20"},
                                {"0", "1", "124"},
                                {"0", "-1", "124"}});
  volatile double half = 0.5;
  const double power = std::pow(46.0 * 254.0, half);
  ASSERT_NE(6.0 / power, 6.0 / std::sqrt(46.0 * 254.0));
  EXPECT_EQ(Regression(list).Correlation(), 6.0 / power);
}

TEST(Regression, CountsAreHalvedWhereAModelIsNotLinearAndSomeCountIsNotOne) {
  const DataList once = ListOf({{"1", "2", "1"}, {"2", "4", "1"}});
  const DataList counted = ListOf({{"1", "2", "1"}, {"2", "4", "2"}});
  for (const RegressionCurve& name : kRegressionModels) {
    Regression ofOnce(once);
    Regression ofCounted(counted);
    ofOnce.ChooseModel(name.model);
    ofCounted.ChooseModel(name.model);
    EXPECT_FALSE(ofOnce.HalvesCounts());
    EXPECT_EQ(ofCounted.HalvesCounts(), name.model != RegressionModel::Linear);
  }
  Regression without(counted);
  without.ChooseModel(static_cast<RegressionModel>(7));
  EXPECT_FALSE(without.HalvesCounts());
}

TEST(Regression, AStoppedFitChangesNothing) {
  const DataList list = ListOf({{"1", "2", "1"}, {"2", "4", "1"}, {"3", "7", "1"}});
  for (const RegressionCurve& name : kRegressionModels) {
    Regression regression(list);
    regression.ChooseModel(name.model);
    EXPECT_FALSE(regression.Fit([](double) { return false; }));
    EXPECT_TRUE(regression.Fit(Unwatched));
    const Coefficients fitted = regression.Fitted();
    EXPECT_TRUE(regression.Fit([](double) { return false; })) << "there is nothing left to stop";
    EXPECT_EQ(regression.Fitted().a, fitted.a);
  }
}

TEST(Regression, Quadratic) {
  const DataList list = ListOf({{"1", "2", "1"}, {"2", "8", "1"}, {"3", "18", "1"}});
  Regression regression(list);
  regression.ChooseModel(RegressionModel::Quadratic);
  EXPECT_NEAR(regression.Fitted().a, 2.0, 1e-9);
  EXPECT_NEAR(regression.Fitted().b, 0.0, 1e-9);
  EXPECT_NEAR(regression.Fitted().c, 0.0, 1e-9);
  EXPECT_NEAR(regression.FirstRoot(8.0), 2.0, 1e-9);
  EXPECT_NEAR(regression.SecondRoot(8.0), -2.0, 1e-9);
  EXPECT_NEAR(regression.PredictY(5.0), 50.0, 1e-9);
  EXPECT_TRUE(std::isnan(regression.FirstRoot(-8.0))) << "the curve has no such value";
}

/// A power that no optimizer can look into.
double LibraryPower(double base, double exponent) {
  volatile double hidden = exponent;
  return std::pow(base, hidden);
}

TEST(Regression, SquaresArePowersOfTheLibrary) {
  const DataList list = ListOf({{"0", "0", "1"}, {"1", "1", "1"}, {"2", "4", "1"}});
  Regression regression(list);
  regression.ChooseModel(RegressionModel::Quadratic);
  const auto [a, b, c] = regression.Fitted();
  // Of these the library's square and the product may differ in the last bit.
  for (const double x : {95.97, 141.73, 188.84, 192.06, 210.27, 294.31}) {
    EXPECT_EQ(regression.PredictY(x), (b * x + a * LibraryPower(x, 2.0)) + c) << x;
  }
}

TEST(Regression, TheEquationsHoldPowersOfTheLibraryToo) {
  const std::pair<double, double> points[] = {
      {93.28, 89.2}, {93.41, 97.6}, {254.38, 15.7}, {297.51, 35.3}};
  NormalEquations equations;
  DataList list(kTwoVarColumns);
  for (const auto& [x, y] : points) {
    list.Add(std::vector<std::wstring>{Text(x), Text(y)}, 1);
  }
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    const double x = list.Value(row, 0);
    for (std::size_t r = 0; r < 3; ++r) {
      const auto power = static_cast<double>(r);
      for (std::size_t c = 0; c < 3; ++c) {
        equations.matrix[r][c] += LibraryPower(x, power + static_cast<double>(c));
      }
      equations.right[r] += list.Value(row, 1) * LibraryPower(x, power);
    }
  }
  Regression regression(list);
  regression.ChooseModel(RegressionModel::Quadratic);
  const auto expected = Solve(equations, 3);
  EXPECT_EQ(regression.Fitted().c, expected[0]);
  EXPECT_EQ(regression.Fitted().b, expected[1]);
  EXPECT_EQ(regression.Fitted().a, expected[2]);
}

TEST(Regression, AModelThatIsNotFittedSoHasNoNumbers) {
  const DataList list = ListOf({{"1", "2", "1"}, {"2", "4", "1"}});
  for (const int model : {0, 1, 7}) {
    const auto [a, b, c] =
        FitCurve(list, static_cast<RegressionModel>(model), 2, Unwatched).value();
    EXPECT_TRUE(std::isnan(a) && std::isnan(b) && std::isnan(c)) << model;
  }
}

TEST(Regression, InverseIsTakenBackFromTheLogarithms) {
  const DataList list = ListOf({{"1", "2.718281828459045", "1"}, {"2", "7.389056098930650", "1"}});
  Regression regression(list);
  regression.ChooseModel(RegressionModel::Inverse);
  const double b = std::exp(-1.0 / std::log(2.0));
  EXPECT_NEAR(regression.Fitted().b, b, 1e-12);
  EXPECT_NEAR(regression.Fitted().b, 0.236290, 1e-6);
  EXPECT_NEAR(regression.Fitted().a, kE - b, 1e-12);
  EXPECT_NEAR(regression.Fitted().a, 2.481991, 1e-6);
}

TEST(Regression, PredictionsInvertEachOther) {
  const DataList list =
      ListOf({{"1", "3", "1"}, {"2", "5.5", "1"}, {"4", "11", "1"}, {"5", "16", "1"}});
  for (const RegressionCurve& name : kRegressionModels) {
    if (name.model == RegressionModel::Quadratic) continue;
    Regression regression(list);
    regression.ChooseModel(name.model);
    EXPECT_NEAR(regression.PredictX(regression.PredictY(3.0)), 3.0, 1e-9)
        << static_cast<int>(name.model);
  }
}

TEST(Regression, ExactCurvesAreFound) {
  DataList power(kTwoVarColumns);
  DataList logarithmic(kTwoVarColumns);
  DataList exponential(kTwoVarColumns);
  for (const double x : {0.5, 1.0, 2.0, 3.0, 7.0}) {
    const auto add = [x](DataList& list, double y) {
      list.Add(std::vector<std::wstring>{Text(x), Text(y)}, 1);
    };
    add(power, 1.5 * std::pow(x, 2.0));
    add(logarithmic, 2.0 * std::log(x) - 1.0);
    add(exponential, 0.5 * std::exp(0.25 * x));
  }
  const auto fit = [](const DataList& list, RegressionModel model) {
    Regression regression(list);
    regression.ChooseModel(model);
    return regression.Fitted();
  };
  EXPECT_NEAR(fit(power, RegressionModel::Power).a, 1.5, 1e-9);
  EXPECT_NEAR(fit(power, RegressionModel::Power).b, 2.0, 1e-9);
  EXPECT_NEAR(fit(logarithmic, RegressionModel::Logarithmic).a, 2.0, 1e-9);
  EXPECT_NEAR(fit(logarithmic, RegressionModel::Logarithmic).b, -1.0, 1e-9);
  EXPECT_NEAR(fit(exponential, RegressionModel::Exponential).a, 0.5, 1e-9);
  EXPECT_NEAR(fit(exponential, RegressionModel::Exponential).b, 0.25, 1e-9);
}

TEST(Regression, LogarithmsOutsideTheirDomainLeaveNoNumbers) {
  for (const char* x : {"0", "-1"}) {
    const DataList list = ListOf({{x, "2", "1"}, {"2", "3", "1"}, {"3", "4", "1"}});
    Regression regression(list);
    regression.ChooseModel(RegressionModel::Power);
    EXPECT_FALSE(std::isfinite(regression.Fitted().a)) << x;
    EXPECT_FALSE(std::isfinite(regression.Fitted().b)) << x;
  }
}

TEST(Regression, CountsWeighTheRightHandSideDifferently) {
  const DataList list = ListOf({{"1", "1", "1"}, {"2", "4", "2"}, {"3", "9", "1"}});
  Regression regression(list);
  regression.ChooseModel(RegressionModel::Quadratic);
  // By hand: the basis of the second row is 2 on the left and 2*2 = 4 on the right.
  NormalEquations equations;
  const double moments[] = {4, 8, 18, 44, 114};
  for (std::size_t r = 0; r < 3; ++r) {
    for (std::size_t c = 0; c < 3; ++c) equations.matrix[r][c] = moments[r + c];
  }
  equations.right = {1 + 8 + 9, 1 + 8 * 4 + 27, 1 + 8 * 16 + 81};
  const auto expected = Solve(equations, 3);
  EXPECT_EQ(regression.Fitted().c, expected[0]);
  EXPECT_EQ(regression.Fitted().b, expected[1]);
  EXPECT_EQ(regression.Fitted().a, expected[2]);
}

TEST(Regression, CoefficientsByIndex) {
  const DataList list = ListOf({{"1", "3", "1"}, {"2", "5", "1"}, {"4", "11", "1"}});
  Regression regression(list);
  regression.ChooseModel(RegressionModel::Power);
  const double a = regression.FitCoefficients(RegressionModel::Power, 2, 0);
  const double b = regression.FitCoefficients(RegressionModel::Power, 2, 1);
  EXPECT_EQ(a, regression.Fitted().a);
  EXPECT_EQ(b, regression.Fitted().b);
  EXPECT_EQ(regression.FitCoefficients(RegressionModel::Power, 2, 7), b);

  regression.ChooseModel(RegressionModel::Quadratic);
  EXPECT_EQ(regression.FitCoefficients(RegressionModel::Quadratic, 3, 0), regression.Fitted().c);
  EXPECT_EQ(regression.FitCoefficients(RegressionModel::Quadratic, 3, 1), regression.Fitted().b);
  EXPECT_EQ(regression.FitCoefficients(RegressionModel::Quadratic, 3, 2), regression.Fitted().a);
}

TEST(Regression, FitsOnceUntilTheRowsOrTheModelChange) {
  DataList list = ListOf({{"1", "2", "1"}, {"2", "4", "1"}});
  Regression regression(list);
  EXPECT_EQ(regression.Fitted().a, 2.0);
  list.Load(test::DataOf(3, {{"1", "3", "1"}, {"2", "6", "1"}}));
  EXPECT_EQ(regression.Fitted().a, 2.0) << "nobody has said that the rows changed";
  regression.Invalidate();
  EXPECT_EQ(regression.Fitted().a, 3.0);
  list.Load(test::DataOf(3, {{"1", "4", "1"}, {"2", "8", "1"}}));
  regression.ChooseModel(RegressionModel::Linear);
  EXPECT_EQ(regression.Fitted().a, 4.0) << "the same model chosen again fits again";
}

TEST(Regression, CodesOutsideTheEnumKeepWhatIsThere) {
  const DataList list = ListOf({{"1", "2", "1"}, {"2", "4", "1"}});
  Regression regression(list);
  EXPECT_EQ(regression.Fitted().a, 2.0);
  regression.ChooseModel(static_cast<RegressionModel>(7));
  EXPECT_EQ(regression.Fitted().a, 2.0);
  EXPECT_FALSE(IsRegressionModel(static_cast<RegressionModel>(0)));
  EXPECT_FALSE(IsRegressionModel(static_cast<RegressionModel>(7)));
}

TEST(NormalEquations, SolvesWithoutPivoting) {
  NormalEquations equations;
  equations.matrix = {{{2, 1, 0}, {1, 3, 1}, {0, 1, 4}}};
  equations.right = {4, 10, 14};
  const auto solution = Solve(equations, 3);
  EXPECT_NEAR(solution[0], 1.0, 1e-14);
  EXPECT_NEAR(solution[1], 2.0, 1e-14);
  EXPECT_NEAR(solution[2], 3.0, 1e-14);

  equations.matrix = {{{0, 1, 0}, {1, 0, 0}, {0, 0, 1}}};
  EXPECT_FALSE(std::isfinite(Solve(equations, 2)[0])) << "a pivot of zero";
}

}  // namespace
}  // namespace vexa
