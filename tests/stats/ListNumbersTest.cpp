// The numbers of a list: read once, kept until the rows change, whichever way they are asked for.

#include "stats/ListNumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <thread>

#include "stats/CellValue.h"
#include "stats/Lists.h"

namespace vexa {
namespace {

using test::DataOf;
using test::ListOf;
using test::Rows;

/// More rows than a piece has, of one or two variables.
Rows ManyRows(std::size_t columns) {
  std::mt19937 random(5);
  Rows rows(2 * kPieceRows + 100);
  for (auto& row : rows) {
    for (std::size_t column = 0; column + 1 < columns; ++column) {
      row.push_back(std::to_string(random() % 100000) + "." + std::to_string(random() % 1000));
    }
    row.push_back(std::to_string(random() % 3));
  }
  return rows;
}

/// The sums by the plain loop over the texts.
void ExpectSumsOf(const DataList& list) {
  ListSums expected;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    const double count = list.Count(row);
    const double x = list.Value(row, 0);
    expected.x.values += count * x;
    expected.x.squares += (x * x) * count;
    if (list.CountColumn() == 1) continue;
    const double y = list.Value(row, 1);
    expected.y.values += count * y;
    expected.y.squares += (y * y) * count;
    expected.products += (count * x) * y;
  }
  EXPECT_EQ(list.Sums().x.values, expected.x.values);
  EXPECT_EQ(list.Sums().x.squares, expected.x.squares);
  EXPECT_EQ(list.Sums().y.values, expected.y.values);
  EXPECT_EQ(list.Sums().y.squares, expected.y.squares);
  EXPECT_EQ(list.Sums().products, expected.products);
}

/// What is visited, row by row, is what the texts say.
void ExpectVisitsOf(const DataList& list) {
  std::size_t row = 0;
  const auto expectPiece = [&](const NumberPiece& piece) {
    ASSERT_EQ(piece.counts.size(), piece.x.size());
    ASSERT_EQ(piece.y.size(), list.CountColumn() == 1 ? 0 : piece.x.size());
    for (std::size_t i = 0; i < piece.x.size(); ++i, ++row) {
      ASSERT_EQ(piece.x[i], list.Value(row, 0));
      ASSERT_EQ(piece.y.empty() ? 0.0 : piece.y[i], piece.y.empty() ? 0.0 : list.Value(row, 1));
      ASSERT_EQ(piece.counts[i], list.Count(row));
    }
  };
  EXPECT_TRUE(list.VisitNumbers(expectPiece, Unwatched));
  EXPECT_EQ(row, list.RowCount());
}

TEST(ListNumbers, AreThoseOfTheTextsBeforeAndAfterTheyAreKept) {
  for (const std::size_t columns : {2, 3}) {
    DataList list = ListOf(ManyRows(columns));
    ExpectVisitsOf(list);
    ExpectVisitsOf(list);
    ExpectSumsOf(list);
    ExpectVisitsOf(list);
  }
}

TEST(ListNumbers, FollowEveryChangeOfTheRows) {
  DataList list = ListOf({{"3", "1"}, {"1", "1"}, {"2", "1"}});
  const auto expect = [&list](const char* change) {
    SCOPED_TRACE(change);
    ExpectSumsOf(list);
    ExpectVisitsOf(list);
  };
  expect("at first");
  list.Add(std::vector<std::wstring>{L"7.5"}, 2);
  expect("Add");
  list.Edit(1);
  list.Ok(std::vector<std::wstring>{L"-4"}, 3);
  expect("Ok with another count");
  list.Edit(1);
  list.Ok(std::vector<std::wstring>{L"-5"}, 3);
  expect("Ok with the same count");
  list.Sort(0);
  expect("Sort");
  list.Sort(1);
  expect("Sort by the counts");
  list.Delete(1);
  expect("Delete");
  list.Load(DataOf(2, {{"8", "1"}, {"9", "4"}}));
  expect("Load");
  list.Clear();
  expect("Clear");
}

TEST(ListNumbers, AddUpInTheNewOrderAfterASort) {
  DataList list = ListOf({{"1e16", "1"}, {"1", "1"}, {"1", "1"}});
  EXPECT_EQ(list.Sums().x.values, (1e16 + 1.0) + 1.0);
  list.Sort(0);
  EXPECT_EQ(list.Sums().x.values, (1.0 + 1.0) + 1e16);
}

TEST(ListNumbers, SortingKeepsThemWithTheirRows) {
  DataList list = ListOf(ManyRows(3));
  ExpectSumsOf(list);
  for (const std::size_t column : {1, 2, 0}) {
    ASSERT_TRUE(list.Sort(column));
    ExpectVisitsOf(list);
    ExpectSumsOf(list);
  }
}

TEST(ListNumbers, TellWhetherSomeCountIsNotOne) {
  EXPECT_FALSE(ListOf({{"3", "1"}, {"1", "1"}}).Sums().weighted);
  EXPECT_TRUE(ListOf({{"3", "1"}, {"1", "2"}}).Sums().weighted);
  EXPECT_TRUE(ListOf({{"3", "0"}, {"1", "1"}}).Sums().weighted);
  EXPECT_FALSE(DataList(kOneVarColumns).Sums().weighted);
}

TEST(ListNumbers, StoppedAtAnyReportLeaveNothingBehind) {
  const Rows rows = ManyRows(3);
  int reports = 0;
  EXPECT_TRUE(ListOf(rows).AddUp([&](double) { return ++reports > 0; }));
  EXPECT_EQ(reports, 3);
  for (int stopAt = 1; stopAt <= reports; ++stopAt) {
    const DataList list = ListOf(rows);
    int heard = 0;
    EXPECT_FALSE(list.AddUp([&](double) { return ++heard < stopAt; }));
    EXPECT_EQ(heard, stopAt);
    ExpectSumsOf(list);
  }
}

TEST(ListNumbers, TellHowFarTheyAre) {
  const DataList list = ListOf(ManyRows(2));
  std::vector<double> shares;
  EXPECT_TRUE(list.AddUp([&](double share) {
    shares.push_back(share);
    return true;
  }));
  EXPECT_TRUE(std::ranges::is_sorted(shares));
  EXPECT_GT(shares.front(), 0.0);
  EXPECT_EQ(shares.back(), 1.0);
}

TEST(ListNumbers, AreReadOnAnotherThreadWhileTheRowsAreShown) {
  const DataList list = ListOf(ManyRows(3));
  bool done = false;
  std::thread reader([&] { done = list.AddUp(Unwatched); });
  std::size_t characters = 0;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    characters += list.Cell(row, 1).size();
    characters += static_cast<std::size_t>(list.Count(row) + list.Total());
  }
  reader.join();
  EXPECT_TRUE(done);
  EXPECT_GT(characters, 0u);
  ExpectSumsOf(list);
}

}  // namespace
}  // namespace vexa
