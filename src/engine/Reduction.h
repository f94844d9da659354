#pragma once

#include <cstdint>

#include "engine/BinaryOperators.h"
#include "engine/CalcModes.h"
#include "engine/Operation.h"
#include "engine/Token.h"

namespace vexa {

/// One step of reducing an expression's records to a value. Operands are given by their record's
/// index; the left one receives the result, and with one operand they are the same.
struct ReductionStep {
  const Operation* operation;
  std::uint8_t left;
  std::uint8_t right;
};

/// Receives the steps of a reduction. Errors live as long as the program.
class StepTaker {
 public:
  virtual ~StepTaker() = default;
  /// Does or keeps the next step. False ends the reduction.
  virtual bool Take(const ReductionStep& step) = 0;
  /// The records do not fit together: ends the reduction.
  virtual void Fail(const EngineError& error) = 0;
  /// The record with this index holds the result: ends the reduction.
  virtual void Finish(int index) = 0;
};

/// Reduces an expression's records in place: parentheses from the inside out, then the whole
/// expression. Which steps these are, and their order, follows from the records' operators and
/// never from their values: only the taker of the steps reads those. A binary step clears its
/// operator and its right operand, so that no later step finds them.
class Reduction {
 public:
  /// Reduces the first `tokenCount` of `tokens`, of which the next one is clear.
  Reduction(TokenArray& tokens, int tokenCount, BaseType base, StepTaker& taker);

  void Run();

 private:
  /// Whether the expression may have this operator. Most have few kinds, and the searches for the
  /// others are left out.
  bool MayHave(signed char op) const { return (present & OperatorBit(op)) != 0; }

  Token& At(int index) { return records[static_cast<std::size_t>(index)]; }
  const Token& At(int index) const { return records[static_cast<std::size_t>(index)]; }

  // A range is the records from `lo` to `hi` - 1.
  void ReduceRange(int lo, int hi);
  void ReduceDecimalRange(int lo, int hi);
  void ReduceBaseRange(int lo, int hi);
  /// Functions without parentheses, from right to left.
  void ApplyBareFunctions(int lo, int hi);
  /// Signs, factorials, nCr and nPr, powers.
  void ApplyPrefixesAndPowers(int lo, int hi);
  void ApplySigns(int lo, int hi);
  void ApplyMinusSigns(int lo, int hi);
  void ApplyPlusSigns(int lo, int hi);
  void ApplyFactorials(int lo, int hi);
  void ApplyCombinatorics(int lo, int hi);
  void ApplyPowers(int lo, int hi);
  /// Applies the functions from `lo` to `hi` inclusive to the first live operand behind each.
  void ApplyFunctions(int lo, int hi);
  /// NOT, in the integer bases.
  void ApplyComplements(int lo, int hi);
  /// The binary operators of `pass`, from left to right.
  void ApplyPass(const OperatorPass& pass, int lo, int hi);
  /// The operation of the operator at `index` on its nearest live operands.
  void ApplyBinary(int index, const Operation& operation);
  void ApplyUnary(int operand, const Operation& operation);
  /// Finds the one live operand that is left.
  void ExtractResult();

  void Take(const ReductionStep& step);
  void Fail(const EngineError& error);

  /// Index of the nearest live operand at or before `index`, across parentheses; -1: none.
  int OperandBefore(int index) const;
  /// Index of the nearest live operand behind `index`. Where none is left, `count`, whose cleared
  /// record stands in with the value 0.
  int OperandAfter(int index) const;
  /// Whether the "+" or "-" at `index` has no left operand.
  bool IsSign(int index) const;

  TokenArray& records;
  const int count;
  const BaseType baseMode;
  StepTaker& steps;
  OperatorSet present = 0;
  bool ended = false;
};

}  // namespace vexa
