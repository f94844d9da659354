// Packed rows: every text comes back, whatever its length and wherever its row goes.

#include "stats/PackedRows.h"

#include <gtest/gtest.h>

#include <utility>

#include "stats/Lists.h"

namespace vexa {
namespace {

using test::Rows;
using test::RowsOf;

const std::vector<std::string> kFirst{"1", "2"};
const std::vector<std::string> kSecond{"30", "4"};

TEST(PackedRows, KeepsTextsOfEveryLength) {
  PackedRows rows(2);
  Rows expected;
  for (const std::size_t length : {0u, 1u, 126u, 127u, 128u, 129u, 16383u, 16384u, 300000u}) {
    expected.push_back({std::string(length, 'a'), std::string(length / 2, '\0')});
    rows.Append(expected.back());
  }
  EXPECT_EQ(RowsOf(rows), expected);
}

TEST(PackedRows, KeepsManyRows) {
  PackedRows rows(3);
  for (int n = 0; n < 100000; ++n) {
    rows.Append(std::vector<std::string>{std::to_string(n), std::to_string(-n), "1"});
  }
  for (std::size_t n = 0; n < 100000; n += 777) {
    EXPECT_EQ(rows.Cell(n, 0), std::to_string(n));
    EXPECT_EQ(rows.Cell(n, 2), "1");
  }
}

TEST(PackedRows, ChangesRows) {
  PackedRows rows(2);
  rows.Append(kFirst);
  rows.InsertFront(kSecond);
  EXPECT_EQ(RowsOf(rows), (Rows{kSecond, kFirst}));
  rows.Replace(1, std::vector<std::string>{"a longer text", ""});
  EXPECT_EQ(RowsOf(rows), (Rows{kSecond, {"a longer text", ""}}));
  rows.Remove(0);
  EXPECT_EQ(RowsOf(rows), (Rows{{"a longer text", ""}}));
}

TEST(PackedRows, Reorders) {
  PackedRows rows(2);
  for (const char* text : {"a", "b", "c"}) rows.Append(std::vector<std::string>{text, "1"});
  rows.Arrange(*rows.Arranged(std::vector<std::size_t>{2, 0, 1}, Unwatched));
  EXPECT_EQ(RowsOf(rows), (Rows{{"c", "1"}, {"a", "1"}, {"b", "1"}}));
}

TEST(PackedRows, StoppedReorderingLeavesTheRows) {
  PackedRows rows(2);
  for (const auto& row : {kFirst, kSecond}) rows.Append(row);
  EXPECT_FALSE(rows.Arranged(std::vector<std::size_t>{1, 0}, [](double) { return false; }));
  EXPECT_EQ(RowsOf(rows), (Rows{kFirst, kSecond}));
}

TEST(PackedRows, WhatWasMovedFromSharesNothingWithItsHeir) {
  PackedRows rows(2);
  rows.Append(kFirst);
  PackedRows heir = std::move(rows);
  // NOLINTNEXTLINE(bugprone-use-after-move): that it can be used on is promised.
  EXPECT_EQ(rows.Count(), 0u);
  rows.Append(kSecond);
  heir.Append(kFirst);
  EXPECT_EQ(RowsOf(rows), (Rows{kSecond}));
  EXPECT_EQ(RowsOf(heir), (Rows{kFirst, kFirst}));
  rows = std::move(heir);
  heir.Append(kSecond);
  rows.Append(kFirst);
  EXPECT_EQ(RowsOf(rows), (Rows{kFirst, kFirst, kFirst}));
  EXPECT_EQ(RowsOf(heir), (Rows{kSecond}));
}

TEST(PackedRows, MovesWithTheirTexts) {
  PackedRows rows(2);
  rows.Append(kFirst);
  PackedRows moved = std::move(rows);
  rows = PackedRows(2);
  rows.Append(kSecond);
  moved.Append(kSecond);
  EXPECT_EQ(RowsOf(moved), (Rows{kFirst, kSecond}));
  EXPECT_EQ(RowsOf(rows), (Rows{kSecond}));
}

}  // namespace
}  // namespace vexa
