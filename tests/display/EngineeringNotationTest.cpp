#include "display/EngineeringNotation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "engine/NumberText.h"

namespace vexa {
namespace {

TEST(EngineeringNotation, Table) {
  struct NotationCase {
    double value;
    int precision;
    std::wstring text;
  };
  const NotationCase cases[] = {
      {0.0, 5, L"0.00000e+000"},
      {0.0, 0, L"0e+000"},
      {12345, 5, L"12.34500E+003"},
      {-12345, 5, L"-12.34500E+003"},
      {0.00012345, 5, L"123.45000E-006"},
      {-0.00012345, 5, L"-123.45000E-006"},
      {1, 5, L"1.00000E+000"},
      {-1, 5, L"-1.00000E+000"},
      {-1.5, 1, L"-1.5E+000"},
      {10, 0, L"10E+000"},
      {100, 0, L"100E+000"},
      {999, 0, L"999E+000"},
      {1000, 0, L"1E+003"},
      {1e6, 2, L"1.00E+006"},
      {0.1, 2, L"100.00E-003"},
      {0.01, 2, L"10.00E-003"},
      {0.001, 2, L"1.00E-003"},
      {0.0001, 2, L"100.00E-006"},
      {-0.5, 2, L"-500.00E-003"},
      {1e100, 3, L"10.000E+099"},
      {1e300, 3, L"1.000E+300"},
      {1e-300, 3, L"1.000E-300"},
      {1e-301, 3, L"100.000E-303"},
      {std::numeric_limits<double>::denorm_min(), 3, L"4.941E-324"},
      // Just below a power of ten the logarithm already counts the next one, the mantissa does not.
      {999.99999999999989, 5, L"10.00000E+003"},
      {0.99999999999999989, 5, L"1000.00000E-003"},
  };
  for (const NotationCase& c : cases) {
    EXPECT_EQ(EngineeringText(c.value, c.precision), c.text) << c.value;
  }
}

TEST(EngineeringNotation, ExponentsAreMultiplesOfThreeAndTheTextReadsBack) {
  std::mt19937_64 random(51);
  std::uniform_real_distribution<double> exponent(-300.0, 300.0);
  for (int i = 0; i < 20'000; ++i) {
    const double value = std::pow(10.0, exponent(random)) * (i % 2 == 0 ? 1.0 : -1.0);
    const std::wstring text = EngineeringText(value, 12);
    const std::size_t mark = text.find(L'E');
    ASSERT_NE(mark, std::wstring::npos) << value;
    ASSERT_EQ(std::fmod(TextToDouble(text.substr(mark + 1)), 3.0), 0.0) << value;
    ASSERT_GE(text.size() - mark, 5u) << value;
    const double mantissa = std::fabs(TextToDouble(text));
    ASSERT_NEAR(mantissa / std::fabs(value), 1.0, 1e-12) << value;
  }
}

}  // namespace
}  // namespace vexa
