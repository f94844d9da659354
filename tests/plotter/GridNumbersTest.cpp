#include "plotter/GridNumbers.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <set>

namespace vexa {
namespace {

using Numbers = std::array<std::wstring, kGridLines>;

TEST(GridNumbers, StandAtTenthsOfTheRange) {
  EXPECT_EQ(GridNumbers(-10, 10),
            (Numbers{L"-8", L"-6", L"-4", L"-2", L"0", L"2", L"4", L"6", L"8"}));
  EXPECT_EQ(GridNumbers(-8.4, 8.4), (Numbers{L"-6.72", L"-5.04", L"-3.36", L"-1.68", L"0", L"1.68",
                                             L"3.36", L"5.04", L"6.72"}));
  EXPECT_EQ(GridNumbers(0, 1e-7)[0], L"1e-08");
  EXPECT_EQ(GridNumbers(-3e300, 7e300)[0], L"-2e+300");
}

TEST(GridNumbers, TellNeighboursApart) {
  for (const auto& [low, high] : {std::pair(1e6, 1e6 + 1), std::pair(-5.00001, -5.0),
                                  std::pair(-1e-300, 1e-300), std::pair(3.0, 3.0 + 1e-9)}) {
    const Numbers numbers = GridNumbers(low, high);
    EXPECT_EQ(std::set<std::wstring>(numbers.begin(), numbers.end()).size(), numbers.size()) << low;
  }
}

TEST(GridNumbers, RangesThatCannotBePartedHaveNone) {
  const double bad[][2] = {{-DBL_MAX, DBL_MAX}, {1, 1}, {2, 1}, {std::nan(""), 1}};
  for (const auto& range : bad) EXPECT_EQ(GridNumbers(range[0], range[1]), Numbers());
}

}  // namespace
}  // namespace vexa
