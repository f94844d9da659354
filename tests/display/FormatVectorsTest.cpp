// The formatter on the tables of expected results.

#include <gtest/gtest.h>

#include "display/CountDecimals.h"
#include "display/FormatResult.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::HexDouble;
using test::Integer;
using test::Narrow;
using test::ReadTable;

TEST(FormatVectors, Texts) {
  const auto rows = ReadTable("format.tsv");
  ASSERT_GT(rows.size(), 2900u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 5u);
    std::wstring lastError;
    const std::wstring text =
        FormatResult(HexDouble(row[0]), static_cast<DisplayType>(Integer(row[1])), Integer(row[2]),
                     static_cast<BaseType>(Integer(row[3])), lastError);
    EXPECT_EQ(Narrow(text), row[4])
        << row[0] << " type " << row[1] << " precision " << row[2] << " base " << row[3];
    EXPECT_EQ(lastError.empty(), lastError != text);
  }
}

TEST(FormatVectors, Decimals) {
  const auto rows = ReadTable("decimals.tsv");
  ASSERT_GT(rows.size(), 900u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 2u);
    EXPECT_EQ(CountDecimals(HexDouble(row[0])), Integer(row[1])) << row[0];
  }
}

}  // namespace
}  // namespace vexa
