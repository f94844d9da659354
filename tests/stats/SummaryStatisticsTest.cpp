// Sums, means and standard deviations of small lists.

#include "stats/SummaryStatistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "stats/Lists.h"

namespace vexa {
namespace {

using test::ListOf;
using test::Rows;

TEST(SummaryStatistics, WeighsRowsByTheirCounts) {
  const DataList list = ListOf({{"2", "3"}, {"4", "1"}});
  EXPECT_EQ(Sum(list, 0), 10.0);
  EXPECT_EQ(SumOfSquares(list, 0), 28.0);
  EXPECT_EQ(Mean(list, 0), 2.5);
  EXPECT_EQ(PopulationDeviation(list, 0), std::pow((28.0 - 4 * 2.5 * 2.5) / 4, 0.5));
  EXPECT_NEAR(PopulationDeviation(list, 0), 0.866025, 1e-6);
  EXPECT_EQ(SampleDeviation(list, 0), 1.0);
}

TEST(SummaryStatistics, CountOfZeroAddsNothing) {
  const DataList list = ListOf({{"2", "3"}, {"1e300", "0"}, {"4", "1"}});
  EXPECT_EQ(list.RowCount(), 3u);
  EXPECT_EQ(list.Total(), 4);
  EXPECT_EQ(Sum(list, 0), 10.0);
  EXPECT_EQ(Mean(list, 0), 2.5);
}

TEST(SummaryStatistics, TextThatIsNoNumberCountsAsZero) {
  const DataList list = ListOf({{"abc", "3"}, {"4", "1"}});
  EXPECT_EQ(Sum(list, 0), 4.0);
  EXPECT_EQ(SumOfSquares(list, 0), 16.0);
  EXPECT_EQ(Mean(list, 0), 1.0) << "its count still adds to n";
}

TEST(SummaryStatistics, NegativeCounts) {
  const DataList list = ListOf({{"2", "-1"}, {"4", "3"}});
  EXPECT_EQ(Sum(list, 0), 10.0);
  EXPECT_EQ(SumOfSquares(list, 0), 44.0);
  EXPECT_EQ(Mean(list, 0), 5.0);
}

TEST(SummaryStatistics, LargestCount) {
  const DataList list = ListOf({{"0.5", "2147483647"}, {"1", "0"}});
  EXPECT_EQ(Sum(list, 0), 1073741823.5);
  EXPECT_EQ(Mean(list, 0), 0.5);
  EXPECT_EQ(PopulationDeviation(list, 0), 0.0);
}

TEST(SummaryStatistics, CountsWhoseSumIsOneHaveNoSampleDeviation) {
  const DataList list = ListOf({{"2", "1"}, {"9", "0"}});
  EXPECT_FALSE(std::isfinite(SampleDeviation(list, 0)));
  EXPECT_EQ(PopulationDeviation(list, 0), 0.0);
}

TEST(SummaryStatistics, EmptyListDividesByZero) {
  const DataList list(kOneVarColumns);
  EXPECT_EQ(Sum(list, 0), 0.0);
  EXPECT_TRUE(std::isnan(Mean(list, 0)));
  EXPECT_TRUE(std::isnan(PopulationDeviation(list, 0)));
}

TEST(SummaryStatistics, RoundingBelowZeroIsNoNumber) {
  const DataList list = ListOf({{"96904065.1", "5"}, {"96904065.1", "2"}});
  const ColumnSums& sums = list.Sums().x;
  const double n = list.Total();
  const double mean = sums.values / n;
  ASSERT_LT(sums.squares - (n * mean) * mean, 0.0);
  EXPECT_TRUE(std::isnan(SampleDeviation(list, 0)));
  EXPECT_TRUE(std::isnan(PopulationDeviation(list, 0)));
}

TEST(SummaryStatistics, DeviationsThatLostTheirDigits) {
  const struct {
    Rows rows;
    bool lost;
  } cases[] = {
      {Rows(7, {"9.81", "1"}), true},   // below 0: no number
      {Rows(3, {"5.1", "1"}), true},    // 0.000000084294
      {Rows(3, {"5.25", "1"}), false},  // 0, exactly
      {Rows(3, {"0", "1"}), false},
      {{{"1", "1"}, {"2", "1"}, {"4", "1"}}, false},
      {{{"1000000.1", "1"}, {"1000000.3", "1"}, {"1000000.2", "1"}}, true},
      {{{"1000.1", "1"}, {"1000.3", "1"}, {"1000.2", "1"}}, false},
      {{{"100000000000", "1"}, {"100000000001", "1"}}, true},  // 0, though they differ
      {{{"5.25", "2"}, {"7", "0"}}, false},
      {{{"1e200", "1"}, {"2e200", "1"}}, false},  // an overflow
      {{{"2", "1"}, {"9", "-1"}}, false},         // the division by a total of 0
      {{{"2", "3"}, {"9", "-1"}}, false},         // below 0, and rightly so
      {{}, false},
  };
  for (const auto& [rows, lost] : cases) {
    EXPECT_EQ(DeviationLosesDigits(ListOf(rows), 0), lost) << testing::PrintToString(rows);
  }
  const DataList pairs = ListOf({{"5.1", "1", "1"}, {"5.1", "2", "1"}, {"5.1", "4", "1"}});
  EXPECT_TRUE(DeviationLosesDigits(pairs, 0));
  EXPECT_FALSE(DeviationLosesDigits(pairs, 1));
}

TEST(SummaryStatistics, DeviationsArePowersAndNoRoots) {
  // Of 2921 the power and the square root differ in the last bit.
  volatile double half = 0.5;
  const double power = std::pow(2921.0, half);
  ASSERT_NE(power, std::sqrt(2921.0));
  EXPECT_EQ(PopulationDeviation(ListOf({{"2921", "1"}, {"-2921", "1"}, {"0", "5840"}}), 0), power);
  EXPECT_EQ(SampleDeviation(ListOf({{"2921", "1"}, {"-2921", "1"}, {"0", "5841"}}), 0), power);
}

TEST(SummaryStatistics, NIsTheTotalThatWraps) {
  const DataList list = ListOf({{"1", "2147483647"}, {"1", "1"}});
  ASSERT_EQ(list.Total(), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(Mean(list, 0), -1.0);
  EXPECT_TRUE(std::isnan(PopulationDeviation(list, 0)));
}

TEST(SummaryStatistics, TwoVariables) {
  const DataList list = ListOf({{"1", "10", "2"}, {"3", "-1", "1"}});
  EXPECT_EQ(Sum(list, 0), 5.0);
  EXPECT_EQ(Sum(list, 1), 19.0);
  EXPECT_EQ(SumOfSquares(list, 1), 201.0);
  EXPECT_EQ(SumOfProducts(list), 17.0);
  const ListSums& sums = list.Sums();
  EXPECT_EQ(sums.x.values, 5.0);
  EXPECT_EQ(sums.y.squares, 201.0);
  EXPECT_EQ(sums.products, 17.0);
}

TEST(SummaryStatistics, SumsRunFromTheFirstRowToTheLast) {
  // The other way round the small values would be kept.
  const DataList list = ListOf({{"1e16", "1"}, {"1", "1"}, {"1", "1"}});
  EXPECT_EQ(Sum(list, 0), (1e16 + 1.0) + 1.0);
  EXPECT_NE(Sum(list, 0), (1.0 + 1.0) + 1e16);
}

}  // namespace
}  // namespace vexa
