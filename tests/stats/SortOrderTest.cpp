// The order of a sort: right for every kind of data, watched, and never deep.

#include "stats/SortOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

namespace vexa {
namespace {

using Order = std::vector<std::size_t>;

Order Sorted(const std::vector<double>& values,
             SortDirection direction = SortDirection::Ascending) {
  const auto order = SortOrder(values, direction, Unwatched);
  return order.value_or(Order{});
}

/// Every index once, and the values in order.
void ExpectSorted(const std::vector<double>& values, SortDirection direction) {
  const Order order = Sorted(values, direction);
  Order indices = order;
  std::ranges::sort(indices);
  ASSERT_EQ(indices.size(), values.size());
  for (std::size_t i = 0; i < indices.size(); ++i) ASSERT_EQ(indices[i], i);
  for (std::size_t i = 1; i < order.size(); ++i) {
    const double before = values[order[i - 1]];
    const double after = values[order[i]];
    ASSERT_TRUE(direction == SortDirection::Ascending ? before <= after : before >= after) << i;
  }
}

TEST(SortOrder, SortsBothWays) {
  EXPECT_EQ(Sorted({3.0, 1.0, 2.0}), (Order{1, 2, 0}));
  EXPECT_EQ(Sorted({3.0, 1.0, 2.0}, SortDirection::Descending), (Order{0, 2, 1}));
  EXPECT_EQ(Sorted({}), Order{});
  EXPECT_EQ(Sorted({5.0}), Order{0});
}

TEST(SortOrder, EqualValuesAreNotExchanged) {
  EXPECT_EQ(Sorted({1.0, 1.0, 1.0, 1.0}), (Order{0, 1, 2, 3}));
  EXPECT_EQ(Sorted({0.0, -0.0}), (Order{0, 1}));
}

TEST(SortOrder, ExchangesDecideWhereEqualValuesGo) {
  // The pivot is the second 2: the first 2 and the last 1 change places, then the two in between.
  EXPECT_EQ(Sorted({2.0, 2.0, 1.0, 1.0}), (Order{3, 2, 1, 0}));
}

TEST(SortOrder, SortsEveryKindOfData) {
  std::mt19937 random(7);
  for (const int count : {2, 3, 10, 1000, 20000}) {
    for (const int different : {1, 2, 10, 1000000}) {
      std::vector<double> values;
      for (int n = 0; n < count; ++n) values.push_back(static_cast<double>(random() % different));
      ExpectSorted(values, SortDirection::Ascending);
      ExpectSorted(values, SortDirection::Descending);
      std::ranges::sort(values);
      ExpectSorted(values, SortDirection::Ascending);
      ExpectSorted(values, SortDirection::Descending);
    }
  }
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  ExpectSorted({kInfinity, -kInfinity, 0.0, 1e308, kInfinity, -1e-308}, SortDirection::Ascending);
}

TEST(SortOrder, NoNumbersEndTheSortToo) {
  const double noNumber = std::numeric_limits<double>::quiet_NaN();
  const Order order = Sorted({3.0, noNumber, 1.0, noNumber, 2.0, noNumber});
  Order indices = order;
  std::ranges::sort(indices);
  EXPECT_EQ(indices, (Order{0, 1, 2, 3, 4, 5}));
}

/// Data for which every middle value is the largest that is left: each partition takes two off.
std::vector<double> HostileValues(std::size_t count) {
  std::vector<double> values(count, 0.0);
  std::vector<std::size_t> places(count);
  for (std::size_t i = 0; i < count; ++i) places[i] = i;
  for (std::size_t left = count; left > 1; --left) {
    const std::size_t middle = (left - 1) / 2;
    values[places[middle]] = static_cast<double>(left);
    std::swap(places[middle], places[left - 1]);
  }
  return values;
}

TEST(SortOrder, HostileDataIsSortedWithoutDepth) {
  // So many calls inside each other would not fit on the stack of a checked build.
  ExpectSorted(HostileValues(30000), SortDirection::Ascending);
}

TEST(SortOrder, TellsHowFarItIsAndStops) {
  std::mt19937 random(3);
  std::vector<double> values(300000);
  for (double& value : values) value = static_cast<double>(random());
  std::vector<double> shares;
  const auto all = SortOrder(values, SortDirection::Ascending, [&](double share) {
    shares.push_back(share);
    return true;
  });
  EXPECT_TRUE(all);
  EXPECT_GT(shares.size(), 10u);
  EXPECT_TRUE(std::ranges::is_sorted(shares));
  EXPECT_GE(shares.front(), 0.0);
  EXPECT_GT(shares.back(), 0.9);
  EXPECT_LE(shares.back(), 1.0);

  int reports = 0;
  EXPECT_FALSE(SortOrder(values, SortDirection::Ascending, [&](double) { return ++reports < 3; }));
  EXPECT_EQ(reports, 3);
}

}  // namespace
}  // namespace vexa
