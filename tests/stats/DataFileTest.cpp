// Reading and writing data files: what they hold, and what malformed ones do.

#include "stats/DataFile.h"

#include <gtest/gtest.h>

#include <random>

#include "stats/Lists.h"

namespace vexa {
namespace {

using test::ReadBytes;
using test::Rows;
using test::RowsOf;

constexpr std::size_t kOneVar = 2;
constexpr std::size_t kTwoVar = 3;

TEST(AppendRow, TabsBetweenTextsAndLineEndsBehindRows) {
  const DataSet data = test::DataOf(kOneVar, {{"2.5", "3"}, {"4", "1"}});
  EXPECT_EQ(test::BytesOf(data.rows), "2.5\t3\r\n4\t1\r\n");
  const DataSet pairs = test::DataOf(kTwoVar, {{"1.23457e+013", "-2", "1"}});
  EXPECT_EQ(test::BytesOf(pairs.rows), "1.23457e+013\t-2\t1\r\n");
  EXPECT_EQ(test::BytesOf(PackedRows(kOneVar)), "");
}

TEST(AppendRow, OneOfTheRows) {
  const DataSet data = test::DataOf(kOneVar, {{"1", "1"}, {"2", "1"}, {"3", "1"}});
  std::string bytes = "0\t0\r\n";
  AppendRow(data.rows, 1, bytes);
  EXPECT_EQ(bytes, "0\t0\r\n2\t1\r\n");
}

TEST(DataFile, SaveThenLoadGivesTheSameRowsAndTotal) {
  std::mt19937 random(11);
  for (const std::size_t columns : {kOneVar, kTwoVar}) {
    Rows rows;
    for (int n = 0; n < 2000; ++n) {
      rows.emplace_back();
      for (std::size_t c = 1; c < columns; ++c) {
        rows.back().push_back(std::to_string(static_cast<int>(random()) / 7) + ".25");
      }
      rows.back().push_back(std::to_string(static_cast<int>(random() % 100) - 10));
    }
    const DataSet saved = test::DataOf(columns, rows);
    const DataSet loaded = ReadBytes(columns, test::BytesOf(saved.rows));
    EXPECT_EQ(RowsOf(loaded.rows), rows);
    EXPECT_EQ(loaded.total, saved.total);
    EXPECT_EQ(loaded.completeRows, rows.size());
  }
}

struct FileCase {
  const char* what;
  std::size_t columns;
  std::string bytes;
  Rows rows;
  std::int32_t total;
};

TEST(DataFileReader, ReadsWhateverThereIs) {
  using namespace std::string_literals;
  const FileCase cases[] = {
      {"an empty file", kOneVar, "", {}, 0},
      {"separators only", kOneVar, "\r\n\t \r\nabc,;\n", {}, 0},
      {"no final line end", kOneVar, "1\t2\r\n3", {{"1", "2"}}, 2},
      {"a value without a count", kOneVar, "5\r\n", {{"5", ""}}, 0},
      {"a value and no line end", kOneVar, "5", {}, 0},
      {"two of three texts", kTwoVar, "5\t6\r\n", {{"5", "6", ""}}, 0},
      {"one of three texts", kTwoVar, "5\t6", {{"5", "", ""}}, 0},
      {"an incomplete last row", kTwoVar, "1\t2\t3\r\n4\t5\r\n", {{"1", "2", "3"}}, 3},
      {"a large E", kOneVar, "1E5\t2\r\n", {{"1", "5"}}, 5},
      {"a small e", kOneVar, "1e5\t2\r\n", {{"1e5", "2"}}, 2},
      {"a count with decimals", kOneVar, "1\t2.9\r\n", {{"1", "2"}}, 2},
      {"a count that is no number", kOneVar, "1\t+\r\n", {{"1", "0"}}, 0},
      {"letters between digits", kOneVar, "12abc34\r\n", {{"12", "34"}}, 34},
      {"values that are no numbers", kOneVar, "+-e.\t1\r\n", {{"+-e.", "1"}}, 1},
      {"CR only", kOneVar, "1\t2\r3\t4\r", {{"1", "2"}, {"3", "4"}}, 6},
      {"LF only", kOneVar, "1\t2\n3\t4\n", {{"1", "2"}, {"3", "4"}}, 6},
      {"NUL bytes", kOneVar, "1\0\0002\0\r\0\n\0"s, {{"1", "2"}}, 2},
      {"UTF-16", kOneVar, "\xff\xfe\x31\0\t\0\x32\0\r\0\n\0"s, {{"1", "2"}}, 2},
      {"UTF-8 with a mark", kOneVar, "\xef\xbb\xbf\x31\t2\r\n", {{"1", "2"}}, 2},
      {"grouped numbers", kOneVar, "1,234\t5\r\n", {{"1", "234"}}, 234},
      {"counts of 0 and below", kOneVar, "1\t0\r\n2\t-3\r\n", {{"1", "0"}, {"2", "-3"}}, -3},
      {"the largest count", kOneVar, "1\t2147483647\r\n", {{"1", "2147483647"}}, 2147483647},
      {"a total that wraps",
       kOneVar,
       "1\t2147483647\r\n2\t1\r\n",
       {{"1", "2147483647"}, {"2", "1"}},
       -2147483648},
      {"an infinite count", kOneVar, "1\t1e999\r\n", {{"1", "0"}}, 0},
  };
  for (const FileCase& c : cases) {
    for (const std::size_t pieceSize : {std::size_t{1}, std::size_t{4096}}) {
      SCOPED_TRACE(c.what);
      const DataSet data = ReadBytes(c.columns, c.bytes, pieceSize);
      EXPECT_EQ(RowsOf(data.rows), c.rows);
      EXPECT_EQ(data.total, c.total);
    }
  }
}

TEST(DataFileReader, ReadsThirtyCharactersOfACount) {
  const std::string zeros(28, '0');
  EXPECT_EQ(ReadBytes(kOneVar, "1\t" + zeros + "12\r\n").total, 12);
  EXPECT_EQ(ReadBytes(kOneVar, "1\t" + zeros + "123\r\n").total, 12);
  EXPECT_EQ(ReadBytes(kOneVar, "1\t" + zeros + "123\r\n", 3).total, 12);
}

TEST(DataFileReader, KeepsLongTextsAsTheyAre) {
  const std::string digits(3'000'000, '7');
  const DataSet data = ReadBytes(kOneVar, digits + "\t1\r\n");
  ASSERT_EQ(data.rows.Count(), 1u);
  EXPECT_EQ(data.rows.Cell(0, 0), digits);
}

TEST(DataFileReader, AnyBytesAreReadAndSaveTheSame) {
  std::mt19937 random(5);
  for (int n = 0; n < 500; ++n) {
    std::string bytes;
    for (int i = 0; i < 200; ++i) bytes += static_cast<char>(random() % 256);
    const DataSet data = ReadBytes(kTwoVar, bytes);
    EXPECT_GE(data.rows.Count(), data.completeRows);
    EXPECT_LE(data.rows.Count(), std::max<std::size_t>(data.completeRows, 1));
    const DataSet again = ReadBytes(kTwoVar, test::BytesOf(data.rows));
    if (data.completeRows > 0) {
      EXPECT_EQ(RowsOf(again.rows), RowsOf(data.rows));
    }
    EXPECT_EQ(again.total, data.total);
  }
}

TEST(DataFileReader, StartsAfreshAfterItsEnd) {
  DataFileReader reader(kOneVar);
  reader.Feed("1\t2\r\n3\t");
  EXPECT_EQ(reader.Finish().total, 2);
  reader.Feed("7\t5\r\n");
  const DataSet data = reader.Finish();
  EXPECT_EQ(data.total, 5);
  EXPECT_EQ(data.completeRows, 1u);
}

}  // namespace
}  // namespace vexa
