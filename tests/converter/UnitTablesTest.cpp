// The unit tables: names, order and factors against the expected results, and their bounds.

#include "converter/UnitTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "converter/UnitConversion.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::HexDouble;
using test::Integer;
using test::Narrow;
using test::ReadTable;

const struct {
  std::wstring_view name;
  CategoryKind kind;
  std::size_t units;
  std::wstring_view referenceUnit;
} kExpected[] = {
    {L"01. Area", CategoryKind::Factors, 15, L"Square Meters"},
    {L"02. Bit and Bytes", CategoryKind::Factors, 14, L"Bytes"},
    {L"03. Density", CategoryKind::Factors, 21, L"Grams/Cubic Centimeters"},
    {L"04. Energy (Work)", CategoryKind::Factors, 18, L"Joules"},
    {L"05. Flow Rate (By Volume)", CategoryKind::Factors, 23, L"Cubic Metres/Second"},
    {L"06. Force", CategoryKind::Factors, 11, L"Newtons"},
    {L"07. Length", CategoryKind::Factors, 24, L"Meters"},
    {L"08. Mass and Weight", CategoryKind::Factors, 14, L"Kilograms"},
    {L"09. Power", CategoryKind::Factors, 18, L"Watts"},
    {L"10. Pressure and Stress", CategoryKind::Factors, 26, L"Pascals"},
    {L"11. Speed", CategoryKind::Factors, 19, L"Meters/Second"},
    {L"12. Temperature", CategoryKind::Temperature, 6, L""},
    {L"13. Torque", CategoryKind::Factors, 12, L"Newton Metres"},
    {L"14. Volume", CategoryKind::Factors, 20, L"Liters"},
    {L"15. User Define", CategoryKind::UserDefined, 0, L""},
};

TEST(UnitTables, Categories) {
  ASSERT_EQ(std::size(kExpected), std::size_t{kCategoryCount});
  std::size_t factorUnits = 0;
  for (int code = 0; code < kCategoryCount; ++code) {
    const auto& expected = kExpected[code];
    const UnitCategory& category = CategoryOf(code);
    EXPECT_EQ(category.name, expected.name);
    EXPECT_EQ(category.kind, expected.kind) << Narrow(expected.name);
    EXPECT_EQ(category.units.size(), expected.units) << Narrow(expected.name);
    if (category.kind == CategoryKind::Factors) factorUnits += category.units.size();
  }
  EXPECT_EQ(factorUnits, 235u);
}

TEST(UnitTables, FitTheCapacityOfSixty) {
  EXPECT_EQ(kMaxUnits, 60);
  for (const UnitCategory& category : kUnitCategories) {
    EXPECT_LE(category.units.size(), std::size_t{kMaxUnits}) << Narrow(category.name);
  }
}

TEST(UnitTables, NamesAreUniqueAndFactorsPositive) {
  for (const UnitCategory& category : kUnitCategories) {
    std::set<std::wstring_view> names;
    for (const UnitEntry& unit : category.units) {
      EXPECT_TRUE(names.insert(unit.name).second) << Narrow(unit.name);
      EXPECT_FALSE(unit.name.empty());
      EXPECT_GT(unit.factor, 0.0) << Narrow(unit.name);
    }
  }
}

TEST(UnitTables, ReferenceUnitsHaveFactorOne) {
  for (int code = 0; code < kCategoryCount; ++code) {
    if (CategoryOf(code).kind != CategoryKind::Factors) continue;
    const auto units = CategoryOf(code).units;
    const auto reference =
        std::ranges::find(units, kExpected[code].referenceUnit, &UnitEntry::name);
    ASSERT_NE(reference, units.end()) << Narrow(kExpected[code].referenceUnit);
    EXPECT_EQ(reference->factor, 1.0) << Narrow(kExpected[code].referenceUnit);
  }
}

TEST(UnitTables, TemperatureEntriesHaveFactorOne) {
  for (const UnitEntry& conversion : CategoryOf(11).units) EXPECT_EQ(conversion.factor, 1.0);
}

/// Every unit stands at its position in the vectors, and turning one of it into the reference unit
/// gives its factor, bit for bit: (1 / 1) * factor.
TEST(UnitTables, EveryUnitStandsInTheVectors) {
  std::set<std::pair<int, int>> named;
  std::set<std::pair<int, int>> factorSeen;
  for (const auto& row : ReadTable("units.tsv")) {
    if (row[0] != "factor") continue;
    const int code = Integer(row[1]);
    const int in = Integer(row[2]);
    const int out = Integer(row[3]);
    const auto units = CategoryOf(code).units;
    ASSERT_LT(static_cast<std::size_t>(std::max(in, out)), units.size());
    const UnitEntry& input = units[static_cast<std::size_t>(in)];
    const UnitEntry& output = units[static_cast<std::size_t>(out)];
    EXPECT_EQ(Narrow(input.name), row[4]);
    EXPECT_EQ(Narrow(output.name), row[5]);
    named.insert({code, in});
    if (output.name == kExpected[code].referenceUnit && HexDouble(row[6]) == 1.0) {
      EXPECT_EQ(input.factor, HexDouble(row[7])) << row[4];
      factorSeen.insert({code, in});
    }
  }
  EXPECT_EQ(named.size(), 235u);
  EXPECT_EQ(factorSeen.size(), 235u);
}

TEST(UnitTables, SpellingsThatLookWrongStay) {
  const struct {
    int code;
    std::size_t position;
    std::wstring_view name;
    double factor;
  } cases[] = {
      {7, 3, L"Hudredweights", 45.359237},
      {2, 10, L"Ounches/Cubic Inch", 1.729994044},
      {2, 11, L"Ounches/Gallon (UK)", 0.006236023},
      {2, 12, L"Ounches/Gallon (US)", 0.007489152},
      {12, 0, L"Gramf Cm", 9.80665e-05},
      {10, 15, L"Speed Of Light", 299790000.0},
      {6, 11, L"Hands", 0.106},
      {6, 15, L"Light years", 9460500000000000.0},
      {9, 11, L"Kips/Sq Inch", 6894760.0},
      {9, 22, L"Pounds/Sq Inch", 6894.757},
      // Out of the alphabet's order.
      {7, 9, L"Solar masses", 1.989e+30},
      {7, 10, L"Slugs", 14.593903},
      {8, 9, L"Watts", 1.0},
      {8, 10, L"Joules/Hour", 0.0002777777777777778},
  };
  for (const auto& c : cases) {
    const UnitEntry& unit = CategoryOf(c.code).units[c.position];
    EXPECT_EQ(unit.name, c.name);
    EXPECT_EQ(unit.factor, c.factor) << Narrow(c.name);
  }
}

}  // namespace
}  // namespace vexa
