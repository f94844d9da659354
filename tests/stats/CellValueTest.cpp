// Cell texts as numbers and counts.

#include "stats/CellValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vexa {
namespace {

TEST(CellValue, ReadsTheNumberAtTheFront) {
  EXPECT_EQ(CellValue("2.5"), 2.5);
  EXPECT_EQ(CellValue("1.23457e+013"), 1.23457e13);
  EXPECT_EQ(CellValue("1-2"), 1.0);
  EXPECT_EQ(CellValue("  7"), 7.0);
  EXPECT_EQ(CellValue("1e"), 1.0);
  EXPECT_EQ(CellValue("1e999"), std::numeric_limits<double>::infinity());
}

TEST(CellValue, TextThatDoesNotStartWithANumberIsZero) {
  for (const char* text : {"", "abc", "+", "-", ".", "e5", "+-3"}) {
    EXPECT_EQ(CellValue(text), 0.0) << text;
  }
}

TEST(CellValue, CharactersCountByTheirLowByte) {
  EXPECT_EQ(CellValue(L"\u0131\u4e32"), 12.0);
  EXPECT_EQ(CellValue(L"3\u01005"), 3.0) << "a zero byte ends the text";
  EXPECT_EQ(NarrowCell(L"\u20ac1"),
            "\xac"
            "1");
}

TEST(CellCount, IsTruncatedTowardZero) {
  EXPECT_EQ(CellCount("2.9"), 2);
  EXPECT_EQ(CellCount("-2.9"), -2);
  EXPECT_EQ(CellCount(""), 0);
  EXPECT_EQ(CellCount("+"), 0);
  EXPECT_EQ(CellCount("2147483647"), 2147483647);
}

TEST(CellCount, WrapsInThirtyTwoBits) {
  EXPECT_EQ(CellCount("2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(CellCount("4294967297"), 1);
  EXPECT_EQ(CellCount("1e999"), 0);
}

}  // namespace
}  // namespace vexa
