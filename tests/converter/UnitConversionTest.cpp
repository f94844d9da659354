// The conversion rules, bit for bit, and the names of whole conversions.

#include "converter/UnitConversion.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>

#include "converter/UnitTables.h"
#include "converter/UserConversions.h"
#include "display/FormatResult.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::HexDouble;
using test::Integer;
using test::Narrow;
using test::ReadTable;
using test::UlpDistance;
using test::Wide;

double FactorOf(int code, const std::string& position) {
  return CategoryOf(code).units[static_cast<std::size_t>(Integer(position))].factor;
}

TEST(UnitConversion, Vectors) {
  std::map<std::string, int> rowsOfKind;
  for (const auto& row : ReadTable("units.tsv")) {
    ASSERT_EQ(row.size(), 9u);
    ++rowsOfKind[row[0]];
    const int code = Integer(row[1]);
    const double value = HexDouble(row[6]);
    double result = 0.0;
    if (row[0] == "factor") {
      result = ConvertByFactors(value, FactorOf(code, row[2]), FactorOf(code, row[3]));
    } else if (row[0] == "temperature") {
      result = ConvertTemperature(value, Integer(row[2]));
      const auto name = CategoryOf(code).units[static_cast<std::size_t>(Integer(row[2]))].name;
      EXPECT_EQ(Narrow(SplitConversionName(name).input), row[4]);
      EXPECT_EQ(Narrow(SplitConversionName(name).output), row[5]);
    } else {
      result = ConvertByRate(value, ReadRate(Wide(row[5])));
    }
    EXPECT_EQ(UlpDistance(result, HexDouble(row[7])), 0u)
        << row[4] << " to " << row[5] << " of " << row[6];
    std::wstring lastError;
    EXPECT_EQ(Narrow(ReducedFormatResult(result, 12, lastError)), row[8]);
  }
  EXPECT_EQ(rowsOfKind,
            (std::map<std::string, int>{{"factor", 3652}, {"temperature", 174}, {"user", 30}}));
}

TEST(UnitConversion, DividesBeforeItMultiplies) {
  EXPECT_EQ(ConvertByFactors(1500, 1.0, 1000.0), 1.5);
  EXPECT_EQ(ConvertByFactors(1.5, 1000.0, 1.0), 1500.0);
  EXPECT_EQ(ConvertByFactors(8, 0.125, 1.0), 1.0);
  EXPECT_EQ(ConvertByFactors(128, 1.0, 128.0), 1.0);
  // Picometers to picometers: the division alone leaves the range.
  EXPECT_EQ(ConvertByFactors(1e300, 1e-12, 1e-12), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ConvertByFactors(1e-320, 1e30, 1e30), 0.0);
  // A unit to itself need not give the same value.
  EXPECT_EQ(ConvertByFactors(29, 0.106, 0.106), 29.000000000000004);
}

TEST(UnitConversion, Temperatures) {
  const struct {
    int code;
    double value;
    double result;
  } cases[] = {
      {0, 100, 212},
      {0, -40, -40},
      {0, 25, 77},
      {1, 0, 273.15},
      {2, -40, -40},
      {2, 212, ((212.0 + 40) * 0.5555555555555556) - 40},
      {3, 32, (((32.0 + 40) * 0.5555555555555556) - 40) + 273.15},
      {4, 0, -273.15},
      {5, 0, (((0 - 273.15) + 40) * 1.8) - 40},
  };
  for (const auto& c : cases) EXPECT_EQ(ConvertTemperature(c.value, c.code), c.result) << c.code;
  EXPECT_NEAR(ConvertTemperature(32, 3), 273.15, 1e-12);
}

TEST(UnitConversion, AnyOtherTemperatureCodeActsAsTheLast) {
  for (const int code :
       {6, 59, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(ConvertTemperature(300, code), ConvertTemperature(300, 5)) << code;
  }
  EXPECT_NE(ConvertTemperature(300, 5), ConvertTemperature(300, 4));
}

TEST(ConversionName, SplitsAtTheFirstArrow) {
  const struct {
    std::wstring_view name;
    std::wstring_view input;
    std::wstring_view output;
  } cases[] = {
      {L"Celsius -> Fahrenheit", L"Celsius", L"Fahrenheit"},
      {L"Inch -> Centimeter", L"Inch", L"Centimeter"},
      {L"a - b -> >c", L"a - b", L">c"},
      {L"a -> b -> c", L"a", L"b -> c"},
      // What only a damaged store holds.
      {L"", L"", L""},
      {L"Inch", L"Inch", L""},
      {L"->", L"", L""},
      {L"->b", L"", L""},
      {L"-> b", L"", L"b"},
      {L" -> ", L"", L""},
      {L"ab->", L"a", L""},
      {L"ab->cd", L"a", L"d"},
  };
  for (const auto& c : cases) {
    const ConversionUnits units = SplitConversionName(c.name);
    EXPECT_EQ(units.input, c.input) << Narrow(c.name);
    EXPECT_EQ(units.output, c.output) << Narrow(c.name);
  }
}

TEST(ConversionName, JoinsWhatItSplits) {
  EXPECT_EQ(ConversionName(L"Inch", L"Centimeter"), L"Inch -> Centimeter");
  for (const auto first : {L"a", L"a-", L"a -", L"> a"}) {
    const std::wstring name = ConversionName(first, L">b");
    EXPECT_EQ(SplitConversionName(name).input, first);
    EXPECT_EQ(SplitConversionName(name).output, L">b");
  }
}

}  // namespace
}  // namespace vexa
