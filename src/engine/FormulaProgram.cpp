#include "engine/FormulaProgram.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <memory>

#include "engine/FormulaPlanner.h"
#include "engine/VectorState.h"

namespace vexa {
namespace {

/// Samples that are computed at once: few enough for the columns to stay in the processor's cache.
constexpr std::size_t kLanes = 256;

/// Gives the samples without an error `error` where `fails` holds.
template <typename Condition>
void MarkWhere(std::span<const EngineError*> errors, const EngineError& error, Condition fails) {
  for (std::size_t i = 0; i < errors.size(); ++i) {
    if (!errors[i] && fails(i)) errors[i] = &error;
  }
}

void TestFinite(const double* numbers, std::span<const EngineError*> errors) {
  // A finite number less itself is +0, all bits clear; any other is not a number.
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < errors.size(); ++i) {
    bits |= std::bit_cast<std::uint64_t>(numbers[i] - numbers[i]);
  }
  if (bits == 0) return;
  MarkWhere(errors, kOutOfRange, [&](std::size_t i) { return !std::isfinite(numbers[i]); });
}

}  // namespace

std::wstring FormulaValues::Sentence(std::size_t index) const {
  const EngineError* const error = errors[index];
  return error ? ErrorText(error->code, error->argument, {}) : std::wstring();
}

FormulaProgram::FormulaProgram(std::span<const Token> records)
    : FormulaProgram(FormulaPlanner(records).Program()) {}

void FormulaProgram::Evaluate(std::span<const double> xs, AngleType angle,
                              FormulaValues& outcome) const {
  ForgetUpperHalves();
  outcome.values.resize(xs.size());
  outcome.errors.assign(xs.size(), nullptr);
  const std::size_t lanes = std::min(xs.size(), kLanes);
  if (outcome.room < columnCount * lanes) {
    outcome.room = columnCount * lanes;
    outcome.columns = std::make_unique_for_overwrite<double[]>(outcome.room);
  }
  for (std::size_t i = 0; i < constants.size(); ++i) {
    std::fill_n(outcome.columns.get() + i * lanes, lanes, constants[i]);
  }
  for (std::size_t start = 0; start < xs.size(); start += lanes) {
    const std::size_t count = std::min(lanes, xs.size() - start);
    Run({xs.subspan(start, count), std::span(outcome.values).subspan(start, count),
         std::span(outcome.errors).subspan(start, count), outcome.columns.get(), lanes, angle});
  }
}

void FormulaProgram::Run(const Block& block) const {
  const auto numbers = [&](Column column) {
    return column == kX ? block.xs.data() : block.columns + column * block.lanes;
  };
  for (const Instruction& step : instructions) {
    const double* const left = numbers(step.left);
    const double* const right = numbers(step.right);
    if (step.testLeft) TestFinite(left, block.errors);
    if (step.testRight) TestFinite(right, block.errors);
    step.operation->applyToColumns(*step.operation,
                                   {left, right, block.columns + step.result * block.lanes,
                                    block.errors.size(), block.angle, block.errors.data()});
  }
  if (failure) return MarkWhere(block.errors, *failure, [](std::size_t) { return true; });
  const double* const values = numbers(result);
  if (testResult) TestFinite(values, block.errors);
  std::copy_n(values, block.values.size(), block.values.begin());
  if (std::ranges::all_of(block.errors, [](const EngineError* error) { return !error; })) return;
  for (std::size_t i = 0; i < block.values.size(); ++i) {
    if (block.errors[i]) block.values[i] = 0.0;
  }
}

}  // namespace vexa
