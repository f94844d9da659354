#include "display/FormatResult.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "display/NumberPatterns.h"
#include "engine/CalcEngine.h"
#include "engine/NumberText.h"
#include "engine/ToInt32.h"

namespace vexa {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const std::wstring kOverflow = L"Out of range(overflow or underflow)";

std::wstring Formatted(double value, int type, int precision, int base = 1) {
  std::wstring lastError = L"before";
  const std::wstring text = FormatResult(value, static_cast<DisplayType>(type), precision,
                                         static_cast<BaseType>(base), lastError);
  EXPECT_EQ(lastError, text == kOverflow ? kOverflow : L"before") << value;
  return text;
}

struct FormatCase {
  double value;
  int type;
  int precision;
  std::wstring text;
};

TEST(FormatResult, DisplayTypes) {
  const FormatCase cases[] = {
      {0, 0, 5, L"0"},
      {0, 1, 5, L"0.00000"},
      {0, 2, 5, L"0.00000e+000"},
      {0, 3, 5, L"0"},
      {0, 4, 5, L"0.00000e+000"},
      {-0.0, 0, 5, L"0"},
      {-0.0, 1, 5, L"0.00000"},
      {-0.0, 2, 5, L"0.00000e+000"},
      {-0.0, 3, 5, L"0"},
      {-0.0, 4, 5, L"0.00000e+000"},
      {1e12, 0, 5, L"1000000000000"},
      {1e12, 1, 5, L"1000000000000.00000"},
      {1e12, 3, 5, L"1,000,000,000,000"},
      {-1e12, 0, 5, L"-1000000000000"},
      {-1e12, 1, 5, L"-1000000000000.00000"},
      {-1e12, 3, 5, L"-1,000,000,000,000"},
      {1.0000001e12, 0, 5, L"1.00000e+012"},
      {1.0000001e12, 1, 5, L"1.00000e+012"},
      {1.0000001e12, 3, 5, L"1.00000e+012"},
      {-1.0000001e12, 0, 7, L"-1.0000001e+012"},
      {-1.0000001e12, 1, 7, L"-1.0000001e+012"},
      {-1.0000001e12, 3, 7, L"-1.0000001e+012"},
      {1e-12, 0, 5, L"0.000000000001"},
      {-1e-12, 0, 5, L"-0.000000000001"},
      {1e-13, 0, 5, L"1.00000e-013"},
      {-1e-13, 0, 5, L"-1.00000e-013"},
      {1e-13, 3, 5, L"1.00000e-013"},
      {1e-20, 1, 5, L"0.00000"},
      {-1e-20, 1, 5, L"-0.00000"},
      {1234, 3, 5, L"1,234"},
      {-1234, 3, 5, L"-1,234"},
      {123, 3, 5, L"123"},
      {0.5, 3, 5, L"0.5"},
      {1234.5, 3, 5, L"1,234.5"},
      {1234567.891, 3, 0, L"1,234,567.891"},
      {1e13, 3, 5, L"1.00000e+013"},
      {1234.5, 0, 0, L"1234.5"},
      {1.0 / 3, 0, 2, L"0.333333333333"},
      {2.0 / 3, 0, 2, L"0.666666666667"},
      {0.1 + 0.2, 0, 2, L"0.3"},
      {0.1, 0, 2, L"0.1"},
      {2.0000000000000004, 0, 2, L"2"},
      {1.9999999999999, 0, 2, L"2.0"},
      {1234.5, 1, 0, L"1234"},
      {1234.5678, 1, 2, L"1234.57"},
      {0.5, 1, 12, L"0.500000000000"},
      {12345, 2, 5, L"1.23450e+004"},
      {-0.00012, 2, 3, L"-1.200e-004"},
      {12345, 4, 5, L"12.34500E+003"},
      {0.00012345, 4, 5, L"123.45000E-006"},
      // A precision outside 0 to 100 is brought in, a foreign type shows engineering notation.
      {2.5, 1, -1, L"2"},
      {2.5, 1, -2147483647 - 1, L"2"},
      {2.5, 1, 100, L"2.5" + std::wstring(99, L'0')},
      {2.5, 1, 101, L"2.5" + std::wstring(99, L'0')},
      {2.5, 1, 2147483647, L"2.5" + std::wstring(99, L'0')},
      {2.5, 2, -1, L"2e+000"},
      {12345, 5, 1, L"12.3E+003"},
      {12345, -1, 1, L"12.3E+003"},
      {12345, 2147483647, 1, L"12.3E+003"},
  };
  for (const FormatCase& c : cases) {
    EXPECT_EQ(Formatted(c.value, c.type, c.precision), c.text) << c.value << " type " << c.type;
  }
}

TEST(FormatResult, Bases) {
  struct BaseCase {
    double value;
    int base;
    std::wstring text;
  };
  const BaseCase cases[] = {
      {-1, 2, L"FFFFFFFF"},
      {255, 2, L"FF"},
      {5, 3, L"101"},
      {8, 4, L"10"},
      {-1, 3, std::wstring(32, L'1')},
      {-1, 4, L"37777777777"},
      {0, 2, L"0"},
      {-0.0, 3, L"0"},
      {255.9, 2, L"FF"},
      {-1.9, 2, L"FFFFFFFF"},
      {0.9, 4, L"0"},
      {2147483647, 2, L"7FFFFFFF"},
      {-2147483648.0, 2, L"80000000"},
      {4294967295.0, 2, L"FFFFFFFF"},
      {4294967296.0, 2, L"0"},
      {1e300, 2, L"0"},
      {3735928559.0, 2, L"DEADBEEF"},
      {12.5, 1, L"12.5"},
      {12.5, 0, L"12.5"},
      {12.5, 5, L"12.5"},
      {12.5, -1, L"12.5"},
  };
  for (const BaseCase& c : cases) {
    // The display type and the precision have no part in an integer base.
    for (const int type : {0, 3}) EXPECT_EQ(Formatted(c.value, type, 5, c.base), c.text) << c.value;
    if (c.base >= 2 && c.base <= 4) {
      EXPECT_EQ(Formatted(c.value, 4, 0, c.base), c.text);
    }
  }
}

TEST(FormatResult, WhatIsNotFiniteOverflowsInEveryTypeAndBase) {
  for (const double value : {kInfinity, -kInfinity, std::nan(""), std::pow(10.0, 400.0)}) {
    for (int type = -1; type <= 5; ++type) {
      for (int base = 0; base <= 5; ++base) EXPECT_EQ(Formatted(value, type, 5, base), kOverflow);
    }
    std::wstring lastError;
    EXPECT_EQ(ReducedFormatResult(value, 5, lastError), kOverflow);
    EXPECT_EQ(lastError, kOverflow);
  }
}

TEST(FormatResult, ReducedFormIsGroupedDecimal) {
  std::mt19937_64 random(61);
  std::uniform_real_distribution<double> exponent(-20.0, 20.0);
  for (int i = 0; i < 5'000; ++i) {
    const double value = std::pow(10.0, exponent(random)) * (i % 2 == 0 ? 1.0 : -1.0);
    std::wstring lastError = L"before";
    ASSERT_EQ(ReducedFormatResult(value, i % 13, lastError), Formatted(value, 3, i % 13));
    ASSERT_EQ(lastError, L"before");
  }
}

TEST(GroupThousands, Table) {
  const std::pair<std::wstring_view, std::wstring_view> cases[] = {
      {L"", L""},
      {L"-", L"-"},
      {L"1", L"1"},
      {L"123", L"123"},
      {L"1234", L"1,234"},
      {L"12345", L"12,345"},
      {L"123456", L"123,456"},
      {L"1234567", L"1,234,567"},
      {L"-1234567.5", L"-1,234,567.5"},
      {L"-123", L"-123"},
      {L"1234.5678", L"1,234.5678"},
      {L"0.123456", L"0.123456"},
      {L".1234", L".1234"},
      {L"1234.", L"1,234."},
      {L"1234.5.6", L"1,234.5.6"},
  };
  for (const auto& [text, grouped] : cases) EXPECT_EQ(GroupThousands(text), grouped);
}

std::wstring WithoutCommas(std::wstring text) {
  std::erase(text, L',');
  return text;
}

/// How many decimals a decimal text has.
int DecimalsOf(const std::wstring& text) {
  const std::size_t point = text.find(L'.');
  return point == std::wstring::npos ? 0 : static_cast<int>(text.size() - point - 1);
}

TEST(FormatResult, TextsReadBackWithinTheirLastDigit) {
  std::mt19937_64 random(62);
  std::uniform_real_distribution<double> exponent(-14.0, 14.0);
  for (int i = 0; i < 20'000; ++i) {
    const double value = std::pow(10.0, exponent(random)) * (i % 2 == 0 ? 1.0 : -1.0);
    for (int type = 0; type <= 3; ++type) {
      const std::wstring text = WithoutCommas(Formatted(value, type, 12));
      const double read = TextToDouble(text);
      const bool hasExponent = text.find(L'e') != std::wstring::npos;
      const double digit =
          hasExponent ? 1e-12 * std::fabs(value) : std::pow(10.0, -DecimalsOf(text));
      ASSERT_LE(std::fabs(read - value), digit * 0.5001 + std::fabs(value) * 1e-15)
          << type << ": " << value;
    }
  }
}

TEST(FormatResult, ShortDecimalsAreShownAsWritten) {
  std::mt19937_64 random(63);
  for (int i = 0; i < 20'000; ++i) {
    const auto decimals = static_cast<int>(1 + random() % 8);
    const auto digits = static_cast<double>(random() % 9'999'999'999 * 10 + 1 + random() % 9);
    const double value = digits / std::pow(10.0, decimals);
    if (value < 1e-4) continue;
    ASSERT_EQ(Formatted(value, 0, 0), FixedText(value, decimals));
    ASSERT_EQ(WithoutCommas(Formatted(-value, 3, 0)), FixedText(-value, decimals));
  }
}

TEST(FormatResult, IntegerBasesReadBack) {
  std::mt19937 random(64);
  CalcEngine engine;
  for (int i = 0; i < 5'000; ++i) {
    const auto value = static_cast<std::int32_t>(random() >> random() % 32);
    for (const BaseType base : {BaseType::Hex, BaseType::Bin, BaseType::Oct}) {
      engine.baseMode = base;
      engine.EvaluateExpression(Formatted(value, 3, 5, static_cast<int>(base)));
      ASSERT_EQ(engine.errorText, L"");
      ASSERT_EQ(ToInt32(engine.result), value);
    }
  }
}

}  // namespace
}  // namespace vexa
