#pragma once

#include <gtest/gtest.h>

#include "engine/FormulaProgram.h"

namespace vexa::test {

/// The formula's value at `x`, where it must have one.
inline double ValueAt(const FormulaProgram& program, double x,
                      AngleType angle = AngleType::Degrees) {
  FormulaValues outcome;
  program.Evaluate({&x, 1}, angle, outcome);
  EXPECT_EQ(outcome.errors[0], nullptr);
  return outcome.values[0];
}

}  // namespace vexa::test
