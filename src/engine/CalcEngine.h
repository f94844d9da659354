#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/CalcModes.h"
#include "engine/Functions.h"
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
  static constexpr const std::span<const Keyword>& keywords = kKeywords;

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
  /// Reduces the records to the result, or to the first error.
  void Reduce();

  /// The expression in lower case. Kept, so that the next evaluation finds its room.
  std::wstring lower;
};

}  // namespace vexa
