#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "engine/CalcModes.h"
#include "engine/ReductionStep.h"
#include "engine/Token.h"

namespace vexa {

/// The steps that reduce an expression. Which steps these are, and their order, follows from the
/// records' operators alone and never from values, so a formula that is evaluated at many points is
/// planned once and only run at each.
class ReductionPlan {
 public:
  /// Whether this plan was made for records of the same structure, in the same base.
  bool Fits(std::span<const Token> records, BaseType base) const;
  /// Starts the plan for these records.
  void Begin(std::span<const Token> records, BaseType base);
  /// Appends a step.
  void Add(const ReductionStep& step);
  /// Appends the step that ends the run with an error. Nothing is added behind it.
  void Fail(const ReductionStep& failure);
  /// Ends the plan with the record that holds the result.
  void Finish(int index) { resultIndex = index; }

  bool Failed() const { return failed; }
  int ResultIndex() const { return resultIndex; }
  std::span<const ReductionStep> Steps() const { return {steps.data(), stepCount}; }

 private:
  // Each record gives at most one step; a failure is one more.
  std::array<ReductionStep, kTokenRecords + 1> steps{};
  std::size_t stepCount = 0;
  bool failed = false;
  int resultIndex = 0;
  std::array<std::uint32_t, kTokenRecords> structure{};
  std::size_t recordCount = 0;
  BaseType plannedBase = BaseType::Dec;
};

}  // namespace vexa
