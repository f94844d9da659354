#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "engine/CalcModes.h"
#include "engine/Keywords.h"
#include "engine/ReductionPlan.h"
#include "engine/TokenList.h"

namespace vexa {

/// Evaluates one expression. The text is cut once into a flat array of records, and everything
/// after that (syntax check, reduction, extraction of the result) works in place on the array.
/// There is no tree: a binary operation writes its result into the record of its left operand.
///
/// Set `angleMode` and `baseMode`, call EvaluateExpression or LoadTokens and EvaluateTokens, then
/// read `errorText` (empty: success) and `result`. Nothing is thrown; the first error wins.
class CalcEngine : public TokenList {
 public:
  /// Unit of the trigonometric functions.
  AngleType angleMode = AngleType::Degrees;
  /// Base of the expression: chooses tokenizer, syntax rules and operators. A value outside the
  /// enum is read with the decimal tokenizer and reduced as an integer base.
  BaseType baseMode = BaseType::Dec;
  /// Value of the last successful evaluation; 0.0 after a failure.
  double result = 0.0;
  /// Reserved for the result's text in the integer bases; stays empty.
  std::wstring resultText;
  /// Function names and codes, the same for every engine object.
  static constexpr const std::array<Keyword, 16>& keywords = kKeywords;

  /// Evaluates `expression` (any case) in the current angle mode and base.
  void EvaluateExpression(std::wstring_view expression);

  /// Copies `records` (at most kMaxTokens + 1) into the engine; all others are clear.
  void LoadTokens(std::span<const Token> records);

  /// Evaluates the records that the caller has put into `tokens` and `tokenCount`, with the decimal
  /// syntax rules. Consumes the records.
  void EvaluateTokens();

  /// Cuts a lower-case decimal `expression` into records, or reports an error.
  void TokenizeDecimal(std::wstring_view expression);

 private:
  Token& At(int index) { return tokens[static_cast<std::size_t>(index)]; }
  const Token& At(int index) const { return tokens[static_cast<std::size_t>(index)]; }
  std::span<const Token> Records() const;

  // The reduction: parentheses from the inside out, then the whole expression. These operations
  // work on the records' operators only and append the steps to the plan; a binary step clears its
  // operator and its right operand at once. A range is the records from `lo` to `hi` - 1.
  void Reduce();
  void ReduceRange(int lo, int hi);
  void ReduceDecimalRange(int lo, int hi);
  void ReduceBaseRange(int lo, int hi);
  /// Signs, factorials, nCr and nPr, powers.
  void ApplyPrefixesAndPowers(int lo, int hi);
  void ApplySigns(int lo, int hi);
  void ApplyFactorials(int lo, int hi);
  void ApplyCombinatorics(int lo, int hi);
  void ApplyPowers(int lo, int hi);
  /// Applies the functions from `lo` to `hi` inclusive to the first live operand behind each.
  void ApplyFunctions(int lo, int hi);
  /// NOT, in the integer bases.
  void ApplyComplements(int lo, int hi);
  /// The binary operators of `pass`, from left to right.
  void ApplyPass(const OperatorPass& pass, int lo, int hi);
  /// Plans the binary `step` of the operator at `index` with its nearest live operands.
  void ApplyBinary(int index, ReductionStep step);
  /// Finds the one live operand that is left.
  void ExtractResult();

  /// Runs the plan's steps on the records' values.
  void RunPlan();

  /// Index of the nearest live operand at or before `index`, across parentheses; -1: none.
  int OperandBefore(int index) const;
  /// Index of the nearest live operand behind `index`. Where none is left, `tokenCount`, whose
  /// cleared record stands in with the value 0.
  int OperandAfter(int index) const;
  /// Whether the "+" or "-" at `index` has no left operand.
  bool IsSign(int index) const;

  /// Index of the ")" whose "(" is preceded by a function; 0: none.
  int pendingFunctionClose = 0;
  ReductionPlan plan;
};

}  // namespace vexa
