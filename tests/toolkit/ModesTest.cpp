#include "toolkit/Modes.h"

#include <gtest/gtest.h>

#include <limits>

namespace vexa {
namespace {

TEST(Modes, StoredCodes) {
  EXPECT_EQ(ModeOfCode(1), Mode::ScientificCalculator);
  EXPECT_EQ(ModeOfCode(2), Mode::FunctionPlotter);
  EXPECT_EQ(ModeOfCode(3), Mode::OneVarStatistics);
  EXPECT_EQ(ModeOfCode(4), Mode::TwoVarStatistics);
}

TEST(Modes, AnyOtherCodeIsTheLastMode) {
  for (const int code :
       {0, 5, 9, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    EXPECT_EQ(ModeOfCode(code), Mode::TwoVarStatistics) << code;
  }
}

TEST(Modes, ThePlaceInTheTable) {
  for (std::size_t n = 0; n < kModes.size(); ++n) EXPECT_EQ(IndexOf(kModes[n].mode), n);
}

}  // namespace
}  // namespace vexa
