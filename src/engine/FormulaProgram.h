#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "engine/CalcModes.h"
#include "engine/Operation.h"
#include "engine/Token.h"

namespace vexa {

/// What a formula gives at many X: at each the value, or an error and the value 0.
struct FormulaValues {
  std::vector<double> values{};
  /// Null: no error.
  std::vector<const EngineError*> errors{};
  /// Room for what is computed on the way, kept from one evaluation to the next.
  std::unique_ptr<double[]> columns{};
  std::size_t room = 0;

  /// The error's sentence; empty: none.
  std::wstring Sentence(std::size_t index) const;
};

/// A formula of X, planned once and evaluated at many X. The plan is what the reduction of the
/// formula's records does, step by step; values and sentences are the same to the last bit.
///
/// Each step is done on a whole column of samples before the next one, so that additions and the
/// like are a few vector instructions. What was computed before is not computed again.
class FormulaProgram {
 public:
  /// A formula without records: an error everywhere.
  FormulaProgram() : FormulaProgram(std::span<const Token>()) {}
  /// `records`: a checked formula's records, with the variable X in them.
  explicit FormulaProgram(std::span<const Token> records);

  /// Evaluates the formula at each of `xs`.
  void Evaluate(std::span<const double> xs, AngleType angle, FormulaValues& outcome) const;

 private:
  friend class FormulaPlanner;

  /// A column's number. The constants come first, then what is computed; X has no room of its own.
  using Column = std::uint8_t;
  static constexpr Column kX = 255;

  struct Instruction {
    const Operation* operation;
    Column left;
    Column right;
    Column result;  ///< neither of the operands
    /// Whether the operand is tested for being finite: only where it is needed first.
    bool testLeft;
    bool testRight;
  };

  /// Some samples, and room for their columns.
  struct Block {
    std::span<const double> xs;
    std::span<double> values;
    std::span<const EngineError*> errors;
    double* columns;
    std::size_t lanes;
    AngleType angle;
  };

  /// Filled in by the planner.
  struct Unplanned {};
  explicit FormulaProgram(Unplanned) {}

  void Run(const Block& block) const;

  std::vector<double> constants;
  std::vector<Instruction> instructions;
  std::size_t columnCount = 0;
  /// Behind the instructions: the error that every other sample ends with, or null and the result.
  const EngineError* failure = nullptr;
  Column result = kX;
  bool testResult = true;
};

}  // namespace vexa
