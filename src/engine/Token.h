#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vexa {

/// Records that one expression may hold.
inline constexpr int kMaxTokens = 150;
/// Records in an array. The capacity is tested before a token is read, so the count can reach
/// kMaxTokens + 1, and one cleared record always stands behind the last one in use.
inline constexpr std::size_t kTokenRecords = kMaxTokens + 2;

/// What a record is (`Token::kind`); operands and cleared records have kind 0.
enum TokenKind : std::int32_t {
  kOperandKind = 0,
  kOperatorKind = 10,
  kFunctionKind = 40,
  kParenthesisKind = 50,
};

/// One token of an expression. Every stage of the engine works in place on arrays of these; a
/// record whose `op` and `isOperand` are both 0 is dead and passed over.
struct Token {
  signed char op = 0;          ///< operator, marker ("F" function, "x" "y" "z" variable) or 0
  std::int32_t isOperand = 0;  ///< 1: the record holds a live value
  std::int32_t funcCode = 0;   ///< a function's keyword code, else 0
  std::int32_t kind = 0;       ///< a TokenKind
  double value = 0.0;          ///< the operand's value
};

using TokenArray = std::array<Token, kTokenRecords>;

}  // namespace vexa
