#pragma once

#include <string>
#include <string_view>

namespace vexa {

/// The engine's error codes. Their sentences stand in EngineErrors.cpp.
enum class ErrorCode : int {
  OutOfRange = 0,
  UnmatchedParentheses = 1,
  Expression = 2,
  TooManyOperators = 3,
  NeedsArgument = 4,  ///< argument: the function's name or "!"
  NotSupported = 5,   ///< argument: the word, character or run; long ones are shortened
  LimitExceeded = 6,  ///< argument: the operation's name
  NonInteger = 7,     ///< argument: "!", "Combi.." or "Permu.."
  LengthLimit = 8,
  NullExpression = 9,
  Message = 10,  ///< argument: the complete sentence
};

/// The sentence of an operation whose operand or result is infinite or not a number, also used by
/// the number formatter.
inline constexpr std::wstring_view kOutOfRangeText = L"Out of range(overflow or underflow)";
/// The sentence of an expression whose parts do not fit together.
inline constexpr std::wstring_view kExpressionErrorText = L"Expression error.";

/// An error: its code and the argument of its sentence.
struct EngineError {
  ErrorCode code;
  std::wstring_view argument = {};
};

inline constexpr EngineError kOutOfRange{ErrorCode::OutOfRange};
inline constexpr EngineError kExpressionError{ErrorCode::Expression};

/// Composes the sentence of `code` with `argument`. For a code outside the table returns `current`
/// unchanged.
std::wstring ErrorText(ErrorCode code, std::wstring_view argument, std::wstring current);

}  // namespace vexa
