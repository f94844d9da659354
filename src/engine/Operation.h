#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <type_traits>

#include "engine/CalcModes.h"
#include "engine/EngineErrors.h"

namespace vexa {

/// One operation on many samples: a column of numbers for each operand and for the result.
struct ColumnStep {
  const double* left;
  const double* right;
  double* result;  ///< no operand's column
  std::size_t count;
  AngleType angle;
  /// The first error of each sample; null: none. The numbers of a sample with an error are
  /// arbitrary.
  const EngineError** errors;
};

/// Which operands an operation takes.
enum class Operands {
  Any,
  /// Finite ones; else the error is kOutOfRange.
  Finite,
  /// The same, and of others the result would not be finite either: testing the result finds them.
  FiniteBySpread,
};

/// What a step of an expression does with its operands, on one pair of numbers and on columns of
/// them. Both come from the same two functions, so that they agree to the last bit.
struct Operation {
  Operands operands;
  std::array<EngineError, 2> refusals;
  /// Puts the result into `left`, or returns the refusal.
  const EngineError* (*apply)(const Operation& self, double& left, double right, AngleType angle);
  void (*applyToColumns)(const Operation& self, const ColumnStep& step);

  bool NeedsFinite() const { return operands != Operands::Any; }

  /// `left` becomes the result. Null, or the error, which leaves `left` as it is.
  const EngineError* Run(double& left, double right, AngleType angle) const {
    if (NeedsFinite() && !(std::isfinite(left) && std::isfinite(right))) return &kOutOfRange;
    return apply(*this, left, right, angle);
  }
};

/// For operations that refuse nothing.
struct NeverRefuses {
  bool operator()(double) const { return false; }
};

namespace operation_detail {

/// Calls a function of one or two operands, or of one and the angle unit.
template <typename Function>
auto Call(double left, double right, AngleType angle) {
  constexpr Function function{};
  if constexpr (std::is_invocable_v<Function, double, double>) {
    return function(left, right);
  } else if constexpr (std::is_invocable_v<Function, double, AngleType>) {
    return function(left, angle);
  } else {
    return function(left);
  }
}

/// The refusal that `Refuses` gives by its number from 1 on; null for 0.
template <typename Refuses>
const EngineError* Refusal(const Operation& self, double left, double right, AngleType angle) {
  const auto number = static_cast<std::size_t>(Call<Refuses>(left, right, angle));
  return number == 0 ? nullptr : &self.refusals[number - 1];
}

template <typename Value, typename Refuses>
const EngineError* Apply(const Operation& self, double& left, double right, AngleType angle) {
  const EngineError* const refusal = Refusal<Refuses>(self, left, right, angle);
  if (!refusal) left = Call<Value>(left, right, angle);
  return refusal;
}

template <typename Refuses>
void MarkRefused(const Operation& self, const ColumnStep& step) {
  bool any = false;
  for (std::size_t i = 0; i < step.count; ++i) {
    any |= Call<Refuses>(step.left[i], step.right[i], step.angle) != 0;
  }
  if (!any) return;
  for (std::size_t i = 0; i < step.count; ++i) {
    if (step.errors[i]) continue;
    step.errors[i] = Refusal<Refuses>(self, step.left[i], step.right[i], step.angle);
  }
}

template <typename Value, typename Refuses>
void ApplyToColumns(const Operation& self, const ColumnStep& step) {
  if constexpr (!std::is_same_v<Refuses, NeverRefuses>) MarkRefused<Refuses>(self, step);
  const double* const left = step.left;
  const double* const right = step.right;
  double* const result = step.result;
  const std::size_t count = step.count;
  const AngleType angle = step.angle;
  for (std::size_t i = 0; i < count; ++i) result[i] = Call<Value>(left[i], right[i], angle);
}

}  // namespace operation_detail

/// The operation with this `Value`, a function of one or two numbers, or of one and the angle unit.
/// `Refuses` has the same operands and gives the number of the refusal, 0: none.
template <typename Value, typename Refuses = NeverRefuses>
constexpr Operation MakeOperation(Operands operands, const std::array<EngineError, 2>& refusals,
                                  Value, Refuses = {}) {
  return {operands, refusals, operation_detail::Apply<Value, Refuses>,
          operation_detail::ApplyToColumns<Value, Refuses>};
}

}  // namespace vexa
