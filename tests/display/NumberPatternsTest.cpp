#include "display/NumberPatterns.h"

#include <gtest/gtest.h>
#include <locale.h>
#include <stdio.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace vexa {
namespace {

TEST(NumberPatterns, Fixed) {
  struct PatternCase {
    double value;
    int decimals;
    std::wstring text;
  };
  const PatternCase cases[] = {
      {0, 0, L"0"},
      {0, 5, L"0.00000"},
      {-0.0, 2, L"-0.00"},
      {2.5, 6, L"2.500000"},
      {0.5, 0, L"0"},
      {1.5, 0, L"2"},
      {2.5, 0, L"2"},
      {-0.001, 2, L"-0.00"},
      {0.125, 2, L"0.12"},
      {0.375, 2, L"0.38"},
      {1e22, 1, L"10000000000000000000000.0"},
      {123456.789, 2, L"123456.79"},
  };
  for (const PatternCase& c : cases) EXPECT_EQ(FixedText(c.value, c.decimals), c.text) << c.value;
}

TEST(NumberPatterns, Exponent) {
  struct PatternCase {
    double value;
    int decimals;
    std::wstring text;
  };
  const PatternCase cases[] = {
      {0, 5, L"0.00000e+000"},
      {12345678901234.0, 5, L"1.23457e+013"},
      {1e-13, 2, L"1.00e-013"},
      {-1, 0, L"-1e+000"},
      {1e100, 1, L"1.0e+100"},
      {1e-300, 0, L"1e-300"},
      {9.999999, 3, L"1.000e+001"},
      {std::numeric_limits<double>::max(), 3, L"1.798e+308"},
      {std::numeric_limits<double>::denorm_min(), 3, L"4.941e-324"},
  };
  for (const PatternCase& c : cases) {
    EXPECT_EQ(ExponentText(c.value, c.decimals), c.text) << c.value;
  }
}

TEST(NumberPatterns, General) {
  const std::pair<double, std::wstring> cases[] = {
      {0, L"0"},           {0.1, L"0.1"},
      {0.1 + 0.2, L"0.3"}, {1.0 / 3, L"0.333333333333333"},
      {1e15, L"1e+15"},    {123456789012345.0, L"123456789012345"},
      {0.0001, L"0.0001"}, {0.00001, L"1e-05"},
      {-2.50, L"-2.5"},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(GeneralText(value), text) << value;
}

TEST(NumberPatterns, TheLongestTexts) {
  const double largest = -std::numeric_limits<double>::max();
  EXPECT_EQ(FixedText(largest, 100).size(), 1u + 309 + 1 + 100);
  EXPECT_EQ(ExponentText(largest, 100).size(), 1u + 1 + 1 + 100 + 5);
}

/// The C library's text for a pattern, in the C locale.
std::string Printed(const char* pattern, int decimals, double value) {
  const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
  const locale_t previous = uselocale(c);
  char buffer[512];
  snprintf(buffer, sizeof buffer, pattern, decimals, value);
  uselocale(previous);
  freelocale(c);
  return buffer;
}

std::wstring Widened(const std::string& text) {
  return {text.begin(), text.end()};
}

TEST(NumberPatterns, RandomValuesAsTheCLibraryPrintsThem) {
  std::mt19937_64 random(31);
  for (int i = 0; i < 20'000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    const auto decimals = static_cast<int>(random() % 101);
    ASSERT_EQ(FixedText(value, decimals), Widened(Printed("%.*lf", decimals, value)));
    ASSERT_EQ(GeneralText(value), Widened(Printed("%.*g", 15, value)));
    std::string exponent = Printed("%.*e", decimals, value);
    if (exponent[exponent.size() - 4] == 'e') exponent.insert(exponent.size() - 2, 1, '0');
    ASSERT_EQ(ExponentText(value, decimals), Widened(exponent));
  }
}

}  // namespace
}  // namespace vexa
